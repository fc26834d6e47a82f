#pragma once

#include "conditionexpression.h"
#include "dynamicdata.h"

#include <QVector>

namespace lctrlsex {

/**
 * One condition as a row of the styling dialog edits it. Only the expression is taken apart;
 * everything else stays as it was stored until somebody sets it, also what no editor can show.
 */
struct ConditionRow
{
    ConditionExpression expression;
    FontStyle style;
    /** Name of the input source; in further conditions empty for that of the first one. */
    QString key;
    /** Members of the stored record that nobody here knows. */
    QJsonObject others;
};

/** The style of a condition that was just added: @p family, 16 points, red on black. */
[[nodiscard]] FontStyle newConditionStyle(const QString &family);

[[nodiscard]] ConditionRow conditionRow(const SpanCondition &stored);

/**
 * The record of @p row. A pattern that looks like a comparison or an interval is stored as one; an
 * empty pattern leaves the list of expressions empty.
 */
[[nodiscard]] SpanCondition toCondition(const ConditionRow &row);

/**
 * The rows of an item's @p conditions, at least one. Further ones that repeat the first one's
 * source lose it, because that is what an empty key means.
 */
[[nodiscard]] QVector<ConditionRow> conditionRows(const QVector<SpanCondition> &conditions,
                                                  const QString &family);

/** @p next, which followed @p removed, as the first condition of their item. */
[[nodiscard]] ConditionRow promoted(ConditionRow next, const ConditionRow &removed);

} // namespace lctrlsex
