#include "itemplay.h"

#include "leffectnode.h"
#include "lscreennode.h"
#include "ltexteffectnode.h"
#include "pageeffects.h"

#include <tuple>

namespace player {

namespace {

constexpr int Slowest = 8;
constexpr int MiddleSpeed = 4;
/** Each step is felt as about the same: by a half first, by a quarter in the end. */
constexpr int EffectTimes[Slowest + 1] = {300, 500, 800, 1200, 1700, 2300, 3000, 4000, 5000};
constexpr int MoveSpeeds[Slowest + 1] = {320, 240, 180, 140, 110, 80, 60, 40, 20};

auto fieldsOf(const ItemPlay &play)
{
    return std::tie(play.displayEffect, play.clearEffect, play.displaySpeed, play.clearSpeed,
                    play.holdTenths, play.isByTime, play.seconds, play.rounds, play.isContinuous,
                    play.isLcd, play.pageCount, play.moveExtent);
}

} // namespace

bool ItemPlay::operator==(const ItemPlay &other) const
{
    return fieldsOf(*this) == fieldsOf(other);
}

ItemPlay itemPlayOf(const LTextEffectNode *node, int pageCount)
{
    ItemPlay play;
    play.pageCount = pageCount;
    if (node == nullptr) {
        return play;
    }
    const LScreenNode *screen = node->GetScreenNode();
    play.isLcd = screen != nullptr && screen->IsLCDDevice() && screen->GetUseLcdEeffct();
    play.displayEffect = node->GetDispEffect();
    play.clearEffect = node->GetClearEffect();
    play.displaySpeed = play.isLcd ? MiddleSpeed : node->GetDispTime();
    play.clearSpeed = node->GetClearTime();
    play.holdTenths = node->GetHoldTime();
    play.isByTime = node->GetPlayType() == QLatin1String("ByTime");
    play.seconds = node->GetByTime();
    play.rounds = node->GetByCount();
    play.isContinuous = node->IsContinueMove();
    if (play.isContinuous && play.displayEffect != MoveRight && play.displayEffect != MoveUp) {
        play.displayEffect = MoveLeft;
    }
    const QSize size = node->Size();
    play.moveExtent = play.displayEffect == MoveUp ? size.height() : size.width();
    return play;
}

int effectTime(int speed)
{
    return EffectTimes[qBound(0, speed, Slowest)];
}

int moveSpeed(int speed)
{
    return MoveSpeeds[qBound(0, speed, Slowest)];
}

} // namespace player
