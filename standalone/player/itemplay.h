#pragma once

#include <QtGlobal>

class LTextEffectNode;

namespace player {

/** How one item is played: what its node says of effects and times. */
struct ItemPlay
{
    int displayEffect = 0; ///< An LEffectNode::EffectType, or a ContinuousMove if it moves so.
    int clearEffect = 0;   ///< An LEffectNode::EffectType.
    int displaySpeed = 0;  ///< 0 (fast) to 8 (slow); others are taken as the nearest.
    int clearSpeed = 0;    ///< As above.
    int holdTenths = 50;   ///< How long a page stands still; below 0 is 0.
    bool isByTime = false; ///< It is over after so many seconds, else after so many rounds.
    int seconds = 10;
    int rounds = 1;
    bool isContinuous = false; ///< Pages follow one another without a stop; nothing is held.
    bool isLcd = false;        ///< On a screen with LCD effects: no speeds, and no page is cleared.
    int pageCount = 1;
    int moveExtent = 1; ///< The pixels that a page moves by, of an item that moves continuously.

    [[nodiscard]] bool operator==(const ItemPlay &other) const;
    [[nodiscard]] bool operator!=(const ItemPlay &other) const { return !(*this == other); }
};

/**
 * What @p node says; its size decides how far a page moves. A default one for null. An item that
 * moves continuously without a direction for its effect moves left. GUI thread.
 */
[[nodiscard]] ItemPlay itemPlayOf(const LTextEffectNode *node, int pageCount);

/** Milliseconds that an effect takes at a speed index, 300 (0) to 5000 (8). */
[[nodiscard]] int effectTime(int speed);
/** Pixels a second that a continuous move makes at a speed index, 320 (0) to 20 (8). */
[[nodiscard]] int moveSpeed(int speed);

/** Milliseconds that the effects of an LCD screen take. */
constexpr int LcdEffectTime = 1000;
/** No page is gone sooner than so many milliseconds after it began to come. */
constexpr int ShortestPageTime = 100;

} // namespace player
