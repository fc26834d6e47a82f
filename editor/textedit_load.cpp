#include "documentsetup.h"
#include "edittoolbar.h"
#include "formatcommands.h"
#include "fragmentmerge.h"
#include "itemconversion.h"
#include "lappconfig.h"
#include "lrichviewedit.h"
#include "ltexteffectnode.h"
#include "nodecall.h"
#include "nodepage.h"
#include "nodepublisher.h"
#include "textedit.h"

#include <QFontInfo>
#include <QTextDocument>

using lctrlsex::nodeCall;

// From the node to the view

void TextEdit::Init(LTextEffectNode *node)
{
    // Storing what was typed may make the host delete this node or attach another one.
    const QPointer<LTextEffectNode> wanted = node;
    const int before = m_attachment;
    flush();
    if (before != m_attachment) {
        return;
    }
    if (m_node != nullptr) {
        disconnect(m_node, &QObject::destroyed, this, nullptr);
    }
    m_node = wanted;
    ++m_attachment;
    m_conversion->stop();
    m_mergeTimer.stop();
    m_publisher->attach(wanted);
    if (m_node.isNull()) {
        letGo();
        return;
    }
    connect(m_node, &QObject::destroyed, this, [this] { letGo(); });
    const int attachment = m_attachment;
    m_initialising = true;
    UpdateBottonMode(nodeCall(m_node, &LTextEffectNode::GetSingleMode), true);
    m_publisher->resetPosition();
    m_textColor = Qt::white;
    InitTextEditor();
    if (isAttached(attachment)) {
        InitFontSettings();
    }
    if (isAttached(attachment)) {
        InitAlignmentSettings();
    }
    if (isAttached(attachment)) {
        InitUISettings();
    }
    if (isAttached(attachment)) {
        RefreshDataSource();
    }
    if (isAttached(attachment)) {
        LoadConditionStyles();
    }
    if (isAttached(attachment)) {
        if (!m_view->document()->isEmpty()) {
            CursorPositionFontStatusMarked();
        }
        m_view->document()->clearUndoRedoStacks();
        m_view->document()->setModified(true); // or a step that is gone would count as the stored
        m_publisher->takeAsStored();
        m_view->setFocus();
        emit DocumentHasTable(hasTable());
    }
    if (attachment == m_attachment) {
        m_initialising = false;
    }
}

/** Stores what was typed but not pushed yet, before the node changes. */
void TextEdit::flush()
{
    if (m_publisher->isEdited()) {
        m_publisher->push();
    }
}

/** The node is gone or let go of: nothing of it is left to be edited. */
void TextEdit::letGo()
{
    m_mergeTimer.stop();
    m_conversion->stop();
    m_publisher->attach(nullptr);
    m_view->load(QString(), lctrlsex::TextSettings());
    showNotice(QString());
    setUsable(false);
    m_initialising = false;
}

void TextEdit::InitTextEditor()
{
    const int attachment = m_attachment;
    const QPointer<LTextEffectNode> node = m_node;
    const bool isNewItem = !nodeCall(node, &LData::HasAttribute, QStringLiteral("Html"));
    if (isNewItem && isAttached(attachment)) {
        node->SetHtmlText(QString());
    }
    m_view->setSingleLine(m_singleLine);
    m_view->setItemSize(nodeCall(node, &LTextEffectNode::Size));
    const bool isEmpty = nodeCall(node, &LTextEffectNode::GetHtmlText).isEmpty();
    if (!isAttached(attachment)) {
        return;
    }
    const lctrlsex::NodePublisher::Loaded loaded = m_publisher->load();
    if (!isAttached(attachment)) {
        return;
    }
    showNotice(loaded.notice);
    setUsable(loaded.notice.isEmpty());
    copyTableSettings();
    showGround();
    if (!isAttached(attachment)) {
        return;
    }
    if ((isNewItem || isEmpty) && m_view->document()->isEmpty()) {
        m_textColor = Qt::white;
        m_view->setTextColor(Qt::white);
    }
    if (isNewItem) {
        TextWordSpacingChanged(0);
        TextLineSpacingChanged(100);
    }
    m_publisher->setLoaded(true);
    m_publisher->takeAsStored();
}

