#include "stepnames.h"

#include <QCoreApplication>

#include <algorithm>

namespace workbench {

namespace {

struct Group
{
    const char *keyStart; ///< What the attributes of the group begin with.
    const char *name;
};

// The first that fits counts.
constexpr Group s_groups[] = {
    {"UseStroke", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change stroke")},
    {"StrokeColor", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change stroke")},
    {"UseHollow", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change hollow text")},
    {"TextAntialias", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change antialiasing")},
    {"EditBgColor", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change background")},
    {"TransBgColor", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change background")},
    {"ContentAlign", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change alignment")},
    {"ContentHAlign", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change alignment")},
    {"FontSpace", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change spacing")},
    {"Font", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change font")},
    {"DispEffect", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change effect")},
    {"DispTime", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change effect")},
    {"ClearEffect", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change effect")},
    {"ClearTime", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change effect")},
    {"Speed", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change effect")},
    {"ContinueMove", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change effect")},
    {"HoldTime", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change hold time")},
    {"PlayType", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change playing time")},
    {"By", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change playing time")},
    {"Border", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change border")},
    {"ShapedBorder", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change border")},
    {"Frame", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change border")},
    {"X", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change place")},
    {"Y", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change place")},
    {"Width", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change size")},
    {"Height", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change size")},
    {"Name", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change name")},
    {"Identifier", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change identifier")},
    {"Device", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change controller")},
    {"DataSource", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change data source")},
    {"SpanConditions", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change conditional styles")},
    {"Calculation", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change calculations")},
    {"Table", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change table")},
    {"PageTurnDirection", QT_TRANSLATE_NOOP("ProgrammeDocument", "Change table")},
};

const char *groupOf(const QString &key)
{
    const auto found =
        std::find_if(std::cbegin(s_groups), std::cend(s_groups), [&key](const Group &group) {
            return key.startsWith(QLatin1String(group.keyStart));
        });
    return found == std::cend(s_groups) ? nullptr : found->name;
}

QString tr(const char *text)
{
    return QCoreApplication::translate("ProgrammeDocument", text);
}

} // namespace

QString stepNameOf(const QStringList &keys)
{
    const char *const group = keys.isEmpty() ? nullptr : groupOf(keys.first());
    const bool isOne = std::all_of(keys.cbegin(), keys.cend(), [group](const QString &key) {
        const char *const name = groupOf(key);
        return name && group && qstrcmp(name, group) == 0;
    });
    return isOne && group ? tr(group)
                          : QCoreApplication::translate("ProgrammeDocument", "Change item");
}

QString textStepName()
{
    return QCoreApplication::translate("ProgrammeDocument", "Edit text");
}

} // namespace workbench
