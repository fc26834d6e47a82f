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
#include "table/fieldclipboard.h"
#include "table/placeholderplan.h"
#include "table/tablebinding.h"
#include "table/tablecommands.h"
#include "table/tabledom.h"
#include "textedit.h"
#include "viewmenu.h"

#include <QAction>
#include <QDomElement>
#include <QMenu>

using lctrlsex::nodeCall;

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
        m_view->menuAdditions()->setFields(m_fields->index.fieldNames());
        UpdateBindKeys();
    }
}

void TextEdit::UpdateField(QMap<QString, QString> &values)
{
    m_fields->fromClient = values;
    m_binding->setClientFields(values.keys());
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

QStringList TextEdit::GetFields(const QString &bindKey, int &kind)
{
    const lctrlsex::BindKey key = lctrlsex::classifyBindKey(bindKey);
    kind = key.kind;
    return key.fields;
}

void TextEdit::ProcessPaddingHtmlTable()
{
    const int attachment = m_attachment;
    if (m_node.isNull()) {
        return;
    }
    const lctrlsex::TableMarks marks = lctrlsex::tableMarksOf(m_node);
    const auto descriptors = m_fields->index.descriptors();
    const auto known = descriptors.constFind(marks.dataSourceKey);
    const bool isKnown = known != descriptors.constEnd();
    if (isKnown && isAttached(attachment)) {
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
    if (isAttached(attachment) && !marks.dataSourceKey.isEmpty() && !m_view->isReadOnly()) {
        const lctrlsex::BindKey key = lctrlsex::classifyBindKey(marks.dataSourceKey);
        const bool isList = lctrlsex::deliversLists(key.kind, isKnown ? &*known : nullptr);
        m_table->writePlaceholders({marks.tableType, marks.hasHeader, key, isList},
                                   m_toolBar->typingStyle(m_textColor).toFormat());
    }
}

void TextEdit::ExtractTemplate(const QString &html)
{
    const int attachment = m_attachment;
    lctrlsex::storeTemplate(m_node, html, [this, attachment] { return isAttached(attachment); });
}

QString TextEdit::UnifyTableColumnWidths(const QString &html) const
{
    const int attachment = m_attachment;
    return lctrlsex::unifyTables(m_node, html,
                                 [this, attachment] { return isAttached(attachment); });
}

// An element is a handle, passed by value as everywhere in its library.
void TextEdit::ProcessSingleTable(
    QDomElement table) const // NOLINT(performance-unnecessary-value-param)
{
    lctrlsex::unifyTable(table);
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
    // The view knows names only, and those of the selected source.
    const lctrlsex::DataSourceIndex &index = m_fields->index;
    const bool isName = index.values().contains(field);
    ApplyFormatAndInsert(isName ? lctrlsex::qualifiedKey(index.selectedSource(), field) : field);
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

void TextEdit::pasteFields(const lctrlsex::TextWithFields &pasted)
{
    if (m_view->isReadOnly()) {
        return;
    }
    QTextCursor cursor = m_view->textCursor();
    const QString refusal = lctrlsex::insertTextWithFields(
        &cursor, pasted, m_toolBar->typingStyle(Qt::white), m_singleLine);
    if (!refusal.isEmpty()) {
        showRefusal(refusal);
        return;
    }
    m_view->setTextCursor(cursor);
    UpdateBindKeys();
}

void TextEdit::ONConditionStyleChanged(QAction *action)
{
    if (action == nullptr || !m_view->textCursor().hasSelection() || m_view->isReadOnly()) {
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
        m_publisher->forceRedraw();
        // What was edited is pushed when all of the edit is done: a drop is still in the midst.
        if (!m_publisher->isEdited()) {
            TextDrawImage();
        }
    }
}
