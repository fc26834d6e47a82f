#pragma once

#include "markupedits.h"

namespace lctrlsex {

/** @p style with another declaration behind what it says. */
[[nodiscard]] QString withDeclaration(const QString &style, const QString &declaration);

/** The border of a table: what of it is repeated on each cell. */
struct TableBorder
{
    explicit TableBorder(const HtmlToken &table);
    /** Of a table's attributes "style" and "border". */
    TableBorder(const QString &styleText, const QString &borderText);

    [[nodiscard]] QString declaration() const;
    /** Width in whole pixels; 1 when it is given in anything else. */
    [[nodiscard]] int pixels() const;

    QString style = QStringLiteral("solid");
    QString color = QStringLiteral("#ff0000");
    QString width;
};

/** The border of cells, in the few forms in which it is put behind their styles. */
class BorderTexts
{
public:
    explicit BorderTexts(const TableBorder &border);

    /** What adds it to a cell that has @p style, or at @p insertAt where it has none. */
    [[nodiscard]] MarkupEdit editOf(const HtmlAttribute &style, int insertAt) const;

private:
    QString m_declaration;
    QString m_behind;
    QString m_apart;
    QString m_bare;
};

} // namespace lctrlsex
