#pragma once

#include "dynamicdata.h"
#include "operationresult.h"

#include <QRegularExpression>
#include <QVariant>

#include <cmath>

/** The rules of the operators taken at their word: maps, patterns, nothing prepared. */
class LiteralOperations
{
public:
    QMap<QString, QString> variables;
    QMap<QString, QVariant> results;

    /** What a step yields, invalid for no result; it is an entry of results then. */
    QVariant evaluate(const CalculationStep &step)
    {
        QVariant value = valueOf(step.expression);
        const bool isLong = textOf(value).size() > lctrlsex::longestOperationText ||
                            value.toStringList().size() > lctrlsex::mostOperationElements;
        return results[step.variableName] = isLong ? QVariant() : value;
    }

    static QString textOf(const QVariant &value)
    {
        return value.type() == QVariant::StringList ? value.toStringList().join('\n')
                                                    : value.toString();
    }

private:
    using Argument = QPair<QString, bool>; // true for a value, which names nothing

    Argument named(const QString &written) const
    {
        static const QRegularExpression braces("^\\$\\{|\\}$");
        const QString name = QString(written).remove(braces);
        return variables.contains(name) ? Argument(variables[name], true) : Argument(name, false);
    }

    QString resolved(const Argument &argument) const
    {
        const bool isStep = !argument.second && argument.first.startsWith("var");
        return isStep ? textOf(results.value(argument.first)) : argument.first;
    }

    static QVariant calculated(const QString &func, const QStringList &operands)
    {
        double value = 0;
        for (int i = 0; i < operands.size(); ++i) {
            bool ok = false;
            const double operand = operands[i].toDouble(&ok);
            if (!ok) {
                return {};
            }
            const bool isSkipped = operand == 0 && (func == "/" || func == "%");
            value = i == 0        ? operand
                    : isSkipped   ? value
                    : func == "+" ? value + operand
                    : func == "-" ? value - operand
                    : func == "*" ? value * operand
                    : func == "/" ? value / operand
                                  : std::fmod(value, operand);
        }
        static const QRegularExpression zeros("0+$");
        static const QRegularExpression point("\\.$");
        return QString::number(value, 'f', 6).remove(zeros).remove(point);
    }

    static QString separator(const QString &text)
    {
        static const QRegularExpression escape("\\\\[nrt\\\\]");
        const QMap<QChar, QChar> meanings{{'n', '\n'}, {'r', '\r'}, {'t', '\t'}, {'\\', '\\'}};
        QString result;
        int from = 0;
        for (auto matches = escape.globalMatch(text); matches.hasNext();) {
            const int start = matches.next().capturedStart();
            result += text.mid(from, start - from) + meanings[text[start + 1]];
            from = start + 2;
        }
        return result + text.mid(from);
    }

    QVariant valueOf(const FunctionCall &call) const
    {
        QVector<Argument> arguments;
        QStringList texts;
        for (const QString &written : call.args) {
            arguments.append(named(written));
            texts.append(resolved(arguments.last()));
        }
        const auto count = [&](int i) {
            return qMax(0, arguments[i].first.toInt());
        };
        const int size = texts.size();
        if (size >= 2 && QStringList{"+", "-", "*", "/", "%"}.contains(call.func)) {
            return calculated(call.func, texts);
        }
        if (call.func == "strcat") {
            return texts.join("");
        }
        if (size == 3 && call.func == "mid") {
            return texts[0].mid(count(1), count(2));
        }
        return size == 2 ? ofTwo(call.func, arguments, texts, count(1)) : QVariant();
    }

    QVariant ofTwo(const QString &func, const QVector<Argument> &arguments,
                   const QStringList &texts, int count) const
    {
        bool isFirst = false;
        bool isSecond = false;
        if (func == "left" || func == "right") {
            return func == "left" ? texts[0].left(count) : texts[0].right(count);
        }
        if (func == "split") {
            return texts[0].split(separator(texts[1]), Qt::SkipEmptyParts);
        }
        if (func == "decimal") {
            const double number = texts[0].toDouble(&isFirst);
            const int places = qBound(0, texts[1].toInt(&isSecond), 6);
            return isFirst && isSecond ? QString::number(number, 'f', places) : QVariant();
        }
        const int position = arguments[1].first.toInt(&isSecond);
        if (func != "index" || !isSecond) {
            return {};
        }
        const QVariant entry = arguments[0].second ? QVariant() : results.value(arguments[0].first);
        const QStringList list = entry.toStringList();
        const bool isInside = position >= 0 && position < list.size();
        return entry.type() != QVariant::StringList ? texts[0]
               : isInside                           ? list[position]
                                                    : QVariant();
    }
};
