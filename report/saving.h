#pragma once

// The report as a file.

#include "report/report.h"
#include "report/rtf.h"

#include <QString>

#include <string_view>

class QWidget;

/// What a save dialog shows when it opens.
struct SaveDialogLook {
    QString title;
    QString filter;           ///< such as "Rich Text Format (*.rtf)"
    QString suffix;           ///< of a name that has none, without its dot
    QString name{};           ///< that is proposed; may be empty
    bool needsSuffix = false; ///< whether a name with another suffix gets this one as well
};

/// Asks for the name of a file in the save dialog and returns its path, or nothing on Cancel.
/// The dialog asks before a file is replaced; a folder that does not exist and a file or folder
/// that cannot be written keep it open, with a message. Nothing of it is remembered but, while
/// the program runs, the folder.
QString AskForFile(const SaveDialogLook &look, QWidget *parent);

/// Writes `content` to the file `name`. A file that is replaced stays whole until its successor
/// is. Returns the reason when that fails, and an empty text otherwise.
QString WriteWhole(const QString &name, std::string_view content);

/// Asks for a name in the save dialog, which has the title `title`, and writes `report` there as
/// RTF in `font`, whatever the name says. The dialog opens with an empty name each time. Cancel
/// is silent, and so is every failure once the dialog has closed.
void SaveReport(const modReadings::Report &report, const modReadings::RtfFont &font,
                const QString &title, QWidget *parent);
