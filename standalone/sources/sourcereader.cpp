#include "sourcereader.h"

namespace sources {

Reading Reading::failed(const QString &error)
{
    Reading reading;
    reading.error = error;
    return reading;
}

Reading Reading::of(const Reply &reply, qint64 bytes)
{
    Reading reading;
    reading.outcome = reply.error.isEmpty() ? Arrived : Failed;
    reading.value = reply.value;
    reading.error = reply.error;
    reading.bytes = bytes;
    return reading;
}

SourceReader::SourceReader(SourceSettings settings, SourceContext context)
    : m_settings(std::move(settings))
    , m_context(std::move(context))
{}

int SourceReader::milliseconds(double seconds, int fallback)
{
    return seconds > 0 ? int(qMin(seconds * 1000, 2e9)) : fallback;
}

int SourceReader::nextInterval() const
{
    return milliseconds(m_settings.interval, 30000);
}

} // namespace sources
