#include "datasourceconfigmanager.h"

#include <algorithm>

class DataSourceConfigManagerPrivate
{
public:
    DataSourceConfig config;
    QVector<DynamicDataSource> dynamicData;
    DynamicData stylingClipboard;
    CalculationDynamicData operationsClipboard;
};

DataSourceConfigManager::DataSourceConfigManager()
    : d(new DataSourceConfigManagerPrivate)
{}

DataSourceConfigManager::~DataSourceConfigManager() = default;

DataSourceConfigManager *DataSourceConfigManager::instance()
{
    // Never destroyed: a plug-in may ask for it as late as in its own static destructors.
    static auto *const manager = new DataSourceConfigManager;
    return manager;
}

DataSourceConfig DataSourceConfigManager::GetConfig() const
{
    return d->config;
}

void DataSourceConfigManager::SetConfig(const DataSourceConfig &config)
{
    if (config == d->config) {
        return;
    }
    const bool valuesOnly = sameStructure(config, d->config);
    d->config = config;
    emit(valuesOnly ? SourceChanged() : ConfigChanged());
}

QVector<DynamicDataSource> DataSourceConfigManager::GetDynamicData() const
{
    return d->dynamicData;
}

void DataSourceConfigManager::SetDynamicData(const QVector<DynamicDataSource> &sources)
{
    if (sources == d->dynamicData) {
        return;
    }
    const bool valuesOnly = sameStructure(sources, d->dynamicData);
    d->dynamicData = sources;
    emit(valuesOnly ? SourceChanged() : ConfigChanged());
}

DynamicData DataSourceConfigManager::GetConditionalStylingData() const
{
    return d->stylingClipboard;
}

void DataSourceConfigManager::SetConditionalStylingData(const DynamicData &data)
{
    d->stylingClipboard = data;
}

CalculationDynamicData DataSourceConfigManager::GetOperationsData() const
{
    return d->operationsClipboard;
}

void DataSourceConfigManager::SetOperationsData(const CalculationDynamicData &data)
{
    d->operationsClipboard = data;
}

// Names become parts of bind keys, style strings, links and addresses of field images: whatever
// separates the parts there, or is markup, cannot stand in a name.
static bool isIllegal(QChar character)
{
    static const QString separators = QStringLiteral(":;,$%&|*?\"'/\\<>{}[]");
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return separators.contains(character);
    }
}

bool DataSourceConfigManager::ContainsIllegalChars(const QString &name)
{
    return !name.isValidUtf16() || std::any_of(name.cbegin(), name.cend(), isIllegal);
}
