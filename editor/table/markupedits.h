#pragma once

#include "htmltokens.h"
#include "tableoutline.h"

#include <QString>

#include <vector>

namespace lctrlsex {

/** A stretch of markup, possibly an empty one, and what takes its place. */
struct MarkupEdit
{
    int begin;
    int end;
    QString text;
};

/** The attribute of @p tag whose name is @p key in any letter case; one without length if none. */
[[nodiscard]] HtmlAttribute attributeOf(const HtmlToken &tag, QLatin1String key);
[[nodiscard]] bool isThere(const HtmlAttribute &attribute);
/** The attribute's value, @p fallback where it is not there. */
[[nodiscard]] QString valueOf(const HtmlToken &tag, QLatin1String key,
                              const QString &fallback = QString());
/** The value as it may stand between double quotes. */
[[nodiscard]] QString escapedValue(const HtmlAttribute &attribute);

/** Where further attributes of a tag go. */
[[nodiscard]] int insertionPlace(const HtmlToken &tag);
/** What gives an attribute a value: in place of an old one, or else with a blank before it. */
[[nodiscard]] QString editText(QLatin1String key, const QString &value, bool isReplaced);
/** @p text, an editText(), at the place of @p old or else at @p insertAt. */
[[nodiscard]] MarkupEdit editOf(const QString &text, const HtmlAttribute &old, int insertAt);

/** @p html after @p edits, which are in order and apart from each other. */
[[nodiscard]] QString edited(const QString &html, const std::vector<MarkupEdit> &edits);
/** Moves what @p table says of positions to where these are after @p edits inside of tags. */
void moveTable(TableOutline *table, const std::vector<MarkupEdit> &edits);

} // namespace lctrlsex
