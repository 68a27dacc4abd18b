#include "tests/monkey/session.h"

#include "report/rtf.h"
#include "shell/date_list.h"
#include "shell/help_page.h"
#include "shell/image_button.h"
#include "shell/input_page.h"
#include "shell/link_label.h"
#include "shell/main_page.h"
#include "shell/name_box.h"
#include "shell/report_page.h"
#include "shell/rich_text_box.h"
#include "shell/style.h"
#include "shell/topic_tree_view.h"
#include "tests/shell/temporary_home.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QMenuBar>
#include <QMessageBox>
#include <QMetaEnum>
#include <QMimeData>
#include <QPushButton>
#include <QStyleHints>
#include <QTest>
#include <QTextBlock>
#include <QTextDocumentFragment>
#include <QTimer>
#include <QTreeWidgetItemIterator>
#include <QWindow>

#include <utility>

using namespace Qt::StringLiterals;
using Kind = Event::Kind;
using What = Fact::What;

namespace {

/// Names and parts of names: such as count, such as do not, and such as are seldom met.
const QStringList &Names() {
    static const QStringList names{u"oak"_s,
                                   u"Maria Elena"_s,
                                   u"RIVER"_s,
                                   u"o'neill-3"_s,
                                   u"  sky "_s,
                                   u"a"_s,
                                   u"f"_s,
                                   u"FF"_s,
                                   u"7"_s,
                                   u"-"_s,
                                   u" "_s,
                                   u"x1"_s,
                                   u"zz9"_s,
                                   u"\u00E9va"_s,
                                   u"stra\u00DFe"_s,
                                   u"\u0436\u0438"_s,
                                   u"\u4E2D"_s,
                                   u"\U0001F600 ann"_s,
                                   u"yyy"_s,
                                   u"bcd"_s,
                                   u"aeiou"_s,
                                   u"QUEEN"_s,
                                   u"jay"_s,
                                   u"van der"_s,
                                   u"f-lynn"_s,
                                   u"\u0149a"_s,
                                   u"mmmmmmmmmmmm"_s,
                                   u"lee"_s,
                                   u"10"_s,
                                   u"ii"_s};
    return names;
}

/// A name of many letters, or of more than can be counted. One in between would take long: the
/// Hidden Passion compares each letter with each.
QString LongName(quint32 random) {
    const quint32 length = random % 8 == 0 ? 33'000 + random / 8 % 7'000 : random / 8 % 1'000;
    return QString(static_cast<qsizetype>(length), u'q');
}

template <typename List> decltype(auto) Any(List &&list, quint32 random) {
    return list[static_cast<qsizetype>(random % static_cast<quint32>(std::size(list)))];
}

/// Keys to move with, to confirm with, to delete with.
constexpr Qt::Key keys[] = {Qt::Key_Tab,       Qt::Key_Tab,    Qt::Key_Tab,      Qt::Key_Backtab,
                            Qt::Key_Up,        Qt::Key_Down,   Qt::Key_Left,     Qt::Key_Right,
                            Qt::Key_Home,      Qt::Key_End,    Qt::Key_PageUp,   Qt::Key_PageDown,
                            Qt::Key_Return,    Qt::Key_Enter,  Qt::Key_Return,   Qt::Key_Space,
                            Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Escape,   Qt::Key_F4,
                            Qt::Key_Plus,      Qt::Key_Minus,  Qt::Key_Asterisk, Qt::Key_Insert};

/// Whether font and colours are not those of the start.
bool themeOfAnEarlierSession = false;

bool IsEnter(int key) { return key == Qt::Key_Return || key == Qt::Key_Enter; }

/// How a name box takes one character that is typed.
QString AsTyped(const QString &text) {
    return text.size() == 1 && text[0] >= u'a' && text[0] <= u'z' ? text.toUpper() : text;
}

QByteArray ContentOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString Shown(const QString &text) {
    return text.size() > 300 ? text.left(300) + u"... (%1 characters)"_s.arg(text.size()) : text;
}
QString Shown(bool yes) { return yes ? u"yes"_s : u"no"_s; }
QString Shown(int number) { return QString::number(number); }
QString Shown(const QStringList &texts) { return Shown(texts.join(u" | "_s)); }

bool ClipboardIsEmpty() {
    const QMimeData *content = QApplication::clipboard()->mimeData();
    return content == nullptr || content->formats().isEmpty();
}

} // namespace

Session::Session(bool endless)
    : endless_(endless), buttons_{form_.picExit, form_.picHelp, form_.Picture2->picPrint,
                                  form_.Picture1->picProceed, form_.Picture2->picSave},
      links_{form_.lblHyperlink, form_.Picture3->lblHelp[0], form_.Picture3->lblHelp[1]},
      names_{form_.Picture1->txtFirstName, form_.Picture1->txtMiddleName,
             form_.Picture1->txtLastName},
      dates_{form_.Picture1->cboMonth, form_.Picture1->cboDate, form_.Picture1->cboYear} {
    modReadings::profile = {};
    modReadings::store = {};
    QApplication::clipboard()->clear();
    if (std::exchange(themeOfAnEarlierSession, false)) {
        QApplication::setFont(WindowFont());
        QApplication::setPalette(QApplication::style()->standardPalette());
    }
    if (!form_.Form_Load())
        qFatal("the program was refused");
    form_.show();
    other_.setGeometry(700, 0, 50, 50);
    other_.show();
    Activate();

    for (int row = 0; row < dates_[0]->count(); ++row)
        model_.months << dates_[0]->itemText(row);
    model_.doubleClick =
        static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    for (QWidget *control : form_.centralWidget()->findChildren<QWidget *>())
        if (!control->objectName().isEmpty() && !control->objectName().startsWith(u"qt_"_s))
            places_.append({control, control->geometry()});
    connect(form_.TV, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem *node) {
        Note({.what = What::NodeClicked, .text = node->text(0)});
    });
    // Made behind the window, and so told of everything before it.
    qApp->installEventFilter(this);
}

