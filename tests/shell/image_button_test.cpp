#include "shell/artwork.h"
#include "shell/image_list.h"
#include "tests/shell/window_test.h"

#include <QPainter>
#include <QStyleHints>

// The image buttons: which picture they show while the mouse comes and goes.

namespace {

/// Counts how often a widget is painted.
class PaintCounter : public QObject {
public:
    explicit PaintCounter(QWidget *widget) { widget->installEventFilter(this); }
    int count = 0;

    bool eventFilter(QObject *, QEvent *event) override {
        count += event->type() == QEvent::Paint;
        return false;
    }
};

/// How bright a picture is, weighted by what is drawn at all.
double Brightness(const QPixmap &picture) {
    const QImage image = picture.toImage();
    double sum = 0;
    double drawn = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            sum += color.lightnessF() * color.alphaF();
            drawn += color.alphaF();
        }
    }
    return drawn > 0 ? sum / drawn : 0;
}

} // namespace

class ImageButtonTest : public WindowTest {
    Q_OBJECT

    /// The buttons in the order of their images: a plain and a hover one for each.
    const QList<ImageButton *> buttons_{form.picExit, form.picHelp, form.Picture2->picPrint,
                                        input.picProceed, form.Picture2->picSave};

private slots:
    void TheImageListHasPairsOfTheButtonsSizeWithAClearlyBrighterHover() {
        const QStringList words{u"exit"_s, u"help"_s, u"print"_s, u"proceed"_s, u"save"_s};
        QCOMPARE(ImageList::count, 10);
        for (int index = 0; index < 5; ++index) {
            QCOMPARE(ImageList::Key(2 * index + 1), words[index]);
            QCOMPARE(ImageList::Key(2 * index + 2), words[index] + u"-hyper"_s);
            const QSize size = buttons_[index]->size();
            for (const qreal ratio : {1.0, 2.0}) {
                const QPixmap quiet = LoadArtwork(ImageList::Key(2 * index + 1), size * ratio);
                const QPixmap bright = LoadArtwork(ImageList::Key(2 * index + 2), size * ratio);
                QCOMPARE(quiet.size(), size * ratio);
                QCOMPARE(bright.size(), size * ratio);
                QVERIFY(Brightness(bright) > Brightness(quiet) + 0.05);
            }
        }
    }

    void EachPaintsTheImageThatItShows() {
        for (int index = 0; index < 5; ++index) {
            ImageButton *button = buttons_[index];
            const auto paints = [&](int position) {
                QImage expected(button->size(), QImage::Format_ARGB32_Premultiplied);
                expected.fill(Qt::transparent);
                QPainter(&expected).drawPixmap(
                    0, 0, LoadArtwork(ImageList::Key(position), button->size()));
                QImage shown(button->size(), QImage::Format_ARGB32_Premultiplied);
                shown.fill(Qt::transparent);
                button->render(&shown, {}, {}, QWidget::RenderFlags());
                return shown == expected;
            };
            QVERIFY(paints(2 * index + 1));
            MoveTo(button, {5, 5});
            QVERIFY(paints(2 * index + 2));
        }
    }

    void EachLightsUpInsideAndTurnsPlainOutside() {
        for (int index = 0; index < 5; ++index) {
            ImageButton *button = buttons_[index];
            const int plain = 2 * index + 1;
            const int hover = plain + 1;
            const double width = button->width();
            const double height = button->height();
            QCOMPARE(button->Picture(), plain);
            for (const QPointF inside :
                 {QPointF(0, 0), QPointF(width / 2, height / 2), QPointF(width, 1),
                  QPointF(1, height), QPointF(width, height), QPointF(0, height),
                  QPointF(width, 0)}) {
                MoveTo(button, inside);
                QCOMPARE(button->Picture(), hover);
                MoveTo(button, {-1, -1});
                QCOMPARE(button->Picture(), plain);
            }
            for (const QPointF outside :
                 {QPointF(-1, 1), QPointF(1, -1), QPointF(width + 1, 1), QPointF(1, height + 1),
                  QPointF(-0.5, 1), QPointF(1, -0.5), QPointF(width + 0.5, 1),
                  QPointF(1, height + 0.5), QPointF(10 * width, 10 * height)}) {
                MoveTo(button, {1, 1});
                QCOMPARE(button->Picture(), hover);
                MoveTo(button, outside);
                QCOMPARE(button->Picture(), plain);
            }
        }
    }

