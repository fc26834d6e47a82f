// Tables by a grammar, some of them broken: what is read must be well-formed to a real parser, what
// is cut must be put together again, and what is outlined must stand where it is said to stand.

#include "choices.h"
#include "table/tablemarkup.h"
#include "table/tabletemplate.h"

#include <QDomDocument>
#include <QStringList>

#include <cstdlib>

using namespace lctrlsex;

namespace {

QString attributes(Choices *choices)
{
    static const char *const values[] = {"",
                                         " width=\"90\"",
                                         " style='a:b'",
                                         " style=\" border-width:2px; \"",
                                         " rowspan=\"2\"",
                                         " colspan=\"2\"",
                                         " rowspan='-1' colspan=\"99999999999\"",
                                         " a = '\\' b=\">\"",
                                         " WIDTH='5' style=\"x\" width=\"1e9\"",
                                         " x=\"&lt;&#65;\""};
    return QLatin1String(choices->oneOf(values)) + QLatin1String(choices->oneOf(values));
}

QString content(Choices *choices, int depth);

QString element(const char *name, Choices *choices, const QString &inside)
{
    const QString tag = QLatin1String(name);
    if (choices->onceIn(16)) {
        return QStringLiteral("<%1%2/>").arg(tag, attributes(choices));
    }
    return QStringLiteral("<%1").arg(tag) + attributes(choices) + QLatin1Char('>') + inside +
           QStringLiteral("</%1>").arg(tag);
}

QString table(Choices *choices, int depth)
{
    QString rows;
    for (int row = choices->below(4); row >= 0; --row) {
        QString cells;
        for (int cell = choices->below(4); cell > 0; --cell) {
            cells += element("td", choices, content(choices, depth + 1));
        }
        static const char *const sections[] = {"", "", "thead", "tbody", "b"};
        const QString section = QLatin1String(choices->oneOf(sections));
        const QString tr = element("tr", choices, cells);
        rows += section.isEmpty() ? tr : QStringLiteral("<%1>\n%2</%1>").arg(section, tr);
    }
    return element("table", choices, rows);
}

QString content(Choices *choices, int depth)
{
    QString text;
    for (int count = choices->below(3); count > 0; --count) {
        static const char *const pieces[] = {
            "${i}",       " ",       "a<b>x</b>",        "&amp;", "&nbsp;", "]] ",
            "<!-- - -->", "<?a b?>", "<![CDATA[<td>]]>", ">"};
        text += depth < 3 && choices->onceIn(12) ? table(choices, depth)
                                                 : QLatin1String(choices->oneOf(pieces));
    }
    return text;
}

/** Takes out or doubles some characters. */
QString damaged(QString html, Choices *choices)
{
    for (int count = choices->below(4) - 1; count > 0 && !html.isEmpty(); --count) {
        const int at = (choices->below(256) * 256 + choices->below(256)) % html.size();
        html = html.left(at) + html.mid(at + choices->below(3) - 1);
    }
    return html;
}

void need(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

bool isSame(const TableOutline &left, const TableOutline &right)
{
    const auto same = [](MarkupSpan one, MarkupSpan other) {
        return one.begin == other.begin && one.end == other.end;
    };
    bool isEqual = same(left.inside, right.inside) && left.rows.size() == right.rows.size();
    for (size_t row = 0; isEqual && row < left.rows.size(); ++row) {
        const OutlinedRow &one = left.rows[row];
        const OutlinedRow &other = right.rows[row];
        isEqual = same(one.span, other.span) && one.cells.size() == other.cells.size() &&
                  one.section == other.section;
        for (size_t i = 0; isEqual && i < one.cells.size(); ++i) {
            isEqual = same(one.cells[i].span, other.cells[i].span) &&
                      one.cells[i].column == other.cells[i].column;
        }
    }
    return isEqual;
}

void check(const QString &html, int type, bool hasHeader)
{
    const TableTemplate cut = cutTemplate(html, type, hasHeader);
    if (cut.outcome != TableTemplate::Cut) {
        return;
    }
    const QString placeholder = QLatin1String("${") + cut.token + QLatin1Char('}');
    need(cut.content.count(placeholder) == 1 && findTable(cut.content).isWellFormed);
    if (type == 1) {
        need(QString(cut.content).replace(placeholder, cut.part) == html);
    } else if (type > 1) {
        const QStringList prefixes = cut.prefix.split(cut.separator);
        const QStringList parts = cut.part.split(cut.separator);
        const QStringList suffixes = cut.suffix.split(cut.separator);
        need(prefixes.size() == parts.size() && parts.size() == suffixes.size());
        for (int i = 0; i < parts.size(); ++i) {
            need(findTable(prefixes.at(i) + parts.at(i) + suffixes.at(i)).isWellFormed);
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    Choices choices(data, size);
    const int type = choices.below(4);
    const bool hasHeader = choices.below(2) == 1;
    const bool isWhole = choices.below(2) == 0;
    const QString body = QLatin1String("<!DOCTYPE html>\n<html><body>") + table(&choices, 0) +
                         QLatin1String("</body></html>");
    const QString html = isWhole ? body : damaged(body, &choices);
    const FoundTable found = findTable(html);
    QDomDocument parsed;
    need(found.isWellFormed ? parsed.setContent(html) : !isWhole);
    const OutlinedHtml unified =
        unifyAndOutline(html, {type, QStringLiteral("a\"&<"), hasHeader, true, false});
    const FoundTable again = findTable(unified.html);
    need(again.isWellFormed == found.isWellFormed);
    if (found.isWellFormed) {
        need(again.hasTable == unified.found.hasTable && isSame(again.table, unified.found.table));
        check(unified.html, type, hasHeader);
    }
    return 0;
}
