#include "shell/image_list.h"
#include "tests/shell/program.h"

#include <QPainter>

#include <optional>

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

void MoveTo(QWidget *button, QPointF point) {
    QMouseEvent move(QEvent::MouseMove, point, button->mapToGlobal(point), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(button, &move);
}

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

class ImageButtonTest : public QObject {
    Q_OBJECT

public:
    explicit ImageButtonTest(const TemporaryHome &) {}

private:
    std::optional<Program> program_;

    ImageButton *Button(const QString &name) const {
        return program_->form.findChild<ImageButton *>(name);
    }

    static void AddButtons() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("plain");
        QTest::addColumn<int>("hover");
        QTest::newRow("exit") << QStringLiteral("picExit") << 1 << 2;
        QTest::newRow("help") << QStringLiteral("picHelp") << 3 << 4;
        QTest::newRow("print") << QStringLiteral("picPrint") << 5 << 6;
        QTest::newRow("proceed") << QStringLiteral("picProceed") << 7 << 8;
        QTest::newRow("save") << QStringLiteral("picSave") << 9 << 10;
    }

private slots:
    void init() { program_.emplace(); }
    void cleanup() { program_.reset(); }

    void TheImageListHasItsKeysInTheirPlaces() {
        const QStringList keys{QStringLiteral("exit"),    QStringLiteral("exit-hyper"),
                               QStringLiteral("help"),    QStringLiteral("help-hyper"),
                               QStringLiteral("print"),   QStringLiteral("print-hyper"),
                               QStringLiteral("proceed"), QStringLiteral("proceed-hyper"),
                               QStringLiteral("save"),    QStringLiteral("save-hyper")};
        QCOMPARE(ImageList::count, 10);
        for (int position = 1; position <= 10; ++position)
            QCOMPARE(ImageList::Key(position), keys[position - 1]);
    }

    void TheImagesHaveTheSizeOfTheButtonAndAClearlyBrighterHover_data() { AddButtons(); }
    void TheImagesHaveTheSizeOfTheButtonAndAClearlyBrighterHover() {
        QFETCH(QString, name);
        QFETCH(int, plain);
        QFETCH(int, hover);
        const QSize size = Button(name)->size();
        for (const qreal ratio : {1.0, 2.0}) {
            const QPixmap quiet = ImageList::Picture(plain, size, ratio);
            const QPixmap bright = ImageList::Picture(hover, size, ratio);
            QCOMPARE(quiet.deviceIndependentSize(), QSizeF(size));
            QCOMPARE(bright.deviceIndependentSize(), QSizeF(size));
            QCOMPARE(quiet.size(), size * ratio);
            QVERIFY2(
                Brightness(bright) > Brightness(quiet) + 0.05,
                qPrintable(
                    QStringLiteral("%1 over %2").arg(Brightness(bright)).arg(Brightness(quiet))));
        }
    }

    void ShowsThePlainImageAtTheStart_data() { AddButtons(); }
    void ShowsThePlainImageAtTheStart() {
        QFETCH(QString, name);
        QFETCH(int, plain);
        QCOMPARE(Button(name)->ImagePosition(), plain);
    }

    void PaintsTheImageThatItShows_data() { AddButtons(); }
    void PaintsTheImageThatItShows() {
        QFETCH(QString, name);
        QFETCH(int, plain);
        QFETCH(int, hover);
        ImageButton *button = Button(name);
        const auto painted = [&](int position) {
            QImage expected(button->size(), QImage::Format_ARGB32_Premultiplied);
            expected.fill(Qt::transparent);
            QPainter(&expected).drawPixmap(0, 0, ImageList::Picture(position, button->size(), 1));
            QImage shown(button->size(), QImage::Format_ARGB32_Premultiplied);
            shown.fill(Qt::transparent);
            button->render(&shown, {}, {}, QWidget::RenderFlags());
            return shown == expected;
        };
        QVERIFY(painted(plain));
        MoveTo(button, {5, 5});
        QVERIFY(painted(hover));
    }

    void LightsUpInsideAndTurnsPlainOutside_data() { AddButtons(); }
    void LightsUpInsideAndTurnsPlainOutside() {
        QFETCH(QString, name);
        QFETCH(int, plain);
        QFETCH(int, hover);
        ImageButton *button = Button(name);
        const double width = button->width();
        const double height = button->height();
        for (const QPointF inside :
             {QPointF(0, 0), QPointF(width / 2, height / 2), QPointF(width, 1), QPointF(1, height),
              QPointF(width, height), QPointF(0, height), QPointF(width, 0)}) {
            MoveTo(button, inside);
            QCOMPARE(button->ImagePosition(), hover);
            MoveTo(button, {-1, -1});
            QCOMPARE(button->ImagePosition(), plain);
        }
        for (const QPointF outside :
             {QPointF(-1, 1), QPointF(1, -1), QPointF(width + 1, 1), QPointF(1, height + 1),
              QPointF(-0.5, 1), QPointF(width + 0.5, 1), QPointF(1, height + 0.5),
              QPointF(10 * width, 10 * height)}) {
            MoveTo(button, {1, 1});
            QCOMPARE(button->ImagePosition(), hover);
            MoveTo(button, outside);
            QCOMPARE(button->ImagePosition(), plain);
        }
    }

    void TheEdgesCountAsInsideOnceItIsLit() {
        ImageButton *button = program_->form.picExit;
        MoveTo(button, {1, 1});
        MoveTo(button, QPointF(button->width(), button->height()));
        QCOMPARE(button->ImagePosition(), 2);
    }

    void MovesWithinTheButtonDoNotSetTheImageAgain() {
        ImageButton *button = program_->form.picHelp;
        PaintCounter paints(button);
        MoveTo(button, {1, 1});
        QTRY_VERIFY(paints.count > 0);
        QApplication::processEvents();
        paints.count = 0;
        for (int x = 2; x < button->width(); ++x)
            MoveTo(button, QPointF(x, 3));
        QApplication::processEvents();
        QCOMPARE(paints.count, 0);
        QCOMPARE(button->ImagePosition(), 4);
    }

    void MovesOutsideOfAPlainButtonChangeNothing() {
        ImageButton *button = program_->form.picHelp;
        QApplication::processEvents();
        PaintCounter paints(button);
        MoveTo(button, {-5, -5});
        MoveTo(button, {-6, -5});
        QApplication::processEvents();
        QCOMPARE(button->ImagePosition(), 3);
        QCOMPARE(paints.count, 0);
    }

    void FromOneButtonOntoTheOther() {
        ImageButton *first = program_->form.picHelp;
        ImageButton *second = program_->form.picExit;
        MoveTo(first, {5, 5});
        QCOMPARE(first->ImagePosition(), 4);
        // The move that leaves the first one is still the first one's.
        const QPointF onSecond =
            first->mapFrom(&program_->form, second->mapTo(&program_->form, QPoint(5, 5)));
        MoveTo(first, onSecond);
        QCOMPARE(first->ImagePosition(), 3);
        QCOMPARE(second->ImagePosition(), 1);
        MoveTo(second, {5, 5});
        QCOMPARE(second->ImagePosition(), 2);
        QCOMPARE(first->ImagePosition(), 3);
    }

    void NoButtonKeepsTheMouseForItself() {
        ImageButton *button = program_->form.picHelp;
        MoveTo(button, {5, 5});
        MoveTo(button, {-5, 5});
        QCOMPARE(QWidget::mouseGrabber(), nullptr);
        MoveTo(button, {5, 5});
        QTest::mouseClick(button, Qt::LeftButton); // what it opens has the mouse to itself
        QCOMPARE(QWidget::mouseGrabber(), nullptr);
        QCOMPARE(program_->browser.Taken().size(), 1);
    }

    void AClickWhileLitIsAClickAsUsual() {
        MoveTo(program_->form.picHelp, {5, 5});
        program_->Click(program_->form.picHelp);
        QCOMPARE(program_->browser.Taken(),
                 QList<QUrl>{PageOfSite(QStringLiteral("/orravane-help/"))});
        QCOMPARE(program_->form.picHelp->ImagePosition(), 4); // the click does not reset it
        MoveTo(program_->form.picHelp, {6, 6});
        QCOMPARE(program_->form.picHelp->ImagePosition(), 4);
        MoveTo(program_->form.picHelp, {-6, 6});
        QCOMPARE(program_->form.picHelp->ImagePosition(), 3);
    }

    void APageThatIsCoveredLetsGoOfTheMouse() {
        const frmMain &form = program_->form;
        program_->EnterSomebody();
        MoveTo(form.Picture1->picProceed, {5, 5});
        QCOMPARE(form.Picture1->picProceed->ImagePosition(), 8);
        QTest::keyClick(program_->input.txtLastName, Qt::Key_P, Qt::AltModifier);
        QTRY_COMPARE(form.FrontPage(), form.Picture2);
        QCOMPARE(form.Picture1->picProceed->ImagePosition(), 7);

        MoveTo(form.Picture2->picSave, {5, 5});
        QCOMPARE(form.Picture2->picSave->ImagePosition(), 10);
        MoveTo(form.picHelp, {5, 5}); // on no page at all
        program_->TV.setCurrentItem(program_->Node(QStringLiteral("Enter The Information")));
        QTest::keyClick(&program_->TV, Qt::Key_Return);
        QCOMPARE(form.FrontPage(), form.Picture1);
        QCOMPARE(form.Picture2->picSave->ImagePosition(), 9);
        QCOMPARE(form.picHelp->ImagePosition(), 4);
    }

    void AButtonThatIsLeftWithoutAMoveTurnsPlain() {
        ImageButton *button = program_->form.picHelp;
        MoveTo(button, {5, 5});
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(button, &leave);
        QCOMPARE(button->ImagePosition(), 3);
        MoveTo(button, {5, 5});
        QCOMPARE(button->ImagePosition(), 4);
    }

    void AButtonShowsThatItHasTheFocus() {
        ImageButton *button = program_->form.picHelp;
        const QImage before = button->grab().toImage();
        button->setFocus();
        QVERIFY(button->grab().toImage() != before);
    }
};

ORRAVANE_TEST_PROGRAM(ImageButtonTest)

#include "image_button_test.moc"
