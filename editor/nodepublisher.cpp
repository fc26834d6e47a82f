#include "nodepublisher.h"

#include "documentstorage.h"
#include "htmlguard.h"
#include "lrichviewedit.h"
#include "ltexteffectnode.h"
#include "nodecall.h"
#include "nodepage.h"
#include "pagefiles.h"
#include "scenethumbnailcapture.h"
#include "table/richtable.h"
#include "table/tablebinding.h"

#include <QCoreApplication>
#include <QTextDocument>

#include <utility>

namespace lctrlsex {

namespace {

/** Texts of this file, under one name for translators. */
struct NodePublisherTexts
{
    Q_DECLARE_TR_FUNCTIONS(NodePublisher)
};

/** A document that can be loaded, or why there is none. */
struct Readable
{
    QString html;
    QString problem;
};

Readable readStored(const QString &stored)
{
    const DecodedDocument decoded = decodeDocument(stored);
    if (!decoded.error.isEmpty()) {
        return {
            QString(),
            NodePublisherTexts::tr("The stored document cannot be read: %1").arg(decoded.error)};
    }
    const GuardedHtml guarded = guardHtml(decoded.html);
    if (!guarded.accepted) {
        return {QString(), NodePublisherTexts::tr(
                               "The stored document cannot be shown (line %1, column %2): %3 %4")
                               .arg(guarded.line)
                               .arg(guarded.column)
                               .arg(guarded.reason, guarded.remedy)};
    }
    return {guarded.html, QString()};
}

/** Plain text as a document; empty when even that is too much. */
QString asHtml(const QString &plainText)
{
    return guardHtml(plainText.toHtmlEscaped().replace(QLatin1Char('\n'), QStringLiteral("<br/>")))
        .html;
}

} // namespace

NodePublisher::NodePublisher(LRichViewEdit *view)
    : m_view(view)
    , m_export(view->document())
{}

void NodePublisher::attach(LTextEffectNode *node)
{
    m_node = node;
    ++m_attachment;
    m_rawText.clear();
    m_revision = m_view->document()->revision();
    m_lostKeys.clear();
    m_keepsStored = false;
    m_forceRedraw = false;
    m_forceStore = false;
    m_hasCut = false;
    m_isLoaded = false;
}

NodePublisher::Loaded NodePublisher::load()
{
    const QPointer<LTextEffectNode> node = m_node;
    const int attachment = m_attachment;
    const TextSettings settings = textSettingsOf(node);
    const Texts texts = {nodeCall(node, &LTextEffectNode::GetRawHtmlText),
                         nodeCall(node, &LTextEffectNode::GetPlayText),
                         nodeCall(node, &LTextEffectNode::GetHtmlText),
                         nodeCall(node, &LTextEffectNode::GetStringContent)};
    Loaded result;
    if (!isStill(node, attachment)) {
        return result;
    }
    const Readable document = readStored(texts.raw);
    result.wasNew = texts.raw.isEmpty();
    result.notice = document.problem;
    m_keepsStored = !document.problem.isEmpty();
    m_view->load(m_keepsStored ? asHtml(texts.play) : document.html, settings);
    m_rawText = texts.raw;
    m_loaded = texts;
    takeAsStored();
    return result;
}

QString NodePublisher::notice() const
{
    return m_keepsStored ? readStored(m_rawText).problem : QString();
}

void NodePublisher::replaceStored()
{
    m_keepsStored = false;
    m_view->document()->setModified(true);
    m_revision = -1;
}

void NodePublisher::takeAsStored()
{
    m_view->document()->setModified(false);
    m_revision = m_view->document()->revision();
}

bool NodePublisher::isEdited() const
{
    return m_isLoaded && !m_keepsStored && m_revision != m_view->document()->revision();
}

NodePublisher::Pushed NodePublisher::push()
{
    const QPointer<LTextEffectNode> node = m_node;
    const int attachment = m_attachment;
    if (!m_isLoaded || node.isNull() || m_keepsStored || m_pushing == attachment) {
        return Nothing; // an announcement of a push may ask for another one
    }
    m_pushing = attachment;
    const Pushed result = pushNow(node, attachment);
    if (m_pushing == attachment) {
        m_pushing = 0;
    }
    return result;
}

NodePublisher::Pushed NodePublisher::pushNow(const QPointer<LTextEffectNode> &node, int attachment)
{
    const bool isStoredAsIs =
        !isEdited() && nodeCall(node, &LTextEffectNode::GetRawHtmlText) == m_rawText;
    if (!isStill(node, attachment) || (isStoredAsIs && !m_forceRedraw)) {
        return Nothing;
    }
    const bool hasTexts = (!isStoredAsIs || m_forceStore) && storeTexts(node, attachment);
    if (!isStill(node, attachment) || !(hasTexts || m_forceRedraw)) {
        return Nothing;
    }
    m_forceRedraw = false;
    m_forceStore = false;
    announce(node, attachment);
    return hasTexts ? Document : Look;
}

/** What the node is to hold, the marks of a table apart. */
NodePublisher::Texts NodePublisher::textsNow()
{
    const bool isLoaded = !m_view->document()->isModified();
    if (isLoaded && !m_forceStore) {
        return m_loaded; // byte for byte, whoever wrote it
    }
    const ExportedDocument texts = m_export.texts();
    if (isLoaded) {
        return {m_loaded.raw, m_loaded.play, texts.display, texts.display};
    }
    return {texts.stored, m_view->toPlainText(), texts.display, texts.display};
}

/** Writes the texts; false when the node holds the very same document already. */
bool NodePublisher::storeTexts(const QPointer<LTextEffectNode> &node, int attachment)
{
    Texts texts = textsNow();
    m_revision = m_view->document()->revision();
    m_rawText = texts.raw; // before anything is announced that may come back here
    const bool isSame = texts.raw == nodeCall(node, &LTextEffectNode::GetRawHtmlText);
    const auto isStillOurs = [this, &node, attachment] {
        return isStill(node, attachment);
    };
    if ((isSame && !m_forceStore) || !isStillOurs()) {
        return false;
    }
    storeContent(node, &texts, isStillOurs);
    using Setter = void (LTextEffectNode::*)(const QString &);
    const std::pair<Setter, QString> stored[] = {{&LTextEffectNode::SetRawHtmlText, texts.raw},
                                                 {&LTextEffectNode::SetPlayText, texts.play},
                                                 {&LTextEffectNode::SetHtmlText, texts.display}};
    for (const auto &[set, text] : stored) {
        if (isStillOurs()) {
            (node->*set)(text);
        }
    }
    return true;
}

/** Writes what the player reads: the display HTML, and beside it the template of a table. */
void NodePublisher::storeContent(const QPointer<LTextEffectNode> &node, Texts *texts,
                                 const std::function<bool()> &isStillOurs)
{
    const bool hasTable = followTable(node, isStillOurs);
    if (hasTable && (m_view->document()->isModified() || m_forceStore)) {
        const OutlinedHtml unified = unifyAndOutline(texts->display, tableMarksOf(node));
        texts->display = unified.html;
        m_hasCut = true;
        storeTemplate(node, unified, isStillOurs);
    } else if (hasTable && m_hasCut && !texts->display.isEmpty()) {
        // What was loaded fits the templates that were loaded with it, and no others.
        storeTemplate(node, texts->display, isStillOurs);
    } else if (isStillOurs()) {
        node->SetStringContent(texts->content);
    }
}

/** Whether there is a table; without one there is no binding, and undo brings back both. */
bool NodePublisher::followTable(const QPointer<LTextEffectNode> &node,
                                const std::function<bool()> &isStillOurs)
{
    if (firstTable(m_view->document()) == nullptr) {
        const QStringList keys = bindKeysOf(node);
        if (!keys.join(QString()).isEmpty()) {
            m_lostKeys = keys;
        }
        m_hasCut = true;
        resetTableBinding(node, isStillOurs);
        return false;
    }
    if (!m_lostKeys.isEmpty() && m_view->document()->isRedoAvailable()) {
        setBindKeys(node, m_lostKeys, isStillOurs);
    }
    m_lostKeys.clear();
    return true;
}

/** Preview, thumbnail and redraw, in this order. */
void NodePublisher::announce(const QPointer<LTextEffectNode> &node, int attachment)
{
    QImage image = pageImage(qMax(1, int(m_position.page)));
    if (image.isNull()) {
        const QSize size = nodeCall(node, &LTextEffectNode::Size);
        image = nodeCall(node, &LTextEffectNode::NodeImage, size);
    }
    if (isStill(node, attachment)) {
        node->UpdatePreviewCache(image);
    }
    if (isStill(node, attachment)) {
        SceneThumbnailCapture::instance()->requestFromNode(node);
    }
    if (isStill(node, attachment)) {
        node->ReDrawImaged();
    }
}

QImage NodePublisher::pageImage(int page)
{
    const QPointer<LTextEffectNode> node = m_node;
    if (node.isNull()) {
        return QImage();
    }
    QImage image = pageFile(
        nodeCall(node, &LTextEffectNode::GetFilePath, QStringLiteral("DynamicData")), page);
    const PageStyle style = pageStyleOf(node);
    const PageFinish finish = pageFinishOf(node);
    if (node.isNull()) {
        return QImage();
    }
    if (image.isNull()) {
        // Kept on purpose because later pages come from the files: only the top is drawn here.
        image = m_renderer.topPage(m_view->document(), style);
    }
    return finishPage(image, style.size, finish, hostEffects());
}

bool NodePublisher::setPosition(PagePosition asked, bool notify)
{
    const QPointer<LTextEffectNode> node = m_node;
    const int attachment = m_attachment;
    if (node.isNull() || asked == m_position) {
        return false;
    }
    m_position = clamped(asked);
    const PagePosition position = m_position;
    node->SetCurrentPage(int(position.page));
    if (isStill(node, attachment)) {
        node->SetPageCount(int(position.count));
    }
    if (notify && isStill(node, attachment)) {
        node->PageChanged();
    }
    return true;
}

} // namespace lctrlsex
