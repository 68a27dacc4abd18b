#include "shell/display_message.h"

#include <QByteArray>
#include <QString>

#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

struct HeldMessage {
    QtMsgType type;
    QByteArray category; ///< a copy, as it can lie in a plugin that is unloaded
    QString text;
};

/// A handler is a plain function and finds them here. It can be called by any of the toolkit's
/// threads.
std::mutex heldMutex;
std::vector<HeldMessage> held;
const char *speaker = "";

/// Why there is no window, in the user's terms.
QString Reason() {
    // A platform that the user has asked for by name, or the one of the session.
    for (const HeldMessage &message : held) {
        if (message.text.startsWith("Could not find the Qt platform plugin"_L1))
            return message.text.simplified();
    }
    QString asked;
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        if (const QString value = qEnvironmentVariable(name); !value.isEmpty())
            asked += u" %1=%2"_s.arg(QLatin1StringView(name), value.simplified());
    }
    return asked.isEmpty() ? u"there is no display, neither DISPLAY nor WAYLAND_DISPLAY is set"_s
                           : u"no display answers with"_s + asked;
}

/// Holds a message back. A fatal one is the toolkit's last: it ends the process.
void Hold(QtMsgType type, const QMessageLogContext &context, const QString &text) {
    const std::scoped_lock lock(heldMutex);
    if (type != QtFatalMsg) {
        held.push_back({type, context.category, text});
        return;
    }
    const QByteArray reason = Reason().toLocal8Bit();
    std::fprintf(stderr, "%s: cannot open a window: %s; orravane-report needs none\n", speaker,
                 reason.constData());
    std::fflush(stderr);
    std::_Exit(1); // nothing has been made yet that would have to be tidied up
}

} // namespace

DisplayMessage::DisplayMessage(const char *program) : before_(qInstallMessageHandler(Hold)) {
    speaker = program;
}

DisplayMessage::~DisplayMessage() {
    qInstallMessageHandler(before_);
    std::vector<HeldMessage> messages;
    {
        const std::scoped_lock lock(heldMutex);
        messages.swap(held);
    }
    for (const HeldMessage &message : messages) {
        const QMessageLogContext context(nullptr, 0, nullptr, message.category.constData());
        before_(message.type, context, message.text);
    }
}
