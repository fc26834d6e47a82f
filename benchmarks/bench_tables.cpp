#include "floors.h"
#include "table/richtable.h"
#include "table/tableoperations.h"

#include <QTextCursor>
#include <QTextTable>

#include <memory>

using namespace lctrlsex;

namespace {

constexpr int Rows = 1000;
constexpr int Columns = 10;
constexpr int Middle = Rows / 2;
constexpr int Rounds = 9; // most of a round is not counted, so that a time would be no limit

/** A table of a thousand rows with text in it, and what undoes a change of it. */
class Board
{
public:
    explicit Board(bool laysOut)
        : m_laysOut(laysOut)
    {
        LUM_EditInterface::LTableProperties record;
        record.rows = Rows;
        record.columns = Columns;
        record.width = 40;
        QTextCursor cursor(&m_document);
        m_table = insertTable(cursor, record, Qt::AlignLeft, QTextCharFormat());
        for (int row = 0; row < Rows; ++row) {
            for (int column = 0; column < Columns; ++column) {
                m_table->cellAt(row, column).firstCursorPosition().insertText(QStringLiteral("12"));
            }
        }
        m_document.clearUndoRedoStacks();
    }

    template <class Change>
    double seconds(const Change &change)
    {
        QElapsedTimer timer;
        timer.start();
        change(m_table);
        if (m_laysOut) {
            m_document.documentLayout()->documentSize(); // which a change puts off
        }
        const double time = double(timer.nsecsElapsed()) * 1e-9;
        m_document.undo();
        return time;
    }

private:
    QTextDocument m_document;
    QTextTable *m_table = nullptr;
    bool m_laysOut;
};

/**
 * Times @p ours beside @p bare, what the text engine does for the same by itself; with the layout
 * that follows where an argument says so.
 */
template <class Ours, class Bare>
void compare(benchmark::State &state, const Ours &ours, const Bare &bare)
{
    Board board(state.range(0) != 0);
    std::vector<double> times;
    std::vector<double> floor;
    board.seconds(bare);
    board.seconds(ours);
    for (auto round : state) {
        static_cast<void>(round);
        floor.push_back(board.seconds(bare));
        times.push_back(board.seconds(ours));
        state.SetIterationTime(times.back());
    }
    state.counters["median_us"] = floors::median(times) * 1e6;
    state.counters["bare_us"] = floors::median(floor) * 1e6;
    state.counters["x_bare"] = floors::median(times) / floors::median(floor);
}

void insertRow(benchmark::State &state)
{
    compare(
        state, [](QTextTable *table) { insertLines(table, Axis::Rows, Middle, 1); },
        [](QTextTable *table) { table->insertRows(Middle, 1); });
}

void deleteRow(benchmark::State &state)
{
    compare(
        state, [](QTextTable *table) { removeLines(table, Axis::Rows, Middle, 1); },
        [](QTextTable *table) { table->removeRows(Middle, 1); });
}

void insertColumn(benchmark::State &state)
{
    compare(
        state, [](QTextTable *table) { insertLines(table, Axis::Columns, 5, 1); },
        [](QTextTable *table) { table->insertColumns(5, 1); });
}

void mergeFour(benchmark::State &state)
{
    compare(
        state,
        [](QTextTable *table) {
            mergeCells(table, {Middle, 2, 2, 2});
        },
        [](QTextTable *table) { table->mergeCells(Middle, 2, 2, 2); });
}

void reformat(benchmark::State &state)
{
    compare(
        state,
        [](QTextTable *table) {
            LUM_EditInterface::LTableProperties record = readTable(table);
            record.borderWidth = 3;
            record.borderColor = 255;
            reformatTable(table, record);
        },
        [](QTextTable *table) {
            QTextTableFormat format = table->format();
            format.setBorder(3);
            format.setBorderBrush(QColor(Qt::red));
            table->setFormat(format);
        });
}

void withoutLayout(benchmark::internal::Benchmark *each)
{
    each->ArgName("layout")->Arg(0)->UseManualTime()->Iterations(Rounds)->Unit(
        benchmark::kMicrosecond);
}

BENCHMARK(insertRow)->Apply(withoutLayout);
BENCHMARK(deleteRow)->Apply(withoutLayout);
BENCHMARK(insertColumn)->Apply(withoutLayout);
BENCHMARK(mergeFour)->Apply(withoutLayout);
// All of its work is put off.
BENCHMARK(reformat)->ArgName("layout")->Arg(1)->UseManualTime()->Iterations(5)->Unit(
    benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    return floors::runBenchmarks(argc, argv);
}
