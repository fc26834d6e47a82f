#include "pagefiles.h"

#include "itemrenderer.h"
#include "lappconfig.h"
#include "ltexteffectnode.h"
#include "processidentity.h"

#include <QDir>

namespace workbench {

namespace {

constexpr int MostFiles = 500;
// Little compression: the files live for minutes and are written while somebody works.
constexpr int PngQuality = 90;
const QString PagesKind = QStringLiteral("DynamicData");

QString allFolders()
{
    return LAppConfig::AppDataDir() + QStringLiteral("/pages");
}

void removeStaleFolders()
{
    const QStringList folders = QDir(allFolders()).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &folder : folders) {
        bool isNumber = false;
        const qint64 id = folder.toLongLong(&isNumber);
        if (isNumber && !isRunning({id, 0, {}, {}})) {
            QDir(allFolders() + QLatin1Char('/') + folder).removeRecursively();
        }
    }
}

} // namespace

PageFiles::PageFiles(QObject *parent)
    : QObject(parent)
    , m_folder(QStringLiteral("%1/%2").arg(allFolders()).arg(thisProcess().id))
{
    removeStaleFolders();
    QDir().mkpath(m_folder);
    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, &PageFiles::writeNext);
}

PageFiles::~PageFiles()
{
    clear();
    QDir(m_folder).removeRecursively();
}

void PageFiles::start(LTextEffectNode *node, std::shared_ptr<player::ItemRenderer> renderer)
{
    clear();
    m_node = node;
    m_renderer = std::move(renderer);
    ++m_set;
    m_timer.start();
}

void PageFiles::clear()
{
    m_timer.stop();
    m_renderer.reset();
    if (m_node) {
        m_node->SetFilePath(PagesKind, {});
    }
    m_node = nullptr;
    for (const QString &file : qAsConst(m_files)) {
        QFile::remove(file);
    }
    m_files.clear();
}

void PageFiles::writeNext()
{
    const int index = m_files.size();
    if (!m_node || !m_renderer || index >= MostFiles || !m_renderer->hasPage(index)) {
        m_timer.stop();
        m_renderer.reset();
        return;
    }
    const QString name = QStringLiteral("%1/%2-%3.png").arg(m_folder).arg(m_set).arg(index + 1);
    if (!m_renderer->page(index).save(name, "PNG", PngQuality)) {
        m_timer.stop(); // no room: the editor shows the top of the text instead
        QFile::remove(name);
        return;
    }
    m_files.append(name);
    m_node->SetFilePath(PagesKind, m_files);
}

} // namespace workbench
