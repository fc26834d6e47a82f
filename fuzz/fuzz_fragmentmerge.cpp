// Merging runs leaves what merging them one pair at a time does, and what it leaves stays.

#include "choices.h"
#include "fragmentmerge.h"
#include "guiapplication.h"
#include "literalmerge.h"

#include <QTextDocument>

#include <cstdlib>
#include <memory>

namespace {

QTextCharFormat format(Choices *choices)
{
    static const QColor colors[] = {Qt::white, Qt::red, QColor(255, 0, 0, 80), QColor()};
    static const QString links[] = {"", "bindStyle;1;a", "bindStyle;2;b"};
    QTextCharFormat result;
    result.setForeground(choices->oneOf(colors));
    result.setToolTip(QString::number(choices->below(3))); // never shows
    if (choices->onceIn(3)) {
        result.setAnchor(true);
        result.setAnchorHref(choices->oneOf(links));
    }
    if (choices->onceIn(3)) {
        result.setFontWeight(choices->below(100));
    }
    if (choices->onceIn(4)) {
        result.setFontPointSize(0.5 + choices->below(4));
    }
    if (choices->onceIn(4)) {
        result.setFontLetterSpacingType(QFont::AbsoluteSpacing);
        result.setFontLetterSpacing(choices->below(2));
    }
    return result;
}

void fill(QTextDocument *document, Choices choices)
{
    static const QString pieces[] = {"a",
                                     " ",
                                     "\t",
                                     "\n",
                                     QString(QChar::LineSeparator),
                                     QString::fromUtf8("\xf0\x9f\x98\x80"),
                                     QString(QChar(0xd800))};
    QTextCursor cursor(document);
    while (choices.hasMore()) {
        if (choices.onceIn(8)) {
            cursor.insertImage(choices.onceIn(2) ? ":/none.png" : "data://bindKey/s/f.png");
        } else {
            const QTextCharFormat look = format(&choices);
            cursor.insertText(choices.oneOf(pieces), look);
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    needGuiApplication();
    QTextDocument merged;
    fill(&merged, Choices(data, size));
    const QString text = merged.toRawText();
    const std::unique_ptr<QTextDocument> literal(merged.clone());
    for (QTextBlock block = literal->begin(); block.isValid(); block = block.next()) {
        mergeLiterally(block);
    }
    const bool isChanged = lctrlsex::smartMerge(&merged);
    if (merged.toRawText() != text || merged.toHtml() != literal->toHtml() ||
        (isChanged && lctrlsex::smartMerge(&merged))) {
        std::abort();
    }
    return 0;
}
