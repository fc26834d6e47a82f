#include "htmlunits.h"

#include <QRegularExpression>

namespace lctrlsex {

namespace {

/** Both units have two letters, so no match moves another. */
QString withUnit(QString html, const QRegularExpression &sizes, const QString &unit)
{
    QRegularExpressionMatchIterator matches = sizes.globalMatch(html);
    while (matches.hasNext()) {
        html.replace(matches.next().capturedEnd() - unit.size(), unit.size(), unit);
    }
    return html;
}

} // namespace

QString replacePtWithPx(const QString &html)
{
    // Kept on purpose because a point is a pixel: the number is neither scaled nor rounded.
    static const QRegularExpression points(QStringLiteral("font-size:\\s*\\d+\\.?\\d*pt"));
    static const QRegularExpression marker(
        QStringLiteral("<meta\\s+content=\"1\"\\s+name=\"qrichtext\""));
    return withUnit(html, points, QStringLiteral("px"))
        .replace(marker, QStringLiteral("<meta name=\"qrichtext\" content=\"1\""));
}

QString replacePxWithPt(const QString &html)
{
    static const QRegularExpression pixels(QStringLiteral("font-size:\\s*\\d+\\.?\\d*px"));
    return withUnit(html, pixels, QStringLiteral("pt"));
}

} // namespace lctrlsex
