#include "tests/shell/program.h"

#include "site.h"

#include <QAccessible>
#include <QGroupBox>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>

#include <optional>

// What stands where in the window, and what it says of itself.

class LayoutTest : public QObject {
    Q_OBJECT

public:
    explicit LayoutTest(const TemporaryHome &) {}

private:
    std::optional<Program> program_;

    QWidget *Control(const QString &name) const {
        return program_->form.findChild<QWidget *>(name);
    }

    QList<QLabel *> HelpHeadings() const {
        const HelpPage &page = *program_->form.Picture3;
        return {page.lblHelp[0], page.lblHelp[1], page.lblAbout};
    }

private slots:
    void init() { program_.emplace(); }
    void cleanup() { program_.reset(); }

    void TheWindowIsFixedAndTitled() {
        const frmMain &form = program_->form;
        QCOMPARE(form.windowTitle(), QStringLiteral("Orravane v1.0"));
        QVERIFY(!form.windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
        QVERIFY(!form.windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
        QVERIFY(form.windowFlags().testFlag(Qt::WindowTitleHint));
        QVERIFY(form.windowFlags().testFlag(Qt::WindowCloseButtonHint));
        QCOMPARE(form.minimumSize(), form.maximumSize());
        QCOMPARE(form.size(), form.minimumSize());
    }

    void TheClientAreaIs9390By6600Twips() {
        // 9390 / 15 and 6600 / 15
        QCOMPARE(program_->form.centralWidget()->size(), QSize(626, 440));
        QCOMPARE(program_->form.height(), 440 + program_->form.menuBar()->height());
    }

    void TheWindowStandsInTheCentreOfTheScreen() {
        const QRect screen = program_->form.screen()->availableGeometry();
        const QRect frame = program_->form.frameGeometry();
        const QPoint off = frame.center() - screen.center();
        // The frame is not known before it is shown: half of it may be off, and a rounding.
        const QSize slack = (frame.size() - program_->form.size()) / 2 + QSize(1, 1);
        QVERIFY2(qAbs(off.x()) <= slack.width() && qAbs(off.y()) <= slack.height(),
                 qPrintable(QStringLiteral("%1, %2").arg(off.x()).arg(off.y())));
    }

    void TheFontIsVerdanaThroughout() {
        QCOMPARE(program_->form.font().families().value(0), QStringLiteral("Verdana"));
        for (const QWidget *control : program_->form.picMain->findChildren<QWidget *>())
            QVERIFY2(control->font().families().value(0) == QLatin1StringView("Verdana"),
                     qPrintable(control->objectName()));
    }

    void PlaceOfEachControl_data() {
        QTest::addColumn<QString>("container");
        QTest::addColumn<QList<int>>("twips");
        const auto add = [](const char *name, const char *container, int left, int top, int width,
                            int height) {
            QTest::newRow(name) << QString::fromLatin1(container)
                                << QList<int>{left, top, width, height};
        };
        add("picMain", "", 0, 0, 9390, 6600);
        add("Picture1", "picMain", 4730, 840, 4450, 5200);
        add("Picture2", "picMain", 4730, 840, 4450, 5200);
        add("Picture3", "picMain", 4730, 840, 4450, 5200);
        add("cmdSave", "", 1290, 7440, 1035, 375);
        add("cmdPrint", "", 120, 7440, 1035, 375);
        add("cmdNext", "", 120, 6840, 1005, 435);
        add("picExit", "picMain", 8490, 100, 660, 585);
        add("picHelp", "picMain", 7680, 100, 660, 585);
        add("TV", "picMain", 200, 840, 4450, 5200);
        add("lblHyperlink", "picMain", 6600, 6195, 2535, 255);
        add("picProceed", "Picture1", 3075, 4680, 1260, 390);
        add("Frame1", "Picture1", 120, 120, 4215, 885);
        add("Label2", "Frame1", 120, 240, 3945, 645);
        add("fraName", "Picture1", 120, 1020, 4215, 1725);
        add("Label1", "fraName", 90, 405, 1080, 195);
        add("txtFirstName", "fraName", 1440, 360, 2500, 285);
        add("Label4", "fraName", 150, 885, 1095, 195);
        add("txtMiddleName", "fraName", 1440, 840, 2500, 285);
        add("Label5", "fraName", 120, 1365, 1065, 195);
        add("txtLastName", "fraName", 1440, 1320, 2500, 285);
        add("fraBirthDay", "Picture1", 120, 2760, 4215, 1725);
        add("Label6", "fraBirthDay", 210, 300, 510, 195);
        add("cboMonth", "fraBirthDay", 1440, 240, 1455, 315);
        add("Label3", "fraBirthDay", 210, 780, 405, 195);
        add("cboDate", "fraBirthDay", 1440, 720, 855, 315);
        add("Label7", "fraBirthDay", 210, 1260, 390, 195);
        add("cboYear", "fraBirthDay", 1440, 1200, 975, 315);
        add("RTB", "Picture2", 120, 120, 4215, 4455);
        add("picPrint", "Picture2", 1800, 4680, 1260, 390);
        add("picSave", "Picture2", 3075, 4680, 1260, 390);
        add("lblHelp0", "Picture3", 240, 120, 1110, 195);
        add("Label15", "Picture3", 240, 360, 3975, 615);
        add("lblHelp1", "Picture3", 240, 1320, 1395, 195);
        add("Label16", "Picture3", 240, 1560, 3975, 975);
        add("lblAbout2", "Picture3", 240, 3000, 1500, 195);
        add("Label17", "Picture3", 240, 3240, 3975, 1815);
    }
    void PlaceOfEachControl() {
        QFETCH(QString, container);
        QFETCH(QList<int>, twips);
        const QWidget *control = Control(QString::fromLatin1(QTest::currentDataTag()));
        QVERIFY(control != nullptr);
        if (container.isEmpty())
            QCOMPARE(control->parentWidget(), program_->form.centralWidget());
        else
            QCOMPARE(control->parentWidget()->objectName(), container);
        const auto pixels = [&](int index) { return qRound(twips[index] / 15.0); };
        QCOMPARE(control->geometry(), QRect(pixels(0), pixels(1), pixels(2), pixels(3)));
        QVERIFY(control->isVisible()); // no page is ever hidden
    }

    void KindOfEachControl() {
        const InputPage &input = program_->input;
        for (const QComboBox *list : {input.cboMonth, input.cboDate, input.cboYear})
            QVERIFY(!list->isEditable());
        QVERIFY(qobject_cast<QPushButton *>(Control("cmdNext")) != nullptr);
        QVERIFY(qobject_cast<QPushButton *>(Control("cmdPrint")) != nullptr);
        QVERIFY(qobject_cast<QPushButton *>(Control("cmdSave")) != nullptr);
        QVERIFY(qobject_cast<QLineEdit *>(Control("txtMiddleName")) != nullptr);
        QVERIFY(qobject_cast<QTreeWidget *>(Control("TV")) != nullptr);
        QVERIFY(qobject_cast<QTextEdit *>(Control("RTB")) != nullptr);
    }

    void Captions() {
        const InputPage &input = program_->input;
        QCOMPARE(input.Frame1->title(), QStringLiteral("Note: "));
        QCOMPARE(input.Label2->text(),
                 QStringLiteral("This program has been designed keeping in mind date settings "
                                "according to MM/DD/YYYY format"));
        QCOMPARE(input.fraName->title(), QStringLiteral("Name"));
        QCOMPARE(input.Label1->text(), QStringLiteral("* First Name"));
        QCOMPARE(input.Label4->text(), QStringLiteral("Middle Name"));
        QCOMPARE(input.Label5->text(), QStringLiteral("* Last Name"));
        QCOMPARE(input.fraBirthDay->title(), QStringLiteral("* Birth Day"));
        QCOMPARE(input.Label6->text(), QStringLiteral("Month"));
        QCOMPARE(input.Label3->text(), QStringLiteral("Date"));
        QCOMPARE(input.Label7->text(), QStringLiteral("Year"));
        QCOMPARE(program_->form.cmdNext->text(), QStringLiteral("&Proceed"));
        QCOMPARE(program_->form.cmdPrint->text(), QStringLiteral("&Print"));
        QCOMPARE(program_->form.cmdSave->text(), QStringLiteral("&Save"));

        const HelpPage &help = *program_->form.Picture3;
        QCOMPARE(help.lblHelp[0]->text(), QStringLiteral("Online Help"));
        QCOMPARE(help.Label15->text(),
                 QStringLiteral("Having doubts on using this software? Feel free to access our "
                                "online help and get all your queries answered."));
        QCOMPARE(help.lblHelp[1]->text(), QStringLiteral("Visit Us Online"));
        QCOMPARE(help.Label16->text(),
                 QStringLiteral("Visit our official webpage to know more about Orravane."));
        QCOMPARE(help.lblAbout->text(), QStringLiteral("About Software"));
        QCOMPARE(help.Label17->text(),
                 QStringLiteral("Orravane is a complex numerology report software based on the "
                                "Pythagorean Numerology system. It helps you gain an insight over "
                                "your weaknesses and face the problems in life boldly. This "
                                "software helps you understand the effects of cosmic vibrations of "
                                "letters and numbers on an individual."));
        QCOMPARE(program_->form.lblHyperlink->text(), QString());
    }

    void TheNamesAndTheReportAreEmptyAtTheStart() {
        QCOMPARE(program_->input.txtFirstName->text(), QString());
        QCOMPARE(program_->input.txtMiddleName->text(), QString());
        QCOMPARE(program_->input.txtLastName->text(), QString());
        QCOMPARE(program_->RTB.toPlainText(), QString());
    }

    void ThePagesLieOverEachOtherWithTheInputPageOnTop() {
        const QObjectList stack = program_->form.picMain->children(); // the last is on top
        QVERIFY(stack.indexOf(program_->form.Picture1) > stack.indexOf(program_->form.Picture2));
        QVERIFY(stack.indexOf(program_->form.Picture2) > stack.indexOf(program_->form.Picture3));

        const QPoint middle = program_->form.Picture1->geometry().center();
        const QWidget *seen = program_->form.picMain->childAt(middle);
        QVERIFY(seen == program_->form.Picture1 || program_->form.Picture1->isAncestorOf(seen));
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture1);
    }

    void TheCommandButtonsLieBelowTheClientArea() {
        const int bottom = program_->form.centralWidget()->height();
        for (const QPushButton *button :
             {program_->form.cmdNext, program_->form.cmdPrint, program_->form.cmdSave}) {
            QVERIFY(button->y() >= bottom);
            QVERIFY(button->visibleRegion().isEmpty());
        }
    }

    void ThePagesAreDarkViolet() {
        for (QWidget *page : {Control("Picture1"), Control("Picture2"), Control("Picture3")}) {
            const QImage picture = page->grab().toImage();
            QCOMPARE(picture.pixelColor(2, 2), QColor(89, 73, 110));
            QCOMPARE(picture.pixelColor(page->width() - 3, page->height() - 3),
                     QColor(89, 73, 110));
        }
    }

    void LabelsAndBoxesAreWhiteOnThePages() {
        const InputPage &input = program_->input;
        for (const QWidget *control : std::initializer_list<QWidget *>{
                 input.Label1, input.Label2, input.Label3, input.Label4, input.Label5, input.Label6,
                 input.Label7}) {
            QCOMPARE(control->palette().color(QPalette::WindowText), QColor(Qt::white));
        }
        for (const QWidget *control : std::initializer_list<QWidget *>{
                 input.txtFirstName, input.txtMiddleName, input.txtLastName, input.cboMonth,
                 input.cboDate, input.cboYear})
            QCOMPARE(control->palette().color(QPalette::Text), QColor(Qt::white));
    }

    void TheHelpPageIsBoldGoldHeadingsOverBoldWhiteTexts() {
        for (const QLabel *heading : HelpHeadings()) {
            QCOMPARE(heading->palette().color(QPalette::WindowText), QColor(255, 199, 6));
            QVERIFY(heading->font().bold());
        }
        const HelpPage &help = *program_->form.Picture3;
        for (const QLabel *text : {help.Label15, help.Label16, help.Label17}) {
            QCOMPARE(text->palette().color(QPalette::WindowText), QColor(Qt::white));
            QVERIFY(text->font().bold());
            QVERIFY(text->wordWrap());
        }
    }

    void TheHotAreaShowsThePictureBelow() {
        // The same piece of the main page, with the label and without it.
        const QRect place = program_->form.lblHyperlink->geometry();
        const QImage with = program_->form.picMain->grab(place).toImage();
        program_->form.lblHyperlink->hide();
        QCOMPARE(program_->form.picMain->grab(place).toImage(), with);
    }

    void TheAddressIsDrawnUnderTheHotArea() {
        const QRect place = program_->form.lblHyperlink->geometry();
        const QImage address = program_->form.picMain->grab(place).toImage();
        const QImage above =
            program_->form.picMain->grab(place.translated(0, -place.height() - 2)).toImage();
        const auto brightest = [](const QImage &image) {
            int most = 0;
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x)
                    most = qMax(most, qGray(image.pixel(x, y)));
            return most;
        };
        QVERIFY(brightest(address) > 180);
        QVERIFY(brightest(address) > brightest(above));
    }

