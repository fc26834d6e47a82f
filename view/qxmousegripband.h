#pragma once

#include "gripzones.h"

#include <QColor>
#include <QWidget>

#include <functional>

namespace cutex {

/**
 * A frame with grips that lies over an object of its parent and is dragged to resize it.
 *
 * Shift keeps the ratio of width to height; Escape takes the frame back to where it was at the
 * press and ends the dragging. The band only shows the new geometry; whoever listens resizes the
 * object.
 */
class QxMouseGripBand : public QWidget
{
    Q_OBJECT

public:
    explicit QxMouseGripBand(QWidget *parent = nullptr);

    /** The size of a grip, 8 by 8 pixels at first. */
    void setGripSize(const QSize &size);
    [[nodiscard]] QSize gripSize() const { return m_gripSize; }
    /** The colour of frame and grips, blue at first. */
    void setGripColor(const QColor &color);
    [[nodiscard]] QColor gripColor() const { return m_gripColor; }

    /** @p place says where the object is in the parent; an empty rectangle when there is none. */
    void setPlace(std::function<QRect()> place) { m_place = std::move(place); }

    [[nodiscard]] bool isDragging() const { return m_isDragging; }
    /** Whether the last movement kept the ratio of width to height. */
    [[nodiscard]] bool keepsRatio() const { return m_keepsRatio; }
    /** The geometry at the last press. */
    [[nodiscard]] QRect geometryAtPress() const { return m_drag.start; }
    /** Goes back to the geometry at the press; resizeFinished() is not sent. */
    void cancelDrag();

signals:
    /** The geometry while it is dragged. */
    void resizeObject(const QRect &geometry);
    /** The geometry when the button is released. */
    void resizeFinished(const QRect &geometry);

public slots:
    /** Goes to where the object is now, or hides; a dragging ends only when the object is gone. */
    void updateGripBand();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    [[nodiscard]] QMap<int, QRect> zones() const;
    void endDrag();

    Q_DISABLE_COPY(QxMouseGripBand)

    QSize m_gripSize = QSize(8, 8);
    QColor m_gripColor = Qt::blue;
    std::function<QRect()> m_place;
    lctrlsex::GripDrag m_drag;
    QPoint m_press; ///< On the screen: the band itself moves under the mouse.
    bool m_isDragging = false;
    bool m_keepsRatio = false;
};

} // namespace cutex
