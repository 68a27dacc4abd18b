#pragma once

// The toolkit's file dialog notes things in settings that all programs of the toolkit share,
// such as the folders that were looked at. While this object lives, that changes nothing for
// good: what the dialog notes goes with it. One implementation for each kind of system.

#include <QString>
#include <QTemporaryDir>
#include <QVariantMap>

class BorrowedSettings {
public:
    BorrowedSettings();
    ~BorrowedSettings();
    Q_DISABLE_COPY_MOVE(BorrowedSettings)

private:
#ifdef Q_OS_WIN
    QVariantMap original_; ///< what the dialogs of other programs have noted
#else
    const QString original_; ///< the shared file
    const QTemporaryDir copy_;
#endif
};
