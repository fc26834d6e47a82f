#pragma once

#include <QFont>
#include <QHash>
#include <QString>
#include <QTextFormat>

class QTextBlock;
class QTextDocument;
class QTextFragment;

namespace lctrlsex {

/** HTML, and the same for display, where a font size says px instead of pt. */
struct Markup
{
    QString stored;
    QString display;
};

/** Two pieces of markup and what varies between them. */
struct Enclosure
{
    Markup before;
    QString after;
    bool isKnown = false; ///< Else the whole document has to be written at once.
};

/**
 * The markup that QTextDocument::toHtml() puts around texts. Each format is written once, by Qt
 * itself, in a small document; after that, writing text in it is a matter of joining strings.
 */
class FormatMarkup
{
public:
    /**
     * Takes over what @p document says of all its text: default font, frame and title. True when
     * any of these changed, so that everything written before is out of date.
     */
    bool follow(const QTextDocument &document);

    /** What stands before the first paragraph and behind the last. */
    [[nodiscard]] const Enclosure &document() const { return m_document; }
    /** What stands around the contents of @p block; for an empty one everything is before. */
    [[nodiscard]] const Enclosure &of(const QTextBlock &block);
    /** What stands around @p text, which is the fragment's; of images everything is before. */
    [[nodiscard]] const Enclosure &of(const QTextFragment &fragment, const QString &text);

private:
    /** What was learnt of a format that had a number, which another format may get later. */
    struct Learnt
    {
        QTextFormat format;
        QTextFormat textFormat; ///< Of an empty paragraph.
        Enclosure markup;
    };

    [[nodiscard]] QString written(const QTextBlockFormat &block, const QTextCharFormat &blockText,
                                  const QString &text, const QTextCharFormat &format) const;
    [[nodiscard]] Enclosure learn(const QTextBlock &block) const;
    [[nodiscard]] Enclosure learn(const QTextCharFormat &format, int objects) const;
    void learnDocument();

    QFont m_font;
    QTextFrameFormat m_frame;
    qreal m_margin = -1;
    QString m_title;
    Enclosure m_document;
    Enclosure m_paragraph; ///< Of a paragraph without a format of its own.
    QHash<qint64, Learnt> m_blocks;
    QHash<int, Learnt> m_texts;
    Enclosure m_several; ///< Of an image that stands several times in a row.
};

} // namespace lctrlsex
