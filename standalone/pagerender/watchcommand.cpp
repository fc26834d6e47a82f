#include "watchcommand.h"

#include "commandline.h"
#include "itemrenderer.h"
#include "lcontrollernode.h"
#include "ltexteffectnode.h"
#include "programmefile.h"
#include "programmeitems.h"
#include "report.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <utility>

using player::ItemRenderer;
using player::Problem;

namespace {

/** What changes within this time is written together. */
constexpr int WriteDelay = 10;
/** Editors replace a file in several steps. */
constexpr int ReloadDelay = 150;

} // namespace

ProgrammeWatch::ProgrammeWatch(const CommandLine &line, Report *report)
    : m_line(line)
    , m_report(report)
    , m_writer(line, report)
    , m_data(line, report)
{
    m_write.setSingleShot(true);
    m_write.setInterval(WriteDelay);
    m_reload.setSingleShot(true);
    m_reload.setInterval(ReloadDelay);
    connect(&m_write, &QTimer::timeout, this, &ProgrammeWatch::writeChanged);
    connect(&m_reload, &QTimer::timeout, this, &ProgrammeWatch::reload);
    connect(&m_data, &ProgrammeData::changed, this, &ProgrammeWatch::note);
    const auto later = [this] {
        if (!m_reload.isActive()) { // a busy folder is not to put it off for ever
            m_reload.start();
        }
    };
    connect(&m_file, &QFileSystemWatcher::fileChanged, this, later);
    connect(&m_file, &QFileSystemWatcher::directoryChanged, this, later);
}

ProgrammeWatch::~ProgrammeWatch() = default;

bool ProgrammeWatch::start()
{
    if (!m_writer.prepareFolder() || !load()) {
        return false;
    }
    m_data.waitUntilRead();
    for (int i = 0; i < m_items.size(); ++i) {
        write(i);
    }
    watchFile();
    reload(); // when it was written meanwhile
    return true;
}

bool ProgrammeWatch::load()
{
    m_modified = QFileInfo(m_line.programme).lastModified();
    ReadProgramme read = loadProgramme(m_line.programme);
    if (read.controller == nullptr) {
        m_report->problem(
            {Problem::Error, read.error.placeText(), read.error.reason, read.error.remedy});
        return false;
    }
    const bool isGood = m_data.start(*read.controller);
    m_programme = std::move(read.controller);
    m_items = wantedItems(m_programme.get(), m_line, m_report);
    m_shown.clear();
    return isGood;
}

/** A file that is replaced is another one: it has to be watched anew, and so has its folder. */
void ProgrammeWatch::watchFile()
{
    const QFileInfo file(m_line.programme);
    m_file.addPath(file.absolutePath());
    if (file.exists()) {
        m_file.addPath(file.absoluteFilePath());
    }
}

void ProgrammeWatch::reload()
{
    const QDateTime now = QFileInfo(m_line.programme).lastModified();
    watchFile();
    if (now == m_modified) {
        return; // something else in its folder
    }
    if (load()) {
        m_writer.keepOnly(m_items);
        for (int i = 0; i < m_items.size(); ++i) {
            write(i);
        }
    }
}

void ProgrammeWatch::note(const QStringList &names)
{
    for (const QString &name : names) {
        m_changed.insert(name);
    }
    if (!m_write.isActive()) {
        m_write.start();
    }
}

void ProgrammeWatch::writeChanged()
{
    const QSet<QString> changed = std::exchange(m_changed, {});
    for (int i = 0; i < m_items.size(); ++i) {
        const auto shown = m_shown.find(i);
        if (shown != m_shown.end() && shown->second.intersects(changed)) {
            write(i);
        }
    }
}

void ProgrammeWatch::write(int item)
{
    const player::ProgrammeItem &wanted = m_items.at(item);
    const sources::DataSnapshot data = m_data.snapshot();
    ItemRenderer renderer(wanted.node, wanted.place, m_line.size, data);
    const QStringList names = m_data.names();
    // Without any data it cannot be told what an item shows.
    m_shown[item] = data.isEmpty() ? QSet<QString>(names.begin(), names.end()) : renderer.sources();
    m_writer.write(&renderer, wanted.node->name(), wanted.place);
}

bool watchProgramme(const CommandLine &line, Report *report)
{
    ProgrammeWatch watch(line, report);
    return watch.start() && QCoreApplication::exec() == 0;
}
