#pragma once

#include <QObject>
#include <QPointer>
#include <QSize>
#include <QTextDocument>
#include <QTextTable>

namespace lctrlsex {

/**
 * A copy of the blocks at the top of a document, as many as a page of a given size shows, laid out
 * at the page's width.
 *
 * A page is drawn from here and never from the document that a view shows, because the view lays
 * that one out again at its own width behind the painter's back. The copy costs what the page
 * costs, whatever the length of the document, and is kept until an edit reaches it; one within a
 * paragraph is followed there. Of a long table only the first rows are copied, as long as the
 * document is laid out and its columns are no wider for what stands further down.
 */
class TopBlocks : public QObject
{
    Q_OBJECT
public:
    explicit TopBlocks(QObject *parent = nullptr);
    ~TopBlocks() override;

    /**
     * The laid-out copy for @p source at a page of @p size pixels. It stays this object's and
     * valid until the next call. Images are asked of @p source.
     */
    QTextDocument *documentFor(const QTextDocument *source, const QSize &size);

    /** Forgets the copy, for changes that a document does not announce, such as new images. */
    void invalidate();

private:
    void onContentsChange(int position, int removed, int added);
    void attach(const QTextDocument *source);
    void copySettings(QTextDocument *target) const;
    void rebuild();
    void makeCopy(int end);
    void layOutCopy();
    [[nodiscard]] bool copyUpToRow(QTextTable *table, int wanted);
    [[nodiscard]] bool takeEditedBlock();
    [[nodiscard]] bool reachesBelowPage() const;
    [[nodiscard]] QTextTable *tableToCut(int characters) const;
    [[nodiscard]] int endOfTop(int characters, int blocks) const;

    QPointer<const QTextDocument> m_source;
    QTextDocument *m_copy = nullptr;
    QPointer<QTextTable> m_cut; ///< Of the source; null when no table is cut.
    QPointer<QTextTable> m_cutCopy;
    QSize m_size;
    int m_end = 0;          ///< Position in the source behind the last copied character.
    int m_blockCount = 0;   ///< Of the source.
    int m_editedBlock = -1; ///< The only one in which the copy differs; -1 for none.
    bool m_isCurrent = false;
};

} // namespace lctrlsex
