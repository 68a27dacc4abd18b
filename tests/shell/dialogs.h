#pragma once

// Plays the user in front of the modal dialogs. A test plans what is done to the next
// dialogs, triggers them, and asks afterwards whether all went as planned: a dialog that
// never came up, one that nobody expected and one that was left open are all trouble.

#include <QMessageBox>
#include <QObject>
#include <QString>
#include <QStringList>

#include <deque>
#include <functional>

class QDialog;

/// What a message looked like on screen.
struct SeenMessage {
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QString title;
    QString text;
    QMessageBox::StandardButtons buttons = QMessageBox::NoButton;
    bool formWasVisible = false; ///< whether the main window was on screen by then
};

class Dialogs : public QObject {
public:
    Dialogs();

    /// Plans what is done to the next dialog. `act` has to end in the dialog being closed.
    void Plan(std::function<void(QDialog &)> act);

    /// Plans to look at the next message and press one of its buttons.
    void PlanToPress(QMessageBox::StandardButton button, SeenMessage *seen = nullptr);

    /// Plans to look at the next message and press Escape.
    void PlanToEscape(SeenMessage *seen = nullptr);

    /// What did not go as planned since the last call. Empty when all did.
    QString Trouble();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void Answer(QDialog &dialog);

    std::deque<std::function<void(QDialog &)>> plans_;
    QStringList trouble_;
};

/// Fails the test unless every planned dialog came up and no other did.
#define VERIFY_DIALOGS(dialogs)                                                                    \
    do {                                                                                           \
        const QString trouble = (dialogs).Trouble();                                               \
        QVERIFY2(trouble.isEmpty(), qPrintable(trouble));                                          \
    } while (false)

/// Compares a message with how it has to look.
#define COMPARE_MESSAGE(seen, expectedIcon, expectedText, expectedButtons)                         \
    do {                                                                                           \
        QCOMPARE((seen).text, QString(expectedText));                                              \
        QCOMPARE((seen).title, QStringLiteral("Orravane"));                                        \
        QCOMPARE((seen).icon, expectedIcon);                                                       \
        QCOMPARE((seen).buttons, QMessageBox::StandardButtons(expectedButtons));                   \
    } while (false)
