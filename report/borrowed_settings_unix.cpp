#include "report/borrowed_settings.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>

using namespace Qt::StringLiterals;

// The dialog works on a copy of the file.

BorrowedSettings::BorrowedSettings()
    : original_(QSettings(QSettings::UserScope, u"QtProject"_s).fileName()) {
    if (!copy_.isValid())
        return;
    const QFileInfo shared(original_);
    QFile::copy(original_, copy_.filePath(shared.fileName()));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, copy_.path());
}

BorrowedSettings::~BorrowedSettings() {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       QFileInfo(original_).absolutePath());
}
