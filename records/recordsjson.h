#pragma once

#include "dynamicdata.h"

#include <QMap>
#include <QString>
#include <QVector>

namespace lctrlsex {

/** The conditional styles of an item by the name of their data source. */
using ConditionalStyles = QMap<QString, DynamicData>;

/** Why a stored text holds no records. */
struct RecordsFault
{
    QString reason;  ///< In the words of the reader; empty when there is no fault.
    int offset = -1; ///< Byte of the text as UTF-8 where reading ended, -1 where none is to blame.

    [[nodiscard]] explicit operator bool() const { return !reason.isEmpty(); }
};

// Both kinds of records are stored as a JSON array of objects, indented, members in the order of
// the alphabet. Reading takes whatever is readable: members that are missing or of another type
// have their defaults, what is not known is kept and written again. A text that is no JSON array
// holds no records; an empty one is no fault.

/**
 * One flat list of the entries of all sources, in the order of the sources' names. A condition's
 * key is qualified with its source's name, an empty one stays empty.
 */
[[nodiscard]] QString stylesToJson(const ConditionalStyles &styles);

/** Replaces @p styles with the entries of @p json, filed by a StyleFiler. */
RecordsFault stylesFromJson(const QString &json, ConditionalStyles *styles);

/** The calculations in their order. */
[[nodiscard]] QString calculationsToJson(const QVector<CalculationCondition> &calculations);

/** Replaces @p calculations with those of @p json. */
RecordsFault calculationsFromJson(const QString &json, QVector<CalculationCondition> *calculations);

} // namespace lctrlsex
