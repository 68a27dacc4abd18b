#pragma once

// The base of the tests of the window: one run of the program on a clock that stands
// still, with somebody in front of its dialogs and a browser that only takes notes. All
// cases of a test class share the window, which is put back before each of them to how it
// stands after the start. After each, no dialog may be left that nobody planned.

#include "core/clock.h"
#include "core/reading_store.h"
#include "core/user_profile.h"
#include "shell/app.h"
#include "shell/frm_main.h"
#include "shell/help_page.h"
#include "shell/image_button.h"
#include "shell/input_page.h"
#include "shell/link_label.h"
#include "shell/main_page.h"
#include "shell/name_box.h"
#include "shell/report_page.h"
#include "shell/rich_text_box.h"
#include "shell/topic_tree_view.h"
#include "tests/shell/browser_log.h"
#include "tests/shell/dialogs.h"
#include "tests/shell/temporary_home.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::string_literals;

/// The day of all tests that set no other: Monday, 16 November 2026.
inline constexpr std::chrono::year_month_day usualDay = std::chrono::year(2026) / 11 / 16;

class WindowTest : public QObject {
    Q_OBJECT

protected:
    WindowTest();

    modReadings::FixedClock clock{usualDay};
    BrowserLog browser;
    Dialogs dialogs;
    frmMain form;

    InputPage &input = *form.Picture1;
    HelpPage &help = *form.Picture3;
    RichTextBox &RTB = *form.Picture2->RTB;
    TopicTreeView &TV = *form.TV;

    /// Makes the window the active one again. The offscreen display does not when a dialog
    /// or a menu of it goes.
    void Activate();

    /// The node with this caption.
    QTreeWidgetItem *Node(const QString &caption) const;

    /// Clicks the node with the mouse, having brought it into view.
    void ClickNode(const QString &caption);

    /// Clicks the middle of a control, which has to be in sight there.
    void Click(QWidget *control);

    /// Sends one move of the mouse to a control, with no button held.
    static void MoveTo(QWidget *control, QPointF point);

    /// Types the names and picks the dates, all as the user does.
    void Enter(const QString &first, const QString &middle, const QString &last,
               const QString &month, int day, int year);

    /// OAK RIVER, born on 29 December 1985.
    void EnterSomebody() { Enter(u"oak"_s, {}, u"river"_s, u"December"_s, 29, 1985); }

    /// Clicks the Proceed image. The input page has to be in front.
    void Proceed() { Click(input.picProceed); }
    void ProceedWithSomebody();

    /// The pane's text, with "\r\n" for line breaks.
    std::u16string ReportText() const;

    /// The object name of the page in front.
    QString Page() const { return form.FrontPage()->objectName(); }

    /// The control that has the focus of the window.
    QWidget *Focus() const { return form.focusWidget(); }

    /// Only this node is selected.
    bool IsSelected(const QString &caption) const {
        return TV.selectedItems() == QList{Node(caption)};
    }

protected slots:
    void init();
    void cleanup();
};

/// The program's settings as on a machine that it has never run on.
void ForgetAllRuns();

/// Empties profile and store, as at the start of a process.
void ForgetAllPeople();

/// A whole file; "no such file" when it cannot be read.
QByteArray ContentOf(const QString &path);

/// The rows of a table in this folder, without the line of its headings.
QList<QStringList> TableRows(const QString &name);
