#include "timeline.h"

#include "leffectnode.h"

#include <limits>

namespace player {

namespace {

/** Far below the largest number, so that a frame of many such items has a sum, too. */
constexpr qint64 LongestTime = Q_INT64_C(10000000000000);

/** @p a times @p b, neither below 0, but no more than the longest time. */
qint64 boundedProduct(qint64 a, qint64 b)
{
    return b != 0 && a > LongestTime / b ? LongestTime : a * b;
}

/** Whether a display effect takes time. */
bool isDisplayEffect(int effect)
{
    return effect > LEffectNode::NoEffect && effect <= LEffectNode::RandomEffect &&
           effect != LEffectNode::KeepPage;
}

/** The part of a whole that has passed: 0 to less than 1. */
double partOf(qint64 passed, qint64 whole)
{
    return double(passed) / double(qMax<qint64>(1, whole));
}

} // namespace

ItemTimeline::ItemTimeline(const ItemPlay &play)
    : m_play(play)
{
    m_play.pageCount = qMax(1, play.pageCount);
    if (m_play.isContinuous) {
        const qint64 pixels = qMax(1, m_play.moveExtent);
        m_comingIn = qMax<qint64>(ShortestPageTime, pixels * 1000 / moveSpeed(play.displaySpeed));
        m_held = 0;
    } else {
        if (isDisplayEffect(play.displayEffect)) {
            m_comingIn = play.isLcd ? LcdEffectTime : effectTime(play.displaySpeed);
        }
        if (!keepsPages() && isDisplayEffect(play.clearEffect)) {
            m_clearing = effectTime(play.clearSpeed);
        }
        m_held = qMax(qint64(qMax(0, play.holdTenths)) * 100,
                      ShortestPageTime - m_comingIn - m_clearing);
        m_held = qMax<qint64>(0, m_held);
    }
    if (!play.isByTime) {
        m_duration =
            boundedProduct(boundedProduct(pageTime(), m_play.pageCount), qMax(1, play.rounds));
    } else if (play.seconds > 0) {
        m_duration = qint64(play.seconds) * 1000;
    } else {
        m_duration = m_comingIn + ShortestPageTime;
    }
}

bool ItemTimeline::keepsPages() const
{
    return m_play.isContinuous || m_play.isLcd || m_play.clearEffect == LEffectNode::KeepPage;
}

qint64 ItemTimeline::startOf(int page, int round) const
{
    const qint64 pages = qint64(qMax(0, round)) * m_play.pageCount + qMax(0, page);
    return boundedProduct(pageTime(), pages);
}

PlayMoment ItemTimeline::at(qint64 elapsed) const
{
    const bool isOver = elapsed >= m_duration;
    const qint64 time = isOver ? m_duration - 1 : qMax<qint64>(0, elapsed);
    const qint64 pages = time / pageTime();
    PlayMoment moment;
    moment.page = int(pages % m_play.pageCount);
    moment.round = int(qMin<qint64>(pages / m_play.pageCount, std::numeric_limits<int>::max()));
    if (isOver) {
        return moment;
    }
    qint64 passed = time % pageTime();
    moment.pageElapsed = passed;
    qint64 whole = m_comingIn;
    moment.phase = PlayPhase::ComingIn;
    if (passed >= whole) {
        passed -= whole;
        whole = m_held;
        moment.phase = PlayPhase::Held;
        if (passed >= whole) {
            passed -= whole;
            whole = m_clearing;
            moment.phase = PlayPhase::Clearing;
        }
    }
    moment.progress = partOf(passed, whole);
    moment.millisecondsLeft = qMin(whole - passed, m_duration - time);
    return moment;
}

FrameTimeline::FrameTimeline(const QVector<ItemPlay> &plays)
{
    for (const ItemPlay &play : plays) {
        m_items.append(ItemTimeline(play));
    }
}

qint64 FrameTimeline::startOf(int item) const
{
    qint64 start = 0;
    for (int i = 0; i < item && item < m_items.size(); ++i) {
        start += m_items.at(i).duration();
    }
    return start;
}

FrameMoment FrameTimeline::at(qint64 elapsed) const
{
    FrameMoment frame;
    if (m_items.isEmpty()) {
        return frame;
    }
    const qint64 whole = startOf(m_items.size() - 1) + m_items.constLast().duration();
    qint64 rest = qMax<qint64>(0, elapsed);
    frame.cycle = int(qMin<qint64>(rest / whole, std::numeric_limits<int>::max()));
    rest %= whole;
    frame.item = 0;
    while (rest >= m_items.at(frame.item).duration()) {
        rest -= m_items.at(frame.item).duration();
        ++frame.item;
    }
    frame.itemElapsed = rest;
    frame.moment = m_items.at(frame.item).at(rest);
    return frame;
}

} // namespace player
