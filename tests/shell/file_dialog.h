#pragma once

// What a user does with the toolkit's file dialog.

#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

inline QLineEdit *NameBoxOf(QDialog &dialog) {
    auto *box = dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    if (box == nullptr)
        qFatal("the dialog has no box for the name");
    return box;
}

inline void Press(QDialog &dialog, QDialogButtonBox::StandardButton button) {
    QTest::mouseClick(dialog.findChild<QDialogButtonBox *>()->button(button), Qt::LeftButton);
}

inline void Cancel(QDialog &dialog) { Press(dialog, QDialogButtonBox::Cancel); }

/// Puts a whole name into the dialog and presses Save. Typed key by key it would have the
/// dialog's list of completions drop down, which is a window of its own.
inline void SaveAs(QDialog &dialog, const QString &path) {
    NameBoxOf(dialog)->setText(path);
    Press(dialog, QDialogButtonBox::Save);
}
