#include "shell/link_label.h"

#include "shell/drawing.h"
#include "shell/keys.h"

#include <QAccessibleWidget>
#include <QMouseEvent>
#include <QPainter>

namespace {

/// What assistive technology sees: a link that can be pressed.
class AccessibleLink final : public QAccessibleWidget {
public:
    explicit AccessibleLink(LinkLabel *link)
        : QAccessibleWidget(link, QAccessible::Link), link_(link) {}

    QString text(QAccessible::Text kind) const override {
        const bool captioned = kind == QAccessible::Name && link_->accessibleName().isEmpty();
        return captioned ? link_->text() : QAccessibleWidget::text(kind);
    }
    QStringList actionNames() const override {
        return QStringList(pressAction()) + QAccessibleWidget::actionNames();
    }
    void doAction(const QString &action) override {
        if (action == pressAction())
            emit link_->clicked();
        else
            QAccessibleWidget::doAction(action);
    }

private:
    LinkLabel *link_;
};

QAccessibleInterface *MakeAccessible(const QString &, QObject *object) {
    auto *link = qobject_cast<LinkLabel *>(object);
    return link != nullptr ? new AccessibleLink(link) : nullptr;
}

} // namespace

LinkLabel::LinkLabel(const QString &text, QWidget *parent) : QLabel(text, parent) {
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover); // painted again as the mouse comes and goes
    [[maybe_unused]] static const bool installed = [] {
        QAccessible::installFactory(MakeAccessible);
        return true;
    }();
}

void LinkLabel::mouseReleaseEvent(QMouseEvent *event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit clicked();
}

void LinkLabel::keyPressEvent(QKeyEvent *event) {
    if (!IsEnter(*event) && event->key() != Qt::Key_Space)
        QLabel::keyPressEvent(event);
    else if (!event->isAutoRepeat()) // a key that is held down would open page after page
        emit clicked();
}

void LinkLabel::paintEvent(QPaintEvent *event) {
    QLabel::paintEvent(event);
    if (text().isEmpty()) { // lblHyperlink: the text is part of the picture below
        if (hasFocus()) {
            QPainter painter(this);
            DrawFocusFrame(painter, rect(), 4);
        }
    } else if (hasFocus() || underMouse()) { // a line, as the label has no room for a frame
        QPainter painter(this);
        DrawGround(painter, QRect(0, height() - 1, sizeHint().width(), 1),
                   palette().color(foregroundRole()));
    }
}
