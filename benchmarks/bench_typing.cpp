#include "documentstorage.h"
#include "floors.h"
#include "htmlunits.h"
#include "openitem.h"

#include <QApplication>
#include <QFile>
#include <QTextBlock>

#include <cstring>

using floors::Floor;

namespace {

/** Paragraphs of about a hundred characters in three looks. */
QString threeLooks(int characters)
{
    QString html = QStringLiteral("<html><body>");
    for (int written = 0; written < characters; written += 102) {
        html += QStringLiteral(
            "<p><span style=\"font-family:'DejaVu Sans'; font-size:14pt; "
            "color:#ffffff\">Departures "
            "from platform twelve </span><span style=\"font-family:'DejaVu Sans'; font-size:14pt; "
            "font-weight:600; color:#ffb000\">delayed by 45 minutes </span><span "
            "style=\"font-family:'DejaVu Sans'; font-size:12pt; color:#00ff80\">please mind the "
            "announcements there</span></p>");
    }
    return html + QStringLiteral("</body></html>");
}

/** An item of the smallest usual size, so that most of a text lies below its first page. */
struct Item : OpenItem
{
    explicit Item(int characters)
        : OpenItem({256, 64}, threeLooks(characters))
    {}
};

void typeInto(QTextEdit *view)
{
    press(view, Qt::Key_X, QStringLiteral("x"));
}

QString tableOf(int rows, int columns)
{
    const QString cell = QStringLiteral("<td width=\"%1\"><p><span style=\"font-family:'DejaVu "
                                        "Sans'; font-size:14pt; color:#ffb000\">")
                             .arg(600 / columns);
    QString html = QStringLiteral("<html><body><table border=\"1\" width=\"600\">");
    for (int row = 0; row < rows; ++row) {
        html += QLatin1String("<tr>");
        for (int column = 0; column < columns; ++column) {
            html +=
                cell + QString::number(row * columns + column) + QLatin1String("</span></p></td>");
        }
        html += QLatin1String("</tr>");
    }
    return html + QStringLiteral("</table></body></html>");
}

enum Place { Start, BelowPage, End };

void placeCursor(QTextEdit *view, Place place)
{
    QTextCursor cursor(view->document());
    if (place == End) {
        cursor.movePosition(QTextCursor::End);
    } else {
        const QTextBlock block = view->document()->findBlockByNumber(place == Start ? 0 : 7);
        cursor.setPosition(block.position() + 10);
    }
    view->setTextCursor(cursor);
    QCoreApplication::processEvents();
}

/** A key with everything that the editor does for it, beside one in a bare view. */
void key(benchmark::State &state)
{
    Item item(int(state.range(0)));
    const auto place = Place(state.range(1));
    placeCursor(item.view, place);
    placeCursor(&item.bare, place);
    const Floor bare{"bare", [&item] {
                         typeInto(&item.bare);
                     }};
    floors::besideFloors(state, [&item] { typeInto(item.view); }, {bare});
}

/** The same in a cell of a table, all of which the text engine lays out again at every key. */
void keyInTable(benchmark::State &state)
{
    OpenItem item({600, 400}, tableOf(int(state.range(0)), int(state.range(1))));
    for (QTextEdit *view : {static_cast<QTextEdit *>(item.view), &item.bare}) {
        QTextCursor cursor(view->document());
        cursor.movePosition(QTextCursor::NextBlock, QTextCursor::MoveAnchor, 12);
        view->setTextCursor(cursor);
        QCoreApplication::processEvents();
    }
    const Floor bare{"bare", [&item] {
                         typeInto(&item.bare);
                     }};
    floors::besideFloors(state, [&item] { typeInto(item.view); }, {bare});
}

/** What a push hands over, copied. */
struct HandedOver
{
    explicit HandedOver(const LTextEffectNode &node)
        : texts({node.GetRawHtmlText(), node.GetPlayText(), node.GetHtmlText()})
    {}

    void copy() const
    {
        for (const QString &text : texts) {
            QString to(text.size(), Qt::Uninitialized);
            std::memcpy(to.data(), text.constData(), size_t(text.size()) * sizeof(QChar));
            benchmark::DoNotOptimize(to.constData());
        }
    }

