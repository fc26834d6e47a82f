#include "nodestep.h"

#include "changerecorder.h"
#include "lnode.h"
#include "textstate.h"

#include <algorithm>
#include <utility>

namespace workbench {

static constexpr qint64 MergeTime = 1000;

NodeStep::NodeStep(ChangeRecorder *recorder, LNode *node, NodeChange change, const QString &text)
    : QUndoCommand(text)
    , m_recorder(recorder)
    , m_node(node)
    , m_change(std::move(change))
{
    m_age.start();
}

void NodeStep::undo()
{
    apply(Back);
    m_isDone = false;
}

void NodeStep::redo()
{
    if (!m_isDone) {
        apply(Forth);
    }
    m_isDone = true;
}

bool NodeStep::needsReload() const
{
    // Editors show neither.
    static const QStringList names{QStringLiteral("Identifier"), QStringLiteral("Name")};
    const QStringList keys = m_change.before.keys();
    return std::any_of(keys.cbegin(), keys.cend(),
                       [](const QString &key) { return !names.contains(key); });
}

void NodeStep::apply(Direction direction)
{
    if (!m_node) {
        return;
    }
    const ChangeRecorder::Stepping stepping(m_recorder);
    m_recorder->touch(m_node, ChangeRecorder::Reveal);
    const QVariantMap &values = direction == Back ? m_change.before : m_change.after;
    if (!m_change.textBefore) {
        m_recorder->write(m_node, values, needsReload());
        return;
    }
    const auto &target = direction == Back ? m_change.textBefore : m_change.textAfter;
    m_recorder->leaveText(m_node);
    const bool isDone = m_recorder->stepInView(m_node, m_change.session, m_change.commands,
                                               direction == Back, *target);
    if (m_node) {
        m_recorder->write(m_node, values, needsReload() && !isDone);
        if (!isDone) {
            m_recorder->write(m_node, target->values(), true);
        }
        m_recorder->enterText(m_node, target);
    }
}

bool NodeStep::mergeWith(const QUndoCommand *other)
{
    const auto *next = static_cast<const NodeStep *>(other);
    if (next->m_node != m_node || m_change.isTyping || m_change.before.isEmpty() ||
        m_change.before.keys() != next->m_change.before.keys() || m_age.elapsed() > MergeTime ||
        (m_change.textBefore == nullptr) != (next->m_change.textBefore == nullptr)) {
        return false;
    }
    m_change.after = next->m_change.after;
    m_change.textAfter = next->m_change.textAfter;
    m_age.restart();
    setObsolete(!m_change.textBefore && m_change.after == m_change.before);
    return true;
}

bool NodeStep::takesText(const LNode *node, const std::shared_ptr<TextState> &state,
                         quint64 session) const
{
    return m_node == node && m_change.textAfter && m_change.textAfter == state &&
           m_change.isTyping && m_change.session == session;
}

} // namespace workbench
