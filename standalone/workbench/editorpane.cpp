#include "editorpane.h"

#include "inodeclient.h"
#include "itempages.h"
#include "ltexteffectnode.h"
#include "programmedocument.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedLayout>
#include <QTextEdit>
#include <QVBoxLayout>

namespace workbench {

EditorPane::EditorPane(ProgrammeDocument *document, ItemPages *pages, const LoadedPlugin &plugin,
                       QWidget *parent)
    : QWidget(parent)
    , m_document(document)
    , m_pages(pages)
    , m_plugin(plugin)
    , m_stack(new QStackedLayout(this))
    , m_attributesArea(new QScrollArea)
    , m_noAttributes(new QLabel)
{
    setObjectName(QStringLiteral("EditorPane"));
    m_empty = buildEmptyPage();
    m_fault = buildFaultPage();
    m_stack->addWidget(m_empty);
    m_stack->addWidget(m_fault);
    m_attributesArea->setObjectName(QStringLiteral("ItemProperties"));
    m_attributesArea->setWidgetResizable(true);
    m_attributesArea->setFrameShape(QFrame::NoFrame);
    m_noAttributes->setObjectName(QStringLiteral("NoItemProperties"));
    m_noAttributes->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    m_noAttributes->setWordWrap(true);
    m_noAttributes->setMargin(16);
    m_attributesArea->setWidget(m_noAttributes);
    if (m_plugin.client != nullptr) {
        m_client = m_plugin.client->GetClient();
        if (m_client) {
            m_stack->addWidget(m_client);
            showPlayType();
        }
        connect(m_plugin.client, &Lum::INodeClient::editFinish, this, &EditorPane::leaveWanted);
    }
    m_stack->setCurrentWidget(hasPlugin() ? m_empty : m_fault);
    retranslate();
}

EditorPane::~EditorPane()
{
    letGo();
    giveBack();
}

// The plug-in leaves it to its host whether the item's playing time is set beside the text.
void EditorPane::showPlayType()
{
    if (auto *row = m_client->findChild<QWidget *>(QStringLiteral("widget"))) {
        row->show();
    }
}

QWidget *EditorPane::buildEmptyPage()
{
    auto *page = new QWidget(this);
    page->setObjectName(QStringLiteral("NoItemPage"));
    auto *column = new QVBoxLayout(page);
    column->addStretch(1);
    m_emptyText = new QLabel(page);
    m_emptyText->setAlignment(Qt::AlignCenter);
    m_emptyText->setWordWrap(true);
    column->addWidget(m_emptyText);
    column->addSpacing(10);
    m_addItem = new QPushButton(page);
    m_addItem->setObjectName(QStringLiteral("AddItemButton"));
    connect(m_addItem, &QPushButton::clicked, this, &EditorPane::addItemWanted);
    column->addWidget(m_addItem, 0, Qt::AlignHCenter);
    column->addStretch(1);
    return page;
}

QWidget *EditorPane::buildFaultPage()
{
    auto *page = new QWidget(this);
    page->setObjectName(QStringLiteral("PluginFaultPage"));
    auto *column = new QVBoxLayout(page);
    column->setContentsMargins(40, 20, 40, 20);
    m_faultText = new QLabel(page);
    m_faultText->setObjectName(QStringLiteral("PluginFaultText"));
    m_faultText->setAlignment(Qt::AlignCenter);
    m_faultText->setWordWrap(true);
    m_faultText->setTextFormat(Qt::PlainText);
    m_faultText->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    column->addWidget(m_faultText);
    return page;
}

void EditorPane::bind(LTextEffectNode *node)
{
    if (node == m_node && node != nullptr) {
        return;
    }
    // The plug-in takes the focus when it is bound; keys meant for the tree would then edit text.
    const QPointer<QWidget> focused(QApplication::focusWidget());
    setUpdatesEnabled(false);
    letGo();
    m_node = node;
    if (hasPlugin() && m_node) {
        m_isBound = true;
        m_plugin.client->Init(m_node);
        showAttributes();
        m_stack->setCurrentWidget(m_client);
        QTextEdit *view = textView();
        if (view != m_filtered) {
            if (m_filtered) {
                m_filtered->removeEventFilter(this);
                m_filtered->viewport()->removeEventFilter(this);
            }
            m_filtered = view;
            if (view != nullptr) {
                view->installEventFilter(this);
                view->viewport()->installEventFilter(this);
            }
        }
        if (view != nullptr && m_node) {
            m_document->attachTextEditor(m_node, view);
        }
    } else {
        m_stack->setCurrentWidget(hasPlugin() ? m_empty : m_fault);
    }
    m_pages->watch(m_node);
    setUpdatesEnabled(true);
    if (focused && focused->isVisible()) {
        focused->setFocus();
    }
}

void EditorPane::rebind()
{
    const QPointer<LTextEffectNode> node(m_node);
    const QPointer<QWidget> focused(QApplication::focusWidget());
    const QTextEdit *before = textView();
    const int position = before != nullptr ? before->textCursor().position() : 0;
    bind(nullptr);
    bind(node);
    if (QTextEdit *view = textView()) {
        QTextCursor cursor(view->document());
        cursor.setPosition(qMin(position, view->document()->characterCount() - 1));
        view->setTextCursor(cursor);
    }
    // Hidden in between, the view has lost the focus that it may have had.
    if (focused) {
        focused->setFocus();
    }
}

void EditorPane::letGo()
{
    if (!m_isBound) {
        return;
    }
    m_isBound = false;
    // The last edit must be with the node before the document stops listening.
    m_plugin.client->Finish();
    m_document->detachTextEditor();
    m_node.clear();
    if (m_attributesArea && m_attributes && m_attributesArea->widget() == m_attributes) {
        m_attributesArea->takeWidget();
        m_attributes->hide();
        m_attributes->setParent(m_client);
        m_attributesArea->setWidget(m_noAttributes);
        m_noAttributes->show();
    }
}

void EditorPane::showAttributes()
{
    QWidget *attributes = m_plugin.client->GetAttributesWidget(m_node);
    if (attributes == nullptr || !m_attributesArea) {
        return;
    }
    m_attributes = attributes;
    if (m_attributesArea->widget() != attributes) {
        // The area would delete what it is not asked to give back.
        if (QWidget *former = m_attributesArea->takeWidget()) {
            former->hide();
            former->setParent(former == m_noAttributes ? m_attributesArea.data() : nullptr);
        }
        m_attributesArea->setWidget(attributes);
    }
    attributes->show();
}

void EditorPane::giveBack()
{
    if (m_attributesArea && m_attributes && m_attributesArea->widget() == m_attributes) {
        m_attributesArea->takeWidget();
    }
    if (m_attributes) {
        m_attributes->setParent(m_client);
    }
    if (m_client && m_client->parentWidget() == this) {
        m_client->hide();
        m_stack->removeWidget(m_client);
        m_client->setParent(nullptr);
    }
}

QTextEdit *EditorPane::textView() const
{
    return m_client ? m_client->findChild<QTextEdit *>() : nullptr;
}

void EditorPane::focusText()
{
    if (QTextEdit *view = m_node ? textView() : nullptr) {
        view->setFocus();
    }
}

bool EditorPane::eventFilter(QObject *watched, QEvent *event)
{
    if (m_filtered && watched == m_filtered->viewport()) {
        return takeTableDrop(event);
    }
    if (event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
            // One history: the keys belong to the window's menu, also when it has nothing to undo.
            if (event->type() == QEvent::ShortcutOverride) {
                event->ignore();
            }
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void EditorPane::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QWidget::changeEvent(event);
}

void EditorPane::retranslate()
{
    m_emptyText->setText(tr("There is no text here yet."));
    m_addItem->setText(tr("Add Text Item"));
    m_noAttributes->setText(tr("Effects, times and data of a text item appear here."));
    if (!hasPlugin()) {
        const QString reason = translatedFault(m_plugin.reason);
        const QString place =
            m_plugin.fileName.isEmpty() ? reason : tr("%1: %2").arg(m_plugin.fileName, reason);
        m_faultText->setText(tr("The text editor cannot be used.\n\n%1\n%2")
                                 .arg(place, translatedFault(m_plugin.remedy)));
    }
}

} // namespace workbench
