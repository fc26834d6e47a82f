#include "tablebinding.h"

#include "datasourceconfigmanager.h"
#include "ltexteffectnode.h"
#include "nodecall.h"

namespace lctrlsex {

namespace {

using Node = LTextEffectNode;
using Setter = void (Node::*)(const QString &);

struct KeyAccess
{
    QString (Node::*get)() const;
    Setter set;
};

/** Of any table, then by table type. */
const KeyAccess Keys[] = {
    {&Node::GetTableBindKey, &Node::SetTableBindKey},
    {&Node::GetTableFixedBindKey, &Node::SetTableFixedBindKey},
    {&Node::GetTableRowBindKey, &Node::SetTableRowBindKey},
    {&Node::GetTableColBindKey, &Node::SetTableColBindKey},
    {&Node::GetTableAdaptRowsColsBindKey, &Node::SetTableAdaptRowsColsBindKey},
};

} // namespace

TableMarks tableMarksOf(const QPointer<LTextEffectNode> &node)
{
    TableMarks marks;
    marks.tableType = nodeCall(node, &Node::GetTableType);
    marks.dataSourceKey = bindKeysOf(node).value(qBound(0, marks.tableType, 3) + 1);
    marks.hasHeader = nodeCall(node, &Node::GetTableHeader);
    marks.freezesHeader = nodeCall(node, &Node::GetTableFixedHeader);
    marks.fillsArea = nodeCall(node, &Node::GetTableFillArea);
    return marks;
}

QStringList bindKeysOf(const QPointer<LTextEffectNode> &node)
{
    QStringList keys;
    for (const KeyAccess &key : Keys) {
        keys.append(nodeCall(node, key.get));
    }
    return keys;
}

void setBindKeys(const QPointer<LTextEffectNode> &node, const QStringList &keys,
                 const std::function<bool()> &isStill)
{
    auto value = keys.cbegin();
    for (const KeyAccess &key : Keys) {
        if (value == keys.cend() || !isStill()) {
            return;
        }
        const Setter set = key.set;
        (node->*set)(*value++);
    }
}

void resetTableBinding(const QPointer<LTextEffectNode> &node, const std::function<bool()> &isStill)
{
    static const Setter setters[] = {&Node::SetTableBindKey,
                                     &Node::SetTableFixedBindKey,
                                     &Node::SetTableFixedTemplate,
                                     &Node::SetTableFixedPlaceHolder,
                                     &Node::SetTableRowBindKey,
                                     &Node::SetTableRowTemplate,
                                     &Node::SetTableRowPlaceHolder,
                                     &Node::SetTableColBindKey,
                                     &Node::SetTableColTemplate,
                                     &Node::SetTableColPlaceHolder,
                                     &Node::SetTableAdaptRowsColsBindKey,
                                     &Node::SetTableAdaptRowsColsPlaceHolder,
                                     &Node::SetStringContent};
    for (const Setter setter : setters) {
        if (!isStill()) {
            return;
        }
        (node->*setter)(QString());
    }
    if (isStill()) {
        emit DataSourceConfigManager::instance()->ConfigChanged();
    }
}

} // namespace lctrlsex
