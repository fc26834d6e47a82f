#include "formatdifference.h"

#include <QFont>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>
#include <QVector>

namespace lctrlsex {

namespace {

/** What stands for a property that is absent; invalid where the document or nobody decides. */
QVariant absent(int property)
{
    switch (property) {
    case QTextFormat::FontWeight:
        return int(QFont::Normal);
    case QTextFormat::FontItalic:
        return false;
    case QTextFormat::TextUnderlineStyle:
        return int(QTextCharFormat::NoUnderline);
    case QTextFormat::BlockAlignment:
        return int(Qt::AlignLeft);
    default:
        return QVariant();
    }
}

bool isNewTo(const QTextFormat &old, const QTextFormat &merged)
{
    const QMap<int, QVariant> properties = merged.properties();
    for (auto it = properties.cbegin(); it != properties.cend(); ++it) {
        const QVariant value = old.property(it.key());
        if ((value.isValid() ? value : absent(it.key())) != it.value()) {
            return true;
        }
    }
    return false;
}

bool isNewTo(const QTextBlock &block, int from, int to, const QTextCharFormat &format)
{
    if (block.length() == 1) { // what is typed there takes the format of the end before
        return block.position() > from && isNewTo(block.charFormat(), format);
    }
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        const QTextCharFormat old = fragment.charFormat();
        if (fragment.position() < to && fragment.position() + fragment.length() > from &&
            (!old.isImageFormat() || format.hasProperty(QTextFormat::BackgroundBrush)) &&
            isNewTo(old, format)) {
            return true;
        }
    }
    return false;
}

/** From and to of what a change of @p cursor's selection touches: of cells, those selected only. */
QVector<QPair<int, int>> touched(const QTextCursor &cursor)
{
    const QTextTable *table = cursor.hasComplexSelection() ? cursor.currentTable() : nullptr;
    if (table == nullptr) {
        return {{cursor.selectionStart(), cursor.selectionEnd()}};
    }
    int row = 0;
    int rows = 0;
    int column = 0;
    int columns = 0;
    cursor.selectedTableCells(&row, &rows, &column, &columns);
    QVector<QPair<int, int>> cells;
    for (int cell = 0; cell < rows * columns; ++cell) {
        const QTextTableCell found = table->cellAt(row + cell / columns, column + cell % columns);
        cells.append({found.firstPosition(), found.lastPosition()});
    }
    return cells;
}

} // namespace

bool isNewTo(const QTextCursor &cursor, const QTextCharFormat &format)
{
    const auto stretches = touched(cursor);
    for (const auto &stretch : stretches) {
        for (QTextBlock block = cursor.document()->findBlock(stretch.first);
             block.isValid() && block.position() <= stretch.second; block = block.next()) {
            if (isNewTo(block, stretch.first, stretch.second, format)) {
                return true;
            }
        }
    }
    return false;
}

bool isNewTo(const QTextCursor &cursor, const QTextBlockFormat &format)
{
    const auto stretches = touched(cursor);
    for (const auto &stretch : stretches) {
        for (QTextBlock block = cursor.document()->findBlock(stretch.first);
             block.isValid() && block.position() <= stretch.second; block = block.next()) {
            if (isNewTo(block.blockFormat(), format)) {
                return true;
            }
        }
    }
    return false;
}

} // namespace lctrlsex
