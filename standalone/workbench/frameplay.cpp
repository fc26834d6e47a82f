#include "frameplay.h"

#include "itempages.h"
#include "ltexteffectnode.h"
#include "pageeffects.h"

#include <limits>

namespace workbench {

using player::FrameMoment;
using player::ItemPlay;
using player::ItemTimeline;
using player::PlayPhase;

namespace {

bool comesInTheSameWay(const ItemPlay &a, const ItemPlay &b)
{
    return a.displayEffect == b.displayEffect && a.displaySpeed == b.displaySpeed &&
           a.isContinuous == b.isContinuous && a.isLcd == b.isLcd;
}

bool isSamePage(const FrameMoment &a, const FrameMoment &b)
{
    return a.item == b.item && a.cycle == b.cycle && a.moment.round == b.moment.round &&
           a.moment.page == b.moment.page;
}

} // namespace

FramePlay::FramePlay(ItemPages *pages, qint64 now, quint32 seed)
    : m_pages(pages)
    , m_start(now)
    , m_seed(seed)
{}

void FramePlay::setItems(const QVector<LTextEffectNode *> &items, qint64 now)
{
    const LTextEffectNode *const playing = item();
    QVector<Entry> entries;
    bool isSame = items.size() == m_entries.size();
    int index = -1;
    for (LTextEffectNode *node : items) {
        Entry entry{node};
        for (const Entry &known : qAsConst(m_entries)) {
            entry = known.node == node ? known : entry;
        }
        isSame = isSame && m_entries.at(entries.size()).node == node;
        index = node == playing ? entries.size() : index;
        entries.append(entry);
    }
    if (!isSame) {
        adopt(entries, m_timeline.at(now - m_start), index, now);
    }
}

void FramePlay::refresh(qint64 now)
{
    const FrameMoment before = m_timeline.at(now - m_start);
    adopt(m_entries, before, before.item, now);
}

/** @p item is the place among @p entries of the one that was playing, -1 when it is gone. */
void FramePlay::adopt(const QVector<Entry> &entries, const FrameMoment &before, int item,
                      qint64 now)
{
    const ItemPlay old = before.item >= 0 ? m_timeline.item(before.item).play() : ItemPlay();
    m_entries = entries;
    QVector<ItemPlay> plays;
    for (Entry &entry : m_entries) {
        if (!entry.isCounted) {
            const int found = m_pages->pageCount(entry.node);
            // What plays late pages does not fall back while they are counted anew.
            entry.pageCount =
                m_pages->isCounting(entry.node) ? qMax(found, entry.pageCount) : found;
            entry.isCounted = true;
        }
        plays.append(player::itemPlayOf(entry.node, entry.pageCount));
    }
    m_timeline = player::FrameTimeline(plays);
    if (item < 0) {
        // What follows the one that is gone has taken its place.
        m_start = now - m_timeline.startOf(qMin(before.item, m_entries.size() - 1));
        m_shown = FrameMoment();
        return;
    }
    const ItemTimeline &timeline = m_timeline.item(item);
    const bool isSame = comesInTheSameWay(timeline.play(), old);
    const int page = qMin(before.moment.page, timeline.play().pageCount - 1);
    m_start = now - m_timeline.startOf(item) - timeline.startOf(page, before.moment.round) -
              (isSame ? before.moment.pageElapsed : 0);
    if (m_shown.item >= 0) {
        // The page that is shown still goes on: it must not come in over itself.
        const bool goesOn = isSamePage(m_shown, before);
        m_shown.item = item;
        m_shown.cycle = 0;
        m_shown.moment.page = goesOn ? page : -1;
    }
}

void FramePlay::dropPages(const LTextEffectNode *node)
{
    for (Entry &entry : m_entries) {
        if (entry.node == node) {
            entry.isCounted = false;
        }
    }
    if (m_next.node == node) {
        m_next = Page();
    }
    if (m_page.node == node) {
        m_page.index = -1;
    }
}

bool FramePlay::advance(qint64 now)
{
    const FrameMoment at = m_timeline.at(now - m_start);
    if (!isSamePage(at, m_shown)) {
        beginPage(at);
    } else if (at.item >= 0 && m_page.index != at.moment.page) {
        takePage(at);
    }
    m_shown = at;
    const QImage picture = draw();
    const bool isOther = picture.cacheKey() != m_picture.cacheKey();
    m_picture = picture;
    return isOther;
}

void FramePlay::beginPage(const FrameMoment &at)
{
    ++m_seed;
    m_under = QImage();
    if (m_shown.item >= 0 && m_shown.item < m_timeline.itemCount()) {
        const ItemTimeline &before = m_timeline.item(m_shown.item);
        const bool isCut =
            before.play().isByTime && (at.item != m_shown.item || at.cycle != m_shown.cycle);
        if (before.keepsPages()) {
            // What ran out of time may have been in the middle of a movement.
            m_under = isCut ? m_picture : m_page.image;
        }
    }
    if (at.item < 0) {
        m_page = Page();
        return;
    }
    takePage(at);
}

/** The page before goes on until this one is found. */
void FramePlay::takePage(const FrameMoment &at)
{
    LTextEffectNode *const node = m_entries.at(at.item).node;
    const QImage image = pageImage(at.item, at.moment.page);
    if (image.isNull() && m_pages->isCounting(node)) {
        m_page.node = node;
        m_page.index = -1;
    } else {
        m_page = {node, at.moment.page, image};
    }
}

QImage FramePlay::pageImage(int item, int index)
{
    LTextEffectNode *const node = m_entries.at(item).node;
    if (node != nullptr && m_next.node == node && m_next.index == index && !m_next.image.isNull()) {
        return m_next.image;
    }
    const QImage page = m_pages->page(node, index);
    return page.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QImage FramePlay::draw() const
{
    const player::PlayMoment &moment = m_shown.moment;
    if (m_shown.item < 0) {
        return {};
    }
    const ItemPlay &play = m_timeline.item(m_shown.item).play();
    switch (moment.phase) {
    case PlayPhase::ComingIn:
        return player::effectFrame(play.displayEffect, m_under, m_page.image, moment.progress,
                                   m_seed);
    case PlayPhase::Clearing:
        return player::clearFrame(play.clearEffect, m_page.image, moment.progress, ~m_seed);
    default:
        return m_page.image;
    }
}

qint64 FramePlay::rest(qint64 now) const
{
    const FrameMoment at = m_timeline.at(now - m_start);
    if (at.item < 0) {
        return std::numeric_limits<qint64>::max();
    }
    return at.moment.phase == PlayPhase::Held ? at.moment.millisecondsLeft : 0;
}

void FramePlay::prepareNext()
{
    if (m_shown.item < 0) {
        return;
    }
    const player::PlayMoment &moment = m_shown.moment;
    if (moment.phase != PlayPhase::Held && !m_timeline.item(m_shown.item).play().isContinuous) {
        return;
    }
    const qint64 next =
        m_timeline.startOf(m_shown.item) + m_shown.itemElapsed + moment.millisecondsLeft;
    FrameMoment at = m_timeline.at(next);
    if (at.item == m_shown.item && at.moment.phase == PlayPhase::Clearing) {
        at = m_timeline.at(next + at.moment.millisecondsLeft);
    }
    LTextEffectNode *const node = m_entries.at(at.item).node;
    const bool isHere = m_page.node == node && m_page.index == at.moment.page;
    if (node != nullptr && !isHere && (m_next.node != node || m_next.index != at.moment.page)) {
        m_next = {node, at.moment.page, pageImage(at.item, at.moment.page)};
    }
}

LTextEffectNode *FramePlay::item() const
{
    return m_shown.item >= 0 && m_shown.item < m_entries.size()
               ? m_entries.at(m_shown.item).node.data()
               : nullptr;
}

int FramePlay::pageCount() const
{
    return m_shown.item >= 0 ? m_timeline.item(m_shown.item).play().pageCount : 1;
}

} // namespace workbench
