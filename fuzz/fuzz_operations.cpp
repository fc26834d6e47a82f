// A compiled chain of operations yields what the rules taken literally do.

#include "choices.h"
#include "literaloperations.h"
#include "operationchain.h"

#include <cstdlib>

using namespace lctrlsex;

namespace {

const QString functions[] = {"+",     "-",     "*",      "/",       "%",    "left",  "right", "mid",
                             "split", "index", "strcat", "decimal", "LEFT", "split", "strcat"};
const QString names[] = {"var1", "var2", "var3", "list", "${", ""};
const QString variables[] = {"speed", "name", "name", "var2", "1", "\xc3\xa9"};

QString text(Choices *choices)
{
    static const QString texts[] = {"0",
                                    "1",
                                    "2",
                                    "-3",
                                    "2.5",
                                    "0.0078125",
                                    "1e308",
                                    "1e400",
                                    "inf",
                                    "nan",
                                    "0x10",
                                    " 7 ",
                                    "-1e-9",
                                    "4503599627.3",
                                    "9007199254740993",
                                    "1,5",
                                    "",
                                    "a;b;;c",
                                    ";",
                                    "\\n",
                                    "\\\\t",
                                    "a\nb",
                                    "aaaaaaaa",
                                    "aaaaaab",
                                    "various",
                                    "2147483648",
                                    "-2147483648",
                                    "}\n",
                                    "-0",
                                    QString(QChar(0)),

                                    QString("ab;").repeated(300)};
    if (choices->onceIn(4)) {
        return QString::number((choices->below(256) - 128) * 256 + choices->below(256)) +
               (choices->onceIn(2) ? "." + QString::number(choices->below(256)) : "");
    }
    return choices->oneOf(texts);
}

QString argument(Choices *choices)
{
    const int kind = choices->below(4);
    const QString plain = kind == 0   ? text(choices)
                          : kind == 1 ? choices->oneOf(variables)
                                      : choices->oneOf(names);
    return choices->onceIn(2) ? "${" + plain + "}" : plain;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    Choices choices(data, size);
    LiteralOperations literal;
    QVector<QString> given;
    QVector<QString> values;
    for (const QString &name : variables) {
        given.append(name);
        values.append(text(&choices));
        literal.variables[name] = values.last();
    }
    CalculationCondition calculation;
    while (choices.hasMore() && calculation.expressions.size() < 16) {
        CalculationStep step{choices.oneOf(names), {choices.oneOf(functions), {}}};
        for (int i = choices.below(8) + 1; i > 0; i -= 3) {
            step.expression.args += argument(&choices);
            step.expression.args += argument(&choices);
        }
        step.expression.args = step.expression.args.mid(choices.onceIn(3) ? 1 : 0);
        calculation.expressions.append(step);
    }
    const OperationChain chain(calculation, given);
    OperationResults results;
    chain.evaluate(values, &results);
    for (int i = 0; i < chain.stepCount(); ++i) {
        const OperationResult &result = results[size_t(i)];
        const bool isReasoned = !chain.reason(i, values, results).isEmpty();
        if (result.problem == OperationProblem::TooMuchWork) {
            return 0;
        }
        const QVariant value = literal.evaluate(calculation.expressions[i]);
        const bool isList = value.type() == QVariant::StringList;
        if (result.value.hasResult() != value.isValid() || result.value.isList() != isList ||
            result.value.text() != LiteralOperations::textOf(value) ||
            (isList && result.value.list() != value.toStringList()) ||
            (!result.value.hasResult() && !isReasoned)) {
            std::abort();
        }
    }
    return 0;
}
