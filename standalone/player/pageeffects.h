#pragma once

#include <QImage>

namespace player {

/** Display effects of an item that moves without a stop, beside those of LEffectNode::EffectType.
 */
enum ContinuousMove : int { MoveLeft = 101, MoveRight = 102, MoveUp = 103 };

/**
 * One frame of a page's coming in, by the display effect @p effect: an LEffectNode::EffectType or a
 * ContinuousMove. An unknown number, as LEffectNode::KeepPage is here, shows the page at once.
 *
 * @p under is what the place shows before, null where it is empty. It is replaced, not drawn over:
 * where the page is transparent the place becomes so. The frame is of the page's size, or of that
 * of
 * @p under when the page is null; both are aligned at the top left corner. It is @p under itself up
 * to a @p progress of 0, and for one that is no number, and @p page itself from 1 on.
 *
 * The same @p seed gives the same frame: effects that scatter, and the choice of
 * LEffectNode::RandomEffect, take their chance from it alone. Between the ends frames are
 * QImage::Format_ARGB32_Premultiplied; pages of that format are the fastest.
 */
[[nodiscard]] QImage effectFrame(int effect, const QImage &under, const QImage &page,
                                 double progress, quint32 seed);

/**
 * One frame of a page's going away by the clear effect @p effect: @p page itself up to a progress
 * of 0, a transparent picture from 1 on; otherwise as effectFrame(). What moves, leaves in its own
 * direction. LEffectNode::KeepPage shows the page at any progress.
 */
[[nodiscard]] QImage clearFrame(int effect, const QImage &page, double progress, quint32 seed);

/** The effect that stands for LEffectNode::RandomEffect with that seed; any other is its own. */
[[nodiscard]] int chosenEffect(int effect, quint32 seed);

} // namespace player
