#include "nodatarow.h"

#include "contentparts.h"
#include "htmltokens.h"

#include <QCoreApplication>

namespace player {

using namespace lctrlsex;

/** Texts of this file, under one name for translators. */
struct NoDataTexts
{
    Q_DECLARE_TR_FUNCTIONS(NoData)
};

QString markupWithText(const QString &markup, const QString &text)
{
    QString result;
    bool isWritten = false;
    HtmlTokenReader reader(markup);
    HtmlToken token;
    int lastCell = -1; // where text goes when there is none to replace
    while (reader.next(token)) {
        const QStringView typed = QStringView(markup).mid(token.begin, token.end - token.begin);
        const bool isTag = token.kind != HtmlToken::Kind::Text;
        const bool isImage =
            isTag && token.name.compare(QLatin1String("img"), Qt::CaseInsensitive) == 0;
        if (isTag && !isImage) {
            result.append(typed.data(), int(typed.size()));
        } else if (!isWritten && (isImage || !typed.trimmed().isEmpty())) {
            result += text.toHtmlEscaped();
            isWritten = true;
        }
        if (token.kind == HtmlToken::Kind::Open &&
            token.name.compare(QLatin1String("td"), Qt::CaseInsensitive) == 0) {
            lastCell = result.size();
        }
    }
    return isWritten || lastCell < 0 ? result : result.insert(lastCell, text.toHtmlEscaped());
}

QString noDataRow(const QString &markup)
{
    const QVector<CellMarkup> cells = cellsOf(markup);
    if (cells.isEmpty()) {
        return QStringLiteral("<tr><td>%1</td></tr>").arg(noDataText().toHtmlEscaped());
    }
    int columns = 0;
    double width = 0;
    for (const CellMarkup &cell : cells) {
        columns += cell.columns;
        width += qMax(0.0, cell.width);
    }
    const CellMarkup &first = cells.constFirst();
    QString tag = withAttribute(markup.mid(first.begin, first.tagEnd - first.begin),
                                QLatin1String("colspan"), QString::number(columns));
    tag = withAttribute(tag, QLatin1String("rowspan"), QStringLiteral("1"));
    if (first.width >= 0) {
        tag = withAttribute(tag, QLatin1String("width"), QString::number(width));
    }
    const QString content = markup.mid(first.tagEnd, first.end - first.tagEnd);
    return QLatin1String("<tr>") + markupWithText(tag + content, noDataText()) +
           QLatin1String("</tr>");
}

QString noDataText()
{
    return NoDataTexts::tr("No data");
}

} // namespace player
