#include "rendercommand.h"

#include "commandline.h"
#include "itemcheck.h"
#include "itemrenderer.h"
#include "lcontrollernode.h"
#include "ltexteffectnode.h"
#include "pagewriter.h"
#include "programmedata.h"
#include "programmeitems.h"
#include "recordscheck.h"
#include "report.h"

using player::ItemRenderer;
using player::Problem;

bool renderProgramme(LControllerNode *programme, const CommandLine &line, Report *report)
{
    ProgrammeData data(line, report);
    PageWriter writer(line, report);
    if (!data.start(*programme) || !writer.prepareFolder()) {
        return false;
    }
    const QVector<player::ProgrammeItem> items = wantedItems(programme, line, report);
    if (items.isEmpty() && report->errorCount() == 0) {
        report->problem({Problem::Error, QString(),
                         QStringLiteral("there is no text item to render"),
                         QStringLiteral("add one to a frame of a screen")});
    }
    data.waitUntilRead();
    const sources::DataSnapshot snapshot = data.snapshot();
    for (int i = 0; i < items.size(); ++i) {
        ItemRenderer renderer(items.at(i).node, items.at(i).place, line.size, snapshot);
        writer.write(&renderer, items.at(i).node->name(),
                     QStringLiteral("item %1 of %2").arg(i + 1).arg(items.size()));
    }
    return report->errorCount() == 0;
}

bool checkProgramme(LControllerNode *programme, const CommandLine &line, Report *report)
{
    ProgrammeData data(line, report);
    if (!data.start(*programme)) {
        return false;
    }
    const QVector<player::ProgrammeItem> items = wantedItems(programme, line, report);
    data.waitUntilRead();
    const sources::DataSnapshot snapshot = data.snapshot();
    for (int i = 0; i < items.size(); ++i) {
        report->progress(QStringLiteral("checking item %1 of %2").arg(i + 1).arg(items.size()));
        ItemRenderer renderer(items.at(i).node, items.at(i).place, line.size, snapshot);
        Q_UNUSED(renderer.pageCount()) // finds what is wrong with rows, too
        report->problems(renderer.problems());
        report->problems(player::checkItem(&renderer));
        report->problems(player::checkRecords(items.at(i).node, items.at(i).place));
    }
    return report->problemCount() == 0;
}
