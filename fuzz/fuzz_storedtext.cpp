// What an item stores, it loads, shows and stores again without changing anything any more.

#include "behindtable.h"
#include "documentexport.h"
#include "documentstorage.h"
#include "fragmentmerge.h"
#include "guiapplication.h"
#include "htmlguard.h"
#include "htmlunits.h"
#include "itemdocument.h"
#include "markup.h"

#include <QRegularExpression>
#include <QTextBlock>

#include <cstdlib>

using namespace lctrlsex;

namespace {

struct Stored
{
    QString raw; ///< Null when the document was refused.
    QString text;
};

/** The text without the empty paragraphs behind the edges of tables, never shown nor stored. */
QString textOf(const QTextDocument &document)
{
    static const QRegularExpression unstored(QStringLiteral("(?<=[\\x{fdd0}\\x{fdd1}])\\x{2029}"));
    return document.toRawText().remove(unstored);
}

/** Loads as the view does and stores as the editor does. */
Stored storedAgain(const QString &raw)
{
    const DecodedDocument decoded = decodeDocument(raw);
    const GuardedHtml guarded = guardHtml(decoded.html);
    if (!decoded.error.isEmpty() || !guarded.accepted) {
        return {};
    }
    ItemDocument document;
    document.clearForView(TextSettings());
    document.setHtml(guarded.html);
    removeUnwrittenBlank(&document, guarded.html);
    pixelsToPoints(&document);
    smartMerge(&document); // runs may differ in what is not written
    const QString html = document.toHtml();
    const ExportedDocument written = DocumentExport(&document).texts();
    QTextDocument shown;
    shown.setHtml(written.display);
    removeUnwrittenBlank(&shown, written.display);
    const bool isAsQtWrites =
        written.stored == encodeDocument(html) && written.display == replacePtWithPx(html);
    if (isAsQtWrites == unwrittenBlank(document).isValid() || textOf(shown) != textOf(document)) {
        std::abort();
    }
    return {written.stored, textOf(document)};
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    needGuiApplication();
    const Stored first = storedAgain(encodeDocument(markup(Choices(data, size))));
    if (first.raw.isNull()) {
        return 0;
    }
    const Stored second = storedAgain(first.raw);
    if (second.raw != first.raw || second.text != first.text) {
        std::abort();
    }
    return 0;
}
