// The page image of a document that is being edited, beside its floor: filling an image and drawing
// the contents of a document that is laid out at the page's width already. The document is as long
// as the row says; the floor draws the same first page.

#include "contentplacement.h"
#include "documentsetup.h"
#include "itemdocument.h"
#include "pagerenderer.h"

#include <QGuiApplication>
#include <QPainter>
#include <QTextCursor>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <vector>

using namespace lctrlsex;

namespace {

using Clock = std::chrono::steady_clock;

QString longText(int paragraphs)
{
    QString html;
    for (int i = 0; i < paragraphs; ++i) {
        html += QStringLiteral("<p style=\"margin:0\"><span style=\"font-family:'DejaVu Sans';"
                               "font-size:16pt;color:#ffffff\">Departures from platform %1 are "
                               "</span><span style=\"font-family:'DejaVu Sans';font-size:16pt;"
                               "color:#ffb000\">delayed by %2 minutes</span></p>")
                    .arg(i)
                    .arg(i % 60);
    }
    return html;
}

void loadForEditing(ItemDocument *document, int paragraphs)
{
    prepareView(document, {});
    document->setHtml(longText(paragraphs));
}

PageStyle styleFor(const benchmark::State &state)
{
    PageStyle style;
    style.size = QSize(int(state.range(0)), int(state.range(1)));
    style.isTransparent = state.range(3) != 0;
    style.background = QColor(20, 20, 40);
    return style;
}

/** Fill and draw, nothing else. */
void drawFloor(QTextDocument *laidOut, const PageStyle &style)
{
    QImage image(style.size, QImage::Format_ARGB32);
    image.fill(style.isTransparent ? QColor(Qt::transparent) : style.background);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::TextAntialiasing, true);
    laidOut->drawContents(&painter, image.rect());
    painter.end();
    benchmark::DoNotOptimize(image.constBits());
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

/** Runs @p work and @p floor in turn, reports both and the median ratio of the pairs. */
template <typename Work, typename Floor>
void compare(benchmark::State &state, Work work, Floor floor)
{
    std::vector<double> ratios;
    std::vector<double> floors;
    for (auto _ : state) {
        const auto start = Clock::now();
        floor();
        const auto middle = Clock::now();
        work();
        const auto end = Clock::now();
        const double floorTime = std::chrono::duration<double>(middle - start).count();
        const double workTime = std::chrono::duration<double>(end - middle).count();
        floors.push_back(floorTime * 1e6);
        ratios.push_back(workTime / floorTime);
        state.SetIterationTime(workTime);
    }
    state.counters["floor_us"] = median(floors);
    state.counters["ratio"] = median(ratios);
}

/** The page of an unchanged document, as far as fill and draw go, and placed inside the item. */
void pageImage(benchmark::State &state)
{
    const PageStyle style = styleFor(state);
    ItemDocument document;
    loadForEditing(&document, int(state.range(2)));
    ItemDocument laidOut;
    laidOut.loadItem(longText(int(state.range(2))), {});
    laidOut.setTextWidth(style.size.width());
    PageRenderer renderer;
    compare(
        state,
        [&] {
            const QImage page = renderer.topPage(&document, style);
            const QImage placed = placeContent(page, style.size, Qt::AlignVCenter, false);
            benchmark::DoNotOptimize(placed.constBits());
        },
        [&] { drawFloor(&laidOut, style); });
}

/** The same after an edit below the page, which must cost nothing more. */
void pageImageEditBelow(benchmark::State &state)
{
    const PageStyle style = styleFor(state);
    ItemDocument document;
    loadForEditing(&document, int(state.range(2)));
    ItemDocument laidOut;
    laidOut.loadItem(longText(int(state.range(2))), {});
    laidOut.setTextWidth(style.size.width());
    PageRenderer renderer;
    QTextCursor cursor(&document);
    cursor.movePosition(QTextCursor::End);
    compare(
        state, [&] { benchmark::DoNotOptimize(renderer.topPage(&document, style).constBits()); },
        [&] {
            drawFloor(&laidOut, style);
            cursor.insertText(QStringLiteral("x"));
            cursor.deletePreviousChar();
        });
}

void sizes(benchmark::internal::Benchmark *bench)
{
    bench->ArgNames({"w", "h", "paragraphs", "transparent"})->UseManualTime();
    const std::vector<std::vector<int64_t>> pages{{256, 64}, {1920, 1080}, {3840, 2160}};
    for (const auto &page : pages) {
        for (const int64_t paragraphs : {200, 2000}) {
            for (const int64_t transparent : {0, 1}) {
                bench->Args({page[0], page[1], paragraphs, transparent});
            }
        }
    }
    bench->Unit(benchmark::kMicrosecond);
}

BENCHMARK(pageImage)->Apply(sizes);
BENCHMARK(pageImageEditBelow)->Apply(sizes);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
