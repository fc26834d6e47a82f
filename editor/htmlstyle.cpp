#include "htmlstyle.h"

#include "cssnumber.h"

#include <QHash>
#include <QVector>

#include <algorithm>
#include <cmath>

namespace lctrlsex {

namespace {

constexpr int longestStyle = 8192;
constexpr int mostSheetRules = 16;
// A bare line height may be a factor, so only a small one leaves the lines of sane height.
constexpr double mostLineFactor = 10;
// The height of a font that the style does not name, and of the largest that it may name.
constexpr double ordinaryEm = 64;
constexpr double largestEm = 1500;
bool isAllowedFunction(QStringView name)
{
    static const QLatin1String names[] = {QLatin1String("rgb"), QLatin1String("rgba"),
                                          QLatin1String("hsl"), QLatin1String("hsla"),
                                          QLatin1String("hsv"), QLatin1String("hsva")};
    return std::any_of(std::begin(names), std::end(names), [name](QLatin1String known) {
        return name.compare(known, Qt::CaseInsensitive) == 0;
    });
}

/** Whether a declaration says, beyond doubt, that line heights are lengths or percentages. */
bool namesLineType(const QString &declaration)
{
    static const QLatin1String types[] = {QLatin1String("fixed"), QLatin1String("minimum"),
                                          QLatin1String("proportional"),
                                          QLatin1String("line-distance")};
    const QString text = declaration.simplified().toLower();
    return std::any_of(std::begin(types), std::end(types), [&text](QLatin1String type) {
        const QLatin1String property("-qt-line-height-type:");
        return text.startsWith(property) && text.mid(property.size()).trimmed() == type;
    });
}

/** Splits a style into declarations and each of them into components. */
class StyleReader
{
public:
    explicit StyleReader(const QString &style)
        : m_style(style)
        , m_em(style.contains(QLatin1String("font"), Qt::CaseInsensitive) ? largestEm : ordinaryEm)
    {}

    CheckedStyle read();

private:
    bool splitDeclarations();
    bool skipString(int *pos) const;
    void readDeclaration(const QString &declaration);
    bool splitValue(const QString &value, QStringList *components) const;
    bool boundValue(const QString &property, QStringList *components, bool *changed);
    QString boundedComponent(const QString &property, const QString &component);
    void note(const QString &property, const QString &component, const CssNumber &number);
    void noteBox(const QString &property, double pixels);
    void noteLineHeight(const CssNumber &number);
    void noteFont(const QString &property, const QString &value);

