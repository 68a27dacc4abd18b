#include "tools/output.h"

#include "tools/refusal.h"
#include "tools/text.h"

#include <cstring>

using namespace Qt::StringLiterals;

Output::Output(const QString &path, Kind kind)
    : Output(kind, kind != Kind::Named                ? u"--output-dir: "_s + Excerpt(path)
                   : path.isEmpty() || path == "-"_L1 ? u"standard output"_s
                                                      : u"--output: "_s + Excerpt(path)) {
    if (kind == Kind::Named)
        OpenNamed(NameOf(path));
    else
        OpenBeside(NameOf(path));
}

void Output::Fail(int error) const {
    throw Refusal(name_ + u": "_s + QString::fromLocal8Bit(std::strerror(error)),
                  ExitCode::CannotReadOrWrite);
}
