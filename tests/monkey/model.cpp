#include "tests/monkey/model.h"

#include "core/proceed_pass.h"
#include "numbers/essence.h"
#include "report/rendering.h"
#include "tests/support/store_slots.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

std::u16string Capture(QString text, bool upper) {
    while (text.startsWith(u' '))
        text.remove(0, 1);
    while (text.endsWith(u' '))
        text.chop(1);
    return (upper ? text.toUpper() : text).toStdU16String();
}

} // namespace

QStringList Model::Apply(const QList<Fact> &facts, std::deque<SeenDialog> dialogs) {
    focus.reset();
    printed = false;
    savedAs.clear();
    wroteReport = false;
    dialogs_ = std::move(dialogs);
    complaints_.clear();
    for (const Fact &fact : facts)
        Apply(fact);
    for (const SeenDialog &dialog : dialogs_)
        complaints_ << u"a dialog that should not have come: "_s + dialog.look;
    return complaints_;
}

void Model::Apply(const Fact &fact) {
    switch (fact.what) {
    case Fact::What::Press:
        if (fact.here)
            focus.reset(); // the control that is pressed may take it
        lastPress_ = fact.time;
        swallowed_ = false;
        break;
    case Fact::What::KeyDown:
        if (fact.here)
            focus.reset();
        lastPress_.reset();
        break;
    case Fact::What::ButtonPress:
        // Behind a press that has turned the page it is the second half of a double click.
        swallowed_ = turningPress_ && fact.time - *turningPress_ < doubleClick;
        break;
    case Fact::What::ButtonMove: {
        Look &look = buttons.at(static_cast<std::size_t>(fact.control));
        if (!fact.inside)
            look = {};
        else if (!look.captured)
            look = {true, true};
        break;
    }
    case Fact::What::ButtonRelease:
        if (std::exchange(swallowed_, false))
            break;
        buttons.at(static_cast<std::size_t>(fact.control)).captured = false;
        if (fact.left && fact.down && fact.inside)
            ClickButton(fact.control);
        break;
    case Fact::What::ButtonLeft:
    case Fact::What::ButtonBehind:
        buttons.at(static_cast<std::size_t>(fact.control)) = {};
        break;
    case Fact::What::ButtonKey:
        ClickButton(fact.control);
        break;
    case Fact::What::PaneMouse:
        clipboard.reset();
        break;
    case Fact::What::NodeClicked:
        ClickNode(fact.text);
        break;
    case Fact::What::EnterOnInputPage:
        DoProceed();
        break;
    case Fact::What::AltP:
        if (page == Page::Input)
            DoProceed();
        else if (page == Page::Report)
            printed = true;
        break;
    case Fact::What::AltS:
        if (page == Page::Report)
            DoSave();
        break;
    case Fact::What::LinkClicked:
        opened << (fact.control == OnlineHelp ? u"/orravane-help/"_s : u"/"_s);
        break;
    case Fact::What::MenuChosen:
        if (fact.text == u"Online Help"_s)
            opened << u"/orravane-help/"_s;
        else if (fact.text == u"Visit Us Online"_s)
            opened << u"/"_s;
        else if (fact.text == u"About Software"_s)
            TurnTo(Page::Help);
        else if (fact.text == u"Exit"_s)
            Apply({Fact::What::Closed});
        else
            complaints_ << u"no such entry of a menu: "_s + fact.text;
        break;
    case Fact::What::Closed:
        if (!closed) // the second half of a double click may ask and be answered once more
            opened << u"/thankyou-for-using-orravane.php"_s;
        closed = true;
        break;
    }
}

void Model::ClickButton(int button) {
    switch (button) {
    case Exit:
        if (AnswerTo(u"Warning: Are You Sure You Want to Exit Orravane?"_s) == u"Yes"_s)
            Apply({Fact::What::Closed});
        break;
    case Help:
        opened << u"/orravane-help/"_s;
        break;
    case Print:
        printed = true;
        break;
    case Proceed:
        DoProceed();
        break;
    case Save:
        DoSave();
        break;
    default:
        break;
    }
}

