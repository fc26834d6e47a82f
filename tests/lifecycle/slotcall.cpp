#include "slotcall.h"

#include "dynamicdata.h"
#include "ltableproperties.h"

#include <QAction>
#include <QHash>
#include <QMetaMethod>
#include <QTextCharFormat>

namespace {

using LUM_EditInterface::LTableProperties;

/** One argument of each type; a slot takes those that it has parameters for. */
struct Arguments
{
    uint number = 3;
    int integer = 3;
    double real = 2.5;
    bool flag = true;
    QString text = "Plant:Rows";
    QAction *action = nullptr;
    QTextCharFormat format;
    LTableProperties table;
    LTableProperties *tablePointer = &table;
    DynamicData styles;
    CalculationDynamicData calculations;

    /** @p type must outlive what is returned. */
    [[nodiscard]] QGenericArgument of(const QByteArray &type) const
    {
        const QHash<QByteArray, const void *> values = {
            {"uint", &number},
            {"int", &integer},
            {"double", &real},
            {"bool", &flag},
            {"QString", &text},
            {"QAction*", &action},
            {"QTextCharFormat", &format},
            {"LUM_EditInterface::LTableProperties", &table},
            {"LUM_EditInterface::LTableProperties*", &tablePointer},
            {"DynamicData", &styles},
            {"CalculationDynamicData", &calculations}};
        if (!values.contains(type)) {
            qFatal("no argument of type %s", type.constData());
        }
        return {type.constData(), const_cast<void *>(values.value(type))};
    }
};

void choose(Arguments *arguments, const QObject *receiver, const QByteArray &slot)
{
    static const QHash<QByteArray, QString> texts = {{"textSize", "24"},
                                                     {"textFamily", "DejaVu Serif"},
                                                     {"TextFontNameChanged", "DejaVu Serif"},
                                                     {"InsertCopyText", "pasted"}};
    static const QHash<QByteArray, QString> actions = {{"textAlign", "actionAlignRight"},
                                                       {"textVAlign", "actionContentAlignTop"},
                                                       {"ONDataSourceNameChanged", "Plant"},
                                                       {"ONFieldNameChanged", "Level"},
                                                       {"ONConditionStyleChanged", "Warm"}};
    static const QHash<QByteArray, uint> numbers = {{"TextHAlignmentChanged", uint(Qt::AlignRight)},
                                                    {"TextVAlignmentChanged", uint(Qt::AlignTop)},
                                                    {"TextFontSizeChanged", 24},
                                                    {"TextLineSpacingChanged", 150},
                                                    {"LineSpacingChanged", 150}};
    arguments->text = texts.value(slot, arguments->text);
    arguments->number = numbers.value(slot, arguments->number);
    arguments->integer = int(arguments->number);
    arguments->action = receiver->findChild<QAction *>(actions.value(slot));
    arguments->format.setFontUnderline(true);
    arguments->styles.items = {{"{9}", "Warm", {{0, {">9"}, {}, "Plant:Level"}}}};
    arguments->calculations.conditions = {{"9", "sum", "0", {}}};
    arguments->table.type = 1;
    arguments->table.borderWidth = 4;
    arguments->table.fixedHeader = true;
}

} // namespace

void callSlot(QObject *receiver, int index)
{
    const QMetaMethod method = receiver->metaObject()->method(index);
    const QList<QByteArray> types = method.parameterTypes();
    Arguments arguments;
    choose(&arguments, receiver, method.name());
    const auto argument = [&](int place) {
        return place < types.size() ? arguments.of(types.at(place)) : QGenericArgument();
    };
    if (!method.invoke(receiver, Qt::DirectConnection, argument(0), argument(1))) {
        qFatal("%s cannot be called", method.methodSignature().constData());
    }
}
