#include "tools/text.h"

#include <QStringDecoder>
#include <QStringEncoder>

#include <vector>

using namespace Qt::StringLiterals;

std::string_view AsUtf8(std::u16string_view text) {
    // One buffer serves all calls: a batch makes millions.
    static std::vector<char> buffer;
    QStringEncoder encode(QStringEncoder::Utf8, QStringEncoder::Flag::Stateless);
    const QStringView view(text);
    const auto space = static_cast<std::size_t>(encode.requiredSpace(view.size()));
    if (buffer.size() < space)
        buffer.resize(space);
    const char *end = encode.appendToBuffer(buffer.data(), view);
    return {buffer.data(), static_cast<std::size_t>(end - buffer.data())};
}

std::string ToUtf8(std::u16string_view text) { return std::string(AsUtf8(text)); }

std::optional<QString> FromUtf8(std::string_view bytes) {
    // A mark of byte order at the beginning is a character of the text.
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless |
                                                    QStringDecoder::Flag::ConvertInitialBom);
    QString text = decode(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
    return decode.hasError() ? std::nullopt : std::optional(std::move(text));
}

bool ActsOnTerminal(char32_t character) {
    return character < 0x20 || (character >= 0x7F && character < 0xA0) || character == 0x061C ||
           character == 0x200E || character == 0x200F ||
           (character >= 0x2028 && character <= 0x202E) ||
           (character >= 0x2066 && character <= 0x2069);
}

namespace {

/// How a control character is shown.
QString Escaped(QChar control) {
    switch (control.unicode()) {
    case u'\n':
        return u"\\n"_s;
    case u'\r':
        return u"\\r"_s;
    case u'\t':
        return u"\\t"_s;
    default:
        return u"\\x"_s + QString::number(control.unicode(), 16).rightJustified(2, u'0').toUpper();
    }
}

} // namespace

std::string OneLine(const QString &text) {
    QString line;
    for (const QChar character : text)
        line += ActsOnTerminal(character.unicode()) ? Escaped(character) : QString(character);
    return ToUtf8(line.toStdU16String());
}

QString Excerpt(const QString &text) {
    constexpr qsizetype most = 60;
    constexpr qsizetype ending = 20; // the end of a path tells more than its middle
    if (text.size() <= most)
        return text;
    const QString gap = u"..."_s;
    QString first = text.first(most - ending - gap.size());
    if (first.back().isHighSurrogate())
        first.chop(1);
    QString last = text.last(ending);
    if (last.front().isLowSurrogate())
        last.remove(0, 1);
    return first + gap + last;
}
