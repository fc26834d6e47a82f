#pragma once

#include "tablemarkup.h"

#include <QPointer>
#include <QStringList>

#include <functional>

class LTextEffectNode;

namespace lctrlsex {

/** What @p node says of its table; null gives defaults. */
[[nodiscard]] TableMarks tableMarksOf(const QPointer<LTextEffectNode> &node);

/** The bind keys of @p node: of any table, then one for each table type. */
[[nodiscard]] QStringList bindKeysOf(const QPointer<LTextEffectNode> &node);
/** Sets them; asks @p isStill before each call, which may be what the call before ended. */
void setBindKeys(const QPointer<LTextEffectNode> &node, const QStringList &keys,
                 const std::function<bool()> &isStill);

/**
 * Stores @p html as what @p node shows, with the table's template cut out of it where the bind key
 * allows that, and beside it the template. HTML that is not well-formed is stored as it is, with a
 * warning. Asks @p isStill as setBindKeys() does.
 */
void storeTemplate(const QPointer<LTextEffectNode> &node, const QString &html,
                   const std::function<bool()> &isStill);
/** The same where findTable() is known. */
void storeTemplate(const QPointer<LTextEffectNode> &node, const OutlinedHtml &html,
                   const std::function<bool()> &isStill);

/**
 * unifyTableColumnWidths() of @p html with what @p node says of its table. Where the body has no
 * table, resetTableBinding() too.
 */
[[nodiscard]] QString unifyTables(const QPointer<LTextEffectNode> &node, const QString &html,
                                  const std::function<bool()> &isStill);

/**
 * Clears bind keys, templates, placeholders and content of @p node, whose document has no table,
 * and announces that the configuration changed. Asks @p isStill as setBindKeys() does.
 */
void resetTableBinding(const QPointer<LTextEffectNode> &node, const std::function<bool()> &isStill);

} // namespace lctrlsex
