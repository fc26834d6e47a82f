#include "changerecorder.h"

#include "ltexteffectnode.h"
#include "nodestep.h"
#include "stepnames.h"
#include "textstate.h"
#include "treewatch.h"

#include <QCoreApplication>
#include <QTextDocument>
#include <QTextEdit>
#include <QUndoStack>

#include <utility>
#include <vector>

namespace workbench {

namespace {

const QString RawHtmlKey = QStringLiteral("RawHtml");

QVariantMap attributesOf(const LNode *node)
{
    QVariantMap attributes;
    const QStringList keys = node->AttributeKeys();
    for (const QString &key : keys) {
        attributes.insert(key, node->Attribute(key));
    }
    return attributes;
}

} // namespace

ChangeRecorder::ChangeRecorder(TreeWatch *tree, QUndoStack *history)
    : m_tree(tree)
    , m_history(history)
{
    m_turnEnd.setSingleShot(true);
    m_turnEnd.setInterval(0);
    connect(&m_turnEnd, &QTimer::timeout, this, &ChangeRecorder::settle);
    connect(tree, &TreeWatch::watched, this, &ChangeRecorder::onWatched);
    connect(tree, &TreeWatch::attributeChanged, this, &ChangeRecorder::onAttributeChanged);
    connect(tree, &TreeWatch::gone, this, [this](LNode *node) {
        m_known.remove(node);
        m_dirty.remove(node);
        m_dirtyOrder.removeAll(node);
    });
}

ChangeRecorder::~ChangeRecorder() = default;

void ChangeRecorder::reset()
{
    detach();
    m_known.clear();
    m_dirty.clear();
    m_dirtyOrder.clear();
    m_touched.clear();
    m_turnEnd.stop();
}

void ChangeRecorder::onWatched(LNode *node)
{
    m_known.insert(node, {attributesOf(node), nullptr});
}

void ChangeRecorder::onAttributeChanged(LNode *node, const QString &key)
{
    if (isStepping()) {
        storeAttribute(&m_known[node].attributes, key, node->Attribute(key));
        return;
    }
    if (!m_dirty.contains(node)) {
        m_dirtyOrder.append(node);
    }
    m_dirty[node].insert(key);
    m_turnEnd.start();
}

void ChangeRecorder::attach(LTextEffectNode *node, QTextEdit *view)
{
    // What this node was given since the last turn came from the editor that loaded it. Nothing
    // that is queued is delivered: the view shows this node's text already.
    const QSet<QString> loaded = m_dirty.take(node);
    m_dirtyOrder.removeAll(node);
    collect();
    letGo();
    if (!node || !view) {
        return;
    }
    for (const QString &key : loaded) {
        storeAttribute(&m_known[node].attributes, key, node->Attribute(key));
    }
    m_node = node;
    m_view = view;
    ++m_session;
    const QTextDocument *const document = view->document();
    m_commandAdded = connect(document, &QTextDocument::undoCommandAdded, this, [this, document] {
        // Editors say so when they add to their last step, which Qt announces like a new one.
        if (!isStepping() && !document->property("joinsLastStep").toBool()) {
            ++m_commands;
        }
    });
}

void ChangeRecorder::detach()
{
    settle();
    letGo();
}

void ChangeRecorder::letGo()
{
    disconnect(m_commandAdded);
    m_node = nullptr;
    m_view = nullptr;
    m_commands = 0;
}

void ChangeRecorder::deliverQueued()
{
    // Editors push the text by queued calls to a widget around the view.
    QPointer<QObject> object = m_view.data();
    while (object) {
        QCoreApplication::sendPostedEvents(object, QEvent::MetaCall);
        object = object ? object->parent() : nullptr;
    }
}

void ChangeRecorder::settle()
{
    if (!isStepping()) {
        deliverQueued();
        collect();
    }
}

void ChangeRecorder::collect()
{
    m_turnEnd.stop();
    const QHash<LNode *, QSet<QString>> dirty = std::exchange(m_dirty, {});
    const QVector<LNode *> order = std::exchange(m_dirtyOrder, {});
    std::vector<std::unique_ptr<NodeStep>> steps;
    for (LNode *node : order) {
        if (auto step = makeStep(node, dirty.value(node), Editor)) {
            steps.push_back(std::move(step));
        }
    }
    const bool isGroup = steps.size() > 1;
    if (isGroup) {
        m_history->beginMacro(stepNameOf({}));
    }
    for (auto &step : steps) {
        m_history->push(step.release());
    }
    if (isGroup) {
        m_history->endMacro();
    }
    if (!order.isEmpty()) {
        emit recorded();
    }
}

bool ChangeRecorder::change(LNode *node, const QVariantMap &values, const QString &name)
{
    settle();
    bool isNews = false;
    bool isText = false;
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        isNews = isNews || !readsTheSame(it.key(), node->Attribute(it.key()), it.value());
        isText = isText || isTextKey(it.key());
    }
    const QPointer<LNode> guard(node);
    if (isNews) {
        node->SetAttributes(values);
    }
    if (!isNews || !guard) {
        return false;
    }
    const QSet<QString> keys = m_dirty.take(node);
    m_dirtyOrder.removeAll(node);
    auto step = makeStep(node, keys, Own);
    if (!step) {
        return false; // whoever was told set it back
    }
    if (isText) {
        touch(node, Reload);
        letGoOf(node);
    }
    step->setText(name);
    m_history->push(step.release());
    emit recorded();
    return true;
}

