#pragma once

#include "datasnapshot.h"

#include <QString>

namespace player {

/**
 * The existing key that is most like @p key by the number of letters to change; empty when none is
 * alike.
 */
[[nodiscard]] QString nearestKey(const sources::DataSnapshot &data, const QString &key);

/** What to do about a key that leads nowhere, in one line, with the nearest one. */
[[nodiscard]] QString keyRemedy(const sources::DataSnapshot &data, const QString &key);

} // namespace player
