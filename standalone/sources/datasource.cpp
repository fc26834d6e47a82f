#include "datasource.h"

#include "sourceregistry.h"
#include "sourcetexts.h"
#include "sourcethread.h"
#include "sourceworker.h"

#include <QThread>

namespace sources {

DataSource::DataSource(SourceSettings settings, SourceContext context, QObject *parent)
    : QObject(parent)
    , m_settings(std::move(settings))
    , m_context(std::move(context))
{}

DataSource::~DataSource()
{
    stop();
}

void DataSource::start()
{
    if (m_worker != nullptr) {
        return;
    }
    std::unique_ptr<SourceReader> reader = makeReader(m_settings, m_context);
    if (reader == nullptr) {
        m_update.health.error =
            SourceTexts::tr("there is no kind of source with the number %1").arg(m_settings.type);
        emit healthChanged();
        return;
    }
    QThread *thread = startSourceThread("source");
    m_mailbox = std::make_shared<Mailbox>();
    m_reader = reader.get();
    m_reader->moveToThread(thread);
    m_worker = new SourceWorker(std::move(reader), m_settings, m_context, m_mailbox);
    m_worker->moveToThread(thread);
    connect(thread, &QThread::finished, m_worker, &QObject::deleteLater);
    connect(m_worker, &SourceWorker::posted, this, &DataSource::takePost, Qt::QueuedConnection);
    QMetaObject::invokeMethod(m_worker, &SourceWorker::start, Qt::QueuedConnection);
}

void DataSource::stop()
{
    if (m_worker == nullptr) {
        return;
    }
    m_reader->stopFlag() = true;
    m_worker->disconnect(this);
    QMetaObject::invokeMethod(m_worker, &SourceWorker::shutDown, Qt::QueuedConnection);
    m_worker = nullptr;
    m_reader = nullptr;
    m_mailbox.reset();
    m_update.health.state = SourceHealth::Off;
}

void DataSource::refresh()
{
    if (m_worker != nullptr) {
        QMetaObject::invokeMethod(m_worker, &SourceWorker::refresh, Qt::QueuedConnection);
    }
}

void DataSource::recordTo(const QString &fileName)
{
    if (m_worker != nullptr) {
        QMetaObject::invokeMethod(
            m_worker, [worker = m_worker, fileName] { worker->recordTo(fileName); },
            Qt::QueuedConnection);
    }
}

void DataSource::retire(SourceData data)
{
    if (m_worker != nullptr) {
        QMetaObject::invokeMethod(
            m_worker, [data = std::move(data)] {}, Qt::QueuedConnection);
    }
}

void DataSource::takePost()
{
    // Empty when this was posted before the source was stopped.
    std::optional<SourceUpdate> update =
        m_mailbox != nullptr ? m_mailbox->take() : std::optional<SourceUpdate>();
    if (!update) {
        return;
    }
    const bool hasNewData = update->dataVersion != m_update.dataVersion;
    std::swap(m_update, *update);
    if (hasNewData) {
        retire(std::move(update->data));
        emit changed();
    }
    emit healthChanged();
}

} // namespace sources