Session::~Session() { qApp->removeEventFilter(this); }

quint32 Session::Random() {
    random_ = random_ * 6364136223846793005 + 1442695040888963407;
    return static_cast<quint32>(random_ >> 33);
}

QStringList Session::Do(const Event &event) {
    random_ = (quint64{event.random[3]} << 32) | event.random[2];

    // Whoever does something else with the mouse lets go of its button first.
    if (held_ != Qt::NoButton && event.kind != Kind::Move && event.kind != Kind::MoveOnto &&
        event.kind != Kind::Type && event.kind != Kind::Key && event.kind != Kind::Letter) {
        ReleaseMouse();
        Conclude();
    }
    if (complaints_.isEmpty() && !model_.closed) {
        Perform(event);
        Conclude();
    }
    if (complaints_.isEmpty() && !model_.closed)
        KeepEssenceFinite();
    return std::exchange(complaints_, {});
}

void Session::Conclude() {
    Settle();
    complaints_ << model_.Apply(std::exchange(facts_, {}), std::exchange(dialogs_, {}));
    Compare();
    pressed_.clear();
    treeIsTheToolkits_ = false;
    branchIsTheToolkits_ = false;
    listIsTheToolkits_.reset();
    themeChanged_ = false;
}

// --- What the events do

void Session::Perform(const Event &event) {
    const auto [first, second, third, fourth] = event.random;
    now_ += first % 8 == 0 ? model_.doubleClick - 3 + first / 8 % 6 : first / 8 % 60;

    // Somebody who uses the keyboard or clicks has this window before him.
    const bool isQuiet = event.kind == Kind::Move || event.kind == Kind::MoveOnto ||
                         event.kind == Kind::Wheel || event.kind == Kind::CopyInOther ||
                         event.kind == Kind::OtherWindow || event.kind == Kind::Clock ||
                         event.kind == Kind::Wait || event.kind == Kind::Release;
    if (!isQuiet)
        Activate();

    const QSize area = form_.size();
    const auto anyPoint = [&] {
        return QPoint(static_cast<int>(first / 512 % static_cast<quint32>(area.width() + 10)) - 5,
                      static_cast<int>(second % static_cast<quint32>(area.height() + 10)) - 5);
    };
    const auto anyControl = [&] { return Any(ControlsInSight(), second); };
    const Qt::MouseButton button = third % 12 == 0   ? Qt::RightButton
                                   : third % 12 == 1 ? Qt::MiddleButton
                                                     : Qt::LeftButton;
    switch (event.kind) {
    case Kind::Move:
        MoveMouse(anyPoint());
        break;
    case Kind::MoveOnto: {
        const QWidget *control = anyControl();
        const QRect place = control->rect();
        const int x = static_cast<int>(third % 7);
        const int y = static_cast<int>(fourth % 7);
        const auto at = [](int low, int high, int choice) { // edges and beside them
            return choice == 0   ? low - 1
                   : choice == 1 ? low
                   : choice == 2 ? high
                   : choice == 3 ? high + 1
                                 : low + (high - low) * choice / 7;
        };
        MoveMouse(PlaceOf(
            control, {at(place.left(), place.right(), x), at(place.top(), place.bottom(), y)}));
        break;
    }
    case Kind::Press:
        ReleaseMouse();
        PressMouse(button);
        break;
    case Kind::Release:
        ReleaseMouse();
        break;
    case Kind::ClickAnywhere:
        Click(anyPoint(), button);
        break;
    case Kind::ClickOn:
        ClickControl(anyControl());
        break;
    case Kind::DoubleClick: {
        const bool onNode = third % 3 == 0;
        if (onNode)
            ClickNode(RandomNode(second));
        else
            ClickControl(anyControl());
        now_ += fourth % (model_.doubleClick + 10);
        Click(mouse_);
        break;
    }
    case Kind::ClickNode:
        ClickNode(RandomNode(second));
        break;
    case Kind::ClickBranch: {
        ReleaseMouse();
        QTreeWidgetItem *branch = form_.TV->topLevelItem(static_cast<int>(second % 2));
        const QRect place = form_.TV->visualItemRect(branch);
        const QPoint point(place.left() - 8, place.center().y());
        if (form_.TV->viewport()->rect().contains(point))
            Click(PlaceOf(form_.TV->viewport(), point));
        break;
    }
    case Kind::Wheel:
        Wheel(third % 2 == 0 ? 120 : -120);
        break;
    case Kind::Type:
        Type(third % 4 == 0 ? Any(Names(), second)
                            : QString(QChar(static_cast<char16_t>(' ' + second % 95))));
        break;
    case Kind::Key:
        Key(Any(keys, second), third % 5 == 0 ? Qt::ShiftModifier : Qt::NoModifier, {},
            third % 6 == 3);
        break;
    case Kind::Letter:
        Letter(Any(std::u16string_view(u"PSPSFH"), second));
        break;
    case Kind::Edit:
        Key(Any(std::array{Qt::Key_A, Qt::Key_C, Qt::Key_V, Qt::Key_X}, second),
            Qt::ControlModifier);
        break;
    case Kind::EnterName:
        if (TurnToInputPage())
            EnterName(second % 3, third % 40 == 0 ? LongName(fourth) : Any(Names(), third),
                      fourth % 4 == 0);
        break;
    case Kind::PickDate:
        if (TurnToInputPage())
            PickDate(second % 3, third);
        break;
    case Kind::Compose:
        Compose(Any(Names(), second));
        break;
    case Kind::CopyInOther: {
        auto *content = new QMimeData;
        const QString text = second % 5 == 0 ? QString() : Any(Names(), third);
        if (text.isEmpty())
            content->setImageData(QImage(2, 2, QImage::Format_RGB32));
        else
            content->setText(text);
        QApplication::clipboard()->setMimeData(content);
        model_.clipboard = text;
        break;
    }
    case Kind::Font:
    case Kind::Theme:
        SetTheme(second);
        break;
    case Kind::OtherWindow:
        ReleaseMouse();
        if (QApplication::activeWindow() == &other_) {
            Activate();
        } else {
            other_.activateWindow();
            QApplication::processEvents();
        }
        break;
    case Kind::Clock:
        MoveClock(second, third);
        break;
    case Kind::Close:
        if (second % 4 == 0) {
            Note({.what = What::Closed});
            form_.close();
        }
        break;
    case Kind::Wait:
        QTest::qWait(1);
        break;
    case Kind::ProceedAgain:
        now_ += model_.doubleClick;
        if (!TurnToInputPage())
            break;
        now_ += model_.doubleClick;
        ClickControl(form_.Picture1->picProceed);
        break;
    }
}

