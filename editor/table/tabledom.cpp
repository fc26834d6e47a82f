#include "tabledom.h"

#include "tableborder.h"
#include "tablewidths.h"

#include <QDomElement>

namespace lctrlsex {

namespace {

const QString Style = QStringLiteral("style");
const QString Width = QStringLiteral("width");

int numberOf(const QDomElement &element, const QString &name, const QString &fallback)
{
    return element.attribute(name, fallback).toInt();
}

/** The rows of @p parent, of its sections too but not of tables inside. */
void addRows(const QDomElement &parent, QVector<QDomElement> *rows)
{
    QDomElement child = parent.firstChildElement();
    for (; !child.isNull(); child = child.nextSiblingElement()) {
        if (child.tagName() == QLatin1String("tr")) {
            rows->append(child);
        } else if (child.tagName() == QLatin1String("thead") ||
                   child.tagName() == QLatin1String("tbody") ||
                   child.tagName() == QLatin1String("tfoot")) {
            addRows(child, rows);
        }
    }
}

} // namespace

void unifyTable(QDomElement table)
{
    const QString style = table.attribute(Style);
    const TableBorder border(style, table.attribute(QStringLiteral("border"), QStringLiteral("1")));
    if (!table.isNull() && !style.contains(QLatin1String("border-collapse"))) {
        table.setAttribute(Style,
                           withDeclaration(style, QStringLiteral("border-collapse:collapse;")));
    }
    const int tableWidth = numberOf(table, Width, QString());
    const int padding = numberOf(table, QStringLiteral("cellpadding"), QStringLiteral("1"));
    QVector<QVector<CellExtent>> extents;
    QVector<QVector<QDomElement>> cells;
    QVector<QDomElement> rows;
    addRows(table, &rows);
    for (const QDomElement &row : qAsConst(rows)) {
        extents.append(QVector<CellExtent>());
        cells.append(QVector<QDomElement>());
        QDomElement cell = row.firstChildElement(QStringLiteral("td"));
        for (; !cell.isNull(); cell = cell.nextSiblingElement(QStringLiteral("td"))) {
            const bool hasWidth = cell.hasAttribute(Width);
            extents.last().append(
                {numberOf(cell, QStringLiteral("rowspan"), QStringLiteral("1")),
                 numberOf(cell, QStringLiteral("colspan"), QStringLiteral("1")),
                 hasWidth ? pixelsOfWidth(cell.attribute(Width), tableWidth) : -1});
            cells.last().append(cell);
        }
    }
    const QVector<QVector<int>> widths =
        tableWidth > 0 ? cellWidths(extents, tableWidth, border.pixels() + 2 * padding)
                       : QVector<QVector<int>>();
    for (int row = 0; row < cells.size(); ++row) {
        for (int i = 0; i < cells.at(row).size(); ++i) {
            QDomElement cell = cells.at(row).at(i);
            cell.setAttribute(Style, withDeclaration(cell.attribute(Style), border.declaration()));
            if (!widths.isEmpty()) {
                cell.setAttribute(Width, widths.at(row).at(i));
            }
        }
    }
}

} // namespace lctrlsex
