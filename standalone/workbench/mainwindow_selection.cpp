#include "editorpane.h"
#include "layoutpanel.h"
#include "lcontrollernode.h"
#include "ltexteffectnode.h"
#include "mainwindow.h"
#include "programmedocument.h"
#include "programmeitems.h"
#include "programmepanel.h"
#include "structureactions.h"
#include "wallpanel.h"

#include <QAction>

namespace workbench {

namespace {

bool isWithin(const LNode *node, const LNode *above)
{
    for (; node != nullptr; node = node->ParentNode()) {
        if (node == above) {
            return true;
        }
    }
    return false;
}

/** The item that stands for a node: itself, or the first one below it. */
LTextEffectNode *itemOf(LNode *node)
{
    if (auto *item = qobject_cast<LTextEffectNode *>(node)) {
        return item;
    }
    const QVector<player::ProgrammeItem> items = player::programmeItems(node);
    return items.isEmpty() ? nullptr : items.constFirst().node;
}

} // namespace

void MainWindow::selectNode(LNode *node)
{
    if (node == nullptr) {
        return;
    }
    if (node == m_programme->currentNode()) {
        // It may have been let go of, as a node that is moved is for a moment.
        onNodeSelected(node);
    } else {
        m_programme->setCurrentNode(node);
    }
}

void MainWindow::onNodeSelected(LNode *node)
{
    LTextEffectNode *item = itemOf(node);
    m_structure->setCurrent(node);
    m_editor->bind(item);
    // Binding runs code of the plug-in, which may have changed the programme.
    item = m_editor->hasPlugin() ? m_editor->node() : item;
    m_wall->setCurrent(m_programme->currentNode(), item);
    m_layout->setNode(m_programme->currentNode());
    updateStatus();
    updateTextActions();
}

void MainWindow::letGoOfNodes()
{
    m_editor->bind(nullptr);
    m_wall->clear();
    m_layout->setNode(nullptr);
    m_structure->setCurrent(nullptr);
}

void MainWindow::letGoOf(LNode *node)
{
    if (m_editor->node() != nullptr && isWithin(m_editor->node(), node)) {
        m_editor->bind(nullptr);
        // What plays goes on without the item, unless the screen goes with it.
        m_wall->setCurrent(isWithin(m_wall->screen(), node) ? nullptr : m_wall->screen(), nullptr);
    }
    if (isWithin(m_layout->node(), node)) {
        m_layout->setNode(nullptr);
    }
}

void MainWindow::selectFirstItem()
{
    LNode *first = itemOf(m_document->controller());
    m_programme->setCurrentNode(first != nullptr ? first : m_document->controller());
    onNodeSelected(m_programme->currentNode());
}

void MainWindow::addItemHere()
{
    m_structure->addItem()->trigger();
    m_editor->focusText();
}

} // namespace workbench