    void ToolTips() {
        const QMap<QString, QString> tips{
            {QStringLiteral("picExit"), QStringLiteral("Exit")},
            {QStringLiteral("picHelp"), QStringLiteral("Help")},
            {QStringLiteral("lblHelp0"), QStringLiteral("Click To Go To Online Help")},
            {QStringLiteral("lblHelp1"), QStringLiteral("Click To Visit Us Online")},
            {QStringLiteral("lblAbout2"), QStringLiteral("About Software")},
            {QStringLiteral("lblHyperlink"),
             QStringLiteral("Click To Go To ") + QLatin1StringView(siteHost)}};
        for (const QWidget *control : program_->form.centralWidget()->findChildren<QWidget *>())
            QCOMPARE(control->toolTip(), tips.value(control->objectName()));
    }

    void TheHandPointsAtButtonsAndLinksOnly() {
        const QSet<QString> hot{QStringLiteral("picExit"),     QStringLiteral("picHelp"),
                                QStringLiteral("picPrint"),    QStringLiteral("picSave"),
                                QStringLiteral("picProceed"),  QStringLiteral("lblHelp0"),
                                QStringLiteral("lblHelp1"),    QStringLiteral("lblAbout2"),
                                QStringLiteral("lblHyperlink")};
        for (const QWidget *control : program_->form.centralWidget()->findChildren<QWidget *>())
            QVERIFY2((control->cursor().shape() == Qt::PointingHandCursor) ==
                         hot.contains(control->objectName()),
                     qPrintable(control->objectName()));
    }

