#pragma once

#include <QCoreApplication>
#include <QString>

/**
 * A reason of the system, such as errorString() of a file, in the current language. The toolkit has
 * the usual ones in its catalogue but gives them out in English.
 */
[[nodiscard]] inline QString systemReason(const QString &reason)
{
    return QCoreApplication::translate("QIODevice", reason.toUtf8().constData());
}
