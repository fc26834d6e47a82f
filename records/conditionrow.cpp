#include "conditionrow.h"

namespace lctrlsex {

FontStyle newConditionStyle(const QString &family)
{
    FontStyle style;
    style.fontName = family;
    style.fontSize = 16;
    style.color = 255;
    return style;
}

ConditionRow conditionRow(const SpanCondition &stored)
{
    ConditionRow row;
    row.expression = parseExpression(stored.expression.value(0));
    row.style = stored.fontStyle;
    row.key = stored.key;
    row.others = stored.others;
    return row;
}

SpanCondition toCondition(const ConditionRow &row)
{
    SpanCondition condition;
    condition.type = row.expression.kind == ConditionExpression::Pattern ? 1 : 0;
    const QString text = buildExpression(row.expression);
    if (!text.isEmpty()) {
        condition.expression.append(text);
    }
    condition.fontStyle = row.style;
    condition.key = row.key;
    condition.others = row.others;
    return condition;
}

QVector<ConditionRow> conditionRows(const QVector<SpanCondition> &conditions, const QString &family)
{
    QVector<ConditionRow> rows;
    for (const SpanCondition &condition : conditions) {
        rows.append(conditionRow(condition));
        if (rows.size() > 1 && rows.last().key == rows.constFirst().key) {
            rows.last().key.clear();
        }
    }
    if (rows.isEmpty()) {
        rows.append(ConditionRow());
        rows.last().style = newConditionStyle(family);
    }
    return rows;
}

ConditionRow promoted(ConditionRow next, const ConditionRow &removed)
{
    if (next.key.isEmpty()) {
        next.key = removed.key;
    }
    return next;
}

} // namespace lctrlsex
