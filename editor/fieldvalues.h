#pragma once

#include "table/datasourceindex.h"
#include "table/fieldimages.h"

namespace lctrlsex {

/** What the editor knows of the data that its fields show, and the pictures made of it. */
class FieldValues
{
public:
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
};

} // namespace lctrlsex
