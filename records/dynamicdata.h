#pragma once

#include <QJsonObject>
#include <QMap>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVector>

/** How a field is drawn while a condition holds. */
struct FontStyle
{
    /** Font family. */
    QString fontName;
    /** Size in points. */
    int fontSize = 0;
    /** Text colour: red + green * 256 + blue * 65536, no alpha. */
    int color = 0;
    /** Background colour, encoded as the text colour. */
    int bgColor = 0;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    /** Members that a stored record had besides; written again with it. */
    QJsonObject others = {};
};

/** One condition of a conditional style. */
struct SpanCondition
{
    /** 1 for a regular expression, 0 for a comparison or an interval; the text tells which. */
    int type = 0;
    /** The condition as text: no entry (never meets) or one. */
    QStringList expression;
    /** The style applied while the condition holds. */
    FontStyle fontStyle;
    /** The bound field, in memory without its source's name; empty in the further conditions. */
    QString key;
    /** Members that a stored record had besides; written again with it. */
    QJsonObject others = {};
};

/** The conditions that stand together under one name: one row of the styling dialog. */
struct FieldConditions
{
    /** Identifier of the entry; kept as read. */
    QString id;
    /** Name that the user gave. */
    QString name;
    /** In order; the first that holds wins. */
    QVector<SpanCondition> conditions;
    /** Members that a stored record had besides; written again with it. */
    QJsonObject others = {};
};

/** The conditional styles of one data source. */
struct DynamicData
{
    /** Name of the data source. */
    QString name;
    /** Belongs to the host; carried through untouched. */
    QString hostText;
    /** Names of the fields that a condition can be bound to, as they are offered. */
    QStringList fields;
    /** The configuration items, in order. */
    QVector<FieldConditions> items;
};

/** A call of one of the operators of the calculations. */
struct FunctionCall
{
    /** Text of the operator, such as "+" or "split". */
    QString func;
    /** The arguments as text; "${name}" refers to a variable. */
    QStringList args;
    /** Members that a stored record had besides; written again with it. */
    QJsonObject others = {};
};

/** One step of a calculation. */
struct CalculationStep
{
    /** Name under which later steps use the result. */
    QString variableName;
    FunctionCall expression;
    /** Members that a stored record had besides; written again with it. */
    QJsonObject others = {};
};

/** One calculation: a chain of steps. */
struct CalculationCondition
{
    /** Identifier of the calculation; kept as read. */
    QString id;
    /** Name under which the result is published. */
    QString key;
    /** Value used before, or instead of, a computed one. */
    QString defaultValue;
    /** The steps, in order of evaluation. */
    QVector<CalculationStep> expressions;
    /** Members that a stored record had besides; written again with it. */
    QJsonObject others = {};
};

/** A variable that an argument can name. */
struct CalculationVariable
{
    /** Name as the user writes it. */
    QString name;
    /** What stands for it in an evaluation. */
    QString key;
};

/** What the operation dialog edits. */
struct CalculationDynamicData
{
    /** The variables on offer. */
    QVector<CalculationVariable> variables;
    /** The calculations, in order. */
    QVector<CalculationCondition> conditions;
    /** Current value by name; belongs to the host, carried through untouched. */
    QMap<QString, QString> values;
};

[[nodiscard]] bool operator==(const FontStyle &left, const FontStyle &right);
[[nodiscard]] bool operator==(const SpanCondition &left, const SpanCondition &right);
[[nodiscard]] bool operator==(const FieldConditions &left, const FieldConditions &right);
[[nodiscard]] bool operator==(const DynamicData &left, const DynamicData &right);
[[nodiscard]] bool operator==(const FunctionCall &left, const FunctionCall &right);
[[nodiscard]] bool operator==(const CalculationStep &left, const CalculationStep &right);
[[nodiscard]] bool operator==(const CalculationCondition &left, const CalculationCondition &right);
[[nodiscard]] bool operator==(const CalculationVariable &left, const CalculationVariable &right);
[[nodiscard]] bool operator==(const CalculationDynamicData &left,
                              const CalculationDynamicData &right);

[[nodiscard]] inline bool operator!=(const DynamicData &left, const DynamicData &right)
{
    return !(left == right);
}
[[nodiscard]] inline bool operator!=(const CalculationDynamicData &left,
                                     const CalculationDynamicData &right)
{
    return !(left == right);
}

Q_DECLARE_METATYPE(DynamicData)
Q_DECLARE_METATYPE(CalculationDynamicData)
