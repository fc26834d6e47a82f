#include "floors.h"
#include "lconditionalstyling.h"

#include <QApplication>

namespace {

constexpr int conditionsOfAnItem = 3;
constexpr int fewItems = 50;

DynamicData styles(int items)
{
    SpanCondition condition;
    condition.expression.append(QStringLiteral(">100"));
    condition.fontStyle.fontName = QStringLiteral("DejaVu Sans");
    condition.fontStyle.fontSize = 24;
    condition.key = QStringLiteral("Prices:price");
    DynamicData result;
    result.fields.append(condition.key);
    for (int i = 0; i < items; ++i) {
        FieldConditions entry;
        entry.name = QString::number(i);
        entry.conditions.fill(condition, conditionsOfAnItem);
        result.items.append(entry);
    }
    return result;
}

/** Makes the dialog, shows it and lets it paint; gives the number of its widgets. */
int openStyling(const DynamicData &edited)
{
    LConditionalStyling dialog;
    dialog.setDynamicData(edited);
    dialog.show();
    QApplication::processEvents();
    dialog.grab();
    return dialog.findChildren<QWidget *>().size();
}

void openConditionalStyling(benchmark::State &state)
{
    const DynamicData many = styles(int(state.range(0)));
    const DynamicData few = styles(fewItems);
    int widgets = 0;
    floors::besideFloors(state, [&widgets, &many] { widgets = openStyling(many); },
                         {{"50items", [&few] {
                               openStyling(few);
                           }}});
    state.counters["widgets"] = widgets;
}

} // namespace

BENCHMARK(openConditionalStyling)
    ->ArgName("items")
    ->Arg(1000)
    ->Iterations(9)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    return floors::runBenchmarks<QApplication>(argc, argv);
}
