#include "shell/rich_text_box.h"

#include "shell/style.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTextCursor>

#include <utility>

RichTextBox::RichTextBox(QWidget *parent) : Framed(parent) {
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
    setAccessibleName(tr("Report"));
    viewport()->setMouseTracking(true);
    connect(this, &QTextEdit::textChanged, this, &RichTextBox::changed);
}

void RichTextBox::ShowReport(modReadings::Report report) {
    report_ = std::move(report);

    setUpdatesEnabled(false);
    QTextCursor caret(document());
    caret.beginEditBlock();
    caret.select(QTextCursor::Document);
    caret.removeSelectedText();
    QTextCharFormat format;
    format.setForeground(
        QColor(modReadings::TopicInk.red, modReadings::TopicInk.green, modReadings::TopicInk.blue));
    caret.setBlockCharFormat(format); // the colour of the first line where it is empty
    for (const modReadings::Run &run : report_) {
        format.setFontWeight(run.bold ? QFont::Bold : QFont::Normal);
        caret.insertText(QStringView(run.text).toString(), format); // "\r\n" ends a paragraph
    }
    caret.endEditBlock();
    setTextCursor(caret);
    horizontalScrollBar()->setValue(0);
    verticalScrollBar()->setValue(0);
    setUpdatesEnabled(true);
}

void RichTextBox::keyPressEvent(QKeyEvent *event) {
    // The caret stands at the end of the report, but reading starts at its beginning. So plain
    // keys scroll the view and leave the caret alone; with Shift they select as usual.
    if (event->modifiers() == Qt::NoModifier || event->modifiers() == Qt::KeypadModifier) {
        QScrollBar *bar = verticalScrollBar();
        switch (event->key()) {
        case Qt::Key_Up:
            bar->triggerAction(QScrollBar::SliderSingleStepSub);
            return;
        case Qt::Key_Down:
            bar->triggerAction(QScrollBar::SliderSingleStepAdd);
            return;
        case Qt::Key_PageUp:
            bar->triggerAction(QScrollBar::SliderPageStepSub);
            return;
        case Qt::Key_PageDown:
        case Qt::Key_Space:
            bar->triggerAction(QScrollBar::SliderPageStepAdd);
            return;
        case Qt::Key_Home:
            bar->triggerAction(QScrollBar::SliderToMinimum);
            return;
        case Qt::Key_End:
            bar->triggerAction(QScrollBar::SliderToMaximum);
            return;
        default:
            break;
        }
    }
    Framed::keyPressEvent(event);
}

void RichTextBox::mousePressEvent(QMouseEvent *event) {
    Framed::mousePressEvent(event);
    emit mouseDown();
}

void RichTextBox::mouseDoubleClickEvent(QMouseEvent *event) { // the second press of two
    Framed::mouseDoubleClickEvent(event);
    emit mouseDown();
}

void RichTextBox::mouseMoveEvent(QMouseEvent *event) {
    Framed::mouseMoveEvent(event);
    emit mouseMoved();
}

void RichTextBox::mouseReleaseEvent(QMouseEvent *event) {
    Framed::mouseReleaseEvent(event);
    emit mouseUp();
    if (viewport()->rect().contains(event->position().toPoint()))
        emit clicked();
}

void RichTextBox::timerEvent(QTimerEvent *event) {
    const bool mouseIsElsewhere = QApplication::activeModalWidget() != nullptr ||
                                  QApplication::activePopupWidget() != nullptr ||
                                  !(QGuiApplication::mouseButtons() & Qt::LeftButton);
    if (mouseIsElsewhere) {
        // A release that only the toolkit hears of: it stops the timer.
        const QPoint place = QCursor::pos();
        QMouseEvent release(QEvent::MouseButtonRelease, viewport()->mapFromGlobal(QPointF(place)),
                            place, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
        Framed::mouseReleaseEvent(&release);
    }
    Framed::timerEvent(event);
}

BoxLook RichTextBox::BoxNow() const {
    return hasFocus() ? BoxLook{Colors::gold, 2, 0} : BoxLook{Colors::dusk, 1, 0};
}
