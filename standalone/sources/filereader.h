#pragma once

#include "sourcereader.h"

#include <QElapsedTimer>

class QFileSystemWatcher;
class QTimer;

namespace sources {

/** What tells one content of a file from another without reading it. */
struct FileStamp
{
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = -1;
    qint64 changed = 0; ///< Nanoseconds.

    [[nodiscard]] bool operator==(const FileStamp &other) const;
    [[nodiscard]] bool operator!=(const FileStamp &other) const { return !(*this == other); }
};

/**
 * A CSV, text or JSON file. It is read when it changes, and looked at from time to time besides,
 * because not every file system tells. A file that is being written is read when it rests: what was
 * read counts only when nothing changed from before the first byte to behind the last one.
 */
class FileReader : public SourceReader
{
    Q_OBJECT

public:
    FileReader(const SourceSettings &settings, const SourceContext &context);

    void open() override;
    void read() override;
    [[nodiscard]] int nextInterval() const override;
    [[nodiscard]] bool backsOff() const override { return false; }

private:
    void attempt();
    void tryAgain();
    void end(const Reading &reading);
    [[nodiscard]] QByteArray readAll(QString *error) const;
    [[nodiscard]] QString format() const;
    void watch();

    const QString m_fileName;
    FileStamp m_read;   ///< Of the content that was read last.
    FileStamp m_broken; ///< Of the content that could not be understood, and why.
    QString m_brokenReason;
    QElapsedTimer m_attempts;
    QFileSystemWatcher *m_watcher = nullptr;
    QTimer *m_quiet = nullptr; ///< Runs while changes are still coming in.
};

} // namespace sources