    void TheEdgesCountAsInsideOnceItIsLit() {
        ImageButton *button = form.picExit;
        MoveTo(button, {1, 1});
        MoveTo(button, QPointF(button->width(), button->height()));
        QCOMPARE(button->Picture(), 2);
    }

    void MovesWithinALitOrBesideAPlainButtonSetNoImage() {
        ImageButton *button = form.picHelp;
        QApplication::processEvents();
        PaintCounter paints(button);
        MoveTo(button, {-5, -5});
        MoveTo(button, {-6, -5});
        QApplication::processEvents();
        QCOMPARE(paints.count, 0);

        MoveTo(button, {1, 1});
        QTRY_VERIFY(paints.count > 0);
        QApplication::processEvents();
        // The image is set when the mouse is captured and not again.
        button->SetPicture(3);
        for (int x = 2; x < button->width(); ++x)
            MoveTo(button, QPointF(x, 3));
        QCOMPARE(button->Picture(), 3);
    }

    void FromOneButtonOntoTheOther() {
        ImageButton *first = form.picHelp;
        ImageButton *second = form.picExit;
        MoveTo(first, {5, 5});
        QCOMPARE(first->Picture(), 4);
        // The move that leaves the first one is still the first one's.
        MoveTo(first, first->mapFrom(&form, second->mapTo(&form, QPoint(5, 5))));
        QCOMPARE(first->Picture(), 3);
        QCOMPARE(second->Picture(), 1);
        MoveTo(second, {5, 5});
        QCOMPARE(second->Picture(), 2);
        QCOMPARE(first->Picture(), 3);
    }

    void AClickWhileLitIsAClickAsUsual() {
        ImageButton *button = form.picHelp;
        MoveTo(button, {5, 5});
        QVERIFY(button->HasCapture());
        Click(button);
        QCOMPARE(browser.Taken(), QStringList{u"/orravane-help/"_s});
        QCOMPARE(button->Picture(), 4); // the click does not turn it plain
        QVERIFY(!button->HasCapture()); // what it opens has the mouse to itself
        MoveTo(button, {6, 6});
        QCOMPARE(button->Picture(), 4);
        MoveTo(button, {-6, 6});
        QCOMPARE(button->Picture(), 3);
        QVERIFY(!button->HasCapture());
    }

    void AButtonOnACoveredPageTurnsPlain() {
        EnterSomebody();
        MoveTo(input.picProceed, {5, 5});
        QCOMPARE(input.picProceed->Picture(), 8);
        QTest::keyClick(input.txtLastName, Qt::Key_P, Qt::AltModifier);
        QTRY_COMPARE(Page(), u"Picture2"_s);
        QCOMPARE(input.picProceed->Picture(), 7);

        MoveTo(form.Picture2->picSave, {5, 5});
        QCOMPARE(form.Picture2->picSave->Picture(), 10);
        MoveTo(form.picHelp, {5, 5}); // on no page at all
        form.TV_NodeClick(Node(u"Enter The Information"_s));
        QCOMPARE(form.Picture2->picSave->Picture(), 9);
        QCOMPARE(form.picHelp->Picture(), 4);
    }

    // --- The second half of a double click

    /// Presses or releases the left button on a control, at `time` milliseconds.
    static void Send(QEvent::Type type, QWidget *control, quint64 time) {
        const QPointF point = QRectF(control->rect()).center();
        QMouseEvent event(type, point, control->mapToGlobal(point), Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                          Qt::NoModifier);
        event.setTimestamp(time);
        QApplication::sendEvent(control, &event);
    }
    static void ClickAt(QWidget *control, quint64 time,
                        QEvent::Type press = QEvent::MouseButtonPress) {
        Send(press, control, time);
        Send(QEvent::MouseButtonRelease, control, time + 1);
    }

