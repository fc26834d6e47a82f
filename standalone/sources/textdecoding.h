#pragma once

#include <QByteArray>
#include <QString>

namespace sources {

/**
 * @p bytes as UTF-8 without byte-order mark: by their mark, else by @p encoding, else as they are
 * when they are UTF-8, else as the system's own encoding has it. Null characters and what is no
 * text become U+FFFD. Null with an error for an encoding that does not exist or a text that is too
 * long for one.
 */
[[nodiscard]] QByteArray toCleanUtf8(const QByteArray &bytes, const QString &encoding,
                                     QString *error);

/** Whether @p bytes are UTF-8 through and through, without null characters. */
[[nodiscard]] bool isCleanUtf8(const QByteArray &bytes);

} // namespace sources
