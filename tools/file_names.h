#pragma once

// The names of files that are made from those of people, for a batch and for a save dialog.

#include "core/user_profile.h"

#include <QString>

#include <string>
#include <vector>

/// A template such as "{last}-{first}-{line}" and the names made of it. No two lines get the
/// same name, and every name is a plain one that all usual file systems can hold.
class FileNames {
public:
    /// The template may have {first}, {middle}, {last}, and has {line} at its beginning or its
    /// end, set apart from what is beside it by a character that is no digit: so two lines
    /// never meet in one name. Its other characters stand for themselves; none of them is a
    /// separator of folders or otherwise no character for a name. Throws Refusal for any other
    /// template.
    explicit FileNames(const QString &pattern = QStringLiteral("person-{line}"));

    /// The name for a person on this line, with `ending` such as ".txt". At most 255 bytes in
    /// UTF-8; the names of a person are cut where it would be more. A character that is no
    /// good in a name, such as a separator, a control character or a mark of direction, is
    /// written "_". A name that would begin with a dot, a dash or a blank, or be one that a
    /// system keeps for a device, has a "_" in front.
    QString Of(const modReadings::UserProfile &person, long long line, const QString &ending) const;

private:
    /// A placeholder of the template and the text before it.
    struct Piece {
        QString before;
        std::u16string modReadings::UserProfile::*part; ///< nullptr for the line
    };
    std::vector<Piece> pieces_;
    QString end_;                ///< behind the last of them
    qsizetype lines_ = 0;        ///< how many of them are the line
    qsizetype literalBytes_ = 0; ///< what is no placeholder has, in UTF-8
};

/// A name for a file, made of `wanted` and `ending` by the same rules.
QString SafeFileName(const QString &wanted, const QString &ending);
