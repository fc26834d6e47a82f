#include "floors.h"
#include "table/tablemarkup.h"

#include <QDomDocument>
#include <QTextCursor>
#include <QTextTable>

using floors::Floor;

namespace {

/** A table as Qt writes it, every cell with a short text. */
QString tableHtml(int rows, int columns)
{
    QTextDocument document;
    QTextTableFormat format;
    format.setBorder(1);
    format.setWidth(columns * 90);
    format.setColumnWidthConstraints(
        QVector<QTextLength>(columns, QTextLength(QTextLength::FixedLength, 90)));
    QTextCursor cursor(&document);
    QTextTable *table = cursor.insertTable(rows, columns, format);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            table->cellAt(row, column)
                .firstCursorPosition()
                .insertText(QStringLiteral("r%1c%2").arg(row).arg(column));
        }
    }
    return document.toHtml();
}

/** Widths, borders and marks of a table, beside reading the same text into a tree once. */
void unifyWidths(benchmark::State &state)
{
    const QString html = tableHtml(int(state.range(0)), 10);
    const lctrlsex::TableMarks marks{1, QStringLiteral("source:list[]"), true, true, false};
    QDomDocument parsed;
    const Floor parse{"parse", [&html, &parsed] {
                          benchmark::DoNotOptimize(parsed.setContent(html));
                      }};
    const Floor save{"save", [&parsed] {
                         benchmark::DoNotOptimize(parsed.toString(0));
                     }};
    floors::besideFloors(
        state, [&html, &marks] { benchmark::DoNotOptimize(unifyTableColumnWidths(html, marks)); },
        {parse, save});
}

} // namespace

BENCHMARK(unifyWidths)
    ->ArgName("rows")
    ->Arg(100)
    ->Arg(1000)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

int main(int argc, char **argv)
{
    return floors::runBenchmarks(argc, argv);
}
