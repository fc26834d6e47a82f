#pragma once

#include <QString>

namespace workbench {

/**
 * Gives a file another name on the same disk. False, and nothing has changed, when there is a file
 * of that name already or none of the old one: of two processes that want it only one succeeds.
 */
[[nodiscard]] bool moveFile(const QString &from, const QString &to);

} // namespace workbench
