#include "rendercommand.h"

#include "commanddata.h"
#include "commandline.h"
#include "itemcheck.h"
#include "itemrenderer.h"
#include "lcontrollernode.h"
#include "ltexteffectnode.h"
#include "pagefile.h"
#include "programmeitems.h"
#include "recordscheck.h"
#include "report.h"

#include <QDir>

#include <memory>

using player::ItemRenderer;
using player::Problem;
using player::Problems;

namespace {

/** Whether the user asked for the item; an empty list asks for all. */
bool isWanted(const player::ProgrammeItem &item, const QStringList &wanted)
{
    return wanted.isEmpty() || wanted.contains(item.node->name()) || wanted.contains(item.place);
}

/** The items to work on; tells of names that no item has. */
QVector<player::ProgrammeItem> wantedItems(LControllerNode *programme, const CommandLine &line,
                                           Report *report)
{
    const QVector<player::ProgrammeItem> all = player::programmeItems(programme);
    QVector<player::ProgrammeItem> items;
    for (const player::ProgrammeItem &item : all) {
        if (isWanted(item, line.items)) {
            items.append(item);
        }
    }
    for (const QString &name : line.items) {
        const bool isKnown = std::any_of(
            all.begin(), all.end(), [&name](const auto &item) { return isWanted(item, {name}); });
        if (!isKnown) {
            QStringList names;
            for (const player::ProgrammeItem &item : all) {
                names.append(item.node->name());
            }
            report->problem({Problem::Error, QStringLiteral("--item %1").arg(name),
                             QStringLiteral("there is no such item"),
                             QStringLiteral("the items are: %1")
                                 .arg(names.mid(0, 20).join(QStringLiteral(", ")))});
        }
    }
    return items;
}

Problems asWarnings(Problems problems)
{
    for (Problem &problem : problems) {
        problem.severity = Problem::Warning;
    }
    return problems;
}

/** Writes the pages of items one by one into a folder. */
class PageWriter
{
public:
    PageWriter(const CommandLine &line, const sources::DataSnapshot &data, Report *report)
        : m_line(line)
        , m_data(data)
        , m_report(report)
    {}

    bool prepareFolder()
    {
        if (QDir().mkpath(m_line.outputFolder)) {
            return true;
        }
        m_report->problem({Problem::Error, m_line.outputFolder,
                           QStringLiteral("the output folder cannot be made"),
                           QStringLiteral("name a folder that you may write to")});
        return false;
    }

    void write(const player::ProgrammeItem &item, const QString &progress)
    {
        const QString stem = m_names.stemFor(item.node->name());
        ItemRenderer renderer(item.node, item.place, m_line.size, m_data);
        const int pages = renderer.pageCount(); // finds what is wrong with rows, too
        const Problems found = renderer.problems();
        const bool isHarmless = renderer.hasPages() && m_line.isLenient;
        m_report->problems(isHarmless ? asWarnings(found) : found);
        const bool isFaulty = std::any_of(found.begin(), found.end(), [](const Problem &problem) {
            return problem.severity == Problem::Error;
        });
        if (!renderer.hasPages() || (isFaulty && !m_line.isLenient)) {
            return;
        }
        for (int i = 0; i < pages; ++i) {
            m_report->progress(
                QStringLiteral("%1, page %2 of %3").arg(progress).arg(i + 1).arg(pages));
            const QString number = QStringLiteral("-%1.png").arg(i + 1);
            const QString file = QDir(m_line.outputFolder).filePath(stem + number);
            const QString reason = player::writePageFile(renderer.finishedPage(i), file);
            if (!reason.isEmpty()) {
                m_report->problem(
                    {Problem::Error, file, reason,
                     QStringLiteral("make room in the folder or name one that you may write to")});
                return;
            }
            m_report->page({item.place, i + 1, file, renderer.size()});
        }
    }

private:
    const CommandLine &m_line;
    const sources::DataSnapshot &m_data;
    Report *m_report;
    player::PageNames m_names;
};

} // namespace

bool renderProgramme(LControllerNode *programme, const CommandLine &line, Report *report)
{
    sources::DataSnapshot data;
    PageWriter writer(line, data, report);
    if (!readData(line, &data, report) || !writer.prepareFolder()) {
        return false;
    }
    const QVector<player::ProgrammeItem> items = wantedItems(programme, line, report);
    if (items.isEmpty() && report->errorCount() == 0) {
        report->problem({Problem::Error, QString(),
                         QStringLiteral("there is no text item to render"),
                         QStringLiteral("add one to a frame of a screen")});
    }
    for (int i = 0; i < items.size(); ++i) {
        writer.write(items.at(i), QStringLiteral("item %1 of %2").arg(i + 1).arg(items.size()));
    }
    return report->errorCount() == 0;
}

bool checkProgramme(LControllerNode *programme, const CommandLine &line, Report *report)
{
    sources::DataSnapshot data;
    if (!readData(line, &data, report)) {
        return false;
    }
    const QVector<player::ProgrammeItem> items = wantedItems(programme, line, report);
    for (int i = 0; i < items.size(); ++i) {
        report->progress(QStringLiteral("checking item %1 of %2").arg(i + 1).arg(items.size()));
        ItemRenderer renderer(items.at(i).node, items.at(i).place, line.size, data);
        Q_UNUSED(renderer.pageCount()) // finds what is wrong with rows, too
        report->problems(renderer.problems());
        report->problems(player::checkItem(&renderer));
        report->problems(player::checkRecords(items.at(i).node, items.at(i).place));
    }
    return report->problemCount() == 0;
}
