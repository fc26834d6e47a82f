#include "edittoolbar.h"
#include "lcolor.h"
#include "lrichviewedit.h"
#include "ltexteffectnode.h"
#include "nodecall.h"
#include "nodepublisher.h"
#include "pastedtext.h"
#include "table/tablecells.h"
#include "table/tablecommands.h"
#include "table/tablemenu.h"
#include "table/tablequestions.h"
#include "textedit.h"
#include "toolbarformat.h"

#include <QAction>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

using lctrlsex::nodeCall;
using lctrlsex::TableCommands;
using LUM_EditInterface::LTableProperties;

bool TextEdit::hasTable() const
{
    return m_table->hasTable();
}

void TextEdit::tableAction(QToolBar *toolBar)
{
    m_newTable = new QAction(this);
    m_newTable->setObjectName(QStringLiteral("actionNewTable"));
    m_newTable->setIcon(QIcon(QStringLiteral(":images/table.png")));
    connect(m_newTable, SIGNAL(triggered()), this, SLOT(InsertTable()));
    auto *menu = new QMenu(toolBar);
    menu->setObjectName(QStringLiteral("TableMenu"));
    connect(menu, SIGNAL(aboutToShow()), this, SLOT(TableMenuShow()));
    m_tableMenu = std::make_unique<lctrlsex::TableMenu>(menu, this, SLOT(TablePropModfy()),
                                                        SLOT(TableOperate()));
    m_newTable->setMenu(menu);
    toolBar->addAction(m_newTable);
    if (auto *button = qobject_cast<QToolButton *>(toolBar->widgetForAction(m_newTable))) {
        button->setObjectName(QStringLiteral("NewTableButton"));
        button->setPopupMode(QToolButton::MenuButtonPopup);
    }
}

void TextEdit::translateTable()
{
    m_newTable->setText(tr("New Table"));
    m_newTable->setToolTip(tr("New Table"));
    m_tableMenu->translate();
}

void TextEdit::InsertTable()
{
    if (hasTable()) {
        lctrlsex::warnOfTable(this, tr("Only one table can be inserted per editor."));
        return;
    }
    LTableProperties record;
    const QPointer<TextEdit> self = this;
    const int attachment = m_attachment;
    const bool isAccepted =
        lctrlsex::askTableProperties(this, tr("Insert Table"), m_view->itemSize(), &record, true);
    if (self == nullptr || !isAttached(attachment) || !isAccepted) {
        return;
    }
    const QColor shown = lctrlsex::shownOn(BGR_TO_QColor(record.backgroundColor), m_textColor);
    if (shown != m_textColor) {
        m_textColor = shown; // what is typed into the cells is to be seen
        restoreTypingFormat();
    }
    const int align = nodeCall(m_node, &LTextEffectNode::GetContentHAlign);
    if (m_table->insert(record, Qt::Alignment(align))) {
        emit m_view->TableTypeChangeSignal(record);
    }
    if (isAttached(attachment)) {
        m_view->setFocus(); // what is typed next belongs into the first cell
    }
}

bool TextEdit::moveInTable(bool forward)
{
    if (m_table->current() == nullptr) {
        return false;
    }
    const int attachment = m_attachment;
    const int type = nodeCall(m_node, &LTextEffectNode::GetTableType);
    // A key that was meant for another item than is bound by now is taken all the same.
    return !isAttached(attachment) || m_table->moveByTab(forward, type);
}

bool TextEdit::pasteCells(const QString &text, const QTextCharFormat &format)
{
    QVector<QStringList> cells =
        m_table->current() != nullptr ? lctrlsex::cellsOf(text) : QVector<QStringList>();
    if (cells.isEmpty()) {
        return false;
    }
    for (QStringList &row : cells) {
        for (QString &cell : row) {
            cell = lctrlsex::storableText(cell, false);
        }
    }
    const int attachment = m_attachment;
    const int type = nodeCall(m_node, &LTextEffectNode::GetTableType);
    const int left = isAttached(attachment) ? m_table->fill(cells, type, format) : 0;
    if (left > 0) {
        showRefusal(tr("%n cell(s) that were pasted found no place in the table and were left out. "
                       "Make the table larger first.",
                       nullptr, left));
    }
    return true;
}

void TextEdit::TablePropModfy()
{
    LTableProperties record = m_table->record();
    const LTableProperties stored = nodeCall(m_node, &LTextEffectNode::GetTableProperties);
    // What the table does is the node's to say; how it looks the table itself knows best: a stale
    // record would throw rows and colours away.
    record.type = stored.type;
    record.pageTurnDirection = stored.pageTurnDirection;
    record.header = stored.header;
    record.fixedHeader = stored.fixedHeader;
    record.fillArea = stored.fillArea;
    ModfTablePropertiesed(&record);
}

void TextEdit::ModfTablePropertiesed(LTableProperties *properties)
{
    if (properties == nullptr || m_table->current() == nullptr) {
        return;
    }
    LTableProperties record = *properties;
    const QPointer<TextEdit> self = this;
    const int attachment = m_attachment;
    const bool isAccepted = lctrlsex::askTableProperties(this, tr("Modify table properties"),
                                                         m_view->itemSize(), &record, false);
    if (self != nullptr && isAttached(attachment) && isAccepted && m_table->current() != nullptr) {
        m_table->reformat(record);
        emit m_view->TableTypeChangeSignal(record);
    }
}

void TextEdit::TableMenuShow()
{
    m_tableMenu->show(m_table->menuState(nodeCall(m_node, &LTextEffectNode::GetTableType)));
}

void TextEdit::TableOperate()
{
    const auto *action = qobject_cast<QAction *>(sender());
    if (action == nullptr) {
        return;
    }
    const int attachment = m_attachment;
    const int code = action->data().toInt();
    const int type = nodeCall(m_node, &LTextEffectNode::GetTableType);
    if (!isAttached(attachment)) {
        return;
    }
    const bool isVertical = code == lctrlsex::TableMenu::SplitVertically;
    if (type == 0 && (isVertical || code == lctrlsex::TableMenu::SplitHorizontally)) {
        TableSplitCell(isVertical);
    } else {
        m_table->operate(code, type);
    }
}

void TextEdit::TableSplitCell(bool vert)
{
    const QPointer<TextEdit> self = this;
    const int attachment = m_attachment;
    const int number = lctrlsex::askSplitCount(this, vert);
    if (self != nullptr && isAttached(attachment) && number > 0) {
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
