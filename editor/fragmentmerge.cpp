#include "fragmentmerge.h"

#include "charformatstyle.h"

#include <QHash>
#include <QTextBlock>
#include <QTextCursor>
#include <QVector>

namespace lctrlsex {

namespace {

/** A stretch of text that takes the format of the run before it. */
struct Run
{
    int position;
    int end;
    QTextCharFormat format;
};

/** Finds the runs of one document to merge; compares each pair of formats once. */
class RunFinder
{
public:
    /**
     * Looking alike is transitive, so one pass that compares with the run's left format gives what
     * merging pair by pair from the start does.
     */
    void search(const QTextBlock &block)
    {
        QTextFragment left;
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            if (!fragment.isValid()) {
                continue;
            }
            if (!left.isValid() || !areAlike(left, fragment)) {
                left = fragment;
            } else if (!m_runs.isEmpty() && m_runs.last().end == fragment.position()) {
                m_runs.last().end += fragment.length();
            } else {
                const int position = fragment.position();
                m_runs.append({position, position + fragment.length(), left.charFormat()});
            }
        }
    }

    [[nodiscard]] const QVector<Run> &runs() const { return m_runs; }

private:
    bool areAlike(const QTextFragment &left, const QTextFragment &right)
    {
        const QPair<int, int> pair(left.charFormatIndex(), right.charFormatIndex());
        auto known = m_known.constFind(pair);
        if (known == m_known.constEnd()) {
            known = m_known.insert(pair, areFormatsEqual(left.charFormat(), right.charFormat()));
        }
        return *known;
    }

    QHash<QPair<int, int>, bool> m_known;
    QVector<Run> m_runs;
};

void apply(QTextDocument *document, const QVector<Run> &runs)
{
    QTextCursor cursor(document);
    for (const Run &run : runs) {
        cursor.setPosition(run.position);
        cursor.setPosition(run.end, QTextCursor::KeepAnchor);
        cursor.setCharFormat(run.format);
    }
}

/** In one edit block of @p cursor, which is open; an empty one would announce a change. */
void applyAndEnd(QTextCursor *cursor, const QVector<Run> &runs)
{
    apply(cursor->document(), runs);
    cursor->endEditBlock();
}

void applyWithoutStep(QTextDocument *document, const QVector<Run> &runs)
{
    const bool isModified = document->isModified();
    const bool isUndoEnabled = document->isUndoRedoEnabled();
    document->setUndoRedoEnabled(false);
    QTextCursor cursor(document);
    cursor.beginEditBlock();
    applyAndEnd(&cursor, runs);
    document->setUndoRedoEnabled(isUndoEnabled);
    document->setModified(isModified); // what was loaded still counts as such
}

void applyToLastStep(QTextDocument *document, const QVector<Run> &runs)
{
    QTextCursor cursor(document);
    document->setProperty(FragmentMerger::JoinsLastStep, true);
    cursor.joinPreviousEditBlock();
    applyAndEnd(&cursor, runs);
    document->setProperty(FragmentMerger::JoinsLastStep, false);
}

} // namespace

const char *const FragmentMerger::JoinsLastStep = "joinsLastStep";

bool smartMergeBlock(const QTextBlock &block)
{
    RunFinder finder;
    finder.search(block);
    if (!finder.runs().isEmpty()) {
        apply(const_cast<QTextDocument *>(block.document()), finder.runs());
    }
    return !finder.runs().isEmpty();
}

bool smartMerge(QTextDocument *document)
{
    RunFinder finder;
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        finder.search(block);
    }
    if (finder.runs().isEmpty()) {
        return false; // an empty edit block would announce a change, and that would merge again
    }
    QTextCursor cursor(document);
    cursor.beginEditBlock();
    applyAndEnd(&cursor, finder.runs());
    return true;
}

FragmentMerger::FragmentMerger(QTextDocument *document)
    : m_document(document)
{
    document->documentLayout(); // without one, changes are not announced
    setRange(0, document->characterCount());
    connect(document, &QTextDocument::contentsChange, this, &FragmentMerger::onContentsChange);
}

void FragmentMerger::setRange(int from, int to)
{
    m_from = from;
    m_to = to;
}

void FragmentMerger::onContentsChange(int position, int removed, int added)
{
    if (m_isMerging) {
        m_isMerging = false;
        return; // of the merge itself; what slots do to the document comes behind it
    }
    if (m_from > m_to) {
        setRange(position, position + added);
        return;
    }
    const int end = m_to <= position ? m_to : qMax(position, m_to - removed) + added;
    setRange(qMin(m_from, position), qMax(end, position + added));
}

bool FragmentMerger::merge()
{
    if (m_document.isNull() || m_from > m_to) {
        return false;
    }
    RunFinder finder;
    for (QTextBlock block = m_document->findBlock(m_from);
         block.isValid() && block.position() <= m_to; block = block.next()) {
        finder.search(block);
    }
    setRange(0, -1);
    if (finder.runs().isEmpty()) {
        return false;
    }
    m_isMerging = true;
    if (m_document->isUndoAvailable()) {
        applyToLastStep(m_document, finder.runs());
    } else {
        applyWithoutStep(m_document, finder.runs());
    }
    m_isMerging = false;
    return true;
}

} // namespace lctrlsex
