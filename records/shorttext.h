#pragma once

#include <QString>

namespace lctrlsex {

/**
 * @p text as a message quotes it: on one line, cut behind @p longest characters, and U+FFFD for
 * what nobody can see.
 */
[[nodiscard]] QString shortText(const QString &text, int longest);

} // namespace lctrlsex
