#include "floors.h"
#include "operationchain.h"

#include <QCoreApplication>

using namespace lctrlsex;
using floors::Floor;

namespace {

constexpr int fields = 10;

/** Values of @p count rows: numbers as sensors write them. */
QVector<QVector<QString>> numberRows(int count)
{
    QVector<QVector<QString>> rows(count);
    for (int row = 0; row < count; ++row) {
        for (int field = 0; field < fields; ++field) {
            rows[row].append(QString::number(row * 0.37 + field, 'f', field % 4));
        }
    }
    return rows;
}

QVector<QString> fieldNames()
{
    QVector<QString> names;
    for (int field = 0; field < fields; ++field) {
        names.append(QStringLiteral("f%1").arg(field));
    }
    return names;
}

/** Steps var1, var2, ... from "operator,argument,argument" each. */
CalculationCondition calculation(const QStringList &steps)
{
    CalculationCondition result;
    for (const QString &step : steps) {
        QStringList parts = step.split(QLatin1Char(','));
        const QString func = parts.takeFirst();
        const QString name = QStringLiteral("var%1").arg(result.expressions.size() + 1);
        result.expressions.append({name, {func, parts}});
    }
    return result;
}

const QStringList arithmeticSteps = QStringLiteral("+,${f0},1 *,${f1},${var1} -,${var2},${f2} "
                                                   "/,${var3},${f3} +,${var4},${f4} *,${f5},1.8 "
                                                   "+,${var6},32 -,${var5},${var7} %,${f8},${f9} "
                                                   "+,${var8},${var9}")
                                        .split(QLatin1Char(' '));
const QStringList textSteps =
    QStringLiteral("strcat,${f0},;,${f1},;,${f2} split,${var1},; index,${var2},1 left,${var3},3 "
                   "+,${var4},${f3} decimal,${var5},2 mid,${var1},2,4 right,${f4},2 "
                   "strcat,${var6},${var7} strcat,${var9},${var8}")
        .split(QLatin1Char(' '));

/** Ten steps over many rows beside reading ten numbers of each. */
void tenSteps(benchmark::State &state, const QStringList &steps)
{
    const QVector<QVector<QString>> rows = numberRows(int(state.range(0)));
    const OperationChain chain(calculation(steps), fieldNames());
    const Floor toDouble{"toDouble", [&rows] {
                             for (const QVector<QString> &row : rows) {
                                 for (const QString &value : row) {
                                     benchmark::DoNotOptimize(value.toDouble());
                                 }
                             }
                         }};
    OperationResults results;
    floors::besideFloors(state,
                         [&rows, &chain, &results] {
                             for (const QVector<QString> &row : rows) {
                                 chain.evaluate(row, &results);
                                 benchmark::DoNotOptimize(chain.published(results));
                             }
                         },
                         {toDouble});
}

/** The dearest 64 steps of split or strcat: every one works on the longest text until it is too
 * much. */
void hostileSteps(benchmark::State &state)
{
    QVector<QString> values{QString(longestOperationText, QLatin1Char('a')),
                            QStringLiteral("aaaaaaab")};
    values[0].replace(1, 2, QStringLiteral(";;"));
    const QStringList kinds{QStringLiteral("split,${f0},;"), QStringLiteral("split,${f0},${f1}"),
                            QStringLiteral("strcat,${f0},"), QStringLiteral("split,${f0},a")};
    QStringList steps;
    for (int i = 0; i < 64; ++i) {
        steps.append(kinds.at(int(state.range(0))));
    }
    const OperationChain chain(calculation(steps), fieldNames());
    OperationResults results;
    const Floor copy{"memcpy", [&values] {
                         QString copied = values.at(0);
                         copied.detach();
                         benchmark::DoNotOptimize(copied);
                     }};
    floors::besideFloors(state, [&values, &chain, &results] { chain.evaluate(values, &results); },
                         {copy});
}

} // namespace

BENCHMARK_CAPTURE(tenSteps, arithmetic, arithmeticSteps)
    ->ArgName("rows")
    ->Arg(1000)
    ->Arg(100000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(tenSteps, texts, textSteps)
    ->ArgName("rows")
    ->Arg(1000)
    ->Arg(100000)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(hostileSteps)
    ->ArgName("kind")
    ->DenseRange(0, 3)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    return floors::runBenchmarks<QCoreApplication>(argc, argv);
}
