#pragma once

#include "datavalue.h"

#include <QDateTime>
#include <QMap>
#include <QString>

namespace sources {

/** What one source delivered last. */
struct SourceData
{
    DataValue value;   ///< Of the whole source: a record, whose members are its keys' first parts.
    QDateTime takenAt; ///< When it was read, in UTC; invalid before the first reading.
    bool isStale = false; ///< Of a former reading: the last attempt failed.

    [[nodiscard]] bool operator==(const SourceData &other) const
    {
        return value == other.value && takenAt == other.takenAt && isStale == other.isStale;
    }
};

/** What all enabled sources delivered, by their names: a value that does not change any more. */
using DataSnapshot = QMap<QString, SourceData>;

} // namespace sources
