#pragma once

// The report as a file.

class QWidget;
class RichTextBox;

/// Asks for a name in the save dialog and writes the pane's text there as RTF, whatever
/// the name says. The dialog opens with an empty name each time and asks before it
/// replaces a file; a file that is replaced stays whole until its successor is. Cancel
/// and every failure are silent.
void SaveReport(const RichTextBox &RTB, QWidget *parent);
