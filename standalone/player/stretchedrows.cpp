#include "stretchedrows.h"

#include <QAbstractTextDocumentLayout>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>

namespace player {

static QVector<QTextTable *> tablesOf(const QTextDocument &document)
{
    QVector<QTextTable *> tables;
    for (QTextFrame *frame : document.rootFrame()->childFrames()) {
        if (auto *table = qobject_cast<QTextTable *>(frame)) {
            tables.append(table);
        }
    }
    return tables;
}

qreal tableBottom(const QTextDocument &document)
{
    const QVector<QTextTable *> tables = tablesOf(document);
    if (tables.isEmpty()) {
        return 0;
    }
    const QTextTable *table = tables.constLast();
    const QTextTableFormat format = table->format();
    qreal bottom = 0;
    for (int column = 0; column < table->columns(); ++column) {
        const QTextCursor end = table->cellAt(table->rows() - 1, column).lastCursorPosition();
        const QRectF block = document.documentLayout()->blockBoundingRect(end.block());
        bottom = qMax(bottom, block.bottom());
    }
    return bottom + format.cellPadding() + format.border() + format.cellSpacing();
}

static qreal paddingOf(const QTextTableCellFormat &format, int property, qreal otherwise)
{
    return format.hasProperty(property) ? format.doubleProperty(property) : otherwise;
}

void stretchTables(QTextDocument *document, int height)
{
    const QVector<QTextTable *> tables = tablesOf(*document);
    int rows = 0;
    for (const QTextTable *table : tables) {
        rows += table->rows();
    }
    const int missing = int(height - document->documentLayout()->documentSize().height());
    if (rows == 0 || missing <= 0) {
        return;
    }
    QTextCursor edit(document);
    edit.beginEditBlock();
    int done = 0; // rows; what rounding leaves goes to the first ones
    for (QTextTable *table : tables) {
        const qreal padding = table->format().cellPadding();
        for (int row = 0; row < table->rows(); ++row, ++done) {
            const int more = missing / rows + (done < missing % rows ? 1 : 0);
            for (int column = 0; column < table->columns(); ++column) {
                QTextTableCell cell = table->cellAt(row, column);
                if (cell.row() != row || cell.column() != column) {
                    continue;
                }
                QTextTableCellFormat format = cell.format().toTableCellFormat();
                const qreal top = paddingOf(format, QTextFormat::TableCellTopPadding, padding);
                const qreal bottom =
                    paddingOf(format, QTextFormat::TableCellBottomPadding, padding);
                const int above = more / 2;
                format.setTopPadding(top + above);
                format.setBottomPadding(bottom + more - above);
                cell.setFormat(format);
            }
        }
    }
    edit.endEditBlock();
}

} // namespace player
