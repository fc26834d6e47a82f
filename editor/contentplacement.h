#pragma once

#include <QColor>
#include <QImage>
#include <QSize>

namespace lctrlsex {

/** Numbers of wholly blank rows of an image. */
struct BlankRows
{
    int top;
    int bottom;
};

/**
 * Counts the rows at the top and at the bottom of \a argb whose bytes are all zero, which is
 * fully transparent black in the formats with alpha. A wholly blank image has top = its height
 * and bottom = 0, a null image 0 and 0. Runs at memory speed and stops at the first row that is
 * not blank; formats of less than 8 bits a pixel are judged by whole bytes. Any thread.
 */
[[nodiscard]] BlankRows blankRows(const QImage &argb);

/**
 * The opaque ground under a page whose item does not let the screen below show through, (1, 2, 1):
 * kept on purpose because the display keys on exactly this near-black.
 */
[[nodiscard]] QColor canvasColor();

/**
 * Places a finished page inside its item: the blank rows at its top and bottom are cut away (the
 * width is kept) and what remains is drawn at x = 0 and, by \a contentAlign, at the bottom
 * (Qt::AlignBottom, 0x40), at the top (Qt::AlignTop, 0x20) or, for any other value, at
 * (canvas height - strip height) / 2 rounded toward zero. What is taller or wider than the item
 * is clipped.
 *
 * The canvas has \a itemSize pixels and is transparent, (0, 0, 0, 0), when \a textTransparent is
 * set, else canvasColor().
 * The device pixel ratio of \a image is disregarded; the result has ratio 1.
 *
 * Returns QImage::Format_ARGB32; on the opaque canvas soft edges may differ by 1 of 255 from
 * what blending into an ARGB32 canvas gives. Returns \a image itself when it is null, when
 * \a itemSize is empty, or when memory runs out, and shares its pixels when it is opaque ARGB32
 * of the item's size. Any thread.
 */
[[nodiscard]] QImage placeContent(QImage image, const QSize &itemSize, int contentAlign,
                                  bool textTransparent);

} // namespace lctrlsex
