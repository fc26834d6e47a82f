#pragma once

#include "ltexteffectnode.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QTimer>

class QImage;

namespace workbench {

class ItemPages;
class ProgrammeDocument;
class ProgrammeTreeModel;

/**
 * Keeps the small pictures of the programme tree up to date: one a turn of the event loop, so that
 * a programme of many items opens at once.
 */
class Thumbnails : public QObject
{
    Q_OBJECT

public:
    Thumbnails(ProgrammeDocument *document, ItemPages *pages, ProgrammeTreeModel *model,
               QObject *parent = nullptr);

    /** Makes those of all items anew. */
    void updateAll();
    void update(LNode *node);

private:
    /** Shows the picture that the editor keeps on the item, if there is one. */
    void showPreview(LNode *node);
    void setPicture(LNode *node, const QImage &page);
    void makeNext();

    ProgrammeDocument *m_document;
    ItemPages *m_pages;
    ProgrammeTreeModel *m_model;
    QList<QPointer<LTextEffectNode>> m_waiting;
    QTimer m_timer;
};

} // namespace workbench
