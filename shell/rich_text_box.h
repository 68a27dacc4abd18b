#pragma once

// RTB, the report pane: the rich-text control of the rendering over a QTextEdit that the
// user reads, selects and scrolls but does not edit.

#include "report/run_list.h"

#include <QTextCharFormat>
#include <QTextEdit>

#include <functional>

class RichTextBox : public QTextEdit, public modReadings::RichTextPane {
    Q_OBJECT

public:
    explicit RichTextBox(QWidget *parent);

    void SetText(std::u16string_view text) override;
    void SetBold(bool bold) override;
    void SetColor(modReadings::Ink ink) override;
    void SetSelectedText(std::u16string text) override;

    /// Runs `write` as one change: one repaint, one changed(). Afterwards the caret stands
    /// at the end of the text and the view at its beginning, where reading starts.
    void WriteAsOne(const std::function<void(modReadings::RichTextPane &)> &write);

    /// What the pane holds, as runs of equal format with "\r\n" for line breaks.
    std::vector<modReadings::Run> Runs() const;

signals:
    /// The text changed.
    void changed();
    void mouseDown();
    void mouseMoved();
    void mouseUp();
    void clicked();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QTextCursor caret_;
    QTextCharFormat caretFormat_;
};
