#include "datamodel.h"

#include "fielddrag.h"
#include "livedata.h"

#include <QLocale>
#include <QMimeData>

namespace workbench {

using sources::SourceHealth;

namespace {

constexpr int UpdateInterval = 100;
constexpr int AgeInterval = 1000;
constexpr int LongestTip = 600;

bool sameKeys(const QVector<DataSourceKey> &left, const QVector<DataSourceKey> &right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](const DataSourceKey &a, const DataSourceKey &b) {
                          return a.name == b.name && a.type == b.type;
                      });
}

QString oneLine(const QString &text)
{
    return text.left(200).simplified();
}

} // namespace

DataModel::DataModel(LiveData *data, QObject *parent)
    : QAbstractItemModel(parent)
    , m_data(data)
{
    m_update.setSingleShot(true);
    m_update.setInterval(UpdateInterval);
    connect(&m_update, &QTimer::timeout, this, &DataModel::update);
    m_ages.setInterval(AgeInterval);
    connect(&m_ages, &QTimer::timeout, this, [this] {
        if (!m_sources.isEmpty()) {
            emit dataChanged(index(0, ValueColumn), index(m_sources.size() - 1, ValueColumn));
        }
    });
    m_ages.start();
    connect(data, &LiveData::sourcesChanged, this, &DataModel::rebuild);
    connect(data->manager(), &sources::SourceManager::changed, this, &DataModel::note);
    connect(data->manager(), &sources::SourceManager::healthChanged, this, &DataModel::note);
    rebuild();
}

void DataModel::rebuild()
{
    beginResetModel();
    m_sources.clear();
    for (const sources::SourceSettings &settings : m_data->sources()) {
        const sources::DataSource *const source = m_data->manager()->find(settings.name);
        m_sources.append({settings.name, settings.enabled,
                          source != nullptr ? source->keys() : QVector<DataSourceKey>()});
    }
    m_changed.clear();
    endResetModel();
}

void DataModel::note(const QStringList &names)
{
    for (const QString &name : names) {
        m_changed.insert(name);
    }
    if (!m_update.isActive()) {
        m_update.start();
    }
}

void DataModel::update()
{
    const QSet<QString> changed = std::exchange(m_changed, {});
    for (int row = 0; row < m_sources.size(); ++row) {
        if (changed.contains(m_sources.at(row).name)) {
            updateKeys(row);
        }
    }
}

void DataModel::updateKeys(int row)
{
    const sources::DataSource *const source = m_data->manager()->find(m_sources.at(row).name);
    const QVector<DataSourceKey> keys =
        source != nullptr ? source->keys() : QVector<DataSourceKey>();
    const QModelIndex parent = index(row, 0);
    if (sameKeys(keys, m_sources.at(row).keys)) {
        m_sources[row].keys = keys;
        if (!keys.isEmpty()) {
            emit dataChanged(index(0, ValueColumn, parent),
                             index(keys.size() - 1, ValueColumn, parent));
        }
    } else {
        const int before = m_sources.at(row).keys.size();
        if (before > 0) {
            beginRemoveRows(parent, 0, before - 1);
            m_sources[row].keys.clear();
            endRemoveRows();
        }
        if (!keys.isEmpty()) {
            beginInsertRows(parent, 0, keys.size() - 1);
            m_sources[row].keys = keys;
            endInsertRows();
        }
    }
    emit dataChanged(parent, index(row, ValueColumn));
}

QModelIndex DataModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent)) {
        return {};
    }
    return createIndex(row, column, quintptr(parent.isValid() ? parent.row() + 1 : 0));
}

QModelIndex DataModel::parent(const QModelIndex &child) const
{
    return child.internalId() == 0 ? QModelIndex()
                                   : createIndex(int(child.internalId()) - 1, 0, quintptr(0));
}

int DataModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid()) {
        return m_sources.size();
    }
    return parent.internalId() == 0 && parent.column() == 0 ? m_sources.at(parent.row()).keys.size()
                                                            : 0;
}

int DataModel::columnCount(const QModelIndex &) const
{
    return ColumnCount;
}

QVariant DataModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    return section == NameColumn ? tr("Source or key") : tr("Value");
}

Qt::ItemFlags DataModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    return index.isValid() && index.internalId() != 0 ? flags | Qt::ItemIsDragEnabled : flags;
}

QString DataModel::sourceOf(const QModelIndex &index) const
{
    const int row = index.internalId() == 0 ? index.row() : int(index.internalId()) - 1;
    return index.isValid() ? m_sources.value(row).name : QString();
}

DataSourceKey DataModel::keyAt(const QModelIndex &index) const
{
    if (!index.isValid() || index.internalId() == 0) {
        return {};
    }
    return m_sources.value(int(index.internalId()) - 1).keys.value(index.row());
}

