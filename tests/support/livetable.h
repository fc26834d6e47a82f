#pragma once

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

/** Programmes whose items show data. */
namespace live {

/** An item without data, or with @p key a table with a line "name price" for each record. */
inline QJsonObject item(const QString &name, const QString &key = QString())
{
    const QString table = "<html><head><style type=\"text/css\">p, li { white-space: pre-wrap; }"
                          "</style></head><body><table border=\"1\" width=\"120\" "
                          "cellspacing=\"0\" cellpadding=\"2\" style=\" "
                          "border-collapse:collapse;\">%1</table></body></html>";
    const QString cell = "<td width=\"60\" style=\" border:1px solid #00ff00;\"><p style=\" "
                         "margin-top:0px; margin-bottom:0px;\"><span style=\" font-family:'DejaVu "
                         "Sans'; font-size:12px; color:#ffffff;\">${%1}</span></p></td>";
    const QString row = "<tr>" + cell.arg("name") + cell.arg("price") + "</tr>";
    QJsonObject object{{"name", name}, {"document", key.isEmpty() ? name : table.arg(row)}};
    if (!key.isEmpty()) {
        object.insert("attributes", QJsonObject{{"TableType", 1},
                                                {"TableRowBindKey", key},
                                                {"TableRowTemplate", row},
                                                {"TableRowPlaceHolder", "table:1"},
                                                {"StringContent", table.arg("${table:1}")}});
    }
    return object;
}

/** A programme with one frame of 128 x 64; @p sources may be undefined. */
inline QByteArray programme(const QJsonValue &sources, const QJsonArray &items)
{
    const QJsonObject frame{{"name", "Frame"}, {"width", 128}, {"height", 64}, {"items", items}};
    const QJsonObject screen{{"name", "Screen"}, {"frames", QJsonArray{frame}}};
    QJsonObject root{
        {"format", "lctrlsex-programme"}, {"version", 1}, {"screens", QJsonArray{screen}}};
    root.insert("sources", sources);
    return QJsonDocument(root).toJson();
}

inline QJsonObject csvSource(const QString &name, const QString &file)
{
    return {{"name", name}, {"file", file}};
}

/** So many records; the first one has this price. */
inline QByteArray records(int count, int price = 0)
{
    QByteArray csv = "name,price\n";
    for (int i = 0; i < count; ++i) {
        csv += "Row " + QByteArray::number(i) + ',' + QByteArray::number(price + i) + '\n';
    }
    return csv;
}

/** Writes in place, or puts another file in its place at once. */
inline bool write(const QString &fileName, const QByteArray &bytes, bool replaces = false)
{
    QFile inPlace(fileName);
    QSaveFile atOnce(fileName);
    QFileDevice &file = replaces ? static_cast<QFileDevice &>(atOnce) : inPlace;
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() &&
           (!replaces || atOnce.commit());
}

} // namespace live
