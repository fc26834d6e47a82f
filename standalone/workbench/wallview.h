#pragma once

#include "wallpainter.h"

#include <QAbstractScrollArea>

namespace workbench {

/**
 * Shows a screen with its items at a whole factor of its pixels.
 *
 * Ctrl and the wheel, + and - change the factor, 0 fits the screen into the view; a click selects
 * an item, a double click or Return asks to edit it.
 */
class WallView : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit WallView(QWidget *parent = nullptr);

    [[nodiscard]] const WallScene &scene() const { return m_scene; }
    /** Shows another screen; what is equal is not painted again. */
    void setScene(const WallScene &scene);
    /** Replaces one item's picture; an index out of range is ignored. */
    void setPage(int index, const QImage &page);

    /** The factor that was asked for, 1 to 16; 0 fits the screen into the view (the default). */
    [[nodiscard]] int zoom() const { return m_zoom; }
    /** Clamped to 0 to 16. */
    void setZoom(int zoom);
    /** What is painted now: the zoom, or what fits. */
    [[nodiscard]] WallScale scale() const { return m_scale; }

    /** Whether pixels are drawn as round dots once they are large enough; true at first. */
    [[nodiscard]] bool showsLeds() const { return m_showsLeds; }
    void setShowsLeds(bool shows);

    /** Text in place of a screen, when there is none. */
    void setEmptyText(const QString &text);

    /** The item at a place of the viewport, -1 for none. */
    [[nodiscard]] int itemAt(const QPoint &position) const;
    /** Where an item is in the viewport; null for an index out of range. */
    [[nodiscard]] QRect rectOf(int index) const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

public slots:
    void zoomIn();
    void zoomOut();
    void zoomToFit();

signals:
    /** The zoom asked for or the scale painted became another one. */
    void scaleChanged();
    /** The user chose an item. */
    void itemClicked(int index);
    /** The user wants to edit an item. */
    void itemActivated(int index);
    /** The user wants the page before (-1) or after (1) the one shown. */
    void pageWanted(int step);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void updateLayout();
    /** Where the screen's corner is in the viewport: centred, or scrolled. */
    [[nodiscard]] QPoint origin() const;
    /** Changes the zoom and keeps the screen pixel at @p position where it is. */
    void zoomAround(int zoom, const QPoint &position);
    /** The zoom for a factor that is one step away, which may be below 1. */
    [[nodiscard]] int zoomFor(int factor) const;
    /** Room for the screen when nothing is scrolled. */
    [[nodiscard]] QSize usableSize() const;
    void retranslate();
    [[nodiscard]] int currentItem() const;

    WallScene m_scene;
    WallScale m_scale;
    QString m_emptyText;
    int m_zoom = 0;
    bool m_showsLeds = true;
    int m_wheelRest = 0;
};

} // namespace workbench