bool ChangeRecorder::isEdited(const LNode *node) const
{
    if (node != m_node || !m_view) {
        return true; // no editor is known to be loading it
    }
    const QTextDocument *const document = m_view->document();
    return document->isUndoAvailable() || document->isRedoAvailable();
}

const std::shared_ptr<TextState> &ChangeRecorder::textOf(LNode *node)
{
    std::shared_ptr<TextState> &text = m_known[node].text;
    if (!text) {
        text = std::make_shared<TextState>();
    }
    return text;
}

bool ChangeRecorder::joinsLastStep(LNode *node) const
{
    const int last = m_history->index() - 1;
    const auto text = m_known.value(node).text;
    if (last < 0 || m_history->isClean() || !text || node != m_node || !m_view) {
        return false;
    }
    if (m_view->document()->isRedoAvailable()) {
        return false; // the view was undone or redone by itself
    }
    const auto *step = dynamic_cast<const NodeStep *>(m_history->command(last));
    return step && step->takesText(node, text, m_session);
}

ChangeRecorder::News ChangeRecorder::takeNews(LNode *node, const QSet<QString> &keys)
{
    QVariantMap &attributes = m_known[node].attributes;
    News news;
    news.textBefore = attributes;
    const bool hasNewText = keys.contains(RawHtmlKey);
    for (const QString &key : keys) {
        const QVariant before = attributes.value(key);
        const QVariant after = node->Attribute(key);
        storeAttribute(&attributes, key, after);
        const bool isNews = !readsTheSame(key, before, after);
        if (!isTextKey(key)) {
            news.before.insert(key, before);
            news.after.insert(key, after);
            news.isOther = news.isOther || isNews;
        } else if (isNews) {
            news.isText = true;
            news.isRawText = news.isRawText || key == RawHtmlKey;
            // An editor unbinds when it stores a text without a table.
            const bool isUnbound = hasNewText && readsTheSame(key, {}, after);
            news.isBinding = news.isBinding || (isBindingKey(key) && !isUnbound);
        }
    }
    return news;
}

std::unique_ptr<NodeStep> ChangeRecorder::makeStep(LNode *node, const QSet<QString> &keys,
                                                   Author author)
{
    const News news = takeNews(node, keys);
    const bool isEditedText = author == Own ? news.isText : news.isRawText && isEdited(node);
    const bool isMore = news.isBinding || news.isOther;
    if (!m_tree->contains(node) || (!isEditedText && !isMore)) {
        return nullptr;
    }
    const bool isOfView = node == m_node && author == Editor;
    const int commands = isOfView ? std::exchange(m_commands, 0) : 0;
    if (isOfView && !isMore && commands == 0 && joinsLastStep(node)) {
        return nullptr;
    }
    return makeStep(node, news, isMore ? 0 : commands);
}

std::unique_ptr<NodeStep> ChangeRecorder::makeStep(LNode *node, const News &news, int commands)
{
    NodeChange change;
    change.before = news.before;
    change.after = news.after;
    if (news.isText) {
        change.textBefore = textOf(node);
        change.textBefore->keep(news.textBefore);
        change.textAfter = std::make_shared<TextState>();
        m_known[node].text = change.textAfter;
    }
    change.isTyping = !news.isBinding && !news.isOther;
    change.session = node == m_node ? m_session : 0;
    change.commands = commands;
    QStringList named = change.before.keys();
    if (news.isBinding) {
        named.append(QStringLiteral("TableBindKey"));
    }
    const QString text = change.isTyping ? textStepName() : stepNameOf(named);
    return std::make_unique<NodeStep>(this, node, std::move(change), text);
}

} // namespace workbench
