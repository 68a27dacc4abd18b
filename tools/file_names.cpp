#include "tools/file_names.h"

#include "tools/refusal.h"
#include "tools/text.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <iterator>

using namespace Qt::StringLiterals;
using modReadings::UserProfile;

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

FileNames::FileNames(const QString &pattern) {
    const auto refusal = [&pattern](const QString &what) {
        return Refusal(u"--name-template: \"%1\" is not allowed; %2"_s.arg(Excerpt(pattern), what));
    };
    if (pattern.toUtf8().size() > mostBytesOfPattern)
        throw refusal(u"it is longer than %1 bytes"_s.arg(mostBytesOfPattern));
    if (Safe(pattern, mostBytes) != pattern) // what it would change cannot stand there
        throw refusal(u"it has a character that cannot stand in the name of a file"_s);
    const QRegularExpression placeholder(u"\\{(first|middle|last|line)\\}"_s);
    const QString literal = QString(pattern).remove(placeholder);
    if (literal.contains(u'{') || literal.contains(u'}'))
        throw refusal(u"in braces stand first, middle, last or line"_s);
    literalBytes_ = literal.toUtf8().size();
    lines_ = pattern.count(u"{line}"_s);
    if (literalBytes_ + lines_ * longestNumber + 1 + longestEnding > mostBytes)
        throw refusal(
            u"it has {line} so often that a name could be longer than %1 bytes"_s.arg(mostBytes));
    // Within the name, or beside a digit or another part, two lines could give one name.
    const QString line = u"{line}"_s;
    const QStringView rest = QStringView(pattern);
    const auto setApart = [](QChar beside) {
        return !IsDigit(beside) && beside != u'{' && beside != u'}';
    };
    const bool first = pattern.startsWith(line) && (pattern == line || setApart(rest[line.size()]));
    const bool last = pattern.endsWith(line) &&
                      (pattern == line || setApart(rest[rest.size() - line.size() - 1]));
    if (!first && !last)
        throw refusal(u"it begins or ends with {line}, set apart by a character such as a dash, so "
                      "that no two people get one file"_s);

    qsizetype end = 0;
    for (const QRegularExpressionMatch &match : placeholder.globalMatch(pattern)) {
        const QStringView word = match.capturedView(1);
        pieces_.push_back({pattern.sliced(end, match.capturedStart() - end),
                           word == "first"_L1    ? &UserProfile::FirstName
                           : word == "middle"_L1 ? &UserProfile::MiddleName
                           : word == "last"_L1   ? &UserProfile::LastName
                                                 : nullptr});
        end = match.capturedEnd();
    }
    end_ = pattern.sliced(end);
}

QString FileNames::Of(const UserProfile &person, long long line, const QString &ending) const {
    const QString number = u"%1"_s.arg(line, 6, 10, '0'_L1);
    const qsizetype names = std::ssize(pieces_) - lines_;
    const qsizetype room =
        mostBytes - 1 - ending.toUtf8().size() - literalBytes_ - lines_ * number.size();
    QString name;
    for (const Piece &piece : pieces_) {
        name += piece.before;
        name += piece.part == nullptr
                    ? number
                    : Safe(QStringView(person.*piece.part).toString(), room / names);
    }
    return SafeStart(name + end_) + ending;
}

QString SafeFileName(const QString &wanted, const QString &ending) {
    return SafeStart(Safe(wanted, mostBytes - 1 - ending.toUtf8().size())) + ending;
}
