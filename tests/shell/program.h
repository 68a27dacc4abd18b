#pragma once

// One run of the program under test: the real window on a clock that stands still, with
// somebody in front of its dialogs and a browser that only takes notes.

#include "core/clock.h"
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

/// The day of all tests that set no other: Monday, 16 November 2026.
inline constexpr std::chrono::year_month_day usualDay = std::chrono::year(2026) / 11 / 16;

class Program {
public:
    /// A first run on an empty store, started and shown.
    Program();

    modReadings::FixedClock clock{usualDay};
    BrowserLog browser;
    Dialogs dialogs;
    frmMain form;

    InputPage &input = *form.Picture1;
    RichTextBox &RTB = *form.Picture2->RTB;
    TopicTreeView &TV = *form.TV;

    /// The node with this caption.
    QTreeWidgetItem *Node(const QString &caption) const;

    /// Clicks the node with the mouse, having brought it into view.
    void ClickNode(const QString &caption);

    /// Clicks the middle of a control, which has to be in sight there.
    void Click(QWidget *control);

    /// Types the names and picks the dates, all as the user does.
    void Enter(const QString &first, const QString &middle, const QString &last,
               const QString &month, const QString &day, const QString &year);

    /// OAK RIVER, born on 29 December 1985.
    void EnterSomebody();

    /// Clicks the Proceed image. The input page has to be in front.
    void Proceed();

    /// EnterSomebody and Proceed.
    void ProceedWithSomebody();

    /// The pane's text, with "\r\n" for line breaks.
    std::u16string ReportText() const;

    /// The widget that has the focus of the window.
    QWidget *Focus() const { return form.focusWidget(); }
};

/// The program's settings as on a machine that it has never run on.
void ForgetAllRuns();

/// Empties profile and store, as at the start of a process.
void ForgetAllPeople();
