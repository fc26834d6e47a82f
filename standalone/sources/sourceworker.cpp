#include "sourceworker.h"

#include "keyoffer.h"

#include <QThread>

namespace sources {

bool Mailbox::put(const SourceUpdate &update)
{
    std::optional<SourceUpdate> next = update; // swapped, so that the old one goes unlocked
    const QMutexLocker lock(&m_mutex);
    m_update.swap(next);
    return !next.has_value();
}

std::optional<SourceUpdate> Mailbox::take()
{
    std::optional<SourceUpdate> update;
    const QMutexLocker lock(&m_mutex);
    m_update.swap(update);
    return update;
}

SourceWorker::SourceWorker(std::unique_ptr<SourceReader> reader, const SourceSettings &settings,
                           const SourceContext &context, std::shared_ptr<Mailbox> mailbox)
    : m_reader(std::move(reader))
    , m_context(context)
    , m_mailbox(std::move(mailbox))
    , m_cache(settings, context)
    , m_timer(this)
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &SourceWorker::read);
}

SourceWorker::~SourceWorker()
{
    m_cache.flush(); // the application's end may be faster than shutDown()
}

void SourceWorker::start()
{
    connect(m_reader.get(), &SourceReader::finished, this, &SourceWorker::finish);
    connect(m_reader.get(), &SourceReader::due, this, &SourceWorker::refresh);
    m_update.health.state = SourceHealth::Starting;
    if (m_reader->isKept()) {
        m_update.data = m_cache.load();
    }
    if (!m_update.data.value.isMissing()) {
        m_update.keys = offeredKeys(m_update.data.value);
        m_update.health.rows = rowsOf(m_update.data.value);
        ++m_update.dataVersion;
    }
    post();
    m_reader->open();
    read();
}

void SourceWorker::refresh()
{
    m_isDue = m_isReading;
    if (!m_isReading && m_reader != nullptr) {
        read();
    }
}

void SourceWorker::shutDown()
{
    m_timer.stop();
    m_cache.flush();
    m_reader.reset();
    thread()->quit();
}

void SourceWorker::recordTo(const QString &fileName)
{
    m_recording = fileName.isEmpty() ? nullptr : std::make_unique<Recording>(fileName);
    if (m_recording != nullptr && !m_update.data.value.isMissing()) {
        Reading reading;
        reading.outcome = Reading::Arrived;
        reading.value = m_update.data.value;
        m_recording->add(reading);
    }
}

void SourceWorker::read()
{
    m_timer.stop();
    m_isReading = true;
    m_latency.start();
    m_reader->read();
}

void SourceWorker::finish(const Reading &reading)
{
    m_isReading = false;
    if (m_reader->stopFlag()) {
        return;
    }
    if (m_recording != nullptr) {
        m_recording->add(reading);
    }
    if (reading.outcome == Reading::Failed) {
        refuse(reading);
        plan(retryDelay(reading));
    } else {
        accept(reading);
        plan(m_reader->nextInterval());
    }
    if (m_isDue) {
        m_isDue = false;
        plan(0);
    }
    post();
}

void SourceWorker::accept(const Reading &reading)
{
    SourceHealth &health = m_update.health;
    health.state = SourceHealth::Good;
    health.error.clear();
    health.failures = 0;
    health.goodAt = QDateTime::currentDateTimeUtc();
    health.latency = m_latency.elapsed();
    SourceData &data = m_update.data;
    const bool isNew = reading.outcome == Reading::Arrived &&
                       (data.value.isMissing() || !isSameRecord(reading.value, data.value));
    if (reading.outcome == Reading::Arrived) {
        health.rows = rowsOf(reading.value);
        health.bytes = reading.bytes;
    }
    if (isNew || data.isStale) {
        ++m_update.dataVersion;
        data.takenAt = health.goodAt;
    }
    data.isStale = false;
    if (isNew) {
        data.value = reading.value;
        m_update.keys = offeredKeys(data.value);
        if (m_reader->isKept()) {
            m_cache.store(data, reading.bytes);
        }
    }
}

void SourceWorker::refuse(const Reading &reading)
{
    SourceHealth &health = m_update.health;
    SourceData &data = m_update.data;
    health.error = reading.error;
    ++health.failures;
    health.state = data.value.isMissing() ? SourceHealth::Failed : SourceHealth::Stale;
    if (!data.value.isMissing() && !data.isStale) {
        data.isStale = true;
        ++m_update.dataVersion;
    }
}

int SourceWorker::retryDelay(const Reading &reading) const
{
    if (reading.retryAfter >= 0) {
        return qMax(reading.retryAfter, 1000);
    }
    const int doublings = qBound(0, m_update.health.failures - 1, 2);
    return m_reader->backsOff() ? m_context.backOff << doublings : m_reader->nextInterval();
}

void SourceWorker::plan(int delay)
{
    QDateTime &nextTry = m_update.health.nextTry;
    nextTry = delay < 0 ? QDateTime() : QDateTime::currentDateTimeUtc().addMSecs(delay);
    if (delay >= 0) {
        m_timer.start(delay);
    }
}

void SourceWorker::post()
{
    if (m_mailbox->put(m_update)) {
        emit posted();
    }
}

} // namespace sources
