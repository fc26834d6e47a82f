#include "thumbnails.h"

#include "itempages.h"
#include "lcontrollernode.h"
#include "ltexteffectnode.h"
#include "programmedocument.h"
#include "programmeitems.h"
#include "programmetreemodel.h"
#include "scenethumbnailcapture.h"

#include <QImage>

namespace workbench {

namespace {

/** Twice the size that it is shown in, for screens of high density. */
constexpr QSize LargestThumbnail(128, 72);

} // namespace

Thumbnails::Thumbnails(ProgrammeDocument *document, ItemPages *pages, ProgrammeTreeModel *model,
                       QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_pages(pages)
    , m_model(model)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(0);
    connect(&m_timer, &QTimer::timeout, this, &Thumbnails::makeNext);
    connect(SceneThumbnailCapture::instance(), &SceneThumbnailCapture::ThumbnailRequested, this,
            &Thumbnails::showPreview);
    connect(m_pages, &ItemPages::pagesChanged, this, &Thumbnails::update);
    connect(m_document, &ProgrammeDocument::aboutToReplace, this, [this] { m_waiting.clear(); });
    connect(m_document, &ProgrammeDocument::replaced, this, &Thumbnails::updateAll);
    connect(m_model, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex &above, int first, int last) {
                for (int row = first; row <= last; ++row) {
                    update(m_model->nodeAt(m_model->index(row, 0, above)));
                }
            });
}

void Thumbnails::updateAll()
{
    update(m_document->controller());
}

void Thumbnails::update(LNode *node)
{
    if (auto *item = qobject_cast<LTextEffectNode *>(node)) {
        if (!m_waiting.contains(item)) {
            m_waiting.append(item);
        }
    } else {
        const QVector<player::ProgrammeItem> items = player::programmeItems(node);
        for (const player::ProgrammeItem &below : items) {
            update(below.node);
        }
    }
    if (!m_waiting.isEmpty()) {
        m_timer.start();
    }
}

void Thumbnails::showPreview(LNode *node)
{
    const auto *item = qobject_cast<LTextEffectNode *>(node);
    if (item == nullptr || item->PreviewCache().isNull()) {
        update(node);
        return;
    }
    // Asked for with every key: what the editor has drawn anyway costs no page.
    setPicture(node, item->PreviewCache());
}

void Thumbnails::setPicture(LNode *node, const QImage &page)
{
    m_model->setThumbnail(node, page.isNull() ? page
                                              : page.scaled(LargestThumbnail, Qt::KeepAspectRatio,
                                                            Qt::SmoothTransformation));
}

void Thumbnails::makeNext()
{
    const QPointer<LTextEffectNode> node =
        m_waiting.isEmpty() ? QPointer<LTextEffectNode>() : m_waiting.takeFirst();
    if (!m_waiting.isEmpty()) {
        m_timer.start();
    }
    if (!node) {
        return;
    }
    setPicture(node, m_pages->page(node, 0));
    QStringList problems;
    for (const player::Problem &problem : m_pages->problems(node)) {
        problems.append(problem.remedy.isEmpty()
                            ? tr("%1: %2").arg(problem.place, problem.reason)
                            : tr("%1: %2; %3").arg(problem.place, problem.reason, problem.remedy));
    }
    m_model->setProblem(node, problems.join(QLatin1Char('\n')));
}

} // namespace workbench
