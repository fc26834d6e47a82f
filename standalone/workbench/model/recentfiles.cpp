#include "recentfiles.h"

#include "lappconfig.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

#include <algorithm>

namespace workbench {

namespace {

constexpr int MostFiles = 10;
const QString RecentKey = QStringLiteral("recentFiles");

QString settingsFile()
{
    return LAppConfig::AppDataDir() + QStringLiteral("/workbench.ini");
}

/** The same for all names of one file; a file that is gone goes by its absolute name. */
QString identityOf(const QString &fileName)
{
    const QFileInfo info(fileName);
    const QString canonical = info.canonicalFilePath();
    return canonical.isEmpty() ? QDir::cleanPath(info.absoluteFilePath()) : canonical;
}

void removeFrom(QStringList *files, const QString &fileName)
{
    const QString identity = identityOf(fileName);
    files->erase(std::remove_if(files->begin(), files->end(),
                                [&](const QString &file) { return identityOf(file) == identity; }),
                 files->end());
}

QStringList read()
{
    return QSettings(settingsFile(), QSettings::IniFormat).value(RecentKey).toStringList();
}

} // namespace

RecentFiles::RecentFiles(QObject *parent)
    : QObject(parent)
    , m_files(read())
{}

QStringList RecentFiles::files() const
{
    QStringList existing;
    for (const QString &file : m_files) {
        if (QFileInfo(file).isFile()) {
            existing.append(file);
        }
    }
    return existing;
}

QStringList RecentFiles::folders() const
{
    QStringList folders;
    for (const QString &file : m_files) {
        folders.append(QFileInfo(file).absolutePath());
    }
    folders.removeDuplicates();
    return folders;
}

void RecentFiles::add(const QString &fileName)
{
    if (fileName.isEmpty()) {
        return;
    }
    // Another window may have added some since.
    QStringList files = read();
    removeFrom(&files, fileName);
    files.prepend(QDir::cleanPath(QFileInfo(fileName).absoluteFilePath()));
    store(files.mid(0, MostFiles));
}

void RecentFiles::remove(const QString &fileName)
{
    QStringList files = read();
    removeFrom(&files, fileName);
    store(files);
}

void RecentFiles::clear()
{
    store({});
}

void RecentFiles::store(const QStringList &files)
{
    QDir().mkpath(LAppConfig::AppDataDir());
    QSettings settings(settingsFile(), QSettings::IniFormat);
    settings.setValue(RecentKey, files);
    m_files = files;
    emit changed();
}

} // namespace workbench
