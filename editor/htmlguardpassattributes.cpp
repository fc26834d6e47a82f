#include "htmlguardpass.h"

#include <QColor>

#include <algorithm>

namespace lctrlsex {

namespace {

constexpr double largestBorder = 999;
constexpr double largestSize = 16384;
constexpr double largestPercentage = 1000;
constexpr int largestSpan = 1000;
constexpr int mostRows = 1000000;
constexpr int largestFontStep = 10;

bool is(QStringView key, const char *name)
{
    return key.compare(QLatin1String(name), Qt::CaseInsensitive) == 0;
}

/** What an attribute means to the guard. */
enum class GuardedAttribute {
    None,
    Style,
    Loading,
    Color,
    Border,
    Padding,
    Spacing,
    Width,
    Height,
    ColumnSpan,
    RowSpan,
    Font,
    Align
};

GuardedAttribute findAttribute(QStringView key)
{
    static const struct
    {
        const char *name;
        GuardedAttribute meaning;
    } known[] = {
        {"style", GuardedAttribute::Style},         {"align", GuardedAttribute::Align},
        {"width", GuardedAttribute::Width},         {"height", GuardedAttribute::Height},
        {"border", GuardedAttribute::Border},       {"cellpadding", GuardedAttribute::Padding},
        {"cellspacing", GuardedAttribute::Spacing}, {"colspan", GuardedAttribute::ColumnSpan},
        {"rowspan", GuardedAttribute::RowSpan},     {"bgcolor", GuardedAttribute::Color},
        {"color", GuardedAttribute::Color},         {"bordercolor", GuardedAttribute::Color},
        {"size", GuardedAttribute::Font},           {"face", GuardedAttribute::Font},
        {"background", GuardedAttribute::Loading},
    };
    const ushort first = key[0].unicode() | 0x20U;
    for (const auto &attribute : known) {
        if (first == ushort(attribute.name[0]) && is(key, attribute.name)) {
            return attribute.meaning;
        }
    }
    return GuardedAttribute::None;
}

bool isHexColor(const QString &value)
{
    return value.size() == 7 && value.at(0) == QLatin1Char('#') &&
           std::all_of(value.begin() + 1, value.end(), [](QChar c) {
               const ushort u = c.unicode() | 0x20U;
               return (u >= '0' && u <= '9') || (u >= 'a' && u <= 'f');
           });
}

} // namespace

void HtmlGuardPass::readAttribute(const HtmlAttribute &attribute, ElementRequest *request)
{
    switch (findAttribute(attribute.key)) {
    case GuardedAttribute::None:
        break;
    case GuardedAttribute::Style:
        readStyle(attribute, request);
        break;
    case GuardedAttribute::Loading:
        drop(attribute.begin, attribute.end);
        break;
    case GuardedAttribute::Color:
        checkColor(attribute);
        break;
    case GuardedAttribute::Border:
        readNumber(attribute, largestBorder, &request->border);
        break;
    case GuardedAttribute::Padding:
        readNumber(attribute, largestBorder, &request->padding);
        break;
    case GuardedAttribute::Spacing:
        readNumber(attribute, largestBorder, &request->spacing);
        break;
    case GuardedAttribute::Width:
        readSize(attribute, &request->width);
        break;
    case GuardedAttribute::Height:
        readSize(attribute, &request->height);
        break;
    case GuardedAttribute::ColumnSpan:
        readInteger(attribute, 1, largestSpan, &request->columnSpan);
        break;
    case GuardedAttribute::RowSpan:
        readInteger(attribute, 1, mostRows, &request->rowSpan);
        request->rowSpanAttribute = &attribute;
        break;
    case GuardedAttribute::Font:
        readFont(attribute, request);
        break;
    case GuardedAttribute::Align:
        readAlignment(attribute, request);
        break;
    }
}

void HtmlGuardPass::readFont(const HtmlAttribute &attribute, ElementRequest *request)
{
    if (is(attribute.key, "size")) {
        int step = 0;
        readInteger(attribute, -largestFontStep, largestFontStep, &step);
    }
    request->fontKey = qHash(attribute.value, request->fontKey) | 1U;
}

void HtmlGuardPass::readAlignment(const HtmlAttribute &attribute, ElementRequest *request)
{
    const QString side = attributeText(attribute).toLower();
    const bool atSide = side == QLatin1String("left") || side == QLatin1String("right");
    request->floats = request->floats || (atSide && (m_element.traits & ImageTrait) != 0);
}

void HtmlGuardPass::readStyle(const HtmlAttribute &attribute, ElementRequest *request)
{
    const bool raw = attribute.quote == HtmlAttribute::Quote::Single ||
                     !attribute.value.contains(QLatin1Char('&'));
    ++request->styles;
    const QString decoded = raw ? QString() : decodeEntities(attribute.value);
    const CheckedStyle &style = m_styles.check(raw ? attribute.value : QStringView(decoded));
    if (style.unchanged) {
        request->style.merge(style.facts);
    } else if (style.text.isEmpty()) {
        drop(attribute.begin, attribute.end);
    } else {
        replaceAttribute(attribute, style.text);
    }
}

void HtmlGuardPass::readSize(const HtmlAttribute &attribute, double *size)
{
    QString text = attributeText(attribute);
    bool isNumber = false;
    (void)text.toDouble(&isNumber);
    const QString trimmed = text.trimmed();
    if (isNumber || !trimmed.endsWith(QLatin1Char('%'))) {
        readNumber(attribute, largestSize, size);
        return;
    }
    const double percentage = trimmed.leftRef(trimmed.size() - 1).toDouble(&isNumber);
    if (isNumber && !(percentage >= 0 && percentage <= largestPercentage)) {
        replaceAttribute(attribute,
                         percentage > 0 ? QStringLiteral("1000%") : QStringLiteral("0%"));
    }
}

void HtmlGuardPass::readNumber(const HtmlAttribute &attribute, double most, double *number)
{
    bool isNumber = false;
    double value = attributeText(attribute).toDouble(&isNumber);
    if (isNumber && !(value >= 0 && value <= most)) {
        value = value > most ? most : 0;
        replaceAttribute(attribute, QString::number(value, 'f', 0));
    }
    *number = std::max(*number, isNumber ? value : 0);
}

void HtmlGuardPass::readInteger(const HtmlAttribute &attribute, int least, int most, int *number)
{
    bool isNumber = false;
    const int value = attributeText(attribute).toInt(&isNumber);
    if (!isNumber) {
        return;
    }
    *number = std::clamp(value, least, most);
    if (value != *number) {
        replaceAttribute(attribute, QString::number(*number));
    }
}

void HtmlGuardPass::checkColor(const HtmlAttribute &attribute)
{
    // Qt complains in the log about each colour that it does not know.
    const QString value = attributeText(attribute);
    if (!isHexColor(value) && !QColor::isValidColor(value)) {
        drop(attribute.begin, attribute.end);
    }
}

} // namespace lctrlsex
