#include "condition.h"
#include "conditiondetail.h"
#include "shorttext.h"

#include <QCoreApplication>

namespace lctrlsex {

namespace {

struct ConditionTexts
{
    Q_DECLARE_TR_FUNCTIONS(ConditionTexts)
};

QString shown(const QString &text)
{
    return shortText(text, 60);
}

/** A number as it was written, a text in quotes. */
QString shownValue(const ConditionValue &value)
{
    return value.isNumber() ? shown(value.text().trimmed())
                            : ConditionTexts::tr("\"%1\"").arg(shown(value.text()));
}

const char *comparisonText(ConditionExpression::Operator comparison, bool holds)
{
    switch (comparison) {
    case ConditionExpression::Greater:
        return holds ? QT_TRANSLATE_NOOP("ConditionTexts", "%1 is greater than %2")
                     : QT_TRANSLATE_NOOP("ConditionTexts", "%1 is not greater than %2");
    case ConditionExpression::Less:
        return holds ? QT_TRANSLATE_NOOP("ConditionTexts", "%1 is less than %2")
                     : QT_TRANSLATE_NOOP("ConditionTexts", "%1 is not less than %2");
    case ConditionExpression::GreaterOrEqual:
        return holds ? QT_TRANSLATE_NOOP("ConditionTexts", "%1 is at least %2")
                     : QT_TRANSLATE_NOOP("ConditionTexts", "%1 is not at least %2");
    case ConditionExpression::LessOrEqual:
        return holds ? QT_TRANSLATE_NOOP("ConditionTexts", "%1 is at most %2")
                     : QT_TRANSLATE_NOOP("ConditionTexts", "%1 is not at most %2");
    case ConditionExpression::Equal:
    case ConditionExpression::NotEqual:
        break;
    }
    return holds == (comparison == ConditionExpression::Equal)
               ? QT_TRANSLATE_NOOP("ConditionTexts", "%1 equals %2")
               : QT_TRANSLATE_NOOP("ConditionTexts", "%1 does not equal %2");
}

QString explainComparison(const ConditionDetail &detail, const ConditionValue &value, bool holds)
{
    const ConditionValue operand(detail.expression.start);
    const char *const text = comparisonText(detail.expression.comparison, holds);
    return ConditionTexts::tr("%1 (condition %2)")
        .arg(ConditionTexts::tr(text).arg(shownValue(value), shownValue(operand)),
             shown(detail.text));
}

QString explainNumbers(const ConditionDetail &detail, const ConditionValue &value, bool holds)
{
    const auto comparison = detail.expression.comparison;
    const bool isComparison = detail.expression.kind == ConditionExpression::Comparison;
    if (detail.nonNumber) {
        return detail.nonNumber->isEmpty()
                   ? ConditionTexts::tr("%1 names no number and never holds")
                         .arg(shown(detail.text))
                   : ConditionTexts::tr("%1 never holds, because \"%2\" is not a number")
                         .arg(shown(detail.text), shown(*detail.nonNumber));
    }
    if (isComparison && (value.isNumber() || comparison == ConditionExpression::Equal ||
                         comparison == ConditionExpression::NotEqual)) {
        return explainComparison(detail, value, holds);
    }
    if (!value.isNumber()) {
        return ConditionTexts::tr("%1 is not a number, so %2 cannot hold")
            .arg(shownValue(value), shown(detail.text));
    }
    return (holds ? ConditionTexts::tr("%1 lies in %2")
                  : ConditionTexts::tr("%1 does not lie in %2"))
        .arg(shownValue(value), shown(detail.text));
}

QString explainPattern(const ConditionDetail &detail, const ConditionValue &value,
                       PatternSearch::Result result)
{
    const QString pattern = shown(detail.text);
    const QString quoted = ConditionTexts::tr("\"%1\"").arg(shown(value.text()));
    switch (result) {
    case PatternSearch::Found:
        return ConditionTexts::tr("the pattern %1 is found in %2").arg(pattern, quoted);
    case PatternSearch::NotFound:
        break;
    case PatternSearch::Broken:
        return ConditionTexts::tr("the pattern %1 is broken at character %2: %3")
            .arg(pattern, QString::number(detail.pattern->errorPosition()),
                 detail.pattern->errorText());
    case PatternSearch::PatternTooLong:
        return ConditionTexts::tr(
                   "the pattern %1 is longer than %2 characters and not searched for")
            .arg(pattern, QString::number(PatternSearch::MaxLength));
    case PatternSearch::ValueTooLong:
        return ConditionTexts::tr(
                   "the value %1 is longer than %2 characters and not searched for %3")
            .arg(quoted, QString::number(PatternSearch::MaxLength), pattern);
    case PatternSearch::TooSlow:
        return ConditionTexts::tr("searching %2 for the pattern %1 takes too long")
            .arg(pattern, quoted);
    case PatternSearch::BudgetSpent:
        return ConditionTexts::tr("the patterns before %1 took all the time of this refresh")
            .arg(pattern);
    }
    return ConditionTexts::tr("the pattern %1 is not found in %2").arg(pattern, quoted);
}

} // namespace

ConditionAnswer Condition::explain(const ConditionValue &value, PatternBudget *budget) const
{
    const ConditionDetail &detail = *m_detail;
    if (detail.text.isEmpty()) {
        return {false, ConditionTexts::tr("the condition is empty and never holds")};
    }
    if (value.isNull()) {
        return {false,
                ConditionTexts::tr("there is no value, so %1 cannot hold").arg(shown(detail.text))};
    }
    if (!detail.pattern) {
        const bool isMet = holds(value);
        return {isMet, explainNumbers(detail, value, isMet)};
    }
    const PatternSearch::Result result = detail.pattern->search(value.text(), budget);
    const QString reason = explainPattern(detail, value, result);
    return {
        result == PatternSearch::Found,
        detail.isAmbiguous
            ? ConditionTexts::tr("%1 (it is stored as a regular expression, not as a comparison)")
                  .arg(reason)
            : reason};
}

QString Condition::flaw() const
{
    const ConditionDetail &detail = *m_detail;
    if (detail.pattern) {
        const PatternSearch::Result flaw = detail.pattern->flaw();
        return flaw == PatternSearch::NotFound ? QString()
                                               : explainPattern(detail, ConditionValue({}), flaw);
    }
    const bool isFlawed = detail.text.isEmpty() || detail.nonNumber;
    return isFlawed ? explain(ConditionValue(QStringLiteral("0"))).explanation : QString();
}

} // namespace lctrlsex
