#pragma once

#include <QString>
#include <QStringList>

namespace lctrlsex {

/** What shape of data a bind key names. */
struct BindKey
{
    /**
     * 21 list.{a,b}[], 22 rec.{a,b}, 23 name[][], 12 name, 11 name[], 13 name[3][]; 0 for every
     * other text, which cannot be bound.
     */
    int kind = 0;
    /** The names between braces as written; else the last word, 13 with its index; none for 23. */
    QStringList fields;
};

/**
 * The first of the kinds, in the order above, that @p key ends as. It begins with a word character
 * and has no two dots in a row; a line feed at its end does not count. Letters and digits are those
 * of any script. Linear; any thread may ask.
 */
[[nodiscard]] BindKey classifyBindKey(const QString &key);

/** Whether a table can be filled from a key of that kind. */
[[nodiscard]] bool isBindable(int kind);

} // namespace lctrlsex
