#include "documentexport.h"

#include "behindtable.h"
#include "documentstorage.h"
#include "htmlunits.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>

namespace lctrlsex {

namespace {

/** Appends @p text as Qt escapes it between tags. */
void appendEscaped(QString *html, const QString &text)
{
    for (const QChar c : text) {
        switch (c.unicode()) {
        case '<':
            *html += QLatin1String("&lt;");
            break;
        case '>':
            *html += QLatin1String("&gt;");
            break;
        case '&':
            *html += QLatin1String("&amp;");
            break;
        case '"':
            *html += QLatin1String("&quot;");
            break;
        case '\n':
        case QChar::LineSeparator:
            *html += QLatin1String("<br />");
            break;
        default:
            *html += c;
        }
    }
}

} // namespace

DocumentExport::DocumentExport(QTextDocument *document)
    : m_document(document)
{
    QObject::connect(document, &QTextDocument::contentsChange, &m_listener,
                     [this](int position, int, int added) { onChange(position, added); });
}

/** Makes room for what came and forgets what went; in the end there is an entry a block again. */
void DocumentExport::onChange(int position, int added)
{
    const QTextBlock first = m_document->findBlock(position);
    const QTextBlock last = m_document->findBlock(position + added);
    const int begin = first.isValid() ? first.blockNumber() : 0;
    const int fresh =
        (last.isValid() ? last.blockNumber() : m_document->blockCount() - 1) - begin + 1;
    const int stale = fresh - m_document->blockCount() + int(m_paragraphs.size());
    if (fresh < 1 || stale < 0 || begin + stale > int(m_paragraphs.size())) {
        m_paragraphs.clear();
        return;
    }
    const auto place = m_paragraphs.begin() + begin;
    std::fill(place, place + qMin(fresh, stale), Paragraph());
    if (fresh < stale) {
        m_paragraphs.erase(place + fresh, place + stale);
    } else {
        m_paragraphs.insert(place + stale, size_t(fresh - stale), Paragraph());
    }
}

ExportedDocument DocumentExport::texts()
{
    if (m_markup.follow(*m_document) || int(m_paragraphs.size()) != m_document->blockCount()) {
        m_paragraphs.assign(size_t(m_document->blockCount()), Paragraph());
    }
    if (m_document->rootFrame()->childFrames().isEmpty() && writeChanged()) {
        return joined();
    }
    QString html = m_document->toHtml();
    const QTextBlock blank = unwrittenBlank(*m_document);
    if (blank.isValid()) {
        html = withParagraphBehindTable(html, m_markup.of(blank).before.stored);
    }
    // Both forms hold the same text, lone surrogates in neither.
    html = wellFormed(html);
    return {encodeUtf8(html.toUtf8()), replacePtWithPx(html)};
}

/** False when there is a paragraph that can only be written together with others. */
bool DocumentExport::writeChanged()
{
    QTextBlock block;
    for (size_t i = 0; i < m_paragraphs.size(); ++i) {
        if (!m_paragraphs[i].stored.isEmpty()) {
            block = QTextBlock();
            continue;
        }
        block = block.isValid() ? block.next() : m_document->findBlockByNumber(int(i));
        std::optional<Paragraph> written = write(block);
        if (!written) {
            return false;
        }
        m_paragraphs[i] = std::move(*written);
    }
    return true;
}

std::optional<DocumentExport::Paragraph> DocumentExport::write(const QTextBlock &block)
{
    const Enclosure paragraph = m_markup.of(block);
    if (!paragraph.isKnown) {
        return std::nullopt;
    }
    Markup html = paragraph.before;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QString text = it.fragment().text();
        const Enclosure &span = m_markup.of(it.fragment(), text);
        if (!span.isKnown) {
            return std::nullopt;
        }
        html.stored += span.before.stored;
        html.display += span.before.display;
        const int begin = html.stored.size();
        if (!text.contains(QChar::ObjectReplacementCharacter)) {
            appendEscaped(&html.stored, text);
        }
        html.stored += span.after;
        html.display += html.stored.midRef(begin);
    }
    html.stored += paragraph.after;
    html.display += paragraph.after;
    return Paragraph{wellFormed(html.stored).toUtf8(), wellFormed(html.display)};
}

ExportedDocument DocumentExport::joined() const
{
    const Enclosure &whole = m_markup.document();
    const QByteArray head = whole.before.stored.toUtf8();
    const QByteArray tail = whole.after.toUtf8();
    int bytes = head.size() + tail.size();
    int characters = whole.before.display.size() + whole.after.size();
    for (const Paragraph &paragraph : m_paragraphs) {
        bytes += paragraph.stored.size();
        characters += paragraph.display.size();
    }
    QByteArray stored;
    QString display;
    stored.reserve(bytes);
    display.reserve(characters);
    stored += head;
    display += whole.before.display;
    for (const Paragraph &paragraph : m_paragraphs) {
        stored += paragraph.stored;
        display += paragraph.display;
    }
    stored += tail;
    display += whole.after;
    return {encodeUtf8(stored), display};
}

} // namespace lctrlsex
