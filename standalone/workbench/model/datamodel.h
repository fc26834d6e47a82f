#pragma once

#include "datasourceconfig.h"
#include "sourcehealth.h"

#include <QAbstractItemModel>
#include <QSet>
#include <QTimer>

namespace workbench {

class LiveData;

/**
 * The data sources with what they offer: sources, and below each its keys with their values now.
 * Values are shown at most ten times a second. GUI thread.
 */
class DataModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, ValueColumn, ColumnCount };
    enum Role {
        StateRole = Qt::UserRole, ///< SourceHealth::State of a source.
        KeyRole,                  ///< Qualified key of a key; empty for a source.
    };

    explicit DataModel(LiveData *data, QObject *parent = nullptr);

    [[nodiscard]] QModelIndex index(int row, int column,
                                    const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex &child) const override;
    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index,
                                int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;
    /** A key can be dragged into a text: see fielddrag.h. */
    [[nodiscard]] QMimeData *mimeData(const QModelIndexList &indexes) const override;
    [[nodiscard]] QStringList mimeTypes() const override;

    /** The source that @p index is or belongs to; empty for an invalid one. */
    [[nodiscard]] QString sourceOf(const QModelIndex &index) const;
    /** The key at @p index; one without a name for a source. */
    [[nodiscard]] DataSourceKey keyAt(const QModelIndex &index) const;
    /** The row of a source, invalid for none of that name. */
    [[nodiscard]] QModelIndex indexOf(const QString &source) const;

    /** Texts in the current language. */
    void retranslate();
    /**
     * How a source is doing, in a few words; the short text leaves out how long it took and why its
     * data is stale.
     */
    [[nodiscard]] static QString stateText(const sources::SourceHealth &health, bool isEnabled);
    [[nodiscard]] static QString shortStateText(const sources::SourceHealth &health,
                                                bool isEnabled);
    /** What a key's type number means, in a few words. */
    [[nodiscard]] static QString typeText(int type);

private:
    struct Source
    {
        QString name;
        bool isEnabled = true;
        QVector<DataSourceKey> keys;
    };

    void rebuild();
    void note(const QStringList &names);
    void update();
    void updateKeys(int row);
    [[nodiscard]] QVariant sourceData(int row, int column, int role) const;
    [[nodiscard]] QVariant keyData(int row, const DataSourceKey &key, int column, int role) const;

    LiveData *const m_data;
    QVector<Source> m_sources;
    QSet<QString> m_changed;
    QTimer m_update;
    QTimer m_ages;
};

} // namespace workbench
