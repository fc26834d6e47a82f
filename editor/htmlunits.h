#pragma once

#include <QString>

namespace lctrlsex {

/**
 * The HTML for display: every "font-size: N pt" says "px" with the number unchanged, because one
 * point is one screen pixel, and the rich-text marker has its attributes in one order. What stands
 * between tags is text and stays. Linear in the length; any thread.
 */
[[nodiscard]] QString replacePtWithPx(const QString &html);

/** Every "font-size: N px" says "pt", the number unchanged; text stays. */
[[nodiscard]] QString replacePxWithPt(const QString &html);

} // namespace lctrlsex
