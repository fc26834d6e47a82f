#include "floors.h"
#include "openitem.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>

using floors::Floor;

namespace {

/** An item with text of about @p characters, see floors::richText(). */
struct Pair : OpenItem
{
    explicit Pair(int characters, int words = 1)
        : OpenItem({384, 128}, floors::richText(characters, words))
    {}
};

/** There and back, so that every round finds the cursor where the last one did. */
void moveBy(QTextEdit *view, int steps)
{
    for (int step = 0; step < steps; ++step) {
        press(view, Qt::Key_Right);
    }
    for (int step = 0; step < steps; ++step) {
        press(view, Qt::Key_Left);
    }
}

/** Over 120 characters of a long text, there and back. */
void cursorMoves(benchmark::State &state)
{
    constexpr int Steps = 120;
    Pair pair(100 * 1000, int(state.range(0)));
    const Floor bare{"bare", [&pair] {
                         moveBy(&pair.bare, Steps);
                     }};
    floors::besideFloors(state, [&pair] { moveBy(pair.view, Steps); }, {bare});
}

void opening(benchmark::State &state)
{
    Pair pair(int(state.range(0)));
    LTextEffectNode other;
    const Floor setHtml{"setHtml", [&pair] {
                            pair.bare.setHtml(pair.html);
                        }};
    floors::besideFloors(state,
                         [&] {
                             pair.editor.Init(&other);
                             pair.editor.Init(&pair.node);
                         },
                         {setHtml});
}

void layOut(QTextDocument *document)
{
    document->markContentsDirty(0, document->characterCount());
    benchmark::DoNotOptimize(document->documentLayout()->documentSize());
}

/** A change of the whole document, up to its new layout. */
void wholeDocument(benchmark::State &state, const std::function<void(Pair *, int)> &change)
{
    Pair pair(100 * 1000);
    int round = 0;
    const Floor relayout{"relayout", [&pair] {
                             layOut(pair.bare.document());
                         }};
    floors::besideFloors(state,
                         [&] {
                             change(&pair, ++round);
                             benchmark::DoNotOptimize(
                                 pair.view->document()->documentLayout()->documentSize());
                         },
                         {relayout});
}

void letterSpacing(benchmark::State &state)
{
    wholeDocument(
        state, [](Pair *pair, int round) { pair->editor.TextWordSpacingChanged(1 + round % 5); });
}

void color(benchmark::State &state)
{
    wholeDocument(state, [](Pair *pair, int round) {
        pair->view->selectAll();
        pair->editor.TextColorChanged(round % 2 == 0 ? 0xff8000 : 0x00ff80);
    });
}

} // namespace

BENCHMARK(cursorMoves)
    ->ArgName("words")
    ->Arg(1)
    ->Arg(4)
    ->Arg(50)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(opening)->Arg(1000)->Arg(100000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(letterSpacing)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(color)->UseManualTime()->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    return floors::runBenchmarks<QApplication>(argc, argv);
}
