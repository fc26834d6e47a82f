#pragma once

#include "itemdocument.h"
#include "pagerenderer.h"

class LTextEffectNode;

namespace lctrlsex {

/** What a node says of its text and pages, as core understands it. Null nodes give defaults. */
[[nodiscard]] TextSettings textSettingsOf(const LTextEffectNode *node);
[[nodiscard]] PageStyle pageStyleOf(const LTextEffectNode *node);
[[nodiscard]] PageFinish pageFinishOf(LTextEffectNode *node);

/** The host library's stroke and hollow. */
[[nodiscard]] PageEffects hostEffects();

} // namespace lctrlsex
