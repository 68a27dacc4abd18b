#include "tools/batch_input.h"

#include "tools/refusal.h"
#include "tools/text.h"

#include <QFileInfo>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

bool IsBlank(const std::string &line) { return line.find_first_not_of(" \t") == std::string::npos; }

} // namespace

BatchInput::BatchInput(const Options &options)
    : options_(options), lines_(options.delimiter), number_(options.firstLine - 1) {
    // A file that is missing is found out now and not after the work on those before it.
    bool known = true;
    for (const QString &name : options.batchFiles) {
        const QFileInfo file(name);
        if (name != "-"_L1 && (!file.exists() || file.isDir() || !file.isReadable()))
            LineReader probe(name); // says what is wrong
        known = known && name != "-"_L1 && file.isFile();
        size_ += file.size();
    }
    reader_ = std::make_unique<LineReader>(options.batchFiles.constFirst());
    if (options.batchFiles.size() == 1)
        size_ = reader_->Size();
    else if (!known)
        size_ = 0;
}

bool BatchInput::Next(BatchLine &line) {
    for (;;) {
        const LineReader::Found found = reader_->Next(line.text);
        if (found == LineReader::Found::End) {
            if (file_ + 1 == static_cast<std::size_t>(options_.batchFiles.size()))
                return false;
            before_ += std::exchange(reader_, nullptr)->Passed();
            reader_ =
                std::make_unique<LineReader>(options_.batchFiles[static_cast<qsizetype>(++file_)]);
            lines_ = PeopleLines(options_.delimiter);
            header_.clear();
            begunFile_ = false;
            numberInFile_ = 0;
            continue;
        }
        line.number = ++number_;
        line.numberInFile = ++numberInFile_;
        line.file = file_;
        line.tooLong = found == LineReader::Found::TooLong;
        if (IsBlank(line.text) && !line.tooLong)
            continue;
        if (!std::exchange(begunFile_, true) && Begin(line))
            continue;
        return true;
    }
}

bool BatchInput::Begin(const BatchLine &line) {
    try {
        const bool isHeader = lines_.Begin(line.text);
        if (isHeader && line.tooLong)
            throw Refusal(u"the header is longer than 1 MB"_s);
        if (isHeader)
            header_ = line.text;
        begun_ = true;
        return isHeader;
    } catch (const Refusal &refusal) {
        const QString file = options_.batchFiles.size() == 1
                                 ? QString()
                                 : u"the file \"%1\", "_s.arg(
                                       Excerpt(options_.batchFiles[static_cast<qsizetype>(file_)]));
        const long long number = options_.batchFiles.size() == 1 ? number_ : numberInFile_;
        throw Refusal(u"--batch: %1line %2: %3"_s.arg(file).arg(number).arg(refusal.Line()));
    }
}
