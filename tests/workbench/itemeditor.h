#pragma once

#include "ltexteffectnode.h"

#include <QPointer>
#include <QSignalBlocker>
#include <QTextEdit>
#include <QVBoxLayout>
#include <QWidget>

/**
 * An editor that treats its view and its node as the plug-in's does: it loads without a trace in
 * the view's history, and pushes the text by a queued call after each change.
 */
class ItemEditor : public QWidget
{
    Q_OBJECT

public:
    ItemEditor()
        : view(new QTextEdit(this))
    {
        connect(view, &QTextEdit::textChanged, this, &ItemEditor::push, Qt::QueuedConnection);
    }

    void bind(LTextEffectNode *item)
    {
        const QSignalBlocker blocker(pushesLoaded ? nullptr : view);
        node = nullptr;
        view->clear();
        if (item) {
            if (!item->HasAttribute(QStringLiteral("Html"))) {
                item->SetHtmlText(QString());
            }
            view->setHtml(
                QString::fromUtf8(QByteArray::fromBase64(item->GetRawHtmlText().toLatin1())));
            view->document()->clearUndoRedoStacks();
        }
        node = item;
    }

    void push()
    {
        const QString raw = QString::fromLatin1(view->toHtml().toUtf8().toBase64());
        if (!node || raw == node->GetRawHtmlText()) {
            return;
        }
        ++pushes;
        node->SetRawHtmlText(raw);
        node->SetPlayText(view->toPlainText());
        node->SetHtmlText(view->toHtml());
        // Derived anew each time and never the same twice, as the tokens of placeholders are.
        node->SetTableRowPlaceHolder(QString::number(pushes));
        node->SetTableBindKey(QString()); // there is no table
    }

    QTextEdit *const view;
    QPointer<LTextEffectNode> node;
    int pushes = 0;
    bool pushesLoaded = true; ///< Whether a text is pushed when it was only loaded.
};
