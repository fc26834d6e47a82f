#pragma once

#include <QObject>
#include <QStringList>

namespace workbench {

/**
 * The files opened or saved last, newest first, at most ten; kept in the user's workbench.ini.
 * Files are told apart by their canonical path, so that links and ".." make no second entry.
 */
class RecentFiles : public QObject
{
    Q_OBJECT

public:
    explicit RecentFiles(QObject *parent = nullptr);

    /** Absolute names of those that exist now. */
    [[nodiscard]] QStringList files() const;
    /** The folders of all of them, those of files that are gone included, each once. */
    [[nodiscard]] QStringList folders() const;
    /** Puts @p fileName first; an empty name is ignored. */
    void add(const QString &fileName);
    void remove(const QString &fileName);
    void clear();

signals:
    void changed();

private:
    void store(const QStringList &files);

    QStringList m_files;
};

} // namespace workbench
