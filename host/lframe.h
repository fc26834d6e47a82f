#pragma once

#include "lcommon_global.h"

#include <QSharedDataPointer>
#include <QString>

class LFrameData;

/** The border of a frame or programme item: a plain value. */
class LCOMMON_EXPORT LFrame
{
public:
    /** A border that is switched off: type 1, effect 0, speed 0. */
    LFrame();
    LFrame(const LFrame &other);
    LFrame &operator=(const LFrame &other);
    ~LFrame();

    /** Whether the border is drawn. */
    [[nodiscard]] bool Enable() const;
    void SetEnable(bool value);

    /** Number of the border's picture, 1 to 18; see Type2Image. */
    [[nodiscard]] int FrameType() const;
    void SetFrameType(int value);

    /** Number of the border's movement, 0 for none. */
    [[nodiscard]] int Effect() const;
    void SetEffect(int value);

    /** Speed of the movement, 0 (fast) to 8 (slow). */
    [[nodiscard]] int Speed() const;
    void SetSpeed(int value);

    /**
     * Image name of a border type: 1 to 6 give ":/images/P01.png" to "P06.png", 7 to 12 "M01.png"
     * to "M06.png", 13 to 18 "T01.png" to "T06.png"; empty for any other number.
     */
    [[nodiscard]] static QString Type2Image(int type);

    [[nodiscard]] bool operator==(const LFrame &other) const;
    [[nodiscard]] bool operator!=(const LFrame &other) const { return !(*this == other); }

private:
    QSharedDataPointer<LFrameData> d;
};
