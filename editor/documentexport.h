#pragma once

#include "formatmarkup.h"

#include <QByteArray>
#include <QObject>
#include <QString>

#include <optional>
#include <vector>

class QTextBlock;
class QTextDocument;

namespace lctrlsex {

/** A document's HTML in the forms in which it is kept. */
struct ExportedDocument
{
    QString stored;  ///< As encodeDocument() writes it.
    QString display; ///< As replacePtWithPx() writes it.
};

/**
 * Exports a document again and again while it is edited, at the cost of what changed and of joining
 * the texts: the paragraphs that stayed as they were are not written again. The result is what
 * QTextDocument::toHtml() gives, to the byte.
 *
 * A document with tables, frames or lists is left to QTextDocument::toHtml(), which writes all of
 * it but a blank line behind a table: that is added, see unwrittenBlank(). GUI thread; the document
 * is to have a layout, without which it does not tell of changes.
 */
class DocumentExport
{
public:
    /** @p document outlives this. */
    explicit DocumentExport(QTextDocument *document);

    /** The document as it is now. */
    [[nodiscard]] ExportedDocument texts();

private:
    /** A paragraph as it was written last; not written yet when it has no text. */
    struct Paragraph
    {
        QByteArray stored;
        QString display;
    };

    void onChange(int position, int added);
    [[nodiscard]] bool writeChanged();
    [[nodiscard]] std::optional<Paragraph> write(const QTextBlock &block);
    [[nodiscard]] ExportedDocument joined() const;

    Q_DISABLE_COPY(DocumentExport)

    QTextDocument *m_document;
    QObject m_listener; ///< Ends the connection with this.
    FormatMarkup m_markup;
    std::vector<Paragraph> m_paragraphs;
};

} // namespace lctrlsex
