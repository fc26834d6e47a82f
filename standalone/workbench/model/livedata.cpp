#include "livedata.h"

#include "lcontrollernode.h"
#include "programmedocument.h"
#include "programmekeys.h"

#include <QFile>
#include <QStandardPaths>

namespace workbench {

using sources::SourceSettings;

LiveData::LiveData(ProgrammeDocument *document, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_manager(new sources::SourceManager(this))
{
    connect(document, &ProgrammeDocument::replaced, this, &LiveData::read);
    connect(document, &ProgrammeDocument::fileNameChanged, this, &LiveData::read);
    connect(document, &ProgrammeDocument::rootMembersChanged, this, &LiveData::read);
    read();
}

LiveData::~LiveData() = default;

/** What the programme that was never saved is known by is the place that it came from. */
sources::SourceContext LiveData::context() const
{
    sources::SourceContext context;
    context.folder = m_document->folder();
    context.cacheFolder =
        QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + QStringLiteral("/data");
    const QString name = m_document->fileName();
    context.programme = name.isEmpty() ? context.folder : name;
    return context;
}

void LiveData::read()
{
    QByteArray bytes;
    QFile file(m_document->fileName());
    if (!file.fileName().isEmpty() && file.open(QIODevice::ReadOnly)) {
        bytes = file.readAll();
    }
    sources::ReadSources read =
        sources::readSources(*m_document->controller(), m_document->folder(), bytes);
    m_list = std::move(read.list);
    m_faults = std::move(read.faults);
    m_manager->setSources(m_list.sources, context());
    emit sourcesChanged();
}

QStringList LiveData::faults() const
{
    QStringList lines;
    for (const ProgrammeError &fault : m_faults) {
        lines.append(QStringLiteral("%1: %2").arg(fault.placeText(), fault.reason));
    }
    return lines;
}

QString LiveData::obstacle() const
{
    return m_list.isBroken ? faults().value(0) : QString();
}

ProgrammeError LiveData::setSources(const QVector<SourceSettings> &sources, const QString &stepName)
{
    sources::SourceList list = m_list;
    list.sources = sources;
    const QJsonObject before = m_document->rootMembers();
    ProgrammeError error =
        sources::storeSources(m_document->controller(), m_document->folder(), list);
    if (error.isSet()) {
        return error;
    }
    const QJsonObject after = m_document->rootMembers();
    m_document->controller()->setProperty(ProgrammeKeys::Unknown, before);
    if (!m_document->setRootMembers(after, stepName)) {
        read(); // they stand in a file of their own
    }
    return error;
}

QString LiveData::freeName(const QString &base) const
{
    const auto isTaken = [this](const QString &name) {
        return std::any_of(m_list.sources.begin(), m_list.sources.end(),
                           [&name](const SourceSettings &known) { return known.name == name; });
    };
    QString name = base;
    for (int number = 2; isTaken(name); ++number) {
        name = QStringLiteral("%1 %2").arg(base).arg(number);
    }
    return name;
}

} // namespace workbench
