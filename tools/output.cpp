#include "tools/output.h"

#include "tools/refusal.h"
#include "tools/text.h"

#include <cstring>

using namespace Qt::StringLiterals;

namespace {

QString NameInMessages(const QString &path, Output::Kind kind) {
    if (kind == Output::Kind::InFolder || kind == Output::Kind::NewInFolder)
        return u"--output-dir: "_s + Excerpt(path);
    if (path.isEmpty() || path == "-"_L1)
        return u"standard output"_s;
    return u"--output: "_s + Excerpt(path);
}

} // namespace

Output::Output(const QString &path, Kind kind) : Output(kind, NameInMessages(path, kind)) {
    switch (kind) {
    case Kind::Named:
        OpenNamed(NameOf(path));
        break;
    case Kind::OfParent:
        OpenNamed({});
        break;
    case Kind::InFolder:
    case Kind::NewInFolder:
        OpenBeside(NameOf(path));
        break;
    }
}

void Output::Fail(int error) const {
    throw Refusal(name_ + u": "_s + QString::fromLocal8Bit(std::strerror(error)),
                  ExitCode::CannotReadOrWrite);
}