    QStringList texts;
};

/** The push alone, after a change of one character. */
void push(benchmark::State &state)
{
    Item item(int(state.range(0)));
    const auto place = Place(state.range(1));
    placeCursor(item.view, place);
    typeInto(item.view);
    const HandedOver texts(item.node);
    std::vector<double> times;
    std::vector<double> copies;
    for (auto round : state) {
        static_cast<void>(round);
        item.view->insertPlainText(QStringLiteral("x"));
        QElapsedTimer timer;
        timer.start();
        item.editor.TextDrawImage();
        times.push_back(double(timer.nsecsElapsed()) * 1e-9);
        state.SetIterationTime(times.back());
        QCoreApplication::processEvents();
        copies.push_back(floors::secondsOf([&texts] { texts.copy(); }));
    }
    state.counters["median_us"] = floors::median(times) * 1e6;
    state.counters["memcpy_us"] = floors::median(copies) * 1e6;
    state.counters["x_memcpy"] = floors::median(times) / floors::median(copies);
}

/** Memory of this process that is in use, in kB. */
double residentKilobytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    return file.readAll().split(' ').value(1).toDouble() * 4;
}

/** What memory grows by over many keys, half of which take back what the others typed. */
double growthOver(int keys, QTextEdit *view)
{
    const auto typeRounds = [view](int rounds) {
        for (int round = 0; round < rounds; ++round) {
            for (int i = 0; i < 25; ++i) {
                typeInto(view);
            }
            for (int i = 0; i < 25; ++i) {
                press(view, Qt::Key_Backspace);
            }
        }
    };
    typeRounds(qMax(1, keys / 500)); // what is made once
    const double before = residentKilobytes();
    typeRounds(keys / 50);
    return residentKilobytes() - before;
}

/** The bare view keeps what it needs for undo, so it grows too. */
void memory(benchmark::State &state)
{
    Item item(1000);
    for (auto round : state) {
        static_cast<void>(round);
        state.counters["grown_kB"] = growthOver(int(state.range(0)), item.view);
        state.counters["bare_grown_kB"] = growthOver(int(state.range(0)), &item.bare);
    }
}

/** What a push is made of, for the same document without any care. */
void pieces(benchmark::State &state)
{
    Item item(int(state.range(0)));
    QTextDocument *document = item.view->document();
    const QString html = document->toHtml();
    const std::vector<Floor> parts = {{"toHtml",
                                       [document] {
                                           benchmark::DoNotOptimize(document->toHtml());
                                       }},
                                      {"encode",
                                       [&html] {
                                           benchmark::DoNotOptimize(lctrlsex::encodeDocument(html));
                                       }},
                                      {"units",
                                       [&html] {
                                           benchmark::DoNotOptimize(
                                               lctrlsex::replacePtWithPx(html));
                                       }},
                                      {"plain",
                                       [document] {
                                           benchmark::DoNotOptimize(document->toPlainText());
                                       }},
                                      {"unchanged", [&item] {
                                           item.editor.TextDrawImage();
                                       }}};
    floors::besideFloors(
        state, [&item] { benchmark::DoNotOptimize(item.editor.getIndexImage(0)); }, parts);
}

} // namespace

static void sizesAndPlaces(benchmark::internal::Benchmark *benchmark)
{
    for (const int size : {1000, 100 * 1000}) {
        for (const Place place : {Start, BelowPage, End}) {
            benchmark->Args({size, place});
        }
    }
}

BENCHMARK(key)
    ->ArgNames({"characters", "place"})
    ->Apply(sizesAndPlaces)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(keyInTable)
    ->ArgNames({"rows", "columns"})
    ->Args({100, 10})
    ->Args({1000, 10})
    ->Args({1000, 20})
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(push)
    ->ArgNames({"characters", "place"})
    ->Apply(sizesAndPlaces)
    ->Args({1000 * 1000, End})
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(pieces)
    ->ArgName("characters")
    ->Arg(1000)
    ->Arg(100 * 1000)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(memory)
    ->ArgName("keys")
    ->Arg(qEnvironmentVariableIsSet("LCTRLSEX_THOROUGH") ? 100 * 1000 : 2000)
    ->Iterations(1)
    ->Unit(benchmark::kSecond);

int main(int argc, char **argv)
{
    return floors::runBenchmarks<QApplication>(argc, argv);
}
