#include "conditionalstyles.h"
#include "datasourceconfigmanager.h"
#include "edittoolbar.h"
#include "fieldvalues.h"
#include "formatcommands.h"
#include "lrichviewedit.h"
#include "ltexteffectnode.h"
#include "nodecall.h"
#include "nodepublisher.h"
#include "table/bindingmenus.h"
#include "table/tablecommands.h"
#include "textedit.h"

#include <QAction>
#include <QInputDialog>
#include <QMenu>
#include <QMessageBox>

using lctrlsex::nodeCall;
using lctrlsex::TableCommands;

// Tables

bool TextEdit::hasTable() const
{
    return m_table->hasTable();
}

void TextEdit::InsertTable()
{
    if (hasTable()) {
        // On the heap and guarded: the host may delete the editor while the box is open.
        QPointer<QMessageBox> box = new QMessageBox(
            QMessageBox::Warning, tr("Insert Table"),
            tr("Only one table can be inserted per editor."), QMessageBox::Ok, this);
        box->exec();
        delete box;
        return;
    }
    LUM_EditInterface::LTableProperties record = m_view->tableSettings();
    record.borderWidth = qMax(1, record.borderWidth);
    record.cellPadding = qMax(1, record.cellPadding);
    const int align = nodeCall(m_node, &LTextEffectNode::GetContentHAlign);
    if (m_table->insert(record, Qt::Alignment(align))) {
        emit m_view->TableTypeChangeSignal(record);
    }
}

void TextEdit::TablePropModfy()
{
    const LUM_EditInterface::LTableProperties present = m_table->record();
    LUM_EditInterface::LTableProperties record = present;
    if (m_node != nullptr) {
        record = m_node->GetTableProperties();
        record.rows = present.rows; // a stale number of rows would throw rows away
        record.columns = present.columns;
    }
    ModfTablePropertiesed(&record);
}

void TextEdit::ModfTablePropertiesed(LUM_EditInterface::LTableProperties *properties)
{
    if (properties != nullptr && m_table->current() != nullptr) {
        m_table->reformat(*properties);
        emit m_view->TableTypeChangeSignal(*properties);
    }
}

void TextEdit::TableMenuShow()
{
    const auto *menu = qobject_cast<QMenu *>(sender());
    if (menu == nullptr) {
        return;
    }
    const TableCommands::MenuState state =
        m_table->menuState(nodeCall(m_node, &LTextEffectNode::GetTableType));
    const auto actions = menu->findChildren<QAction *>();
    for (QAction *action : actions) {
        const int code = action->data().toInt();
        if (code >= TableCommands::InsertRowAbove && code <= TableCommands::DeleteRow) {
            action->setEnabled(state.rows);
        } else if (code >= TableCommands::InsertColumnLeft && code <= TableCommands::DeleteColumn) {
            action->setEnabled(state.columns);
        } else if (code == TableCommands::Merge) {
            action->setEnabled(state.merge);
        }
    }
}

void TextEdit::TableOperate()
{
    const auto *action = qobject_cast<QAction *>(sender());
    if (action == nullptr) {
        return;
    }
    const int type = nodeCall(m_node, &LTextEffectNode::GetTableType);
    const bool isVertical = action->text() == tr("Split Vertically");
    if (type == 0 && (isVertical || action->text() == tr("Split Horizontally"))) {
        TableSplitCell(isVertical);
    } else {
        m_table->operate(action->data().toInt(), type);
    }
}

void TextEdit::TableSplitCell(bool vert)
{
    const QPointer<TextEdit> self = this;
    const int attachment = m_attachment;
    QPointer<QInputDialog> dialog = new QInputDialog(this);
    dialog->setInputMode(QInputDialog::IntInput);
    dialog->setWindowTitle(vert ? tr("Split Vertically") : tr("Split Horizontally"));
    dialog->setLabelText(vert ? tr("Please enter the number of rows: ")
                              : tr("Please enter the number of columns: "));
    dialog->setIntRange(2, 100);
    dialog->setIntValue(2);
    const bool isAccepted = dialog->exec() == QDialog::Accepted && dialog != nullptr;
    const int number = isAccepted ? dialog->intValue() : 0;
    delete dialog;
    if (self != nullptr && isAttached(attachment) && isAccepted) {
        // Kept on purpose because users count so: the number less one is the number of parts.
        m_table->splitCell(vert, number - 1);
    }
}

void TextEdit::OnTableInfoChange(const LUM_EditInterface::LTableProperties &prop)
{
    const int attachment = m_attachment;
    if (m_initialising || m_node.isNull()) {
        return;
    }
    m_node->SetTableType(prop.type);
    if (isAttached(attachment)) {
        m_node->SetTableHeader(prop.header);
    }
    if (isAttached(attachment)) {
        m_node->SetTableFixedHeader(prop.fixedHeader);
    }
    if (isAttached(attachment)) {
        m_node->SetTableFillArea(prop.fillArea);
    }
    if (isAttached(attachment)) {
        m_node->SetPageTurnDirection(prop.pageTurnDirection);
    }
    if (isAttached(attachment)) {
        m_view->setTableSettings(prop);
        m_publisher->forceStore();
        TextDrawImage();
    }
}

