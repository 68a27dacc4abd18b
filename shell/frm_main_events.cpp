#include "shell/frm_main.h"

#include "core/proceed_pass.h"
#include "report/person.h"
#include "report/printing.h"
#include "report/rendering.h"
#include "report/saving.h"
#include "report/topic_tree.h"
#include "shell/app.h"
#include "shell/help_page.h"
#include "shell/image_button.h"
#include "shell/input_page.h"
#include "shell/links.h"
#include "shell/main_page.h"
#include "shell/name_box.h"
#include "shell/report_page.h"
#include "shell/rich_text_box.h"
#include "shell/topic_tree_view.h"
#include "shell/update_reminder.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QStyleHints>
#include <QWindow>

#include <cmath>
#include <utility>

// The event procedures of the window. Whatever fails in them is passed over: a calculator
// that gives up (see core/runtime_failure.h), a page that does not open, a printer that
// is not there. The user is told of none of it.

using modReadings::ClickAction;
using modReadings::NodePosition;

namespace {

/// A modal message with the application's title. Returns the button pressed. In a question
/// Enter is Yes and Escape is No.
QMessageBox::StandardButton Ask(QWidget *parent, QMessageBox::Icon icon, const QString &text,
                                QMessageBox::StandardButtons buttons) {
    QMessageBox box(icon, App::Title(), text, buttons, parent);
    if ((buttons & QMessageBox::Yes) != 0) {
        // Left to the toolkit, the default is the button that the desktop puts first.
        box.setDefaultButton(QMessageBox::Yes);
        box.setEscapeButton(QMessageBox::No);
    }
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

void ClearClipboard() { QApplication::clipboard()->clear(); }

/// The filter of the three name boxes.
void TypeAsCapital(qint16 &KeyAscii) {
    if (KeyAscii >= u'a' && KeyAscii <= u'z')
        KeyAscii = static_cast<qint16>(KeyAscii - 32);
}

} // namespace

// --- Start and exit

bool frmMain::Form_Load() {
    TV->Build();
    Picture1->FillLists();
    Picture1->SelectFirstDates();

    if (instance_.AnotherIsRunning()) {
        Ask(nullptr, QMessageBox::Critical, App::Title() + tr(" Is Already Running"),
            QMessageBox::Ok);
        UnloadAllForms();
        return false;
    }

    if (UpdateReminder::IsDue()) {
        const auto answer =
            Ask(nullptr, QMessageBox::Warning, tr("Do You Wish To Update The Software ?"),
                QMessageBox::Yes | QMessageBox::No);
        if (answer == QMessageBox::Yes)
            OpenUpdatePage();
        UpdateReminder::Settle();
    }

    picMain->raise();
    Picture1->txtFirstName->setFocus();
    CentreOnScreen();
    return true;
}

void frmMain::Form_Unload() { OpenThankYouPage(); }

void frmMain::Unload() {
    if (unloaded_)
        return;
    unloaded_ = true;
    Form_Unload();
    hide();
}

void frmMain::UnloadAllForms() {
    for (QWidget *window : QApplication::topLevelWidgets())
        if (auto *form = qobject_cast<frmMain *>(window))
            form->Unload();
}

void frmMain::showEvent(QShowEvent *event) {
    QMainWindow::showEvent(event);
    // Queued: first the toolkit itself has to take note of the new display.
    connect(windowHandle(), &QWindow::screenChanged, this, &frmMain::KeepSize,
            Qt::ConnectionType(Qt::QueuedConnection | Qt::UniqueConnection));
}

void frmMain::closeEvent(QCloseEvent *event) {
    Unload();
    QMainWindow::closeEvent(event);
}

void frmMain::picExit_Click() {
    if (Ask(this, QMessageBox::Warning, tr("Are You Sure You Want to Exit Orravane?"),
            QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes)
        close();
}

void frmMain::mnuExit_Click() { close(); }

// --- Input

void frmMain::txtFirstName_KeyPress(qint16 &KeyAscii) { TypeAsCapital(KeyAscii); }
void frmMain::txtMiddleName_KeyPress(qint16 &KeyAscii) { TypeAsCapital(KeyAscii); }
void frmMain::txtLastName_KeyPress(qint16 &KeyAscii) { TypeAsCapital(KeyAscii); }

bool frmMain::RequireInput(const QString &text, const QString &message, QWidget *control) {
    if (!text.isEmpty()) // not trimmed: blanks are an answer
        return true;
    Ask(this, QMessageBox::Critical, message, QMessageBox::Ok);
    control->setFocus();
    return false;
}

bool frmMain::ValidateInputs() {
    // A list always has an entry selected, so the last three checks never fire; they are there on
    // purpose.
    return RequireInput(Picture1->txtFirstName->text(), tr("Please Enter Your First Name"),
                        Picture1->txtFirstName) &&
           RequireInput(Picture1->txtLastName->text(), tr("Please Enter Your Last Name"),
                        Picture1->txtLastName) &&
           RequireInput(Picture1->cboDate->currentText(), tr("Please Specify Your Birth Date"),
                        Picture1->cboDate) &&
           RequireInput(Picture1->cboMonth->currentText(), tr("Please Specify Your Birth Month"),
                        Picture1->cboMonth) &&
           RequireInput(Picture1->cboYear->currentText(), tr("Please Specify Your Birth Year"),
                        Picture1->cboYear);
}

void frmMain::ResetInputs() {
    Picture1->txtFirstName->clear();
    Picture1->txtMiddleName->clear();
    Picture1->txtLastName->clear();
    Picture1->SelectFirstDates();
    Picture1->txtFirstName->setFocus();
}

void frmMain::cmdNext_Click() {
    if (!ValidateInputs())
        return;
    modReadings::profile =
        modReadings::Captured({Picture1->txtFirstName->text(), Picture1->txtMiddleName->text(),
                               Picture1->txtLastName->text(), Picture1->cboMonth->currentText(),
                               Picture1->cboDate->currentText(), Picture1->cboYear->currentText()});
    modReadings::RunAllCalculators();

    TV->Node(NodePosition::Numerology)->setExpanded(true);
    TV->setCurrentItem(TV->Node(NodePosition::N1)); // selects, and does not run the handler
    TV->Node(NodePosition::UserInfo)->setExpanded(false);
    TV->Node(NodePosition::UserInfo)->setSelected(false);
    TV->Node(NodePosition::U1)->setExpanded(false);
    TV->Node(NodePosition::U1)->setSelected(false);

    // The Personal Month as the pass left it, without a run of its own.
    ShowReport(modReadings::RenderTopic(*modReadings::FindTopic(u"Personal Month")));
}

void frmMain::picProceed_Click() { cmdNext_Click(); }

// --- The tree and the pages

void frmMain::TV_NodeClick(QTreeWidgetItem *Node) {
    const modReadings::Click click = modReadings::MeaningOfClick(Node->text(0).toStdU16String());
    if (click.validates && !ValidateInputs())
        return;
    switch (click.action) {
    case ClickAction::InputPage:
        BringToFront(Picture1);
        break;
    case ClickAction::Reset:
        BringToFront(Picture1);
        ResetInputs();
        break;
    case ClickAction::Help:
        BringToFront(Picture3);
        break;
    case ClickAction::Topic:
        ShowReport(modReadings::RunAndRenderTopic(*click.topic));
        break;
    case ClickAction::ComprehensiveReading:
        ShowReport(modReadings::RenderComprehensiveReading());
        break;
    case ClickAction::Nothing:
        break;
    }
}

void frmMain::ShowReport(modReadings::Report report) {
    Picture2->RTB->ShowReport(std::move(report));
    BringToFront(Picture2);
}

void frmMain::mnuAbout_Click() {
    picMain->raise();
    BringToFront(Picture3);
}

void frmMain::BringToFront(QWidget *page) {
    if (page != frontPage_)
        turningPress_ = lastPress_;
    page->raise();
    frontPage_ = page;

    // A letter belongs to the command button whose image button is to be seen.
    const auto setLetter = [page](QPushButton *button, const QWidget *itsPage, Qt::Key letter) {
        button->setShortcut(page == itsPage ? QKeySequence(Qt::ALT | letter) : QKeySequence());
    };
    setLetter(cmdNext, Picture1, Qt::Key_P);
    setLetter(cmdPrint, Picture2, Qt::Key_P);
    setLetter(cmdSave, Picture2, Qt::Key_S);

    // Nothing on a covered page may keep the focus or the mouse. A button there can have
    // captured the mouse: the keyboard may change the page while the mouse rests on it.
    for (ImageButton *button : findChildren<ImageButton *>())
        if (!IsReachable(button))
            button->TurnPlain();
    if (focusWidget() != nullptr && !IsReachable(focusWidget()))
        TV->setFocus();
}

bool frmMain::IsReachable(const QWidget *control) const {
    for (const QWidget *page : {static_cast<QWidget *>(Picture1), static_cast<QWidget *>(Picture2),
                                static_cast<QWidget *>(Picture3)})
        if (page != frontPage_ && page->isAncestorOf(control))
            return false;
    return true;
}

bool frmMain::eventFilter(QObject *watched, QEvent *event) {
    switch (event->type()) {
    case QEvent::ShortcutOverride: // comes before every key, also one that is a shortcut
        lastPress_.reset();
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
        const quint64 now = static_cast<QMouseEvent *>(event)->timestamp();
        const auto interval =
            static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
        if (turningPress_ && now - *turningPress_ < interval &&
            qobject_cast<ImageButton *>(watched) != nullptr) {
            // The second half of a double click, on a button that has just come to the front.
            swallowRelease_ = true;
            return true;
        }
        swallowRelease_ = false;
        lastPress_ = now;
        break;
    }
    case QEvent::MouseButtonRelease:
        if (swallowRelease_ && qobject_cast<ImageButton *>(watched) != nullptr) {
            swallowRelease_ = false;
            return true;
        }
        break;
    default:
        break;
    }
    if (!centredWithFrame_ && watched == windowHandle() &&
        !windowHandle()->frameMargins().isNull()) {
        // The window manager has put the frame around the window.
        centredWithFrame_ = true;
        CentreOnScreen();
    }
    return QMainWindow::eventFilter(watched, event);
}

/// Covered pages are not hidden, so without this Tab would reach their controls too.
bool frmMain::focusNextPrevChild(bool next) {
    QWidget *start = focusWidget() != nullptr ? focusWidget() : this;
    for (QWidget *candidate = next ? start->nextInFocusChain() : start->previousInFocusChain();
         candidate != start;
         candidate = next ? candidate->nextInFocusChain() : candidate->previousInFocusChain()) {
        if ((candidate->focusPolicy() & Qt::TabFocus) != 0 && candidate->window() == this &&
            candidate->isVisibleTo(this) && candidate->isEnabled() &&
            candidate->focusProxy() == nullptr && IsReachable(candidate)) {
            candidate->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
    }
    return false;
}

// --- The report

void frmMain::RTB_Change() { ClearClipboard(); }
void frmMain::RTB_Click() { ClearClipboard(); }
void frmMain::RTB_MouseDown() { ClearClipboard(); }
void frmMain::RTB_MouseMove() { ClearClipboard(); }
void frmMain::RTB_MouseUp() { ClearClipboard(); }

// A screen reader can press what is covered or out of sight. Print and Save belong to the report
// page, so elsewhere they do nothing.

void frmMain::cmdPrint_Click() {
    if (frontPage_ != Picture2)
        return;
    QTextCursor caret = Picture2->RTB->textCursor();
    if (caret.hasSelection()) { // the whole document is printed, not what is selected
        caret.setPosition(caret.selectionStart());
        Picture2->RTB->setTextCursor(caret);
    }
    PrintDocument(*Picture2->RTB->document());
}

void frmMain::picPrint_Click() { cmdPrint_Click(); }

void frmMain::cmdSave_Click() {
    if (frontPage_ != Picture2)
        return;
    const QFont &font = Picture2->RTB->font();
    const double points = font.pixelSize() * 72.0 / 96.0; // 72 points or 96 pixels to the inch
    SaveReport(Picture2->RTB->ShownReport(),
               {font.families().value(0).toStdString(), static_cast<int>(std::lround(points * 2))},
               App::Title(), this);
}

void frmMain::picSave_Click() { cmdSave_Click(); }

// --- Image buttons under the mouse

void frmMain::picExit_MouseMove(qreal X, qreal Y) { ImageMouseMove(picExit, 1, 2, X, Y); }

void frmMain::picHelp_MouseMove(qreal X, qreal Y) { ImageMouseMove(picHelp, 3, 4, X, Y); }

void frmMain::picPrint_MouseMove(qreal X, qreal Y) {
    ImageMouseMove(Picture2->picPrint, 5, 6, X, Y);
}

void frmMain::picProceed_MouseMove(qreal X, qreal Y) {
    ImageMouseMove(Picture1->picProceed, 7, 8, X, Y);
}

void frmMain::picSave_MouseMove(qreal X, qreal Y) {
    ImageMouseMove(Picture2->picSave, 9, 10, X, Y);
}

// --- Links

void frmMain::picHelp_Click() { OpenHelpPage(); }

void frmMain::mnuOnline_Click() { OpenHelpPage(); }

void frmMain::mnuVisit_Click() { OpenHomePage(); }

void frmMain::lblHyperlink_Click() { OpenHomePage(); }

void frmMain::lblHelp_Click(int Index) {
    if (Index == 0)
        OpenHelpPage();
    else if (Index == 1)
        OpenHomePage();
}
