#include "tools/wrong_lines.h"

#include "tools/refusal.h"
#include "tools/system.h"
#include "tools/text.h"

using namespace Qt::StringLiterals;

void WrongLines::Report(long long number, std::size_t file, long long numberInFile,
                        const std::string &message) {
    ++count_;
    last_ = number;
    Tell(number, file, numberInFile, message);
}

void WrongLines::Remark(long long number, std::size_t file, long long numberInFile,
                        const std::string &message) {
    Tell(number, file, numberInFile, message);
}

void WrongLines::Tell(long long number, std::size_t file, long long numberInFile,
                      const std::string &message) {
    progress_.Clear();
    QString place = u"line %1"_s.arg(number);
    if (options_.batchFiles.size() > 1)
        place += u" (the file \"%1\", line %2)"_s
                     .arg(Excerpt(options_.batchFiles[static_cast<qsizetype>(file)]))
                     .arg(numberInFile);
    WriteToStandardError("orravane-report: " + OneLine(place) + ": " + message + '\n');
}

void WrongLines::RefuseTooMany() const {
    if (AreTooMany())
        throw Refusal(
            u"--max-errors: given up at line %1, after %2 wrong lines"_s.arg(last_).arg(count_),
            ExitCode::SomeLinesWrong);
}
