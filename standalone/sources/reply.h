#pragma once

#include "datavalue.h"
#include "sourcesettings.h"

#include <atomic>

namespace sources {

/** Set from any thread when nobody wants the result any more. */
using StopFlag = std::atomic<bool>;

/** What bytes mean: a record, or why they mean nothing. */
struct Reply
{
    DataValue value;
    QString error; ///< Fit for a user; empty: there is a value.
    /** It ends in the middle of a line, as a file does that is still being written. */
    bool looksCut = false;
};

/**
 * Makes a value of the content of a file or of an answer. @p format is csv, text or json. Any bytes
 * may be given; never throws. Takes time in proportion to the bytes; call it in a thread of work.
 */
[[nodiscard]] Reply parseReply(const QByteArray &bytes, const QString &format,
                               const SourceSettings &settings, const StopFlag &stop);

/** The record {"rows": table} of comma-separated values. */
[[nodiscard]] Reply parseCsv(const QByteArray &bytes, const SourceSettings &settings,
                             const StopFlag &stop);

/** The record that a JSON text stands for; a list becomes its member "rows". */
[[nodiscard]] Reply parseJson(const QByteArray &bytes);

/** JSON that parseJson() reads as the same record again; members keep their order. */
[[nodiscard]] QByteArray toJson(const DataValue &value);

/** Entries of all lists that stand directly in the record. */
[[nodiscard]] qint64 rowsOf(const DataValue &record);

/** As ==, but fast where both stand on tables; equal ones may be called different. */
[[nodiscard]] bool isSameRecord(const DataValue &left, const DataValue &right);

} // namespace sources
