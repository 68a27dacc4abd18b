#include "tools/excerpt.h"

QString Excerpt(const QString &text) {
    constexpr qsizetype most = 60;
    constexpr qsizetype ending = 20; // the end of a path tells more than its middle
    if (text.size() <= most)
        return text;
    const QString gap = QStringLiteral("...");
    QString first = text.first(most - ending - gap.size());
    if (first.back().isHighSurrogate())
        first.chop(1);
    QString last = text.last(ending);
    if (last.front().isLowSurrogate())
        last.remove(0, 1);
    return first + gap + last;
}
