// The swap of units changes the units of sizes and nothing else.

#include "htmlunits.h"

#include <QRegularExpression>

#include <cstdlib>

using namespace lctrlsex;

namespace {

/** As the rule is stated; it knows no tags. */
QString literally(QString html, const char *from, const char *to)
{
    const QRegularExpression sizes(QStringLiteral("font-size:\\s*\\d+\\.?\\d*") + from);
    for (auto matches = sizes.globalMatch(html); matches.hasNext();) {
        html.replace(matches.next().capturedEnd() - 2, 2, QString(to));
    }
    return html;
}

/** Whether @p after is @p before with the units of some literal matches changed. */
bool isWithin(const QString &before, const QString &after, const QString &all)
{
    bool isFine = before.size() == after.size();
    for (int i = 0; isFine && i < before.size(); ++i) {
        isFine = after.at(i) == before.at(i) || after.at(i) == all.at(i);
    }
    return isFine;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QRegularExpression marker("<meta\\s+content=\"1\"\\s+name=\"qrichtext\"");
    const QString given = QString::fromUtf8(reinterpret_cast<const char *>(data), int(size));
    const QString html = QString(given).replace(marker, "<meta name=\"qrichtext\" content=\"1\"");
    const QString pixels = replacePtWithPx(given);
    const QString points = replacePxWithPt(html);
    const QString allPixels = literally(html, "pt", "px");
    const QString allPoints = literally(html, "px", "pt");
    const bool isText = html.contains('<') || html.contains('>');
    if (!isWithin(html, pixels, allPixels) || !isWithin(html, points, allPoints) ||
        replacePtWithPx(pixels) != pixels || replacePxWithPt(points) != points ||
        replacePxWithPt(pixels) != points || replacePtWithPx(points) != pixels ||
        (!isText && (pixels != allPixels || points != allPoints))) {
        std::abort();
    }
    return 0;
}
