#include "tableborder.h"

#include <QStringList>

namespace lctrlsex {

QString withDeclaration(const QString &style, const QString &declaration)
{
    QString result = style.trimmed();
    if (!result.isEmpty() && !result.endsWith(QLatin1Char(';'))) {
        result += QLatin1Char(';');
    }
    return result + QLatin1Char(' ') + declaration;
}

TableBorder::TableBorder(const HtmlToken &table)
    : TableBorder(valueOf(table, QLatin1String("style")),
                  valueOf(table, QLatin1String("border"), QStringLiteral("1")))
{}

TableBorder::TableBorder(const QString &styleText, const QString &borderText)
    : width(borderText + QLatin1String("px"))
{
    const auto declarations = styleText.split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (const QString &declaration : declarations) {
        constexpr int nameLength = 13; // of each of the three
        const QString text = declaration.trimmed();
        const QString value = text.mid(nameLength).trimmed();
        if (text.startsWith(QLatin1String("border-style:"))) {
            style = value;
        } else if (text.startsWith(QLatin1String("border-color:"))) {
            color = value;
        } else if (text.startsWith(QLatin1String("border-width:"))) {
            width = value;
        }
    }
}

QString TableBorder::declaration() const
{
    return QStringLiteral("border:%1 %2 %3;").arg(width, style, color);
}

int TableBorder::pixels() const
{
    bool isNumber = false;
    const int number = int(width.leftRef(width.size() - 2).toDouble(&isNumber));
    return isNumber && width.endsWith(QLatin1String("px")) ? number : 1;
}

BorderTexts::BorderTexts(const TableBorder &border)
    : m_declaration(border.declaration().toHtmlEscaped())
    , m_behind(QLatin1Char(' ') + m_declaration)
    , m_apart(QLatin1Char(';') + m_behind)
    , m_bare(editText(QLatin1String("style"), m_behind, false))
{}

MarkupEdit BorderTexts::editOf(const HtmlAttribute &style, int insertAt) const
{
    if (!isThere(style)) {
        return {insertAt, insertAt, m_bare};
    }
    const bool isTrimmed = style.quote == HtmlAttribute::Quote::Double &&
                           !style.value.front().isSpace() && !style.value.back().isSpace();
    if (isTrimmed) {
        const bool isEnded = style.value.back() == QLatin1Char(';');
        return {style.end - 1, style.end - 1, isEnded ? m_behind : m_apart};
    }
    const QString all = withDeclaration(escapedValue(style), m_declaration);
    return lctrlsex::editOf(editText(QLatin1String("style"), all, true), style, insertAt);
}

} // namespace lctrlsex
