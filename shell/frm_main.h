#pragma once

// frmMain, the one window of the program, which lives for the whole run. Its pages lie
// exactly over each other, and bringing one to the front is the only way to show it.
// Event procedures are named control, underscore, event, and ConnectEvents shows who calls
// whom. Several only call another one: an image button does what its command button does.

#include "report/report.h"
#include "shell/single_instance.h"

#include <QMainWindow>

#include <optional>

class HelpPage;
class ImageButton;
class InputPage;
class LinkLabel;
class MainPage;
class QAction;
class QPushButton;
class QTreeWidgetItem;
class ReportPage;
class TopicTreeView;

class frmMain : public QMainWindow {
    Q_OBJECT

public:
    frmMain();
    ~frmMain() override;

    /// The start sequence: tree and lists, the refusal of a second instance, the update
    /// question, the main page. Returns false when another instance is running; the form
    /// is then unloaded and must not be shown.
    bool Form_Load();

    /// Whether the form has been unloaded, by whatever way.
    bool IsUnloaded() const { return unloaded_; }

    MainPage *picMain;
    InputPage *Picture1;
    ReportPage *Picture2;
    HelpPage *Picture3;
    TopicTreeView *TV;
    ImageButton *picExit;
    ImageButton *picHelp;
    LinkLabel *lblHyperlink;
    QPushButton *cmdNext;
    QPushButton *cmdPrint;
    QPushButton *cmdSave;
    QAction *mnuExit;
    QAction *mnuOnline;
    QAction *mnuVisit;
    QAction *mnuAbout;

    /// The page among the three that the user sees.
    QWidget *FrontPage() const { return frontPage_; }

public slots:
    // The command buttons, which lie out of sight, and the image buttons that call them.

    /// The Proceed action: checks the inputs, captures the profile, runs the pass, opens
    /// the report on the Personal Month. Does nothing when the check fails.
    void cmdNext_Click();
    /// Prints the whole report on the default printer, with no dialog. Silent where there
    /// is no printer. Does nothing unless the report page is in front.
    void cmdPrint_Click();
    /// Saves the report as RTF under a name asked for. Silent on Cancel and on a failure to
    /// write. Does nothing unless the report page is in front.
    void cmdSave_Click();
    void picProceed_Click();
    void picPrint_Click();
    void picSave_Click();

    /// Does what the node stands for: opens a page, resets the input page, or checks the
    /// inputs, runs a topic's calculator again and shows its reading.
    void TV_NodeClick(QTreeWidgetItem *Node);

    // The image buttons under the mouse; X and Y as in ImageButton::mouseMove.
    void picExit_MouseMove(qreal X, qreal Y);
    void picHelp_MouseMove(qreal X, qreal Y);
    void picPrint_MouseMove(qreal X, qreal Y);
    void picProceed_MouseMove(qreal X, qreal Y);
    void picSave_MouseMove(qreal X, qreal Y);

    // The name boxes: a to z become capitals, every other key passes as it is.
    void txtFirstName_KeyPress(qint16 &KeyAscii);
    void txtMiddleName_KeyPress(qint16 &KeyAscii);
    void txtLastName_KeyPress(qint16 &KeyAscii);

    /// Asks, and closes the window on Yes.
    void picExit_Click();
    /// Closes the window without a question.
    void mnuExit_Click();
    /// Shows the help page.
    void mnuAbout_Click();

    // What opens a page of the web site.
    void picHelp_Click();
    void mnuOnline_Click();
    void mnuVisit_Click();
    void lblHyperlink_Click();
    /// Index 0 opens the online help, 1 the home page, any other nothing.
    void lblHelp_Click(int Index);

    // The report pane. Each of these empties the whole clipboard, whoever put something
    // there. (docs/peculiarities.md lists it.)
    void RTB_Change();
    void RTB_Click();
    void RTB_MouseDown();
    void RTB_MouseMove();
    void RTB_MouseUp();

protected:
    void closeEvent(QCloseEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void BuildMenus();
    void BuildPages();
    void ConnectEvents();
    void OrderTabStops();

    void Form_Unload();
    void UnloadAllForms();
    /// Runs Form_Unload and hides the window. Does so once, however often it is called.
    void Unload();
    /// Puts the middle of the window, with as much of its frame as is known, into the
    /// middle of the screen. Where the screen is too small, title bar and menu stay on it.
    void CentreOnScreen();
    /// Gives the window its size again, around its middle, where the pixels of the display
    /// have become larger or smaller. Title bar and menu stay on the screen.
    void KeepSize();

    /// Shows one of the three pages, which covers the other two.
    void BringToFront(QWidget *page);
    /// False for a control on a page that is covered.
    bool IsReachable(const QWidget *control) const;

    /// False when a required input is missing; the message has then been shown and the
    /// focus is on that input.
    bool ValidateInputs();
    /// One of its checks: where `text` is empty, shows the message, moves the focus to
    /// `control`, on a covered page too, and returns false.
    bool RequireInput(const QString &text, const QString &message, QWidget *control);
    void ResetInputs();
    /// Writes the report into RTB, then shows its page.
    void ShowReport(modReadings::Report report);

    SingleInstance instance_;
    QWidget *frontPage_ = nullptr;
    bool unloaded_ = false;
    bool centredWithFrame_ = false;

    // When the mouse was pressed, in milliseconds of the events' own clock.
    std::optional<quint64> lastPress_;    ///< unless a key was pressed since
    std::optional<quint64> turningPress_; ///< the press that brought the page to the front
    bool swallowRelease_ = false;         ///< the press that belongs to it was swallowed
};
