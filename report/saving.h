#pragma once

// The report as a file.

#include "report/report.h"
#include "report/rtf.h"

class QString;
class QWidget;

/// Asks for a name in the save dialog, which has the title `title`, and writes `report`
/// there as RTF in `font`, whatever the name says. The dialog opens with an empty name each
/// time. It asks before it replaces a file; a folder that does not exist and a file or folder
/// that cannot be written keep it open, with a message. A file that is replaced stays whole
/// until its successor is. Cancel is silent, and so is every failure once the dialog has closed.
/// Nothing of it is remembered but, while the program runs, the folder.
void SaveReport(const modReadings::Report &report, const modReadings::RtfFont &font,
                const QString &title, QWidget *parent);
