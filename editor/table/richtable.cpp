#include "richtable.h"

#include "table/tableoperations.h"

#include "lcolor.h"

#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

using LUM_EditInterface::LTableProperties;

namespace lctrlsex {

namespace {

constexpr int WidestBorder = 999;
constexpr int WidestTable = 16384;
/** With this type the first column is the header. */
constexpr int DynamicColumns = 2;

bool isWithin(int value, int highest)
{
    return value >= 0 && value <= highest;
}

/** Sets what a record says of the look; counts and header are not touched. */
void applyLook(QTextTableFormat *format, const LTableProperties &record, int columns)
{
    format->setBorder(record.borderWidth);
    format->setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format->setBorderBrush(BGR_TO_QColor(record.borderColor));
    format->setBorderCollapse(true);
    format->setCellSpacing(0);
    format->setCellPadding(record.cellPadding);
    format->setBackground(BGR_TO_QColor(record.backgroundColor));
    if (record.width == 0) {
        format->clearColumnWidthConstraints();
        format->setWidth(QTextLength());
        return;
    }
    const QTextLength width(QTextLength::FixedLength, record.width);
    format->setColumnWidthConstraints(QVector<QTextLength>(columns, width));
    format->setWidth(QTextLength(QTextLength::FixedLength, qreal(record.width) * columns));
}

/** The letters of a typing format: no ground, link, image or other object. */
QTextCharFormat lettersOf(const QTextCharFormat &typed)
{
    QTextCharFormat letters;
    const QMap<int, QVariant> properties = typed.properties();
    for (auto it = properties.begin(); it != properties.end(); ++it) {
        const bool isFont =
            it.key() >= QTextFormat::FirstFontProperty && it.key() <= QTextFormat::LastFontProperty;
        if (isFont || it.key() == QTextFormat::ForegroundBrush) {
            letters.setProperty(it.key(), it.value());
        }
    }
    return letters;
}

void setTypedFormat(const QTextTable &table, const QTextCharFormat &typed)
{
    const QTextCharFormat letters = lettersOf(typed);
    if (letters.isEmpty()) {
        return;
    }
    for (int row = 0; row < table.rows(); ++row) {
        for (int column = 0; column < table.columns(); ++column) {
            table.cellAt(row, column).firstCursorPosition().mergeBlockCharFormat(letters);
        }
    }
}

void setLineCount(QTextTable *table, Axis axis, int now, int wanted)
{
    if (wanted > now) {
        insertLines(table, axis, now, wanted - now);
    } else {
        removeLines(table, axis, wanted, now - wanted);
    }
}

unsigned int colorOf(const QBrush &brush)
{
    return brush.style() == Qt::NoBrush ? 0 : QColor_TO_BGR(brush.color());
}

} // namespace

QTextTable *firstTable(const QTextDocument *document)
{
    if (document == nullptr) {
        return nullptr;
    }
    const QList<QTextFrame *> frames = document->rootFrame()->childFrames();
    for (QTextFrame *frame : frames) {
        if (auto *table = qobject_cast<QTextTable *>(frame)) {
            return table;
        }
    }
    return nullptr;
}

bool isUsable(const LTableProperties &record)
{
    return record.rows > 0 && record.columns > 0 &&
           record.rows <= MostTableCells / record.columns &&
           isWithin(record.borderWidth, WidestBorder) &&
           isWithin(record.cellPadding, WidestBorder) &&
           isWithin(record.width, WidestTable / record.columns);
}

QTextTable *insertTable(QTextCursor &cursor, const LTableProperties &record,
                        Qt::Alignment alignment, const QTextCharFormat &typed)
{
    if (cursor.isNull() || !isUsable(record)) {
        return nullptr;
    }
    QTextTableFormat format;
    applyLook(&format, record, record.columns);
    format.setAlignment(alignment & Qt::AlignHorizontal_Mask);
    format.setHeaderRowCount(record.header && record.type != DynamicColumns ? 1 : 0);
    cursor.beginEditBlock();
    QTextTable *table = cursor.insertTable(record.rows, record.columns, format);
    if (table != nullptr) {
        setTypedFormat(*table, typed);
        cursor = table->cellAt(0, 0).firstCursorPosition();
    }
    cursor.endEditBlock();
    return table;
}

/** Sets what differs between @p record and @p present only: the rest may be finer than a record. */
static void applyChanges(QTextTableFormat *format, const LTableProperties &record,
                         const LTableProperties &present)
{
    const QTextTableFormat before = *format;
    applyLook(format, record, record.columns);
    if (record.backgroundColor == present.backgroundColor) {
        format->setProperty(QTextFormat::BackgroundBrush,
                            before.property(QTextFormat::BackgroundBrush));
    }
    if (record.borderWidth == present.borderWidth && record.borderColor == present.borderColor) {
        for (const int property : {QTextFormat::FrameBorder, QTextFormat::FrameBorderStyle,
                                   QTextFormat::FrameBorderBrush, QTextFormat::TableBorderCollapse,
                                   QTextFormat::TableCellSpacing}) {
            format->setProperty(property, before.property(property));
        }
    }
    if (record.width == present.width) {
        format->setColumnWidthConstraints(before.columnWidthConstraints());
        format->setWidth(before.width());
    }
}

void reformatTable(QTextTable *table, const LTableProperties &record)
{
    if (table == nullptr || !isUsable(record)) {
        return;
    }
    const LTableProperties present = readTable(table);
    QTextTableFormat looked = table->format();
    applyChanges(&looked, record, present);
    looked.setColumns(record.columns);
    if (table->rows() == record.rows && table->format() == looked) {
        return;
    }
    QTextCursor block = table->firstCursorPosition();
    block.beginEditBlock();
    setLineCount(table, Axis::Rows, table->rows(), record.rows);
    setLineCount(table, Axis::Columns, table->columns(), record.columns);
    QTextTableFormat format = table->format();
    applyChanges(&format, record, present);
    table->setFormat(format);
    block.endEditBlock();
}

LTableProperties readTable(const QTextTable *table)
{
    LTableProperties record;
    if (table == nullptr) {
        return record;
    }
    const QTextTableFormat format = table->format();
    record.rows = table->rows();
    record.columns = table->columns();
    record.backgroundColor = colorOf(format.background());
    if (format.width().type() == QTextLength::FixedLength) {
        record.width = qRound(format.width().rawValue() / record.columns);
    }
    record.borderWidth = qRound(format.border());
    record.borderColor = colorOf(format.borderBrush());
    record.cellPadding = qRound(format.cellPadding());
    return record;
}

} // namespace lctrlsex
