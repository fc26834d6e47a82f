#include "condition.h"
#include "floors.h"

#include <QRegularExpression>

#include <iterator>
#include <random>

using floors::Floor;
using namespace lctrlsex;

namespace {

constexpr int Count = 1000;
constexpr int PatternCount = 100;

/** Comparisons and intervals of every kind, none of which the value meets. */
QStringList unmetTexts()
{
    const QStringList kinds{
        QStringLiteral(">%1"),     QStringLiteral("<-%1"),    QStringLiteral(">=%1"),
        QStringLiteral("<=-%1"),   QStringLiteral("==%1"),    QStringLiteral("(%1,%2)"),
        QStringLiteral("[%1,%2]"), QStringLiteral("[%1,%2)"), QStringLiteral("(%1,)")};
    std::mt19937 numbers(1);
    QStringList texts;
    for (int i = 0; i < Count; ++i) {
        const int start = 100 + int(numbers() % 900);
        QString text = kinds.at(int(numbers() % unsigned(kinds.size())));
        text.replace(QLatin1String("%1"), QString::number(start));
        texts.append(text.replace(QLatin1String("%2"), QString::number(start + 50)));
    }
    return texts;
}

QVector<Condition> compiled(const QStringList &texts, int type = 0)
{
    QVector<Condition> conditions;
    for (const QString &text : texts) {
        SpanCondition stored;
        stored.type = type;
        stored.expression.append(text);
        conditions.append(Condition(stored));
    }
    return conditions;
}

/** What reading one number and comparing it with as many others takes. */
Floor compareFloor(const QString &value)
{
    std::vector<double> limits;
    for (int i = 0; i < Count; ++i) {
        limits.push_back(100 + i);
    }
    return {"compare", [value, limits] {
                const double number = value.toDouble();
                benchmark::DoNotOptimize(
                    std::find_if(limits.begin(), limits.end(),
                                 [number](double limit) { return number > limit; }));
            }};
}

/** Every text read again by expressions that are compiled once, as it would be without compiling.
 */
Floor staticPatternsFloor(const QStringList &texts)
{
    return {"patterns", [texts] {
                static const QRegularExpression comparison(
                    QStringLiteral("^(>|>=|<|<=|==|!=)\\s*(-?\\d*\\.?\\d*)$"));
                static const QRegularExpression interval(QStringLiteral(
                    "^([\\[\\(])\\s*(-?\\d*\\.?\\d*)?\\s*,\\s*(-?\\d*\\.?\\d*)?\\s*([\\]\\)])$"));
                for (const QString &text : texts) {
                    QRegularExpressionMatch match = comparison.match(text);
                    if (!match.hasMatch()) {
                        match = interval.match(text);
                    }
                    benchmark::DoNotOptimize(match.capturedRef(2).toDouble());
                }
            }};
}

void noneHolds(benchmark::State &state)
{
    const QStringList texts = unmetTexts();
    const QVector<Condition> conditions = compiled(texts);
    const QString value = QStringLiteral("21.5");
    const auto work = [&conditions, &value] {
        benchmark::DoNotOptimize(firstHolding(conditions, ConditionValue(value)));
    };
    if (firstHolding(conditions, ConditionValue(value)) != -1) {
        state.SkipWithError("a condition holds");
    }
    floors::besideFloors(state, work, {compareFloor(value), staticPatternsFloor(texts)});
}

/** A pattern on a value of so many characters, beside the same search without any bound. */
void pattern(benchmark::State &state)
{
    QStringList texts;
    std::fill_n(std::back_inserter(texts), PatternCount, QStringLiteral("^[A-Z].*|error"));
    const QVector<Condition> conditions = compiled(texts, 1);
    const QString value(int(state.range(0)), QLatin1Char('a'));
    const QRegularExpression bare(texts.first());
    floors::besideFloors(state,
                         [&conditions, &value] {
                             benchmark::DoNotOptimize(
                                 firstHolding(conditions, ConditionValue(value)));
                         },
                         {{"unbounded", [&bare, &value] {
                               for (int i = 0; i < PatternCount; ++i) {
                                   benchmark::DoNotOptimize(bare.match(value).hasMatch());
                               }
                           }}});
}

} // namespace

// Few rounds, because a round waits for floors that are hundreds of times as slow.
BENCHMARK(noneHolds)->Iterations(2000)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(pattern)
    ->ArgName("characters")
    ->Arg(5)
    ->Arg(30)
    ->Arg(100)
    ->Arg(1000)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

int main(int argc, char **argv)
{
    return floors::runBenchmarks(argc, argv);
}