    void TheMenuBar() {
        const QList<QAction *> menus = program_->form.menuBar()->actions();
        QCOMPARE(menus.size(), 2);
        QCOMPARE(menus[0]->text(), QStringLiteral("&File"));
        QCOMPARE(menus[1]->text(), QStringLiteral("&Help"));
        QCOMPARE(menus[0]->menu()->objectName(), QStringLiteral("mnuFile"));
        QCOMPARE(menus[1]->menu()->objectName(), QStringLiteral("mnuHelp"));
        const frmMain &form = program_->form;
        QCOMPARE(menus[0]->menu()->actions(), QList<QAction *>{form.mnuExit});
        QCOMPARE(menus[1]->menu()->actions(),
                 (QList<QAction *>{form.mnuOnline, form.mnuVisit, form.mnuAbout}));
        QCOMPARE(form.mnuExit->text(), QStringLiteral("E&xit"));
        QCOMPARE(form.mnuOnline->text(), QStringLiteral("&Online Help"));
        QCOMPARE(form.mnuVisit->text(), QStringLiteral("&Visit Us Online"));
        QCOMPARE(form.mnuAbout->text(), QStringLiteral("&About Software"));
        for (const QAction *action : {form.mnuExit, form.mnuOnline, form.mnuVisit, form.mnuAbout})
            QVERIFY(action->isEnabled() && action->isVisible());
    }

