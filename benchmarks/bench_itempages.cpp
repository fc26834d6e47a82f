#include "boundtable.h"
#include "floors.h"

#include "boundpages.h"

#include <memory>

using floors::Floor;
using player::BoundPages;

namespace {

lctrlsex::PageStyle pageStyle()
{
    lctrlsex::PageStyle style;
    style.size = {640, 1080};
    return style;
}

/** Pages of a bound table of so many rows, in memory. */
std::unique_ptr<BoundPages> pagesOf(const sources::DataSnapshot &data)
{
    return std::make_unique<BoundPages>(boundtable::item(5, 0), data, pageStyle());
}

/** From stored texts and data to the first page, beside a table of 60 rows. */
void firstPage(benchmark::State &state)
{
    const auto data = boundtable::records(int(state.range(0)), 5);
    const auto few = boundtable::records(60, 5);
    const Floor small{"60rows", [&few] {
                          benchmark::DoNotOptimize(pagesOf(few)->page(0).constBits());
                      }};
    floors::besideFloors(
        state, [&data] { benchmark::DoNotOptimize(pagesOf(data)->page(0).constBits()); }, {small});
}

/** A page in the middle once the breaks are known, beside page 1; another page in between. */
void anyPage(benchmark::State &state)
{
    const auto data = boundtable::records(int(state.range(0)), 5);
    const auto pages = pagesOf(data);
    const int count = pages->pageCount();
    int step = 0;
    const auto turn = [&](int page) {
        benchmark::DoNotOptimize(pages->page(page).constBits());
    };
    const Floor first{"page1", [&] {
                          turn(step++ % 2); // the page shown last would cost nothing
                      }};
    floors::besideFloors(state, [&] { turn(count / 2 + step++ % 1000); }, {first});
    state.counters["pages"] = count;
}

/** Every page break, beside reading all the texts. */
void allBreaks(benchmark::State &state)
{
    const int rows = int(state.range(0));
    const auto data = boundtable::records(rows, 5);
    const sources::DataValue table = data.first().value.at(0);
    const Floor read{"texts", [&table, rows] {
                         int size = 0;
                         for (int row = 0; row < rows; ++row) {
                             for (int column = 0; column < 5; ++column) {
                                 size += table.table()->text(row, column).size();
                             }
                         }
                         benchmark::DoNotOptimize(size);
                     }};
    floors::besideFloors(state, [&data] { benchmark::DoNotOptimize(pagesOf(data)->pageCount()); },
                         {read});
}

} // namespace

BENCHMARK(firstPage)->ArgName("rows")->Arg(100000)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(anyPage)->ArgName("rows")->Arg(1000000)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(allBreaks)->ArgName("rows")->Arg(1000000)->UseManualTime()->Unit(benchmark::kMicrosecond);

int main(int argc, char **argv)
{
    return floors::runBenchmarks(argc, argv);
}
