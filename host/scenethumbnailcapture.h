#pragma once

#include "lcommon_global.h"

#include <QObject>
#include <QScopedPointer>

class LNode;
class SceneThumbnailCapturePrivate;

/** Collects requests for thumbnails. One for the process; GUI thread only. */
class LCOMMON_EXPORT SceneThumbnailCapture : public QObject
{
    Q_OBJECT

public:
    /** The one collector, made on first use; never null, lives as long as the process. */
    [[nodiscard]] static SceneThumbnailCapture *instance();
    ~SceneThumbnailCapture() override;

    /**
     * Asks for a new thumbnail of a node; cheap, so it may be called after every change. All
     * requests of one turn of the event loop become one. Null is ignored.
     */
    void requestFromNode(LNode *node);

signals:
    /** Once a node and turn, in the order of the first request; never for a node that is gone. */
    void ThumbnailRequested(LNode *node);

private:
    SceneThumbnailCapture();
    void deliver();
    Q_DISABLE_COPY(SceneThumbnailCapture)
    const QScopedPointer<SceneThumbnailCapturePrivate> d;
};
