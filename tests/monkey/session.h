#pragma once

// One run of the program under random events: the real window, somebody who answers its dialogs,
// and the model, with which the window is compared after every event.

#include "core/clock.h"
#include "shell/frm_main.h"
#include "tests/monkey/events.h"
#include "tests/monkey/model.h"
#include "tests/shell/browser_log.h"

#include <QPointer>
#include <QWidget>

class DateList;
class LinkLabel;
class NameBox;
class QDialog;
class QTreeWidgetItem;
class RichTextBox;

class Session : public QObject {
public:
    /// With `endless`, nobody closes the window.
    explicit Session(bool endless);
    ~Session() override;

    /// Does what the event stands for and compares the window with the model. Returns what is
    /// not as it should be; empty when all is.
    QStringList Do(const Event &event);

    /// Whether the window has been closed, after which no event does anything.
    bool IsOver() const { return model_.closed; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // What the events do.
    void Perform(const Event &event);
    void MoveMouse(QPoint point);
    void PressMouse(Qt::MouseButton button);
    void ReleaseMouse();
    void Click(QPoint point, Qt::MouseButton button = Qt::LeftButton);
    /// Clicks a control in its middle, where nothing may lie above it.
    void ClickControl(QWidget *control);
    void ClickNode(QTreeWidgetItem *node);
    void Wheel(int delta);
    void Key(int key, Qt::KeyboardModifiers modifiers = {}, const QString &text = {},
             bool repeated = false);
    void Letter(char16_t letter);
    void Type(const QString &text);
    void Compose(const QString &text);
    void EnterName(std::size_t which, const QString &name, bool paste);
    void PickDate(std::size_t which, quint32 random);
    /// Opens the input page, if it is not in front. Returns false when something went wrong.
    bool TurnToInputPage();
    void SetTheme(quint32 random);
    void MoveClock(quint32 random, quint32 by);

    // What follows an event before the window is at rest.
    /// Lets the window come to rest, tells the model what was noted, and compares the two.
    void Conclude();
    void Settle();
    void ClosePopups();
    void AnswerMenu(QWidget *menu);
    void Answer(QDialog &dialog);
    void AnswerSaveDialog(QDialog &dialog);
    void KeepEssenceFinite();
    void Activate();

    // What is noted.
    bool IsHere(const QObject *object) const;
    void Note(Fact fact) { facts_.append(std::move(fact)); }
    void NoteMouse(QObject *watched, QEvent *event);
    void NoteTreeMouse(QEvent *event);
    void NoteKey(int key, Qt::KeyboardModifiers modifiers, const QString &text, bool repeated);
    void NoteKeyOnName(std::size_t which, int key, Qt::KeyboardModifiers modifiers,
                       const QString &text);
    /// `text` in place of what is marked in a name box, or at its caret.
    void PutIntoName(std::size_t which, const QString &text);

    // The comparison.
    void Compare();
    void CompareTree();
    void CompareReport();
    void CompareFocus();
    void CompareClipboard();
    void ComparePlaces();
    template <typename Value>
    void Check(const char *what, const Value &seen, const Value &expected);
    void Complain(const QString &complaint) { complaints_ << complaint; }

    // Looking things up.
    QPoint PlaceOf(const QWidget *control, QPoint point) const;
    QPoint MiddleOf(const QWidget *control) const;
    QList<QWidget *> ControlsInSight() const;
    QWidget *PageOf(Model::Page page) const;
    int ButtonIndex(const QObject *object) const;
    int LinkIndex(const QObject *object) const;
    std::optional<std::size_t> NameIndex(const QObject *object) const;
    std::optional<std::size_t> DateIndex(const QObject *object) const;
    QTreeWidgetItem *RandomNode(quint32 random) const;
    quint32 Random(); ///< one more number of the present event

    const bool endless_;
    modReadings::FixedClock clock_{std::chrono::year(2026) / 11 / 16};
    BrowserLog browser_;
    frmMain form_;
    QWidget other_; ///< another window of the desktop
    Model model_;

    const std::array<ImageButton *, 5> buttons_;
    const std::array<LinkLabel *, 3> links_;
    const std::array<NameBox *, 3> names_;
    const std::array<DateList *, 3> dates_;
    QList<std::pair<QPointer<QWidget>, QRect>> places_; ///< of all controls, as they were

    bool markingReport_ = false; ///< the left button went down on the report and did not come up
    QPoint mouse_{-5, -5};
    Qt::MouseButton held_ = Qt::NoButton;
    quint64 now_ = 1000; ///< the time of the events of the mouse, in milliseconds

    // Of the present event.
    quint64 random_ = 0;
    QList<Fact> facts_;
    std::deque<SeenDialog> dialogs_;
    QStringList complaints_;
    QList<QWidget *> pressed_;         ///< what got the presses of the mouse
    bool treeIsTheToolkits_ = false;   ///< its keys move the selection and open branches
    bool branchIsTheToolkits_ = false; ///< the mouse opens or closes a branch
    std::optional<std::size_t> listIsTheToolkits_; ///< its keys pick an entry
    bool themeChanged_ = false;

    QTreeWidgetItem *pressedNode_ = nullptr; ///< the node that was pressed last
    int revision_ = -1;                      ///< of the pane's document, as compared last
    int savings_ = 0;
    int compared_ = 0;
    QString allowedFocus_; ///< a box on a covered page that a message has given the focus
};
