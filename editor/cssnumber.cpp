#include "cssnumber.h"

#include <QColor>

#include <algorithm>
#include <cmath>

namespace lctrlsex {

namespace {

struct NamedRange
{
    QLatin1String prefix;
    CssRange range;
};

// The first prefix that fits decides.
const NamedRange ranges[] = {
    {QLatin1String("-qt-block-indent"), {0, 100}},
    {QLatin1String("-qt-list-indent"), {0, 100}},
    {QLatin1String("-qt-user-state"), {-2147483647.0, 2147483647.0}},
    {QLatin1String("font-size"), {1, 1000}},
    {QLatin1String("font"), {0, 1000}},
    {QLatin1String("line-height"), {0, 4096}},
    {QLatin1String("letter-spacing"), {-256, 256}},
    {QLatin1String("word-spacing"), {-256, 256}},
    {QLatin1String("margin"), {-4096, 4096}},
    {QLatin1String("text-indent"), {-4096, 4096}},
    {QLatin1String("padding"), {0, 999}},
    {QLatin1String("border"), {0, 999}},
    {QLatin1String("width"), {0, 16384}},
    {QLatin1String("height"), {0, 16384}},
};
constexpr CssRange anyRange = {-16384, 16384};

} // namespace

double CssNumber::pixels(double em) const
{
    if (unit == QLatin1String("pt")) {
        return value * 96 / 72;
    }
    return isRelative() ? value * em : value;
}

bool CssNumber::isRelative() const
{
    return unit == QLatin1String("em") || unit == QLatin1String("ex");
}

CssRange cssRangeOf(const QString &property)
{
    for (const NamedRange &named : ranges) {
        if (property.startsWith(named.prefix)) {
            return named.range;
        }
    }
    return anyRange;
}

CssNumber readCssNumber(const QString &component)
{
    static const QLatin1String units[] = {QLatin1String("px"), QLatin1String("pt"),
                                          QLatin1String("em"), QLatin1String("ex"),
                                          QLatin1String("%")};
    CssNumber number;
    QString digits = component.toLower();
    for (const QLatin1String &unit : units) {
        if (digits.endsWith(unit)) {
            number.unit = unit;
            digits.chop(unit.size());
            break;
        }
    }
    number.value = digits.toDouble(&number.valid);
    if (!number.valid && !digits.isEmpty()) {
        // "12furlong" and a number too large for a double still start like a number.
        const bool isSigned =
            digits.startsWith(QLatin1Char('+')) || digits.startsWith(QLatin1Char('-'));
        const QChar first = digits.at(isSigned && digits.size() > 1 ? 1 : 0);
        const bool numeric = first.isDigit() || first == QLatin1Char('.');
        number.valid = numeric && !component.startsWith(QLatin1Char('#'));
        number.value = number.valid ? std::nan("") : 0;
    }
    return number;
}

bool isPlainCssComponent(const QString &component)
{
    if (component.endsWith(QLatin1Char(')'))) {
        return component.indexOf(QLatin1Char('(')) > 0 && component.count(QLatin1Char(')')) == 1;
    }
    if (component.size() == 1 && !component.at(0).isLetterOrNumber()) {
        const QChar c = component.at(0);
        return c.isSpace() || c == QLatin1Char(',') || c == QLatin1Char('/');
    }
    if (component == QLatin1String("!important")) {
        return true;
    }
    if (component.startsWith(QLatin1Char('#'))) {
        // Qt complains in the log about each colour that it does not know.
        return QColor::isValidColor(component);
    }
    return std::all_of(component.begin(), component.end(), [](QChar c) {
        return c.isLetterOrNumber() || c == QLatin1Char('-') || c == QLatin1Char('_') ||
               c == QLatin1Char('.') || c == QLatin1Char('%');
    });
}

} // namespace lctrlsex
