#include "floors.h"
#include "table/fieldimages.h"
#include "table/tablemarkup.h"
#include "table/tabletemplate.h"

#include <QDomDocument>
#include <QTextCursor>
#include <QTextTable>

using floors::Floor;
using namespace lctrlsex;

namespace {

/** A table of ten columns as Qt writes it, every cell with a short text. */
QString tableHtml(int rows)
{
    constexpr int columns = 10;
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

/** What a change of a bound table costs, beside reading its text into a tree once. */
void unifyAndCut(benchmark::State &state)
{
    const QString html = tableHtml(int(state.range(0)));
    const TableMarks marks{int(state.range(1)), QStringLiteral("source:list[]"), true, true, false};
    QDomDocument parsed;
    const Floor parse{"parse", [&html, &parsed] {
                          benchmark::DoNotOptimize(parsed.setContent(html));
                      }};
    // Kept until there are new ones, as an item keeps them and the floor its tree.
    OutlinedHtml unified;
    TableTemplate cut;
    floors::besideFloors(state,
                         [&html, &marks, &unified, &cut] {
                             unified = unifyAndOutline(html, marks);
                             cut = cutTemplate(unified.html, unified.found, marks.tableType, true);
                             benchmark::DoNotOptimize(cut);
                         },
                         {parse});
}

/** New data of which nothing, or one value, is new to 1,000 fields, beside drawing all anew. */
void refresh(benchmark::State &state)
{
    QTextDocument document;
    QTextCursor cursor(&document);
    QMap<QString, QString> values;
    for (int i = 0; i < 1000; ++i) {
        const QString key = QStringLiteral("source:field%1").arg(i);
        insertField(cursor, key, TypingStyle());
        cursor.insertText(QStringLiteral(" kWh\n"));
        values.insert(key, QStringLiteral("%1").arg(i * 7));
    }
    FieldImages images;
    images.refresh(&document, values);
    const bool isNew = state.range(0) != 0;
    int count = 0;
    const Floor all{"all", [&document, &values] {
                        FieldImages().refresh(&document, values);
                    }};
    const auto work = [&] {
        if (isNew) {
            values[QStringLiteral("source:field500")] = QString::number(++count);
        }
        benchmark::DoNotOptimize(images.refresh(&document, values));
    };
    const Floor image{"image", [] {
                          benchmark::DoNotOptimize(
                              drawField(QStringLiteral("3500"), FieldStyle(), false));
                      }};
    // Drawing all replaces the images that are known: the untimed run of the work makes that good.
    floors::besideFloors(state, work, {all, image});
}

} // namespace

BENCHMARK(unifyAndCut)
    ->ArgNames({"rows", "type"})
    ->ArgsProduct({{100, 1000}, {1, 3}})
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

// So many rounds: by its time alone the work would be run as often as its floors take minutes.
BENCHMARK(refresh)->ArgName("new")->Arg(0)->Arg(1)->Iterations(20)->UseManualTime()->Unit(
    benchmark::kMicrosecond);

int main(int argc, char **argv)
{
    return floors::runBenchmarks(argc, argv);
}
