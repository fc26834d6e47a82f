#pragma once

#include <QPointer>
#include <QUndoCommand>

class LNode;

namespace workbench {

class ChangeRecorder;

/** Where a node stands. */
struct NodePlace
{
    QPointer<LNode> parent; ///< Null: nowhere.
    int index = 0;
};

/**
 * A node comes, goes or moves. While it stands nowhere, the step that put it there owns it, so that
 * undo brings back the very same node with all below it.
 */
class StructureStep : public QUndoCommand
{
public:
    /** The first redo() brings @p node from the one place to the other. */
    StructureStep(ChangeRecorder *recorder, LNode *node, const NodePlace &from, const NodePlace &to,
                  const QString &text);
    ~StructureStep() override;

    void undo() override;
    void redo() override;

private:
    void bring(const NodePlace &to);

    ChangeRecorder *const m_recorder;
    const QPointer<LNode> m_node;
    const NodePlace m_from;
    const NodePlace m_to;
    bool m_isDone = false;
    bool m_isFirst = true;
};

/** Where @p node stands now. */
[[nodiscard]] NodePlace placeOf(LNode *node);

} // namespace workbench
