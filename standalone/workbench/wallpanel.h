#pragma once

#include "lscreennode.h"
#include "ltexteffectnode.h"
#include "wallpainter.h"

#include <QPointer>
#include <QTimer>
#include <QVector>
#include <QWidget>

class QComboBox;
class QLabel;
class QToolButton;

namespace workbench {

class FramePlay;
class ItemPages;
class WallPlayer;
class WallView;

/**
 * The wall with its row of controls: the screen of the current node, the page strip of the current
 * item, the play and the size of the pixels.
 *
 * Of a frame with several items the current one is shown, else the first. The page of the item
 * that is being edited is the one that its node shows. While it plays, both are those of the play.
 */
class WallPanel : public QWidget
{
    Q_OBJECT

public:
    explicit WallPanel(ItemPages *pages, QWidget *parent = nullptr);

    /** The node that is selected: its screen is shown, its item outlined. Null shows none. */
    void setCurrent(LNode *selected, LTextEffectNode *item);
    /** Lets go of every node at once. */
    void clear();

    [[nodiscard]] WallView *view() const { return m_view; }
    [[nodiscard]] WallPlayer *player() const { return m_player; }
    [[nodiscard]] LScreenNode *screen() const { return m_screen; }
    /** "Page 2 of 5", of what plays in the current item's frame if it plays; empty without one. */
    [[nodiscard]] QString pageText() const;
    /** The zoom as it is shown: "4×", or "Fit (2×)". */
    [[nodiscard]] QString zoomText() const;

public slots:
    /** Whether large pixels are drawn as round dots. */
    void setShowsLeds(bool shows);
    void previousPage();
    void nextPage();

signals:
    void itemClicked(LTextEffectNode *item);
    void itemActivated(LTextEffectNode *item);
    /** Page, zoom or screen became another one. */
    void statusChanged();
    /** The user switched the grid of dots. */
    void ledGridChanged(bool shows);

protected:
    void changeEvent(QEvent *event) override;

private:
    struct ShownItem
    {
        QPointer<LNode> frame;
        QPointer<LTextEffectNode> node;
        QRect rect;
    };

    void buildControls();
    void connectView();
    void connectPlayer();
    void watch(LNode *node);
    void unwatchAll();
    /** Rebuilds the scene in the next turn of the event loop, once for any number of calls. */
    void scheduleRebuild();
    void rebuild();
    [[nodiscard]] QVector<ShownItem> itemsOf(LScreenNode *screen) const;
    void showPages(LTextEffectNode *node);
    void showPreview();
    void followPage(int page);
    void turnTo(int page);
    [[nodiscard]] QImage pictureOf(LTextEffectNode *node) const;
    [[nodiscard]] LTextEffectNode *nodeAt(int index) const;
    /** What plays where the current item lies; null when nothing does. */
    [[nodiscard]] const FramePlay *currentPlay() const;
    void showPlayed(const LNode *frame);
    void updatePlayControls();
    void updatePlayTexts();
    [[nodiscard]] QString pageOfText() const;
    void updateControls();
    void retranslate();
    void updateIcons();

    ItemPages *m_pages;
    QPointer<LScreenNode> m_screen;
    QPointer<LTextEffectNode> m_item;
    QVector<ShownItem> m_shown;
    QVector<QPointer<LNode>> m_watched;
    QTimer m_rebuild;
    int m_shownPage = 1; ///< Of the current item, from 1.

    WallView *m_view;
    WallPlayer *m_player;
    QToolButton *m_previous;
    QLabel *m_pageLabel;
    QToolButton *m_next;
    QToolButton *m_play;
    QToolButton *m_stop;
    QLabel *m_playLabel;
    QLabel *m_screenLabel;
    QToolButton *m_grid;
    QToolButton *m_zoomOut;
    QComboBox *m_zoom;
    QToolButton *m_zoomIn;
};

} // namespace workbench
