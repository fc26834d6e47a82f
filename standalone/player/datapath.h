#pragma once

#include "datasnapshot.h"

#include <QStringView>

namespace player {

/** A key as programmes name it: the name of a source, ":" and a path into its value. */
struct SourceKey
{
    QString source; ///< Empty when the key has none.
    QString path;

    /** Cuts at the first ":". */
    [[nodiscard]] static SourceKey fromText(const QString &key);
};

/**
 * What stands at @p path below @p root: names of members between ".", indexes from 0 as "[3]".
 * A member whose whole name is what is left of the path comes first, so that names with dots are
 * found. Missing when the path leads nowhere; @p isFound, unless null, tells that from a value that
 * is missing there. Any path is fine; linear in its length.
 */
[[nodiscard]] sources::DataValue valueAt(const sources::DataValue &root, QStringView path,
                                         bool *isFound = nullptr);

/**
 * Puts a text at @p path, names of members between ".", below @p root; records are made where there
 * are none. False when something else than a record is in the way.
 */
[[nodiscard]] bool setValueAt(sources::DataValue *root, const QString &path, const QString &text);

/** The same as valueAt() for a key of @p data; one without a source is looked up in @p
 * defaultSource. */
[[nodiscard]] sources::DataValue valueOfKey(const sources::DataSnapshot &data, const QString &key,
                                            const QString &defaultSource, bool *isFound = nullptr);

} // namespace player
