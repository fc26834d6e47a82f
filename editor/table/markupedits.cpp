#include "markupedits.h"

#include <algorithm>

namespace lctrlsex {

HtmlAttribute attributeOf(const HtmlToken &tag, QLatin1String key)
{
    const auto found = std::find_if(tag.attributes.begin(), tag.attributes.end(),
                                    [key](const HtmlAttribute &attribute) {
                                        return attribute.key.compare(key, Qt::CaseInsensitive) == 0;
                                    });
    return found == tag.attributes.end() ? HtmlAttribute() : *found;
}

bool isThere(const HtmlAttribute &attribute)
{
    return attribute.end > attribute.begin;
}

QString valueOf(const HtmlToken &tag, QLatin1String key, const QString &fallback)
{
    const HtmlAttribute attribute = attributeOf(tag, key);
    return isThere(attribute) ? attributeText(attribute) : fallback;
}

int insertionPlace(const HtmlToken &tag)
{
    return tag.end - (tag.selfClosed ? 2 : 1);
}

QString escapedValue(const HtmlAttribute &attribute)
{
    if (!isThere(attribute)) {
        return QString();
    }
    return attribute.quote == HtmlAttribute::Quote::Double
               ? attribute.value.toString()
               : attributeText(attribute).toHtmlEscaped();
}

QString editText(QLatin1String key, const QString &value, bool isReplaced)
{
    const QString blank = isReplaced ? QString() : QStringLiteral(" ");
    return blank + key + QLatin1String("=\"") + value + QLatin1Char('"');
}

MarkupEdit editOf(const QString &text, const HtmlAttribute &old, int insertAt)
{
    const bool isReplaced = isThere(old);
    return {isReplaced ? old.begin : insertAt, isReplaced ? old.end : insertAt, text};
}

namespace {

/** Moves a position of the text to where it is after @p edits; to be asked from front to back. */
class Shift
{
public:
    explicit Shift(const std::vector<MarkupEdit> &edits)
        : m_next(edits.begin())
        , m_end(edits.end())
    {}

    void move(int *position)
    {
        for (; m_next != m_end && m_next->begin < *position; ++m_next) {
            m_distance += m_next->text.size() - (m_next->end - m_next->begin);
        }
        *position += m_distance;
    }

private:
    std::vector<MarkupEdit>::const_iterator m_next;
    std::vector<MarkupEdit>::const_iterator m_end;
    int m_distance = 0;
};

} // namespace

void moveTable(TableOutline *table, const std::vector<MarkupEdit> &edits)
{
    Shift shift(edits);
    shift.move(&table->inside.begin);
    for (OutlinedRow &row : table->rows) {
        shift.move(&row.span.begin);
        for (OutlinedCell &cell : row.cells) {
            shift.move(&cell.span.begin);
            shift.move(&cell.span.end);
        }
        shift.move(&row.span.end);
    }
    shift.move(&table->inside.end);
}

QString edited(const QString &html, const std::vector<MarkupEdit> &edits)
{
    int size = html.size();
    for (const MarkupEdit &edit : edits) {
        size += edit.text.size() - (edit.end - edit.begin);
    }
    QString result(size, Qt::Uninitialized);
    QChar *to = result.data();
    const QChar *from = html.constData();
    for (const MarkupEdit &edit : edits) {
        to = std::copy(from, html.constData() + edit.begin, to);
        to = std::copy(edit.text.begin(), edit.text.end(), to);
        from = html.constData() + edit.end;
    }
    std::copy(from, html.constEnd(), to);
    return result;
}

} // namespace lctrlsex
