#include "report/html_pictures.h"

#include "core/text.h"
#include "report/svg.h"

#include <algorithm>
#include <array>
#include <span>

namespace modReadings {

namespace {

/// A character of a name as one place of a drawing shows it.
std::u16string_view Glyph(const char16_t &character) {
    const bool half = character >= 0xD800 && character < 0xE000;
    const bool shows = character > u' ' && (character < 0x7F || character > 0xA0) &&
                       !(character >= 0x300 && character < 0x370) && // marks on another letter
                       !(character >= 0x590 && character < 0x900) && // from right to left
                       !(character >= 0x2000 && character < 0x2070) && !half;
    return shows ? std::u16string_view(&character, 1) : std::u16string_view(u"\u00B7");
}

// ---- The name ----

constexpr int mostLetters = 420; ///< that are drawn; more would be a wall and no picture

/// How large the letters of a name are drawn.
struct LetterSize {
    int columns; ///< in a line
    int letter;  ///< size of the letter
    int value;   ///< size of the value
    int height;  ///< of a line
};

LetterSize SizeFor(std::size_t letters) {
    if (letters <= 80)
        return {14, 24, 15, 74};
    return {24, 15, 11, 50};
}

void DrawLetter(Drawing &drawing, const NameLetter &letter, int x, int y, const LetterSize &size) {
    const int half = drawingWidth / size.columns / 2;
    const bool vowel = letter.kind == LetterKind::Vowel || letter.kind == LetterKind::YAsVowel;
    const bool consonant =
        letter.kind == LetterKind::Consonant || letter.kind == LetterKind::YAsVowel;
    const int middle = y + size.height / 2;
    if (vowel)
        drawing.Box(x + 2, middle - size.letter / 2 - 4, 2 * half - 4, size.letter + 8, 4,
                    Paint::Gold);
    else if (consonant)
        drawing.Box(x + 2, middle - size.letter / 2 - 4, 2 * half - 4, size.letter + 8, 4,
                    Paint::Tint);
    drawing.Text(x + half, middle + size.letter / 3, size.letter,
                 vowel       ? Paint::OnGold
                 : consonant ? Paint::Ink
                             : Paint::Muted,
                 Align::Middle, Glyph(letter.character));
    if (vowel)
        drawing.Text(x + half, middle - size.letter / 2 - 8, size.value, Paint::Ink, Align::Middle,
                     letter.value);
    if (consonant)
        drawing.Text(x + half, middle + size.letter / 2 + size.value + 4, size.value, Paint::Ink,
                     Align::Middle, letter.value);
}

/// The height that one of the names takes.
int HeightOf(std::span<const NameLetter> letters, const LetterSize &size) {
    const auto columns = static_cast<std::size_t>(size.columns);
    return static_cast<int>((letters.size() + columns - 1) / columns) * size.height;
}

/// The letters of one of the names, centred.
void DrawPart(Drawing &drawing, std::span<const NameLetter> letters, int y,
              const LetterSize &size) {
    const int width = drawingWidth / size.columns;
    const auto columns = static_cast<std::size_t>(size.columns);
    for (std::size_t begin = 0; begin < letters.size(); begin += columns, y += size.height) {
        const auto line = letters.subspan(begin, std::min(columns, letters.size() - begin));
        int x = (drawingWidth - width * static_cast<int>(line.size())) / 2;
        for (const NameLetter &letter : line) {
            DrawLetter(drawing, letter, x, y, size);
            x += width;
        }
    }
}

constexpr int sumHeight = 46;

/// What the letters make, and below it how: a sum has a line of its own, since that of a long
/// name is long.
void DrawSum(Drawing &drawing, int y, Paint mark, std::string_view letters,
             std::u16string_view number, const NameSum &sum) {
    drawing.Box(0, y + 8, 14, 14, 3, mark);
    drawing.Text(22, y + 20, 15, Paint::Ink, Align::Start, letters);
    drawing.Text(drawingWidth - 26, y + 20, 15, Paint::Ink, Align::End, number);
    drawing.Text(drawingWidth, y + 20, 17, Paint::Ink, Align::End, sum.number, true);
    drawing.Text(22, y + 39, 14, Paint::Muted, Align::Start, InWords(sum));
}

// ---- The life ----

/// The horizontal axis of the ages.
struct AgeAxis {
    int end; ///< the last age that is drawn

    static constexpr int left = 6;
    static constexpr int right = drawingWidth - 16;