// Data

void TextEdit::OnSourceChanged()
{
    RefreshDataSource();
}

void TextEdit::OnFieldChanged()
{
    ProcessPaddingHtmlTable();
}

void TextEdit::RefreshDataSource()
{
    const int attachment = m_attachment;
    if (m_node.isNull()) {
        return;
    }
    if (m_initialising) {
        m_fields->forget();
    }
    const bool isNew = m_fields->read(DataSourceConfigManager::instance()->GetConfig(),
                                      nodeCall(m_node, &LTextEffectNode::GetDataSource),
                                      nodeCall(m_node, &LTextEffectNode::GetCalculation));
    // A text without a table has this announced at every key.
    if (isAttached(attachment) && isNew) {
        m_binding->rebuild(m_fields->index, m_fields->expressions);
        UpdateBindKeys();
    }
}

void TextEdit::UpdateField(QMap<QString, QString> &values)
{
    m_fields->fromClient = values;
    UpdateBindKeys();
}

void TextEdit::UpdateExpression(QMap<QString, QString> &values)
{
    m_fields->expressions = values;
    m_binding->rebuild(m_fields->index, m_fields->expressions);
    UpdateBindKeys();
}

void TextEdit::UpdateConditionStyles(QMap<QString, QString> &styles)
{
    m_binding->setConditionStyles(styles);
}

void TextEdit::LoadConditionStyles()
{
    lctrlsex::ConditionalStyles styles;
    lctrlsex::stylesFromJson(nodeCall(m_node, &LTextEffectNode::GetSpanConditions), &styles);
    m_binding->setConditionStyles(lctrlsex::styleNames(styles));
}

void TextEdit::ProcessPaddingHtmlTable()
{
    const int attachment = m_attachment;
    if (m_node.isNull()) {
        return;
    }
    QString key;
    switch (nodeCall(m_node, &LTextEffectNode::GetTableType)) {
    case 1:
        key = nodeCall(m_node, &LTextEffectNode::GetTableRowBindKey);
        break;
    case 2:
        key = nodeCall(m_node, &LTextEffectNode::GetTableColBindKey);
        break;
    case 3:
        key = nodeCall(m_node, &LTextEffectNode::GetTableAdaptRowsColsBindKey);
        break;
    default:
        key = nodeCall(m_node, &LTextEffectNode::GetTableFixedBindKey);
    }
    const auto descriptors = m_fields->index.descriptors();
    const auto known = descriptors.constFind(key);
    if (known != descriptors.constEnd() && isAttached(attachment)) {
        const bool isText = *known == lctrlsex::KeyDescriptor{1, 1};
        m_node->SetTableListTypeSeparator(isText ? QStringLiteral(",") : QStringLiteral("\n"));
    }
    if (isAttached(attachment)) {
        emit TableBindFieldChanged();
    }
    if (isAttached(attachment)) {
        m_publisher->forceStore();
        TextDrawImage();
    }
}

void TextEdit::ONDataSourceNameChanged(QAction *action)
{
    const int attachment = m_attachment;
    if (action == nullptr) {
        return;
    }
    nodeCall(m_node, &LTextEffectNode::SetDataSource, action->text());
    if (isAttached(attachment)) {
        RefreshDataSource();
    }
}

void TextEdit::ONFieldNameChanged(QAction *action)
{
    if (action != nullptr) {
        ApplyFormatAndInsert(action->data().toString());
    }
}

void TextEdit::ONInsertFieldNameChanged(const QString &field)
{
    ApplyFormatAndInsert(field);
}

void TextEdit::ApplyFormatAndInsert(const QString &field)
{
    if (field.isEmpty() || m_view->isReadOnly()) {
        return;
    }
    QTextCursor cursor = m_view->textCursor();
    lctrlsex::insertField(cursor, field, m_toolBar->typingStyle(m_textColor));
    m_view->setTextCursor(cursor);
    UpdateBindKeys();
    m_view->setFocus();
}

void TextEdit::ONConditionStyleChanged(QAction *action)
{
    if (action == nullptr || !m_view->textCursor().hasSelection()) {
        return;
    }
    QTextCharFormat format = m_toolBar->typingStyle(m_textColor).toFormat();
    format.merge(lctrlsex::conditionAnchor(action->property("id").toString(), action->text()));
    m_format->mergeOnWordOrSelection(format);
}

void TextEdit::UpdateBindKeys()
{
    if (m_fields->refresh(m_view->document())) {
        m_publisher->invalidateImages();
        redraw();
    }
}
