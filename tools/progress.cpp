#include "tools/progress.h"

#include "tools/system.h"

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

namespace {

/// 12345 as "12,345".
std::string Grouped(long long number) {
    static const QLocale english(QLocale::English, QLocale::UnitedStates);
    return english.toString(static_cast<qlonglong>(number)).toStdString();
}

std::string Counted(long long number, const char *one, const char *many) {
    return Grouped(number) + ' ' + (number == 1 ? one : many);
}

/// 75 as "1:15", 3675 as "1:01:15".
std::string Clock(double seconds) {
    const long long all = std::llround(std::min(seconds, 1e9));
    char text[40];
    if (all < 3600)
        std::snprintf(text, sizeof text, "%lld:%02lld", all / 60, all % 60);
    else
        std::snprintf(text, sizeof text, "%lld:%02lld:%02lld", all / 3600, all / 60 % 60, all % 60);
    return text;
}

std::string Rate(const BatchCount &count, double seconds) {
    const double rate = static_cast<double>(count.people + count.wrong) / seconds;
    const long long tenths = std::llround(rate * 10);
    if (tenths < 100 && tenths % 10 != 0) // such as PDFs, each of which takes its time
        return std::to_string(tenths / 10) + '.' + std::to_string(tenths % 10);
    return Grouped(std::llround(rate));
}

} // namespace

std::string ProgressLine(const BatchCount &count, long long total, double seconds, int columns) {
    // From the part that matters most to the one that matters least.
    std::vector<std::string> parts;
    const long long bytes = std::min(count.bytes, total);
    if (total > 0) {
        const std::string percent = std::to_string(bytes * 100 / total);
        parts.push_back(std::string(3 - percent.size(), ' ') + percent + " %");
    }
    parts.push_back(Counted(count.people, "person", "people"));
    const bool steady = seconds >= 0.5;
    if (steady && total > 0 && bytes > 0)
        parts.push_back(
            Clock(seconds * static_cast<double>(total - bytes) / static_cast<double>(bytes)) +
            " left");
    if (steady)
        parts.push_back(Rate(count, seconds) + "/s");
    if (count.wrong > 0)
        parts.push_back(Counted(count.wrong, "wrong line", "wrong lines"));

    // The last column stays free: a terminal may go to the next line behind it.
    const auto room = static_cast<std::size_t>(std::max(columns - 1, 0));
    std::string text;
    for (const std::string &part : parts) {
        const std::string gap = text.empty() ? "" : "  ";
        if (text.size() + gap.size() + part.size() > room)
            break;
        text += gap + part;
    }

    constexpr std::size_t narrowest = 10;
    constexpr std::size_t widest = 40;
    constexpr std::size_t around = 3; // its brackets, and a blank behind it
    if (total <= 0 || text.size() + around + narrowest > room)
        return text;
    const std::size_t width = std::min(widest, room - text.size() - around);
    const auto done = static_cast<std::size_t>(
        static_cast<double>(bytes) / static_cast<double>(total) * static_cast<double>(width));
    return '[' + std::string(done, '#') + std::string(width - done, '.') + "] " + text;
}

std::string SummaryLine(const BatchCount &count, double seconds) {
    char took[40];
    std::snprintf(took, sizeof took, "%.1f s", seconds);
    std::string text = Counted(count.people, "person", "people") + ", " +
                       Counted(count.wrong, "wrong line", "wrong lines") + ", " +
                       (seconds < 60 ? took : Clock(seconds));
    if (seconds >= 0.5)
        text += ", " + Rate(count, seconds) + " a second";
    return text;
}

Progress::Progress(long long total, Verbosity verbosity)
    : total_(total), bar_(verbosity != Verbosity::Quiet && IsTerminal(2)),
      summary_(bar_ || verbosity == Verbosity::Summary), outputIsTerminal_(IsTerminal(1)),
      start_(std::chrono::steady_clock::now()), next_(start_) {}

Progress::~Progress() { Clear(); }

double Progress::Seconds() const {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
}

void Progress::Show(const BatchCount &count) {
    if (!bar_)
        return;
    const auto now = std::chrono::steady_clock::now();
    if (now < next_)
        return;
    next_ = now + std::chrono::milliseconds(100);
    drawn_ = true;
    // What is left of a longer line, or of one that was drawn before the terminal was made
    // narrower, goes.
    WriteToStandardError('\r' + ProgressLine(count, total_, Seconds(), TerminalColumns()) +
                         "\033[K");
}

void Progress::Clear() {
    if (drawn_)
        WriteToStandardError("\r\033[K");
    drawn_ = false;
}

void Progress::ClearForOutput() {
    if (outputIsTerminal_)
        Clear();
}

void Progress::Finish(const BatchCount &count) {
    Clear();
    if (summary_)
        WriteToStandardError("orravane-report: " + SummaryLine(count, Seconds()) + '\n');
}
