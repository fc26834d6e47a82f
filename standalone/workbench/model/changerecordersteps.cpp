// What steps ask of ChangeRecorder while they are undone and redone.

#include "changerecorder.h"

#include "ltexteffectnode.h"
#include "textstate.h"

#include <QTextDocument>
#include <QTextEdit>

#include <utility>

namespace workbench {

static const QString RawHtmlKey = QStringLiteral("RawHtml");

void ChangeRecorder::write(LNode *node, const QVariantMap &values, bool isReload)
{
    if (isReload) {
        letGoOf(node);
        touch(node, Reload);
    }
    node->SetAttributes(values);
}

void ChangeRecorder::letGoOf(LNode *node)
{
    const LNode *shown = m_node;
    while (shown && shown != node) {
        shown = shown->ParentNode();
    }
    if (shown) {
        touch(m_node, Reload);
        letGo();
    }
}

void ChangeRecorder::touch(LNode *node, Touch touch)
{
    for (auto &touched : m_touched) {
        if (touched.first == node) {
            touched.second = qMax(touched.second, touch);
            return;
        }
    }
    m_touched.append({node, touch});
}

QVector<QPair<QPointer<LNode>, ChangeRecorder::Touch>> ChangeRecorder::takeTouched()
{
    return std::exchange(m_touched, {});
}

void ChangeRecorder::leaveText(LNode *node)
{
    if (node == m_node) {
        deliverQueued();
    }
    // Attributes that wait for the turn's end are left waiting; the text is this state's.
    Known &known = m_known[node];
    const QSet<QString> waiting = m_dirty.value(node);
    for (const QString &key : waiting) {
        if (isTextKey(key)) {
            storeAttribute(&known.attributes, key, node->Attribute(key));
            m_dirty[node].remove(key);
        }
    }
    textOf(node)->keep(known.attributes);
}

void ChangeRecorder::enterText(LNode *node, const std::shared_ptr<TextState> &state)
{
    m_known[node].text = state;
}

bool ChangeRecorder::stepInView(LNode *node, quint64 session, int commands, bool isUndo,
                                const TextState &target)
{
    if (node != m_node || session != m_session || !m_view || commands == 0) {
        return false;
    }
    const QPointer<LNode> guard(node);
    for (int i = 0; i < commands && m_view; ++i) {
        const QTextDocument *const document = m_view->document();
        if (isUndo ? !document->isUndoAvailable() : !document->isRedoAvailable()) {
            return false;
        }
        isUndo ? m_view->undo() : m_view->redo();
    }
    deliverQueued();
    const QVariantMap wanted = target.values();
    if (!guard || !m_view || node->Attribute(RawHtmlKey) != wanted.value(RawHtmlKey)) {
        return false;
    }
    // The same text; what else differs was derived anew, such as the tokens of placeholders.
    node->SetAttributes(wanted);
    return true;
}

} // namespace workbench
