#include "shell/artwork.h"
#include "shell/style.h"
#include "tests/shell/window_test.h"

#include <QAbstractItemView>
#include <QMap>
#include <QStyle>

#include <cmath>

// How the window looks, measured from its pixels.

namespace {

/// The contrast of two colours, from 1 to 21, as the web's accessibility guidelines have it.
double Contrast(const QColor &one, const QColor &other) {
    const auto luminance = [](const QColor &color) {
        const auto linear = [](double value) {
            return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
               0.0722 * linear(color.blueF());
    };
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

/// The colour that most pixels of a picture have.
QColor GroundOf(const QImage &picture) {
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            ++counts[picture.pixel(x, y)];
    QRgb ground = picture.pixel(0, 0);
    for (auto count = counts.cbegin(); count != counts.cend(); ++count)
        if (count.value() > counts.value(ground))
            ground = count.key();
    return ground;
}

/// The contrast of what is drawn on the ground of a picture. The soft edges of letters have
/// less than their strokes, so it is that of the 10 pixels that have most.
double ContrastIn(const QImage &picture) {
    const QColor ground = GroundOf(picture);
    QList<double> contrasts;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            contrasts << Contrast(picture.pixelColor(x, y), ground);
    std::sort(contrasts.begin(), contrasts.end(), std::greater<>());
    return contrasts.value(10);
}

/// The smallest rectangle around the pixels that stand out from the ground of a picture.
QRect InkOf(const QImage &picture, const QRect &part) {
    QRect ink;
    const QColor ground = GroundOf(picture.copy(part));
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); ++x)
            if (Contrast(picture.pixelColor(x, y), ground) > 2.5)
                ink |= QRect(x, y, 1, 1);
    return ink;
}

} // namespace

class LooksTest : public WindowTest {
    Q_OBJECT

    QImage Look() {
        QApplication::processEvents();
        return form.grab().toImage();
    }
    QImage Look(const QWidget *control, QRect part = {}) {
        if (part.isEmpty())
            part = control->rect();
        return Look().copy(part.translated(control->mapTo(&form, QPoint())));
    }
    QImage LookAtNode(const QString &caption) {
        return Look(TV.viewport(), TV.visualItemRect(Node(caption)).adjusted(2, 2, -2, -2));
    }

    /// Fails unless a text on its ground has the contrast that it needs, and tells which.
    static void CheckText(const QImage &picture, const QString &what) {
        const double contrast = ContrastIn(picture);
        qInfo("%s: %.1f", qPrintable(what), contrast);
        QVERIFY2(contrast >= 4.5, qPrintable(u"%1 has %2"_s.arg(what).arg(contrast)));
    }
    static void CheckMark(const QColor &mark, const QColor &ground, const QString &what) {
        const double contrast = Contrast(mark, ground);
        qInfo("%s: %.1f", qPrintable(what), contrast);
        QVERIFY2(contrast >= 3, qPrintable(u"%1 has %2"_s.arg(what).arg(contrast)));
    }

private slots:
    void EveryTextHasItsContrast() {
        EnterSomebody();
        TV.setFocus();
        for (const auto *label : form.Picture1->findChildren<QLabel *>())
            CheckText(Look(label), label->objectName());
        for (const auto *group : form.Picture1->findChildren<QGroupBox *>())
            CheckText(Look(group, {12, 1, 30, 12}), group->objectName());
        for (auto *box : std::initializer_list<QWidget *>{input.txtFirstName, input.cboYear}) {
            CheckText(Look(box, box->rect().adjusted(4, 3, -18, -3)), box->objectName());
            box->setFocus();
            CheckText(Look(box, box->rect().adjusted(4, 3, -18, -3)),
                      box->objectName() + u" with focus"_s);
        }
        input.txtFirstName->setFocus();
        input.txtFirstName->selectAll();
        CheckText(Look(input.txtFirstName, {5, 3, 20, 13}), u"marked name"_s);
        input.txtFirstName->deselect();

        CheckText(LookAtNode(u"Help"_s), u"node"_s);
        CheckText(LookAtNode(u"Reset"_s), u"selected node without focus"_s);
        TV.setFocus();
        CheckText(LookAtNode(u"Reset"_s), u"selected node"_s);
        MoveTo(TV.viewport(), TV.visualItemRect(Node(u"Help"_s)).center());
        CheckText(LookAtNode(u"Help"_s), u"node under the mouse"_s);
        CheckText(Look(form.lblHyperlink), u"web address"_s);

        const auto checkButton = [&](ImageButton *button) {
            const QRect inside = button->rect().adjusted(14, 7, -14, -7);
            CheckText(Look(button, inside), button->accessibleName());
            MoveTo(button, {8, 8});
            CheckText(Look(button, inside), button->accessibleName() + u" lit"_s);
            button->TurnPlain();
        };
        for (ImageButton *button : {form.picExit, form.picHelp, input.picProceed})
            checkButton(button);
        ClickNode(u"Essence"_s);
        checkButton(form.Picture2->picPrint);
        checkButton(form.Picture2->picSave);
        CheckText(Look(&RTB), u"report"_s);
        RTB.selectAll();
        CheckText(Look(RTB.viewport(), {4, 4, 100, 14}), u"marked report"_s);
        ClickNode(u"Help"_s);
        for (const auto *label : form.Picture3->findChildren<QLabel *>())
            CheckText(Look(label), label->objectName());
    }

