#include "shell/app.h"
#include "tests/monkey/session.h"
#include "tests/shell/temporary_home.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QFile>

#include <cstdio>
#include <functional>
#include <optional>
#include <unistd.h>

// Random events against the real window. Run by tests/monkey/run, which also shortens what fails.

using namespace Qt::StringLiterals;

namespace {

/// How long one event may take, in seconds. Without this a window that hangs would hang the test.
constexpr unsigned patience = 60;

/// What of this process is in memory, in KiB.
long MemoryInUse() {
    QFile file(u"/proc/self/statm"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toLong() * (sysconf(_SC_PAGESIZE) / 1024);
}

/// Drops what the offscreen display says of each dialog that it shows.
void WithoutTheDisplaysRemarks(QtMsgType, const QMessageLogContext &, const QString &message) {
    if (!message.startsWith(u"This plugin does not support"_s))
        std::fprintf(stderr, "%s\n", qPrintable(message));
}

struct Wish {
    quint32 seed;
    int events;
    int session;     ///< events of a session at most
    QList<int> only; ///< the events to play, all when empty
    bool clicksOnly;
    bool endless; ///< nobody closes the window
    bool describe;
    int marks; ///< how many times the memory is told
};

/// Plays one session. Returns how many events were done, or nothing when something was wrong.
std::optional<int> Play(quint32 seed, int events, const Wish &wish,
                        const std::function<void(int)> &done) {
    Session session(wish.endless);
    int count = 0;
    for (int index = 0; index < events && !session.IsOver(); ++index) {
        if (!wish.only.isEmpty() && !wish.only.contains(index))
            continue;
        alarm(patience);
        const Event event = EventAt(seed, index, wish.clicksOnly);
        if (wish.describe)
            std::printf("  %s\n", qPrintable(event.Describe()));
        const QStringList complaints = session.Do(event);
        if (!complaints.isEmpty()) {
            std::printf("session %u, event %s:\n", seed, qPrintable(event.Describe()));
            for (const QString &complaint : complaints)
                std::printf("    %s\n", complaint.toUtf8().constData());
            std::fflush(stdout);
            return std::nullopt;
        }
        done(++count);
    }
    alarm(0);
    return std::max(count, 1);
}

int PlayAll(const Wish &wish) {
    QElapsedTimer time;
    time.start();
    int done = 0;
    int sessions = 0;
    const int step = wish.marks > 0 ? wish.events / wish.marks : wish.events + 1;
    const auto mark = [&](int count) {
        if ((done + count) % step == 0) {
            std::printf("%d events: %ld KiB\n", done + count, MemoryInUse());
            std::fflush(stdout);
        }
    };
    while (done < wish.events) {
        const quint32 seed = wish.seed + static_cast<quint32>(sessions++);
        std::printf("session %u\n", seed);
        std::fflush(stdout);
        const auto played = Play(seed, std::min(wish.session, wish.events - done), wish, mark);
        if (!played)
            return 1;
        if (!wish.only.isEmpty())
            return 0;
        done += *played;
    }
    std::printf("%d events in %d sessions, %.1f s\n", done, sessions,
                static_cast<double>(time.elapsed()) / 1000);
    return 0;
}

} // namespace

int main(int argc, char *argv[]) {
    const QByteArray scale = qgetenv("QT_SCALE_FACTOR");
    const TemporaryHome home;
    if (!scale.isEmpty())
        qputenv("QT_SCALE_FACTOR", scale);
    qInstallMessageHandler(WithoutTheDisplaysRemarks);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setKeyboardInputInterval(-1); // every letter begins a new search in a list
    App::Identify();

    QCommandLineParser parser;
    parser.addOptions(
        {{u"seed"_s, u"The first session."_s, u"number"_s, u"1"_s},
         {u"events"_s, u"How many events in all."_s, u"number"_s, u"1000"_s},
         {u"length"_s,
          u"Events of a session at most. Not \"session\", which the toolkit takes for itself."_s,
          u"number"_s, u"2000"_s},
         {u"only"_s, u"The events to play, of one session."_s, u"list"_s},
         {u"clicks"_s, u"Clicks and nothing else."_s},
         {u"endless"_s, u"Nobody closes the window."_s},
         {u"marks"_s, u"How many times to tell the memory."_s, u"number"_s, u"0"_s},
         {u"describe"_s, u"Says what is done."_s}});
    parser.process(application);
    Wish wish{parser.value(u"seed"_s).toUInt(),  parser.value(u"events"_s).toInt(),
              parser.value(u"length"_s).toInt(), {},
              parser.isSet(u"clicks"_s),         parser.isSet(u"endless"_s),
              parser.isSet(u"describe"_s),       parser.value(u"marks"_s).toInt()};
    for (const QString &index : parser.value(u"only"_s).split(u',', Qt::SkipEmptyParts))
        wish.only << index.toInt();
    return PlayAll(wish);
}
