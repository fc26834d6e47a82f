#include "floors.h"
#include "recordsjson.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace lctrlsex;

namespace {

constexpr int Records = 10000;
constexpr int Rounds = 11;

ConditionalStyles manyStyles()
{
    ConditionalStyles styles;
    for (int i = 0; i < Records; ++i) {
        const QString source = QStringLiteral("source %1").arg(i % 10);
        FontStyle style;
        style.fontName = QStringLiteral("DejaVu Sans");
        style.fontSize = 6 + i % 60;
        style.color = i * 17;
        style.bold = i % 2 == 0;
        FieldConditions entry;
        entry.id = QStringLiteral("{6c2f0a4e-7d52-4f57-9d1e-%1}").arg(i, 12, 10, QLatin1Char('0'));
        entry.name = QStringLiteral("Configuration item_%1").arg(i);
        entry.conditions.append({0,
                                 {QStringLiteral("[%1,%2)").arg(i).arg(i + 9)},
                                 style,
                                 QStringLiteral("field %1").arg(i % 100)});
        styles[source].name = source;
        styles[source].items.append(entry);
    }
    return styles;
}

QVector<CalculationCondition> manyCalculations()
{
    QVector<CalculationCondition> calculations;
    for (int i = 0; i < Records; ++i) {
        CalculationCondition calculation;
        calculation.id = QString::number(i);
        calculation.key = QStringLiteral("mean of %1").arg(i);
        calculation.defaultValue = QStringLiteral("0");
        for (int step = 1; step <= 3; ++step) {
            calculation.expressions.append(
                {QStringLiteral("var%1").arg(step),
                 {QStringLiteral("+"), {QStringLiteral("${weather:wind}"), QStringLiteral("2")}}});
        }
        calculations.append(calculation);
    }
    return calculations;
}

QJsonObject toObject(const SpanCondition &condition, const QString &source)
{
    const FontStyle &style = condition.fontStyle;
    return {
        {QStringLiteral("type"), condition.type},
        {QStringLiteral("expression"), QJsonArray::fromStringList(condition.expression)},
        {QStringLiteral("fontStyle"), QJsonObject{{QStringLiteral("fontName"), style.fontName},
                                                  {QStringLiteral("fontSize"), style.fontSize},
                                                  {QStringLiteral("color"), style.color},
                                                  {QStringLiteral("bgColor"), style.bgColor},
                                                  {QStringLiteral("bold"), style.bold},
                                                  {QStringLiteral("italic"), style.italic},
                                                  {QStringLiteral("underline"), style.underline}}},
        {QStringLiteral("key"), source + QLatin1Char(':') + condition.key}};
}

/** What the toolkit's own document needs for the same text. */
QString throughDocument(const ConditionalStyles &styles)
{
    QJsonArray list;
    for (const DynamicData &source : styles) {
        for (const FieldConditions &entry : source.items) {
            QJsonArray conditions;
            for (const SpanCondition &condition : entry.conditions) {
                conditions.append(toObject(condition, source.name));
            }
            list.append(QJsonObject{{QStringLiteral("id"), entry.id},
                                    {QStringLiteral("name"), entry.name},
                                    {QStringLiteral("conditions"), conditions}});
        }
    }
    return QString::fromUtf8(QJsonDocument(list).toJson());
}

void parse(const QString &json)
{
    benchmark::DoNotOptimize(QJsonDocument::fromJson(json.toUtf8()));
}

void writeStyles(benchmark::State &state)
{
    const ConditionalStyles styles = manyStyles();
    if (stylesToJson(styles) != throughDocument(styles)) {
        state.SkipWithError("the texts differ");
        return;
    }
    floors::besideFloors(state, [&] { benchmark::DoNotOptimize(stylesToJson(styles)); },
                         {{"QJsonDocument", [&] {
                               benchmark::DoNotOptimize(throughDocument(styles));
                           }}});
}

void readStyles(benchmark::State &state)
{
    const QString json = stylesToJson(manyStyles());
    floors::besideFloors(state,
                         [&json] {
                             ConditionalStyles styles;
                             stylesFromJson(json, &styles);
                             benchmark::DoNotOptimize(styles);
                         },
                         {{"fromJson", [&json] {
                               parse(json);
                           }}});
}

void readCalculations(benchmark::State &state)
{
    const QString json = calculationsToJson(manyCalculations());
    floors::besideFloors(state,
                         [&json] {
                             QVector<CalculationCondition> calculations;
                             calculationsFromJson(json, &calculations);
                             benchmark::DoNotOptimize(calculations);
                         },
                         {{"fromJson", [&json] {
                               parse(json);
                           }}});
}

BENCHMARK(writeStyles)->UseManualTime()->Iterations(Rounds)->Unit(benchmark::kMillisecond);
BENCHMARK(readStyles)->UseManualTime()->Iterations(Rounds)->Unit(benchmark::kMillisecond);
BENCHMARK(readCalculations)->UseManualTime()->Iterations(Rounds)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    return floors::runBenchmarks(argc, argv);
}
