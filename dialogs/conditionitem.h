#pragma once

#include "condition.h"
#include "conditionrow.h"

#include <QTreeWidgetItem>

#include <memory>

namespace lctrlsex {

/** The columns of the styling dialog's tree. */
enum ConditionColumn {
    NameColumn,
    SourceColumn,
    SerialColumn,
    TypeColumn,
    ExpressionColumn,
    FontColumn,
    FontSizeColumn,
    ColorColumn,
    BackgroundColumn,
    BoldColumn,
    ItalicColumn,
    UnderlineColumn,
    ButtonColumn,
    ConditionColumnCount
};

/**
 * A row of the styling dialog: a further condition, or a configuration item with its first one.
 *
 * What is edited stands in the row's record, whether or not its widgets were made. The widgets
 * share it, because they outlive a removed row until the event loop comes by.
 */
class ConditionItem : public QTreeWidgetItem
{
public:
    /** A configuration item, which has a name. */
    ConditionItem(const QString &name, ConditionRow condition);
    /** A further condition; it is not editable. */
    explicit ConditionItem(ConditionRow condition);

    /** All rows are of one height, and a name of ten thousand characters is not a column's width.
     */
    [[nodiscard]] QVariant data(int column, int role) const override;

    std::shared_ptr<ConditionRow> row; ///< Never null.
    /** What an item is called again when its name is deleted. */
    QString formerName;
    /** Identifier that the item was loaded with; empty for a new one. */
    QString formerId;
    /** Members of the stored item that nobody here knows. */
    QJsonObject others;
    /** What became of the value that is tried; shown once the view is updated. */
    ConditionAnswer answer;
    bool isWinner = false; ///< The condition applies; one that holds too comes behind it.

private:
    Q_DISABLE_COPY(ConditionItem)
};

/** The conditions of @p item, its own first. */
[[nodiscard]] QVector<SpanCondition> conditionsOf(const ConditionItem *item);

/** Child @p index of @p item. */
[[nodiscard]] inline ConditionItem *childOf(const QTreeWidgetItem *item, int index)
{
    return static_cast<ConditionItem *>(item->child(index));
}

} // namespace lctrlsex
