#include "effectcanvas.h"

namespace player {

namespace {

/** A grain of the effect: a part of the page's extent, but visible and not coarse. */
int grainOf(int extent, int parts, int smallest, int largest)
{
    return qBound(smallest, extent / parts, largest);
}

void reveal(const EffectScene &scene, EffectCanvas *canvas, const QRect &opening)
{
    canvas->put(scene.page, opening);
    canvas->putAround(scene.under, opening);
}

/** Covers the canvas with cells row by row; @p put gets each with its column and row. */
template <typename Put>
void forEachCell(const EffectCanvas &canvas, const QSize &cell, const Put &put)
{
    for (int row = 0; row * cell.height() < canvas.height(); ++row) {
        for (int column = 0; column * cell.width() < canvas.width(); ++column) {
            put(QRect(QPoint(column * cell.width(), row * cell.height()), cell), column, row);
        }
    }
}

} // namespace

void wipeLeft(const EffectScene &scene, EffectCanvas *canvas)
{
    const int width = canvas->width();
    reveal(scene, canvas, canvas->rect().adjusted(width - partOf(width, scene.progress), 0, 0, 0));
}

void wipeRight(const EffectScene &scene, EffectCanvas *canvas)
{
    const int width = canvas->width();
    reveal(scene, canvas, QRect(0, 0, partOf(width, scene.progress), canvas->height()));
}

void wipeUp(const EffectScene &scene, EffectCanvas *canvas)
{
    const int height = canvas->height();
    reveal(scene, canvas,
           canvas->rect().adjusted(0, height - partOf(height, scene.progress), 0, 0));
}

void wipeDown(const EffectScene &scene, EffectCanvas *canvas)
{
    const int height = canvas->height();
    reveal(scene, canvas, QRect(0, 0, canvas->width(), partOf(height, scene.progress)));
}

/** Slats lie across and turn open downwards. */
void horizontalBlinds(const EffectScene &scene, EffectCanvas *canvas)
{
    const QSize slat(canvas->width(), grainOf(canvas->height(), 8, 2, 64));
    const int open = partOf(slat.height(), scene.progress);
    forEachCell(*canvas, slat, [&](const QRect &cell, int, int) {
        canvas->put(scene.page, QRect(cell.topLeft(), QSize(cell.width(), open)));
        canvas->put(scene.under, cell.adjusted(0, open, 0, 0));
    });
}

/** Slats hang and turn open to the right. */
void verticalBlinds(const EffectScene &scene, EffectCanvas *canvas)
{
    // Row by row, as the pixels lie in memory: slat by slat takes five times as long.
    const QSize slat(grainOf(canvas->width(), 16, 2, 96), 1);
    const int open = partOf(slat.width(), scene.progress);
    forEachCell(*canvas, slat, [&](const QRect &cell, int, int) {
        canvas->put(scene.page, QRect(cell.topLeft(), QSize(open, cell.height())));
        canvas->put(scene.under, cell.adjusted(open, 0, 0, 0));
    });
}

void boxOut(const EffectScene &scene, EffectCanvas *canvas)
{
    QRect box(0, 0, partOf(canvas->width(), scene.progress),
              partOf(canvas->height(), scene.progress));
    box.moveTopLeft({(canvas->width() - box.width()) / 2, (canvas->height() - box.height()) / 2});
    reveal(scene, canvas, box);
}

void boxIn(const EffectScene &scene, EffectCanvas *canvas)
{
    QRect rest(0, 0, canvas->width() - partOf(canvas->width(), scene.progress),
               canvas->height() - partOf(canvas->height(), scene.progress));
    rest.moveTopLeft(
        {(canvas->width() - rest.width()) / 2, (canvas->height() - rest.height()) / 2});
    canvas->put(scene.under, rest);
    canvas->putAround(scene.page, rest);
}

/** Every other square opens to the right in the first half, the others in the second. */
void checkerboard(const EffectScene &scene, EffectCanvas *canvas)
{
    const int side = grainOf(qMin(canvas->width(), canvas->height()), 4, 2, 120);
    const int first = partOf(side, scene.progress * 2);
    const int second = partOf(side, scene.progress * 2 - 1);
    forEachCell(*canvas, QSize(side, side), [&](const QRect &cell, int column, int row) {
        const int open = (column + row) % 2 == 0 ? first : second;
        canvas->put(scene.page, QRect(cell.topLeft(), QSize(open, side)));
        canvas->put(scene.under, cell.adjusted(open, 0, 0, 0));
    });
}

/** Blocks of the page appear here and there. */
void mosaic(const EffectScene &scene, EffectCanvas *canvas)
{
    const int side = grainOf(qMin(canvas->width(), canvas->height()), 16, 2, 64);
    const quint32 columns = quint32(canvas->width() / side + 1);
    forEachCell(*canvas, QSize(side, side), [&](const QRect &cell, int column, int row) {
        const quint32 block = quint32(row) * columns + quint32(column);
        canvas->put(chance(block, scene.seed) < scene.progress ? scene.page : scene.under, cell);
    });
}

} // namespace player
