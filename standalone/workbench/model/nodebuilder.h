#pragma once

#include <QRect>
#include <QString>

#include <memory>

class LControllerNode;
class LFrameNode;
class LNode;
class LScreenNode;
class LTextEffectNode;

namespace workbench {

// New nodes stand nowhere yet. Their names are not used in the tree below the root given.

[[nodiscard]] std::unique_ptr<LControllerNode> newController();
[[nodiscard]] std::unique_ptr<LNode> newScreen(const LNode *root);
/** Over all of @p screen when it is the first there, else in the quarter that is freest. */
[[nodiscard]] std::unique_ptr<LNode> newFrame(const LNode *root, const LScreenNode *screen);
[[nodiscard]] std::unique_ptr<LNode> newItem(const LNode *root);
/** A copy of @p node and all below it; null for kinds that cannot be copied. */
[[nodiscard]] std::unique_ptr<LNode> copyOf(const LNode *root, const LNode *node);

} // namespace workbench
