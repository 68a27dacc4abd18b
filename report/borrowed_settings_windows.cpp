#include "report/borrowed_settings.h"

#include <QSettings>

#include <windows.h>

using namespace Qt::StringLiterals;

// The settings lie in the registry, which cannot be turned elsewhere: what was there is put back.

namespace {

const QString group = u"FileDialog"_s;

} // namespace

BorrowedSettings::BorrowedSettings() {
    QSettings settings(QSettings::UserScope, u"QtProject"_s);
    settings.beginGroup(group);
    for (const QStringList keys = settings.allKeys(); const QString &key : keys)
        original_.insert(key, settings.value(key));
}

BorrowedSettings::~BorrowedSettings() {
    {
        QSettings settings(QSettings::UserScope, u"QtProject"_s);
        settings.remove(group);
        settings.beginGroup(group);
        for (auto entry = original_.cbegin(); entry != original_.cend(); ++entry)
            settings.setValue(entry.key(), entry.value());
        settings.endGroup();
        if (!settings.allKeys().isEmpty())
            return;
    }
    // Each goes only if nothing is below it.
    for (const wchar_t *key :
         {L"Software\\QtProject\\OrganizationDefaults", L"Software\\QtProject"})
        RegDeleteKeyW(HKEY_CURRENT_USER, key);
}
