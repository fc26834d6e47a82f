#include "tablebinding.h"

#include "bindkey.h"
#include "datasourceconfigmanager.h"
#include "ltexteffectnode.h"
#include "nodecall.h"
#include "tableoutline.h"
#include "tabletemplate.h"

#include <QLoggingCategory>
#include <QVector>

#include <utility>

namespace lctrlsex {

namespace {

Q_LOGGING_CATEGORY(tableLog, "lctrlsex.table")

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

using Values = QVector<std::pair<Setter, QString>>;

/** Sets one value after the other for as long as @p isStill. */
void setAll(const QPointer<Node> &node, const Values &values, const std::function<bool()> &isStill)
{
    for (const auto &[set, value] : values) {
        if (!isStill()) {
            return;
        }
        (node->*set)(value);
    }
}

/** What a template is stored as, in the order of storing. */
Values templateValues(const TableTemplate &cut, int tableType)
{
    switch (tableType) {
    case 1:
        return {{&Node::SetTableRowTemplate, cut.part}, {&Node::SetTableRowPlaceHolder, cut.token}};
    case 2:
        return {{&Node::SetTableColTemplateSeparator, cut.separator},
                {&Node::SetTableColTemplate, cut.part},
                {&Node::SetTableColTemplatePrefix, cut.prefix},
                {&Node::SetTableColTemplateSuffix, cut.suffix},
                {&Node::SetTableColPlaceHolder, cut.token}};
    case 3:
        return {{&Node::SetTableColTemplateSeparator, cut.separator},
                {&Node::SetTableAdaptRowsCols, cut.part},
                {&Node::SetTableAdaptRowsColsTemplatePrefix, cut.prefix},
                {&Node::SetTableAdaptRowsColsTemplateSuffix, cut.suffix},
                {&Node::SetTableAdaptRowsColsPlaceHolder, cut.token}};
    default:
        return {{&Node::SetTableFixedTemplate, cut.part},
                {&Node::SetTableFixedPlaceHolder, cut.token}};
    }
}

} // namespace

TableMarks tableMarksOf(const QPointer<LTextEffectNode> &node)
{
    TableMarks marks;
    const int type = nodeCall(node, &Node::GetTableType);
    marks.tableType = type >= 0 && type <= 3 ? type : 0;
    marks.dataSourceKey = bindKeysOf(node).value(marks.tableType + 1);
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
    Values values;
    for (int i = 0; i < keys.size() && i < int(std::size(Keys)); ++i) {
        values.append({Keys[i].set, keys.at(i)});
    }
    setAll(node, values, isStill);
}

void storeTemplate(const QPointer<LTextEffectNode> &node, const QString &html,
                   const std::function<bool()> &isStill)
{
    storeTemplate(node, OutlinedHtml{html, findTable(html)}, isStill);
}

void storeTemplate(const QPointer<LTextEffectNode> &node, const OutlinedHtml &outlined,
                   const std::function<bool()> &isStill)
{
    const QString &html = outlined.html;
    setAll(node, {{&Node::SetStringContent, html}}, isStill);
    if (!isStill()) {
        return;
    }
    const TableMarks marks = tableMarksOf(node);
    const TableTemplate cut = cutTemplate(html, outlined.found, marks.tableType, marks.hasHeader);
    if (cut.outcome == TableTemplate::NotRead) {
        const MarkupError error = markupError(html);
        qCWarning(tableLog) << "HTML parse error at line" << error.line << "column" << error.column
                            << ":" << error.message;
    }
    if (cut.outcome == TableTemplate::NotRead || cut.outcome == TableTemplate::NoTable) {
        return;
    }
    setAll(node,
           {{&Node::SetTableFixedTemplate, QString()},
            {&Node::SetTableRowTemplate, QString()},
            {&Node::SetTableColTemplate, QString()},
            {&Node::SetTableColTemplatePrefix, QString()},
            {&Node::SetTableColTemplateSuffix, QString()}},
           isStill);
    const bool isBound = isBindable(classifyBindKey(marks.dataSourceKey).kind);
    if (!isBound || cut.outcome != TableTemplate::Cut) {
        return;
    }
    if (marks.tableType == 0 && isStill()) {
        node->SetTableFixedRow(cut.fixedRows);
    }
    setAll(node, templateValues(cut, marks.tableType), isStill);
    setAll(node, {{&Node::SetStringContent, cut.content}}, isStill);
}

QString unifyTables(const QPointer<LTextEffectNode> &node, const QString &html,
                    const std::function<bool()> &isStill)
{
    const FoundTable found = findTable(html);
    if (!found.isWellFormed || !found.hasBody) {
        return html;
    }
    if (!found.hasTable) {
        resetTableBinding(node, isStill);
        return html;
    }
    return unifyTableColumnWidths(html, tableMarksOf(node));
}

void resetTableBinding(const QPointer<LTextEffectNode> &node, const std::function<bool()> &isStill)
{
    setAll(node,
           {{&Node::SetTableBindKey, QString()},
            {&Node::SetTableFixedBindKey, QString()},
            {&Node::SetTableFixedTemplate, QString()},
            {&Node::SetTableFixedPlaceHolder, QString()},
            {&Node::SetTableRowBindKey, QString()},
            {&Node::SetTableRowTemplate, QString()},
            {&Node::SetTableRowPlaceHolder, QString()},
            {&Node::SetTableColBindKey, QString()},
            {&Node::SetTableColTemplate, QString()},
            {&Node::SetTableColPlaceHolder, QString()},
            {&Node::SetTableAdaptRowsColsBindKey, QString()},
            {&Node::SetTableAdaptRowsColsPlaceHolder, QString()},
            {&Node::SetStringContent, QString()}},
           isStill);
    if (isStill()) {
        emit DataSourceConfigManager::instance()->ConfigChanged();
    }
}

} // namespace lctrlsex