    void ADoubleClickOnProceedStopsAtTheReport() {
        const auto interval =
            static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
        ImageButton *save = form.Picture2->picSave;
        for (const QEvent::Type second : {QEvent::MouseButtonDblClick, QEvent::MouseButtonPress}) {
            const quint64 start = second == QEvent::MouseButtonPress ? 1'000'000 : 2'000'000;
            form.TV_NodeClick(Node(u"User Information"_s));
            EnterSomebody();
            ClickAt(input.picProceed, start);
            QCOMPARE(Page(), u"Picture2"_s);
            // The save dialog would be one that nobody planned.
            Send(second, save, start + interval - 1);
            QVERIFY(!save->isDown());
            Send(QEvent::MouseButtonRelease, save, start + interval);
            ClickAt(save, start + interval - 1); // a third one
            // Later it is a click as usual.
            bool came = false;
            dialogs.Plan([&](QDialog &dialog) {
                came = true;
                dialog.reject();
            });
            ClickAt(save, start + interval);
            QVERIFY(came);
        }
    }

    void OnlyAPressBehindTheOneThatTurnedThePageIsSwallowed() {
        const QStringList opened{u"/orravane-help/"_s};
        const auto interval =
            static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
        const QRect node = TV.visualItemRect(Node(u"Help"_s));
        const auto clickTheHelpNode = [&](quint64 time) {
            for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                QMouseEvent event(type, node.center(), TV.viewport()->mapToGlobal(node.center()),
                                  Qt::LeftButton,
                                  type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                                  Qt::NoModifier);
                event.setTimestamp(time);
                QApplication::sendEvent(TV.viewport(), &event);
            }
        };

        // No page was turned: all presses count, however fast.
        ClickAt(form.picHelp, 3'000'000);
        ClickAt(form.picHelp, 3'000'010, QEvent::MouseButtonDblClick);
        QCOMPARE(browser.Taken(), opened + opened);

        // A click in the tree turned it: a button waits, a link and the tree do not.
        clickTheHelpNode(4'000'000);
        QCOMPARE(Page(), u"Picture3"_s);
        ClickAt(form.picHelp, 4'000'010);
        QCOMPARE(browser.Taken(), QStringList());
        ClickAt(help.lblHelp[0], 4'000'020);
        QCOMPARE(browser.Taken(), opened);
        clickTheHelpNode(4'000'030); // turns nothing, and so takes no more time away
        ClickAt(form.picHelp, 4'000'010 + interval);
        QCOMPARE(browser.Taken(), opened);

        // The keyboard turned it: the press before has nothing to do with it.
        form.TV_NodeClick(Node(u"User Information"_s));
        EnterSomebody();
        Send(QEvent::MouseButtonPress, input.txtFirstName, 5'000'000);
        Send(QEvent::MouseButtonRelease, input.txtFirstName, 5'000'001);
        QTest::keyClick(&form, Qt::Key_P, Qt::AltModifier);
        QTRY_COMPARE(Page(), u"Picture2"_s);
        ClickAt(form.picHelp, 5'000'100);
        QCOMPARE(browser.Taken(), opened);
    }

    void AButtonThatLosesTheMouseWithoutAMoveTurnsPlain() {
        for (const QEvent::Type type : {QEvent::Leave, QEvent::WindowDeactivate}) {
            MoveTo(form.picHelp, {5, 5});
            QCOMPARE(form.picHelp->Picture(), 4);
            QEvent event(type);
            QApplication::sendEvent(form.picHelp, &event);
            QCOMPARE(form.picHelp->Picture(), 3);
            QVERIFY(!form.picHelp->HasCapture());
        }
    }
};

ORRAVANE_TEST_PROGRAM(ImageButtonTest)

#include "image_button_test.moc"
