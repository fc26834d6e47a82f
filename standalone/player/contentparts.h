#pragma once

#include <QString>
#include <QStringList>

namespace player {

/** A stored document taken apart around the token of its table. */
struct ContentParts
{
    bool isFound = false; ///< There is the token, and a table around it.
    QString head;         ///< Up to the tag of the body, that included; may be empty.
    QString prologue;     ///< From there to the table.
    QString tableTag;
    QStringList rowsBefore; ///< From <tr> to </tr>, in front of the token.
    QStringList rowsBehind;
    QString epilogue; ///< From behind the table on.

    /** Takes @p content apart; linear. */
    [[nodiscard]] static ContentParts of(const QString &content, const QString &token);
};

/** A cell of a row of markup. */
struct CellMarkup
{
    int begin = 0; ///< Of its tag.
    int end = 0;   ///< Behind its end tag.
    int tagEnd = 0;
    int columns = 1;
    int rows = 1;
    double width = -1; ///< In pixels; below 0 when none is given.
};

/** The cells of a row, or of part of one, those of tables inside left out. */
[[nodiscard]] QVector<CellMarkup> cellsOf(const QString &row);

/** What a tag says of a number of pixels; @p fallback when it is missing or no such number. */
[[nodiscard]] double pixelsOf(const QString &tag, QLatin1String key, double fallback);
/** @p tag with another value of an attribute, which is added when it is missing. */
[[nodiscard]] QString withAttribute(const QString &tag, QLatin1String key, const QString &value);

} // namespace player
