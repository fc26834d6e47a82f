#pragma once

#include "itemtemplate.h"
#include "table/tablewidths.h"

namespace player {

/** Makes the rows of an ItemTemplate; not for others. */
class TemplateBuilder
{
public:
    TemplateBuilder(ItemTemplate *made, const StoredItem &item, int width);

    void build(const sources::DataSnapshot &data);

private:
    /** A row of a table of columns: what stands around its repeated cell. */
    struct CellRow
    {
        QString prefix, cell, suffix;
    };
    using Extents = QVector<lctrlsex::CellExtent>;

    [[nodiscard]] bool readTemplates();
    [[nodiscard]] bool fail(const QString &reason);
    void warn(const QString &part, const QString &reason, const QString &remedy);
    void readLines(const sources::DataSnapshot &data);
    [[nodiscard]] LineShape shape() const;

    [[nodiscard]] CellRow firstWithCell() const;
    void buildRows();
    void buildColumns();
    void buildAdaptive();
    void addRow(const QString &markup, Placeholders placeholders);
    void addCells(const CellRow &row, int copies, Placeholders placeholders);
    /** Gives the rows from @p first on their widths, which make up @p tableWidth. */
    void setWidths(int first, int tableWidth);
    [[nodiscard]] bool hasAllWidths() const;
    [[nodiscard]] int mostCopies(const CellRow &row, int least) const;

    ItemTemplate *m_made;
    const StoredItem &m_item;
    QVector<CellRow> m_cellRows;
    QVector<Extents> m_extents; ///< Of the rows made so far.
    int m_tableWidth;
    const int m_availableWidth;
    bool m_setsWidths = false;
};

} // namespace player
