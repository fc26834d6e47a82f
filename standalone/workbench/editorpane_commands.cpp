// What the host asks of the plug-in by the names of its slots.

#include "editorpane.h"
#include "fielddrag.h"
#include "inodeclient.h"

#include <QDropEvent>
#include <QMimeData>
#include <QTextTable>

#include <algorithm>

namespace workbench {

/** The plug-in's widget around the view, if it is one that converts texts. */
QObject *EditorPane::converter() const
{
    QObject *object = m_node ? textView() : nullptr;
    while (object != nullptr && object->metaObject()->indexOfSlot("ConvertText(int)") < 0) {
        object = object->parent();
    }
    return object;
}

bool EditorPane::canConvertText() const
{
    bool can = false;
    QObject *const object = converter();
    return object != nullptr &&
           QMetaObject::invokeMethod(object, "CanConvertText", Q_RETURN_ARG(bool, can)) && can;
}

void EditorPane::convertText(Conversion conversion)
{
    if (QObject *const object = converter()) {
        QMetaObject::invokeMethod(object, "ConvertText", Q_ARG(int, conversion));
    }
}

bool EditorPane::canInsertImage() const
{
    const QTextEdit *const view = textView();
    return view != nullptr && !view->isReadOnly() &&
           view->metaObject()->indexOfMethod("chooseImage()") >= 0;
}

void EditorPane::insertImage()
{
    if (canInsertImage()) {
        QMetaObject::invokeMethod(textView(), "chooseImage");
    }
}

bool EditorPane::canInsertField() const
{
    const QTextEdit *const view = m_node ? textView() : nullptr;
    return view != nullptr && !view->isReadOnly() &&
           view->metaObject()->indexOfMethod("InsertFieldNameSignal(QString)") >= 0;
}

void EditorPane::insertField(const QString &key)
{
    if (canInsertField() && !key.isEmpty()) {
        QMetaObject::invokeMethod(textView(), "InsertFieldNameSignal", Q_ARG(QString, key));
    }
}

bool EditorPane::hasTable() const
{
    const QTextEdit *const view = m_node ? textView() : nullptr;
    const QList<QTextFrame *> frames =
        view != nullptr ? view->document()->rootFrame()->childFrames() : QList<QTextFrame *>();
    return std::any_of(frames.begin(), frames.end(), [](const QTextFrame *frame) {
        return qobject_cast<const QTextTable *>(frame) != nullptr;
    });
}

void EditorPane::bindTable(const QString &key)
{
    if (!hasTable()) {
        emit bindRefused();
        return;
    }
    auto *const client = dynamic_cast<QObject *>(m_plugin.client);
    if (client != nullptr &&
        QMetaObject::invokeMethod(client, "OnTableBindFieldChanged", Q_ARG(QString, key))) {
        QMetaObject::invokeMethod(client, "ShowBoundField");
    }
}

/** What a table can be bound to is no text: the view would take its key for one. */
bool EditorPane::takeTableDrop(QEvent *event)
{
    const bool isDrag = event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove ||
                        event->type() == QEvent::Drop;
    auto *const drop = isDrag ? static_cast<QDropEvent *>(event) : nullptr;
    if (drop == nullptr || !drop->mimeData()->hasFormat(FieldDrag::TableFormat)) {
        return false;
    }
    drop->setDropAction(Qt::CopyAction);
    drop->accept();
    if (event->type() == QEvent::Drop) {
        bindTable(QString::fromUtf8(drop->mimeData()->data(FieldDrag::TableFormat)));
    }
    return true;
}

} // namespace workbench
