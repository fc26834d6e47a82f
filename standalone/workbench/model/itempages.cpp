#include "itempages.h"

#include "itemcheck.h"
#include "itemrenderer.h"
#include "livedata.h"
#include "ltexteffectnode.h"
#include "ltranslation.h"
#include "pagefiles.h"
#include "programmedocument.h"
#include "recordscheck.h"
#include "treewatch.h"

#include <QElapsedTimer>
#include <QSet>

#include <limits>

namespace workbench {

namespace {

constexpr int SettleTime = 250;
constexpr int LongestSettleTime = 2000;
/** What changes within this time is shown at once together. */
constexpr int FreshTime = 15;
constexpr int CacheBytes = 64 * 1024 * 1024;
// A renderer holds a document that is laid out.
constexpr int MostRenderers = 8;

/** Attributes of an item that its pages do not depend on: names, and how it is played. */
bool isShown(const QString &key)
{
    enum Owner { LNode, LControllerNode, LScreenNode, LEffectNode, LTextEffectNode };
    static const QSet<QString> hidden = [] {
        QSet<QString> keys{QStringLiteral("Name"), QStringLiteral("PlayText")};
#define NODE_ATTRIBUTE(Class, Type, Getter, Setter, Key, Default)                                  \
    if ((Class) == LEffectNode || (Class) == LNode) {                                              \
        keys.insert(QStringLiteral(Key));                                                          \
    }
#include "nodeattributes.def"
#undef NODE_ATTRIBUTE
        return keys;
    }();
    return !hidden.contains(key);
}

QString placeOf(const LNode *node)
{
    QString place = node->name();
    for (const LNode *above = node->ParentNode(); above && above->ParentNode();
         above = above->ParentNode()) {
        place.prepend(above->name() + QLatin1Char('/'));
    }
    return place;
}

bool isSelfOrBelow(const LNode *node, const LNode *above)
{
    while (node && node != above) {
        node = node->ParentNode();
    }
    return node != nullptr;
}

} // namespace

ItemPages::ItemPages(ProgrammeDocument *document, LiveData *data, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_data(data)
    , m_pages(CacheBytes)
    , m_files(new PageFiles)
{
    m_settle.setSingleShot(true);
    m_settle.setInterval(SettleTime);
    connect(&m_settle, &QTimer::timeout, this, &ItemPages::announce);
    m_fresh.setSingleShot(true);
    m_fresh.setInterval(FreshTime);
    connect(&m_fresh, &QTimer::timeout, this, &ItemPages::announceData);
    m_counting.setInterval(0);
    connect(&m_counting, &QTimer::timeout, this, &ItemPages::countOn);
    connect(data->manager(), &sources::SourceManager::changed, this, &ItemPages::onDataChanged);
    connect(LTranslation::instance(), &LTranslation::LanguageChanged, this,
            &ItemPages::retranslate);
    const TreeWatch *const tree = document->tree();
    connect(tree, &TreeWatch::attributeChanged, this, &ItemPages::onAttributeChanged);
    connect(tree, &TreeWatch::gone, this, &ItemPages::forget);
    connect(tree, &TreeWatch::childInserted, this,
            [this](LNode *, LNode *child) { invalidateBelow(child); });
    connect(document, &ProgrammeDocument::aboutToReplace, this, [this] {
        watch(nullptr);
        m_items.clear();
        m_recent.clear();
        m_pages.clear();
    });
}

ItemPages::~ItemPages() = default;

void ItemPages::watch(LTextEffectNode *node)
{
    LTextEffectNode *const item = m_document->tree()->contains(node) ? node : nullptr;
    if (item == m_watched) {
        return;
    }
    m_files->clear();
    m_watched = item;
    if (item) {
        itemOf(item).isChanged = true;
        m_settle.start();
    }
}

void ItemPages::onAttributeChanged(LNode *node, const QString &key)
{
    if (isShown(key)) {
        invalidateBelow(node);
    }
}

void ItemPages::invalidateBelow(LNode *node)
{
    bool isWatched = false;
    for (Item &item : m_items) {
        if (isSelfOrBelow(item.node, node)) {
            invalidate(&item);
            isWatched = isWatched || item.node == m_watched;
        }
    }
    if (isWatched) {
        m_files->clear();
    }
}

void ItemPages::invalidate(Item *item)
{
    dropPages(item);
    item->isChanged = true;
    m_settle.start();
}

/** Its pages are never asked for again: data that changes often would fill the cache with them. */
void ItemPages::dropPages(Item *item)
{
    const QList<QPair<quint64, int>> kept = m_pages.keys();
    for (const QPair<quint64, int> &key : kept) {
        if (key.first == item->generation) {
            m_pages.remove(key);
        }
    }
    item->renderer.reset();
    item->generation = 0;
    item->isCounted = false;
    item->isCounting = false;
    item->sought = -1;
    m_recent.removeAll(item->node.data());
}

ItemPages::Item &ItemPages::itemOf(LTextEffectNode *node)
{
    Item &item = m_items[node];
    item.node = node;
    return item;
}

void ItemPages::forget(LNode *node)
{
    m_items.remove(node);
    m_recent.removeAll(node);
    if (!m_watched) {
        m_files->clear();
    }
}

void ItemPages::announce()
{
    QVector<QPointer<LTextEffectNode>> changed;
    for (Item &item : m_items) {
        if (item.isChanged) {
            item.isChanged = false;
            changed.append(item.node);
        }
    }
    tell(changed);
}

void ItemPages::tell(const QVector<QPointer<LTextEffectNode>> &changed)
{
    if (m_watched && changed.contains(m_watched)) {
        publish();
    }
    for (const QPointer<LTextEffectNode> &node : changed) {
        if (node) {
            emit pagesChanged(node);
        }
    }
}

void ItemPages::publish()
{
    const QPointer<LTextEffectNode> node = m_watched;
    QElapsedTimer timer;
    timer.start();
    renderer(node);
    // Who types a very long text is not stopped at every breath by its being laid out.
    m_settle.setInterval(qBound(SettleTime, int(timer.elapsed()) * 4, LongestSettleTime));
    const std::shared_ptr<player::ItemRenderer> pages = m_items[node].renderer;
    const int count = pageCount(node);
    // Who looks at a late page stays there while the pages are counted anew.
    node->SetPageCount(isCounting(node) ? qMax(count, node->GetPageCount()) : count);
    node->PageChanged();
    // Who was told may have changed the node.
    if (node && node == m_watched && pages && m_items.value(node).renderer == pages) {
        m_files->start(node, pages);
    }
}

/** What problems say is put into words by a renderer; the pages that were made stay as they are. */
void ItemPages::retranslate()
{
    for (Item &item : m_items) {
        item.renderer.reset();
        item.isChanged = true;
    }
    m_recent.clear();
    m_settle.start();
}

player::ItemRenderer *ItemPages::renderer(LTextEffectNode *node)
{
    if (!m_document->tree()->contains(node)) {
        return nullptr;
    }
    Item &item = itemOf(node);
    if (!item.renderer) {
        item.renderer = std::make_shared<player::ItemRenderer>(node, placeOf(node), QSize(),
                                                               m_data->snapshot());
        if (item.generation == 0) {
            item.generation = m_nextGeneration++;
        }
        item.hadData = !m_data->snapshot().isEmpty();
        item.sources = item.renderer->sources();
        item.counted = 0;
        item.isCounted = false;
    }
    m_recent.removeAll(node);
    m_recent.append(node);
    while (m_recent.size() > MostRenderers) {
        m_items[m_recent.takeFirst()].renderer.reset();
    }
    return item.renderer.get();
}

QImage ItemPages::page(LTextEffectNode *node, int index)
{
    const quint64 known = m_items.value(node).generation;
    if (const QImage *kept = known ? m_pages.object({known, index}) : nullptr) {
        return *kept;
    }
    player::ItemRenderer *const pages = renderer(node);
    if (!pages) {
        return {};
    }
    Item &item = m_items[node];
    if (index >= item.counted && !item.isCounted) {
        count(&item, index + 1);
    }
    if (index >= item.counted && !item.isCounted) {
        item.sought = index;
        countLater(&item);
        return {};
    }
    const QImage image = pages->finishedPage(index);
    if (!image.isNull()) {
        m_pages.insert({m_items.value(node).generation, index}, new QImage(image),
                       int(qMin<qint64>(image.sizeInBytes(), CacheBytes)));
    }
    return image;
}

bool ItemPages::isCounting(const LTextEffectNode *node) const
{
    return m_items.value(node).isCounting;
}

int ItemPages::pageCount(LTextEffectNode *node)
{
    if (!renderer(node)) {
        return 0;
    }
    Item &item = m_items[node];
    if (!item.isCounted) {
        count(&item, std::numeric_limits<int>::max());
        countLater(&item);
    }
    return item.counted;
}

player::Problems ItemPages::problems(LTextEffectNode *node)
{
    player::ItemRenderer *const pages = renderer(node);
    return pages ? pages->problems() + player::checkItem(pages) +
                       player::checkRecords(node, pages->place())
                 : player::Problems();
}

} // namespace workbench
