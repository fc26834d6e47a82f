#pragma once

#include "condition.h"
#include "itemvalues.h"
#include "table/fieldformat.h"

namespace player {

/**
 * The conditional styles of an item, compiled once and asked for many lines.
 *
 * Each condition tests the value of the field that it is bound to, or of the one before it is; what
 * is bound to nothing tests the text that the style was given to. The first that holds wins.
 */
class LineStyles
{
public:
    static constexpr int Unknown = -1; ///< A rule that is not there.
    static constexpr int None = -1;    ///< No condition holds.

    /** @p stored is JSON of the records; @p values outlives this. */
    LineStyles(const QString &stored, ItemValues *values);

    /** The rule of that identifier, Unknown when there is none. It is made ready then. */
    [[nodiscard]] int ruleOf(const QString &id);
    /**
     * Index of the first condition of @p rule that holds on @p line, None when none does; line -1
     * is outside the table. @p own is the text that the style was given to.
     */
    [[nodiscard]] int holding(int rule, int line, const QString &own);

    /** The style that a condition of a rule gives. */
    [[nodiscard]] const FontStyle &look(int rule, int condition) const;
    /** The same as declarations for a span, which may stand between double quotes. */
    [[nodiscard]] QString declarations(int rule, int condition) const;
    /** The same for a field image that looks like @p style otherwise. */
    [[nodiscard]] lctrlsex::FieldStyle applied(int rule, int condition,
                                               lctrlsex::FieldStyle style) const;

    /** Patterns get their time anew: to be called for each page. */
    void renewBudget() { m_budget = lctrlsex::PatternBudget(); }

    /** Identifiers that were asked for in vain. */
    [[nodiscard]] const QSet<QString> &unknownIds() const { return m_unknown; }

private:
    struct Test
    {
        lctrlsex::Condition condition;
        bool isOwn = false; ///< It tests the text that the style was given to.
        ValueRef value;
        FontStyle look;
    };
    struct Rule
    {
        QString id;
        QVector<FieldConditions> parts; ///< One a source that its conditions are bound to.
        bool isCompiled = false;
        std::vector<Test> tests; ///< Made when it is used first.
    };

    void compile(Rule *rule);

    ItemValues *m_values;
    std::vector<Rule> m_rules;
    QSet<QString> m_unknown;
    lctrlsex::PatternBudget m_budget;
};

} // namespace player
