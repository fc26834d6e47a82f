// The history with the editor of the plug-in, which pushes, merges and derives as it sees fit.

#include "inodeclient.h"
#include "ltexteffectnode.h"
#include "programmedocument.h"
#include "programmeitems.h"

#include <QAction>
#include <QLibrary>
#include <QRandomGenerator>
#include <QTextEdit>
#include <QUndoStack>
#include <QtTest>

using namespace workbench;

class TestEditorHistory : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();
    void lookingChangesNothing();
    void typingAndCommands();
    void randomEdits_data();
    void randomEdits();

private:
    void show(LTextEffectNode *item)
    {
        m_client->Finish();
        m_document->detachTextEditor();
        m_item = item;
        m_client->Init(item);
        if (item) {
            m_document->attachTextEditor(item, view());
        }
    }
    [[nodiscard]] QTextEdit *view() const { return m_client->findChild<QTextEdit *>(); }
    /** Longer than the editor's merge takes to begin. */
    static void settle() { QTest::qWait(80); }
    void trigger(const QString &command)
    {
        for (QAction *action : m_client->findChildren<QAction *>(command)) {
            action->trigger();
        }
    }

    Lum::INodeClient *m_client = nullptr;
    std::unique_ptr<ProgrammeDocument> m_document;
    QVector<player::ProgrammeItem> m_items;
    LTextEffectNode *m_item = nullptr;
};

void TestEditorHistory::initTestCase()
{
    QLibrary library(QStringLiteral(LCTRLSEX_PLUGIN));
    const auto accessor = reinterpret_cast<Lum::INodeClient *(*)()>(
        library.resolve("_ZN3Lum11LTextPlugin11LTextClient8instanceEv"));
    QVERIFY2(accessor, qPrintable(library.errorString()));
    m_client = accessor();
}

void TestEditorHistory::init()
{
    m_document = std::make_unique<ProgrammeDocument>();
    QVERIFY(!m_document->open(QStringLiteral(LCTRLSEX_SOURCE_DIR "/examples/demo.programme.json"))
                 .isSet());
    m_items = player::programmeItems(m_document->controller());
    connect(m_document.get(), &ProgrammeDocument::reloadItem, this, [this](LTextEffectNode *item) {
        if (item == m_item) {
            show(item);
        }
    });
    m_client->show();
}

void TestEditorHistory::cleanup()
{
    show(nullptr);
    m_document.reset();
}

void TestEditorHistory::lookingChangesNothing()
{
    QVERIFY(m_items.size() > 3);
    for (const player::ProgrammeItem &item : m_items) {
        show(item.node);
        settle();
        QVERIFY2(!m_document->isModified(), qPrintable(item.place));
    }
    show(nullptr);
    settle();
    QVERIFY2(!m_document->history()->canUndo(), qPrintable(m_document->history()->undoText()));
}

void TestEditorHistory::typingAndCommands()
{
    LTextEffectNode *const item = m_items.first().node;
    show(item);
    settle();
    const QByteArray start = m_document->contents();
    const QString text = view()->toPlainText();
    view()->moveCursor(QTextCursor::End);
    QTest::keyClicks(view(), QStringLiteral(" typed"));
    settle();
    QCOMPARE(item->GetPlayText(), text + QStringLiteral(" typed"));
    QVERIFY(m_document->isModified());
    const int steps = m_document->history()->count();
    QCOMPARE(steps, 1);
    item->SetUseStroke(item->GetUseStroke() ? 0 : 1);
    settle();
    QCOMPARE(m_document->history()->count(), steps + 1);
    QCOMPARE(m_document->history()->undoText(), QStringLiteral("Change stroke"));
    for (int i = 1; i <= 2; ++i) { // to bold and back, which leaves a run to merge
        trigger(QStringLiteral("actionTextBold"));
        settle();
        QCOMPARE(m_document->history()->count(), steps + 1 + i);
    }
    const QByteArray end = m_document->contents();
    while (m_document->history()->canUndo()) {
        m_document->undo();
        settle();
    }
    QCOMPARE(view()->toPlainText(), text);
    QCOMPARE(m_document->contents(), start);
    QVERIFY(!m_document->isModified());
    while (m_document->history()->canRedo()) {
        m_document->redo();
        settle();
    }
    QCOMPARE(m_document->contents(), end);
}

void TestEditorHistory::randomEdits_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 4; ++seed) {
        QTest::addRow("%u", seed) << seed;
    }
}

void TestEditorHistory::randomEdits()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    for (const player::ProgrammeItem &item : qAsConst(m_items)) {
        show(item.node);
        settle();
    }
    const QByteArray start = m_document->contents();
    for (int i = 0; i < 25; ++i) {
        QTextEdit *const text = view();
        switch (random.bounded(8)) {
        case 0:
            show(m_items.at(random.bounded(m_items.size())).node);
            break;
        case 1:
            text->textCursor().insertText(QStringLiteral("new "));
            break;
        case 2:
            text->moveCursor(random.bounded(2) ? QTextCursor::Start : QTextCursor::NextWord);
            break;
        case 3:
            text->moveCursor(QTextCursor::NextWord, QTextCursor::KeepAnchor);
            QTest::keyClick(text, Qt::Key_Delete);
            break;
        case 4:
            text->selectAll();
            text->setFontWeight(random.bounded(2) ? QFont::Bold : QFont::Normal);
            break;
        case 5:
            text->setTextColor(random.bounded(2) ? Qt::red : Qt::green);
            break;
        case 6:
            m_document->undo();
            break;
        default:
            QTest::keyClicks(text, QStringLiteral("ab"));
        }
        if (random.bounded(3) != 0) {
            settle();
        }
    }
    settle();
    QVERIFY(m_document->history()->count() > 0);
    while (m_document->history()->canUndo()) {
        m_document->undo();
    }
    settle();
    QCOMPARE(m_document->contents(), start);
    QVERIFY(!m_document->isModified());
}

QTEST_MAIN(TestEditorHistory)
#include "tst_editorhistory.moc"
