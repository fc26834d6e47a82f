#pragma once

#include "documentsetup.h"

#include <QString>

class LTextEffectNode;

namespace player {

/** What an item stores of its bound table and of what fills it, by value. */
struct StoredItem
{
    enum TableType { FixedForm = 0, Rows = 1, Columns = 2, Adaptive = 3 };

    QString content; ///< The display HTML with the token in place of the template.
    int tableType = FixedForm;
    QString bindKey;     ///< Of that type; empty when the table is not bound.
    QString placeholder; ///< The bare token.
    bool hasHeader = false;
    bool freezesHeader = false;
    bool fillsArea = false;
    bool turnsHorizontally = false;
    int fixedRows = 0;
    QString rowTemplate;                                  ///< Of a fixed form and of dynamic rows.
    QString cellTemplates, prefixes, suffixes, separator; ///< Of the two other types.
    QString listSeparator;
    QString source; ///< That keys without one belong to.
    QString styles, calculations;
    lctrlsex::TextSettings text;
};

/** A snapshot of @p node; null gives an unbound item. */
[[nodiscard]] StoredItem storedItemOf(const LTextEffectNode *node);

} // namespace player
