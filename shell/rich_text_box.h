#pragma once

// RTB, the report pane: shows one report, which the user reads, selects and scrolls but
// does not edit.

#include "report/report.h"
#include "shell/framed.h"

#include <QTextEdit>

class RichTextBox : public Framed<QTextEdit> {
    Q_OBJECT

public:
    explicit RichTextBox(QWidget *parent);

    /// Shows `report` in place of the present one, in one change: one repaint and one
    /// changed(), also where the two are equal. Afterwards the caret stands at the end of
    /// the text and the view at its beginning, where reading starts.
    void ShowReport(modReadings::Report report);

    /// The report that is shown; empty before the first one.
    const modReadings::Report &ShownReport() const { return report_; }

signals:
    /// The text changed.
    void changed();
    void mouseDown();
    void mouseMoved();
    void mouseUp();
    void clicked();

protected:
    BoxLook BoxNow() const override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    /// While text is dragged beyond the edge, the toolkit scrolls by a timer and takes each time
    /// for a move of the mouse. The release ends that. A dialog or a menu that has come up
    /// meanwhile by the keyboard gets the release in the pane's place, so the drag ends with it.
    void timerEvent(QTimerEvent *event) override;

private:
    modReadings::Report report_;
};
