#include "scenethumbnailcapture.h"

#include "lnode.h"

#include <QPointer>
#include <QTimer>
#include <QVector>

#include <utility>

class SceneThumbnailCapturePrivate
{
public:
    QVector<QPointer<LNode>> pending;
};

SceneThumbnailCapture::SceneThumbnailCapture()
    : d(new SceneThumbnailCapturePrivate)
{}

SceneThumbnailCapture::~SceneThumbnailCapture() = default;

SceneThumbnailCapture *SceneThumbnailCapture::instance()
{
    // Never destroyed: a plug-in may ask for it as late as in its own static destructors.
    static auto *const capture = new SceneThumbnailCapture;
    return capture;
}

void SceneThumbnailCapture::requestFromNode(LNode *node)
{
    if (!node || d->pending.contains(node)) {
        return;
    }
    if (d->pending.isEmpty()) {
        QTimer::singleShot(0, this, &SceneThumbnailCapture::deliver);
    }
    d->pending.append(node);
}

void SceneThumbnailCapture::deliver()
{
    // What a listener asks for belongs to the next turn.
    const QVector<QPointer<LNode>> requests = std::exchange(d->pending, {});
    for (const QPointer<LNode> &node : requests) {
        if (node) {
            emit ThumbnailRequested(node);
        }
    }
}
