#include "templatebuilder.h"

#include "keysuggestion.h"
#include "nodatarow.h"

#include <QCoreApplication>

#include <algorithm>

namespace player {

using namespace lctrlsex;

namespace {

/** Texts of this file, under one name for translators. */
struct ItemTemplateTexts
{
    Q_DECLARE_TR_FUNCTIONS(ItemTemplate)
};

constexpr int DocumentMargin = 4;
constexpr int LeastColumnWidth = 8;
constexpr int MostColumns = 1000;
constexpr int MostFixedRows = 10000;

int columnsOf(const QString &markup)
{
    int columns = 0;
    for (const CellMarkup &cell : cellsOf(markup)) {
        columns += cell.columns;
    }
    return columns;
}

double widthOf(const QString &markup)
{
    double width = 0;
    for (const CellMarkup &cell : cellsOf(markup)) {
        width += qMax(0.0, cell.width);
    }
    return width;
}

} // namespace

TemplateBuilder::TemplateBuilder(ItemTemplate *made, const StoredItem &item, int width)
    : m_made(made)
    , m_item(item)
    , m_tableWidth(0)
    , m_availableWidth(qMax(1, width - 2 * DocumentMargin))
{}

bool TemplateBuilder::fail(const QString &reason)
{
    m_made->m_state = ItemTemplate::Broken;
    warn(ItemTemplateTexts::tr("table"), reason,
         ItemTemplateTexts::tr("open the item in the editor and bind its table again"));
    return false;
}

void TemplateBuilder::warn(const QString &part, const QString &reason, const QString &remedy)
{
    m_made->m_problems.append({Problem::Warning, part, reason, remedy});
}

void TemplateBuilder::build(const sources::DataSnapshot &data)
{
    if (!isBindable(classifyBindKey(m_item.bindKey).kind) || !readTemplates()) {
        return;
    }
    readLines(data);
    const QString tag = m_made->m_parts.tableTag;
    m_tableWidth = int(pixelsOf(tag, QLatin1String("width"), m_availableWidth));
    m_setsWidths = m_item.tableType >= StoredItem::Columns || !hasAllWidths();
    if (m_setsWidths) {
        m_made->m_parts.tableTag =
            withAttribute(tag, QLatin1String("width"), QString::number(m_tableWidth));
    }
    const FillSources &sources = m_made->m_sources;
    m_made->m_prologue =
        FilledText(TemplateText(m_made->m_parts.prologue), Placeholders::OfItem, sources);
    m_made->m_epilogue =
        FilledText(TemplateText(m_made->m_parts.epilogue), Placeholders::OfItem, sources);
    if (m_item.tableType == StoredItem::Columns) {
        buildColumns();
    } else if (m_item.tableType == StoredItem::Adaptive) {
        buildAdaptive();
    } else {
        buildRows();
    }
    m_made->m_state = ItemTemplate::Bound;
}

bool TemplateBuilder::readTemplates()
{
    m_made->m_parts = ContentParts::of(m_item.content, m_item.placeholder);
    if (!m_made->m_parts.isFound) {
        return fail(
            ItemTemplateTexts::tr("the place of its rows is not marked in the stored text"));
    }
    if (m_item.tableType < StoredItem::Columns) {
        return !cellsOf(m_item.rowTemplate).isEmpty() ||
               fail(ItemTemplateTexts::tr("no row is stored that could be repeated"));
    }
    const auto list = [this](const QString &text) {
        return m_item.separator.isEmpty() ? QStringList(text) : text.split(m_item.separator);
    };
    // Rows in which a merged cell takes the template's place have none of their own.
    const QStringList cells = list(m_item.cellTemplates);
    const QStringList prefixes = list(m_item.prefixes);
    const QStringList suffixes = list(m_item.suffixes);
    if (cells.join(QString()).isEmpty() || prefixes.size() != cells.size() ||
        suffixes.size() != cells.size()) {
        return fail(ItemTemplateTexts::tr("the cells stored for it do not make up rows"));
    }
    for (int i = 0; i < cells.size(); ++i) {
        m_cellRows.append({prefixes.at(i), cells.at(i), suffixes.at(i)});
    }
    return true;
}

/** As many values on a line as the highest placeholder asks for; all of them for "${i}". */
LineShape TemplateBuilder::shape() const
{
    TemplateText all(m_item.rowTemplate);
    for (const CellRow &row : m_cellRows) {
        all.append(row.prefix + row.cell + row.suffix);
    }
    LineShape result;
    result.separator = m_item.listSeparator;
    for (const TemplateSlot &slot : all.slotList()) {
        bool isNumber = false;
        const int number = slot.name.toInt(&isNumber);
        if (isNumber && number >= result.perLine && number < MostColumns) {
            result.perLine = number + 1;
        }
        if (slot.number >= 0 && m_item.tableType == StoredItem::Adaptive) {
            result.perLine = 0;
            break;
        }
    }
    return result;
}

void TemplateBuilder::readLines(const sources::DataSnapshot &data)
{
    const DataLines lines(data, m_item.bindKey, m_item.source, shape());
    m_made->m_sources.values->setLines(lines);
    if (!lines.isFound()) {
        warn(ItemTemplateTexts::tr("table"),
             ItemTemplateTexts::tr("its key \"%1\" leads to no data").arg(m_item.bindKey),
             keyRemedy(data, m_item.bindKey));
    }
}

/** Whether some row says how wide every column is. */
bool TemplateBuilder::hasAllWidths() const
{
    const QStringList rows =
        m_made->m_parts.rowsBefore + QStringList(m_item.rowTemplate) + m_made->m_parts.rowsBehind;
    return std::any_of(rows.begin(), rows.end(), [](const QString &row) {
        const QVector<CellMarkup> cells = cellsOf(row);
        return !cells.isEmpty() && std::all_of(cells.begin(), cells.end(), [](const auto &cell) {
            return cell.width >= 0 && cell.columns == 1;
        });
    });
}

void TemplateBuilder::addRow(const QString &markup, Placeholders placeholders)
{
    TemplateText text;
    text.append(markup, 0, 0, m_setsWidths);
    m_made->m_rows.emplace_back(text, placeholders, m_made->m_sources);
    Extents extents;
    for (const CellMarkup &cell : cellsOf(markup)) {
        extents.append({cell.rows, cell.columns, cell.width});
    }
    m_extents.append(extents);
}

/** In a row of columns the copies of the cell, which claim no width, are of a line each. */
void TemplateBuilder::addCells(const CellRow &row, int copies, Placeholders placeholders)
{
    const bool isOneLine = m_item.tableType == StoredItem::Adaptive;
    TemplateText text;
    int number = text.append(row.prefix, 0, 0, true);
    for (int i = 0; i < copies; ++i) {
        number = text.append(row.cell, isOneLine ? 0 : i, number, true);
    }
    text.append(row.suffix, 0, number, true);
    m_made->m_rows.emplace_back(text, placeholders, m_made->m_sources);
    Extents extents;
    const auto add = [&extents](const QString &markup, bool isRepeated) {
        for (const CellMarkup &cell : cellsOf(markup)) {
            extents.append({cell.rows, cell.columns, isRepeated ? -1 : cell.width});
        }
    };
    add(row.prefix, false);
    for (int i = 0; i < copies; ++i) {
        add(row.cell, true);
    }
    add(row.suffix, false);
    m_extents.append(extents);
}

void TemplateBuilder::setWidths(int first, int tableWidth)
{
    if (!m_setsWidths || tableWidth <= 0) {
        return;
    }
    const QString &tag = m_made->m_parts.tableTag;
    const int joint = int(pixelsOf(tag, QLatin1String("border"), 1) +
                          2 * pixelsOf(tag, QLatin1String("cellpadding"), 1));
    const QVector<QVector<int>> widths = cellWidths(m_extents.mid(first), tableWidth, joint);
    for (int i = 0; i < widths.size(); ++i) {
        m_made->m_rows[size_t(first) + size_t(i)].setCellWidths(widths.at(i));
    }
}

void TemplateBuilder::buildRows()
{
    const int lines = m_made->m_sources.values->lines().count();
    const bool isForm = m_item.tableType == StoredItem::FixedForm;
    for (const QString &row : qAsConst(m_made->m_parts.rowsBefore)) {
        addRow(row, Placeholders::OfItem);
    }
    const bool hasRows = isForm || lines > 0;
    addRow(hasRows ? m_item.rowTemplate : noDataRow(m_item.rowTemplate),
           hasRows ? Placeholders::OfLines : Placeholders::OfItem);
    for (const QString &row : qAsConst(m_made->m_parts.rowsBehind)) {
        addRow(row, Placeholders::OfItem);
    }
    setWidths(0, m_tableWidth);
    m_made->m_before = m_made->m_parts.rowsBefore.size();
    m_made->m_repeated = qMax(1, lines);
    if (isForm) {
        m_made->m_group = qBound(1, m_item.fixedRows, MostFixedRows);
        const int forms = (m_made->m_repeated + m_made->m_group - 1) / m_made->m_group;
        m_made->m_repeated = forms * m_made->m_group;
    }
    m_made->m_rowCount = m_made->m_before + m_made->m_repeated + m_made->m_parts.rowsBehind.size();
    m_made->m_isFrozen = m_item.freezesHeader && m_item.hasHeader && m_made->m_before > 0;
}

/** How many copies of the cell find room; what does not is told. */
int TemplateBuilder::mostCopies(const CellRow &row, int wanted) const
{
    const double others = widthOf(row.prefix) + widthOf(row.suffix);
    const int columns = qMax(1, columnsOf(row.cell));
    const int room =
        int(qBound(1.0, (m_tableWidth - others) / LeastColumnWidth, double(MostColumns)));
    const int most =
        qMax(1, qMin(room, MostColumns - columnsOf(row.prefix + row.suffix)) / columns);
    if (wanted > most) {
        m_made->m_problems.append(
            {Problem::Warning, ItemTemplateTexts::tr("table"),
             ItemTemplateTexts::tr("it has room for %1 of %2 columns")
                 .arg(QString::number(most), QString::number(wanted)),
             ItemTemplateTexts::tr("make the table wider or show fewer values")});
    }
    return qMin(wanted, most);
}

/** The first row that has a cell to repeat. */
TemplateBuilder::CellRow TemplateBuilder::firstWithCell() const
{
    return *std::find_if(m_cellRows.begin(), m_cellRows.end() - 1,
                         [](const CellRow &row) { return !row.cell.isEmpty(); });
}

void TemplateBuilder::buildColumns()
{
    const int lines = m_made->m_sources.values->lines().count();
    const CellRow first = firstWithCell();
    const double cellWidth = widthOf(first.cell);
    const double room = m_tableWidth - widthOf(first.prefix) - widthOf(first.suffix);
    const int wanted = qMax(1, lines);
    const bool hasSheets = m_item.turnsHorizontally && cellWidth > 0;
    const int perSheet =
        hasSheets ? qBound(1, int(room / cellWidth + 0.01), wanted) : mostCopies(first, wanted);
    const int sheets = hasSheets ? (wanted + perSheet - 1) / perSheet : 1;
    const int onLast = hasSheets ? wanted - (sheets - 1) * perSheet : perSheet;
    const auto addSheet = [this, lines](int copies) {
        bool isFirst = true;
        for (CellRow row : qAsConst(m_cellRows)) {
            if (lines == 0) {
                row.cell = markupWithText(row.cell, isFirst ? noDataText() : QString());
            }
            addCells(row, copies, lines > 0 ? Placeholders::OfLines : Placeholders::OfItem);
            isFirst = false;
        }
    };
    addSheet(perSheet);
    setWidths(0, m_tableWidth);
    m_made->m_cycle = m_cellRows.size();
    m_made->m_group = m_made->m_cycle;
    m_made->m_isSheet = true;
    m_made->m_linesPerCycle = perSheet;
    m_made->m_repeated = sheets * m_made->m_cycle;
    m_made->m_rowCount = m_made->m_repeated;
    m_made->m_isFrozen = m_item.freezesHeader;
    if (onLast < perSheet) {
        const int width = m_tableWidth - int(room / perSheet * (perSheet - onLast));
        addSheet(onLast);
        setWidths(m_made->m_cycle, width);
        m_made->m_lastTableTag =
            withAttribute(m_made->m_parts.tableTag, QLatin1String("width"), QString::number(width));
    }
}

void TemplateBuilder::buildAdaptive()
{
    const DataLines &lines = m_made->m_sources.values->lines();
    const CellRow first = m_cellRows.constFirst();
    const auto countOf = [](const QString &markup) {
        return TemplateText().append(markup);
    };
    const int around = countOf(first.prefix) + countOf(first.suffix);
    const int inCell = qMax(1, countOf(first.cell));
    const int wanted = (lines.longestLine() - around + inCell - 1) / inCell;
    const int copies = mostCopies(first, qMax(1, wanted));
    if (lines.count() > 0) {
        addCells(first, copies, Placeholders::InOrder);
    } else {
        addRow(noDataRow(first.prefix + first.cell + first.suffix), Placeholders::OfItem);
    }
    const int columns =
        columnsOf(first.prefix) + copies * columnsOf(first.cell) + columnsOf(first.suffix);
    for (const CellRow &row : m_cellRows.mid(1)) {
        const int left = columns - columnsOf(row.prefix) - columnsOf(row.suffix);
        addCells(row, qMax(1, left / qMax(1, columnsOf(row.cell))), Placeholders::OfItem);
    }
    setWidths(0, m_tableWidth);
    m_made->m_repeated = qMax(1, lines.count());
    m_made->m_rowCount = m_made->m_repeated + m_cellRows.size() - 1;
    m_made->m_isFrozen = m_item.freezesHeader;
}

} // namespace player
