// Whatever is read as records is written so that it is read again as it was, as the toolkit writes.

#include "conditionalstyles.h"
#include "recordsjson.h"

#include <QJsonDocument>

#include <cstdlib>

using namespace lctrlsex;

static void demand(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), int(size));
    if (text.contains(QChar::Null) || text.contains(QLatin1String("\\u0000"))) {
        return 0; // the toolkit takes names for equal that differ behind a null character
    }
    ConditionalStyles styles;
    QVector<CalculationCondition> calculations;
    const RecordsFault fault = stylesFromJson(text, &styles);
    demand(bool(calculationsFromJson(text, &calculations)) == bool(fault));
    demand(!fault || (styles.isEmpty() && calculations.isEmpty()));

    // The toolkit keeps integers beyond 2^53 until it hands them out; from then on they are
    // doubles.
    const QString json = stylesToJson(styles);
    demand(!stylesFromJson(json, &styles) && stylesToJson(styles) == json);
    demand(QString::fromUtf8(QJsonDocument::fromJson(json.toUtf8()).toJson()) == json);
    ConditionalStyles again;
    demand(!stylesFromJson(json, &again) && again == styles);
    again.clear();
    StyleFiler filer(&again);
    for (const FieldConditions &entry : combinedStyles(styles, {}).items) {
        filer.file(entry);
    }
    demand(again == styles);

    const QString list = calculationsToJson(calculations);
    demand(!calculationsFromJson(list, &calculations) && calculationsToJson(calculations) == list);
    demand(QString::fromUtf8(QJsonDocument::fromJson(list.toUtf8()).toJson()) == list);
    return 0;
}
