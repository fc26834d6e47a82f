#include "structurestep.h"

#include "changerecorder.h"
#include "lnode.h"

namespace workbench {

NodePlace placeOf(LNode *node)
{
    LNode *const parent = node->ParentNode();
    return {parent, parent ? parent->ChildNodes().indexOf(node) : 0};
}

StructureStep::StructureStep(ChangeRecorder *recorder, LNode *node, const NodePlace &from,
                             const NodePlace &to, const QString &text)
    : QUndoCommand(text)
    , m_recorder(recorder)
    , m_node(node)
    , m_from(from)
    , m_to(to)
{}

StructureStep::~StructureStep()
{
    const NodePlace &now = m_isDone ? m_to : m_from;
    if (m_node && !now.parent && !m_node->ParentNode()) {
        delete m_node;
    }
}

void StructureStep::undo()
{
    bring(m_from);
    m_isDone = false;
}

void StructureStep::redo()
{
    bring(m_to);
    m_isDone = true;
    m_isFirst = false;
}

void StructureStep::bring(const NodePlace &to)
{
    if (!m_node) {
        return;
    }
    const ChangeRecorder::Stepping stepping(m_recorder);
    LNode *const parent = m_node->ParentNode();
    if (to.parent && to.parent == parent) {
        parent->MoveChild(parent->ChildNodes().indexOf(m_node), to.index);
    } else {
        if (parent) {
            parent->TakeChild(m_node);
        }
        if (to.parent && m_node) {
            to.parent->InsertChild(to.index, m_node);
        }
    }
    if (!m_isFirst) {
        m_recorder->touch(to.parent ? m_node.data() : parent, ChangeRecorder::Reveal);
    }
}

} // namespace workbench
