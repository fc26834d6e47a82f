#include "effectcanvas.h"

#include <cmath>

namespace player {

namespace {

/** So many lines a page is scrolled by. An odd number: the middle is within a line, not at rest. */
constexpr int ScrolledLines = 5;
/** The part of a line's time in which it moves; in the rest it stands. */
constexpr double MovingPart = 0.6;

/** Puts @p above, moved by @p offset, and @p below where that leaves room. */
void putMoved(EffectCanvas *canvas, const EffectLayer &above, const QPoint &offset,
              const EffectLayer &below)
{
    canvas->put(above, canvas->rect(), offset);
    canvas->putAround(below, canvas->rect().translated(offset) & canvas->rect());
}

QPoint along(const QPoint &direction, int x, int y)
{
    return {direction.x() * x, direction.y() * y};
}

/** Where a picture is that has a part of its way in @p direction before it. */
QPoint before(const EffectCanvas &canvas, const QPoint &direction, double progress)
{
    return along(direction, partOf(canvas.width(), progress) - canvas.width(),
                 partOf(canvas.height(), progress) - canvas.height());
}

/** Where a picture is that has gone a part of its way. */
QPoint beyond(const EffectCanvas &canvas, const QPoint &direction, double progress)
{
    return along(direction, partOf(canvas.width(), progress), partOf(canvas.height(), progress));
}

/** The page comes over what stands still, and leaves as it came. */
void slide(const EffectScene &scene, EffectCanvas *canvas, const QPoint &direction)
{
    if (scene.isClearing) {
        putMoved(canvas, scene.under, beyond(*canvas, direction, scene.progress), scene.page);
    } else {
        putMoved(canvas, scene.page, before(*canvas, direction, scene.progress), scene.under);
    }
}

/** The page pushes out what was there. */
void push(const EffectScene &scene, EffectCanvas *canvas, const QPoint &direction, double progress)
{
    canvas->put(scene.page, canvas->rect(), before(*canvas, direction, progress));
    canvas->put(scene.under, canvas->rect(), beyond(*canvas, direction, progress));
}

constexpr QPoint Left(-1, 0);
constexpr QPoint Right(1, 0);
constexpr QPoint Up(0, -1);
constexpr QPoint Down(0, 1);

} // namespace

void slideLeft(const EffectScene &scene, EffectCanvas *canvas)
{
    slide(scene, canvas, Left);
}

void slideRight(const EffectScene &scene, EffectCanvas *canvas)
{
    slide(scene, canvas, Right);
}

void slideUp(const EffectScene &scene, EffectCanvas *canvas)
{
    slide(scene, canvas, Up);
}

void slideDown(const EffectScene &scene, EffectCanvas *canvas)
{
    slide(scene, canvas, Down);
}

/**
 * Upwards as a teleprinter feeds its paper, a line and a rest, and out goes what was there: a slide
 * moves evenly and over it.
 */
void scroll(const EffectScene &scene, EffectCanvas *canvas)
{
    const double lines = scene.progress * ScrolledLines;
    const double moved = std::min(1.0, (lines - std::floor(lines)) / MovingPart);
    const double eased = moved * moved * (3 - 2 * moved);
    push(scene, canvas, Up, (std::floor(lines) + eased) / ScrolledLines);
}

void moveLeft(const EffectScene &scene, EffectCanvas *canvas)
{
    push(scene, canvas, Left, scene.progress);
}

void moveRight(const EffectScene &scene, EffectCanvas *canvas)
{
    push(scene, canvas, Right, scene.progress);
}

void moveUp(const EffectScene &scene, EffectCanvas *canvas)
{
    push(scene, canvas, Up, scene.progress);
}

} // namespace player
