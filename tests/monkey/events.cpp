#include "tests/monkey/events.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

using Kind = Event::Kind;

struct Row {
    Kind kind;
    const char *name;
    quint32 weight;       ///< how often it comes, among all
    quint32 clicksWeight; ///< the same where only clicks are wanted
};

constexpr Row rows[] = {
    {Kind::Move, "Move", 150, 0},
    {Kind::MoveOnto, "MoveOnto", 180, 0},
    {Kind::Press, "Press", 60, 0},
    {Kind::Release, "Release", 60, 0},
    {Kind::ClickAnywhere, "ClickAnywhere", 25, 10},
    {Kind::ClickOn, "ClickOn", 80, 30},
    {Kind::DoubleClick, "DoubleClick", 20, 5},
    {Kind::ClickNode, "ClickNode", 70, 100},
    {Kind::ClickBranch, "ClickBranch", 8, 2},
    {Kind::Wheel, "Wheel", 40, 0},
    {Kind::Type, "Type", 60, 0},
    {Kind::Key, "Key", 100, 0},
    {Kind::Letter, "Letter", 4, 0},
    {Kind::Edit, "Edit", 40, 0},
    {Kind::EnterName, "EnterName", 25, 10},
    {Kind::PickDate, "PickDate", 8, 3},
    {Kind::Compose, "Compose", 8, 0},
    {Kind::CopyInOther, "CopyInOther", 50, 3},
    {Kind::Font, "Font", 1, 0},
    {Kind::Theme, "Theme", 1, 0},
    {Kind::OtherWindow, "OtherWindow", 8, 0},
    {Kind::Clock, "Clock", 10, 1},
    {Kind::Close, "Close", 1, 0},
    {Kind::Wait, "Wait", 10, 0},
    {Kind::ProceedAgain, "ProceedAgain", 12, 20},
};

/// A good mixture of the bits of `state`, which moves on (splitmix64).
quint64 Next(quint64 &state) {
    state += 0x9E3779B97F4A7C15;
    quint64 bits = state;
    bits = (bits ^ (bits >> 30)) * 0xBF58476D1CE4E5B9;
    bits = (bits ^ (bits >> 27)) * 0x94D049BB133111EB;
    return bits ^ (bits >> 31);
}

} // namespace

QString Event::Describe() const {
    for (const Row &row : rows)
        if (row.kind == kind)
            return u"%1 %2 (%3 %4 %5 %6)"_s.arg(index)
                .arg(QLatin1StringView(row.name))
                .arg(random[0])
                .arg(random[1])
                .arg(random[2])
                .arg(random[3]);
    return {};
}

Event EventAt(quint32 seed, int index, bool clicksOnly) {
    quint64 state = (quint64{seed} << 32) + static_cast<quint32>(index);
    Event event{index, Kind::Wait, {}};
    for (std::size_t part = 0; part < event.random.size(); part += 2) {
        const quint64 bits = Next(state);
        event.random[part] = static_cast<quint32>(bits);
        event.random[part + 1] = static_cast<quint32>(bits >> 32);
    }
    const auto weightOf = [clicksOnly](const Row &row) {
        return clicksOnly ? row.clicksWeight : row.weight;
    };
    quint64 all = 0;
    for (const Row &row : rows)
        all += weightOf(row);
    quint64 point = Next(state) % all;
    for (const Row &row : rows) {
        if (point < weightOf(row)) {
            event.kind = row.kind;
            break;
        }
        point -= weightOf(row);
    }
    return event;
}