    void LabelsNameTheControlBesideThem() {
        const InputPage &input = program_->input;
        QCOMPARE(input.Label1->buddy(), input.txtFirstName);
        QCOMPARE(input.Label4->buddy(), input.txtMiddleName);
        QCOMPARE(input.Label5->buddy(), input.txtLastName);
        QCOMPARE(input.Label6->buddy(), input.cboMonth);
        QCOMPARE(input.Label3->buddy(), input.cboDate);
        QCOMPARE(input.Label7->buddy(), input.cboYear);
    }

    void WhatAssistiveToolsSee_data() {
        QTest::addColumn<int>("role");
        QTest::addColumn<QString>("name");
        const auto add = [](const char *control, QAccessible::Role role, const QString &name) {
            QTest::newRow(control) << static_cast<int>(role) << name;
        };
        add("picProceed", QAccessible::PushButton, QStringLiteral("Proceed"));
        add("picPrint", QAccessible::PushButton, QStringLiteral("Print"));
        add("picSave", QAccessible::PushButton, QStringLiteral("Save"));
        add("picHelp", QAccessible::PushButton, QStringLiteral("Help"));
        add("picExit", QAccessible::PushButton, QStringLiteral("Exit"));
        add("txtFirstName", QAccessible::EditableText, QStringLiteral("First Name, required"));
        add("txtMiddleName", QAccessible::EditableText, QStringLiteral("Middle Name"));
        add("txtLastName", QAccessible::EditableText, QStringLiteral("Last Name, required"));
        add("fraName", QAccessible::Grouping, QStringLiteral("Name"));
        add("fraBirthDay", QAccessible::Grouping, QStringLiteral("* Birth Day"));
        add("TV", QAccessible::Tree, QStringLiteral("Topics"));
        add("RTB", QAccessible::EditableText, QStringLiteral("Report"));
        add("lblHelp0", QAccessible::Link, QStringLiteral("Online Help"));
        add("lblHelp1", QAccessible::Link, QStringLiteral("Visit Us Online"));
        add("lblAbout2", QAccessible::StaticText, QStringLiteral("About Software"));
        add("lblHyperlink", QAccessible::Link, QString::fromLatin1(siteHost));
    }
    void WhatAssistiveToolsSee() {
        QFETCH(int, role);
        QFETCH(QString, name);
        QWidget *control = Control(QString::fromLatin1(QTest::currentDataTag()));
        QVERIFY(control != nullptr);
        QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(control);
        QVERIFY(seen != nullptr);
        QCOMPARE(seen->text(QAccessible::Name), name);
        QCOMPARE(static_cast<int>(seen->role()), role);
    }

