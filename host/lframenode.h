#pragma once

#include "lframe.h"
#include "lnode.h"

#include <QRect>

class LFrameNodePrivate;

/** A rectangle on a screen that shows one programme item. */
class LCOMMON_EXPORT LFrameNode : public LNode
{
    Q_OBJECT

public:
    explicit LFrameNode(LNode *parent = nullptr);
    ~LFrameNode() override;

    /** "Frame". */
    [[nodiscard]] QString TypeText() const override;
    /** The type text of the programme item that the frame shows: the text item's. */
    [[nodiscard]] QString ChildType() const override;

    /** The frame's own size, the screen's where it has none. */
    [[nodiscard]] QSize Size() const override;

    /** Place on the screen in pixels; the size is Size(). */
    [[nodiscard]] QRect GetRect() const;
    void SetRect(const QRect &rect);

    /** The border. */
    [[nodiscard]] LFrame GetFrame() const;
    /** Sets the border; FrameChanged is sent once when any part of it differs. */
    void SetFrame(const LFrame &frame);

signals:
    /** The border became another one. */
    void FrameChanged();
    /** Place or size became another one. */
    void RectChanged();

private:
    Q_DISABLE_COPY(LFrameNode)
    const QScopedPointer<LFrameNodePrivate> d;
};
