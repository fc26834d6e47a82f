#include "conditionitem.h"

#include "celllabel.h"

#include <QApplication>
#include <QFontMetrics>
#include <QStyle>
#include <QTreeWidget>

namespace lctrlsex {

namespace {

constexpr int rowHeight = 32;
constexpr int widestName = 260;
constexpr int nameMargin = 20;
/** More of a name does not fit any screen. */
constexpr int mostShown = 1000;

int nameWidth(const QTreeWidget *tree, const QString &name)
{
    const QFontMetrics metrics(tree != nullptr ? tree->font() : QFont());
    return metrics.horizontalAdvance(name.left(mostShown)) + nameMargin;
}

} // namespace

ConditionItem::ConditionItem(const QString &name, ConditionRow condition)
    : ConditionItem(std::move(condition))
{
    formerName = name;
    setText(NameColumn, name);
    setText(SerialColumn, QStringLiteral("1"));
    setFlags(flags() | Qt::ItemIsEditable);
    setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
}

ConditionItem::ConditionItem(ConditionRow condition)
    : QTreeWidgetItem(UserType)
    , row(std::make_shared<ConditionRow>(std::move(condition)))
{
    setFlags(flags() & ~Qt::ItemIsEditable);
    setTextAlignment(SerialColumn, Qt::AlignCenter);
}

QVariant ConditionItem::data(int column, int role) const
{
    if (role == Qt::SizeHintRole) {
        const int width = column == NameColumn ? nameWidth(treeWidget(), text(NameColumn)) : 0;
        return QSize(qMin(width, widestName), rowHeight);
    }
    if (role == Qt::ToolTipRole && column == NameColumn &&
        nameWidth(treeWidget(), text(NameColumn)) > widestName) {
        return plainToolTip(text(NameColumn));
    }
    if (column == SerialColumn && role == Qt::DecorationRole && isWinner) {
        return QApplication::style()->standardIcon(QStyle::SP_DialogApplyButton);
    }
    if (column == SerialColumn && role == Qt::ToolTipRole) {
        return plainToolTip(answer.explanation);
    }
    return QTreeWidgetItem::data(column, role);
}

QVector<SpanCondition> conditionsOf(const ConditionItem *item)
{
    QVector<SpanCondition> conditions;
    conditions.reserve(item->childCount() + 1);
    conditions.append(toCondition(*item->row));
    for (int i = 0; i < item->childCount(); ++i) {
        conditions.append(toCondition(*childOf(item, i)->row));
    }
    return conditions;
}

} // namespace lctrlsex
