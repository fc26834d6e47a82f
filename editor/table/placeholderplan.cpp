#include "placeholderplan.h"

namespace lctrlsex {

namespace {

QString placeholder(const QString &name)
{
    return QLatin1String("${") + name + QLatin1Char('}');
}

/** The text of the cell at @p index along the template; null when it stays. */
QString textAt(const TableBound &bound, int index)
{
    if (!bound.isList) {
        return index == 0 ? placeholder(QStringLiteral("0")) : QString();
    }
    // Kept on purpose because players know it so: columns without a header have no names.
    const bool hasNames = bound.key.kind > 20 && !bound.key.fields.isEmpty() &&
                          (bound.tableType != 2 || bound.hasHeader);
    if (!hasNames) {
        return placeholder(QString::number(index));
    }
    return index < bound.key.fields.size() ? placeholder(bound.key.fields.at(index)) : QString();
}

} // namespace

bool deliversLists(int kind, const KeyDescriptor *descriptor)
{
    const bool isListOfTexts =
        descriptor != nullptr && descriptor->sourceType != 5 && descriptor->keyType == 2;
    return kind > 20 || (kind > 10 && isListOfTexts);
}

QVector<CellText> placeholderPlan(const TableBound &bound, int rows, int columns)
{
    QVector<CellText> plan;
    // Kept on purpose because players know it so: the header of a table that grows both ways has
    // placeholders too.
    const bool isAdaptive = bound.tableType == 3;
    const int line = bound.hasHeader && !isAdaptive ? 1 : 0;
    const bool isColumn = bound.tableType == 2;
    if (line >= (isColumn ? columns : rows)) {
        return plan;
    }
    for (int i = 0; i < (isColumn ? rows : columns); ++i) {
        const QString text = isAdaptive ? placeholder(QStringLiteral("i")) : textAt(bound, i);
        if (!text.isNull()) {
            plan.append(isColumn ? CellText{i, line, text} : CellText{line, i, text});
        }
    }
    return plan;
}

} // namespace lctrlsex
