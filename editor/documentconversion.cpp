#include "documentconversion.h"

#include "behindtable.h"
#include "htmlguard.h"
#include "itemdocument.h"

#include <QAbstractTextDocumentLayout>
#include <QFont>
#include <QFontMetrics>
#include <QLoggingCategory>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QVector>

#include <limits>

namespace lctrlsex {

namespace {

Q_LOGGING_CATEGORY(editorLog, "lctrlsex.editor")

/** A stretch of text and what its format gets in addition. */
struct Change
{
    int position;
    int length;
    QTextCharFormat addition;
};

/**
 * A font that shares nothing with another thread's: what Qt keeps of a font for drawing is filled
 * in on first use, without a lock.
 */
QFont ownFont(QFont font)
{
    const bool overline = font.overline();
    font.setOverline(!overline); // a change is what makes it a copy
    font.setOverline(overline);
    return font;
}

/**
 * The font of text that has none of its own, from the body's style. Another default font would be
 * written into every stretch of text.
 */
QFont bodyFont(const QString &html)
{
    const int begin = html.indexOf(QLatin1String("<body"), 0, Qt::CaseInsensitive);
    const int end = begin < 0 ? -1 : html.indexOf(QLatin1Char('>'), begin);
    if (end < 0) {
        return ownFont(QFont());
    }
    ItemDocument probe;
    probe.setHtml(html.mid(begin, end + 1 - begin) + QLatin1Char('x'));
    const auto first = probe.begin().begin();
    return ownFont(first.atEnd() ? QFont() : first.fragment().charFormat().font());
}

QColor converted(const QColor &color, ColorConversion conversion)
{
    if (conversion == ColorConversion::Flip) {
        return {255 - color.red(), 255 - color.green(), 255 - color.blue()};
    }
    if (color.rgba() == qRgb(0, 0, 0)) {
        return Qt::white;
    }
    return color.rgba() == qRgb(255, 255, 255) ? QColor(Qt::black) : color;
}

bool mayChange(const QTextFragment &fragment)
{
    return fragment.isValid() && fragment.charFormat().isCharFormat();
}

/** What to change in @p block, collected first: a change joins fragments under an iterator. */
QVector<ColorChange> colorChanges(const QTextBlock &block, ColorConversion conversion,
                                  const StopFlag &stop)
{
    QVector<ColorChange> changes;
    for (auto it = block.begin(); !it.atEnd() && !stop; ++it) {
        const QTextFragment fragment = it.fragment();
        if (!mayChange(fragment) || fragment.charFormat().isImageFormat()) {
            continue; // HTML keeps no colour of an image
        }
        const QColor before = fragment.charFormat().foreground().color();
        const QColor after = converted(before, conversion);
        if (after != before) {
            changes.append({fragment.position(), fragment.length(), after});
        }
    }
    return changes;
}

void apply(QTextCursor *cursor, const Change &change)
{
    cursor->setPosition(change.position);
    cursor->setPosition(change.position + change.length, QTextCursor::KeepAnchor);
    cursor->mergeCharFormat(change.addition);
}

void apply(QTextCursor *cursor, const ColorChange &change)
{
    QTextCharFormat addition;
    addition.setForeground(change.color);
    apply(cursor, {change.position, change.length, addition});
}

/** What was changed; not all when it was stopped on the way. */
QVector<ColorChange> convertBlocks(QTextDocument *document, ColorConversion conversion,
                                   const StopFlag &stop, const ProgressReport &report)
{
    QVector<ColorChange> all;
    const qint64 count = document->blockCount();
    qint64 done = 0;
    QTextCursor cursor(document);
    cursor.beginEditBlock();
    for (QTextBlock block = document->begin(); block.isValid() && !stop; block = block.next()) {
        const QVector<ColorChange> changes = colorChanges(block, conversion, stop);
        for (auto change = changes.begin(); change != changes.end() && !stop; ++change) {
            apply(&cursor, *change);
        }
        all += changes;
        ++done;
        if (report && !stop) {
            report(int(done * 100 / count));
        }
    }
    cursor.endEditBlock();
    return all;
}

QVector<Change> antialiasingChanges(const QTextDocument &document)
{
    QVector<Change> changes;
    QTextCharFormat addition;
    addition.setFontStyleStrategy(QFont::NoAntialias);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            if (mayChange(fragment) &&
                fragment.charFormat().fontStyleStrategy() != QFont::NoAntialias) {
                changes.append({fragment.position(), fragment.length(), addition});
            }
        }
    }
    return changes;
}

/** The device that @p document is laid out for; null for the screen. Makes no layout. */
QPaintDevice *deviceOf(const QTextDocument &document)
{
    const auto *layout =
        document.findChild<QAbstractTextDocumentLayout *>(QString(), Qt::FindDirectChildrenOnly);
    return layout != nullptr ? layout->paintDevice() : nullptr;
}

} // namespace

std::optional<ConvertedColors> convertColors(const QString &html, ColorConversion conversion,
                                             const StopFlag &stop, const ProgressReport &report)
{
    const GuardedHtml guarded = guardHtml(html);
    if (!guarded.accepted) {
        qCWarning(editorLog).noquote() << "colours not converted:" << guarded.reason;
        return std::nullopt;
    }
    if (stop) {
        return std::nullopt;
    }
    ItemDocument document;
    document.setDefaultStyleSheet(QStringLiteral("a { text-decoration: none; }")); // as in the view
    document.setDefaultFont(bodyFont(guarded.html));
    document.setHtml(guarded.html);
    removeUnwrittenBlank(&document, guarded.html);
    return convertColors(&document, conversion, stop, report);
}

std::optional<ConvertedColors> convertColors(QTextDocument *document, ColorConversion conversion,
                                             const StopFlag &stop, const ProgressReport &report)
{
    const QVector<ColorChange> changes = convertBlocks(document, conversion, stop, report);
    if (stop) {
        return std::nullopt;
    }
    return ConvertedColors{document->toHtml(), document->toPlainText(), changes};
}

bool applyColors(QTextDocument *document, const ConvertedColors &converted)
{
    if (document->toPlainText() != converted.text) {
        return false;
    }
    if (converted.changes.isEmpty()) {
        return true; // an empty edit block would announce a change
    }
    QTextCursor cursor(document);
    cursor.beginEditBlock();
    for (const ColorChange &change : converted.changes) {
        apply(&cursor, change);
    }
    cursor.endEditBlock();
    return true;
}

std::unique_ptr<QTextDocument> detachedCopy(const QTextDocument &document)
{
    std::unique_ptr<QTextDocument> copy(document.clone());
    copy->setUndoRedoEnabled(false);
    copy->setDefaultFont(ownFont(document.defaultFont()));
    return copy;
}

void removeAntialiasing(QTextDocument *document)
{
    const QVector<Change> changes = antialiasingChanges(*document);
    if (changes.isEmpty()) {
        return; // an empty edit block would announce a change
    }
    QTextCursor cursor(document);
    cursor.beginEditBlock();
    for (const Change &change : changes) {
        apply(&cursor, change);
    }
    cursor.endEditBlock();
}

QSize oneLineSize(const QTextDocument &document)
{
    QPaintDevice *device = deviceOf(document);
    qint64 width = 0;
    int height = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            if (!mayChange(fragment)) {
                continue;
            }
            const QFontMetrics metrics(ownFont(fragment.charFormat().font()), device);
            width += metrics.boundingRect(fragment.text()).width();
            height = qMax(height, metrics.height());
        }
    }
    return {int(qMin<qint64>(width, std::numeric_limits<int>::max())), height};
}

} // namespace lctrlsex
