#include "tests/shell/window_test.h"

#include "site.h"

#include <QAccessible>
#include <QGroupBox>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QToolTip>
#include <QWindow>

// What stands where in the window, and what it says of itself.

class LayoutTest : public WindowTest {
    Q_OBJECT

    QWidget *Control(const QString &name) const { return form.findChild<QWidget *>(name); }

private slots:
    void TheWindowIsFixedAndTitled() {
        QCOMPARE(form.windowTitle(), u"Orravane v1.0"_s);
        QVERIFY(!form.windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
        QVERIFY(!form.windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
        QVERIFY(form.windowFlags().testFlag(Qt::WindowTitleHint));
        QVERIFY(form.windowFlags().testFlag(Qt::WindowCloseButtonHint));
        QCOMPARE(form.minimumSize(), form.maximumSize());
        // 9390 / 15 and 6600 / 15
        QCOMPARE(form.centralWidget()->size(), QSize(626, 440));
        QCOMPARE(form.size(), QSize(626, 440 + form.menuBar()->height()));
    }

    void TheWindowStandsInTheCentreOfTheScreen() {
        const QRect inside = form.geometry();
        const QRect frame = inside.marginsAdded(form.windowHandle()->frameMargins());
        QVERIFY(frame != inside); // this display has frames
        const QPoint off = frame.center() - form.screen()->availableGeometry().center();
        QVERIFY2(qAbs(off.x()) <= 1 && qAbs(off.y()) <= 1, // a rounding
                 qPrintable(u"%1, %2"_s.arg(off.x()).arg(off.y())));
    }

    void TheFontIsVerdanaThroughout() {
        QCOMPARE(form.font().families().value(0), u"Verdana"_s);
        for (const QWidget *control : form.picMain->findChildren<QWidget *>())
            QVERIFY2(control->font().families().value(0) == u"Verdana",
                     qPrintable(control->objectName()));
        // Menus, messages, tool tips and what drops out of a box as well.
        const QString family = u"Verdana"_s;
        QMessageBox message(&form);
        QMenu *context = input.txtFirstName->createStandardContextMenu();
        const QFont fonts[] = {form.menuBar()->font(),
                               form.menuBar()->actions().at(0)->menu()->font(),
                               context->font(),
                               message.font(),
                               message.addButton(QMessageBox::Yes)->font(),
                               QToolTip::font(),
                               QApplication::font("QMenu"),
                               QApplication::font("QMessageBox")};
        delete context;
        for (const QFont &font : fonts) {
            QCOMPARE(font.families().value(0), family);
            QCOMPARE(font.pixelSize(), 11);
        }
        // In the colours of the desktop.
        QCOMPARE(message.palette(), QApplication::palette());
    }

    void EachControlStandsInItsPlace() {
        const QList<QStringList> places = TableRows(u"places.csv"_s);
        QCOMPARE(places.size(), 37);
        for (const QStringList &place : places) {
            const QWidget *control = Control(place[0]);
            QVERIFY2(control != nullptr, qPrintable(place[0]));
            const QWidget *container =
                place[1].isEmpty() ? form.centralWidget() : Control(place[1]);
            QVERIFY2(control->parentWidget() == container, qPrintable(place[0]));
            const auto pixels = [&](int column) { return qRound(place[column].toInt() / 15.0); };
            const QRect expected(pixels(2), pixels(3), pixels(4), pixels(5));
            QVERIFY2(control->geometry() == expected, qPrintable(place[0]));
        }
    }

    void ControlsAreOfTheirKinds() {
        for (const QComboBox *list : {input.cboMonth, input.cboDate, input.cboYear})
            QVERIFY(!list->isEditable());
        for (const char *button : {"cmdNext", "cmdPrint", "cmdSave"})
            QVERIFY(qobject_cast<QPushButton *>(Control(QString::fromLatin1(button))) != nullptr);
        QVERIFY(qobject_cast<QLineEdit *>(Control(u"txtMiddleName"_s)) != nullptr);
        QVERIFY(qobject_cast<QTreeWidget *>(Control(u"TV"_s)) != nullptr);
        QVERIFY(qobject_cast<QTextEdit *>(Control(u"RTB"_s)) != nullptr);
    }

    void Captions() {
        QCOMPARE(input.Frame1->title(), u"Note: "_s);
        QCOMPARE(input.fraName->title(), u"Name"_s);
        QCOMPARE(input.fraBirthDay->title(), u"* Birth Day"_s);
        const QList<std::pair<const QLabel *, QString>> labels{
            {input.Label2, u"This program has been designed keeping in mind date settings "
                           "according to MM/DD/YYYY format"_s},
            {input.Label1, u"* First Name"_s},
            {input.Label4, u"Middle Name"_s},
            {input.Label5, u"* Last Name"_s},
            {input.Label6, u"Month"_s},
            {input.Label3, u"Date"_s},
            {input.Label7, u"Year"_s},
            {help.lblHelp[0], u"Online Help"_s},
            {help.Label15, u"Having doubts on using this software? Feel free to access our online "
                           "help and get all your queries answered."_s},
            {help.lblHelp[1], u"Visit Us Online"_s},
            {help.Label16, u"Visit our official webpage to know more about Orravane."_s},
            {help.lblAbout, u"About Software"_s},
            {help.Label17,
             u"Orravane is a complex numerology report software based on the Pythagorean "
             "Numerology system. It helps you gain an insight over your weaknesses and face the "
             "problems in life boldly. This software helps you understand the effects of cosmic "
             "vibrations of letters and numbers on an individual."_s},
            {form.lblHyperlink, QString()}};
        for (const auto &[label, text] : labels)
            QCOMPARE(label->text(), text);
        QCOMPARE(form.cmdNext->text(), u"&Proceed"_s);
        QCOMPARE(form.cmdPrint->text(), u"&Print"_s);
        QCOMPARE(form.cmdSave->text(), u"&Save"_s);
    }

    void TheMenuBar() {
        const QList<QAction *> menus = form.menuBar()->actions();
        QCOMPARE(menus.size(), 2);
        QCOMPARE(menus[0]->text(), u"&File"_s);
        QCOMPARE(menus[1]->text(), u"&Help"_s);
        QCOMPARE(menus[0]->menu()->objectName(), u"mnuFile"_s);
        QCOMPARE(menus[1]->menu()->objectName(), u"mnuHelp"_s);
        QCOMPARE(menus[0]->menu()->actions(), QList{form.mnuExit});
        QCOMPARE(menus[1]->menu()->actions(),
                 (QList{form.mnuOnline, form.mnuVisit, form.mnuAbout}));
        QCOMPARE(form.mnuExit->text(), u"E&xit"_s);
        QCOMPARE(form.mnuOnline->text(), u"&Online Help"_s);
        QCOMPARE(form.mnuVisit->text(), u"&Visit Us Online"_s);
        QCOMPARE(form.mnuAbout->text(), u"&About Software"_s);
    }

    void TheCommandButtonsLieBelowTheClientArea() {
        for (const QPushButton *button : {form.cmdNext, form.cmdPrint, form.cmdSave}) {
            QVERIFY(button->y() >= form.centralWidget()->height());
            QVERIFY(button->visibleRegion().isEmpty());
        }
    }

    // --- Colours

    void TextsStandInTheirColoursOnDarkViolet() {
        for (QWidget *page :
             {Control(u"Picture1"_s), Control(u"Picture2"_s), Control(u"Picture3"_s)}) {
            const QImage picture = page->grab().toImage();
            for (const QPoint corner :
                 {QPoint(2, 2), QPoint(page->width(), page->height()) - QPoint(3, 3)})
                QCOMPARE(picture.pixelColor(corner), QColor(89, 73, 110));
        }
        for (const QWidget *label :
             {input.Label1, input.Label2, input.Label3, input.Label4, input.Label5, input.Label6,
              input.Label7, help.Label15, help.Label16, help.Label17})
            QCOMPARE(label->palette().color(QPalette::WindowText), QColor(Qt::white));
        for (const char *box :
             {"txtFirstName", "txtMiddleName", "txtLastName", "cboMonth", "cboDate", "cboYear"})
            QCOMPARE(Control(QString::fromLatin1(box))->palette().color(QPalette::Text),
                     QColor(Qt::white));
        for (const QLabel *heading :
             std::initializer_list<const QLabel *>{help.lblHelp[0], help.lblHelp[1], help.lblAbout})
            QCOMPARE(heading->palette().color(QPalette::WindowText), QColor(255, 199, 6));
        for (const QLabel *label : help.findChildren<QLabel *>())
            QVERIFY(label->font().bold());
    }

    void TheAddressIsDrawnUnderItsHotArea() {
        const QRect place = form.lblHyperlink->geometry();
        const QImage address = form.picMain->grab(place).toImage();
        const QImage above = form.picMain->grab(place.translated(0, -place.height() - 2)).toImage();
        const auto brightest = [](const QImage &image) {
            int most = 0;
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x)
                    most = qMax(most, qGray(image.pixel(x, y)));
            return most;
        };
        QVERIFY(brightest(address) > 180);
        QVERIFY(brightest(address) > brightest(above));
        form.lblHyperlink->hide(); // it draws nothing itself
        QCOMPARE(form.picMain->grab(place).toImage(), address);
        form.lblHyperlink->show();
    }

    // --- Under the mouse

    void ToolTipsAndHands() {
        const QMap<QString, QString> tips{
            {u"picExit"_s, u"Exit"_s},
            {u"picHelp"_s, u"Help"_s},
            {u"lblHelp0"_s, u"Click To Go To Online Help"_s},
            {u"lblHelp1"_s, u"Click To Visit Us Online"_s},
            {u"lblAbout2"_s, u"About Software"_s},
            {u"lblHyperlink"_s, u"Click To Go To "_s + QLatin1StringView(siteHost)}};
        const QStringList hands =
            tips.keys() + QStringList{u"picPrint"_s, u"picSave"_s, u"picProceed"_s};
        for (const QWidget *control : form.centralWidget()->findChildren<QWidget *>()) {
            QCOMPARE(control->toolTip(), tips.value(control->objectName()));
            QVERIFY2((control->cursor().shape() == Qt::PointingHandCursor) ==
                         hands.contains(control->objectName()),
                     qPrintable(control->objectName()));
        }
    }

    // --- For assistive tools

    void WhatAssistiveToolsSee_data() {
        QTest::addColumn<QAccessible::Role>("role");
        QTest::addColumn<QString>("name");
        QTest::newRow("picProceed") << QAccessible::PushButton << u"Proceed"_s;
        QTest::newRow("picPrint") << QAccessible::PushButton << u"Print"_s;
        QTest::newRow("picSave") << QAccessible::PushButton << u"Save"_s;
        QTest::newRow("picHelp") << QAccessible::PushButton << u"Help"_s;
        QTest::newRow("picExit") << QAccessible::PushButton << u"Exit"_s;
        QTest::newRow("txtFirstName") << QAccessible::EditableText << u"First Name, required"_s;
        QTest::newRow("txtMiddleName") << QAccessible::EditableText << u"Middle Name"_s;
        QTest::newRow("txtLastName") << QAccessible::EditableText << u"Last Name, required"_s;
        QTest::newRow("fraName") << QAccessible::Grouping << u"Name"_s;
        QTest::newRow("fraBirthDay") << QAccessible::Grouping << u"* Birth Day"_s;
        QTest::newRow("TV") << QAccessible::Tree << u"Topics"_s;
        QTest::newRow("RTB") << QAccessible::EditableText << u"Report"_s;
        QTest::newRow("lblHelp0") << QAccessible::Link << u"Online Help"_s;
        QTest::newRow("lblHelp1") << QAccessible::Link << u"Visit Us Online"_s;
        QTest::newRow("lblAbout2") << QAccessible::StaticText << u"About Software"_s;
        QTest::newRow("lblHyperlink") << QAccessible::Link << QString::fromLatin1(siteHost);
    }
    void WhatAssistiveToolsSee() {
        QFETCH(QAccessible::Role, role);
        QFETCH(QString, name);
        QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(
            Control(QString::fromLatin1(QTest::currentDataTag())));
        QCOMPARE(seen->text(QAccessible::Name), name);
        QCOMPARE(seen->role(), role);
    }

    void AssistiveToolsSeeTheListsWithTheirLabels() {
        const QStringList labels{u"Month"_s, u"Date"_s, u"Year"_s};
        const QStringList chosen{u"January"_s, u"1"_s, u"1900"_s};
        const QList<QComboBox *> lists{input.cboMonth, input.cboDate, input.cboYear};
        for (qsizetype index = 0; index < 3; ++index) {
            QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(lists[index]);
            QCOMPARE(seen->role(), QAccessible::ComboBox);
            QCOMPARE(seen->text(QAccessible::Value), chosen[index]);
            QCOMPARE(lists[index]->accessibleName(), u"Birth "_s + labels[index]);
            // On some systems the toolkit gives the value as the name too and tells the labels.
            QStringList told;
            for (const auto &relation : seen->relations(QAccessible::Label))
                told << relation.first->text(QAccessible::Name);
            QVERIFY2(told.contains(labels[index]), qPrintable(told.join(u'|')));
        }
        QCOMPARE(input.Label1->buddy(), input.txtFirstName);
        QCOMPARE(input.Label4->buddy(), input.txtMiddleName);
        QCOMPARE(input.Label5->buddy(), input.txtLastName);
    }

    void AssistiveToolsPrintAndSaveOnTheReportPageOnly() {
        ProceedWithSomebody();
        RTB.selectAll();
        form.mnuAbout->trigger();
        for (QAbstractButton *button : std::initializer_list<QAbstractButton *>{
                 form.cmdPrint, form.cmdSave, form.Picture2->picPrint, form.Picture2->picSave}) {
            QAccessible::queryAccessibleInterface(button)->actionInterface()->doAction(
                QAccessibleActionInterface::pressAction());
            QTRY_VERIFY(!button->isDown());
            QApplication::processEvents(); // a dialog would be one that nobody planned
        }
        QVERIFY(RTB.textCursor().hasSelection()); // Print would have dropped it
    }

    void EveryControlThatTakesTheFocusHasAName() {
        for (QWidget *control : form.centralWidget()->findChildren<QWidget *>()) {
            if ((control->focusPolicy() & Qt::TabFocus) == 0 || control->focusProxy() != nullptr ||
                control->window() != &form)
                continue; // a list that drops down is a window of its own
            QVERIFY2(
                !QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name).isEmpty(),
                qPrintable(control->objectName()));
        }
    }
};

ORRAVANE_TEST_PROGRAM(LayoutTest)

#include "layout_test.moc"
