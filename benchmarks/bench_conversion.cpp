#include "documentconversion.h"
#include "floors.h"
#include "openitem.h"
#include "texteditthread.h"

#include <QAbstractEventDispatcher>
#include <QApplication>

using floors::Floor;

namespace {

constexpr int Characters = 100 * 1000;
constexpr int Words = 4;

void colors(benchmark::State &state)
{
    const QString html = asStored(floors::richText(Characters, Words));
    const Floor throughQt{"setHtml_toHtml", [&html] {
                              QTextDocument document;
                              document.setHtml(html);
                              benchmark::DoNotOptimize(document.toHtml().size());
                          }};
    const lctrlsex::StopFlag stop(false);
    floors::besideFloors(state,
                         [&] {
                             benchmark::DoNotOptimize(lctrlsex::convertColors(
                                 html, lctrlsex::ColorConversion::Flip, stop, {}));
                         },
                         {throughQt});
}

/** The longest that the event loop stands still, from the command until the result is there. */
double longestGap(TextEdit *editor, TextOperatType type)
{
    QElapsedTimer timer;
    qint64 longest = 0;
    const auto *dispatcher = QAbstractEventDispatcher::instance();
    const QObject scope;
    QObject::connect(dispatcher, &QAbstractEventDispatcher::awake, &scope,
                     [&timer] { timer.start(); });
    QObject::connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, &scope, [&] {
        if (!editor->CanConvertText()) { // else the result was applied
            longest = std::max(longest, timer.nsecsElapsed());
        }
    });
    timer.start();
    editor->ConvertText(type);
    while (!editor->CanConvertText()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return double(longest) * 1e-9;
}

void gap(benchmark::State &state)
{
    OpenItem item({384, 128}, floors::richText(Characters, Words));
    TextEdit &editor = item.editor;
    const LRichViewEdit *view = item.view;
    const Floor clone{"clone", [view] {
                          delete view->document()->clone();
                      }};
    const auto type = TextOperatType(state.range(0));
    floors::measureBesideFloors(state,
                                [&] {
                                    if (!item.node.GetTextAntialias()) {
                                        editor.ConvertText(DocAntialias); // on again, at once
                                    }
                                    QCoreApplication::processEvents(); // what the round before left
                                    clone.second(); // its caches, as it finds them itself
                                    return longestGap(&editor, type);
                                },
                                {clone});
}

} // namespace

BENCHMARK(colors)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(gap)
    ->ArgName("type")
    ->Arg(ColorFlip)
    ->Arg(DocAntialias)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    return floors::runBenchmarks<QApplication>(argc, argv);
}