QModelIndex DataModel::indexOf(const QString &source) const
{
    for (int row = 0; row < m_sources.size(); ++row) {
        if (m_sources.at(row).name == source) {
            return index(row, 0);
        }
    }
    return {};
}

QVariant DataModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    if (index.internalId() == 0) {
        return sourceData(index.row(), index.column(), role);
    }
    return keyData(int(index.internalId()) - 1, keyAt(index), index.column(), role);
}

QVariant DataModel::sourceData(int row, int column, int role) const
{
    const Source &source = m_sources.at(row);
    const SourceHealth health = m_data->manager()->health(source.name);
    switch (role) {
    case Qt::DisplayRole:
        return column == NameColumn ? source.name : shortStateText(health, source.isEnabled);
    case Qt::ToolTipRole: {
        const bool isFault = !health.error.isEmpty();
        const QString text = isFault ? health.error : stateText(health, source.isEnabled);
        return text.left(LongestTip).toHtmlEscaped();
    }
    case StateRole:
        return int(source.isEnabled ? health.state : SourceHealth::Off);
    default:
        return {};
    }
}

QVariant DataModel::keyData(int row, const DataSourceKey &key, int column, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return column == NameColumn ? key.name : oneLine(key.value);
    case Qt::ToolTipRole: {
        const QString text =
            tr("%1: %2").arg(key.name, typeText(key.type)) + QLatin1Char('\n') + key.value;
        return text.left(LongestTip)
            .toHtmlEscaped()
            .replace(QLatin1Char('\n'), QLatin1String("<br/>"));
    }
    case KeyRole:
        return m_sources.at(row).name + QLatin1Char(':') + key.name;
    default:
        return {};
    }
}

QStringList DataModel::mimeTypes() const
{
    return {FieldDrag::FieldFormat, FieldDrag::TableFormat, QStringLiteral("text/plain")};
}

QMimeData *DataModel::mimeData(const QModelIndexList &indexes) const
{
    for (const QModelIndex &index : indexes) {
        const QString key = index.data(KeyRole).toString();
        if (!key.isEmpty()) {
            auto *mime = new QMimeData;
            const bool isText = keyAt(index).type == DataSourceKey::Text;
            mime->setData(isText ? FieldDrag::FieldFormat : FieldDrag::TableFormat, key.toUtf8());
            mime->setText(key);
            return mime;
        }
    }
    return nullptr;
}

void DataModel::retranslate()
{
    emit headerDataChanged(Qt::Horizontal, NameColumn, ValueColumn);
    if (!m_sources.isEmpty()) {
        emit dataChanged(index(0, 0), index(m_sources.size() - 1, ValueColumn));
    }
}

/** "3 s", "5 min", "2 h": how long ago, in the largest unit that it fills. */
static QString ageText(qint64 milliseconds)
{
    const qint64 seconds = qMax<qint64>(0, milliseconds) / 1000;
    if (seconds < 60) {
        return DataModel::tr("%1 s").arg(seconds);
    }
    return seconds < 3600 ? DataModel::tr("%1 min").arg(seconds / 60)
                          : DataModel::tr("%1 h").arg(seconds / 3600);
}

QString DataModel::stateText(const SourceHealth &health, bool isEnabled)
{
    if (!isEnabled) {
        return tr("Off");
    }
    switch (health.state) {
    case SourceHealth::Off:
    case SourceHealth::Failed:
        return health.error.isEmpty() ? tr("Off") : oneLine(health.error);
    case SourceHealth::Starting:
        return tr("Reading …");
    case SourceHealth::Stale:
        return tr("Stale for %1: %2").arg(ageText(health.age()), oneLine(health.error));
    case SourceHealth::Good:
        break;
    }
    const QString taken =
        tr("%1 ago, took %2 ms")
            .arg(ageText(health.age()), QLocale().toString(qMax<qint64>(0, health.latency)));
    return health.rows < 1 ? taken : tr("%1, %2 rows").arg(taken, QLocale().toString(health.rows));
}

QString DataModel::shortStateText(const SourceHealth &health, bool isEnabled)
{
    if (isEnabled && health.state == SourceHealth::Stale) {
        return tr("Stale for %1").arg(ageText(health.age()));
    }
    if (!isEnabled || health.state != SourceHealth::Good) {
        return stateText(health, isEnabled);
    }
    const QString age = tr("%1 ago").arg(ageText(health.age()));
    return health.rows < 1 ? age : tr("%1, %2 rows").arg(age, QLocale().toString(health.rows));
}

QString DataModel::typeText(int type)
{
    switch (type) {
    case DataSourceKey::ValueList:
        return tr("list of values");
    case DataSourceKey::Record:
        return tr("record");
    case DataSourceKey::RecordList:
        return tr("list of records");
    case DataSourceKey::TwoDimensional:
        return tr("rows and columns");
    default:
        return tr("text");
    }
}

} // namespace workbench
