#pragma once

#include <QImage>
#include <QStringList>

namespace lctrlsex {

/** Most bytes that a page file may have: a page of 3840 x 2160 pixels fits in uncompressed. */
constexpr qint64 largestPageFile = qint64(64) * 1024 * 1024;

/**
 * The picture of page @p page, from 1, among a node's page files; null when there is none, or no
 * regular file with a whole PNG, JPEG, GIF or BMP picture of a page's size. Nothing is waited for
 * and a picture that is too large is not decoded. Any thread.
 */
[[nodiscard]] QImage pageFile(const QStringList &files, int page);

} // namespace lctrlsex
