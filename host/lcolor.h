#pragma once

#include "lcommon_global.h"

#include <QColor>

/** The colour as a BGR number, red + green * 256 + blue * 65536; alpha is dropped, invalid is 0. */
[[nodiscard]] LCOMMON_EXPORT unsigned int QColor_TO_BGR(const QColor &color);

/** The opaque colour of a BGR number; the bits above the lowest 24 are ignored. */
[[nodiscard]] LCOMMON_EXPORT QColor BGR_TO_QColor(unsigned int bgr);
