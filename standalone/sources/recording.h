#pragma once

#include "sourcereader.h"

#include <QElapsedTimer>
#include <QFile>

namespace sources {

/** Writes what a source delivers with its time, one line of JSON each; see ReplayReader. */
class Recording
{
public:
    /** Goes on at the end of the file. What cannot be written is logged, and recording ends. */
    explicit Recording(const QString &fileName);

    void add(const Reading &reading);

private:
    QFile m_file;
};

/**
 * Plays a recording instead of the source that was recorded: values and errors, in the times that
 * they came in. The last value stays at the end.
 */
class ReplayReader : public SourceReader
{
    Q_OBJECT

public:
    using SourceReader::SourceReader;

    void open() override;
    void read() override;
    [[nodiscard]] int nextInterval() const override;
    [[nodiscard]] bool isKept() const override { return false; }
    [[nodiscard]] bool backsOff() const override { return false; }

private:
    [[nodiscard]] QByteArray nextLine();

    QByteArray m_lines;
    QString m_error; ///< Why there are no lines.
    int m_at = 0;
    int m_number = 0;        ///< Of the line that was read last.
    qint64 m_firstTime = -1; ///< Of the first reading, in milliseconds since 1970.
    QElapsedTimer m_playing; ///< Since then.
};

} // namespace sources
