#include "tests/shell/program.h"

#include "site.h"

#include <QDesktopServices>
#include <optional>

// What opens which page of the site.

class LinksTest : public QObject {
    Q_OBJECT

public:
    explicit LinksTest(const TemporaryHome &) {}

private:
    std::optional<Program> program_;

    static QList<QUrl> Page(const char *path) { return {PageOfSite(QString::fromLatin1(path))}; }

private slots:
    void init() { program_.emplace(); }
    void cleanup() { program_.reset(); }

    void TheSiteIsAHostWithPagesOnIt() {
        QVERIFY(!QByteArray(siteHost).isEmpty());
        QVERIFY(!QByteArray(siteHost).contains('/'));
        QVERIFY(QByteArray(updatePath).startsWith('/'));
    }

    void MenuEntries() {
        program_->form.mnuOnline->trigger();
        QCOMPARE(program_->browser.Taken(), Page("/orravane-help/"));
        program_->form.mnuVisit->trigger();
        QCOMPARE(program_->browser.Taken(), Page("/"));
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture1); // no page is turned
    }

    void TheHelpImage() {
        program_->Click(program_->form.picHelp);
        QCOMPARE(program_->browser.Taken(), Page("/orravane-help/"));
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture1);
    }

    void TheAddressOnTheMainPage() {
        program_->Click(program_->form.lblHyperlink);
        QCOMPARE(program_->browser.Taken(), Page("/"));
    }

    void TheHeadingsOfTheHelpPage() {
        program_->ClickNode(QStringLiteral("Help"));
        program_->Click(program_->form.Picture3->lblHelp[0]);
        QCOMPARE(program_->browser.Taken(), Page("/orravane-help/"));
        program_->Click(program_->form.Picture3->lblHelp[1]);
        QCOMPARE(program_->browser.Taken(), Page("/"));
        program_->Click(program_->form.Picture3->lblAbout); // has only the look of a link
        QVERIFY(program_->browser.Taken().isEmpty());
        VERIFY_DIALOGS(program_->dialogs);
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture3);
    }

    void TheTextsOfTheHelpPageAreNoLinks() {
        program_->ClickNode(QStringLiteral("Help"));
        for (QLabel *text : {program_->form.Picture3->Label15, program_->form.Picture3->Label16,
                             program_->form.Picture3->Label17})
            program_->Click(text);
        QVERIFY(program_->browser.Taken().isEmpty());
    }

    void EnterAndSpaceFollowALink() {
        program_->ClickNode(QStringLiteral("Help"));
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
            QTest::keyClick(program_->form.Picture3->lblHelp[0], key);
            QCOMPARE(program_->browser.Taken(), Page("/orravane-help/"));
            QTest::keyClick(program_->form.Picture3->lblHelp[1], key);
            QCOMPARE(program_->browser.Taken(), Page("/"));
            QTest::keyClick(program_->form.lblHyperlink, key);
            QCOMPARE(program_->browser.Taken(), Page("/"));
        }
        QTest::keyClicks(program_->form.lblHyperlink, QStringLiteral("x"));
        QVERIFY(program_->browser.Taken().isEmpty());
    }

    void APressThatIsLetGoElsewhereIsNoClick() {
        LinkLabel *link = program_->form.lblHyperlink;
        QTest::mousePress(link, Qt::LeftButton, {}, QPoint(5, 5));
        QTest::mouseRelease(link, Qt::LeftButton, {}, QPoint(5, -20));
        QVERIFY(program_->browser.Taken().isEmpty());
        QTest::mouseClick(link, Qt::LeftButton, {}, QPoint(5, 5));
        QCOMPARE(program_->browser.Taken(), Page("/"));
    }

    void AboutSoftwareShowsTheHelpPage() {
        program_->form.mnuAbout->trigger();
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture3);
        QVERIFY(program_->browser.Taken().isEmpty());
        VERIFY_DIALOGS(program_->dialogs);
    }

    void AboutSoftwareLeavesTheReportForTheNextClick() {
        program_->ProceedWithSomebody();
        const std::u16string report = program_->ReportText();
        program_->form.mnuAbout->trigger();
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture3);
        QCOMPARE(program_->ReportText(), report);
        program_->ClickNode(QStringLiteral("Essence"));
        QCOMPARE(program_->form.FrontPage(), program_->form.Picture2);
        QVERIFY(program_->ReportText().starts_with(u"Your Essence Number is: 6\r\n"));
    }

    void APageThatCannotBeOpenedGoesUnnoticed() {
        for (const char *scheme : {"http", "https"})
            QDesktopServices::unsetUrlHandler(QLatin1StringView(scheme));
        program_->Click(program_->form.picHelp); // the offscreen display has no browser
        program_->Click(program_->form.lblHyperlink);
        VERIFY_DIALOGS(program_->dialogs);
        QVERIFY(program_->form.isVisible());
        QVERIFY(program_->form.isActiveWindow());
    }
};

ORRAVANE_TEST_PROGRAM(LinksTest)

#include "links_test.moc"