void Session::MoveMouse(QPoint point) {
    mouse_ = point;
    QWindow *window = form_.windowHandle();
    qt_handleMouseEvent(window, point, window->mapToGlobal(point), held_, Qt::NoButton,
                        QEvent::MouseMove, {}, static_cast<int>(++now_));
}

void Session::PressMouse(Qt::MouseButton button) {
    held_ = button;
    QWindow *window = form_.windowHandle();
    qt_handleMouseEvent(window, mouse_, window->mapToGlobal(mouse_), held_, button,
                        QEvent::MouseButtonPress, {}, static_cast<int>(++now_));
}

void Session::ReleaseMouse() {
    if (held_ == Qt::NoButton)
        return;
    const Qt::MouseButton button = std::exchange(held_, Qt::NoButton);
    QWindow *window = form_.windowHandle();
    qt_handleMouseEvent(window, mouse_, window->mapToGlobal(mouse_), held_, button,
                        QEvent::MouseButtonRelease, {}, static_cast<int>(++now_));
}

void Session::Click(QPoint point, Qt::MouseButton button) {
    ReleaseMouse();
    MoveMouse(point);
    PressMouse(button);
    ReleaseMouse();
}

void Session::ClickControl(QWidget *control) {
    ReleaseMouse();
    MoveMouse(MiddleOf(control));
    pressed_.clear();
    PressMouse(Qt::LeftButton);
    if (!pressed_.contains(control))
        Complain(u"a press in the middle of %1 did not reach it"_s.arg(control->objectName()));
    ReleaseMouse();
}

void Session::ClickNode(QTreeWidgetItem *node) {
    ReleaseMouse();
    if (node->parent() != nullptr && !node->parent()->isExpanded())
        node = node->parent();
    form_.TV->scrollToItem(node);
    const QRect place = form_.TV->visualItemRect(node) & form_.TV->viewport()->rect();
    MoveMouse(PlaceOf(form_.TV->viewport(), place.center()));
    pressed_.clear();
    PressMouse(Qt::LeftButton);
    if (!pressed_.contains(form_.TV->viewport()))
        Complain(u"a press on a node did not reach the tree"_s);
    ReleaseMouse();
}

void Session::Wheel(int delta) {
    if (const QWidget *under = form_.childAt(mouse_)) {
        if (const auto which = DateIndex(under)) {
            int &row = model_.dates[*which];
            row = std::clamp(row + (delta > 0 ? -1 : 1), 0, dates_[*which]->count() - 1);
        }
    }
    QWindow *window = form_.windowHandle();
    QWheelEvent wheel(mouse_, window->mapToGlobal(mouse_), {}, {0, delta}, held_, {},
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(window, &wheel);
}

void Session::Key(int key, Qt::KeyboardModifiers modifiers, const QString &text, bool repeated) {
    if (!form_.isVisible()) // closed by the key before
        return;
    if (key == Qt::Key_Backtab)
        modifiers |= Qt::ShiftModifier;
    QWidget *focus = form_.focusWidget() != nullptr ? form_.focusWidget() : &form_;
    QString written = text;
    if (written.isEmpty() && key == Qt::Key_Space)
        written = u" "_s;
    if (written.isEmpty() && IsEnter(key))
        written = u"\r"_s;
    if (written.isEmpty() &&
        (key == Qt::Key_Plus || key == Qt::Key_Minus || key == Qt::Key_Asterisk))
        written = QString(QChar(static_cast<char16_t>(key)));
    Note({.what = What::KeyDown, .here = true});
    if (qt_sendShortcutOverrideEvent(focus, 0, key, modifiers, written, repeated))
        return; // it was a shortcut
    NoteKey(key, modifiers, written, repeated);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        if (form_.focusWidget() != nullptr)
            focus = form_.focusWidget();
        QKeyEvent event(type, key, modifiers, written, repeated);
        QApplication::sendEvent(focus, &event);
        if (type == QEvent::KeyPress)
            ClosePopups();
    }
}

