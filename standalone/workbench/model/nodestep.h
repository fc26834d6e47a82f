#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QUndoCommand>
#include <QVariantMap>

#include <memory>

class LNode;

namespace workbench {

class ChangeRecorder;
class TextState;

/** What a step changes on one node, from and to; the text only where it is part of the step. */
struct NodeChange
{
    QVariantMap before; ///< Attributes other than the text's; invalid values for absent ones.
    QVariantMap after;
    std::shared_ptr<TextState> textBefore; ///< Both null, or both set.
    std::shared_ptr<TextState> textAfter;
    quint64 session = 0; ///< The attachment of a view in which it was made; 0 for none.
    int commands = 0; ///< Steps of that view that are this change; 0 when it is not theirs alone.
    bool isTyping = false; ///< Nothing but the text was changed.
};

/** A change of the attributes of one node. */
class NodeStep : public QUndoCommand
{
public:
    /** The change was made already: the first redo() does nothing. */
    NodeStep(ChangeRecorder *recorder, LNode *node, NodeChange change, const QString &text);

    void undo() override;
    void redo() override;
    [[nodiscard]] int id() const override { return 1; }
    /** Joins changes of the same attributes of the same node that follow within a second. */
    bool mergeWith(const QUndoCommand *other) override;

    /** Whether a further change of the text to this state needs no step of its own. */
    [[nodiscard]] bool takesText(const LNode *node, const std::shared_ptr<TextState> &state,
                                 quint64 session) const;

private:
    enum Direction { Back, Forth };
    void apply(Direction direction);
    [[nodiscard]] bool needsReload() const;

    ChangeRecorder *const m_recorder;
    const QPointer<LNode> m_node;
    NodeChange m_change;
    QElapsedTimer m_age;
    bool m_isDone = true;
};

} // namespace workbench
