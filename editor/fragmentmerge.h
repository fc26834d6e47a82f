#pragma once

class QTextBlock;
class QTextDocument;

namespace lctrlsex {

/**
 * Gives runs of @p block that look alike the format of the leftmost, so that they become one.
 * True when anything changed. The caller opens the edit block.
 */
bool smartMergeBlock(const QTextBlock &block);

/**
 * The same for every block of @p document, as one undo step, or none when there is nothing to
 * merge. Texts, cursors and selections stay as they are.
 */
bool smartMerge(QTextDocument *document);

} // namespace lctrlsex
