#pragma once

#include "problem.h"

class LTextEffectNode;

namespace player {

/**
 * What is wrong with the conditional styles and the calculations that @p node stores: texts that
 * cannot be read, conditions that hold for no value,
 * styles that no text uses, steps that compute nothing whatever the data.
 * @p place names the item. Empty for null.
 */
[[nodiscard]] Problems checkRecords(const LTextEffectNode *node, const QString &place);

} // namespace player
