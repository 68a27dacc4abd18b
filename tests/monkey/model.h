#pragma once

// A small model of the window. It is told what the toolkit has delivered to the controls and how
// the dialogs were answered, and says what has to be the case afterwards. Routing an event to a
// control, moving a caret and scrolling are the toolkit's affair; what the window makes of it is
// written down here a second time.

#include "core/reading_store.h"
#include "core/user_profile.h"
#include "report/report.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <array>
#include <deque>
#include <functional>
#include <optional>

/// Something that was delivered to the window, in the order of delivery.
struct Fact {
    enum class What {
        Press,            ///< a button of the mouse went down anywhere
        KeyDown,          ///< a key went down anywhere
        ButtonPress,      ///< a button of the mouse, on an image button
        ButtonMove,       ///< the mouse, to an image button
        ButtonRelease,    ///< a button of the mouse, to an image button
        ButtonLeft,       ///< the mouse left an image button
        ButtonBehind,     ///< another window stands before that of an image button
        ButtonKey,        ///< Enter or the space bar on an image button
        PaneMouse,        ///< the mouse over the report: a move, a press or a release
        NodeClicked,      ///< a node of the tree, by mouse or with Enter
        EnterOnInputPage, ///< in a name box or on a closed list
        AltP,
        AltS,
        LinkClicked,
        MenuChosen,
        Closed, ///< the window, by its frame
    };
    What what;
    quint64 time = 0;    ///< of a mouse event, in milliseconds
    int control = 0;     ///< which image button or link
    bool inside = false; ///< the far edges are inside
    bool left = false;   ///< it is the left button of the mouse
    bool down = false;   ///< the image button is held down
    QString text{};      ///< the caption of a node or of an entry of a menu
    bool here = false;   ///< in the window, and not in a dialog or a menu
};

/// A dialog that came up, and how it was answered.
struct SeenDialog {
    QString look;   ///< "Critical: text", or "Save" for the save dialog
    QString answer; ///< a button, or the file that was chosen; nothing for none
};

class Model {
public:
    enum class Page { Input, Report, Help };

    /// The image buttons: which page they are on, nothing for the head of the window.
    enum Button { Exit, Help, Print, Proceed, Save };
    enum Link { Address, OnlineHelp, VisitUs };
    static constexpr std::array<std::optional<Page>, 5> buttonPages{
        std::nullopt, std::nullopt, Page::Report, Page::Input, Page::Report};

    struct Look {
        bool lit = false;
        bool captured = false;
        friend bool operator==(const Look &, const Look &) = default;
    };

    // What has to be the case.
    Page page = Page::Input;
    std::array<QString, 3> names; ///< first, middle, last
    std::array<int, 3> dates{};   ///< rows of month, date, year
    QString selected = QStringLiteral("Reset");
    QSet<QString> open{QStringLiteral("User Information")}; ///< branches of the tree
    modReadings::UserProfile profile;
    modReadings::ReadingStore store;
    modReadings::Report report;
    std::array<Look, 5> buttons;
    std::optional<QString> clipboard; ///< its text; nothing when it is empty
    QStringList opened;               ///< pages of the site, since they were taken
    bool closed = false;

    // What this event asks for besides.
    std::optional<QString> focus; ///< the control that has to have the focus
    bool printed = false;         ///< which drops the marks
    QString savedAs;              ///< the file that has to hold the report
    bool wroteReport = false;

    /// The names of the months in the list.
    QStringList months;
    /// The time of a double click, in milliseconds.
    quint64 doubleClick = 400;

    /// Takes note of all facts and dialogs of one event. Returns what should not have been.
    QStringList Apply(const QList<Fact> &facts, std::deque<SeenDialog> dialogs);

    /// The slots in which the program's store is not that of the model.
    QStringList SlotsThatDiffer() const;

    /// The person in the boxes, as Proceed captures them.
    modReadings::UserProfile PersonInTheBoxes() const;

    /// Whether working out this person's Essence would take for ever in `year`; the name with
    /// which it would, 0 to 2.
    static std::optional<int> NameWithoutAnEnd(const modReadings::UserProfile &person, int year);

private:
    void Apply(const Fact &fact);
    void ClickButton(int button);
    void ClickNode(const QString &caption);
    void DoProceed();
    void DoSave();
    bool AllNamesAreThere();
    void TurnTo(Page next);
    void Show(const std::function<modReadings::Report()> &make);
    /// Does something to the store of the model, with its profile.
    void OnOwnStore(const std::function<void()> &act);
    /// The answer to the dialog that has to be next.
    QString AnswerTo(const QString &look);

    std::deque<SeenDialog> dialogs_;
    QStringList complaints_;
    std::optional<quint64> lastPress_;
    std::optional<quint64> turningPress_;
    bool swallowed_ = false;
};
