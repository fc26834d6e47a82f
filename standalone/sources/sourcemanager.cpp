#include "sourcemanager.h"

#include "datasourceconfigmanager.h"

#include <algorithm>

namespace sources {

namespace {

bool isSame(const SourceContext &left, const SourceContext &right)
{
    return left.folder == right.folder && left.cacheFolder == right.cacheFolder &&
           left.programme == right.programme;
}

QStringList sorted(const QSet<QString> &names)
{
    QStringList list = names.values();
    list.sort();
    return list;
}

} // namespace

SourceManager::SourceManager(QObject *parent)
    : QObject(parent)
    , m_publish(this)
{
    m_publish.setSingleShot(true);
    m_publish.setInterval(0);
    connect(&m_publish, &QTimer::timeout, this, &SourceManager::publish);
}

SourceManager::~SourceManager()
{
    m_sources.clear();
    offer();
}

void SourceManager::setSources(const QVector<SourceSettings> &sources, const SourceContext &context)
{
    std::vector<std::unique_ptr<DataSource>> former = std::move(m_sources);
    m_sources.clear();
    for (const SourceSettings &settings : sources) {
        const auto isKept = [&](const std::unique_ptr<DataSource> &source) {
            return source != nullptr && isSame(m_context, context) &&
                   settingsToJson(source->settings()) == settingsToJson(settings);
        };
        const auto kept = std::find_if(former.begin(), former.end(), isKept);
        if (kept != former.end()) {
            m_sources.push_back(std::move(*kept));
            continue;
        }
        m_sources.push_back(std::make_unique<DataSource>(settings, context));
        listen(m_sources.back().get());
        if (settings.enabled) {
            m_sources.back()->start();
        }
        note(&m_healthChanged, settings.name);
        note(&m_changed, settings.name);
    }
    for (const std::unique_ptr<DataSource> &gone : former) {
        if (gone != nullptr) {
            note(&m_changed, gone->settings().name);
        }
    }
    m_context = context;
}

void SourceManager::listen(DataSource *source)
{
    const QString name = source->settings().name;
    connect(source, &DataSource::changed, this, [this, name] { note(&m_changed, name); });
    connect(source, &DataSource::healthChanged, this,
            [this, name] { note(&m_healthChanged, name); });
}

QVector<SourceSettings> SourceManager::settings() const
{
    QVector<SourceSettings> settings;
    for (const std::unique_ptr<DataSource> &source : m_sources) {
        settings.append(source->settings());
    }
    return settings;
}

SourceHealth SourceManager::health(const QString &name) const
{
    const DataSource *source = find(name);
    return source != nullptr ? source->health() : SourceHealth();
}

DataSource *SourceManager::find(const QString &name) const
{
    for (const std::unique_ptr<DataSource> &source : m_sources) {
        if (source->settings().name == name) {
            return source.get();
        }
    }
    return nullptr;
}

void SourceManager::refresh(const QString &name)
{
    if (DataSource *source = find(name)) {
        source->refresh();
    }
}

void SourceManager::refreshAll()
{
    for (const std::unique_ptr<DataSource> &source : m_sources) {
        source->refresh();
    }
}

void SourceManager::note(QSet<QString> *names, const QString &name)
{
    names->insert(name);
    if (!m_publish.isActive()) {
        m_publish.start();
    }
}

void SourceManager::publish()
{
    const QStringList names = sorted(m_changed);
    const QStringList healthNames = sorted(m_healthChanged);
    m_changed.clear();
    m_healthChanged.clear();
    for (const QString &name : names) {
        DataSource *source = find(name);
        SourceData old = m_snapshot.take(name);
        if (source != nullptr && source->settings().enabled &&
            !source->latest().value.isMissing()) {
            m_snapshot.insert(name, source->latest());
        }
        if (source != nullptr) {
            source->retire(std::move(old));
        }
    }
    if (!names.isEmpty()) {
        offer();
        emit changed(names);
    }
    if (!healthNames.isEmpty()) {
        emit healthChanged(healthNames);
    }
}

void SourceManager::offer()
{
    DataSourceConfig config;
    QVector<DynamicDataSource> fields;
    for (const std::unique_ptr<DataSource> &source : m_sources) {
        const SourceSettings &settings = source->settings();
        config.sources.append({settings.name, settings.type, settings.enabled, source->keys()});
        if (settings.enabled) {
            DynamicDataSource dynamic{settings.name, {}};
            for (const DataSourceKey &key : source->keys()) {
                dynamic.fields.append({key.name, key.value, key.selected});
            }
            fields.append(dynamic);
        }
    }
    // Fields first: whoever hears of the configuration reads both.
    DataSourceConfigManager::instance()->SetDynamicData(fields);
    DataSourceConfigManager::instance()->SetConfig(config);
}

} // namespace sources
