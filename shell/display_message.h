#pragma once

// What the user is told where no window can be opened.

#include <QtGlobal>

/// Stands around the making of the application object. Where the toolkit finds no display
/// that it can use, it would write several lines and abort. In its place, one line goes to
/// standard error and the process ends with exit status 1.
///
/// While the object lives, the toolkit's own messages are held back. When it goes, they are
/// written as they would have been. Only one may live at a time.
class DisplayMessage {
public:
    /// `program` is its name in the line, a literal.
    explicit DisplayMessage(const char *program);
    ~DisplayMessage();
    Q_DISABLE_COPY_MOVE(DisplayMessage)

private:
    QtMessageHandler before_;
};
