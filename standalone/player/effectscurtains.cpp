#include "effectcanvas.h"

#include <QVarLengthArray>

#include <cmath>

namespace player {

namespace {

constexpr double Pi = 3.14159265358979;

/** How far the hem of a curtain of that width hangs up, per column: scallops @p depth high. */
QVarLengthArray<int, 1024> hemOf(int width, int depth)
{
    const double fold = qMax(4.0, width / 8.0);
    QVarLengthArray<int, 1024> hem(width);
    for (int x = 0; x < width; ++x) {
        hem[x] = qRound(depth * (1 - std::abs(std::sin(Pi * x / fold))));
    }
    return hem;
}

/**
 * A curtain with a scalloped hem hangs before @p behind and is drawn up by a part of its way.
 * First the scallops form, then it moves with what is painted on it.
 */
void hang(const EffectLayer &curtain, const EffectLayer &behind, double raised,
          EffectCanvas *canvas)
{
    const int width = canvas->width();
    const int height = canvas->height();
    const int depth = qMax(1, height / 5);
    const int lift = partOf(height + depth, raised);
    const QPoint moved(0, -qMax(0, lift - depth));
    // Above the hem there is only the curtain, below it only what is behind.
    const int hemTop = qMax(0, height - lift);
    const int hemEnd = qMin(height, height + depth - lift);
    const QRect whole = canvas->rect();
    canvas->put(curtain, QRect(whole.topLeft() - moved, QSize(width, hemTop)), moved);
    canvas->put(behind, whole.adjusted(0, hemEnd, 0, 0));
    const auto hem = hemOf(width, depth);
    for (int y = hemTop; y < hemEnd; ++y) {
        const int room = height + depth - lift - y;
        for (int x = 0; x < width;) {
            const bool isCurtain = hem[x] < room;
            const int from = x;
            while (x < width && (hem[x] < room) == isCurtain) {
                ++x;
            }
            canvas->putSpan(isCurtain ? curtain : behind, y, from, x, isCurtain ? moved : QPoint());
        }
    }
}

} // namespace

/** What was there is the curtain: it parts in the middle. */
void curtainOpen(const EffectScene &scene, EffectCanvas *canvas)
{
    const QRect whole = canvas->rect();
    const int middle = whole.width() / 2;
    const int left = partOf(middle, scene.progress);
    const int right = partOf(whole.width() - middle, scene.progress);
    canvas->put(scene.under, QRect(0, 0, middle, whole.height()), QPoint(-left, 0));
    canvas->put(scene.under, whole.adjusted(middle, 0, 0, 0), QPoint(right, 0));
    canvas->put(scene.page, QRect(middle - left, 0, left + right, whole.height()));
}

/** The page is on the curtain: its halves come from both sides. */
void curtainClose(const EffectScene &scene, EffectCanvas *canvas)
{
    const QRect whole = canvas->rect();
    const int middle = whole.width() / 2;
    const int left = partOf(middle, scene.progress);
    const int right = partOf(whole.width() - middle, scene.progress);
    canvas->put(scene.page, QRect(0, 0, middle, whole.height()), QPoint(left - middle, 0));
    canvas->put(scene.page, whole.adjusted(middle, 0, 0, 0),
                QPoint(whole.width() - middle - right, 0));
    canvas->put(scene.under, whole.adjusted(left, 0, -right, 0));
}

void curtainUp(const EffectScene &scene, EffectCanvas *canvas)
{
    hang(scene.under, scene.page, scene.progress, canvas);
}

void curtainDown(const EffectScene &scene, EffectCanvas *canvas)
{
    hang(scene.page, scene.under, 1 - scene.progress, canvas);
}

} // namespace player
