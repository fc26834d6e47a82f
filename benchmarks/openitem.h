#pragma once

#include "documentstorage.h"
#include "lrichviewedit.h"
#include "ltexteffectnode.h"
#include "textedit.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QTextEdit>

/** What Qt writes of @p html, as an item stores it. */
inline QString asStored(const QString &html)
{
    QTextDocument document;
    document.setHtml(html);
    return document.toHtml();
}

/** An item that is open in an editor, and a bare view of the same text beside it. */
struct OpenItem
{
    OpenItem(const QSize &size, const QString &text)
        : html(asStored(text))
    {
        node.SetSize(size);
        node.SetHtmlText(QString());
        node.SetRawHtmlText(lctrlsex::encodeDocument(html));
        editor.resize(900, 500);
        editor.show();
        editor.Init(&node);
        view = editor.findChild<LRichViewEdit *>();
        bare.resize(view->size());
        bare.setLineWrapColumnOrWidth(size.width());
        bare.setLineWrapMode(QTextEdit::FixedPixelWidth);
        bare.show();
        bare.setHtml(html);
        QCoreApplication::processEvents();
    }

    QString html;
    LTextEffectNode node;
    TextEdit editor;
    LRichViewEdit *view = nullptr;
    QTextEdit bare;
};

/** One key and all that follows from it, painting included. */
inline void press(QTextEdit *view, int key, const QString &text = QString())
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(view, &event);
    QCoreApplication::processEvents();
}
