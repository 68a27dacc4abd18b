#include "shell/rich_text_box.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTextBlock>

RichTextBox::RichTextBox(QWidget *parent) : QTextEdit(parent), caret_(document()) {
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
    setAccessibleName(tr("Report"));
    viewport()->setMouseTracking(true);
    connect(this, &QTextEdit::textChanged, this, &RichTextBox::changed);
}

void RichTextBox::SetText(std::u16string_view text) {
    caret_.select(QTextCursor::Document);
    caret_.removeSelectedText();
    SetSelectedText(std::u16string(text));
}

void RichTextBox::SetBold(bool bold) {
    caretFormat_.setFontWeight(bold ? QFont::Bold : QFont::Normal);
}

void RichTextBox::SetColor(modReadings::Ink ink) {
    caretFormat_.setForeground(QColor(ink.red, ink.green, ink.blue));
}

void RichTextBox::SetSelectedText(std::u16string text) {
    if (!text.empty()) // "\r\n" becomes one paragraph mark
        caret_.insertText(QStringView(text).toString(), caretFormat_);
}

void RichTextBox::WriteAsOne(const std::function<void(modReadings::RichTextPane &)> &write) {
    setUpdatesEnabled(false);
    caret_.beginEditBlock();
    write(*this);
    caret_.endEditBlock();
    setTextCursor(caret_);
    horizontalScrollBar()->setValue(0);
    verticalScrollBar()->setValue(0);
    setUpdatesEnabled(true);
}

std::vector<modReadings::Run> RichTextBox::Runs() const {
    std::vector<modReadings::Run> runs;
    const auto append = [&runs](std::u16string_view text, bool bold, modReadings::Ink ink) {
        if (!runs.empty() && runs.back().bold == bold && runs.back().ink == ink)
            runs.back().text += text;
        else
            runs.push_back({std::u16string(text), bold, ink});
    };
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        if (block != document()->begin())
            append(modReadings::lineBreak, runs.empty() ? false : runs.back().bold,
                   runs.empty() ? modReadings::Ink{} : runs.back().ink);
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextCharFormat format = part.fragment().charFormat();
            const QColor color = format.foreground().style() == Qt::NoBrush
                                     ? QColor(Qt::black)
                                     : format.foreground().color();
            append(part.fragment().text().toStdU16String(), format.fontWeight() >= QFont::Bold,
                   {static_cast<std::uint8_t>(color.red()),
                    static_cast<std::uint8_t>(color.green()),
                    static_cast<std::uint8_t>(color.blue())});
        }
    }
    return runs;
}

void RichTextBox::keyPressEvent(QKeyEvent *event) {
    // The caret stands at the end while the reader is at the beginning, so plain keys scroll
    // and leave the caret alone; with Shift they select as usual.
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
    QTextEdit::keyPressEvent(event);
}

void RichTextBox::mousePressEvent(QMouseEvent *event) {
    QTextEdit::mousePressEvent(event);
    emit mouseDown();
}

void RichTextBox::mouseMoveEvent(QMouseEvent *event) {
    QTextEdit::mouseMoveEvent(event);
    emit mouseMoved();
}

void RichTextBox::mouseReleaseEvent(QMouseEvent *event) {
    QTextEdit::mouseReleaseEvent(event);
    emit mouseUp();
    if (viewport()->rect().contains(event->position().toPoint()))
        emit clicked();
}
