#pragma once

#include "choices.h"

#include <QString>

/**
 * A document by a small grammar: what the editor writes and what others may have written, so that
 * every input reaches the reader's depths, which bytes taken as markup do not.
 *
 * Left out is what Qt 5.15 reads but writes down as something else: headings, lists, rulers,
 * preformatted and nested tables, backgrounds of paragraphs, letter spacing, colours with alpha,
 * images in raised text.
 */
[[nodiscard]] QString markup(Choices choices);
