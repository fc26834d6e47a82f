#pragma once

#include "datasourceconfig.h"
#include "dynamicdata.h"
#include "lcommon_global.h"

#include <QObject>
#include <QScopedPointer>

class DataSourceConfigManagerPrivate;

/**
 * The configured data sources with what they deliver, and the clipboards of the settings dialogs.
 *
 * One for the process; used on the GUI thread only. Both signals may also be sent from outside, by
 * whoever wants everybody to read the configuration again.
 */
class LCOMMON_EXPORT DataSourceConfigManager : public QObject
{
    Q_OBJECT

public:
    /** The one manager, made on first use; never null, lives as long as the process. */
    [[nodiscard]] static DataSourceConfigManager *instance();
    ~DataSourceConfigManager() override;

    /** The configuration as it stands; empty at first. */
    [[nodiscard]] DataSourceConfig GetConfig() const;
    /** Replaces it. Sends ConfigChanged, or SourceChanged when only current values differ. */
    void SetConfig(const DataSourceConfig &config);

    /** The sources with the fields that they deliver now; empty at first. */
    [[nodiscard]] QVector<DynamicDataSource> GetDynamicData() const;
    /** Replaces them. Sends ConfigChanged, or SourceChanged when only current values differ. */
    void SetDynamicData(const QVector<DynamicDataSource> &sources);

    /** Clipboard of conditional styles, shared by all text items for as long as the host runs. */
    [[nodiscard]] DynamicData GetConditionalStylingData() const;
    void SetConditionalStylingData(const DynamicData &data);

    /** Clipboard of calculations, shared by all text items for as long as the host runs. */
    [[nodiscard]] CalculationDynamicData GetOperationsData() const;
    void SetOperationsData(const CalculationDynamicData &data);

    /**
     * Whether @p name holds a character that names of sources, fields and configuration items
     * must not have: one of : ; , $ % & | * ? " ' / \ < > { } [ ] or a control character, line
     * separator or lone surrogate. Blanks, dots and letters of any script are fine; an empty name
     * holds none.
     */
    [[nodiscard]] static bool ContainsIllegalChars(const QString &name);

signals:
    /** Values, fields or calculations on offer changed: rebuild what is made of them. */
    void SourceChanged();
    /** Sources, keys, types or flags changed. */
    void ConfigChanged();

private:
    DataSourceConfigManager();
    Q_DISABLE_COPY(DataSourceConfigManager)
    const QScopedPointer<DataSourceConfigManagerPrivate> d;
};