    int X(int age) const { return left + std::clamp(age, 0, end) * (right - left) / end; }
};

AgeAxis AxisFor(const LifePicture &picture) {
    const int needed = std::min<int>(picture.age, 130) + 9;
    return {std::max(90, needed / 10 * 10)};
}

/// A bar with its number and its ages. Those of a short bar stand beside it, where the line of
/// today does not run through them; the bar itself covers that line.
void DrawSpan(Drawing &drawing, const AgeAxis &axis, const LifeSpan &span, int y, int today) {
    constexpr int height = 28;
    constexpr int agesWidth = 52;
    const int from = axis.X(span.ages.from);
    // A bar ends where the year behind its last age begins.
    const int to = axis.X(span.ages.IsOpen() ? axis.end : span.ages.to + 1);
    const Paint paint = span.inForce ? Paint::Gold : Paint::Tint;
    const Paint ink = span.inForce ? Paint::OnGold : Paint::Ink;
    if (span.ages.IsOpen())
        drawing.Shape({from, y, to, y, to + 12, y + height / 2, to, y + height, from, y + height},
                      paint);
    else
        drawing.Box(from, y, to - from - 1, height, 3, paint);
    const std::u16string ages =
        DecimalText(span.ages.from) +
        (span.ages.IsOpen() ? u" on" : u"\u2013" + DecimalText(span.ages.to));
    if (to - from >= agesWidth + 20) {
        drawing.Text(from + 10, y + 20, 17, ink, Align::Start, span.number, true);
        drawing.Text(to - 8, y + 19, 14, ink, Align::End, ages);
        return;
    }
    drawing.Text((from + to) / 2, y + 20, 17, ink, Align::Middle, span.number, true);
    const bool todayBehind = today >= to && today <= to + agesWidth;
    if (todayBehind)
        drawing.Text(from - 6, y + 19, 14, Paint::Muted, Align::End, ages);
    else
        drawing.Text(to + 6, y + 19, 14, Paint::Muted, Align::Start, ages);
}

// ---- The time ----

constexpr int step = 13; ///< from one number to the next

void DrawMark(Drawing &drawing, int x, int y, int number, bool essence) {
    if (essence)
        drawing.Box(x - 9, y - 9, 18, 18, 2, Paint::Gold);
    else
        drawing.Circle(x, y, 10, Paint::Violet);
    drawing.Text(x, y + 5, 14, essence ? Paint::OnGold : Paint::OnViolet, Align::Middle, number,
                 true);
}

} // namespace

void Draw(HtmlWriter &html, const NamePicture &picture) {
    const auto &all = picture.sheet.letters;
    const std::span<const NameLetter> letters =
        std::span(all).first(std::min<std::size_t>(all.size(), mostLetters));
    const LetterSize size = SizeFor(letters.size());
    std::array<std::span<const NameLetter>, 3> parts;
    for (std::size_t begin = 0; begin < letters.size();) {
        const NamePart part = letters[begin].part;
        std::size_t end = begin;
        while (end < letters.size() && letters[end].part == part)
            ++end;
        parts[static_cast<std::size_t>(part)] = letters.subspan(begin, end - begin);
        begin = end;
    }

    int height = 0;
    for (const auto &part : parts)
        height += HeightOf(part, size);
    const bool more = letters.size() < all.size();
    height += more ? 30 : 0;
    Drawing drawing(html, height + 14 + 3 * sumHeight, picture.text.id);
    int y = 0;
    for (const auto &part : parts) {
        DrawPart(drawing, part, y, size);
        y += HeightOf(part, size);
    }
    if (more) {
        drawing.Text(drawingWidth / 2, y + 20, 15, Paint::Muted, Align::Middle,
                     u"and " + DecimalText(static_cast<int16>(all.size() - letters.size())) +
                         u" more characters");
        y += 30;
    }
    drawing.Line(0, y + 8, drawingWidth, y + 8, Paint::Muted);
    y += 14;
    DrawSum(drawing, y, Paint::Violet, "All letters", u"Destiny", picture.sheet.destiny);
    y += sumHeight;
    DrawSum(drawing, y, Paint::Gold, "Vowels", u"Soul Urge", picture.sheet.soulUrge);
    y += sumHeight;
    DrawSum(drawing, y, Paint::Tint, "Consonants", u"Inner Dreams", picture.sheet.innerDreams);
}

void Draw(HtmlWriter &html, const ValuesPicture &picture) {
    constexpr int column = 46;
    constexpr int tile = 24;
    constexpr std::size_t mostTiles = 9; // a longer stack is a bar with its count
    std::size_t highest = 1;
    for (std::size_t value = 1; value <= 9; ++value)
        highest = std::max(highest, picture.letters[value].size());
    const bool tiles = highest <= mostTiles;
    const int base = 26 + static_cast<int>(std::min(highest, mostTiles)) * tile;

    Drawing drawing(html, base + 66, picture.text.id);
    for (std::size_t value = 1; value <= 9; ++value) {
        const std::u16string &letters = picture.letters[value];
        const int middle = 3 + static_cast<int>(value - 1) * column + column / 2;
        const auto count = static_cast<int>(letters.size());
        const auto ofLeader = std::ranges::count(letters, picture.leader.character);
        int top = base - 4;
        if (tiles) {
            // The letters of one kind stand together, so that a count shows.
            std::u16string sorted = letters;
            std::ranges::sort(sorted);
            for (const char16_t &letter : sorted) {
                const bool leads = letter == picture.leader.character;
                top -= tile;
                drawing.Box(middle - 17, top + 1, 34, tile - 2, 3,
                            leads ? Paint::Gold : Paint::Tint);
                drawing.Text(middle, top + 18, 16, leads ? Paint::OnGold : Paint::Ink,
                             Align::Middle, Glyph(letter));
            }
        } else {
            const auto scaled = [&](long long part) {
                return static_cast<int>(part * tile * static_cast<long long>(mostTiles) /
                                        static_cast<long long>(highest));
            };
            const int height = scaled(count);
            drawing.Box(middle - 17, base - 4 - height, 34, height, 3, Paint::Tint);
            if (ofLeader > 0) {
                const int part = std::max(scaled(ofLeader), 18);
                drawing.Box(middle - 17, base - 4 - part, 34, part, 3, Paint::Gold);
                drawing.Text(middle, base - 8, 15, Paint::OnGold, Align::Middle,
                             Glyph(picture.leader.character));
            }
            top -= height;
        }
        if (count != 0)
            drawing.Text(middle, top - 6, 14, Paint::Muted, Align::Middle, count);
        if (count == 0)
            drawing.EmptyPlace(middle, base + 17, 15);
        else
            drawing.Circle(middle, base + 17, 15, Paint::Violet);
        drawing.Text(middle, base + 23, 17, count == 0 ? Paint::Muted : Paint::OnViolet,
                     Align::Middle, static_cast<int>(value), true);
        if (count == 0)
            drawing.Text(middle, base + 50, 13, Paint::Muted, Align::Middle, "lesson");
    }
    drawing.Line(0, base, drawingWidth, base, Paint::Muted);
}

void Draw(HtmlWriter &html, const LifePicture &picture) {
    const AgeAxis axis = AxisFor(picture);
    constexpr int periodsTop = 50;
    constexpr int pinnaclesTop = 128;
    constexpr int lane = 32;
    constexpr int axisY = pinnaclesTop + 4 * lane + 6;

    Drawing drawing(html, axisY + 98, picture.text.id);
    for (int age = 0; age <= axis.end; age += 10) {
        drawing.Line(axis.X(age), axisY, axis.X(age), axisY + 5, Paint::Muted);
        if (axis.end <= 100 || age % 20 == 0)
            drawing.Text(axis.X(age), axisY + 20, 13, Paint::Muted, Align::Middle, age);
    }
    drawing.Line(axis.left, axisY, axis.right, axisY, Paint::Muted);

    const bool unborn = picture.age < 0;
    const int today = axis.X(picture.age);
    // Below the bars, so that it runs through none of their numbers.
    if (!unborn && picture.age <= axis.end)
        drawing.Line(today, 20, today, axisY, Paint::Ink, 2);
    // The titles stand where the line of today does not run through them.
    const bool early = today < drawingWidth / 3;
    const int titleX = early ? axis.right : 0;
    const Align titleAlign = early ? Align::End : Align::Start;
    drawing.Text(titleX, periodsTop - 8, 14, Paint::Muted, titleAlign, "Life Path Periods");
    for (const LifeSpan &span : picture.periods)
        DrawSpan(drawing, axis, span, periodsTop, today);
    drawing.Text(titleX, pinnaclesTop - 8, 14, Paint::Muted, titleAlign, "Pinnacles");
    int y = pinnaclesTop;
    for (const LifeSpan &span : picture.pinnacles) {
        DrawSpan(drawing, axis, span, y, today);
        y += lane;
    }

    const std::u16string label =
        unborn ? std::u16string(u"today: before birth") : u"today: age " + DecimalText(picture.age);
    if (today < 70)
        drawing.Text(unborn ? 0 : today - 4, 14, 14, Paint::Ink, Align::Start, label, true);
    else if (today > axis.right - 70)
        drawing.Text(drawingWidth, 14, 14, Paint::Ink, Align::End, label, true);
    else
        drawing.Text(today, 14, 14, Paint::Ink, Align::Middle, label, true);

    const int row = axisY + 50;
    drawing.Text(0, row + 25, 14, Paint::Muted, Align::Start, "Challenges");
    constexpr std::array<std::string_view, 4> ordinals{"first", "second", "third", "fourth"};
    int x = 100;
    for (std::size_t index = 0; index < picture.challenges.size(); ++index, x += 80) {
        drawing.Box(x, row, 74, 40, 4, Paint::Tint);
        drawing.Text(x + 37, row + 19, 17, Paint::Ink, Align::Middle, picture.challenges[index],
                     true);
        drawing.Text(x + 37, row + 34, 13, Paint::Muted, Align::Middle, ordinals.at(index));
    }
}

void Draw(HtmlWriter &html, const TimePicture &picture) {
    constexpr int top = 38;
    constexpr int base = top + 9 * step;
    constexpr int monthsTop = base + 62;
    constexpr int monthsBase = monthsTop + 9 * step;

    Drawing drawing(html, monthsBase + 46, picture.text.id);

    DrawMark(drawing, 12, 12, 9, false);
    drawing.Text(28, 17, 14, Paint::Ink, Align::Start, "Personal Year");
    DrawMark(drawing, 152, 12, 9, true);
    drawing.Text(168, 17, 14, Paint::Ink, Align::Start, "Essence");
    constexpr int yearWidth = drawingWidth / 9;
    const auto yearX = [](std::size_t index) {
        return static_cast<int>(index) * yearWidth + yearWidth / 2;
    };
    const auto at = [](int number) { return base - number * step; };
    drawing.BeginPath(Paint::Violet, 2);
    for (std::size_t index = 0; index < picture.years.size(); ++index)
        drawing.Point(yearX(index) - 9, at(picture.years[index].personalYear));
    drawing.EndPath();
    drawing.BeginPath(Paint::Gold, 2);
    for (std::size_t index = 0; index < picture.years.size(); ++index) {
        if (const auto essence = picture.years[index].essence)
            drawing.Point(yearX(index) + 9, at(*essence));
        else
            drawing.Gap();
    }
    drawing.EndPath();
    drawing.Line(0, base + 14, drawingWidth, base + 14, Paint::Muted);
    for (std::size_t index = 0; index < picture.years.size(); ++index) {
        const TimePicture::Year &year = picture.years[index];
        DrawMark(drawing, yearX(index) - 9, at(year.personalYear), year.personalYear, false);
        if (year.essence)
            DrawMark(drawing, yearX(index) + 9, at(*year.essence), *year.essence, true);
        drawing.Text(yearX(index), base + 30, 14, index == 0 ? Paint::Ink : Paint::Muted,
                     Align::Middle, year.year, index == 0);
    }

    drawing.Text(0, monthsTop - 4, 14, Paint::Ink, Align::Start, "Personal Month");
    constexpr int monthWidth = drawingWidth / 12;
    const auto monthX = [](std::size_t index) {
        return static_cast<int>(index) * monthWidth + monthWidth / 2;
    };
    const auto monthY = [](int number) { return monthsBase + 12 - number * step; };
    drawing.BeginPath(Paint::Violet, 2);
    for (std::size_t index = 0; index < picture.months.size(); ++index)
        drawing.Point(monthX(index), monthY(picture.months[index].personalMonth));
    drawing.EndPath();
    drawing.Line(0, monthsBase + 14, drawingWidth, monthsBase + 14, Paint::Muted);
    for (std::size_t index = 0; index < picture.months.size(); ++index) {
        const TimePicture::Month &month = picture.months[index];
        DrawMark(drawing, monthX(index), monthY(month.personalMonth), month.personalMonth, false);
        drawing.Text(monthX(index), monthsBase + 30, 13, index == 0 ? Paint::Ink : Paint::Muted,
                     Align::Middle, month.name.substr(0, 3), index == 0);
        if (index == 0 || month.name == u"January")
            drawing.Text(monthX(index), monthsBase + 44, 13, Paint::Muted, Align::Middle,
                         month.year);
    }
}

void Draw(HtmlWriter &html, const PlanesPicture &picture) {
    constexpr int row = 50;
    constexpr int lettersX = 106;                // behind "Emotional" in bold letters
    constexpr std::size_t mostLettersShown = 13; // what is behind them is the share
    Drawing drawing(html, static_cast<int>(picture.planes.size()) * row, picture.text.id);
    int y = 0;
    for (const PlanesPicture::Plane &plane : picture.planes) {
        drawing.Text(0, y + 16, 16, Paint::Ink, Align::Start, plane.name, plane.dominates);
        drawing.Text(drawingWidth, y + 16, 15, Paint::Ink, Align::End,
                     DecimalText(plane.share) + u" %" + (plane.rating.empty() ? u"" : u", ") +
                         plane.rating);
        std::u16string letters = plane.letters;
        if (letters.size() > mostLettersShown) {
            letters.resize(mostLettersShown);
            letters += u"\u2026";
        }
        drawing.Text(lettersX, y + 16, 14, Paint::Muted, Align::Start, letters);
        drawing.Box(0, y + 24, drawingWidth, 12, 2, Paint::Tint);
        if (plane.share > 0)
            drawing.Box(0, y + 24, plane.share * drawingWidth / 100, 12, 2,
                        plane.dominates ? Paint::Gold : Paint::Violet);
        y += row;
    }
}

} // namespace modReadings
