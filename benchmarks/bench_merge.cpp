#include "floors.h"
#include "fragmentmerge.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextCursor>

namespace {

constexpr int Rounds = 31; // most of a round is not counted, so that a time would be no limit

/** Fills @p document with runs that look different, or in pairs alike, @p perBlock a paragraph. */
void fill(QTextDocument *document, int runs, int perBlock, bool inPairs)
{
    document->clear();
    QTextCursor cursor(document);
    cursor.beginEditBlock();
    for (int run = 0; run < runs; ++run) {
        if (run > 0 && run % perBlock == 0) {
            cursor.insertBlock();
        }
        QTextCharFormat format;
        format.setFontFamily(QStringLiteral("DejaVu Sans"));
        format.setForeground((inPairs ? run / 2 : run) % 2 == 0 ? Qt::white : Qt::yellow);
        format.setFontPointSize(14 + (inPairs ? run / 2 : run) % 3);
        format.setToolTip(QString::number(run % 2)); // what nobody sees keeps the pairs apart
        cursor.insertText(QStringLiteral("platform 12 delayed "), format);
    }
    cursor.endEditBlock();
}

/** Reads the format of every run, as anybody must who compares them. */
void scan(const QTextBlock &block)
{
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        const QTextCharFormat format = fragment.charFormat();
        benchmark::DoNotOptimize(format.font());
        benchmark::DoNotOptimize(format.foreground());
        benchmark::DoNotOptimize(format.background());
        benchmark::DoNotOptimize(fragment.text());
    }
}

/** Seconds that @p work takes; what prepares it is not counted. */
template <class Work>
double secondsOnce(const Work &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    benchmark::ClobberMemory();
    return double(timer.nsecsElapsed()) * 1e-9;
}

/** The median time of the work, and what it is of the median time of a floor. */
void report(benchmark::State &state, const std::vector<double> &times, const std::string &name,
            const std::vector<double> &floorTimes)
{
    state.counters["median_us"] = floors::median(times) * 1e6;
    state.counters[name + "_us"] = floors::median(floorTimes) * 1e6;
    state.counters["x_" + name] = floors::median(times) / floors::median(floorTimes);
}

/** The changes that merging makes, by one who knows them: every second run gets its left's look. */
void write(QTextDocument *document)
{
    QVector<QPair<int, QTextCharFormat>> runs;
    for (auto it = document->firstBlock().begin(); !it.atEnd(); ++it) {
        runs.append({it.fragment().position(), it.fragment().charFormat()});
    }
    QTextCursor cursor(document);
    cursor.beginEditBlock();
    for (int run = 1; run < runs.size(); run += 2) {
        cursor.setPosition(runs.at(run).first);
        cursor.setPosition(runs.at(run).first + 20, QTextCursor::KeepAnchor);
        cursor.setCharFormat(runs.at(run - 1).second);
    }
    cursor.endEditBlock();
}

/** A paragraph of which half the runs look like their neighbour: it can be merged only once. */
void block(benchmark::State &state)
{
    const int runs = int(state.range(0));
    QTextDocument document;
    std::vector<double> times;
    std::vector<double> scans;
    std::vector<double> writes;
    const auto read = [&document] {
        scan(document.firstBlock());
    };
    for (auto round : state) {
        static_cast<void>(round);
        fill(&document, runs, runs, true);
        read(); // nobody pays for cold caches
        scans.push_back(secondsOnce(read));
        writes.push_back(secondsOnce([&document] { write(&document); }));
        fill(&document, runs, runs, true);
        read();
        times.push_back(secondsOnce([&document] { lctrlsex::smartMerge(&document); }));
        state.SetIterationTime(times.back());
    }
    report(state, times, "scan", scans);
    report(state, times, "write", writes);
}

/** Lays nothing out: the work of a layout would leave the caches cold in long documents only. */
class NoLayout : public QAbstractTextDocumentLayout
{
public:
    using QAbstractTextDocumentLayout::QAbstractTextDocumentLayout;
    void draw(QPainter *, const PaintContext &) override {}
    int hitTest(const QPointF &, Qt::HitTestAccuracy) const override { return 0; }
    int pageCount() const override { return 1; }
    QSizeF documentSize() const override { return {}; }
    QRectF frameBoundingRect(QTextFrame *) const override { return {}; }
    QRectF blockBoundingRect(const QTextBlock &) const override { return {}; }

protected:
    void documentChanged(int, int, int) override {}
};

/** Somebody who types in the middle of a document. */
class Typing
{
public:
    explicit Typing(int characters)
    {
        m_document.setDocumentLayout(new NoLayout(&m_document));
        fill(&m_document, characters / 20, 9, false);
        m_merger.merge();
        m_cursor.setPosition(m_document.characterCount() / 2);
    }

    /** Seconds that merging takes after some keys. */
    double type()
    {
        double seconds = 0;
        for (int key = 0; key < 50; ++key) {
            m_cursor.insertText(QStringLiteral("x"));
            seconds += secondsOnce([this] { m_merger.merge(); });
        }
        for (int key = 0; key < 50; ++key) {
            m_cursor.deletePreviousChar();
        }
        m_merger.merge();
        return seconds;
    }

private:
    QTextDocument m_document;
    lctrlsex::FragmentMerger m_merger{&m_document};
    QTextCursor m_cursor{&m_document};
};

/** What follows a key, beside the same in a document of 1 kB. */
void key(benchmark::State &state)
{
    Typing typing{int(state.range(0))};
    Typing little{1000};
    std::vector<double> times;
    std::vector<double> floorTimes;
    for (auto round : state) {
        static_cast<void>(round);
        floorTimes.push_back(little.type());
        times.push_back(typing.type());
        state.SetIterationTime(times.back());
    }
    report(state, times, "1kB", floorTimes);
}

} // namespace

BENCHMARK(block)->Arg(50)->Arg(500)->Arg(5000)->UseManualTime()->Iterations(Rounds)->Unit(
    benchmark::kMicrosecond);
BENCHMARK(key)
    ->Arg(1000)
    ->Arg(100 * 1000)
    ->Arg(1000 * 1000)
    ->UseManualTime()
    ->Iterations(Rounds)
    ->Unit(benchmark::kMicrosecond);

int main(int argc, char **argv)
{
    return floors::runBenchmarks(argc, argv);
}