void TextEdit::copyTableSettings()
{
    LUM_EditInterface::LTableProperties settings =
        nodeCall(m_node, &LTextEffectNode::GetTableProperties);
    settings.type = nodeCall(m_node, &LTextEffectNode::GetTableType);
    settings.header = nodeCall(m_node, &LTextEffectNode::GetTableHeader);
    settings.fixedHeader = nodeCall(m_node, &LTextEffectNode::GetTableFixedHeader);
    settings.fillArea = nodeCall(m_node, &LTextEffectNode::GetTableFillArea);
    settings.pageTurnDirection = nodeCall(m_node, &LTextEffectNode::TextPageTurnDirection);
    m_view->setTableSettings(settings);
}

/** The background of the view and its two controls, from the node. */
void TextEdit::showGround()
{
    const QColor color = LAppConfig::IntToColor(nodeCall(m_node, &LTextEffectNode::GetEditBgColor));
    const bool isTransparent = nodeCall(m_node, &LTextEffectNode::GetTransBgColor);
    m_view->setGround(color, isTransparent);
    EditBackgroundColorChanged(color.rgb());
    m_toolBar->setChecked(QStringLiteral("actionTransBgColor"), isTransparent);
}

void TextEdit::InitFontSettings()
{
    const QString family = nodeCall(m_node, &LTextEffectNode::GetFontFamily);
    const int size = nodeCall(m_node, &LTextEffectNode::GetFontSize);
    const int spacing = nodeCall(m_node, &LTextEffectNode::GetFontSpace);
    m_toolBar->showFamily(family.isEmpty() ? QFontInfo(m_view->document()->defaultFont()).family()
                                           : family);
    m_toolBar->showSize(size);
    m_toolBar->showWordSpacing(spacing);
}

void TextEdit::InitAlignmentSettings()
{
    m_toolBar->showVAlign(nodeCall(m_node, &LTextEffectNode::GetContentAlign));
    const int align = nodeCall(m_node, &LTextEffectNode::GetContentHAlign);
    const bool isNamed = align == Qt::AlignHCenter || align == Qt::AlignRight;
    const Qt::Alignment shown = isNamed ? Qt::Alignment(align) : Qt::AlignLeft;
    alignmentChanged(shown);
    if (m_view->document()->isEmpty()) {
        m_format->setAlignment(shown);
        m_publisher->takeAsStored();
    }
}

void TextEdit::InitUISettings()
{
    m_toolBar->setChecked(QStringLiteral("actionUseHollow"),
                          nodeCall(m_node, &LTextEffectNode::GetUseHollow) != 0);
    SetStrokeColorButtonImage(
        LAppConfig::IntToColor(nodeCall(m_node, &LTextEffectNode::GetStrokeColor)));
    m_publisher->setLoaded(true);
}

// From the view to the node

void TextEdit::TextChanged()
{
    if (!m_publisher->isEdited()) {
        return; // the change was a load, or was pushed meanwhile
    }
    if (!m_view->textCursor().hasSelection()) {
        if (lctrlsex::isInvisible(m_view->textCursor().charFormat())) {
            restoreTypingFormat();
        }
        m_mergeTimer.start();
    }
    TextDrawImage();
}

void TextEdit::TextDrawImage()
{
    const int attachment = m_attachment;
    if (m_publisher->push() == lctrlsex::NodePublisher::Document && isAttached(attachment)) {
        emit DocumentHasTable(hasTable());
    }
}

void TextEdit::performSmartMerge()
{
    if (m_view->textCursor().hasSelection() || m_view->document()->isRedoAvailable() ||
        m_view->isReadOnly()) {
        return; // with something to redo, a merge would throw it away
    }
    m_merger->merge();
}

/** Draws the pages again after a change of the node that the document does not show. */
void TextEdit::redraw()
{
    m_publisher->forceRedraw();
    TextDrawImage();
}

// Pages

void TextEdit::PageChanged(uint curPage, uint numPage)
{
    m_publisher->setPosition({curPage, numPage}, !m_initialising);
}

QImage TextEdit::getIndexImage(int page)
{
    return m_publisher->pageImage(page);
}

QImage TextEdit::getCurrentImage()
{
    return m_publisher->currentImage();
}
