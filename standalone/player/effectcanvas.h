#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>

/** What the page effects of pageeffects.h are drawn with; not for others. */
namespace player {

/** A picture of the place's size to take pixels from; without an image all of it is transparent. */
class EffectLayer
{
public:
    EffectLayer() = default;
    /** @p image is cut and filled up to @p size and brought to the format of a canvas. */
    EffectLayer(const QImage &image, const QSize &size);

    [[nodiscard]] bool isEmpty() const { return m_image.isNull(); }
    [[nodiscard]] const QImage &image() const { return m_image; }
    /** The pixels of a row; null for an empty layer. */
    [[nodiscard]] const QRgb *row(int y) const
    {
        return isEmpty() ? nullptr : reinterpret_cast<const QRgb *>(m_image.constScanLine(y));
    }

private:
    QImage m_image;
};

/** The frame that is being made. Its pixels are undefined until they are put there. */
class EffectCanvas
{
public:
    explicit EffectCanvas(const QSize &size)
        : m_image(size, QImage::Format_ARGB32_Premultiplied)
    {}

    [[nodiscard]] QImage &image() { return m_image; }
    [[nodiscard]] QRect rect() const { return m_image.rect(); }
    [[nodiscard]] int width() const { return m_image.width(); }
    [[nodiscard]] int height() const { return m_image.height(); }
    [[nodiscard]] QRgb *row(int y) { return reinterpret_cast<QRgb *>(m_image.scanLine(y)); }

    /** Copies a part of @p layer to where it lies there. */
    void put(const EffectLayer &layer, const QRect &part) { put(layer, part, {}); }
    /** Copies a part of @p layer, moved by @p offset; what falls outside is cut off. */
    void put(const EffectLayer &layer, const QRect &part, const QPoint &offset);
    /** Copies what lies around @p hole. */
    void putAround(const EffectLayer &layer, const QRect &hole);
    /** Copies pixels @p from to @p to, without the second, of one row. */
    void putSpan(const EffectLayer &layer, int y, int from, int to, const QPoint &offset = {});

private:
    QImage m_image;
};

/** What an effect makes a frame from. */
struct EffectScene
{
    EffectLayer under; ///< Shown before.
    EffectLayer page;  ///< Shown afterwards.
    double progress;   ///< More than 0, less than 1.
    quint32 seed;
    bool isClearing; ///< The layer below goes away, and the page is empty.
};

using EffectFunction = void (*)(const EffectScene &scene, EffectCanvas *canvas);

/** How many of @p extent pixels a progress makes, rounded. */
[[nodiscard]] inline int partOf(int extent, double progress)
{
    return qBound(0, qRound(extent * progress), extent);
}

/** A number from 0 to less than 1 that looks random, for one of an effect's grains. */
[[nodiscard]] double chance(quint32 grain, quint32 seed);

// The effects, a file a family.

// effectsmoving.cpp: pictures move
void slideLeft(const EffectScene &scene, EffectCanvas *canvas);
void slideRight(const EffectScene &scene, EffectCanvas *canvas);
void slideUp(const EffectScene &scene, EffectCanvas *canvas);
void slideDown(const EffectScene &scene, EffectCanvas *canvas);
void scroll(const EffectScene &scene, EffectCanvas *canvas);
void moveLeft(const EffectScene &scene, EffectCanvas *canvas);
void moveRight(const EffectScene &scene, EffectCanvas *canvas);
void moveUp(const EffectScene &scene, EffectCanvas *canvas);

// effectscurtains.cpp: halves move apart or together, a curtain is drawn up or let down
void curtainOpen(const EffectScene &scene, EffectCanvas *canvas);
void curtainClose(const EffectScene &scene, EffectCanvas *canvas);
void curtainUp(const EffectScene &scene, EffectCanvas *canvas);
void curtainDown(const EffectScene &scene, EffectCanvas *canvas);

// effectsrevealing.cpp: the page stands still and shows through a growing opening
void wipeLeft(const EffectScene &scene, EffectCanvas *canvas);
void wipeRight(const EffectScene &scene, EffectCanvas *canvas);
void wipeUp(const EffectScene &scene, EffectCanvas *canvas);
void wipeDown(const EffectScene &scene, EffectCanvas *canvas);
void horizontalBlinds(const EffectScene &scene, EffectCanvas *canvas);
void verticalBlinds(const EffectScene &scene, EffectCanvas *canvas);
void boxOut(const EffectScene &scene, EffectCanvas *canvas);
void boxIn(const EffectScene &scene, EffectCanvas *canvas);
void checkerboard(const EffectScene &scene, EffectCanvas *canvas);
void mosaic(const EffectScene &scene, EffectCanvas *canvas);

// effectslight.cpp: brightness, beams and flakes
void fade(const EffectScene &scene, EffectCanvas *canvas);
void laser(const EffectScene &scene, EffectCanvas *canvas);
void snow(const EffectScene &scene, EffectCanvas *canvas);

} // namespace player
