#include "shell/update_reminder.h"

#include "core/clock.h"

#include <QDateTime>
#include <QSettings>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

const QString lastUpdateKey = u"LastUpdate"_s;

QDate Today() {
    const std::chrono::year_month_day date = modReadings::Clock::Date();
    return {static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day()))};
}

} // namespace

bool UpdateReminder::IsDue() {
    const QDateTime last =
        QDateTime::fromString(QSettings().value(lastUpdateKey).toString(), Qt::ISODate);
    if (!last.isValid()) {
        Settle();
        return false;
    }
    return std::abs(last.date().daysTo(Today())) >= quietDays;
}

void UpdateReminder::Settle() {
    QSettings().setValue(lastUpdateKey,
                         QDateTime(Today(), QTime::currentTime()).toString(Qt::ISODate));
}
