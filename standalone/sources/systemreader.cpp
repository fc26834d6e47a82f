#include "systemreader.h"

#include <QDateTime>
#include <QLocale>
#include <QSysInfo>

#include <sys/sysinfo.h>

namespace sources {

void SystemReader::read()
{
    const QDateTime now = QDateTime::currentDateTime();
    struct sysinfo system = {};
    const qint64 uptime = ::sysinfo(&system) == 0 ? qint64(system.uptime) : 0;
    const QVector<QPair<const char *, QString>> texts{
        {"time", now.toString(QStringLiteral("HH:mm:ss"))},
        {"date", now.toString(QStringLiteral("yyyy-MM-dd"))},
        {"weekday", QLocale().dayName(now.date().dayOfWeek())},
        {"year", now.toString(QStringLiteral("yyyy"))},
        {"month", now.toString(QStringLiteral("MM"))},
        {"day", now.toString(QStringLiteral("dd"))},
        {"hour", now.toString(QStringLiteral("HH"))},
        {"minute", now.toString(QStringLiteral("mm"))},
        {"second", now.toString(QStringLiteral("ss"))},
        {"counter", QString::number(++m_ticks)},
        {"host", QSysInfo::machineHostName()},
        {"uptime", QString::number(uptime)},
    };
    QVector<DataValue::Member> members;
    for (const auto &text : texts) {
        members.append({QString::fromLatin1(text.first), DataValue::fromText(text.second)});
    }
    Reading reading;
    reading.outcome = Reading::Arrived;
    reading.value = DataValue::fromRecord(members);
    emit finished(reading);
}

int SystemReader::nextInterval() const
{
    // A moment behind the full second: a timer that comes early would show the old one.
    return 1001 - int(QDateTime::currentMSecsSinceEpoch() % 1000);
}

} // namespace sources
