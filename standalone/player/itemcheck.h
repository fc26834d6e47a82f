#pragma once

#include "problem.h"

namespace player {

class ItemRenderer;

/**
 * What ItemRenderer::problems() does not say: characters without a glyph, cut lines, images larger
 * than the item, text in the colour of its ground. Empty when the item has no pages.
 */
[[nodiscard]] Problems checkItem(ItemRenderer *item);

} // namespace player
