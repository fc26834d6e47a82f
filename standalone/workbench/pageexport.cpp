#include "pageexport.h"

#include "itemrenderer.h"
#include "ltexteffectnode.h"
#include "programmeitems.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProgressDialog>

namespace workbench {

namespace {

/** Steps of the progress bar for each item, shared by its pages. */
constexpr int StepsOfItem = 100;
/** The longest that counting pages may keep the window waiting, in milliseconds. */
constexpr int CountTime = 6;

} // namespace

PageExport::PageExport(const LNode *programme, sources::DataSnapshot data, const QString &folder,
                       QWidget *window)
    : QObject(window)
    , m_data(std::move(data))
    , m_folder(folder)
    , m_dialog(new QProgressDialog(window))
{
    const QVector<player::ProgrammeItem> items = player::programmeItems(programme);
    for (const player::ProgrammeItem &item : items) {
        m_items.append({item.node, item.place});
    }
    m_dialog->setObjectName(QStringLiteral("ExportProgress"));
    m_dialog->setWindowModality(Qt::WindowModal);
    m_dialog->setWindowTitle(tr("Export Pages"));
    m_dialog->setLabelText(tr("Writing pages…"));
    m_dialog->setRange(0, m_items.size() * StepsOfItem);
    m_dialog->setMinimumDuration(300);
    m_dialog->setAutoClose(false);
    m_dialog->setAutoReset(false);
    m_dialog->setMinimumWidth(360);
    connect(&m_timer, &QTimer::timeout, this, &PageExport::step);
}

PageExport::~PageExport()
{
    delete m_dialog;
}

void PageExport::start()
{
    if (!QDir().mkpath(m_folder)) {
        m_result.problems.append(tr("%1: the folder cannot be made").arg(m_folder));
        m_items.clear();
    }
    m_timer.start(0);
}

void PageExport::step()
{
    if (!m_dialog || m_dialog->wasCanceled()) {
        m_result.isCancelled = true;
        end();
    } else if (m_renderer != nullptr && !m_isCounted) {
        countPages();
    } else if (m_renderer != nullptr) {
        writePage();
    } else if (!nextItem()) {
        end();
    }
}

bool PageExport::nextItem()
{
    if (m_nextItem >= m_items.size()) {
        return false;
    }
    const Item item = m_items.at(m_nextItem++);
    if (!item.node) {
        return true;
    }
    m_dialog->setLabelText(tr("Writing the pages of %1…").arg(item.place));
    m_renderer = std::make_unique<player::ItemRenderer>(item.node, item.place, QSize(), m_data);
    m_stem = m_names.stemFor(item.node->name());
    m_nextPage = 0;
    m_pageCount = 0;
    m_isCounted = false;
    if (!m_renderer->hasPages()) {
        for (const player::Problem &problem : m_renderer->problems()) {
            m_result.problems.append(tr("%1: %2").arg(problem.place, problem.reason));
        }
        m_renderer.reset();
    }
    return true;
}

void PageExport::countPages()
{
    QElapsedTimer timer;
    timer.start();
    while (!m_isCounted && timer.elapsed() < CountTime) {
        m_isCounted = !m_renderer->hasPage(m_pageCount);
        m_pageCount += m_isCounted ? 0 : 1;
    }
}

void PageExport::writePage()
{
    const QString file = QStringLiteral("%1/%2-%3.png").arg(m_folder, m_stem).arg(m_nextPage + 1);
    const QString reason = player::writePageFile(m_renderer->finishedPage(m_nextPage), file);
    if (reason.isEmpty()) {
        ++m_result.pages;
    } else {
        m_result.problems.append(tr("%1: %2").arg(file, reason));
    }
    ++m_nextPage;
    m_dialog->setValue((m_nextItem - 1) * StepsOfItem +
                       int(qint64(StepsOfItem) * m_nextPage / m_pageCount));
    // A folder that refuses one file refuses all: one reason is enough.
    if (m_nextPage >= m_pageCount || !reason.isEmpty()) {
        m_renderer.reset();
    }
}

void PageExport::end()
{
    m_timer.stop();
    delete m_dialog;
    emit finished(m_result);
}

} // namespace workbench
