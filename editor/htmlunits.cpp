#include "htmlunits.h"

#include <QRegularExpression>

namespace lctrlsex {

namespace {

bool isBlank(QChar c)
{
    return c == QLatin1Char(' ') || (c >= QLatin1Char('\t') && c <= QLatin1Char('\r'));
}

bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

/** Where the number ends that follows @p from, "\s*\d+\.?\d*" in short; -1 without a number. */
int numberEnd(const QString &html, int from)
{
    const int size = html.size();
    int i = from;
    while (i < size && isBlank(html.at(i))) {
        ++i;
    }
    const int digits = i;
    while (i < size && isDigit(html.at(i))) {
        ++i;
    }
    if (i == digits) {
        return -1;
    }
    if (i < size && html.at(i) == QLatin1Char('.')) {
        ++i;
    }
    while (i < size && isDigit(html.at(i))) {
        ++i;
    }
    return i;
}

/**
 * Both units have two letters, so no match moves another. Read by hand because a regular
 * expression takes the square of a long number's length and gives up at a lone surrogate.
 */
QString withUnit(QString html, QLatin1String from, QLatin1String to)
{
    const QLatin1String property("font-size:");
    bool isText = false;
    int read = 0;
    for (int found = html.indexOf(property); found >= 0; found = html.indexOf(property, found)) {
        for (; read < found; ++read) {
            const QChar c = qAsConst(html).at(read);
            isText = c == QLatin1Char('>') || (isText && c != QLatin1Char('<'));
        }
        found += property.size();
        const int end = numberEnd(html, found);
        // Kept on purpose because between tags it is what the author wrote, not a size.
        if (!isText && end >= 0 && html.midRef(end, from.size()) == from) {
            html.replace(end, from.size(), to);
        }
    }
    return html;
}

} // namespace

QString replacePtWithPx(const QString &html)
{
    // Kept on purpose because a point is a pixel: the number is neither scaled nor rounded.
    static const QRegularExpression marker(
        QStringLiteral("<meta\\s+content=\"1\"\\s+name=\"qrichtext\""));
    return withUnit(html, QLatin1String("pt"), QLatin1String("px"))
        .replace(marker, QStringLiteral("<meta name=\"qrichtext\" content=\"1\""));
}

QString replacePxWithPt(const QString &html)
{
    return withUnit(html, QLatin1String("px"), QLatin1String("pt"));
}

} // namespace lctrlsex
