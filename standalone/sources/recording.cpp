#include "recording.h"

#include "movedsources.h"
#include "sourcelogging.h"
#include "sourcetexts.h"
#include "systemreason.h"

#include <QDateTime>

namespace sources {

namespace {

constexpr qint64 LargestRecording = 1 << 30;
const QString Time = QStringLiteral("time");
const QString Value = QStringLiteral("value");
const QString Error = QStringLiteral("error");

qint64 timeOf(const DataValue &line)
{
    return QDateTime::fromString(line.member(Time).text(), Qt::ISODateWithMs).toMSecsSinceEpoch();
}

} // namespace

Recording::Recording(const QString &fileName)
    : m_file(fileName)
{
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered)) {
        qCWarning(lcSources, "%s: %s", qUtf8Printable(fileName),
                  qUtf8Printable(m_file.errorString()));
    }
}

void Recording::add(const Reading &reading)
{
    if (!m_file.isOpen() || reading.outcome == Reading::Unchanged) {
        return;
    }
    const QString now = QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs);
    QVector<DataValue::Member> members{{Time, DataValue::fromText(now)}};
    if (reading.outcome == Reading::Failed) {
        members.append({Error, DataValue::fromText(reading.error)});
    } else {
        members.append({Value, reading.value});
    }
    const QByteArray line = toJson(DataValue::fromRecord(members)) + '\n';
    if (m_file.write(line) != line.size()) {
        qCWarning(lcSources, "%s: %s", qUtf8Printable(m_file.fileName()),
                  qUtf8Printable(m_file.errorString()));
        m_file.close();
    }
}

void ReplayReader::open()
{
    QFile file(fullFileName(context().folder, settings().replay));
    if (!file.open(QIODevice::ReadOnly)) {
        m_error = SourceTexts::tr("the recording cannot be read: %1")
                      .arg(systemReason(file.errorString()));
        return;
    }
    m_lines = file.read(LargestRecording);
    // A line that the recorder could not end is none.
    m_lines.truncate(m_lines.lastIndexOf('\n') + 1);
    if (m_lines.isEmpty()) {
        m_error = SourceTexts::tr("the recording is empty");
    }
}

QByteArray ReplayReader::nextLine()
{
    const int end = m_lines.indexOf('\n', m_at);
    const QByteArray line = end < 0 ? QByteArray() : m_lines.mid(m_at, end - m_at);
    m_at = end < 0 ? m_lines.size() : end + 1;
    ++m_number;
    return line;
}

void ReplayReader::read()
{
    if (!m_error.isEmpty()) {
        emit finished(Reading::failed(m_error));
        return;
    }
    Reading reading;
    if (m_at == m_lines.size()) {
        reading.outcome = Reading::Unchanged;
        emit finished(reading);
        return;
    }
    const QByteArray line = nextLine();
    const DataValue played = parseJson(line).value;
    if (!m_playing.isValid()) {
        m_playing.start();
        m_firstTime = timeOf(played);
    }
    reading.bytes = line.size();
    reading.value = played.member(Value);
    reading.error = played.member(Error).text();
    if (reading.value.kind() == DataValue::Kind::Record) {
        reading.outcome = Reading::Arrived;
    } else if (reading.error.isEmpty()) {
        reading.error = SourceTexts::tr("line %1 of the recording is damaged").arg(m_number);
    }
    emit finished(reading);
}

int ReplayReader::nextInterval() const
{
    if (m_at >= m_lines.size()) {
        return -1;
    }
    if (context().replayAtOnce) {
        return 0;
    }
    const int end = m_lines.indexOf('\n', m_at);
    const qint64 next = timeOf(parseJson(m_lines.mid(m_at, end - m_at)).value);
    return int(qBound<qint64>(0, next - m_firstTime - m_playing.elapsed(), 24LL * 3600 * 1000));
}

} // namespace sources
