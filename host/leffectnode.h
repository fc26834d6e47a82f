#pragma once

#include "lnode.h"

#include <QVector>

/** One entry of the effect lists. */
struct LEffectItem
{
    /** Name in the current language. */
    QString name;
    /** Resource path of a picture of the effect; empty when there is none. */
    QString image;
    /** Number of the effect, one of LEffectNode::EffectType. */
    int effectType = 0;
};

/** A programme item that is played with a display and a clear effect. */
class LCOMMON_EXPORT LEffectNode : public LNode
{
    Q_OBJECT

public:
    /** Numbers of the effects; they are stored, so they never change. */
    enum EffectType {
        NoEffect = 0,
        SlideLeft = 1,
        SlideRight = 2,
        SlideUp = 3,
        SlideDown = 4,
        WipeLeft = 5,
        WipeRight = 6,
        WipeUp = 7,
        WipeDown = 8,
        HorizontalBlinds = 9,
        VerticalBlinds = 10,
        Fade = 11,
        Mosaic = 12,
        Laser = 13,
        CurtainOpen = 14,
        CurtainClose = 15,
        CurtainUp = 16,
        CurtainDown = 17,
        Scroll = 18,
        Snow = 19,
        /** Clear effect only: the page stays until the next one covers it. */
        KeepPage = 20,
        BoxOut = 21,
        BoxIn = 22,
        Blink = 23,
        Checkerboard = 24,
        RandomEffect = 25,
    };

    explicit LEffectNode(LNode *parent = nullptr);
    ~LEffectNode() override;

    /** The item's own size, the frame's where it has none. */
    [[nodiscard]] QSize Size() const override;

    /** The display effects in the order of the list: name, image, number. KeepPage is not one. */
    [[nodiscard]] static QVector<LEffectItem> GetDispEffectName();
    /** The clear effects in the order of the list; KeepPage is one of them. */
    [[nodiscard]] static QVector<LEffectItem> GetClearEffectName();

    /** Number of the display effect, see EffectType. Default 0. */
    [[nodiscard]] int GetDispEffect() const;
    void SetDispEffect(int value);

    /** Number of the clear effect, see EffectType. Default 0. */
    [[nodiscard]] int GetClearEffect() const;
    void SetClearEffect(int value);

    /** Duration of the display effect as an index, 0 (fast) to 8 (slow). Default 0. */
    [[nodiscard]] int GetDispTime() const;
    void SetDispTime(int value);

    /** Duration of the clear effect as an index, 0 (fast) to 8 (slow). Default 0. */
    [[nodiscard]] int GetClearTime() const;
    void SetClearTime(int value);

    /** Speed of the item as an index, 0 (fast) to 8 (slow). Default 0. */
    [[nodiscard]] int GetSpeed() const;
    void SetSpeed(int value);

    /** How long a page is held, in tenths of a second. Default 50. */
    [[nodiscard]] int GetHoldTime() const;
    void SetHoldTime(int value);

    /** "ByCount" (default) or "ByTime". */
    [[nodiscard]] QString GetPlayType() const;
    void SetPlayType(const QString &value);

    /** Seconds for which the item plays when the play type is "ByTime". Default 10. */
    [[nodiscard]] int GetByTime() const;
    void SetByTime(int value);

    /** Number of rounds that the item plays when the play type is "ByCount". Default 1. */
    [[nodiscard]] int GetByCount() const;
    void SetByCount(int value);

    /** Whether the item moves without a stop between its pages. Default false. */
    [[nodiscard]] bool IsContinueMove() const;
    void SetContinueMove(bool value);

    /** Whether a border is drawn around the item. Default false. */
    [[nodiscard]] bool GetBorderEnable() const;
    void SetBorderEnable(bool value);

    /** Whether the border follows a shape. Default false. */
    [[nodiscard]] bool GetShapedBorderEnable() const;
    void SetShapedBorderEnable(bool value);

    /** File of the border's picture; empty by default. */
    [[nodiscard]] QString GetBorderPath() const;
    void SetBorderPath(const QString &value);

    /** Movement of the border: the effect of the frame, not its type. Default 0. */
    [[nodiscard]] int GetBorderStyle() const;
    void SetBorderStyle(int value);

    /** Speed of the border's movement, 0 (fast) to 8 (slow). Default 0. */
    [[nodiscard]] int GetBorderSpeed() const;
    void SetBorderSpeed(int value);

    /** Tells who draws the item that its border or depth settings changed. */
    void Send3DAttributeChanged();
    /** Asks who plays the item to start it again from its first page. */
    void RestartPlay();
    /** Asks who shows the item to draw it again; the editor calls it after each push. */
    void ReDrawImaged();

signals:
    /** Sent by Send3DAttributeChanged. */
    void Attribute3DChanged();
    /** Sent by RestartPlay. */
    void RestartRequested();
    /** Sent by ReDrawImaged. */
    void ReDrawRequested();

private:
    Q_DISABLE_COPY(LEffectNode)
};
