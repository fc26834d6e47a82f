#pragma once

#include <QColor>
#include <QIcon>

namespace lctrlsex {

/** The picture @p path with a bar of @p color, 14 by 2 pixels, along its bottom. */
[[nodiscard]] QIcon barIcon(const QString &path, const QColor &color);

/** A 16-pixel square filled with @p color. */
[[nodiscard]] QIcon squareIcon(const QColor &color);

} // namespace lctrlsex
