#pragma once

// The report as a file.

class QWidget;
class RichTextBox;

/// Asks for a name in the save dialog and writes the pane's text there as RTF, whatever
/// the name says. The dialog opens with an empty name each time and asks before it
/// replaces a file, and a folder that does not exist keeps it open. A file that is replaced
/// stays whole until its successor is. Cancel and every failure behind the dialog are
/// silent. Nothing of it is remembered but, while the program runs, the folder.
void SaveReport(const RichTextBox &RTB, QWidget *parent);
