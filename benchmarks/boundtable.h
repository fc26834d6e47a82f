#pragma once

#include "celltable.h"
#include "datasnapshot.h"
#include "storeditem.h"

#include <QStringList>

#include <memory>
#include <string>

/** A bound table with columns of texts, and the data for it. */
namespace boundtable {

inline QString cell(const QString &text, int width)
{
    return QStringLiteral("<td width=\"%1\" style=\" border:1px solid #00ff00;\"><p style=\" "
                          "margin-top:0px; margin-bottom:0px;\"><span style=\" "
                          "font-family:'DejaVu Sans'; font-size:12px; "
                          "color:#ffffff;\">%2</span></p></td>")
        .arg(width)
        .arg(text);
}

/** Dynamic rows of so many columns, a row of at least @p characters of markup. */
inline player::StoredItem item(int columns, int characters)
{
    QStringList fields;
    QString row = QStringLiteral("<tr>");
    for (int i = 0; i < columns; ++i) {
        fields.append(QStringLiteral("f%1").arg(i));
        row += cell(QStringLiteral("${%1}").arg(fields.constLast()), 600 / columns);
    }
    const QString end = QStringLiteral("</tr>");
    row += QString(qMax(0, characters - row.size() - end.size()), QLatin1Char(' ')) + end;
    player::StoredItem item;
    item.tableType = player::StoredItem::Rows;
    item.bindKey = QStringLiteral("s:rows.{%1}[]").arg(fields.join(QLatin1Char(',')));
    item.placeholder = QStringLiteral("T");
    item.rowTemplate = row;
    item.content =
        QStringLiteral("<html><head><style type=\"text/css\">p, li { white-space: pre-wrap; }"
                       "</style></head><body><table border=\"1\" width=\"600\" cellspacing=\"0\" "
                       "cellpadding=\"2\" style=\" border-collapse:collapse;\">${T}</table>"
                       "</body></html>");
    return item;
}

/** A table of so many rows; no two rows are alike. */
inline sources::DataSnapshot records(int rows, int columns)
{
    QStringList names;
    for (int i = 0; i < columns; ++i) {
        names.append(QStringLiteral("f%1").arg(i));
    }
    sources::CellWriter writer(size_t(rows) * size_t(columns) * 12);
    for (int row = 0; row < rows; ++row) {
        writer.beginRow();
        for (int i = 0; i < columns; ++i) {
            const std::string text = "Row " + std::to_string(row * 7 + i);
            writer.addCell(text.data(), text.size());
        }
    }
    sources::DataSnapshot data;
    data[QStringLiteral("s")].value = sources::DataValue::fromRecord(
        {{QStringLiteral("rows"),
          sources::DataValue::fromTable(
              std::make_shared<sources::CellTable>(names, writer.take()))}});
    return data;
}

} // namespace boundtable