    void AssistiveToolsSeeTheListsWithTheirLabels_data() {
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<QString>("name");
        QTest::newRow("cboMonth") << QStringLiteral("Month") << QStringLiteral("January")
                                  << QStringLiteral("Birth Month");
        QTest::newRow("cboDate") << QStringLiteral("Date") << QStringLiteral("1")
                                 << QStringLiteral("Birth Date");
        QTest::newRow("cboYear") << QStringLiteral("Year") << QStringLiteral("1900")
                                 << QStringLiteral("Birth Year");
    }
    void AssistiveToolsSeeTheListsWithTheirLabels() {
        QFETCH(QString, label);
        QFETCH(QString, chosen);
        QFETCH(QString, name);
        QWidget *list = Control(QString::fromLatin1(QTest::currentDataTag()));
        QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(list);
        QVERIFY(seen != nullptr);
        QCOMPARE(seen->role(), QAccessible::ComboBox);
        QCOMPARE(seen->text(QAccessible::Value), chosen);
        QCOMPARE(list->accessibleName(), name);
        // On some systems the toolkit gives the value as the name too and tells the labels.
        QStringList labels;
        for (const auto &relation : seen->relations(QAccessible::Label))
            labels << relation.first->text(QAccessible::Name);
        QVERIFY2(labels.contains(label), qPrintable(labels.join(u'|')));
    }

    void TheWholeTreeIsThereForAssistiveTools() {
        QAccessibleInterface *tree = QAccessible::queryAccessibleInterface(&program_->TV);
        QStringList names;
        for (int index = 0; index < tree->childCount(); ++index)
            if (tree->child(index)->role() == QAccessible::TreeItem)
                names << tree->child(index)->text(QAccessible::Name);
        // What is open at the start.
        QCOMPARE(names,
                 (QStringList{QStringLiteral("User Information"),
                              QStringLiteral("Enter The Information"), QStringLiteral("Reset"),
                              QStringLiteral("Numerology"), QStringLiteral("Help")}));
    }

    void EveryControlThatTakesTheFocusHasAName() {
        for (QWidget *control : program_->form.centralWidget()->findChildren<QWidget *>()) {
            if ((control->focusPolicy() & Qt::TabFocus) == 0 || control->focusProxy() != nullptr ||
                control->window() != &program_->form)
                continue; // a list that drops down is a window of its own
            QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(control);
            QVERIFY(seen != nullptr);
            QVERIFY2(!seen->text(QAccessible::Name).isEmpty(), qPrintable(control->objectName()));
        }
    }
};

ORRAVANE_TEST_PROGRAM(LayoutTest)

#include "layout_test.moc"
