#include "shell/artwork.h"
#include "shell/geometry.h"
#include "tests/shell/window_test.h"

#include <QDir>

// The pictures of the artwork: there is one for every scale, and a place gets its own pixels.

namespace {

QImage Drawn(const QString &name, int scale) {
    return QImage(u":/artwork/%1/%2.png"_s.arg(scale).arg(name));
}

QImage Shown(const QString &name, QSize size) { return LoadArtwork(name, size).toImage(); }

bool LookTheSame(const QImage &one, const QImage &other) {
    const auto painted = [](const QImage &image) {
        return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    };
    return painted(one) == painted(other);
}

} // namespace

class ArtworkTest : public WindowTest {
    Q_OBJECT

private slots:
    void EveryDrawingIsThereAtEveryScale() {
        const QStringList names = QDir(u":/artwork/100"_s).entryList();
        QCOMPARE(names.size(), 17 + backgroundParts.size());
        QStringList folders{u"icon"_s};
        for (const int scale : artworkScales) {
            const QString folder = QString::number(scale);
            folders << folder;
            QCOMPARE(QDir(u":/artwork/"_s + folder).entryList(), names);
        }
        folders.sort();
        QCOMPARE(QDir(u":/artwork"_s).entryList(QDir::Dirs, QDir::Name), folders);
    }

    void EveryScaleHasItsOwnPixels() {
        // A place whose size the scale gives in whole pixels, or rounded up or down.
        struct Case {
            QString name;
            int scale;
            QSize size;
        };
        for (const auto &[name, scale, size] :
             {Case{u"proceed"_s, 100, {84, 26}}, Case{u"proceed"_s, 125, {105, 32}},
              Case{u"proceed"_s, 125, {105, 33}}, Case{u"proceed"_s, 175, {147, 45}},
              Case{u"proceed"_s, 175, {147, 46}}, Case{u"exit-hyper"_s, 150, {66, 58}},
              Case{u"exit-hyper"_s, 150, {66, 59}}, Case{u"help"_s, 250, {110, 97}},
              Case{u"arrow"_s, 125, {11, 7}}, Case{u"arrow"_s, 125, {12, 8}},
              Case{u"branch-open"_s, 200, {32, 40}}, Case{u"message-warning"_s, 100, {48, 48}},
              Case{u"message-critical"_s, 150, {72, 72}}})
            QVERIFY(LookTheSame(Shown(name, size), Drawn(name, scale).copy(QRect(QPoint(), size))));
    }

    void OtherScalesGetTheNextLargerPictureMadeSmaller() {
        for (const auto &[size, scale] : {std::pair{QSize(92, 29), 125},
                                          {{110, 34}, 150},
                                          {{193, 60}, 250},
                                          {{336, 104}, 300}}) {
            const QImage expected =
                Drawn(u"save"_s, scale)
                    .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
            QVERIFY(LookTheSame(Shown(u"save"_s, size), expected));
        }
    }

    void TheBackgroundIsPutTogetherFromItsParts() {
        for (const int scale : artworkScales) {
            const QSize size((626 * scale + 99) / 100, (440 * scale + 99) / 100);
            const QImage whole = LoadBackground(size).toImage();
            QCOMPARE(whole.size(), size);
            QVERIFY(!whole.hasAlphaChannel());
            for (std::size_t number = 0; number < backgroundParts.size(); ++number) {
                const QImage part = Drawn(u"background-%1"_s.arg(number), scale);
                const QRect place = backgroundParts[number];
                const QRect pixels(QPoint(place.x() * scale / 100, place.y() * scale / 100),
                                   part.size());
                QVERIFY((pixels.right() + 1) * 100 >= (place.right() + 1) * scale);
                QVERIFY((pixels.bottom() + 1) * 100 >= (place.bottom() + 1) * scale);
                // Where two parts overlap by a pixel, one of them is seen.
                QVERIFY(LookTheSame(whole.copy(pixels.adjusted(1, 1, -1, -1)),
                                    part.copy(part.rect().adjusted(1, 1, -1, -1))));
            }
        }
        // A place at a fraction of a pixel is one narrower, and nothing is squeezed.
        QVERIFY(LookTheSame(LoadBackground({782, 550}).toImage(),
                            LoadBackground({783, 550}).toImage().copy(0, 0, 782, 550)));
    }

    void EverythingInSightOfTheBackgroundIsDrawn() {
        QRegion missing(form.picMain->rect());
        for (const QRect &page : {At("TV").place, At("Picture1").place})
            missing -= page.adjusted(2, 2, -2, -2); // more than any rounding
        for (const QRect &part : backgroundParts)
            missing -= part;
        QCOMPARE(missing, QRegion());
    }

    void TheIconHasItsSizes() {
        const QList<QSize> sizes{{16, 16}, {32, 32}, {64, 64}};
        QCOMPARE(QApplication::windowIcon().availableSizes(), sizes);
        for (const QSize size : sizes)
            QVERIFY(!QApplication::windowIcon().pixmap(size).toImage().isNull());
    }
};

ORRAVANE_TEST_PROGRAM(ArtworkTest)

#include "artwork_test.moc"
