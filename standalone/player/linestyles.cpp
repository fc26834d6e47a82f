#include "linestyles.h"

#include "conditionalstyles.h"

#include <QColor>

#include <algorithm>

namespace player {

using namespace lctrlsex;

namespace {

QColor unpacked(int color)
{
    return {color & 0xff, (color >> 8) & 0xff, (color >> 16) & 0xff};
}

/** A family as it may stand between single quotes in a style between double ones. */
QString quotedFamily(QString family)
{
    for (QChar &c : family) {
        if (c == QLatin1Char('\'') || c == QLatin1Char('\\') || c == QLatin1Char(';')) {
            c = QLatin1Char(' ');
        }
    }
    return family.toHtmlEscaped();
}

} // namespace

LineStyles::LineStyles(const QString &stored, ItemValues *values)
    : m_values(values)
{
    ConditionalStyles styles;
    stylesFromJson(stored, &styles);
    for (const FieldConditions &entry : combinedStyles(styles, {}).items) {
        const auto same = std::find_if(m_rules.begin(), m_rules.end(), [&entry](const Rule &rule) {
            return !entry.id.isEmpty() && rule.id == entry.id;
        });
        if (same != m_rules.end()) {
            same->parts.append(entry);
        } else {
            m_rules.push_back({entry.id, {entry}, false, {}});
        }
    }
}

int LineStyles::ruleOf(const QString &id)
{
    for (size_t i = 0; i < m_rules.size(); ++i) {
        if (!id.isEmpty() && m_rules[i].id == id) {
            if (!m_rules[i].isCompiled) {
                compile(&m_rules[i]);
            }
            return int(i);
        }
    }
    m_unknown.insert(id);
    return Unknown;
}

void LineStyles::compile(Rule *rule)
{
    rule->isCompiled = true;
    for (const FieldConditions &part : qAsConst(rule->parts)) {
        bool isOwn = true;
        ValueRef value;
        for (const SpanCondition &stored : part.conditions) {
            if (!stored.key.isEmpty()) {
                isOwn = false;
                value = m_values->field(stored.key);
            }
            rule->tests.push_back({Condition(stored), isOwn, value, stored.fontStyle});
        }
    }
}

int LineStyles::holding(int rule, int line, const QString &own)
{
    if (rule < 0 || rule >= int(m_rules.size())) {
        return None;
    }
    const std::vector<Test> &tests = m_rules[size_t(rule)].tests;
    for (size_t i = 0; i < tests.size(); ++i) {
        const Test &test = tests[i];
        const ConditionValue value(test.isOwn ? own : m_values->value(test.value, line));
        if (test.condition.holds(value, &m_budget)) {
            return int(i);
        }
    }
    return None;
}

const FontStyle &LineStyles::look(int rule, int condition) const
{
    return m_rules[size_t(rule)].tests[size_t(condition)].look;
}

QString LineStyles::declarations(int rule, int condition) const
{
    const FontStyle &font = look(rule, condition);
    QString text;
    if (!font.fontName.isEmpty()) {
        text += QStringLiteral("font-family:'%1'; ").arg(quotedFamily(font.fontName));
    }
    if (font.fontSize > 0) {
        text += QStringLiteral("font-size:%1px; ").arg(font.fontSize); // a point is a pixel
    }
    return text + QStringLiteral("font-weight:%1; font-style:%2; text-decoration:%3; color:%4; "
                                 "background-color:%5;")
                      .arg(font.bold ? QStringLiteral("600") : QStringLiteral("400"),
                           font.italic ? QStringLiteral("italic") : QStringLiteral("normal"),
                           font.underline ? QStringLiteral("underline") : QStringLiteral("none"),
                           unpacked(font.color).name(), unpacked(font.bgColor).name());
}

FieldStyle LineStyles::applied(int rule, int condition, FieldStyle style) const
{
    const FontStyle &font = look(rule, condition);
    if (!font.fontName.isEmpty()) {
        style.text.family = font.fontName;
    }
    if (font.fontSize > 0) {
        style.text.pointSize = font.fontSize;
    }
    style.text.bold = font.bold;
    style.text.italic = font.italic;
    style.text.underline = font.underline;
    style.text.color = unpacked(font.color);
    style.background = unpacked(font.bgColor);
    return style;
}

} // namespace player
