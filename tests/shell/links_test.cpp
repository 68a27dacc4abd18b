#include "tests/shell/window_test.h"

#include "site.h"

#include <QDesktopServices>

// What opens which page of the site.

class LinksTest : public WindowTest {
    Q_OBJECT

    const QStringList help_{u"/orravane-help/"_s};
    const QStringList home_{u"/"_s};

private slots:
    void TheSiteIsAHostWithPagesOnIt() {
        QVERIFY(!QByteArray(siteHost).isEmpty());
        QVERIFY(!QByteArray(siteHost).contains('/'));
        QVERIFY(QByteArray(updatePath).startsWith('/'));
    }

    void MenuImageAndAddressOpenTheirPages() {
        form.mnuOnline->trigger();
        QCOMPARE(browser.Taken(), help_);
        form.mnuVisit->trigger();
        QCOMPARE(browser.Taken(), home_);
        Click(form.picHelp);
        QCOMPARE(browser.Taken(), help_);
        Click(form.lblHyperlink);
        QCOMPARE(browser.Taken(), home_);
        QCOMPARE(Page(), u"Picture1"_s); // no page is turned
    }

    void TheHeadingsOfTheHelpPage() {
        ClickNode(u"Help"_s);
        Click(help.lblHelp[0]);
        QCOMPARE(browser.Taken(), help_);
        Click(help.lblHelp[1]);
        QCOMPARE(browser.Taken(), home_);
        // The third has only the look of a link, and the texts have not even that.
        for (QLabel *label : {help.lblAbout, help.Label15, help.Label16, help.Label17})
            Click(label);
        form.lblHelp_Click(2);
        QCOMPARE(browser.Taken(), QStringList());
        QCOMPARE(Page(), u"Picture3"_s);
    }

    void EnterAndSpaceFollowALink() {
        ClickNode(u"Help"_s);
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
            for (LinkLabel *link : {help.lblHelp[0], help.lblHelp[1], form.lblHyperlink})
                QTest::keyClick(link, key);
            QCOMPARE(browser.Taken(), help_ + home_ + home_);
        }
        QTest::keyClicks(form.lblHyperlink, u"x"_s);
        QCOMPARE(browser.Taken(), QStringList());
    }

    void AKeyThatIsHeldDownOpensOnePage() {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
            QTest::keyPress(form.lblHyperlink, key);
            for (int times = 0; times < 3; ++times) {
                QKeyEvent repeated(QEvent::KeyPress, key, Qt::NoModifier, {}, true);
                QApplication::sendEvent(form.lblHyperlink, &repeated);
            }
            QTest::keyRelease(form.lblHyperlink, key);
            QCOMPARE(browser.Taken(), home_);
        }
    }

    void OnlyALeftClickThatEndsOnTheLinkCounts() {
        QTest::mousePress(form.lblHyperlink, Qt::LeftButton, {}, QPoint(5, 5));
        QTest::mouseRelease(form.lblHyperlink, Qt::LeftButton, {}, QPoint(5, -20));
        QTest::mouseClick(form.lblHyperlink, Qt::RightButton, {}, QPoint(5, 5));
        QCOMPARE(browser.Taken(), QStringList());
        QTest::mouseClick(form.lblHyperlink, Qt::LeftButton, {}, QPoint(5, 5));
        QCOMPARE(browser.Taken(), home_);
    }

    void AboutSoftwareShowsTheHelpPageAndLeavesTheReport() {
        ProceedWithSomebody();
        const std::u16string report = ReportText();
        form.mnuAbout->trigger();
        QCOMPARE(Page(), u"Picture3"_s);
        QCOMPARE(ReportText(), report);
        QCOMPARE(browser.Taken(), QStringList());
    }

    void APageThatCannotBeOpenedGoesUnnoticed() {
        QDesktopServices::unsetUrlHandler(u"https"_s);
        Click(form.picHelp); // the offscreen display has no browser
        Click(form.lblHyperlink);
        QVERIFY(form.isActiveWindow());
    }
};

ORRAVANE_TEST_PROGRAM(LinksTest)

#include "links_test.moc"
