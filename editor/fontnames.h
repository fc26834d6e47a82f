#pragma once

#include <QString>
#include <QStringList>

namespace lctrlsex {

/**
 * The families that the editor offers, sorted: those that the system knows and after which a
 * "*.ttf", "*.TTF" or "*.ttc" file in @p folder is named. Names compare case-sensitively. Empty
 * when the folder is missing.
 */
[[nodiscard]] QStringList offeredFonts(const QString &folder);

/** The sizes that the editor offers: 5 to 99 by 1, then 100 to 490 by 10. */
[[nodiscard]] QStringList offeredSizes();

} // namespace lctrlsex
