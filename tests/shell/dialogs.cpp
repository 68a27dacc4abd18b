#include "tests/shell/dialogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QMainWindow>
#include <QPointer>
#include <QTest>
#include <QTimer>

namespace {

SeenMessage LookAt(const QMessageBox &box) {
    SeenMessage seen{box.icon(), box.windowTitle(), box.text(), box.standardButtons(), false};
    for (const QWidget *window : QApplication::topLevelWidgets())
        seen.formWasVisible |=
            qobject_cast<const QMainWindow *>(window) != nullptr && window->isVisible();
    return seen;
}

} // namespace

Dialogs::Dialogs() { qApp->installEventFilter(this); }

void Dialogs::Plan(std::function<void(QDialog &)> act) { plans_.push_back(std::move(act)); }

void Dialogs::PlanToPress(QMessageBox::StandardButton button, SeenMessage *seen) {
    Plan([this, button, seen](QDialog &dialog) {
        auto *box = qobject_cast<QMessageBox *>(&dialog);
        if (box == nullptr || box->button(button) == nullptr) {
            trouble_ << QStringLiteral("the button to press is not there");
            return;
        }
        if (seen != nullptr)
            *seen = LookAt(*box);
        QTest::mouseClick(box->button(button), Qt::LeftButton);
    });
}

void Dialogs::PlanToEscape(SeenMessage *seen) {
    Plan([this, seen](QDialog &dialog) {
        auto *box = qobject_cast<QMessageBox *>(&dialog);
        if (box == nullptr) {
            trouble_ << QStringLiteral("the dialog is no message");
            return;
        }
        if (seen != nullptr)
            *seen = LookAt(*box);
        QTest::keyClick(box, Qt::Key_Escape);
    });
}

QString Dialogs::Trouble() {
    if (!plans_.empty())
        trouble_ << QStringLiteral("%1 planned dialogs never came up").arg(plans_.size());
    plans_.clear();
    return std::exchange(trouble_, {}).join(QStringLiteral("; "));
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
        trouble_ << QStringLiteral("an unexpected dialog \"%1\" %2")
                        .arg(dialog.windowTitle(), box != nullptr ? box->text() : QString());
    } else {
        const auto act = std::move(plans_.front());
        plans_.pop_front();
        act(dialog);
        if (alive && dialog.isVisible())
            trouble_ << QStringLiteral("the dialog was left open");
    }
    if (alive && dialog.isVisible())
        dialog.reject();
}