void Session::Letter(char16_t letter) {
    Note({.what = What::KeyDown, .here = true});
    if (letter == u'P')
        Note({.what = What::AltP});
    else if (letter == u'S')
        Note({.what = What::AltS});
    QWidget *focus = form_.focusWidget() != nullptr ? form_.focusWidget() : &form_;
    if (!qt_sendShortcutOverrideEvent(focus, 0, letter, Qt::AltModifier)) {
        QKeyEvent press(QEvent::KeyPress, letter, Qt::AltModifier);
        QApplication::sendEvent(focus, &press);
    }
    // A command button that is reached by its letter goes down first and clicks a moment later.
    const auto isDown = [this] {
        return form_.cmdNext->isDown() || form_.cmdPrint->isDown() || form_.cmdSave->isDown();
    };
    while (isDown())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void Session::Type(const QString &text) {
    for (const QChar &character : text) {
        if (character.isSurrogate()) { // both at once, as a keyboard does
            if (character.isHighSurrogate())
                Key(0, {}, text.mid(text.indexOf(character), 2));
            continue;
        }
        Key(character.toUpper().unicode(), {}, QString(character));
        // A blank may have pressed a button. What is typed after its dialog goes elsewhere.
        if (!dialogs_.empty())
            Conclude();
    }
}

void Session::Compose(const QString &text) {
    const auto which = NameIndex(form_.focusWidget());
    if (!which)
        return;
    QInputMethodEvent composing(text.left(2), {});
    QApplication::sendEvent(names_[*which], &composing);
    // What was marked goes with the first composed character.
    const QString before = names_[*which]->text();
    const auto caret = names_[*which]->cursorPosition();
    QInputMethodEvent commit;
    commit.setCommitString(text);
    QApplication::sendEvent(names_[*which], &commit);
    QString typed;
    for (const QChar &character : text)
        typed += AsTyped(QString(character));
    model_.names[*which] = before.left(caret) + typed + before.mid(caret);
}

void Session::EnterName(std::size_t which, const QString &name, bool paste) {
    ClickControl(names_[which]);
    Key(Qt::Key_A, Qt::ControlModifier);
    if (name.isEmpty()) {
        Key(Qt::Key_Delete);
    } else if (paste || name.size() > 50) {
        QApplication::clipboard()->setText(name);
        model_.clipboard = name;
        Key(Qt::Key_V, Qt::ControlModifier);
    } else {
        Type(name);
    }
    // The toolkit keeps every edit of a line for undo, as long as the line lives. In a window that
    // is never closed they are dropped, so that what still grows there is the program's.
    if (endless_)
        names_[which]->setText(names_[which]->text());
}

void Session::PickDate(std::size_t which, quint32 random) {
    random_ = random;
    ClickControl(dates_[which]);
    ClosePopups();
}

bool Session::TurnToInputPage() {
    if (model_.page != Model::Page::Input) {
        ClickNode(form_.TV->topLevelItem(0));
        Conclude();
    }
    return complaints_.isEmpty();
}

void Session::SetTheme(quint32 random) {
    themeChanged_ = true;
    themeOfAnEarlierSession = true;
    if (random % 2 == 0) {
        QFont font = QApplication::font();
        font.setPixelSize(8 + static_cast<int>(random / 2 % 12));
        QApplication::setFont(font);
    } else {
        const bool dark = random / 2 % 2 == 0;
        QPalette palette = QApplication::palette();
        palette.setColor(QPalette::Window, dark ? QColor(30, 30, 30) : QColor(240, 240, 240));
        palette.setColor(QPalette::WindowText, dark ? Qt::white : Qt::black);
        palette.setColor(QPalette::Text, dark ? Qt::white : Qt::black);
        palette.setColor(QPalette::Base, dark ? Qt::black : Qt::white);
        QApplication::setPalette(palette);
    }
    QEvent changed(QEvent::ThemeChange);
    QApplication::sendEvent(form_.windowHandle(), &changed);
}

void Session::MoveClock(quint32 random, quint32 by) {
    using namespace std::chrono;
    const auto before = modReadings::Clock::Date();
    if (random % 3 == 0)
        clock_.Set(sys_days(year(1990) / 1 / 1) + days(by % 25'000));
    else
        clock_.Advance(static_cast<int>(by % 800) - 400);
    if (Model::NameWithoutAnEnd(model_.profile, modReadings::Clock::Year()))
        clock_.Set(before);
}

// --- What follows an event

void Session::Settle() {
    ClosePopups();
    QApplication::processEvents();
    if (!model_.closed && form_.isVisible() && QApplication::activeWindow() != &other_)
        Activate(); // this display leaves no window active when a dialog or a menu goes
}

void Session::Activate() {
    for (int tries = 0; QApplication::activeWindow() != &form_ && tries < 100; ++tries) {
        form_.activateWindow();
        QApplication::processEvents();
    }
}

void Session::ClosePopups() {
    for (int tries = 0; tries < 20; ++tries) {
        QWidget *popup = QApplication::activePopupWidget();
        if (popup == nullptr)
            break;
        if (auto *menu = qobject_cast<QMenu *>(popup)) {
            AnswerMenu(menu);
            continue;
        }
        // The list of a DateList.
        auto *view = popup->findChild<QAbstractItemView *>();
        const DateList *list = nullptr;
        for (DateList *candidate : dates_)
            if (candidate->view() == view)
                list = candidate;
        if (view == nullptr || list == nullptr) {
            Complain(u"what pops up here? "_s +
                     QLatin1StringView(popup->metaObject()->className()));
            popup->close();
            continue;
        }
        if (Random() % 4 == 0) {
            QTest::keyClick(view, Qt::Key_Escape);
        } else {
            const int row = static_cast<int>(Random() % static_cast<quint32>(list->count()));
            view->setCurrentIndex(view->model()->index(row, 0));
            QTest::keyClick(view, Qt::Key_Return);
            model_.dates[*DateIndex(list)] = row;
        }
    }
    if (form_.menuBar()->activeAction() != nullptr && QApplication::activePopupWidget() == nullptr)
        QTest::keyClick(form_.menuBar(), Qt::Key_Escape);
}

void Session::AnswerMenu(QWidget *widget) {
    auto *menu = qobject_cast<QMenu *>(widget);
    const bool isOfTheBar =
        !menu->objectName().isEmpty() && menu->objectName().startsWith(u"mnu"_s);
    const QList<QAction *> actions = menu->actions();
    QAction *action = Any(actions, Random());
    QString caption = action->text().remove(u'&');
    // An end of the program ends the session, so it is seldom chosen.
    if (!isOfTheBar || Random() % 3 == 0 ||
        (caption == u"Exit"_s && (endless_ || Random() % 8 != 0))) {
        QTest::keyClick(menu, Qt::Key_Escape);
        return;
    }
    menu->setActiveAction(action);
    QTest::keyClick(menu, Qt::Key_Return);
    Note({.what = What::MenuChosen, .text = caption});
}

void Session::Answer(QDialog &dialog) {
    if (qobject_cast<QFileDialog *>(&dialog) != nullptr) {
        AnswerSaveDialog(dialog);
        return;
    }
    auto *box = qobject_cast<QMessageBox *>(&dialog);
    if (box == nullptr) {
        Complain(u"what dialog is this? "_s + dialog.windowTitle());
        dialog.reject();
        return;
    }
    const QString look =
        QLatin1StringView(QMetaEnum::fromType<QMessageBox::Icon>().valueToKey(box->icon())) +
        u": "_s + box->text();
    if (box->windowTitle() != u"Orravane"_s)
        Complain(u"the dialog has the title "_s + box->windowTitle());
    QAbstractButton *yes = box->button(QMessageBox::Yes);
    const bool mayEnd = !look.contains(u"Exit"_s) || (!endless_ && Random() % 12 == 0);
    QString answer;
    if (yes == nullptr) {
        answer = u"Ok"_s;
        if (Random() % 2 == 0)
            QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
        else
            QTest::keyClick(box, Random() % 2 == 0 ? Qt::Key_Escape : Qt::Key_Return);
    } else if (mayEnd && Random() % 2 == 0) {
        answer = u"Yes"_s;
        QTest::mouseClick(yes, Qt::LeftButton);
    } else {
        answer = u"No"_s;
        if (Random() % 2 == 0)
            QTest::mouseClick(box->button(QMessageBox::No), Qt::LeftButton);
        else
            QTest::keyClick(box, Qt::Key_Escape);
    }
    dialogs_.push_back({look, answer});
}

void Session::AnswerSaveDialog(QDialog &dialog) {
    const auto press = [&](QDialogButtonBox::StandardButton button) {
        QTest::mouseClick(dialog.findChild<QDialogButtonBox *>()->button(button), Qt::LeftButton);
    };
    auto *name = dialog.findChild<QLineEdit *>(u"fileNameEdit"_s);
    if (!name->text().isEmpty())
        Complain(u"the save dialog opens with the name "_s + name->text());
    QString path;
    switch (Random() % 5) {
    case 0:
        break;
    case 1:
        path = TemporaryHome::PathOf(u"no such folder/report.rtf"_s);
        break;
    case 2: // is there already; one of its own, as a double click asks twice
        path = TemporaryHome::PathOf(u"earlier %1.rtf"_s.arg(++savings_));
        if (QFile file(path); file.open(QIODevice::WriteOnly))
            file.write("earlier");
        break;
    default:
        path = TemporaryHome::PathOf(u"report %1"_s.arg(++savings_));
        break;
    }
    dialogs_.push_back({u"Save"_s, path});
    if (path.isEmpty()) {
        if (Random() % 2 == 0)
            QTest::keyClick(&dialog, Qt::Key_Escape);
        else
            press(QDialogButtonBox::Cancel);
        return;
    }
    if (path.contains(u"report "_s))
        dialogs_.back().answer += u".txt"_s;
    const QPointer<QDialog> alive(&dialog);
    const QByteArray before = ContentOf(path);
    name->setText(path);
    press(QDialogButtonBox::Save);
    if (alive && dialog.isVisible()) {
        press(QDialogButtonBox::Cancel);
        if (path.contains(u"earlier"_s) && ContentOf(path) != before)
            Complain(u"a file was replaced without a Yes"_s);
    }
}

void Session::KeepEssenceFinite() {
    if (model_.names[0].isEmpty() || model_.names[2].isEmpty())
        return;
    while (const auto which =
               Model::NameWithoutAnEnd(model_.PersonInTheBoxes(), modReadings::Clock::Year())) {
        const auto index = static_cast<std::size_t>(*which);
        const int lastYear = dates_[2]->count() - 1;
        if (model_.names[index].trimmed().isEmpty() && model_.dates[2] != lastYear) {
            // A name of blanks is good for somebody who is not yet born.
            model_.dates[2] = lastYear;
            dates_[2]->setCurrentIndex(lastYear);
            continue;
        }
        model_.names[index] += u'E';
        names_[index]->setText(model_.names[index]);
    }
}

// --- What is noted

bool Session::eventFilter(QObject *watched, QEvent *event) {
    switch (event->type()) {
    case QEvent::Show:
        if (markingReport_ && (qobject_cast<QDialog *>(watched) != nullptr ||
                               qobject_cast<QMenu *>(watched) != nullptr)) {
            // It gets the release, and with that marking is over.
            if (ClipboardIsEmpty())
                Note({.what = What::PaneMouse});
            markingReport_ = false;
        }
        if (auto *dialog = qobject_cast<QDialog *>(watched); dialog != nullptr && dialog->isModal())
            // The dialog's own event loop runs this as soon as it waits for the user.
            QTimer::singleShot(0, dialog, [this, dialog] { Answer(*dialog); });
        if (auto *menu = qobject_cast<QMenu *>(watched);
            menu != nullptr && !menu->objectName().startsWith(u"mnu"_s))
            // The one of a scroll bar waits for its end, too.
            QTimer::singleShot(0, menu, [menu] {
                if (menu->isVisible())
                    QTest::keyClick(menu, Qt::Key_Escape);
            });
        break;
    case QEvent::ShortcutOverride:
        Note({.what = What::KeyDown});
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        NoteMouse(watched, event);
        break;
    case QEvent::Leave:
        if (const int button = ButtonIndex(watched);
            button >= 0 && QWidget::mouseGrabber() != watched)
            Note({.what = What::ButtonLeft, .control = button});
        break;
    case QEvent::WindowDeactivate:
        if (const int button = ButtonIndex(watched); button >= 0)
            Note({.what = What::ButtonBehind, .control = button});
        break;
    default:
        break;
    }
    return false;
}

bool Session::IsHere(const QObject *object) const {
    const auto *control = qobject_cast<const QWidget *>(object);
    return control != nullptr ? control->window() == &form_ : object == form_.windowHandle();
}

void Session::NoteMouse(QObject *watched, QEvent *event) {
    const auto *mouse = static_cast<QMouseEvent *>(event);
    const bool press =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    const bool release = event->type() == QEvent::MouseButtonRelease;
    const QPointF point = mouse->position();
    if (press)
        Note({.what = What::Press, .time = mouse->timestamp(), .here = IsHere(watched)});
    auto *control = qobject_cast<QWidget *>(watched);
    if (control == nullptr)
        return;
    if (press)
        pressed_.append(control);

    if (const int index = ButtonIndex(control); index >= 0) {
        const auto *button = buttons_[static_cast<std::size_t>(index)];
        const bool edgeIsInside = point.x() >= 0 && point.x() <= button->width() &&
                                  point.y() >= 0 && point.y() <= button->height();
        const bool hit = button->rect().contains(point.toPoint());
        Note({.what = press     ? What::ButtonPress
                      : release ? What::ButtonRelease
                                : What::ButtonMove,
              .time = mouse->timestamp(),
              .control = index,
              .inside = release ? hit : edgeIsInside,
              .left = mouse->button() == Qt::LeftButton,
              .down = button->isDown()});
    } else if (const int link = LinkIndex(control); link >= 0) {
        if (release && mouse->button() == Qt::LeftButton &&
            control->rect().contains(point.toPoint()))
            Note({.what = What::LinkClicked, .control = link});
    } else if (control == form_.Picture2->RTB->viewport()) {
        Note({.what = What::PaneMouse});
        if (mouse->button() == Qt::LeftButton)
            markingReport_ = !release;
    } else if (control == form_.TV->viewport()) {
        NoteTreeMouse(event);
    }
}

void Session::NoteTreeMouse(QEvent *event) {
    const auto *mouse = static_cast<QMouseEvent *>(event);
    if (event->type() == QEvent::MouseMove) {
        treeIsTheToolkits_ |= mouse->buttons() != Qt::NoButton; // marks what it is drawn over
        return;
    }
    QTreeWidgetItem *node = form_.TV->itemAt(mouse->position().toPoint());
    if (node == nullptr) {
        pressedNode_ = event->type() == QEvent::MouseButtonRelease ? pressedNode_ : nullptr;
        return;
    }
    const bool onTriangle =
        node->childCount() > 0 && mouse->position().x() < form_.TV->visualItemRect(node).left();
    if (onTriangle) {
        branchIsTheToolkits_ = true;
        if (event->type() != QEvent::MouseButtonRelease)
            pressedNode_ = nullptr;
    } else if (event->type() == QEvent::MouseButtonPress) {
        model_.selected = node->text(0);
        pressedNode_ = node;
    } else if (event->type() == QEvent::MouseButtonDblClick) {
        if (node == pressedNode_)
            branchIsTheToolkits_ = true;
        else
            model_.selected = node->text(0);
        pressedNode_ = node;
    }
}

void Session::NoteKey(int key, Qt::KeyboardModifiers modifiers, const QString &text,
                      bool repeated) {
    const QWidget *focus = form_.focusWidget();
    const bool plain = (modifiers & ~Qt::KeypadModifier) == 0;
    const bool copies = modifiers == Qt::ControlModifier && key == Qt::Key_C;
    if (const int button = ButtonIndex(focus); button >= 0) {
        if ((IsEnter(key) || key == Qt::Key_Space) && !repeated)
            Note({.what = What::ButtonKey, .control = button});
    } else if (const int link = LinkIndex(focus); link >= 0) {
        if ((IsEnter(key) || key == Qt::Key_Space) && !repeated)
            Note({.what = What::LinkClicked, .control = link});
    } else if (focus == form_.TV) {
        if (IsEnter(key)) {
            if (!repeated)
                Note({.what = What::NodeClicked, .text = form_.TV->currentItem()->text(0)});
        } else if (copies)
            model_.clipboard = form_.TV->currentItem()->text(0);
        else if (modifiers != Qt::ControlModifier)
            treeIsTheToolkits_ = true;
    } else if (focus == form_.Picture2->RTB) {
        const QTextCursor caret = form_.Picture2->RTB->textCursor();
        if (copies && caret.hasSelection())
            model_.clipboard = caret.selection().toPlainText();
    } else if (const auto name = NameIndex(focus)) {
        if (IsEnter(key) && plain && !repeated)
            Note({.what = What::EnterOnInputPage});
        NoteKeyOnName(*name, key, modifiers, text);
    } else if (const auto date = DateIndex(focus)) {
        if (IsEnter(key) && plain && !repeated)
            Note({.what = What::EnterOnInputPage});
        else
            listIsTheToolkits_ = date;
    }
}

void Session::NoteKeyOnName(std::size_t which, int key, Qt::KeyboardModifiers modifiers,
                            const QString &text) {
    const NameBox *box = names_[which];
    if (modifiers == Qt::ControlModifier) {
        if ((key == Qt::Key_C || key == Qt::Key_X) && box->hasSelectedText())
            model_.clipboard = box->selectedText();
        if (key == Qt::Key_X && box->hasSelectedText())
            PutIntoName(which, {});
        if (key == Qt::Key_V)
            PutIntoName(which, model_.clipboard.value_or(QString()));
    } else if (key == Qt::Key_Backspace || key == Qt::Key_Delete) {
        const bool back = key == Qt::Key_Backspace;
        QString &name = model_.names[which];
        const auto caret = box->cursorPosition();
        const auto victim = back ? caret - 1 : caret;
        // Shift and Delete cut.
        if (!back && modifiers == Qt::ShiftModifier) {
            if (box->hasSelectedText())
                model_.clipboard = box->selectedText();
            PutIntoName(which, {});
        } else if (box->hasSelectedText()) {
            PutIntoName(which, {});
        } else if (victim >= 0 && victim < name.size()) {
            const bool pair = name[victim].isSurrogate();
            name.remove(back && pair ? victim - 1 : victim, pair ? 2 : 1);
        }
    } else if (key == Qt::Key_Insert) {
        if (modifiers == Qt::ShiftModifier)
            PutIntoName(which, model_.clipboard.value_or(QString()));
    } else if (!text.isEmpty() && (text[0].isPrint() || text[0].isSurrogate())) {
        PutIntoName(which, AsTyped(text));
    }
}

void Session::PutIntoName(std::size_t which, const QString &text) {
    const NameBox *box = names_[which];
    QString &name = model_.names[which];
    if (box->hasSelectedText())
        name.replace(box->selectionStart(), box->selectionLength(), text);
    else
        name.insert(box->cursorPosition(), text);
}

// --- The comparison

template <typename Value>
void Session::Check(const char *what, const Value &seen, const Value &expected) {
    if (seen != expected)
        Complain(u"%1: %2, and should be %3"_s.arg(QLatin1StringView(what), Shown(seen),
                                                   Shown(expected)));
}

void Session::Compare() {
    Check("pages of the site that were opened", browser_.Taken(), std::exchange(model_.opened, {}));
    Check("closed", !form_.isVisible(), model_.closed);
    if (model_.closed)
        return;
    Check("something is open before the window",
          QApplication::activeModalWidget() != nullptr ||
              QApplication::activePopupWidget() != nullptr,
          false);

    // The last one of the pages is on top of the others.
    QString top;
    for (const QObject *child : form_.picMain->children())
        if (child == form_.Picture1 || child == form_.Picture2 || child == form_.Picture3)
            top = child->objectName();
    Check("page in front", top, PageOf(model_.page)->objectName());
    Check("page that the window takes for the one in front", form_.FrontPage()->objectName(),
          PageOf(model_.page)->objectName());

    for (std::size_t which = 0; which < 3; ++which) {
        Check("name", names_[which]->text(), model_.names[which]);
        const int row = dates_[which]->currentIndex();
        if (listIsTheToolkits_ == which && row >= 0)
            model_.dates[which] = row;
        Check("row of a list", row, model_.dates[which]);
    }
    for (std::size_t which = 0; which < buttons_.size(); ++which) {
        const ImageButton *button = buttons_[which];
        Check(button->objectName().toLatin1() + " lit",
              button->Picture() == static_cast<int>(2 * which + 2), model_.buttons[which].lit);
        Check("mouse captured", button->HasCapture(), model_.buttons[which].captured);
    }
    CompareTree();
    CompareReport();
    CompareFocus();
    CompareClipboard();
    if (themeChanged_ || ++compared_ % 256 == 0)
        ComparePlaces();
}

void Session::CompareTree() {
    const TopicTreeView &tree = *form_.TV;
    QStringList selected;
    for (const QTreeWidgetItem *node : tree.selectedItems())
        selected << node->text(0);
    const QString current = tree.currentItem() != nullptr ? tree.currentItem()->text(0) : QString();
    if (treeIsTheToolkits_ && selected.size() == 1)
        model_.selected = selected[0];
    Check("selected", selected, QStringList{model_.selected});
    Check("current node", current, model_.selected);
    for (int root = 0; root < 2; ++root) {
        const QTreeWidgetItem *branch = tree.topLevelItem(root);
        const QString caption = branch->text(0);
        if (treeIsTheToolkits_ || branchIsTheToolkits_) {
            model_.open.remove(caption);
            if (branch->isExpanded())
                model_.open.insert(caption);
        }
        Check("open branch", branch->isExpanded(), model_.open.contains(caption));
    }
}

void Session::CompareReport() {
    const RichTextBox &pane = *form_.Picture2->RTB;
    const int revision = pane.document()->revision();
    const bool all = compared_ % 256 == 255;
    if (revision == revision_ && !model_.wroteReport && model_.savedAs.isEmpty() && !all)
        return;
    revision_ = revision;
    QString expected = QString::fromStdU16String(modReadings::TextOf(model_.report));
    expected.remove(u'\r');
    Check("report", pane.toPlainText(), expected);
    if (pane.ShownReport() != model_.report)
        Complain(u"the runs of the report differ"_s);
    for (QTextBlock block = pane.document()->begin(); all && block.isValid(); block = block.next())
        for (auto part = block.begin(); !part.atEnd(); ++part)
            if (part.fragment().charFormat().foreground().color() != QColor(128, 0, 128))
                Complain(u"the report has another colour"_s);

    const auto &profile = modReadings::profile;
    for (const auto member :
         {&modReadings::UserProfile::FirstName, &modReadings::UserProfile::MiddleName,
          &modReadings::UserProfile::LastName, &modReadings::UserProfile::BirthMonth,
          &modReadings::UserProfile::BirthDay, &modReadings::UserProfile::BirthYear})
        Check("profile", QString::fromStdU16String(profile.*member),
              QString::fromStdU16String(model_.profile.*member));
    for (const QString &slot : model_.SlotsThatDiffer())
        Complain(u"the slot %1 differs"_s.arg(slot));

    if (!model_.savedAs.isEmpty()) {
        const std::string file = modReadings::ToRtf(model_.report, {"Verdana", 18});
        if (ContentOf(model_.savedAs).toStdString() != file)
            Complain(u"%1 does not hold the report"_s.arg(model_.savedAs));
        QFile::remove(model_.savedAs);
    }
}

void Session::CompareFocus() {
    const QWidget *focus = form_.focusWidget();
    const QString name = focus != nullptr ? focus->objectName() : QString();
    if (model_.focus) {
        Check("focus", name, *model_.focus);
        allowedFocus_ = name; // wherever that box is
    }
    if (name != allowedFocus_)
        allowedFocus_.clear();
    if (!allowedFocus_.isEmpty() || focus == nullptr)
        return;
    for (const auto page : {Model::Page::Input, Model::Page::Report, Model::Page::Help})
        if (page != model_.page && PageOf(page)->isAncestorOf(focus))
            Complain(u"the focus is on a covered page: "_s + name);
}

void Session::CompareClipboard() {
    const QMimeData *content = QApplication::clipboard()->mimeData();
    const bool empty = ClipboardIsEmpty();
    // While text is marked with the mouse beside the pane, the toolkit scrolls the pane by a timer,
    // and takes each time for a move of the mouse.
    if (markingReport_ && empty)
        model_.clipboard.reset();
    Check("the clipboard is empty", empty, !model_.clipboard);
    if (!empty && model_.clipboard)
        Check("clipboard", content->text(), *model_.clipboard);
    // Who still holds the button marks anew at once.
    if (model_.printed && !markingReport_ && form_.Picture2->RTB->textCursor().hasSelection())
        Complain(u"a print leaves the marks"_s);
}

void Session::ComparePlaces() {
    for (const auto &[control, place] : places_)
        if (!control || control->geometry() != place || !control->isVisible())
            Complain(
                u"%1 has moved or gone"_s.arg(control ? control->objectName() : u"a control"_s));
    Check("title", form_.windowTitle(), u"Orravane v1.0"_s);
}

// --- Looking things up

QPoint Session::PlaceOf(const QWidget *control, QPoint point) const {
    return control->mapTo(&form_, point);
}

QPoint Session::MiddleOf(const QWidget *control) const {
    return PlaceOf(control, control->rect().center());
}

QList<QWidget *> Session::ControlsInSight() const {
    QList<QWidget *> controls{form_.picExit, form_.picHelp, form_.lblHyperlink};
    switch (model_.page) {
    case Model::Page::Input:
        for (NameBox *box : names_)
            controls << box;
        for (DateList *list : dates_)
            controls << list;
        controls << form_.Picture1->picProceed << form_.Picture1->picProceed;
        break;
    case Model::Page::Report:
        for (int times = 0; times < 3; ++times)
            controls << form_.Picture2->RTB->viewport() << form_.Picture2->picPrint;
        controls << form_.Picture2->picSave;
        break;
    case Model::Page::Help:
        controls << form_.Picture3->lblHelp[0] << form_.Picture3->lblHelp[1]
                 << form_.Picture3->lblAbout;
        break;
    }
    return controls;
}

QWidget *Session::PageOf(Model::Page page) const {
    switch (page) {
    case Model::Page::Input:
        return form_.Picture1;
    case Model::Page::Report:
        return form_.Picture2;
    case Model::Page::Help:
        break;
    }
    return form_.Picture3;
}

int Session::ButtonIndex(const QObject *object) const {
    for (std::size_t index = 0; index < buttons_.size(); ++index)
        if (buttons_[index] == object)
            return static_cast<int>(index);
    return -1;
}

int Session::LinkIndex(const QObject *object) const {
    for (std::size_t index = 0; index < links_.size(); ++index)
        if (links_[index] == object)
            return static_cast<int>(index);
    return -1;
}

std::optional<std::size_t> Session::NameIndex(const QObject *object) const {
    for (std::size_t index = 0; index < names_.size(); ++index)
        if (names_[index] == object)
            return index;
    return std::nullopt;
}

std::optional<std::size_t> Session::DateIndex(const QObject *object) const {
    for (std::size_t index = 0; index < dates_.size(); ++index)
        if (dates_[index] == object)
            return index;
    return std::nullopt;
}

QTreeWidgetItem *Session::RandomNode(quint32 random) const {
    // The Comprehensive Reading takes as long as all other nodes together.
    const quint32 count = modReadings::treeNodeCount;
    quint32 position = random % count;
    if (position == count - 2 && random / count % 4 != 0)
        position = random / count % count;
    QTreeWidgetItemIterator node(form_.TV);
    return *(node += static_cast<int>(position));
}
