#pragma once

#include "ltexteffectnode.h"
#include "programmedocument.h"

#include <QPointer>
#include <QSignalBlocker>
#include <QTextCursor>
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

/** An editor that the document binds anew as the window does. */
class BoundEditor : public ItemEditor
{
public:
    explicit BoundEditor(workbench::ProgrammeDocument *programme)
        : document(programme)
    {
        connect(programme, &workbench::ProgrammeDocument::reloadItem, this,
                [this](LTextEffectNode *item) {
                    if (item == node) {
                        showItem(item);
                    }
                });
        connect(programme, &workbench::ProgrammeDocument::aboutToReplace, this,
                [this] { showItem(nullptr); });
    }
    void showItem(LTextEffectNode *item)
    {
        document->detachTextEditor();
        bind(item);
        document->attachTextEditor(item, view);
        ++bindings;
    }
    void type(const QString &text, const QColor &color = {})
    {
        QTextCursor cursor(view->document());
        cursor.movePosition(QTextCursor::End);
        QTextCharFormat format;
        if (color.isValid()) {
            format.setForeground(color);
        }
        cursor.insertText(text, format);
    }
    workbench::ProgrammeDocument *const document;
    int bindings = 0;
};
