#include "lcolor.h"

unsigned int QColor_TO_BGR(const QColor &color)
{
    const QRgb rgb = color.isValid() ? color.rgb() : 0;
    return static_cast<unsigned int>(qRed(rgb) | qGreen(rgb) << 8 | qBlue(rgb) << 16);
}

QColor BGR_TO_QColor(unsigned int bgr)
{
    return {static_cast<int>(bgr & 0xff), static_cast<int>(bgr >> 8 & 0xff),
            static_cast<int>(bgr >> 16 & 0xff)};
}
