#pragma once

#include "ltableproperties.h"

#include <QSize>
#include <QTextDocument>
#include <QWidget>

namespace lctrlsex {

/** Shows the table that a record makes, empty, in the item: as large as there is room for. */
class TablePreview : public QWidget
{
    Q_OBJECT

public:
    explicit TablePreview(QWidget *parent = nullptr);

    /** Shows the table of @p record; nothing for one of which no table can be made. */
    void setRecord(const LUM_EditInterface::LTableProperties &record);
    /** Size of the item in pixels; empty when unknown. */
    void setItemSize(const QSize &size);

    /** Height of the table in pixels while it is empty; 0 without one. */
    [[nodiscard]] int tableHeight() const { return m_tableSize.height(); }

    /** Pixels that a page leaves free at each side. */
    [[nodiscard]] int pageMargin() const { return qRound(m_document.documentMargin()); }

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QTextDocument m_document;
    QSize m_tableSize;
    QSize m_itemSize;
    bool m_hasHeader = false;
};

} // namespace lctrlsex
