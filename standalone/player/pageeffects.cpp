#include "pageeffects.h"

#include "effectcanvas.h"
#include "leffectnode.h"

namespace player {

namespace {

/** So many times a page that blinks goes out: no more than three flashes within a second. */
constexpr int Blinks = 3;

struct Row
{
    int effect;
    EffectFunction draw;
};

constexpr Row Effects[] = {
    {LEffectNode::SlideLeft, slideLeft},
    {LEffectNode::SlideRight, slideRight},
    {LEffectNode::SlideUp, slideUp},
    {LEffectNode::SlideDown, slideDown},
    {LEffectNode::WipeLeft, wipeLeft},
    {LEffectNode::WipeRight, wipeRight},
    {LEffectNode::WipeUp, wipeUp},
    {LEffectNode::WipeDown, wipeDown},
    {LEffectNode::HorizontalBlinds, horizontalBlinds},
    {LEffectNode::VerticalBlinds, verticalBlinds},
    {LEffectNode::Fade, fade},
    {LEffectNode::Mosaic, mosaic},
    {LEffectNode::Laser, laser},
    {LEffectNode::CurtainOpen, curtainOpen},
    {LEffectNode::CurtainClose, curtainClose},
    {LEffectNode::CurtainUp, curtainUp},
    {LEffectNode::CurtainDown, curtainDown},
    {LEffectNode::Scroll, scroll},
    {LEffectNode::Snow, snow},
    {LEffectNode::BoxOut, boxOut},
    {LEffectNode::BoxIn, boxIn},
    {LEffectNode::Checkerboard, checkerboard},
    {MoveLeft, moveLeft},
    {MoveRight, moveRight},
    {MoveUp, moveUp},
};

EffectFunction functionOf(int effect)
{
    for (const Row &row : Effects) {
        if (row.effect == effect) {
            return row.draw;
        }
    }
    return nullptr;
}

QImage whole(const QImage &image, const QSize &size)
{
    if (image.size() == size) {
        return image;
    }
    if (!image.isNull()) {
        return image.copy(QRect({}, size));
    }
    QImage empty(size, QImage::Format_ARGB32_Premultiplied);
    empty.fill(Qt::transparent);
    return empty;
}

QImage frameOf(int effect, const QImage &under, const QImage &page, double progress, quint32 seed,
               bool isClearing)
{
    const QSize size = page.isNull() ? under.size() : page.size();
    if (size.isEmpty()) {
        return {};
    }
    if (!(progress > 0)) { // No number is no progress.
        return whole(under, size);
    }
    const int chosen = chosenEffect(effect, seed);
    if (chosen == LEffectNode::Blink && progress < 1) {
        const bool isOut = int(progress * (2 * Blinks + 1)) % 2 == 1;
        return whole(isOut ? under : page, size);
    }
    const EffectFunction draw = functionOf(chosen);
    EffectCanvas canvas(draw != nullptr && progress < 1 ? size : QSize());
    if (canvas.rect().isEmpty()) { // At the end, or without memory for a frame.
        return whole(page, size);
    }
    const EffectScene scene{EffectLayer(under, size), EffectLayer(page, size), progress, seed,
                            isClearing};
    draw(scene, &canvas);
    return canvas.image();
}

} // namespace

QImage effectFrame(int effect, const QImage &under, const QImage &page, double progress,
                   quint32 seed)
{
    return frameOf(effect, under, page, progress, seed, false);
}

QImage clearFrame(int effect, const QImage &page, double progress, quint32 seed)
{
    return effect == LEffectNode::KeepPage ? page : frameOf(effect, page, {}, progress, seed, true);
}

int chosenEffect(int effect, quint32 seed)
{
    if (effect != LEffectNode::RandomEffect) {
        return effect;
    }
    // The numbers from 1 to 24 without that of a kept page.
    const int choice = 1 + int(chance(0, seed) * (LEffectNode::RandomEffect - 2));
    return choice < LEffectNode::KeepPage ? choice : choice + 1;
}

} // namespace player
