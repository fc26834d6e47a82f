#pragma once

#include <QJsonObject>
#include <QString>

namespace sources {

/**
 * The full name of a file that sources of a programme in @p folder name. A ".." at its beginning
 * leads out of the folder that a link points to, as the system has it, not out of the link's.
 */
[[nodiscard]] QString fullFileName(const QString &folder, const QString &name);

/**
 * A list of sources as it stands in folder @p from, as it must stand in folder @p to: the relative
 * file names in it name the same files from there, whether these exist or not. What is no list, and
 * entries that are no sources, stay as they are.
 */
[[nodiscard]] QJsonValue movedSources(const QJsonValue &list, const QString &from,
                                      const QString &to);

/** The same for all members of a programme's root object, be the list in it or in a file. */
[[nodiscard]] QJsonObject movedMembers(QJsonObject members, const QString &from, const QString &to);

} // namespace sources
