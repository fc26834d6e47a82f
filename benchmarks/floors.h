#pragma once

#include <QAbstractTextDocumentLayout>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTextDocument>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

/**
 * What every benchmark shares: pages to work on, floors to compare with, and the way both are
 * measured. A floor is the work that nobody can avoid (a copy, the drawing of the text itself);
 * the ratio to it says more than a time on one machine.
 */
namespace floors {

/** How much text a page holds. */
enum class Fill { Line, Page };

/** A named floor: something to run and to compare with. */
using Floor = std::pair<std::string, std::function<void()>>;

/** Sets \a document to text for a page of \a size, laid out at its width. */
inline void fillDocument(QTextDocument *document, const QSize &size, Fill fill)
{
    const QString words = QStringLiteral("Departures Platform 12 delayed 45 minutes ");
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(std::max(12, size.height() / (fill == Fill::Line ? 20 : 50)));
    document->setDefaultFont(font);
    document->setDocumentMargin(0);
    if (fill == Fill::Page) {
        document->setPlainText(words.repeated(2 + size.width() * size.height() / 4000));
        document->setTextWidth(size.width());
        return;
    }
    QString line = words;
    document->setPlainText(line);
    while (document->idealWidth() < size.width()) {
        line += words;
        document->setPlainText(line);
    }
    // One line only: what does not fit the page is clipped.
    document->setTextWidth(-1);
}

/** Fills \a canvas with \a ground and draws \a document on it, clipped to the canvas. */
inline void drawDocument(QTextDocument *document, QImage *canvas, const QColor &ground)
{
    canvas->fill(ground);
    QPainter painter(canvas);
    document->drawContents(&painter, canvas->rect());
}

/** The picture of a page of white text, as a node gets it. */
inline QImage pageImage(const QSize &size, Fill fill, const QColor &ground = Qt::transparent)
{
    QTextDocument document;
    fillDocument(&document, size, fill);
    QImage image(size, QImage::Format_ARGB32);
    drawDocument(&document, &image, ground);
    return image;
}

/** Rich text of about \a characters whose look changes every \a words * 23 of them. */
inline QString richText(int characters, int words)
{
    QString html = QStringLiteral("<html><body>");
    for (int written = 0, run = 0; written < characters; ++run) {
        if (run % 3 == 0) {
            html += QStringLiteral("<p>");
        }
        const QString color = run % 2 == 0 ? QStringLiteral("#ffffff") : QStringLiteral("#ffb000");
        html += QStringLiteral("<span style=\"font-family:'DejaVu Sans'; font-size:%1pt; color:%2; "
                               "font-weight:%3\">%4</span>")
                    .arg(14 + run % 3)
                    .arg(color)
                    .arg(run % 3 == 1 ? 600 : 400)
                    .arg(QStringLiteral("Departures platform 12 ").repeated(words));
        written += 23 * words;
    }
    return html + QStringLiteral("</body></html>");
}

/** The middle of \a values, which must not be empty. */
inline double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/**
 * Seconds that one call of \a work takes right after another: whatever ran before, all work and
 * all floors find the caches as they themselves leave them.
 */
template <class Work>
double secondsOf(const Work &work)
{
    work();
    QElapsedTimer timer;
    timer.start();
    work();
    benchmark::ClobberMemory();
    return double(timer.nsecsElapsed()) * 1e-9;
}

/**
 * Measures beside floors, in turns, so that a noisy moment hits all of them alike: \a measure gives
 * the seconds of one round. The benchmark must use manual time. Counters: "median_us", and per
 * floor NAME its median time "NAME_us" and "x_NAME", the median over that of the floor.
 */
template <class Measure>
void measureBesideFloors(benchmark::State &state, const Measure &measure,
                         const std::vector<Floor> &others)
{
    std::vector<double> times;
    std::vector<std::vector<double>> floorTimes(others.size());
    for (auto round : state) {
        static_cast<void>(round);
        for (size_t i = 0; i < others.size(); ++i) {
            floorTimes[i].push_back(secondsOf(others[i].second));
        }
        times.push_back(measure());
        state.SetIterationTime(times.back());
    }
    const double time = median(times);
    state.counters["median_us"] = time * 1e6;
    for (size_t i = 0; i < others.size(); ++i) {
        const double floor = median(floorTimes[i]);
        state.counters[others[i].first + "_us"] = floor * 1e6;
        state.counters["x_" + others[i].first] = time / floor;
    }
}

/** Measures the time of \a work, as measureBesideFloors() does. */
template <class Work>
void besideFloors(benchmark::State &state, const Work &work, const std::vector<Floor> &others)
{
    measureBesideFloors(
        state, [&work] { return secondsOf(work); }, others);
}

/** The body of every benchmark's main(): a program without a screen. */
template <class Application = QGuiApplication>
int runBenchmarks(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const Application application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}

} // namespace floors
