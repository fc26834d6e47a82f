#pragma once

#include "tableoutline.h"

#include <QString>

namespace lctrlsex {

/** A document cut into the part that is repeated over the data and the rest. */
struct TableTemplate
{
    enum Outcome {
        NotRead, ///< The markup is not well-formed.
        NoTable, ///< There is no table.
        Whole,   ///< No row or cell of the table is one to repeat.
        Cut
    };

    Outcome outcome = NotRead;
    QString content;   ///< The document with "${token}" where the repeated part goes.
    QString token;     ///< Without "${" and "}"; found nowhere else in the document.
    QString separator; ///< Between the parts of each text below, one a row; empty for types 0, 1.
    QString part;      ///< What is repeated: a row, or a cell of each row.
    QString prefix;    ///< What stands before the cells of each row.
    QString suffix;    ///< What stands behind them.
    int fixedRows = 0; ///< Rows of the table without its header; type 0 only.
};

/**
 * Cuts the template out of the first table of @p html: for type 0 and 1 its first row, for 2 and 3
 * the first cell of each row; the second when there is a header. For type 0 no other row is kept
 * but the header. A row without a cell in the template's column has an empty part. All that stays
 * or moves does so to the letter. Token and separator are new each time.
 */
[[nodiscard]] TableTemplate cutTemplate(const QString &html, int tableType, bool hasHeader);
/** The same where findTable() of @p html is known. */
[[nodiscard]] TableTemplate cutTemplate(const QString &html, const FoundTable &found, int tableType,
                                        bool hasHeader);

} // namespace lctrlsex
