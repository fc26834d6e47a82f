#include "effectcanvas.h"

#include <QPainter>
#include <QVarLengthArray>

#include <cmath>

namespace player {

namespace {

/** Shares of the time: a flake's fall over the whole height, the rows' turns, a flake's delay. */
constexpr double FallTime = 0.3;
constexpr double RowTime = 0.5;
constexpr double DelayTime = 0.2;

/** Copies what is not wholly transparent of a flake to another height. */
void putFlake(const EffectLayer &layer, const QRect &flake, int top, EffectCanvas *canvas)
{
    for (int i = 0; i < flake.height(); ++i) {
        const int y = top + i;
        if (y < 0 || y >= canvas->height()) {
            continue;
        }
        const QRgb *from = layer.row(flake.top() + i) + flake.left();
        QRgb *to = canvas->row(y) + flake.left();
        for (int x = 0; x < flake.width(); ++x) {
            to[x] = qAlpha(from[x]) != 0 ? from[x] : to[x];
        }
    }
}

/** Each flake with the time of its turn, from 0 on: the lowest row is the first. */
template <typename Put>
void forEachFlake(const EffectScene &scene, const EffectCanvas &canvas, const Put &put)
{
    // On a large page single pixels would be dust.
    const int side = qBound(1, canvas.height() / 128, 8);
    const int rows = (canvas.height() + side - 1) / side;
    const int columns = (canvas.width() + side - 1) / side;
    for (int row = 0; row < rows; ++row) {
        const double turn = RowTime * (rows - 1 - row) / rows;
        for (int column = 0; column < columns; ++column) {
            const QRect flake(column * side, row * side, side, side);
            const double delay = DelayTime * chance(quint32(row * columns + column), scene.seed);
            put(flake & canvas.rect(), turn + delay);
        }
    }
}

/** Colours of a column, from its top; empty for an empty layer. */
QVarLengthArray<QRgb, 2048> columnOf(const EffectLayer &layer, int x, int height)
{
    QVarLengthArray<QRgb, 2048> colors;
    for (int y = 0; y < height && !layer.isEmpty(); ++y) {
        colors.append(layer.row(y)[x]);
    }
    return colors;
}

} // namespace

void fade(const EffectScene &scene, EffectCanvas *canvas)
{
    // With this mode the opacity says how much of the picture below is replaced, alpha included.
    const bool isGoing = scene.page.isEmpty();
    canvas->put(isGoing ? scene.page : scene.under, canvas->rect());
    QPainter painter(&canvas->image());
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.setOpacity(isGoing ? 1 - scene.progress : scene.progress);
    painter.drawImage(0, 0, isGoing ? scene.under.image() : scene.page.image());
}

/**
 * The page is written from the left, column by column, by a fan of light from the middle of the
 * right edge: a ray for each pixel of the column, in its colour. When it is cleared the fan burns
 * it away.
 */
void laser(const EffectScene &scene, EffectCanvas *canvas)
{
    const int width = canvas->width();
    const int height = canvas->height();
    const int written = partOf(width, scene.progress);
    canvas->put(scene.page, QRect(0, 0, written, height));
    canvas->put(scene.under, canvas->rect().adjusted(written, 0, 0, 0));
    const auto colors =
        columnOf(scene.isClearing ? scene.under : scene.page, qMin(written, width - 1), height);
    if (colors.isEmpty() || written >= width) {
        return;
    }
    const float reach = float(width - written);
    const float middle = float(height) / 2;
    QVarLengthArray<float, 2048> spread(width - written); // How much wider the column is than here.
    for (int i = 0; i < spread.size(); ++i) {
        spread[i] = reach / (reach - float(i));
    }
    for (int y = 0; y < height; ++y) {
        const float off = float(y) + 0.5F - middle;
        // The fan is as high as the page at the column and nothing at the edge.
        const int length = qBound(0, int(reach * (1 - std::abs(off) / middle)), spread.size());
        QRgb *line = canvas->row(y) + written;
        for (int i = 0; i < length; ++i) {
            const QRgb color = colors[qBound(0, int(middle + off * spread[i]), height - 1)];
            line[i] = qAlpha(color) != 0 ? color : line[i];
        }
    }
}

/** Flakes of the page fall to their places, the lowest first; cleared it falls out of the place. */
void snow(const EffectScene &scene, EffectCanvas *canvas)
{
    const double height = canvas->height();
    if (scene.isClearing) {
        canvas->put(scene.page, canvas->rect());
        forEachFlake(scene, *canvas, [&](const QRect &flake, double turn) {
            const double fallen = qMax(0.0, scene.progress - turn) / FallTime * height;
            if (!scene.under.isEmpty() && flake.top() + fallen < height) {
                putFlake(scene.under, flake, flake.top() + int(fallen), canvas);
            }
        });
        return;
    }
    canvas->put(scene.under, canvas->rect());
    if (scene.page.isEmpty()) {
        return;
    }
    // First those in the air: what has landed lies before them.
    forEachFlake(scene, *canvas, [&](const QRect &flake, double turn) {
        const double missing = (FallTime + turn - scene.progress) / FallTime * height;
        if (missing > 0 && flake.top() - missing > -flake.height()) {
            putFlake(scene.page, flake, flake.top() - int(missing), canvas);
        }
    });
    forEachFlake(scene, *canvas, [&](const QRect &flake, double turn) {
        if (scene.progress >= FallTime + turn) {
            canvas->put(scene.page, flake);
        }
    });
}

} // namespace player
