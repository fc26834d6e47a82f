#pragma once

#include "rowheights.h"

class QTextTable;
class QTextTableCell;
class QTextBlock;

namespace player {

/** Looks up where in the cells of a template its values stand; not for others. */
class RowHeights::Modeller
{
public:
    Modeller(RowHeights *heights, int row)
        : m_heights(*heights)
        , m_row(row)
    {}

    /** Fills @p model, which stays unusable when a row of it must be laid out to be measured. */
    void run(Model *model);

private:
    /** A cell that changes, before its surroundings are known. */
    struct Found
    {
        int index = 0; ///< Among the cells of the markup.
        Cell cell;
        qreal text = 0; ///< Height of its lines in the document.
        QString look;   ///< The same for cells with the same surroundings.
    };

    [[nodiscard]] bool readCell(const QTextTableCell &cell, int index);
    [[nodiscard]] bool readParagraph(const QTextBlock &block, Found *found);
    [[nodiscard]] bool readRun(const QString &text, const QFont &font, Paragraph *paragraph);
    /** The marked row in which only the cells in @p kept have their content. */
    [[nodiscard]] QString emptiedBut(const QVector<int> &kept) const;

    RowHeights &m_heights;
    const int m_row;
    QString m_marked;
    int m_style = -1;
    bool m_isChanging = false;
    QVector<Found> m_found;
    QVector<int> m_constant; ///< Cells that do not change.
};

} // namespace player
