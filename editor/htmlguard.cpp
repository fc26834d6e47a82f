#include "htmlguard.h"

#include "htmlguardpass.h"
#include "htmltokens.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstring>

namespace lctrlsex {

namespace {

// One rewriting can show what another must change; an honest document needs two passes.
constexpr int mostPasses = 8;

struct Explanation
{
    HtmlExcess excess;
    const char *reason;
    const char *remedy;
};

const char *const context = "HtmlGuard";

const Explanation explanations[] = {
    {HtmlExcess::Depth, QT_TRANSLATE_NOOP("HtmlGuard", "More than 500 elements are open at once."),
     QT_TRANSLATE_NOOP("HtmlGuard", "Close elements before new ones are opened.")},
    {HtmlExcess::Lists, QT_TRANSLATE_NOOP("HtmlGuard", "Lists are nested more than 50 deep."),
     QT_TRANSLATE_NOOP("HtmlGuard", "Use fewer levels of lists.")},
    {HtmlExcess::TableDepth, QT_TRANSLATE_NOOP("HtmlGuard", "Tables are nested more than 4 deep."),
     QT_TRANSLATE_NOOP("HtmlGuard", "Put the content into one table.")},
    {HtmlExcess::Tables, QT_TRANSLATE_NOOP("HtmlGuard", "There are more than 256 tables."),
     QT_TRANSLATE_NOOP("HtmlGuard", "Join tables or divide the text into several items.")},
    {HtmlExcess::Columns, QT_TRANSLATE_NOOP("HtmlGuard", "A table has more than 1000 columns."),
     QT_TRANSLATE_NOOP("HtmlGuard", "Remove columns or column spans.")},
    {HtmlExcess::Cells, QT_TRANSLATE_NOOP("HtmlGuard", "A table has more than 200000 cells."),
     QT_TRANSLATE_NOOP("HtmlGuard",
                       "Bind the table to a data source instead of storing its rows.")},
    {HtmlExcess::HiddenTable,
     QT_TRANSLATE_NOOP("HtmlGuard", "A table or list stands inside an element that is not shown."),
     QT_TRANSLATE_NOOP("HtmlGuard", "Move it out of the head or title of the document.")},
    {HtmlExcess::TableOrder,
     QT_TRANSLATE_NOOP("HtmlGuard",
                       "A table stands inside another one but in no cell that it could have."),
     QT_TRANSLATE_NOOP("HtmlGuard", "Put the inner table into a cell without overlapping spans.")},
    {HtmlExcess::Floats,
     QT_TRANSLATE_NOOP("HtmlGuard", "There are more than 256 floating images and tables."),
     QT_TRANSLATE_NOOP("HtmlGuard", "Put images and tables into the flow of the text.")},
    {HtmlExcess::Height, QT_TRANSLATE_NOOP("HtmlGuard", "The text is taller than 3000000 pixels."),
     QT_TRANSLATE_NOOP("HtmlGuard", "Shorten the text or use smaller letters and margins.")},
    {HtmlExcess::Width, QT_TRANSLATE_NOOP("HtmlGuard", "A table is wider than 4000000 pixels."),
     QT_TRANSLATE_NOOP("HtmlGuard", "Remove columns or make them narrower.")},
    {HtmlExcess::Paragraph, QT_TRANSLATE_NOOP("HtmlGuard", "A paragraph is too long to lay out."),
     QT_TRANSLATE_NOOP("HtmlGuard", "Divide the text into paragraphs.")},
    {HtmlExcess::Work, QT_TRANSLATE_NOOP("HtmlGuard", "The text takes too long to lay out."),
     QT_TRANSLATE_NOOP("HtmlGuard", "Divide the text into several items.")},
    {HtmlExcess::Tangle,
     QT_TRANSLATE_NOOP("HtmlGuard",
                       "Long words, images in long lines or deep nesting make the text too slow."),
     QT_TRANSLATE_NOOP("HtmlGuard", "Put blanks into long words and divide long paragraphs.")},
    {HtmlExcess::Memory, QT_TRANSLATE_NOOP("HtmlGuard", "The text takes too much memory."),
     QT_TRANSLATE_NOOP("HtmlGuard", "Divide the text into several items.")},
};

GuardedHtml refusal(const QString &html, int position, const char *reason, const char *remedy)
{
    GuardedHtml result;
    result.reason = QCoreApplication::translate(context, reason);
    result.remedy = QCoreApplication::translate(context, remedy);
    const QStringView before = QStringView(html).left(position);
    result.line = 1 + int(std::count(before.begin(), before.end(), QLatin1Char('\n')));
    result.column = position - int(before.lastIndexOf(QLatin1Char('\n')));
    return result;
}

GuardedHtml refusal(const QString &html, int position, HtmlExcess excess)
{
    const auto *const found =
        std::find_if(std::begin(explanations), std::end(explanations),
                     [excess](const Explanation &known) { return known.excess == excess; });
    return refusal(html, position, found->reason, found->remedy);
}

/** Qt stores a bare placeholder of an object, U+FFFC, in a way that loses the text behind it. */
bool isRefusedCharacter(uint code)
{
    return code == 0 || code == 0xfffc || code == 0xfffe || code == 0xffff ||
           (code >= 0xd800 && code <= 0xdfff) || code > 0x10ffff;
}

/** True when some character is worth a closer look; four are tried at a time. */
bool hasOddCharacters(const QString &html)
{
    constexpr quint64 ones = 0x0001000100010001U;
    constexpr quint64 highBits = 0x8000800080008000U;
    const ushort *const units = html.utf16();
    const int size = html.size();
    for (int i = 0; i < size; i += 4) {
        quint64 four = 0;
        if (size - i >= 4) {
            std::memcpy(&four, units + i, sizeof four);
            // Neither a zero nor anything from 0x8000 up among them.
            if (((four | (four - ones)) & highBits) == 0) {
                continue;
            }
        }
        for (int k = i; k < qMin(i + 4, size); ++k) {
            if (isRefusedCharacter(units[k])) {
                return true;
            }
        }
    }
    return false;
}

void replaceOddCharacters(QString *html)
{
    if (!hasOddCharacters(*html)) {
        return;
    }
    for (int i = 0; i < html->size(); ++i) {
        const QChar c = qAsConst(*html).at(i);
        if (c.isHighSurrogate() && i + 1 < html->size() &&
            qAsConst(*html).at(i + 1).isLowSurrogate()) {
            ++i;
        } else if (isRefusedCharacter(c.unicode())) {
            (*html)[i] = QChar(QChar::ReplacementCharacter);
        }
    }
}

void replaceOddEntities(QString *html)
{
    QString text;
    int copied = 0;
    const int lastEnd = html->lastIndexOf(QLatin1Char(';'));
    for (int i = html->indexOf(QLatin1String("&#")); i >= 0;
         i = html->indexOf(QLatin1String("&#"), i + 1)) {
        // The end of the text ends an entity as well as a ";" does.
        const bool last = i > lastEnd;
        const HtmlEntity entity = last ? readEntity(QString(html->mid(i, 10) + QLatin1Char(';')), 0)
                                       : readEntity(*html, i);
        if (entity.length > 0 && isRefusedCharacter(entity.code)) {
            text += html->midRef(copied, i - copied);
            text += QChar(QChar::ReplacementCharacter);
            copied = qMin(i + entity.length, html->size());
        }
    }
    if (copied > 0) {
        *html = text + html->midRef(copied);
    }
}

/** Qt loads only what stands between the two marks of a clipboard fragment, wherever they are. */
void cutFragment(QString *html)
{
    const QLatin1String startMark("<!--StartFragment-->");
    const int start = html->indexOf(startMark);
    if (start < 0) {
        return;
    }
    const QLatin1String mark("<meta name=\"qrichtext\" content=\"1\" />");
    const bool marked = html->contains(mark);
    const int end = html->indexOf(QLatin1String("<!--EndFragment-->"));
    *html = end > start ? html->mid(start, end - start) : html->mid(start);
    html->replace(startMark, QLatin1String("<!-- -->"));
    if (marked) {
        html->prepend(mark);
    }
}

} // namespace

GuardedHtml guardHtml(const QString &html)
{
    if (html.size() > longestHtml) {
        return refusal(
            html, longestHtml,
            QT_TRANSLATE_NOOP("HtmlGuard", "The text is longer than 8388608 characters."),
            QT_TRANSLATE_NOOP("HtmlGuard", "Divide the text into several items."));
    }
    QString current = html;
    for (int pass = 0; pass < mostPasses; ++pass) {
        cutFragment(&current);
        replaceOddCharacters(&current);
        replaceOddEntities(&current);
        HtmlGuardPass reading(current);
        reading.run();
        if (reading.excess() != HtmlExcess::None) {
            return refusal(current, reading.position(), reading.excess());
        }
        if (!reading.hasEdits()) {
            GuardedHtml result;
            result.accepted = true;
            result.html = current;
            return result;
        }
        current = reading.edited();
    }
    return refusal(
        html, 0, QT_TRANSLATE_NOOP("HtmlGuard", "The markup is too disordered to be read safely."),
        QT_TRANSLATE_NOOP("HtmlGuard", "Enter the text anew."));
}

} // namespace lctrlsex
