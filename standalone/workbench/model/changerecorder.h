#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QTimer>
#include <QVariantMap>

#include <memory>

class LNode;
class LTextEffectNode;
class QTextEdit;
class QUndoStack;

namespace workbench {

class NodeStep;
class TextState;
class TreeWatch;

/**
 * Turns what others write on the nodes into steps of the history.
 *
 * It knows the attributes of every node as they were at the end of the last turn of the event loop.
 * A text is a chain of states: between two steps of one item the history is in one of them, and
 * whatever becomes of the text without a step becomes of that state. It is kept when the history
 * leaves it, so both neighbours of a step always agree about it.
 */
class ChangeRecorder : public QObject
{
    Q_OBJECT

public:
    ChangeRecorder(TreeWatch *tree, QUndoStack *history);
    ~ChangeRecorder() override;

    void attach(LTextEffectNode *node, QTextEdit *view);
    void detach();
    /** Lets queued changes of the attached view reach the node and makes steps of all changes. */
    void settle();
    /**
     * Writes attributes as a step called @p name. False, and no step, when they read the same as
     * before. A view that shows the node must be attached anew when its text was among them.
     */
    bool change(LNode *node, const QVariantMap &values, const QString &name);
    /** Forgets what is known of nodes; for another programme. */
    void reset();

    /** Whether a step is being undone or redone. */
    [[nodiscard]] bool isStepping() const { return m_stepping > 0; }
    /** What the steps since the last call touched, and how; in order, each node once. */
    enum Touch { Reveal, Reload };
    [[nodiscard]] QVector<QPair<QPointer<LNode>, Touch>> takeTouched();

    // For steps, within a Stepping

    /** While one lives, changes of nodes are the step's and make none. */
    class Stepping
    {
    public:
        explicit Stepping(ChangeRecorder *recorder)
            : m_recorder(recorder)
        {
            ++m_recorder->m_stepping;
        }
        ~Stepping() { --m_recorder->m_stepping; }
        Q_DISABLE_COPY(Stepping)

    private:
        ChangeRecorder *const m_recorder;
    };
    /** Writes attributes; with @p isReload the editors of the node must be bound to it anew. */
    void write(LNode *node, const QVariantMap &values, bool isReload);
    void touch(LNode *node, Touch touch);
    /** Keeps the node's text in the state that the history is in. */
    void leaveText(LNode *node);
    /** The history is in @p state now. */
    void enterText(LNode *node, const std::shared_ptr<TextState> &state);
    /**
     * Undoes or redoes @p commands steps in the view that is attached. False, and the node may hold
     * any text, for no steps, for another session's and when they do not lead to @p target.
     */
    bool stepInView(LNode *node, quint64 session, int commands, bool isUndo,
                    const TextState &target);

signals:
    /** What would be saved has changed. */
    void recorded();

private:
    struct Known
    {
        QVariantMap attributes;
        std::shared_ptr<TextState> text; ///< The state that the history is in; null until needed.
    };

    void onWatched(LNode *node);
    void onAttributeChanged(LNode *node, const QString &key);
    void deliverQueued();
    void collect();
    void letGo();
    /** Ends the attachment to @p node or to what is below it, which must be bound anew. */
    void letGoOf(LNode *node);
    [[nodiscard]] bool isEdited(const LNode *node) const;
    /** What became of some attributes of a node since the last turn. */
    struct News
    {
        QVariantMap before; ///< Of those that are not the text's.
        QVariantMap after;
        QVariantMap textBefore; ///< All attributes.
        bool isText = false;    ///< Whether anything of a kind reads another way than before.
        bool isRawText = false; ///< The text itself, not only what was derived from it.
        bool isBinding = false;
        bool isOther = false;
    };
    [[nodiscard]] News takeNews(LNode *node, const QSet<QString> &keys);
    enum Author { Editor, Own };
    [[nodiscard]] std::unique_ptr<NodeStep> makeStep(LNode *node, const QSet<QString> &keys,
                                                     Author author);
    [[nodiscard]] std::unique_ptr<NodeStep> makeStep(LNode *node, const News &news, int commands);
    [[nodiscard]] bool joinsLastStep(LNode *node) const;
    const std::shared_ptr<TextState> &textOf(LNode *node);

    TreeWatch *const m_tree;
    QUndoStack *const m_history;
    QHash<LNode *, Known> m_known;
    QHash<LNode *, QSet<QString>> m_dirty;
    QVector<LNode *> m_dirtyOrder;
    QTimer m_turnEnd;
    QVector<QPair<QPointer<LNode>, Touch>> m_touched;
    int m_stepping = 0;

    // The attachment
    QPointer<LTextEffectNode> m_node;
    QPointer<QTextEdit> m_view;
    QMetaObject::Connection m_commandAdded;
    quint64 m_session = 0; ///< Another one each time; 0 is never one.
    int m_commands = 0; ///< Steps that the view added and that are in no step of the history yet.
};

} // namespace workbench
