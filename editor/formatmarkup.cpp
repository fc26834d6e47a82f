#include "formatmarkup.h"

#include "htmlunits.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>

namespace lctrlsex {

namespace {

/** Stands for any text; no closing tag has this letter. */
const QChar Sample = QLatin1Char('x');
const QChar SampleFromRight = QChar(0x05d0);

Markup asMarkup(const QString &html)
{
    return {html, replacePtWithPx(html)};
}

/** Where in @p html the text stood; unknown when it does not. */
Enclosure around(const QString &html, QChar text)
{
    const int place = html.lastIndexOf(text);
    if (place < 0) {
        return {};
    }
    return {asMarkup(html.left(place)), html.mid(place + 1), true};
}

/** What belongs to another part of the document, such as a list or a frame. */
bool isPartOfMore(const QTextFormat &format)
{
    return format.objectIndex() != -1;
}

} // namespace

bool FormatMarkup::follow(const QTextDocument &document)
{
    const QTextFrameFormat frame = document.rootFrame()->frameFormat();
    const QString title = document.metaInformation(QTextDocument::DocumentTitle);
    if (m_document.isKnown && m_font == document.defaultFont() && m_frame == frame &&
        qFuzzyCompare(m_margin, document.documentMargin()) && m_title == title) {
        return false;
    }
    m_font = document.defaultFont();
    m_frame = frame;
    m_margin = document.documentMargin();
    m_title = title;
    m_blocks.clear();
    m_texts.clear();
    learnDocument();
    return true;
}

void FormatMarkup::learnDocument()
{
    m_document = Enclosure();
    const QString html = written({}, {}, Sample, {});
    const int begin = html.lastIndexOf(QLatin1String("\n<p"));
    const int end = html.lastIndexOf(QLatin1String("</p>")) + 4;
    m_document = {asMarkup(html.left(begin)), html.mid(end), begin >= 0 && end > begin};
    m_paragraph = around(html.mid(begin, end - begin), Sample);
}

/** The paragraph that @p text makes in these formats; all of the document while it is unknown. */
QString FormatMarkup::written(const QTextBlockFormat &block, const QTextCharFormat &blockText,
                              const QString &text, const QTextCharFormat &format) const
{
    QTextDocument document;
    document.setUndoRedoEnabled(false);
    document.setDefaultFont(m_font);
    document.setDocumentMargin(m_margin);
    document.rootFrame()->setFrameFormat(m_frame);
    document.setMetaInformation(QTextDocument::DocumentTitle, m_title);
    QTextCursor cursor(&document);
    cursor.setBlockFormat(block);
    cursor.setBlockCharFormat(blockText);
    cursor.insertText(text, format);
    const QString html = document.toHtml();
    const int head = m_document.before.stored.size();
    return html.mid(head, html.size() - head - m_document.after.size());
}

Enclosure FormatMarkup::learn(const QTextBlock &block) const
{
    const QTextBlockFormat format = block.blockFormat();
    if (isPartOfMore(format) || block.userState() != -1) {
        return {};
    }
    if (block.length() == 1) {
        return {asMarkup(written(format, block.charFormat(), QString(), {})), QString(), true};
    }
    const QChar text = block.textDirection() == Qt::RightToLeft ? SampleFromRight : Sample;
    return around(written(format, block.charFormat(), text, {}), text);
}

/** @p objects is how many images stand in a row, 0 for text. */
Enclosure FormatMarkup::learn(const QTextCharFormat &format, int objects) const
{
    if (isPartOfMore(format) || !m_paragraph.isKnown) {
        return {};
    }
    const QString text =
        objects == 0 ? QString(Sample) : QString(objects, QChar::ObjectReplacementCharacter);
    const QString paragraph = written({}, {}, text, format);
    const int begin = m_paragraph.before.stored.size();
    const QString html = paragraph.mid(begin, paragraph.size() - begin - m_paragraph.after.size());
    return objects == 0 ? around(html, Sample) : Enclosure{asMarkup(html), QString(), true};
}

const Enclosure &FormatMarkup::of(const QTextBlock &block)
{
    const bool isEmpty = block.length() == 1;
    const bool isFromRight = block.textDirection() == Qt::RightToLeft;
    const qint64 look = isEmpty ? block.charFormatIndex() + 1 : 0;
    const qint64 key =
        (look << 33) + (qint64(block.blockFormatIndex()) << 1) + (isFromRight ? 1 : 0);
    Learnt &learnt = m_blocks[key];
    const bool isKnown = learnt.markup.isKnown && block.userState() == -1 &&
                         learnt.format == block.blockFormat() &&
                         (!isEmpty || learnt.textFormat == block.charFormat());
    if (!isKnown) {
        learnt = {block.blockFormat(), block.charFormat(), learn(block)};
    }
    return learnt.markup;
}

const Enclosure &FormatMarkup::of(const QTextFragment &fragment, const QString &text)
{
    const QTextCharFormat format = fragment.charFormat();
    const bool isObject = text.contains(QChar::ObjectReplacementCharacter);
    if (isObject && text.size() > 1) {
        m_several = learn(format, text.size());
        return m_several;
    }
    Learnt &learnt = m_texts[2 * fragment.charFormatIndex() + (isObject ? 1 : 0)];
    if (!learnt.markup.isKnown || learnt.format != format) {
        learnt = {format, QTextFormat(), learn(format, isObject ? 1 : 0)};
    }
    return learnt.markup;
}

} // namespace lctrlsex