bool Model::AllNamesAreThere() {
    const auto missing = [this](const QString &what, const QString &box) {
        AnswerTo(u"Critical: Please Enter Your "_s + what);
        focus = box;
        return false;
    };
    if (names[0].isEmpty())
        return missing(u"First Name"_s, u"txtFirstName"_s);
    if (names[2].isEmpty())
        return missing(u"Last Name"_s, u"txtLastName"_s);
    return true;
}

void Model::ClickNode(const QString &caption) {
    if (caption == u"User Information"_s || caption == u"Enter The Information"_s) {
        TurnTo(Page::Input);
    } else if (caption == u"Reset"_s) {
        TurnTo(Page::Input);
        names = {};
        dates = {};
        focus = u"txtFirstName"_s;
    } else if (caption == u"Help"_s) {
        TurnTo(Page::Help);
    } else if (AllNamesAreThere()) {
        if (caption == u"Comprehensive Reading"_s)
            Show([] { return modReadings::RenderComprehensiveReading(); });
        else if (caption != u"Numerology"_s)
            Show([&] {
                return modReadings::RunAndRenderTopic(
                    *modReadings::FindTopic(caption.toStdU16String()));
            });
    }
}

void Model::DoProceed() {
    if (!AllNamesAreThere())
        return;
    profile = PersonInTheBoxes();
    Show([] {
        modReadings::RunAllCalculators();
        return modReadings::RenderTopic(*modReadings::FindTopic(u"Personal Month"));
    });
    open.insert(u"Numerology"_s);
    open.remove(u"User Information"_s);
    selected = u"Personal Month"_s;
}

void Model::DoSave() {
    // One dialog; behind it a question or a message, after which it is cancelled or ends.
    const QString file = AnswerTo(u"Save"_s);
    if (file.isEmpty())
        return;
    const SeenDialog next = dialogs_.empty() ? SeenDialog() : dialogs_.front();
    if (next.look.contains(u"already exists"_s)) {
        if (AnswerTo(next.look) == u"Yes"_s)
            savedAs = file;
    } else if (next.look.contains(u"does not exist"_s)) {
        AnswerTo(next.look);
    } else {
        savedAs = file;
    }
}

QString Model::AnswerTo(const QString &look) {
    if (dialogs_.empty()) {
        complaints_ << u"a dialog that did not come: "_s + look;
        return {};
    }
    const SeenDialog dialog = dialogs_.front();
    dialogs_.pop_front();
    if (dialog.look != look)
        complaints_ << u"the dialog \"%1\" in place of \"%2\""_s.arg(dialog.look, look);
    return dialog.answer;
}

void Model::TurnTo(Page next) {
    if (page != next)
        turningPress_ = lastPress_;
    page = next;
    for (std::size_t button = 0; button < buttons.size(); ++button)
        if (buttonPages[button] && buttonPages[button] != page)
            buttons[button] = {};
}

void Model::Show(const std::function<modReadings::Report()> &make) {
    OnOwnStore([&] { report = make(); });
    wroteReport = true;
    clipboard.reset();
    TurnTo(Page::Report);
}

void Model::OnOwnStore(const std::function<void()> &act) {
    std::swap(store, modReadings::store);
    const modReadings::UserProfile theirs = std::exchange(modReadings::profile, profile);
    act();
    modReadings::profile = theirs;
    std::swap(store, modReadings::store);
}

QStringList Model::SlotsThatDiffer() const {
    QStringList differing;
    for (const std::string &slot : modReadings::Changed(modReadings::store, store))
        differing << QString::fromStdString(slot);
    return differing;
}

modReadings::UserProfile Model::PersonInTheBoxes() const {
    return {Capture(names[0], true),
            Capture(names[1], true),
            Capture(names[2], true),
            Capture(months.value(dates[0]), false),
            Capture(QString::number(1 + dates[1]), false),
            Capture(QString::number(1900 + dates[2]), false)};
}

std::optional<int> Model::NameWithoutAnEnd(const modReadings::UserProfile &person, int year) {
    if (person.BirthYear.empty())
        return std::nullopt; // the Essence gives up before it walks
    const int age = year - QString::fromStdU16String(person.BirthYear).toInt();
    const auto name = modReadings::EndlessName(person, static_cast<modReadings::int16>(age));
    return name ? std::optional(static_cast<int>(*name)) : std::nullopt;
}
