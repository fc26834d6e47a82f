#include "structureactions.h"

#include "drawnicons.h"
#include "lcontrollernode.h"
#include "lframenode.h"
#include "lscreennode.h"
#include "programmedocument.h"

#include <QAction>
#include <QApplication>
#include <QPalette>

namespace workbench {

namespace {

/** On a screen its first frame without an item, which waits for one; else @p place itself. */
LNode *emptyFrameOf(LNode *place)
{
    if (qobject_cast<LScreenNode *>(place) != nullptr) {
        const QList<LNode *> frames = place->ChildNodes();
        for (LNode *frame : frames) {
            if (frame->ChildNodes().isEmpty()) {
                return frame;
            }
        }
    }
    return place;
}

} // namespace

StructureActions::StructureActions(ProgrammeDocument *document, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_addScreen(add(QStringLiteral("AddScreen"), &StructureActions::runAddScreen))
    , m_addFrame(add(QStringLiteral("AddFrame"), &StructureActions::runAddFrame))
    , m_addItem(add(QStringLiteral("AddItem"), &StructureActions::runAddItem))
    , m_duplicate(add(QStringLiteral("Duplicate"), &StructureActions::runDuplicate))
    , m_rename(add(QStringLiteral("Rename"), &StructureActions::runRename))
    , m_remove(add(QStringLiteral("Remove"), &StructureActions::runRemove))
    , m_moveUp(add(QStringLiteral("MoveUp"), &StructureActions::runMoveUp))
    , m_moveDown(add(QStringLiteral("MoveDown"), &StructureActions::runMoveDown))
{
    // In the tree only: in the editor the same keys belong to the text.
    const auto inTree = [](QAction *action, const QKeySequence &keys) {
        action->setShortcut(keys);
        action->setShortcutContext(Qt::WidgetShortcut);
    };
    inTree(m_duplicate, QKeySequence(Qt::CTRL + Qt::Key_D));
    inTree(m_rename, QKeySequence(Qt::Key_F2));
    inTree(m_remove, QKeySequence(QKeySequence::Delete));
    inTree(m_moveUp, QKeySequence(Qt::CTRL + Qt::Key_Up));
    inTree(m_moveDown, QKeySequence(Qt::CTRL + Qt::Key_Down));
    m_addItem->setShortcut(QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_N));
    retranslate();
    updateIcons();
    updateEnabled();
}

QAction *StructureActions::add(const QString &name, void (StructureActions::*run)())
{
    auto *action = new QAction(this);
    action->setObjectName(name);
    connect(action, &QAction::triggered, this, run);
    return action;
}

QVector<QAction *> StructureActions::inOrder() const
{
    return {m_addItem, m_addFrame, m_addScreen, nullptr,  m_duplicate,
            m_rename,  m_remove,   nullptr,     m_moveUp, m_moveDown};
}

void StructureActions::setCurrent(LNode *node)
{
    m_current = node;
    updateEnabled();
}

void StructureActions::updateEnabled()
{
    const LNode *parent = m_current ? m_current->ParentNode() : nullptr;
    const int index = parent != nullptr ? parent->ChildNodes().indexOf(m_current) : -1;
    const bool isOnScreen = m_current && m_current->GetScreenNode() != nullptr;
    m_addScreen->setEnabled(m_document->controller() != nullptr);
    m_addFrame->setEnabled(isOnScreen);
    m_addItem->setEnabled(m_document->controller() != nullptr);
    m_duplicate->setEnabled(index >= 0);
    m_rename->setEnabled(!m_current.isNull());
    m_remove->setEnabled(index >= 0);
    m_moveUp->setEnabled(index > 0);
    m_moveDown->setEnabled(index >= 0 && index < parent->ChildNodes().size() - 1);
}

void StructureActions::runAddScreen()
{
    emit nodeMade(m_document->addScreen());
}

void StructureActions::runAddFrame()
{
    LNode *screen = m_current ? m_current->GetScreenNode() : nullptr;
    if (screen != nullptr) {
        emit nodeMade(m_document->addFrame(screen));
    }
}

void StructureActions::runAddItem()
{
    LNode *place = m_current ? m_current->GetFrameNode() : nullptr;
    if (place == nullptr) {
        place = m_current ? m_current->GetScreenNode() : nullptr;
    }
    if (place == nullptr) {
        // With the controller selected the item goes to its first screen, made when missing.
        const QList<LNode *> screens = m_document->controller()->ChildNodes();
        place = screens.isEmpty() ? m_document->addScreen() : screens.constFirst();
    }
    LNode *made = place != nullptr ? m_document->addItem(emptyFrameOf(place)) : nullptr;
    if (made != nullptr) {
        emit nodeMade(made);
    }
}

void StructureActions::runDuplicate()
{
    LNode *made = m_current ? m_document->duplicate(m_current) : nullptr;
    if (made != nullptr) {
        emit nodeMade(made);
    }
}

void StructureActions::runRename()
{
    emit renameWanted();
}

void StructureActions::runRemove()
{
    if (!m_current || m_current->ParentNode() == nullptr) {
        return;
    }
    // What stands where the node stood is selected next, else its parent.
    const QPointer<LNode> parent(m_current->ParentNode());
    const int index = parent->ChildNodes().indexOf(m_current);
    emit aboutToRemove(m_current);
    if (!m_document->remove(m_current) || !parent) {
        return;
    }
    const QList<LNode *> left = parent->ChildNodes();
    emit nodeMade(left.isEmpty() ? parent.data() : left.at(std::min(index, left.size() - 1)));
}

void StructureActions::runMoveUp()
{
    moveBy(-1);
}

void StructureActions::runMoveDown()
{
    moveBy(1);
}

void StructureActions::moveBy(int step)
{
    LNode *parent = m_current ? m_current->ParentNode() : nullptr;
    if (parent == nullptr) {
        return;
    }
    const QPointer<LNode> node(m_current);
    const int index = parent->ChildNodes().indexOf(m_current) + step;
    if (m_document->move(m_current, parent, index) && node) {
        emit nodeMade(node);
    }
}

void StructureActions::retranslate()
{
    const auto set = [](QAction *action, const QString &text, const QString &tip) {
        action->setText(text);
        const QString keys = action->shortcut().toString(QKeySequence::NativeText);
        action->setToolTip(keys.isEmpty() ? tip : QStringLiteral("%1 (%2)").arg(tip, keys));
        action->setStatusTip(tip);
    };
    set(m_addScreen, tr("Add &Screen"), tr("Add a screen to the controller"));
    set(m_addFrame, tr("Add &Frame"), tr("Add a frame to the screen"));
    set(m_addItem, tr("Add Text &Item"), tr("Add a text item to the frame"));
    set(m_duplicate, tr("&Duplicate"), tr("Add a copy of what is selected"));
    set(m_rename, tr("Re&name"), tr("Type another name"));
    set(m_remove, tr("Re&move"), tr("Remove what is selected"));
    set(m_moveUp, tr("Mo&ve Up"), tr("Move before the one above"));
    set(m_moveDown, tr("Move Do&wn"), tr("Move behind the one below"));
}

void StructureActions::updateIcons()
{
    const QPalette palette = QApplication::palette();
    m_addScreen->setIcon(drawnIcon(Drawing::Screen, palette));
    m_addFrame->setIcon(drawnIcon(Drawing::Frame, palette));
    m_addItem->setIcon(drawnIcon(Drawing::Text, palette));
    m_duplicate->setIcon(drawnIcon(Drawing::Duplicate, palette));
    m_remove->setIcon(drawnIcon(Drawing::Remove, palette));
    m_moveUp->setIcon(drawnIcon(Drawing::Up, palette));
    m_moveDown->setIcon(drawnIcon(Drawing::Down, palette));
}

} // namespace workbench
