#pragma once

#include <QObject>
#include <QPointer>
#include <QTextDocument>

class QTextBlock;

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

/**
 * Keeps the runs of a document merged while it is edited, as smartMerge() does, but looks only at
 * the blocks that were changed since the last time and leaves no undo step of its own.
 */
class FragmentMerger : public QObject
{
    Q_OBJECT

public:
    /** Property of a document, true while something is added to its last undo step. */
    static const char *const JoinsLastStep;

    /** Nothing of @p document is known to be merged. */
    explicit FragmentMerger(QTextDocument *document);

    /**
     * Merges what was changed; true when anything came of it. It becomes part of the last undo
     * step, which Qt allows when that was made in an edit block, and no step when there is none.
     * Throws away what could be redone.
     */
    bool merge();

private:
    void onContentsChange(int position, int removed, int added);
    void setRange(int from, int to);

    QPointer<QTextDocument> m_document;
    int m_from = 0; ///< Blocks that touch these positions may need a merge; none when from > to.
    int m_to = 0;
    bool m_isMerging = false;
};

} // namespace lctrlsex
