#pragma once

// frmMain, the one window of the program, which lives for the whole run. Its pages lie
// exactly over each other, and bringing one to the front is the only way to show it.
// Event procedures are named control, underscore, event; the image buttons only call the
// command buttons' procedures, so that both routes do the same.

#include "report/topic_tree.h"
#include "shell/single_instance.h"

#include <QMainWindow>

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

class frmMain : public QMainWindow, private modReadings::ReportWindow {
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
    /// The Proceed action: checks the inputs, captures the profile, runs the pass, opens
    /// the report on the Personal Month. Does nothing when the check fails.
    void cmdNext_Click();
    /// Prints the whole report on the default printer, with no dialog. Silent where there
    /// is no printer.
    void cmdPrint_Click();
    /// Saves the report as RTF under a name asked for. Silent on Cancel and on failure.
    void cmdSave_Click();
    void TV_NodeClick(QTreeWidgetItem *Node);

protected:
    void closeEvent(QCloseEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private slots:
    void txtName_KeyPress(qint16 &KeyAscii);
    void picExit_Click();
    void RTB_Event();

private:
    void BuildMenus();
    void BuildPages();
    void ConnectEvents();
    void OrderTabStops();

    void Form_Unload();
    void UnloadAllForms();
    void Unload();
    void CentreOnScreen();

    void BringToFront(QWidget *page);
    bool IsReachable(const QWidget *control) const;

    /// One line about a missing input, with the stop icon; then the focus goes to it.
    bool RequireInput(const QString &text, const QString &message, QWidget *control);

    // modReadings::ReportWindow
    void ShowInputPage() override;
    void ShowReportPage() override;
    void ShowHelpPage() override;
    void ResetInputs() override;
    bool ValidateInputs() override;
    void WriteReport(const std::function<void(modReadings::RichTextPane &)> &write) override;

    SingleInstance instance_;
    QWidget *frontPage_ = nullptr;
    bool unloaded_ = false;
};
