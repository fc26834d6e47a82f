#include "dynamicdata.h"

#include <tuple>

static auto fields(const FontStyle &record)
{
    return std::tie(record.fontName, record.fontSize, record.color, record.bgColor, record.bold,
                    record.italic, record.underline, record.others);
}

static auto fields(const SpanCondition &record)
{
    return std::tie(record.type, record.expression, record.fontStyle, record.key, record.others);
}

static auto fields(const FieldConditions &record)
{
    return std::tie(record.id, record.name, record.conditions, record.others);
}

static auto fields(const DynamicData &record)
{
    return std::tie(record.name, record.hostText, record.fields, record.items);
}

static auto fields(const FunctionCall &record)
{
    return std::tie(record.func, record.args, record.others);
}

static auto fields(const CalculationStep &record)
{
    return std::tie(record.variableName, record.expression, record.others);
}

static auto fields(const CalculationCondition &record)
{
    return std::tie(record.id, record.key, record.defaultValue, record.expressions, record.others);
}

static auto fields(const CalculationVariable &record)
{
    return std::tie(record.name, record.key);
}

static auto fields(const CalculationDynamicData &record)
{
    return std::tie(record.variables, record.conditions, record.values);
}

bool operator==(const FontStyle &left, const FontStyle &right)
{
    return fields(left) == fields(right);
}

bool operator==(const SpanCondition &left, const SpanCondition &right)
{
    return fields(left) == fields(right);
}

bool operator==(const FieldConditions &left, const FieldConditions &right)
{
    return fields(left) == fields(right);
}

bool operator==(const DynamicData &left, const DynamicData &right)
{
    return fields(left) == fields(right);
}

bool operator==(const FunctionCall &left, const FunctionCall &right)
{
    return fields(left) == fields(right);
}

bool operator==(const CalculationStep &left, const CalculationStep &right)
{
    return fields(left) == fields(right);
}

bool operator==(const CalculationCondition &left, const CalculationCondition &right)
{
    return fields(left) == fields(right);
}

bool operator==(const CalculationVariable &left, const CalculationVariable &right)
{
    return fields(left) == fields(right);
}

bool operator==(const CalculationDynamicData &left, const CalculationDynamicData &right)
{
    return fields(left) == fields(right);
}
