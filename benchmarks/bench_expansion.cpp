#include "boundtable.h"
#include "floors.h"

#include "itemtemplate.h"
#include "valueimages.h"

#include <cstring>

using floors::Floor;
using namespace player;

namespace {

/** The rows of a bound table as markup, beside copying as many characters into fresh memory. */
void expandRows(benchmark::State &state)
{
    const int rows = int(state.range(0));
    const StoredItem item = boundtable::item(5, 1024);
    const sources::DataSnapshot data = boundtable::records(rows, 5);
    ItemValues values(data, {});
    LineStyles styles(QString(), &values);
    ValueImages images(true);
    const ItemTemplate table(item, data, 640, {&values, &styles, &images});
    const QString expected = table.expandedRows(0, rows);
    const Floor copy{"memcpy", [&expected] {
                         QString target(expected.size(), Qt::Uninitialized);
                         std::memcpy(target.data(), expected.constData(),
                                     size_t(expected.size()) * sizeof(QChar));
                         benchmark::DoNotOptimize(target.constData());
                     }};
    floors::besideFloors(state,
                         [&table, rows] {
                             const QString html = table.expandedRows(0, rows);
                             benchmark::DoNotOptimize(html.constData());
                         },
                         {copy});
    state.counters["MB"] = expected.size() * 2e-6;
}

} // namespace

BENCHMARK(expandRows)
    ->ArgName("rows")
    ->Arg(100)
    ->Arg(1000)
    ->Arg(100000)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

int main(int argc, char **argv)
{
    return floors::runBenchmarks(argc, argv);
}
