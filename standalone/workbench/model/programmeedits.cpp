// The operations of ProgrammeDocument that change the programme.

#include "changerecorder.h"
#include "lframenode.h"
#include "lscreennode.h"
#include "ltexteffectnode.h"
#include "movedsources.h"
#include "nodebuilder.h"
#include "programmedocument.h"
#include "programmekeys.h"
#include "programmeschema.h"
#include "structurestep.h"
#include "treewatch.h"

#include <QUndoStack>

namespace workbench {

namespace {

/** Members of the root object are others. */
class RootStep : public QUndoCommand
{
public:
    RootStep(ProgrammeDocument *document, QJsonObject after, const QString &text)
        : QUndoCommand(text)
        , m_document(document)
        , m_folder(document->folder())
        , m_before(document->rootMembers())
        , m_after(std::move(after))
    {}

    void undo() override { set(m_before); }
    void redo() override { set(m_after); }

private:
    /** The programme may have been saved in another folder since. */
    void set(const QJsonObject &members)
    {
        m_document->controller()->setProperty(
            ProgrammeKeys::Unknown, sources::movedMembers(members, m_folder, m_document->folder()));
        emit m_document->rootMembersChanged();
    }

    ProgrammeDocument *const m_document;
    const QString m_folder; ///< That file names in the members are relative to.
    const QJsonObject m_before;
    const QJsonObject m_after;
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
    m_history->push(new RootStep(this, members, stepName));
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
