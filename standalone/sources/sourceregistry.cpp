#include "sourceregistry.h"

#include "datasourceconfig.h"
#include "filereader.h"
#include "httpreader.h"
#include "recording.h"
#include "sqlreader.h"
#include "systemreader.h"

namespace sources {

namespace {

template <typename Reader>
std::unique_ptr<SourceReader> make(const SourceSettings &settings, const SourceContext &context)
{
    return std::make_unique<Reader>(settings, context);
}

} // namespace

const QVector<SourceKind> &sourceKinds()
{
    static const QVector<SourceKind> kinds{
        {DataSourceEntry::CsvFile, QT_TRANSLATE_NOOP("Sources", "CSV or text file"),
         make<FileReader>},
        {DataSourceEntry::JsonFile, QT_TRANSLATE_NOOP("Sources", "JSON file"), make<FileReader>},
        {DataSourceEntry::Http, QT_TRANSLATE_NOOP("Sources", "HTTP or HTTPS"), make<HttpReader>},
        {DataSourceEntry::Sql, QT_TRANSLATE_NOOP("Sources", "SQL database"), make<SqlReader>},
        {DataSourceEntry::System, QT_TRANSLATE_NOOP("Sources", "System"), make<SystemReader>},
    };
    return kinds;
}

std::unique_ptr<SourceReader> makeReader(const SourceSettings &settings,
                                         const SourceContext &context)
{
    if (!settings.replay.isEmpty()) {
        return make<ReplayReader>(settings, context);
    }
    for (const SourceKind &kind : sourceKinds()) {
        if (kind.type == settings.type) {
            return kind.make(settings, context);
        }
    }
    return nullptr;
}

} // namespace sources
