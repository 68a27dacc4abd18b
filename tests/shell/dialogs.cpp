#include "tests/shell/dialogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMetaEnum>
#include <QPointer>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

QString LookOf(const QMessageBox &box) {
    QStringList buttons;
    for (const QAbstractButton *button : box.buttons())
        buttons << button->text().remove(u'&');
    buttons.sort();
    return u"%1, %2: %3 [%4]"_s.arg(
        QLatin1StringView(QMetaEnum::fromType<QMessageBox::Icon>().valueToKey(box.icon())),
        box.windowTitle(), box.text(), buttons.join(u", "_s));
}

} // namespace

Dialogs::Dialogs() { qApp->installEventFilter(this); }

void Dialogs::Plan(std::function<void(QDialog &)> act) { plans_.push_back(std::move(act)); }

void Dialogs::PlanToPress(QMessageBox::StandardButton button, QString *seen) {
    Plan([this, button, seen](QDialog &dialog) {
        const auto *box = qobject_cast<QMessageBox *>(&dialog);
        if (box == nullptr) {
            trouble_ << u"the dialog is no message"_s;
            return;
        }
        if (seen != nullptr)
            *seen = LookOf(*box);
        if (button == QMessageBox::NoButton)
            QTest::keyClick(&dialog, Qt::Key_Escape);
        else if (box->button(button) != nullptr)
            QTest::mouseClick(box->button(button), Qt::LeftButton);
    });
}

QString Dialogs::MessageOf(const std::function<void()> &act, QMessageBox::StandardButton button) {
    QString seen;
    PlanToPress(button, &seen);
    act();
    if (!plans_.empty())
        trouble_ << u"a planned dialog did not come up"_s;
    plans_.clear(); // what they write to is gone with this call
    return seen;
}

QString Dialogs::Trouble() {
    if (!plans_.empty())
        trouble_ << u"%1 planned dialogs never came up"_s.arg(plans_.size());
    plans_.clear();
    return std::exchange(trouble_, {}).join(u"; "_s);
}

bool Dialogs::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::Show) {
        auto *dialog = qobject_cast<QDialog *>(watched);
        if (dialog != nullptr && dialog->isModal())
            // The dialog's own event loop runs this as soon as it waits for the user.
            QTimer::singleShot(0, dialog, [this, dialog] { Answer(*dialog); });
    }
    return false;
}

void Dialogs::Answer(QDialog &dialog) {
    const QPointer<QDialog> alive(&dialog);
    if (plans_.empty()) {
        const auto *box = qobject_cast<QMessageBox *>(&dialog);
        trouble_ << u"an unexpected dialog \"%1\" %2"_s.arg(
            dialog.windowTitle(), box != nullptr ? box->text() : QString());
    } else {
        const auto act = std::move(plans_.front());
        plans_.pop_front();
        act(dialog);
        if (alive && dialog.isVisible())
            trouble_ << u"the dialog was left open"_s;
    }
    if (alive && dialog.isVisible())
        dialog.reject();
}
