#include "tools/file_names.h"

#include "tools/refusal.h"
#include "tools/text.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostBytes = 255;
constexpr qsizetype mostBytesOfPattern = 100;
constexpr qsizetype longestNumber = 16; // of a line: --first-line goes up to 10^15
constexpr qsizetype longestEnding = 5;  // ".html"

bool IsDigit(QChar character) { return character >= u'0' && character <= u'9'; }

/// Whether `character` stands in a file name as it is, on the systems of others too.
bool IsAllowed(QChar character) {
    constexpr QStringView separators = u"/\\:*?\"<>|";
    return !ActsOnTerminal(character.unicode()) && character.category() != QChar::Other_Format &&
           !separators.contains(character);
}

/// `text` with "_" for what cannot stand in a name, in at most `most` bytes of UTF-8.
QString Safe(const QString &text, qsizetype most) {
    QString safe;
    qsizetype bytes = 0;
    for (qsizetype index = 0; index < text.size(); ++index) {
        const QChar unit = text[index];
        const bool pair =
            unit.isHighSurrogate() && index + 1 < text.size() && text[index + 1].isLowSurrogate();
        const QString whole = pair                 ? text.sliced(index++, 2)
                              : unit.isSurrogate() ? u"_"_s
                              : IsAllowed(unit)    ? QString(unit)
                                                   : u"_"_s;
        bytes += whole.toUtf8().size();
        if (bytes > most)
            break;
        safe += whole;
    }
    return safe;
}

/// What stands for a part of a name, which it captures.
const QRegularExpression &Placeholder() {
    static const QRegularExpression placeholder(u"\\{(first|middle|last|line)\\}"_s);
    return placeholder;
}

/// Whether some system takes `name` for a device, whatever ending it has.
bool IsDevice(const QString &name) {
    static const QRegularExpression device(u"\\A(CON|PRN|AUX|NUL|(COM|LPT)[0-9\u00B9\u00B2\u00B3])"
                                           "[ ]*(\\.|\\z)"_s,
                                           QRegularExpression::CaseInsensitiveOption);
    return device.match(name).hasMatch();
}

/// `name` with a "_" in front, if it needs one.
QString SafeStart(const QString &name) {
    const bool bad = name.isEmpty() || name.front() == u'.' || name.front() == u'-' ||
                     name.front() == u' ' || IsDevice(name);
    return bad ? u'_' + name : name;
}

} // namespace

FileNames::FileNames(QString pattern) : pattern_(std::move(pattern)) {
    const auto refusal = [this](const QString &what) {
        return Refusal(
            u"--name-template: \"%1\" is not allowed; %2"_s.arg(Excerpt(pattern_), what));
    };
    if (pattern_.toUtf8().size() > mostBytesOfPattern)
        throw refusal(u"it is longer than %1 bytes"_s.arg(mostBytesOfPattern));
    if (Safe(pattern_, mostBytes) != pattern_) // what it would change cannot stand there
        throw refusal(u"it has a character that cannot stand in the name of a file"_s);
    const QString literal = QString(pattern_).remove(Placeholder());
    if (literal.contains(u'{') || literal.contains(u'}'))
        throw refusal(u"in braces stand first, middle, last or line"_s);
    const qsizetype numbers = pattern_.count(u"{line}"_s);
    if (literal.toUtf8().size() + numbers * longestNumber + 1 + longestEnding > mostBytes)
        throw refusal(
            u"it has {line} so often that a name could be longer than %1 bytes"_s.arg(mostBytes));
    // Within the name, or beside a digit or another part, two lines could give one name.
    const QString line = u"{line}"_s;
    const QStringView rest = QStringView(pattern_);
    const auto setApart = [](QChar beside) {
        return !IsDigit(beside) && beside != u'{' && beside != u'}';
    };
    const bool first =
        pattern_.startsWith(line) && (pattern_ == line || setApart(rest[line.size()]));
    const bool last = pattern_.endsWith(line) &&
                      (pattern_ == line || setApart(rest[rest.size() - line.size() - 1]));
    if (!first && !last)
        throw refusal(u"it begins or ends with {line}, set apart by a character such as a dash, so "
                      "that no two people get one file"_s);
}

QString FileNames::Of(const modReadings::UserProfile &person, long long line,
                      const QString &ending) const {
    const QRegularExpression &part = Placeholder();
    const QString number = u"%1"_s.arg(line, 6, 10, '0'_L1);
    const qsizetype lines = pattern_.count(u"{line}"_s);
    const qsizetype names = pattern_.count(part) - lines;
    const qsizetype literal = QString(pattern_).remove(part).toUtf8().size();
    const qsizetype room = mostBytes - 1 - ending.toUtf8().size() - literal - lines * number.size();
    QString name;
    qsizetype end = 0;
    for (const QRegularExpressionMatch &match : part.globalMatch(pattern_)) {
        name += QStringView(pattern_).sliced(end, match.capturedStart() - end);
        end = match.capturedEnd();
        const QStringView word = match.capturedView(1);
        if (word == "line"_L1) {
            name += number;
            continue;
        }
        const std::u16string &value = word == "first"_L1    ? person.FirstName
                                      : word == "middle"_L1 ? person.MiddleName
                                                            : person.LastName;
        name += Safe(QStringView(value).toString(), room / names);
    }
    name += QStringView(pattern_).sliced(end);
    return SafeStart(name) + ending;
}

QString SafeFileName(const QString &wanted, const QString &ending) {
    return SafeStart(Safe(wanted, mostBytes - 1 - ending.toUtf8().size())) + ending;
}
