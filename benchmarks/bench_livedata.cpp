#include "datamodel.h"
#include "floors.h"
#include "inodeclient.h"
#include "itempages.h"
#include "lcontrollernode.h"
#include "livedata.h"
#include "ltexteffectnode.h"
#include "pluginloader.h"
#include "programmedocument.h"
#include "programmeitems.h"

#include <QApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QWidget>

#include <malloc.h>

using namespace workbench;

namespace {

constexpr int Sources = 10;
constexpr int Fields = 2; ///< Of each source.

QString sourceName(int source)
{
    return QStringLiteral("s%1").arg(source);
}

/** Recordings of a new value each hundredth of a second, and an item with a field for each value.
 */
QString writeProgramme(const QTemporaryDir &folder, int lines)
{
    const QDateTime start = QDateTime::fromMSecsSinceEpoch(0, Qt::UTC);
    QFile record(folder.filePath(QStringLiteral("record")));
    QFile programme(folder.filePath(QStringLiteral("p.json")));
    if (!record.open(QIODevice::WriteOnly) || !programme.open(QIODevice::WriteOnly)) {
        return QString();
    }
    for (int i = 0; i < lines; ++i) {
        const QByteArray value = QByteArray::number(i);
        record.write("{\"time\":\"" +
                     start.addMSecs(i * 10LL).toString(Qt::ISODateWithMs).toLatin1() +
                     "\",\"value\":{\"f0\":" + value + ",\"f1\":" + value + "}}\n");
    }
    QJsonArray sources;
    QString html;
    for (int i = 0; i < Sources; ++i) {
        sources.append(QJsonObject{{QStringLiteral("name"), sourceName(i)},
                                   {QStringLiteral("type"), 2},
                                   {QStringLiteral("file"), QStringLiteral("none.json")},
                                   {QStringLiteral("replay"), QStringLiteral("record")}});
        for (int f = 0; f < Fields; ++f) {
            html += QStringLiteral("<img src=\"data://bindKey/%1/f%2.png\" title=\"%1:f%2\" "
                                   "alt=\"\"> ")
                        .arg(sourceName(i))
                        .arg(f);
        }
    }
    const QJsonObject item{
        {QStringLiteral("name"), QStringLiteral("Item")},
        {QStringLiteral("document"), QString(QStringLiteral("<p>%1</p>").arg(html))}};
    const QJsonObject frame{{QStringLiteral("name"), QStringLiteral("Frame")},
                            {QStringLiteral("width"), 256},
                            {QStringLiteral("height"), 64},
                            {QStringLiteral("items"), QJsonArray{item}}};
    const QJsonObject screen{{QStringLiteral("name"), QStringLiteral("Screen")},
                             {QStringLiteral("frames"), QJsonArray{frame}}};
    const QJsonObject root{{QStringLiteral("format"), QStringLiteral("lctrlsex-programme")},
                           {QStringLiteral("version"), 1},
                           {QStringLiteral("sources"), sources},
                           {QStringLiteral("screens"), QJsonArray{screen}}};
    programme.write(QJsonDocument(root).toJson());
    return programme.fileName();
}

double allocatedKilobytes()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks + info.hblkhd) / 1e3;
}

/** A thousand updates a second, shown in pages, in the data panel's model and in the editor. */
void thousandUpdates(benchmark::State &state)
{
    const int lines = int(state.range(0)) / Sources;
    const LoadedPlugin plugin = loadPlugin({QStringLiteral(LCTRLSEX_PLUGIN)});
    const QTemporaryDir folder;
    const QString fileName = writeProgramme(folder, lines);
    for (auto round : state) {
        static_cast<void>(round);
        ProgrammeDocument document;
        if (plugin.client == nullptr || document.open(fileName).isSet()) {
            state.SkipWithError("nothing to measure");
            return;
        }
        LiveData data(&document);
        ItemPages pages(&document, &data);
        const DataModel model(&data);
        int shown = 0;
        QObject::connect(&pages, &ItemPages::pagesChanged, [&](LTextEffectNode *node) {
            shown += pages.page(node, 0).isNull() ? 0 : 1;
        });
        int updates = 0;
        QObject::connect(data.manager(), &sources::SourceManager::changed,
                         [&updates](const QStringList &names) { updates += names.size(); });
        LTextEffectNode *const item = player::programmeItems(document.controller()).at(0).node;
        plugin.client->Init(item);
        plugin.client->GetClient()->show();
        pages.watch(item);
        const auto value = [&data, lines] {
            const auto last = data.snapshot().value(sourceName(Sources - 1)).value;
            return last.member(QStringLiteral("f0")).text().toInt() * 100 / lines;
        };
        QElapsedTimer elapsed;
        QElapsedTimer since;
        qint64 longest = 0;
        double warm = 0;
        elapsed.start();
        since.start();
        while (value() < 99 && elapsed.elapsed() < lines * 20LL + 10000) {
            QCoreApplication::processEvents(QEventLoop::AllEvents);
            longest = std::max(longest, since.restart());
            warm = warm == 0 && value() >= 30 ? allocatedKilobytes() : warm;
        }
        state.SetIterationTime(double(elapsed.nsecsElapsed()) * 1e-9);
        state.counters["updates_s"] = double(updates) * 1000 / double(elapsed.elapsed());
        state.counters["pages_s"] = double(shown) * 1000 / double(elapsed.elapsed());
        state.counters["gap_ms"] = double(longest);
        state.counters["grown_kB"] = allocatedKilobytes() - warm;
        plugin.client->Finish();
        plugin.client->GetClient()->hide();
    }
}

/** A thousand of them a second: five seconds, half an hour, or as many as were asked for. */
int updateCount()
{
    bool isGiven = false;
    const int count = qEnvironmentVariableIntValue("LCTRLSEX_UPDATES", &isGiven);
    const int usual = qEnvironmentVariableIsSet("LCTRLSEX_THOROUGH") ? 1728000 : 5000;
    return isGiven && count >= Sources ? count : usual;
}

BENCHMARK(thousandUpdates)
    ->ArgName("updates")
    ->Arg(updateCount())
    ->UseManualTime()
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    const QTemporaryDir folder;
    qputenv("LCTRLSEX_DATA_DIR", QFile::encodeName(folder.path()));
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