    void EverySelectionIsMarked() {
        const QColor page = Colors::violet;
        TV.setFocus();
        CheckMark(GroundOf(LookAtNode(u"Reset"_s)), page, u"selected node"_s);
        input.txtFirstName->setFocus();
        CheckMark(GroundOf(LookAtNode(u"Reset"_s)), page, u"selected node without focus"_s);
        EnterSomebody();
        input.txtFirstName->setFocus();
        const QRect letters(5, 4, 22, 12);
        input.txtFirstName->deselect();
        const QColor box = GroundOf(Look(input.txtFirstName, letters));
        input.txtFirstName->selectAll();
        CheckMark(GroundOf(Look(input.txtFirstName, letters)), box, u"marked name"_s);
        ClickNode(u"Essence"_s);
        const QColor paper = GroundOf(Look(RTB.viewport(), {4, 4, 100, 14}));
        RTB.selectAll();
        CheckMark(GroundOf(Look(RTB.viewport(), {4, 4, 100, 14})), paper, u"marked report"_s);
    }

    void EveryFocusIsMarked_data() {
        QTest::addColumn<QString>("caption");
        QTest::newRow("input page") << u"User Information"_s;
        QTest::newRow("report page") << u"Essence"_s;
        QTest::newRow("help page") << u"Help"_s;
    }
    void EveryFocusIsMarked() {
        QFETCH(QString, caption);
        EnterSomebody();
        ClickNode(caption);
        const QWidget *start = Focus();
        int stops = 0;
        do {
            const QWidget *stop = Focus();
            const QImage with = Look(stop);
            QTest::keyClick(Focus(), Qt::Key_Tab);
            const QImage without = Look(stop);
            int marked = 0; // pixels in which one sees where the focus is
            for (int y = 0; y < with.height(); ++y)
                for (int x = 0; x < with.width(); ++x)
                    marked += Contrast(with.pixelColor(x, y), without.pixelColor(x, y)) >= 3;
            qInfo("%s: %d pixels", qPrintable(stop->objectName()), marked);
            QVERIFY2(marked >= 60, qPrintable(u"%1 has %2"_s.arg(stop->objectName()).arg(marked)));
            ++stops;
        } while (Focus() != start && stops < 30);
        QVERIFY(stops > 5 && stops < 30);
    }

    void ArrowsAreSeenOnASelectedRootToo() {
        for (const QString &caption : {u"User Information"_s, u"Numerology"_s}) {
            for (const bool open : {true, false}) {
                for (QWidget *focus : std::initializer_list<QWidget *>{&TV, input.txtFirstName}) {
                    Node(caption)->setExpanded(open);
                    TV.setCurrentItem(Node(caption));
                    focus->setFocus();
                    const QRect row = TV.visualItemRect(Node(caption));
                    const QRect arrow(row.left() - 16, row.top() + 1, 16, row.height() - 2);
                    const double contrast = ContrastIn(Look(TV.viewport(), arrow));
                    QVERIFY2(contrast >= 3, qPrintable(u"%1"_s.arg(contrast)));
                }
            }
        }
    }

    void AnEntryOfAListDoesNotMoveWhenItIsMarked() {
        QAbstractItemView *view = input.cboMonth->view();
        input.cboMonth->showPopup();
        const QRect entry = view->visualRect(view->model()->index(4, 0)); // May
        const auto look = [&](int marked) {
            view->setCurrentIndex(view->model()->index(marked, 0));
            QApplication::processEvents();
            return view->viewport()->grab().toImage();
        };
        const QImage plain = look(3);
        const QImage marked = look(4);
        QVERIFY(GroundOf(plain.copy(entry)) != GroundOf(marked.copy(entry)));
        QVERIFY(!InkOf(plain, entry).isEmpty());
        QCOMPARE(InkOf(plain, entry), InkOf(marked, entry));
        CheckText(plain.copy(entry), u"entry"_s);
        CheckText(marked.copy(entry), u"marked entry"_s);
        CheckMark(GroundOf(marked.copy(entry)), GroundOf(plain.copy(entry)), u"marked entry"_s);
        input.cboMonth->hidePopup();
        Activate();
    }

