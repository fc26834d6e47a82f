#include "programmedata.h"

#include "commanddata.h"
#include "commandline.h"
#include "lcontrollernode.h"
#include "report.h"

#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTimer>

#include <algorithm>

using player::Problem;
using sources::SourceHealth;
using sources::SourceSettings;

namespace {

/** A server that is asked for the first time may take that long. */
constexpr int LongestWait = 15000;

} // namespace

ProgrammeData::ProgrammeData(const CommandLine &line, Report *report)
    : m_line(line)
    , m_report(report)
{
    connect(&m_manager, &sources::SourceManager::changed, this, &ProgrammeData::changed);
}

bool ProgrammeData::start(const LControllerNode &programme)
{
    m_given.clear();
    if (!readData(m_line, &m_given, m_report)) {
        return false;
    }
    const bool isFile = m_line.programme != QLatin1String("-");
    sources::SourceContext context;
    context.folder = isFile ? QFileInfo(m_line.programme).absolutePath() : QDir::currentPath();
    context.programme = isFile ? QFileInfo(m_line.programme).absoluteFilePath() : context.folder;
    context.cacheFolder =
        QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + QStringLiteral("/data");
    sources::ReadSources read = sources::readSources(programme, context.folder);
    for (const ProgrammeError &fault : qAsConst(read.faults)) {
        m_report->problem({Problem::Warning, fault.placeText(), fault.reason, fault.remedy});
    }
    QVector<SourceSettings> &list = read.list.sources;
    const auto end = std::remove_if(list.begin(), list.end(), [this](const SourceSettings &source) {
        return m_given.contains(source.name);
    });
    list.erase(end, list.end());
    m_manager.setSources(list, context);
    return record();
}

/** Begins a recording of each source where they are wanted; false when there is no folder for them.
 */
bool ProgrammeData::record()
{
    if (m_line.recordFolder.isEmpty()) {
        return true;
    }
    if (!QDir().mkpath(m_line.recordFolder)) {
        m_report->problem({Problem::Error, m_line.recordFolder,
                           QStringLiteral("the folder for recordings cannot be made"),
                           QStringLiteral("name a folder that you may write to")});
        return false;
    }
    const QStringList running = names();
    for (const QString &name : running) {
        if (sources::DataSource *const source = m_manager.find(name)) {
            source->recordTo(QDir(m_line.recordFolder).filePath(name + QStringLiteral(".jsonl")));
        }
    }
    return true;
}

bool ProgrammeData::isRead() const
{
    const QVector<SourceSettings> settings = m_manager.settings();
    return std::all_of(settings.begin(), settings.end(), [this](const SourceSettings &source) {
        const SourceHealth health = m_manager.health(source.name);
        const bool hasTried = health.state == SourceHealth::Good || !health.error.isEmpty();
        return !source.enabled || hasTried;
    });
}

void ProgrammeData::waitUntilRead()
{
    QEventLoop loop;
    QTimer limit;
    limit.setSingleShot(true);
    connect(&limit, &QTimer::timeout, &loop, &QEventLoop::quit);
    const auto endWhenRead = [this, &loop] {
        if (isRead()) {
            loop.quit();
        }
    };
    connect(&m_manager, &sources::SourceManager::changed, &loop, endWhenRead);
    connect(&m_manager, &sources::SourceManager::healthChanged, &loop, endWhenRead);
    if (!isRead()) {
        limit.start(LongestWait);
        loop.exec();
    }
    connect(&m_manager, &sources::SourceManager::healthChanged, this, &ProgrammeData::tellFailures,
            Qt::UniqueConnection);
    tellFailures(names());
}

QStringList ProgrammeData::names() const
{
    QStringList names;
    const QVector<SourceSettings> settings = m_manager.settings();
    for (const SourceSettings &source : settings) {
        names.append(source.name);
    }
    return names;
}

/** Each failure once, until it is another one or over. */
void ProgrammeData::tellFailures(const QStringList &names)
{
    for (const QString &name : names) {
        const QString error = m_manager.health(name).error;
        if (error != m_told.value(name) && !error.isEmpty()) {
            const bool isStale = m_manager.health(name).state == SourceHealth::Stale;
            m_report->problem(
                {Problem::Warning, QStringLiteral("source %1").arg(name), error,
                 isStale ? QStringLiteral("its last good data is shown")
                         : QStringLiteral("mend the source, or give a file with --data %1=FILE")
                               .arg(name)});
        }
        m_told.insert(name, error);
    }
}

sources::DataSnapshot ProgrammeData::snapshot() const
{
    sources::DataSnapshot all = m_manager.snapshot();
    for (auto it = m_given.cbegin(); it != m_given.cend(); ++it) {
        all.insert(it.key(), it.value());
    }
    return all;
}
