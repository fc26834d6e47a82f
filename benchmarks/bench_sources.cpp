#include "floors.h"
#include "reply.h"
#include "sourcemanager.h"

#include <QFile>
#include <QTemporaryDir>

#include <malloc.h>

#include <cstring>

using namespace sources;

namespace {

constexpr int Rows = 1000000;
constexpr int Rounds = 5;

QByteArray manyRows()
{
    QByteArray csv = "id,name,city,price,note\n";
    for (int i = 0; i < Rows; ++i) {
        csv += QByteArray::number(i) + ",Platform " + QByteArray::number(i % 97) + ",Hamburg," +
               QByteArray::number(i % 1000) + ".50,\"on time, free\"\n";
    }
    return csv;
}

/** Nobody can find rows without looking at each byte. */
void findLines(const QByteArray &csv)
{
    int lines = 0;
    const char *at = csv.constData();
    const char *const end = at + csv.size();
    while (at < end && (at = static_cast<const char *>(std::memchr(at, '\n', size_t(end - at))))) {
        ++at;
        ++lines;
    }
    benchmark::DoNotOptimize(lines);
}

double allocatedMegabytes()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks + info.hblkhd) / 1e6;
}

void readCsv(benchmark::State &state)
{
    const QByteArray csv = manyRows();
    const StopFlag stop(false);
    const double before = allocatedMegabytes();
    const Reply kept = parseReply(csv, QStringLiteral("csv"), SourceSettings(), stop);
    state.counters["file_MB"] = double(csv.size()) / 1e6;
    state.counters["table_MB"] = allocatedMegabytes() - before;
    floors::besideFloors(
        state,
        [&] {
            benchmark::DoNotOptimize(
                parseReply(csv, QStringLiteral("csv"), SourceSettings(), stop).value.size());
        },
        {{"memchr", [&csv] {
              findLines(csv);
          }}});
}

/** A recording of some seconds with a new value each hundredth of a second. */
void writeRecording(const QString &fileName, int lines)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly)) {
        return;
    }
    const QDateTime start = QDateTime::fromMSecsSinceEpoch(0, Qt::UTC);
    for (int i = 0; i < lines; ++i) {
        file.write("{\"time\":\"" + start.addMSecs(i * 10).toString(Qt::ISODateWithMs).toLatin1() +
                   "\",\"value\":{\"number\":" + QByteArray::number(i) + "}}\n");
    }
}

/** Ten sources of a hundred values a second each, from their threads to the configuration. */
void thousandUpdates(benchmark::State &state)
{
    constexpr int lines = 300;
    const QTemporaryDir folder;
    writeRecording(folder.filePath(QStringLiteral("record")), lines);
    QVector<SourceSettings> settings(10);
    for (int i = 0; i < settings.size(); ++i) {
        settings[i].name = QStringLiteral("source %1").arg(i);
        settings[i].replay = folder.filePath(QStringLiteral("record"));
    }
    for (auto round : state) {
        static_cast<void>(round);
        SourceManager manager;
        QElapsedTimer elapsed;
        QElapsedTimer since;
        qint64 longest = 0;
        int changes = 0;
        int ended = 0;
        QObject::connect(&manager, &SourceManager::changed, [&](const QStringList &names) {
            for (const QString &name : names) {
                const QString number =
                    manager.snapshot().value(name).value.member(QStringLiteral("number")).text();
                ended += number == QString::number(lines - 1) ? 1 : 0;
                ++changes;
            }
        });
        elapsed.start();
        since.start();
        manager.setSources(settings, SourceContext());
        while (ended < settings.size() && elapsed.elapsed() < 30000) {
            QCoreApplication::processEvents(QEventLoop::AllEvents);
            longest = std::max(longest, since.restart());
        }
        state.SetIterationTime(double(elapsed.nsecsElapsed()) * 1e-9);
        state.counters["updates_s"] = double(changes) * 1000 / double(elapsed.elapsed());
        state.counters["gap_ms"] = double(longest);
    }
}

BENCHMARK(readCsv)->UseManualTime()->Iterations(Rounds)->Unit(benchmark::kMillisecond);
BENCHMARK(thousandUpdates)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    return floors::runBenchmarks(argc, argv);
}
