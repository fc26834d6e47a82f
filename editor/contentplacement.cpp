#include "contentplacement.h"

#include <QColor>
#include <QPainter>

#include <algorithm>
#include <cstring>
#include <numeric>

namespace lctrlsex {

namespace {

/** True when all \a size bytes are 0: the first ones are, and the rest repeats them. */
bool isZero(const uchar *bytes, size_t size)
{
    static const uchar zeros[64] = {};
    if (size <= sizeof(zeros)) {
        return std::memcmp(bytes, zeros, size) == 0;
    }
    return std::memcmp(bytes, zeros, sizeof(zeros)) == 0 &&
           std::memcmp(bytes, bytes + sizeof(zeros), size - sizeof(zeros)) == 0;
}

/** The bits that all of \a row have set; in lanes, which compilers turn into vector code. */
QRgb commonBits(const QRgb *row, int width)
{
    constexpr int lanes = 16;
    QRgb bits[lanes];
    std::fill_n(bits, lanes, 0xffffffffU);
    int x = 0;
    for (; x + lanes <= width; x += lanes) {
        for (int lane = 0; lane < lanes; ++lane) {
            bits[lane] &= row[x + lane];
        }
    }
    const auto both = [](QRgb a, QRgb b) {
        return a & b;
    };
    return std::accumulate(row + x, row + width,
                           std::accumulate(bits, bits + lanes, 0xffffffffU, both), both);
}

bool isOpaque(const QImage &argb)
{
    for (int y = 0; y < argb.height(); ++y) {
        const auto *row = reinterpret_cast<const QRgb *>(argb.constScanLine(y));
        // Most transparent pages show it in their first pixel.
        if (qAlpha(row[0]) != 255 || qAlpha(commonBits(row, argb.width())) != 255) {
            return false;
        }
    }
    return true;
}

int stripTop(int canvasHeight, int stripHeight, int contentAlign)
{
    switch (contentAlign) {
    case Qt::AlignBottom:
        return canvasHeight - stripHeight;
    case Qt::AlignTop:
        return 0;
    default:
        return (canvasHeight - stripHeight) / 2;
    }
}

/** The rows of \a image on a transparent canvas: copied, so that straight colours stay exact. */
void copyStrip(const QImage &image, const BlankRows &blank, int top, QImage *canvas)
{
    const int width = std::min(image.width(), canvas->width());
    const int stripHeight = image.height() - blank.top - blank.bottom;
    const int from = std::clamp(top, 0, canvas->height());
    const int to = std::clamp(top + stripHeight, from, canvas->height());
    for (int y = 0; y < canvas->height(); ++y) {
        auto *target = reinterpret_cast<QRgb *>(canvas->scanLine(y));
        int copied = 0;
        if (y >= from && y < to) {
            copied = width;
            std::memcpy(target, image.constScanLine(blank.top + y - top),
                        size_t(copied) * sizeof(QRgb));
        }
        std::fill(target + copied, target + canvas->width(), 0U);
    }
}

/**
 * Moves the strip of \a content, premultiplied and of the item's size, to row \a top and lays the
 * opaque canvas under it. In place and a few rows at a time: fresh memory for a second image of a
 * screen's size costs more than all the work on it.
 */
void moveStrip(QImage *content, const BlankRows &blank, int top)
{
    constexpr int bandHeight = 32;
    const int width = content->width();
    const int stripHeight = content->height() - blank.top - blank.bottom;
    const qsizetype line = content->bytesPerLine();
    const uchar *const rows = content->bits();
    QImage band(width, bandHeight, content->format());
    QPainter painter(content);
    for (int done = 0; done < stripHeight; done += bandHeight) {
        const int count = std::min(bandHeight, stripHeight - done);
        // What moves down moves from its end, so that no row is lost before it has moved.
        const int first = top > blank.top ? stripHeight - done - count : done;
        std::memcpy(band.bits(), rows + (blank.top + first) * line, size_t(count) * size_t(line));
        painter.fillRect(0, top + first, width, count, canvasColor());
        painter.drawImage(0, top + first, band, 0, 0, width, count);
    }
    painter.fillRect(0, 0, width, top, canvasColor());
    painter.fillRect(0, top + stripHeight, width, content->height(), canvasColor());
    painter.end();
    content->reinterpretAsFormat(QImage::Format_ARGB32);
}

/** The strip of \a image, of another size than \a canvas, over the opaque canvas. */
void drawStrip(const QImage &image, const BlankRows &blank, int top, QImage *canvas)
{
    canvas->fill(canvasColor());
    const int stripHeight = image.height() - blank.top - blank.bottom;
    if (stripHeight > 0) {
        QPainter painter(canvas);
        painter.drawImage(0, top, image, 0, blank.top, image.width(), stripHeight);
    }
}

} // namespace

QColor canvasColor()
{
    return {1, 2, 1};
}

BlankRows blankRows(const QImage &argb)
{
    const int height = argb.height();
    const auto size = (size_t(argb.width()) * size_t(argb.depth()) + 7) / 8;
    int top = 0;
    while (top < height && isZero(argb.constScanLine(top), size)) {
        ++top;
    }
    if (top == height) {
        return {top, 0};
    }
    int bottom = 0;
    while (isZero(argb.constScanLine(height - 1 - bottom), size)) {
        ++bottom;
    }
    return {top, bottom};
}

QImage placeContent(QImage image, const QSize &itemSize, int contentAlign, bool textTransparent)
{
    if (image.isNull() || itemSize.isEmpty()) {
        return image;
    }
    // Known to be opaque, and the same bytes either way: neither looked at nor copied.
    const bool isKnownOpaque =
        image.format() == QImage::Format_RGB32 && image.reinterpretAsFormat(QImage::Format_ARGB32);
    // Premultiplied colours are drawn as they are; a transparent canvas needs straight ones.
    const bool isReady = image.format() == QImage::Format_ARGB32_Premultiplied && !textTransparent;
    QImage content = isReady ? image : image.convertToFormat(QImage::Format_ARGB32);
    if (content.isNull()) {
        return image;
    }
    if (content.size() == itemSize && qFuzzyCompare(content.devicePixelRatio(), 1.0) &&
        (isKnownOpaque || isOpaque(content))) {
        content.reinterpretAsFormat(QImage::Format_ARGB32);
        return content;
    }
    content.setDevicePixelRatio(1.0);
    const BlankRows blank = blankRows(content);
    const int stripHeight = content.height() - blank.top - blank.bottom;
    const int top = stripTop(itemSize.height(), stripHeight, contentAlign);
    if (isReady && content.size() == itemSize) {
        image = QImage(); // with two owners the pixels would be copied first
        moveStrip(&content, blank, top);
        return content;
    }
    QImage canvas(itemSize,
                  textTransparent ? QImage::Format_ARGB32 : QImage::Format_ARGB32_Premultiplied);
    if (canvas.isNull()) {
        return image;
    }
    if (textTransparent) {
        copyStrip(content, blank, top, &canvas);
        return canvas;
    }
    drawStrip(content, blank, top, &canvas);
    // Every pixel of the canvas is opaque, so straight and premultiplied mean the same.
    canvas.reinterpretAsFormat(QImage::Format_ARGB32);
    return canvas;
}

} // namespace lctrlsex
