#include "recordsjson.h"

#include "conditionalstyles.h"
#include "indentedjson.h"
#include "objectreader.h"

#include <QCoreApplication>
#include <QJsonDocument>

namespace lctrlsex {

namespace {

struct RecordTexts
{
    Q_DECLARE_TR_FUNCTIONS(RecordTexts)
};

void write(IndentedJson *json, const FontStyle &style)
{
    RecordWriter object(json, style.others);
    object.member(QLatin1String("bgColor"), style.bgColor);
    object.member(QLatin1String("bold"), style.bold);
    object.member(QLatin1String("color"), style.color);
    object.member(QLatin1String("fontName"), style.fontName);
    object.member(QLatin1String("fontSize"), style.fontSize);
    object.member(QLatin1String("italic"), style.italic);
    object.member(QLatin1String("underline"), style.underline);
}

FontStyle fontStyle(const QJsonObject &object)
{
    FontStyle style;
    ObjectReader reader(object);
    reader.read(QLatin1String("bgColor"), &style.bgColor);
    reader.read(QLatin1String("bold"), &style.bold);
    reader.read(QLatin1String("color"), &style.color);
    reader.read(QLatin1String("fontName"), &style.fontName);
    reader.read(QLatin1String("fontSize"), &style.fontSize);
    reader.read(QLatin1String("italic"), &style.italic);
    reader.read(QLatin1String("underline"), &style.underline);
    style.others = reader.others();
    return style;
}

void write(IndentedJson *json, const SpanCondition &condition, const QString &source)
{
    RecordWriter object(json, condition.others);
    object.member(QLatin1String("expression"), condition.expression);
    object.member(QLatin1String("fontStyle"), condition.fontStyle == FontStyle(),
                  [&] { write(json, condition.fontStyle); });
    object.member(QLatin1String("key"), qualified(source, condition.key));
    object.member(QLatin1String("type"), condition.type);
}

SpanCondition spanCondition(const QJsonObject &object)
{
    SpanCondition condition;
    ObjectReader reader(object);
    reader.read(QLatin1String("expression"), &condition.expression);
    condition.fontStyle = fontStyle(reader.object(QLatin1String("fontStyle")));
    reader.read(QLatin1String("key"), &condition.key);
    reader.read(QLatin1String("type"), &condition.type);
    condition.others = reader.others();
    return condition;
}

void write(IndentedJson *json, const FieldConditions &entry, const QString &source)
{
    RecordWriter object(json, entry.others);
    object.member(QLatin1String("conditions"), entry.conditions.isEmpty(), [&] {
        json->beginArray();
        for (const SpanCondition &condition : entry.conditions) {
            write(json, condition, source);
        }
        json->endArray();
    });
    object.member(QLatin1String("id"), entry.id);
    object.member(QLatin1String("name"), entry.name);
}

FieldConditions fieldConditions(const QJsonObject &object)
{
    FieldConditions entry;
    ObjectReader reader(object);
    reader.readArray(QLatin1String("conditions"), [&entry](const QJsonObject &element) {
        entry.conditions.append(spanCondition(element));
    });
    reader.read(QLatin1String("id"), &entry.id);
    reader.read(QLatin1String("name"), &entry.name);
    entry.others = reader.others();
    return entry;
}

void write(IndentedJson *json, const CalculationStep &step)
{
    RecordWriter object(json, step.others);
    object.member(QLatin1String("expression"), step.expression == FunctionCall(), [&] {
        RecordWriter call(json, step.expression.others);
        call.member(QLatin1String("args"), step.expression.args);
        call.member(QLatin1String("func"), step.expression.func);
    });
    object.member(QLatin1String("variableName"), step.variableName);
}

CalculationStep calculationStep(const QJsonObject &object)
{
    CalculationStep step;
    ObjectReader reader(object);
    ObjectReader call(reader.object(QLatin1String("expression")));
    call.read(QLatin1String("args"), &step.expression.args);
    call.read(QLatin1String("func"), &step.expression.func);
    step.expression.others = call.others();
    reader.read(QLatin1String("variableName"), &step.variableName);
    step.others = reader.others();
    return step;
}

void write(IndentedJson *json, const CalculationCondition &calculation)
{
    RecordWriter object(json, calculation.others);
    object.member(QLatin1String("defaultValue"), calculation.defaultValue);
    object.member(QLatin1String("expressions"), calculation.expressions.isEmpty(), [&] {
        json->beginArray();
        for (const CalculationStep &step : calculation.expressions) {
            write(json, step);
        }
        json->endArray();
    });
    object.member(QLatin1String("id"), calculation.id);
    object.member(QLatin1String("key"), calculation.key);
}

CalculationCondition calculationCondition(const QJsonObject &object)
{
    CalculationCondition calculation;
    ObjectReader reader(object);
    reader.read(QLatin1String("defaultValue"), &calculation.defaultValue);
    reader.readArray(QLatin1String("expressions"), [&calculation](const QJsonObject &element) {
        calculation.expressions.append(calculationStep(element));
    });
    reader.read(QLatin1String("id"), &calculation.id);
    reader.read(QLatin1String("key"), &calculation.key);
    calculation.others = reader.others();
    return calculation;
}

/** Hands the elements of the array that @p json is to @p take. */
template <class Take>
RecordsFault readRecords(const QString &json, const Take &take)
{
    if (json.isEmpty()) {
        return {};
    }
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(json.toUtf8(), &error);
    if (error.error != QJsonParseError::NoError) {
        return {error.errorString(), error.offset};
    }
    if (!document.isArray()) {
        return {RecordTexts::tr("a list is expected"), 0};
    }
    const QJsonArray array = document.array();
    for (const QJsonValue &element : array) {
        take(element.toObject());
    }
    return {};
}

} // namespace

QString stylesToJson(const ConditionalStyles &styles)
{
    IndentedJson json;
    json.beginArray();
    for (auto source = styles.cbegin(); source != styles.cend(); ++source) {
        for (const FieldConditions &entry : source->items) {
            write(&json, entry, source.key());
        }
    }
    json.endArray();
    return json.take();
}

RecordsFault stylesFromJson(const QString &json, ConditionalStyles *styles)
{
    styles->clear();
    StyleFiler filer(styles);
    return readRecords(
        json, [&filer](const QJsonObject &element) { filer.file(fieldConditions(element)); });
}

QString calculationsToJson(const QVector<CalculationCondition> &calculations)
{
    IndentedJson json;
    json.beginArray();
    for (const CalculationCondition &calculation : calculations) {
        write(&json, calculation);
    }
    json.endArray();
    return json.take();
}

RecordsFault calculationsFromJson(const QString &json, QVector<CalculationCondition> *calculations)
{
    calculations->clear();
    return readRecords(json, [calculations](const QJsonObject &element) {
        calculations->append(calculationCondition(element));
    });
}

} // namespace lctrlsex
