// How pages follow the data that they show.

#include "itempages.h"
#include "itemrenderer.h"
#include "ltexteffectnode.h"

#include <QElapsedTimer>

#include <algorithm>
#include <limits>
#include <utility>

namespace workbench {

namespace {

/** The longest that counting pages may keep the window waiting. */
constexpr int CountTime = 6;

} // namespace

/** New data is shown at once, and the files of the pages before stay until there are others. */
void ItemPages::onDataChanged(const QStringList &names)
{
    for (Item &item : m_items) {
        const bool isConcerned =
            std::any_of(names.begin(), names.end(),
                        [&item](const QString &name) { return item.sources.contains(name); });
        // Without a generation it is known already that its pages are to be asked for.
        if (item.generation != 0 && (isConcerned || !item.hadData)) {
            dropPages(&item);
            item.isNew = true;
        }
    }
    if (!m_fresh.isActive()) {
        m_fresh.start();
    }
}

void ItemPages::announceData()
{
    QVector<QPointer<LTextEffectNode>> changed;
    for (Item &item : m_items) {
        if (std::exchange(item.isNew, false) && !item.isChanged) {
            changed.append(item.node);
        }
    }
    tell(changed);
}

/** Counts on for a moment, until there are enough; a later turn of the event loop goes on. */
void ItemPages::count(Item *item, int enough)
{
    QElapsedTimer timer;
    timer.start();
    while (!item->isCounted && item->counted < enough &&
           (item->counted == 0 || timer.elapsed() < CountTime)) {
        item->isCounted = !item->renderer->hasPage(item->counted);
        item->counted += item->isCounted ? 0 : 1;
    }
}

void ItemPages::countLater(Item *item)
{
    item->isCounting = !item->isCounted;
    if (item->isCounting) {
        m_counting.start();
    }
}

void ItemPages::countOn()
{
    m_counting.stop();
    QElapsedTimer timer;
    timer.start();
    QVector<QPointer<LTextEffectNode>> counted;
    for (Item &item : m_items) {
        if (!item.isCounting || !item.renderer) {
            continue;
        }
        if (timer.elapsed() < CountTime) {
            count(&item, std::numeric_limits<int>::max());
            if (item.isCounted || (item.sought >= 0 && item.sought < item.counted)) {
                item.sought = -1;
                counted.append(item.node);
            }
        }
        countLater(&item);
    }
    for (const QPointer<LTextEffectNode> &node : qAsConst(counted)) {
        if (node && node == m_watched && m_items[node].isCounted) {
            node->SetPageCount(m_items[node].counted);
            node->PageChanged();
        }
        if (node) {
            emit pagesChanged(node);
        }
    }
}

} // namespace workbench
