#pragma once

#include "inodeclient.h"
#include "ltexteffectnode.h"
#include "pluginhost.h"

#include <QAction>
#include <QComboBox>
#include <QSpinBox>
#include <QTest>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>

#include <memory>

/** An item that is open in the loaded plug-in, and what of the editor tests reach for. */
class EditorFixture
{
public:
    /** Opens an item of 256 by 64 pixels whose document is @p html; none makes a new item. */
    explicit EditorFixture(const QString &html = QString())
        : client(loadedClient())
        , node(std::make_unique<LTextEffectNode>())
    {
        node->SetSize(QSize(256, 64));
        if (!html.isEmpty()) {
            QTextDocument document;
            document.setHtml(html);
            store(document.toHtml());
        }
        open();
    }

    ~EditorFixture()
    {
        settle();
        client->Finish();
    }

    void store(const QString &html)
    {
        node->SetHtmlText(html);
        node->SetRawHtmlText(QString::fromLatin1(html.toUtf8().toBase64()));
    }

    void open()
    {
        client->Init(node.get());
        client->GetClient()->resize(1000, 500);
        client->GetClient()->show();
        editor = client->GetClient()->findChild<QWidget *>(QStringLiteral("wgtTextEditor"));
        view = editor->findChild<QTextEdit *>(QStringLiteral("RichView"));
        view->setFocus();
        settle();
    }

    /** Lets queued work, the merge that follows an edit included, come to its end. */
    static void settle() { QTest::qWait(80); }

    [[nodiscard]] QAction *action(const QString &name) const
    {
        auto *found = editor->findChild<QAction *>(name);
        Q_ASSERT(found != nullptr);
        return found;
    }
    [[nodiscard]] QComboBox *combo(const QString &name) const
    {
        return editor->findChild<QComboBox *>(name);
    }
    [[nodiscard]] QSpinBox *spin(const QString &name) const
    {
        return editor->findChild<QSpinBox *>(name);
    }

    void type(const QString &text) const { QTest::keyClicks(view, text); }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(view, key, modifiers);
    }

    void select(int from, int to) const
    {
        QTextCursor cursor(view->document());
        cursor.setPosition(from);
        cursor.setPosition(to, QTextCursor::KeepAnchor);
        view->setTextCursor(cursor);
    }

    [[nodiscard]] QTextCharFormat formatAt(int position) const
    {
        QTextCursor cursor(view->document());
        cursor.setPosition(position + 1); // the format of the character before
        return cursor.charFormat();
    }

    /** The document that the node holds. */
    [[nodiscard]] QString stored() const
    {
        return QString::fromUtf8(QByteArray::fromBase64(node->GetRawHtmlText().toLatin1()));
    }

    template <class... Arguments>
    void call(const char *slot, Arguments... arguments) const
    {
        const bool isCalled = QMetaObject::invokeMethod(editor, slot, arguments...);
        QVERIFY2(isCalled, slot);
    }

    Lum::INodeClient *client;
    std::unique_ptr<LTextEffectNode> node;
    QWidget *editor = nullptr;
    QTextEdit *view = nullptr;
};
