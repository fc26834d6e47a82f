#pragma once

#include "datasnapshot.h"
#include "datasourceconfig.h"

namespace sources {

/** How a source is doing. */
struct SourceHealth
{
    enum State {
        Off,      ///< Not started, disabled, or without a kind that could read it.
        Starting, ///< Nothing was read yet.
        Good,     ///< The last attempt went well.
        Stale,    ///< It failed; former data is used.
        Failed,   ///< It failed, and there is no data.
    };
    State state = Off;
    QString error;       ///< Of the last attempt, fit for a user; empty when it went well.
    QDateTime goodAt;    ///< When an attempt went well last, in UTC; an age is counted from here.
    QDateTime nextTry;   ///< In UTC; invalid when none is planned.
    qint64 latency = -1; ///< Milliseconds that the last good attempt took; -1: there was none.
    qint64 rows = 0;
    qint64 bytes = 0;
    int failures = 0; ///< In a row.

    /** Milliseconds since an attempt went well; -1: none ever did. */
    [[nodiscard]] qint64 age() const
    {
        return goodAt.isValid() ? goodAt.msecsTo(QDateTime::currentDateTimeUtc()) : -1;
    }
};

/** What a source's thread hands over: the newest of all. */
struct SourceUpdate
{
    SourceData data;
    QVector<DataSourceKey> keys; ///< That the data offers.
    SourceHealth health;
    quint64 dataVersion = 0; ///< Another one for other data, keys or staleness.
};

} // namespace sources
