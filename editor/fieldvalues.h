#pragma once

#include "conditionalstyles.h"
#include "datasourceconfig.h"
#include "table/datasourceindex.h"
#include "table/fieldimages.h"

namespace lctrlsex {

/** What the editor knows of the data that its fields show, and the pictures made of it. */
class FieldValues
{
public:
    /** Makes the next read() take everything for new. */
    void forget() { m_isRead = false; }
    /** Takes over what may have changed; false when all of it is as it was. */
    bool read(const DataSourceConfig &config, const QString &source, const QString &calculation)
    {
        if (m_isRead && m_config == config && m_source == source && m_calculation == calculation) {
            return false;
        }
        m_isRead = true;
        m_config = config;
        m_source = source;
        m_calculation = calculation;
        index = DataSourceIndex(config, source);
        QVector<CalculationCondition> calculations;
        calculationsFromJson(calculation, &calculations);
        expressions = defaultValues(calculations);
        return true;
    }

    DataSourceIndex index;              ///< What the enabled sources offer.
    QMap<QString, QString> expressions; ///< Calculated values by name.
    QMap<QString, QString> fromClient;  ///< Values that the client handed over, by key.
    FieldImages images;

    /** Draws the fields of @p document anew where a value changed; true when any did. */
    bool refresh(QTextDocument *document)
    {
        QMap<QString, QString> values = index.qualifiedValues();
        for (const QMap<QString, QString> &more : {expressions, fromClient}) {
            for (auto it = more.cbegin(); it != more.cend(); ++it) {
                values.insert(it.key(), it.value());
            }
        }
        return images.refresh(document, values);
    }

private:
    bool m_isRead = false;
    DataSourceConfig m_config;
    QString m_source;
    QString m_calculation;
};

} // namespace lctrlsex
