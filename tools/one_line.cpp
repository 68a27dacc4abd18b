#include "tools/one_line.h"

#include "tools/formats.h"

namespace {

bool IsControl(QChar character) {
    return character.category() == QChar::Other_Control || character == QChar::LineSeparator ||
           character == QChar::ParagraphSeparator;
}

QString Written(QChar control) {
    switch (control.unicode()) {
    case u'\n':
        return QStringLiteral("\\n");
    case u'\r':
        return QStringLiteral("\\r");
    case u'\t':
        return QStringLiteral("\\t");
    default:
        return QStringLiteral("\\x") +
               QString::number(control.unicode(), 16).rightJustified(2, QLatin1Char('0')).toUpper();
    }
}

} // namespace

std::string OneLine(const QString &text) {
    QString line;
    for (const QChar character : text)
        line += IsControl(character) ? Written(character) : QString(character);
    return ToUtf8(line.toStdU16String());
}
