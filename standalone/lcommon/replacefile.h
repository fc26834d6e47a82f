#pragma once

#include "lcommon_global.h"

#include <QByteArray>
#include <QString>

/**
 * Writes @p bytes under @p fileName so that the old content or all of the new one stands there
 * whenever the process or the machine stops. On an error the old file is as it was and nothing else
 * is left. Returns the reason, fit for a user, empty when all went well.
 */
[[nodiscard]] LCOMMON_EXPORT QString replaceFile(const QString &fileName, const QByteArray &bytes);
