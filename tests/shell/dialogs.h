#pragma once

// Plays the user in front of the modal dialogs. A test plans what is done to the next
// dialogs, triggers them, and asks afterwards whether all went as planned: a dialog that
// never came up, one that nobody expected and one that was left open are all trouble.

#include <QMessageBox>
#include <QStringList>

#include <deque>
#include <functional>

class Dialogs : public QObject {
public:
    Dialogs();

    /// Plans what is done to the next dialog. `act` has to end in the dialog being closed.
    void Plan(std::function<void(QDialog &)> act);

    /// Plans to press a button of the next message; NoButton stands for the Escape key. What
    /// the message looks like goes to `seen`: "Critical, Orravane: the text [OK]".
    void PlanToPress(QMessageBox::StandardButton button, QString *seen = nullptr);

    /// Does `act`, which has to bring up one message, presses a button of it, and returns
    /// what it looked like. An empty text when none came up.
    QString MessageOf(const std::function<void()> &act,
                      QMessageBox::StandardButton button = QMessageBox::Ok);

    /// What did not go as planned since the last call. Empty when all did.
    QString Trouble();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void Answer(QDialog &dialog);

    std::deque<std::function<void(QDialog &)>> plans_;
    QStringList trouble_;
};
