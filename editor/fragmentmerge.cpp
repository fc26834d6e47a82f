#include "fragmentmerge.h"

#include "charformatstyle.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QVector>

namespace lctrlsex {

namespace {

/** A stretch of text that takes the format of the run before it. */
struct Run
{
    int position;
    int length;
    QTextCharFormat format;
};

/**
 * Looking alike is transitive, so one pass that compares with the run's left format gives what
 * merging pair by pair from the start does.
 */
QVector<Run> mergeableRuns(const QTextBlock &block)
{
    QVector<Run> runs;
    QTextCharFormat left;
    bool hasLeft = false;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        if (!fragment.isValid()) {
            continue;
        }
        const QTextCharFormat format = fragment.charFormat();
        if (hasLeft && areFormatsEqual(left, format)) {
            runs.append({fragment.position(), fragment.length(), left});
        } else {
            left = format;
            hasLeft = true;
        }
    }
    return runs;
}

void apply(QTextDocument *document, const QVector<Run> &runs)
{
    QTextCursor cursor(document);
    for (const Run &run : runs) {
        cursor.setPosition(run.position);
        cursor.setPosition(run.position + run.length, QTextCursor::KeepAnchor);
        cursor.setCharFormat(run.format);
    }
}

} // namespace

bool smartMergeBlock(const QTextBlock &block)
{
    const QVector<Run> runs = mergeableRuns(block);
    if (!runs.isEmpty()) {
        apply(const_cast<QTextDocument *>(block.document()), runs);
    }
    return !runs.isEmpty();
}

bool smartMerge(QTextDocument *document)
{
    QVector<Run> runs;
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        runs += mergeableRuns(block);
    }
    if (runs.isEmpty()) {
        return false; // an empty edit block would announce a change, and that would merge again
    }
    QTextCursor cursor(document);
    cursor.beginEditBlock();
    apply(document, runs);
    cursor.endEditBlock();
    return true;
}

} // namespace lctrlsex
