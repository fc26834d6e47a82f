#include "effectcanvas.h"

#include <QRegion>

#include <cstring>

namespace player {

EffectLayer::EffectLayer(const QImage &image, const QSize &size)
    : m_image(image.isNull() || image.size() == size ? image : image.copy(QRect({}, size)))
{
    if (!m_image.isNull() && m_image.format() != QImage::Format_ARGB32_Premultiplied) {
        m_image = m_image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    }
}

void EffectCanvas::put(const EffectLayer &layer, const QRect &part, const QPoint &offset)
{
    const QRect target = (part & rect()).translated(offset) & rect();
    if (target.isEmpty()) {
        return;
    }
    if (target.width() == width()) {
        // Rows of the whole width lie behind one another.
        const size_t bytes = size_t(m_image.bytesPerLine()) * size_t(target.height());
        if (layer.isEmpty()) {
            std::memset(row(target.top()), 0, bytes);
        } else {
            std::memcpy(row(target.top()), layer.row(target.top() - offset.y()), bytes);
        }
        return;
    }
    for (int y = target.top(); y <= target.bottom(); ++y) {
        putSpan(layer, y, target.left(), target.left() + target.width(), offset);
    }
}

void EffectCanvas::putAround(const EffectLayer &layer, const QRect &hole)
{
    for (const QRect &part : QRegion(rect()).subtracted(hole)) {
        put(layer, part);
    }
}

void EffectCanvas::putSpan(const EffectLayer &layer, int y, int from, int to, const QPoint &offset)
{
    const size_t bytes = size_t(to - from) * sizeof(QRgb);
    if (layer.isEmpty()) {
        std::memset(row(y) + from, 0, bytes);
    } else {
        std::memcpy(row(y) + from, layer.row(y - offset.y()) + from - offset.x(), bytes);
    }
}

double chance(quint32 grain, quint32 seed)
{
    // Two rounds of multiply and shift: neighbours have nothing in common any more.
    quint32 bits = grain * 0x9e3779b1U ^ seed * 0x85ebca6bU ^ 0x2545f491U;
    bits = (bits ^ (bits >> 16)) * 0x7feb352dU;
    bits = (bits ^ (bits >> 15)) * 0x846ca68bU;
    bits ^= bits >> 16;
    return bits / 4294967296.0;
}

} // namespace player
