#pragma once

#include "itemplay.h"

#include <QVector>

namespace player {

/** What a page is doing. */
enum class PlayPhase {
    ComingIn, ///< By the display effect, over what was there before.
    Held,
    Clearing, ///< By the clear effect.
    Over      ///< The item has been played.
};

/** What an item shows at one moment. */
struct PlayMoment
{
    PlayPhase phase = PlayPhase::Over;
    int page = 0;                ///< From 0; the last one that was shown when it is over.
    int round = 0;               ///< From 0.
    double progress = 1;         ///< Of the phase, 0 to less than 1; 1 when it is over.
    qint64 pageElapsed = 0;      ///< Since the page began to come.
    qint64 millisecondsLeft = 0; ///< Until something else begins, at least 1; 0 when it is over.
};

/**
 * When an item shows what, as a pure function of the time; no clock, no timer.
 *
 * Each page comes in, is held and cleared; after the last one the next round begins. Rounds or
 * seconds of 0 and below play one round, or until the first page has been there for a moment;
 * no pages at all are played as one. Times are in milliseconds and cut at some three hundred years.
 */
class ItemTimeline
{
public:
    ItemTimeline() = default;
    explicit ItemTimeline(const ItemPlay &play);

    [[nodiscard]] const ItemPlay &play() const { return m_play; }
    /** The item is over from here on; at least ShortestPageTime. */
    [[nodiscard]] qint64 duration() const { return m_duration; }
    /** A time below 0 is the beginning. */
    [[nodiscard]] PlayMoment at(qint64 elapsed) const;
    /** When a page begins to come in, which may be after the item is over. */
    [[nodiscard]] qint64 startOf(int page, int round) const;
    /** Whether a page stays where it is until another one covers it. */
    [[nodiscard]] bool keepsPages() const;

private:
    [[nodiscard]] qint64 pageTime() const { return m_comingIn + m_held + m_clearing; }

    ItemPlay m_play;
    qint64 m_comingIn = 0;
    qint64 m_held = ShortestPageTime;
    qint64 m_clearing = 0;
    qint64 m_duration = ShortestPageTime;
};

/** What a frame shows at one moment. */
struct FrameMoment
{
    int item = -1; ///< -1 when the frame has none.
    int cycle = 0; ///< How often all items have been played before.
    qint64 itemElapsed = 0;
    PlayMoment moment;
};

/** The items of a frame, one after another, and again from the first one. */
class FrameTimeline
{
public:
    FrameTimeline() = default;
    explicit FrameTimeline(const QVector<ItemPlay> &plays);

    [[nodiscard]] int itemCount() const { return m_items.size(); }
    /** @p item must be in range. */
    [[nodiscard]] const ItemTimeline &item(int item) const { return m_items.at(item); }
    [[nodiscard]] FrameMoment at(qint64 elapsed) const;
    /** When the item begins in the first cycle; 0 for one out of range. */
    [[nodiscard]] qint64 startOf(int item) const;

private:
    QVector<ItemTimeline> m_items;
};

} // namespace player
