#pragma once

class QTextBlockFormat;
class QTextCharFormat;
class QTextCursor;

namespace lctrlsex {

/**
 * Whether merging @p format into the selection of @p cursor changes anything: Qt makes an undo step
 * of it in any case. A property that is absent counts as set to what text without it shows. Of an
 * image only the background shows.
 */
[[nodiscard]] bool isNewTo(const QTextCursor &cursor, const QTextCharFormat &format);
/** The same for the paragraphs that the selection, or the cursor, touches. */
[[nodiscard]] bool isNewTo(const QTextCursor &cursor, const QTextBlockFormat &format);

} // namespace lctrlsex