    QString m_style;
    double m_em = ordinaryEm;
    bool m_hasLineType = false;
    QStringList m_declarations;
    QStringList m_kept;
    CheckedStyle m_result;
};

bool StyleReader::skipString(int *pos) const
{
    const QChar quote = m_style.at(*pos);
    for (int i = *pos + 1; i < m_style.size(); ++i) {
        const QChar c = m_style.at(i);
        if (c == quote) {
            *pos = i;
            return true;
        }
        if (c == QLatin1Char('\n') || c == QLatin1Char('\r') || c == QLatin1Char('\f')) {
            return false;
        }
    }
    return false;
}

bool StyleReader::splitDeclarations()
{
    static const QLatin1String refused("\\{}[]@<>");
    int begin = 0;
    int depth = 0;
    for (int i = 0; i < m_style.size(); ++i) {
        const QChar c = m_style.at(i);
        if (c == QLatin1Char('"') || c == QLatin1Char('\'')) {
            if (!skipString(&i)) {
                return false;
            }
        } else if (c == QLatin1Char('(')) {
            ++depth;
        } else if (c == QLatin1Char(')')) {
            --depth;
        } else if (c == QLatin1Char(';') && depth == 0) {
            m_declarations += m_style.mid(begin, i - begin);
            begin = i + 1;
        } else if (c.unicode() < 0x80 && QString(refused).contains(c)) {
            return false;
        }
        if (depth < 0 || depth > 1) {
            return false;
        }
    }
    m_declarations += m_style.mid(begin);
    return depth == 0 && !m_style.contains(QLatin1String("/*")) &&
           !m_style.contains(QLatin1Char('\\'));
}

CheckedStyle StyleReader::read()
{
    if (m_style.size() > longestStyle || !splitDeclarations()) {
        m_result.unchanged = false;
        return m_result;
    }
    m_hasLineType = std::any_of(m_declarations.cbegin(), m_declarations.cend(), namesLineType);
    for (const QString &declaration : qAsConst(m_declarations)) {
        readDeclaration(declaration);
    }
    if (!m_result.unchanged) {
        m_result.text = m_kept.join(QLatin1Char(';'));
    }
    return m_result;
}

bool StyleReader::splitValue(const QString &value, QStringList *components) const
{
    QString component;
    for (int i = 0; i < value.size(); ++i) {
        const QChar c = value.at(i);
        int end = i;
        if (c == QLatin1Char('"') || c == QLatin1Char('\'')) {
            end = value.indexOf(c, i + 1);
        } else if (c == QLatin1Char('(')) {
            if (!isAllowedFunction(component)) {
                return false;
            }
            end = value.indexOf(QLatin1Char(')'), i + 1);
        } else if (c.isSpace() || c == QLatin1Char(',') || c == QLatin1Char('/')) {
            *components += component;
            *components += c;
            component.clear();
            continue;
        }
        if (end < 0) {
            return false;
        }
        component += value.midRef(i, end - i + 1);
        i = end;
    }
    *components += component;
    return true;
}

void StyleReader::readDeclaration(const QString &declaration)
{
    const int colon = declaration.indexOf(QLatin1Char(':'));
    const QString property = declaration.left(qMax(colon, 0)).trimmed().toLower();
    const QString value = declaration.mid(colon + 1);
    if (property.isEmpty()) {
        // Nothing Qt could use, but it may hide the start of something.
        if (!declaration.trimmed().isEmpty()) {
            m_result.unchanged = false;
        } else {
            m_kept += declaration;
        }
        return;
    }
    QStringList components;
    if (property == QLatin1String("-qt-fg-texture-cachekey") || !splitValue(value, &components)) {
        m_result.unchanged = false;
        return;
    }
    noteFont(property, value);
    const bool freeText = property == QLatin1String("font-family") ||
                          property.startsWith(QLatin1String("-qt-list-number"));
    bool changed = false;
    if (!freeText && !boundValue(property, &components, &changed)) {
        m_result.unchanged = false;
        return;
    }
    m_result.unchanged = m_result.unchanged && !changed;
    m_kept += changed ? declaration.left(colon + 1) + components.join(QString()) : declaration;
}

bool StyleReader::boundValue(const QString &property, QStringList *components, bool *changed)
{
    for (QString &component : *components) {
        if (!isPlainCssComponent(component) && !readCssNumber(component).valid) {
            return false;
        }
        const QString bounded = boundedComponent(property, component);
        *changed = *changed || bounded != component;
        component = bounded;
    }
    return true;
}

QString StyleReader::boundedComponent(const QString &property, const QString &component)
{
    CssNumber number = readCssNumber(component);
    if (!number.valid) {
        note(property, component, number);
        return component;
    }
    CssRange range = cssRangeOf(property);
    if (property == QLatin1String("line-height") && number.unit.isEmpty()) {
        // Behind -qt-line-height-type a bare number is a length or a percentage, not a factor.
        range.most = m_hasLineType ? range.most : mostLineFactor;
    } else if (property == QLatin1String("line-height") && number.unit == QLatin1String("%")) {
        range.most = mostLineFactor * 100;
    }
    if (number.isRelative()) {
        range = {range.least / ordinaryEm, range.most / ordinaryEm};
    }
    const bool inside = number.value >= range.least && number.value <= range.most;
    if (!inside) {
        const double nearest = number.value > range.most ? range.most : range.least;
        number.value = std::isnan(number.value) ? qMax(range.least, 0.0) : nearest;
    }
    note(property, component, number);
    return inside ? component : QString::number(number.value, 'f', 0) + number.unit;
}

void StyleReader::noteBox(const QString &property, double pixels)
{
    const bool sideways =
        property.endsWith(QLatin1String("left")) || property.endsWith(QLatin1String("right"));
    const bool upright =
        property.endsWith(QLatin1String("top")) || property.endsWith(QLatin1String("bottom"));
    // The shorthand forms stand for all sides, whatever the count of their numbers.
    m_result.facts.marginGiven =
        m_result.facts.marginGiven || property == QLatin1String("margin-top");
    const double both = sideways || upright ? 1 : 2;
    if (!upright) {
        m_result.facts.sideways += both * std::abs(pixels);
    }
    if (!sideways) {
        m_result.facts.upright += both * std::abs(pixels);
    }
}

void StyleReader::noteLineHeight(const CssNumber &number)
{
    StyleFacts &facts = m_result.facts;
    if (number.unit == QLatin1String("%")) {
        facts.lineFactor = qMax(facts.lineFactor, number.value / 100);
        facts.lineHeight = qMax(facts.lineHeight, m_hasLineType ? number.value : 0);
    } else if (number.unit.isEmpty()) {
        const double factor = m_hasLineType ? number.value / 100 : number.value;
        facts.lineFactor = qMax(facts.lineFactor, factor);
        facts.lineHeight = qMax(facts.lineHeight, m_hasLineType ? number.value : 0);
    } else {
        facts.lineHeight = qMax(facts.lineHeight, number.pixels(m_em));
    }
}

void StyleReader::note(const QString &property, const QString &component, const CssNumber &number)
{
    StyleFacts &facts = m_result.facts;
    if (property == QLatin1String("float")) {
        facts.floats =
            facts.floats || component.compare(QLatin1String("none"), Qt::CaseInsensitive);
    }
    facts.keepsSpace = facts.keepsSpace || property == QLatin1String("white-space");
    facts.emptyParagraph = facts.emptyParagraph || property == QLatin1String("-qt-paragraph-type");
    facts.rootFrame =
        facts.rootFrame || (property == QLatin1String("-qt-table-type") &&
                            component.compare(QLatin1String("root"), Qt::CaseInsensitive) == 0);
    if (!number.valid) {
        return;
    }
    if (property == QLatin1String("font-size") || property == QLatin1String("font")) {
        // Qt passes over any unit but points and whole pixels.
        bool whole = false;
        (void)component.chopped(number.unit.size()).toInt(&whole);
        const bool heeded =
            number.unit == QLatin1String("pt") || (whole && number.unit == QLatin1String("px"));
        facts.fontSize = heeded ? qMax(facts.fontSize, number.pixels(m_em)) : facts.fontSize;
    } else if (property == QLatin1String("line-height")) {
        noteLineHeight(number);
    } else if (property == QLatin1String("letter-spacing") ||
               property == QLatin1String("word-spacing")) {
        facts.letterSpacing += std::abs(number.pixels(m_em));
    } else if (property == QLatin1String("text-indent")) {
        facts.sideways += std::abs(number.pixels(m_em));
    } else if (property == QLatin1String("-qt-block-indent")) {
        facts.sideways += number.value * 40;
    } else if (property.startsWith(QLatin1String("margin")) ||
               property.startsWith(QLatin1String("padding")) ||
               property.startsWith(QLatin1String("border"))) {
        noteBox(property, number.pixels(m_em));
        const bool border = property.startsWith(QLatin1String("border"));
        facts.border = qMax(facts.border, border ? number.pixels(m_em) : 0.0);
    }
}

void StyleReader::noteFont(const QString &property, const QString &value)
{
    if (property.startsWith(QLatin1String("font")) || property.endsWith(QLatin1String("spacing")) ||
        property == QLatin1String("text-transform")) {
        m_result.facts.fontKey = qHash(property + value, m_result.facts.fontKey) | 1U;
    }
}

} // namespace

void StyleFacts::merge(const StyleFacts &other)
{
    fontSize = qMax(fontSize, other.fontSize);
    sideways += other.sideways;
    upright += other.upright;
    border = qMax(border, other.border);
    lineHeight = qMax(lineHeight, other.lineHeight);
    lineFactor = qMax(lineFactor, other.lineFactor);
    letterSpacing += other.letterSpacing;
    fontKey = fontKey * 31U + other.fontKey;
    marginGiven = marginGiven || other.marginGiven;
    keepsSpace = keepsSpace || other.keepsSpace;
    floats = floats || other.floats;
    emptyParagraph = emptyParagraph || other.emptyParagraph;
    rootFrame = rootFrame || other.rootFrame;
}

CheckedStyle checkStyle(const QString &style)
{
    return StyleReader(style).read();
}

const CheckedStyle &StyleCache::check(QStringView style)
{
    const uint seed = uint(style.size());
    const QChar middle = style.isEmpty() ? QChar() : style[style.size() / 2];
    const QChar late = style.size() < 4 ? QChar() : style[style.size() - 3];
    Entry &entry = m_entries[(seed * 31U + middle.unicode() * 7U + late.unicode()) % 64U];
    if (QStringView(entry.style) != style) {
        entry.style = style.toString();
        entry.checked = checkStyle(entry.style);
    }
    return entry.checked;
}

bool styleSheetIsHarmless(QStringView css, StyleFacts *facts)
{
    if (css.size() > longestStyleSheet || css.contains(QLatin1Char('&'))) {
        return false;
    }
    static const QString selectorSigns = QStringLiteral(".,#*:-_ \t\r\n");
    int begin = 0;
    for (int rules = 0; rules <= mostSheetRules; ++rules) {
        const qsizetype open = css.indexOf(QLatin1Char('{'), begin);
        if (open < 0) {
            return css.mid(begin).trimmed().isEmpty();
        }
        const QStringView selector = css.mid(begin, open - begin);
        const bool plain = std::all_of(selector.begin(), selector.end(), [](QChar c) {
            return (c.unicode() < 0x80 && c.isLetterOrNumber()) || selectorSigns.contains(c);
        });
        const qsizetype close = css.indexOf(QLatin1Char('}'), open);
        if (!plain || close < 0 || rules == mostSheetRules) {
            return false;
        }
        const CheckedStyle checked = checkStyle(css.mid(open + 1, close - open - 1).toString());
        if (!checked.unchanged || checked.facts.floats) {
            return false;
        }
        facts->merge(checked.facts);
        begin = int(close) + 1;
    }
    return false;
}

} // namespace lctrlsex
