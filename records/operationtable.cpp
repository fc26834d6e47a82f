#include "operationtable.h"

#include <QtGlobal>

#include <iterator>

namespace lctrlsex {

static const OperatorEntry entries[] = {
    {QLatin1String("+"), 2, OperatorEntry::AtLeast},
    {QLatin1String("-"), 2, OperatorEntry::AtLeast},
    {QLatin1String("*"), 2, OperatorEntry::AtLeast},
    {QLatin1String("/"), 2, OperatorEntry::AtLeast},
    {QLatin1String("%"), 2, OperatorEntry::AtLeast},
    {QLatin1String("left"), 2, OperatorEntry::Exactly},
    {QLatin1String("right"), 2, OperatorEntry::Exactly},
    {QLatin1String("mid"), 3, OperatorEntry::Exactly},
    {QLatin1String("split"), 2, OperatorEntry::Exactly},
    {QLatin1String("index"), 2, OperatorEntry::Exactly},
    {QLatin1String("strcat"), 2, OperatorEntry::Any},
    {QLatin1String("decimal"), 2, OperatorEntry::Exactly},
};
static_assert(std::size(entries) == operatorCount, "one entry for each operator");

const OperatorEntry &operatorEntry(int index)
{
    Q_ASSERT(index >= 0 && index < operatorCount);
    return entries[index];
}

Operator operatorOf(const QString &text)
{
    for (int i = 0; i < operatorCount; ++i) {
        if (text == entries[i].text) {
            return Operator(i);
        }
    }
    return Operator::Unknown;
}

bool takesArguments(const OperatorEntry &entry, int count)
{
    switch (entry.rule) {
    case OperatorEntry::AtLeast:
        return count >= entry.arguments;
    case OperatorEntry::Exactly:
        return count == entry.arguments;
    case OperatorEntry::Any:
        break;
    }
    return true;
}

} // namespace lctrlsex