    void TheWebAddressStandsAloneInTheMiddleOfItsPlace() {
        const QImage place = Look(form.lblHyperlink);
        const QRect text = InkOf(place, place.rect());
        QVERIFY(text.width() > 80);
        QVERIFY(std::abs(text.left() - (place.width() - 1 - text.right())) <= 2);
        QVERIFY(std::abs(text.top() - (place.height() - 1 - text.bottom())) <= 4);
        // Beside it there is nothing but the sky: neighbours hardly differ.
        for (int y = 0; y < place.height(); ++y) {
            for (int x = 1; x < place.width(); ++x) {
                if (text.adjusted(-2, -2, 2, 2).contains(x, y))
                    continue;
                const double contrast = Contrast(place.pixelColor(x, y), place.pixelColor(0, y));
                QVERIFY2(contrast < 1.1, qPrintable(u"%1, %2: %3"_s.arg(x).arg(y).arg(contrast)));
            }
        }
    }

    void TheWheelOfTheWordmarkReadsAsALetter() {
        const QImage header = Look(form.picMain, {0, 0, 300, 55});
        // The wheel comes first; then an empty column, then the letters.
        QList<QRect> signs;
        for (int x = 8; x < 240; ++x) {
            QRect column;
            for (int y = 5; y < 52; ++y)
                if (header.pixelColor(x, y).red() > 190 && header.pixelColor(x, y).blue() < 190)
                    column |= QRect(x, y, 1, 1);
            if (column.isEmpty())
                continue;
            if (signs.isEmpty() || signs.last().right() < x - 1)
                signs << column;
            else
                signs.last() |= column;
        }
        QVERIFY(signs.size() >= 4);
        const int wheel = signs[0].height();
        const int letter = signs[1].height();
        qInfo("wheel %d, letter %d", wheel, letter);
        QVERIFY(wheel >= letter && wheel <= letter * 1.25);
        QVERIFY(std::abs(signs[0].center().y() - signs[1].center().y()) <= 1);
    }

    void MessagesHaveACrispSignAndNoIconsOnTheirButtons() {
        for (const auto &[icon, name] :
             std::initializer_list<std::pair<QMessageBox::Icon, QString>>{
                 {QMessageBox::Critical, u"message-critical"_s},
                 {QMessageBox::Warning, u"message-warning"_s}}) {
            QMessageBox box(icon, u"title"_s, u"text"_s,
                            QMessageBox::Ok | QMessageBox::Yes | QMessageBox::No);
            for (const QAbstractButton *button : box.buttons())
                QVERIFY(button->icon().isNull());
            const QImage sign = box.iconPixmap().toImage().convertToFormat(QImage::Format_ARGB32);
            QCOMPARE(sign.size(), QSize(48, 48)); // that of the drawing
            QCOMPARE(
                sign,
                LoadArtwork(name, sign.size()).toImage().convertToFormat(QImage::Format_ARGB32));
            const QIcon drawn = QApplication::style()->standardIcon(
                icon == QMessageBox::Critical ? QStyle::SP_MessageBoxCritical
                                              : QStyle::SP_MessageBoxWarning);
            for (const double ratio : {1.0, 1.25, 2.0, 2.5})
                QCOMPARE(drawn.pixmap({32, 32}, ratio).toImage().size(), QSize(32, 32) * ratio);
            // Seen on light and on dark grounds.
            for (const QColor &ground : {QColor(0xEF, 0xEF, 0xEF), QColor(0x2D, 0x2D, 0x2D)}) {
                QImage picture(64, 64, QImage::Format_RGB32);
                picture.fill(ground);
                QPainter(&picture).drawPixmap(0, 0, LoadArtwork(name, {64, 64}));
                int seen = 0;
                for (int y = 0; y < 64; ++y)
                    for (int x = 0; x < 64; ++x)
                        seen += Contrast(picture.pixelColor(x, y), ground) >= 3;
                QVERIFY2(seen > 300, qPrintable(name + QString::number(seen)));
            }
        }
    }
};

ORRAVANE_TEST_PROGRAM(LooksTest)

#include "looks_test.moc"
