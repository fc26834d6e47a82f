#include "storeditem.h"

#include "ltexteffectnode.h"
#include "nodepage.h"

namespace player {

static void readTemplates(const LTextEffectNode &node, StoredItem *item)
{
    switch (item->tableType) {
    case StoredItem::FixedForm:
        item->bindKey = node.GetTableFixedBindKey();
        item->placeholder = node.GetTableFixedPlaceHolder();
        item->rowTemplate = node.GetTableFixedTemplate();
        item->fixedRows = node.GetTableFixedRow();
        break;
    case StoredItem::Rows:
        item->bindKey = node.GetTableRowBindKey();
        item->placeholder = node.GetTableRowPlaceHolder();
        item->rowTemplate = node.GetTableRowTemplate();
        break;
    case StoredItem::Columns:
        item->bindKey = node.GetTableColBindKey();
        item->placeholder = node.GetTableColPlaceHolder();
        item->cellTemplates = node.GetTableColTemplate();
        item->prefixes = node.GetTableColTemplatePrefix();
        item->suffixes = node.GetTableColTemplateSuffix();
        break;
    case StoredItem::Adaptive:
        item->bindKey = node.GetTableAdaptRowsColsBindKey();
        item->placeholder = node.GetTableAdaptRowsColsPlaceHolder();
        item->cellTemplates = node.GetTableAdaptRowsCols();
        item->prefixes = node.GetTableAdaptRowsColsTemplatePrefix();
        item->suffixes = node.GetTableAdaptRowsColsTemplateSuffix();
        break;
    default:
        break;
    }
    item->separator = node.GetTableColTemplateSeparator();
}

StoredItem storedItemOf(const LTextEffectNode *node)
{
    StoredItem item;
    if (node == nullptr) {
        return item;
    }
    item.content = node->GetStringContent();
    item.tableType = node->GetTableType();
    readTemplates(*node, &item);
    item.hasHeader = node->GetTableHeader();
    item.freezesHeader = node->GetTableFixedHeader();
    item.fillsArea = node->GetTableFillArea();
    item.turnsHorizontally = node->TextPageTurnDirection() == 1;
    item.listSeparator = node->GetTableListTypeSeparator();
    item.source = node->GetDataSource();
    item.styles = node->GetSpanConditions();
    item.calculations = node->GetCalculation();
    item.text = lctrlsex::textSettingsOf(node);
    return item;
}

} // namespace player
