// The operations of ProgrammeDocument that change the programme.

#include "changerecorder.h"
#include "lframenode.h"
#include "lscreennode.h"
#include "ltexteffectnode.h"
#include "nodebuilder.h"
#include "programmedocument.h"
#include "programmekeys.h"
#include "programmeschema.h"
#include "structurestep.h"
#include "treewatch.h"

#include <QPointer>
#include <QUndoStack>

#include <functional>

namespace workbench {

namespace {

/** Members of the root object are others. */
class RootStep : public QUndoCommand
{
public:
    RootStep(LControllerNode *controller, QJsonObject after, const QString &text,
             std::function<void()> announce)
        : QUndoCommand(text)
        , m_controller(controller)
        , m_before(controller->property(ProgrammeKeys::Unknown).toJsonObject())
        , m_after(std::move(after))
        , m_announce(std::move(announce))
    {}

    void undo() override { set(m_before); }
    void redo() override { set(m_after); }

private:
    void set(const QJsonObject &members)
    {
        if (m_controller) {
            m_controller->setProperty(ProgrammeKeys::Unknown, members);
            m_announce();
        }
    }

    const QPointer<LControllerNode> m_controller;
    const QJsonObject m_before;
    const QJsonObject m_after;
    const std::function<void()> m_announce;
};

} // namespace

QJsonObject ProgrammeDocument::rootMembers() const
{
    return m_controller->property(ProgrammeKeys::Unknown).toJsonObject();
}

bool ProgrammeDocument::setRootMembers(const QJsonObject &members, const QString &stepName)
{
    if (!isReady() || members == rootMembers()) {
        return false;
    }
    m_history->push(
        new RootStep(m_controller.get(), members, stepName, [this] { emit rootMembersChanged(); }));
    return true;
}

static bool isSide(int pixels)
{
    return pixels >= 1 && pixels <= ProgrammeSchema::LongestSide;
}

LNode *ProgrammeDocument::insert(LNode *parent, int index, std::unique_ptr<LNode> node,
                                 const QString &stepName)
{
    LNode *const inserted = node.release(); // the step owns it while it stands nowhere
    m_history->push(new StructureStep(m_recorder.get(), inserted, {}, {parent, index}, stepName));
    return inserted;
}

LNode *ProgrammeDocument::addScreen()
{
    if (!isReady()) {
        return nullptr;
    }
    return insert(m_controller.get(), m_controller->ChildNodes().size(),
                  newScreen(m_controller.get()), tr("Add screen"));
}

LNode *ProgrammeDocument::addFrame(LNode *screen)
{
    const auto *on = qobject_cast<LScreenNode *>(screen);
    if (!on || !m_tree->contains(screen) || !isReady()) {
        return nullptr;
    }
    return insert(screen, screen->ChildNodes().size(), newFrame(m_controller.get(), on),
                  tr("Add frame"));
}

LNode *ProgrammeDocument::addItem(LNode *frameOrScreen)
{
    if (!m_tree->contains(frameOrScreen) || !isReady()) {
        return nullptr;
    }
    auto item = newItem(m_controller.get());
    LNode *const added = item.get();
    if (const auto *screen = qobject_cast<LScreenNode *>(frameOrScreen)) {
        auto frame = newFrame(m_controller.get(), screen);
        frame->AppendChild(item.release());
        insert(frameOrScreen, frameOrScreen->ChildNodes().size(), std::move(frame),
               tr("Add text item"));
        return added;
    }
    if (!qobject_cast<LFrameNode *>(frameOrScreen)) {
        return nullptr;
    }
    return insert(frameOrScreen, frameOrScreen->ChildNodes().size(), std::move(item),
                  tr("Add text item"));
}

LNode *ProgrammeDocument::duplicate(LNode *node)
{
    if (node == m_controller.get() || !m_tree->contains(node) || !isReady()) {
        return nullptr;
    }
    auto copy = copyOf(m_controller.get(), node);
    if (!copy) {
        return nullptr;
    }
    const NodePlace place = placeOf(node);
    return insert(place.parent, place.index + 1, std::move(copy),
                  tr("Duplicate %1").arg(node->name()));
}

bool ProgrammeDocument::remove(LNode *node)
{
    if (node == m_controller.get() || !m_tree->contains(node) || !isReady()) {
        return false;
    }
    m_history->push(new StructureStep(m_recorder.get(), node, placeOf(node), {},
                                      tr("Remove %1").arg(node->name())));
    return true;
}

bool ProgrammeDocument::rename(LNode *node, const QString &name)
{
    const QString trimmed = name.trimmed();
    if (trimmed.isEmpty()) {
        return false;
    }
    return setAttributes(node, {{QStringLiteral("Name"), trimmed}},
                         tr("Rename to %1").arg(trimmed));
}

bool ProgrammeDocument::canMove(const LNode *node, const LNode *newParent) const
{
    return node != m_controller.get() && m_tree->contains(node) && m_tree->contains(newParent) &&
           newParent->ChildType() == node->TypeText();
}

bool ProgrammeDocument::move(LNode *node, LNode *newParent, int index)
{
    if (!canMove(node, newParent) || !isReady()) {
        return false;
    }
    const NodePlace from = placeOf(node);
    const int last = newParent->ChildNodes().size() - (from.parent == newParent ? 1 : 0);
    const NodePlace to{newParent, qBound(0, index, last)};
    if (to.parent == from.parent && to.index == from.index) {
        return false;
    }
    m_history->push(
        new StructureStep(m_recorder.get(), node, from, to, tr("Move %1").arg(node->name())));
    return true;
}

bool ProgrammeDocument::setGeometry(LNode *node, const QRect &rect)
{
    const bool hasSize = !rect.isEmpty();
    if (!node || (hasSize && (!isSide(rect.width()) || !isSide(rect.height())))) {
        return false;
    }
    QVariantMap values{{QStringLiteral("Width"), hasSize ? QVariant(rect.width()) : QVariant()},
                       {QStringLiteral("Height"), hasSize ? QVariant(rect.height()) : QVariant()}};
    if (qobject_cast<LFrameNode *>(node)) {
        values.insert(QStringLiteral("X"), rect.x());
        values.insert(QStringLiteral("Y"), rect.y());
    }
    const bool isMoveOnly =
        node->Attribute(QStringLiteral("Width")) == values.value(QStringLiteral("Width")) &&
        node->Attribute(QStringLiteral("Height")) == values.value(QStringLiteral("Height"));
    return setAttributes(node, values,
                         isMoveOnly ? tr("Place %1").arg(node->name())
                                    : tr("Resize %1").arg(node->name()));
}

bool ProgrammeDocument::setAttributes(LNode *node, const QVariantMap &values,
                                      const QString &stepName)
{
    return m_tree->contains(node) && isReady() && m_recorder->change(node, values, stepName);
}

} // namespace workbench
