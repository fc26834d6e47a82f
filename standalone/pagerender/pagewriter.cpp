#include "pagewriter.h"

#include "commandline.h"
#include "itemrenderer.h"
#include "lcontrollernode.h"
#include "ltexteffectnode.h"
#include "programmeitems.h"
#include "report.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>

#include <algorithm>

using player::ItemRenderer;
using player::Problem;
using player::Problems;

namespace {

/** Whether the user asked for the item; an empty list asks for all. */
bool isWanted(const player::ProgrammeItem &item, const QStringList &wanted)
{
    return wanted.isEmpty() || wanted.contains(item.node->name()) || wanted.contains(item.place);
}

Problems asWarnings(Problems problems)
{
    for (Problem &problem : problems) {
        problem.severity = Problem::Warning;
    }
    return problems;
}

bool hasError(const Problems &problems)
{
    return std::any_of(problems.begin(), problems.end(),
                       [](const Problem &problem) { return problem.severity == Problem::Error; });
}

bool areSame(const Problems &left, const Problems &right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](const Problem &a, const Problem &b) {
                          return a.place == b.place && a.reason == b.reason;
                      });
}

QByteArray digestOf(const QImage &image)
{
    QCryptographicHash digest(QCryptographicHash::Sha1);
    for (int y = 0; y < image.height(); ++y) {
        digest.addData(reinterpret_cast<const char *>(image.constScanLine(y)),
                       image.width() * image.depth() / 8);
    }
    return digest.result();
}

} // namespace

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

PageWriter::PageWriter(const CommandLine &line, Report *report)
    : m_line(line)
    , m_report(report)
{}

bool PageWriter::prepareFolder()
{
    if (QDir().mkpath(m_line.outputFolder)) {
        return true;
    }
    m_report->problem({Problem::Error, m_line.outputFolder,
                       QStringLiteral("the output folder cannot be made"),
                       QStringLiteral("name a folder that you may write to")});
    return false;
}

void PageWriter::write(ItemRenderer *renderer, const QString &itemName, const QString &progress)
{
    Written &written = m_written[renderer->place()];
    if (written.stem.isEmpty()) {
        written.stem = m_names.stemFor(itemName);
    }
    const int pages = renderer->pageCount(); // finds what is wrong with rows, too
    const Problems found = renderer->problems();
    if (!areSame(found, written.problems)) {
        const bool isHarmless = renderer->hasPages() && m_line.isLenient;
        m_report->problems(isHarmless ? asWarnings(found) : found);
        written.problems = found;
    }
    if (!renderer->hasPages() || (hasError(found) && !m_line.isLenient)) {
        return;
    }
    for (int i = 0; i < pages; ++i) {
        m_report->progress(QStringLiteral("%1, page %2 of %3").arg(progress).arg(i + 1).arg(pages));
        if (!writePage(renderer, i, &written)) {
            return;
        }
    }
    removeFrom(pages, &written);
}

void PageWriter::keepOnly(const QVector<player::ProgrammeItem> &items)
{
    for (auto it = m_written.begin(); it != m_written.end(); ++it) {
        const bool isKept = std::any_of(items.begin(), items.end(),
                                        [&it](const auto &item) { return item.place == it.key(); });
        if (!isKept) {
            removeFrom(0, &*it); // its names stay its own, for it may come back
        }
    }
}

QString PageWriter::fileOf(const Written &written, int index) const
{
    return QDir(m_line.outputFolder)
        .filePath(written.stem + QStringLiteral("-%1.png").arg(index + 1));
}

bool PageWriter::writePage(ItemRenderer *renderer, int index, Written *written)
{
    const QImage image = renderer->finishedPage(index);
    const QByteArray digest = digestOf(image);
    if (written->pages.value(index) == digest) {
        return true;
    }
    const QString file = fileOf(*written, index);
    const QString reason = player::writePageFile(image, file);
    if (!reason.isEmpty()) {
        m_report->problem(
            {Problem::Error, file, reason,
             QStringLiteral("make room in the folder or name one that you may write to")});
        return false;
    }
    written->pages.resize(qMax(index + 1, written->pages.size()));
    written->pages[index] = digest;
    m_report->page({renderer->place(), index + 1, file, renderer->size()});
    return true;
}

void PageWriter::removeFrom(int index, Written *written)
{
    for (int i = index; i < written->pages.size(); ++i) {
        QFile::remove(fileOf(*written, i));
    }
    written->pages.resize(qMin(index, written->pages.size()));
}
