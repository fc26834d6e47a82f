#pragma once

#include "lcommon_global.h"

#include <QColor>
#include <QImage>

/**
 * Effects on the finished picture of a text page.
 *
 * What is text. In an image with any transparency the text is what is not transparent, and the
 * alpha of a pixel is the share of it that the text covers. In a wholly opaque image (a page
 * drawn on a filled background) the ground is the most frequent colour of the image's border
 * rows and columns, the lowest of them where several are equally frequent, and the coverage is
 * estimated: a pixel's distance to the ground (largest difference of red, green, blue) divided
 * by the largest distance within two pixels of it, so that the soft edges of text of any colour
 * get their proportion. Text nearer to the ground than 16 levels counts as partly covered, so
 * that a faintly noisy ground does not become text.
 *
 * Both functions take any image format and return QImage::Format_ARGB32 of the same size in
 * pixels, device pixel ratio and resolution. The radius is in pixels; distance is the larger of
 * the horizontal and the vertical one, so an area grows and shrinks by squares of side
 * 2 * radius + 1. Time is linear in the pixels and grows with the logarithm of the radius only;
 * rows that hold nothing but ground cost no more than copying them. Both are reentrant and may
 * be called on any thread.
 */

/**
 * Returns \a image with an outline of \a color of \a radius pixels around the text, under it.
 *
 * Text that covers a pixel wholly keeps that pixel bit for bit. A soft edge is composed over the
 * outline, whose own coverage is the largest coverage of the text within \a radius times the
 * alpha of \a color. An opaque image of one colour comes back as it is.
 *
 * Returns \a image itself, in its own format, when it is null, \a color is invalid or wholly
 * transparent, \a radius is below 1, or memory runs out.
 */
[[nodiscard]] LCOMMON_EXPORT QImage getStrokeImage(const QImage &image, const QColor &color,
                                                   int radius = 1);

/**
 * Returns \a image with only the outline of the text kept: a band of \a radius pixels along the
 * inside of its edge, in the text's own colours.
 *
 * A pixel keeps its coverage less the smallest coverage within \a radius; everything beyond the
 * image counts as outside the text. So soft edges stay soft, and text no wider than
 * 2 * \a radius stays whole. The inside becomes transparent, (0, 0, 0, 0), or in an opaque image
 * the colour of the ground.
 *
 * Returns \a image itself, in its own format, when it is null, \a radius is below 1, or memory
 * runs out.
 */
[[nodiscard]] LCOMMON_EXPORT QImage getHollowImage(const QImage &image, int radius = 1);
