// What is typed into an editor, undone and redone.

#include "itemeditor.h"
#include "lframenode.h"
#include "lscreennode.h"
#include "programmedocument.h"
#include "programmeitems.h"

#include <QRandomGenerator>
#include <QUndoStack>
#include <QtTest>

#include <functional>

using namespace workbench;

class TestTextHistory : public QObject
{
    Q_OBJECT
private slots:
    void typingIsUndoneInTheView();
    void typingAcrossBindings();
    void typingAfterSavingIsUnsaved();
    void undoIsRightWhateverTheViewDoes();
    void openedAndClosedIsNotModified();
    void randomStepsComeBack_data();
    void randomStepsComeBack();
};

static LTextEffectNode *firstItem(const ProgrammeDocument &document)
{
    return player::programmeItems(document.controller()).value(0).node;
}

static void turn()
{
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

void TestTextHistory::typingIsUndoneInTheView()
{
    ProgrammeDocument document;
    BoundEditor editor(&document);
    LTextEffectNode *const item = firstItem(document);
    editor.showItem(item);
    turn();
    QVERIFY(!document.isModified());
    editor.type(QStringLiteral("one"));
    turn();
    QVERIFY(document.isModified());
    QCOMPARE(document.history()->undoText(), QStringLiteral("Edit text"));
    editor.type(QStringLiteral(" more")); // the view takes it for the same step
    turn();
    QCOMPARE(document.history()->count(), 1);
    editor.type(QStringLiteral("two"), Qt::red);
    turn();
    QCOMPARE(document.history()->count(), 2);
    const QByteArray end = document.contents();
    const int bindings = editor.bindings;
    document.undo();
    QCOMPARE(item->GetPlayText(), QStringLiteral("one more"));
    QCOMPARE(editor.view->toPlainText(), QStringLiteral("one more"));
    document.redo();
    QCOMPARE(document.contents(), end);
    QCOMPARE(editor.view->toPlainText(), QStringLiteral("one moretwo"));
    QCOMPARE(editor.bindings, bindings);
    turn();
    QCOMPARE(document.history()->count(), 2);
    document.undo();
    document.undo();
    QCOMPARE(editor.view->toPlainText(), QString());
    QVERIFY(!document.isModified());
    turn();
    QVERIFY(!document.isModified());
    // Typed and undone before the editor could push.
    editor.type(QStringLiteral("x"));
    document.undo();
    QCOMPARE(item->GetPlayText(), QString());
    document.redo();
    QCOMPARE(item->GetPlayText(), QStringLiteral("x"));
}

void TestTextHistory::typingAcrossBindings()
{
    ProgrammeDocument document;
    BoundEditor editor(&document);
    LTextEffectNode *const first = firstItem(document);
    LNode *const screen = first->GetScreenNode();
    auto *const second = qobject_cast<LTextEffectNode *>(document.addItem(screen));
    editor.showItem(first);
    turn();
    editor.type(QStringLiteral("first"));
    turn();
    first->SetUseStroke(1);
    turn();
    editor.type(QStringLiteral(" again"), Qt::green);
    editor.showItem(second); // what was typed is on its way still
    turn();
    QCOMPARE(first->GetPlayText(), QStringLiteral("first again"));
    QCOMPARE(document.history()->count(), 4);
    editor.type(QStringLiteral("second"));
    turn();
    const QByteArray end = document.contents();
    document.undo();
    QCOMPARE(second->GetPlayText(), QString());
    document.undo();
    QCOMPARE(first->GetPlayText(), QStringLiteral("first"));
    document.undo();
    QCOMPARE(first->GetUseStroke(), 0);
    editor.showItem(first);
    turn();
    document.undo();
    QCOMPARE(first->GetPlayText(), QString());
    turn();
    QCOMPARE(editor.view->toPlainText(), QString());
    while (document.history()->canRedo()) {
        document.redo();
        turn();
    }
    QCOMPARE(document.contents(), end);
    QCOMPARE(editor.view->toPlainText(), QStringLiteral("first again"));
}

void TestTextHistory::typingAfterSavingIsUnsaved()
{
    QTemporaryDir folder;
    ProgrammeDocument document;
    BoundEditor editor(&document);
    editor.showItem(firstItem(document));
    turn();
    editor.type(QStringLiteral("a"));
    QVERIFY(!document.saveAs(folder.filePath(QStringLiteral("a.programme.json"))).isSet());
    QVERIFY(!document.isModified());
    QVERIFY(document.contents().contains("\"PlayText\": \"a\""));
    editor.type(QStringLiteral("b"));
    turn();
    QVERIFY(document.isModified());
    editor.type(QStringLiteral("c"));
    turn();
    QCOMPARE(document.history()->count(), 2);
    document.undo();
    QCOMPARE(firstItem(document)->GetPlayText(), QStringLiteral("a"));
    QCOMPARE(editor.view->toPlainText(), QStringLiteral("a"));
    turn();
    QVERIFY(!document.isModified());
}

void TestTextHistory::undoIsRightWhateverTheViewDoes()
{
    ProgrammeDocument document;
    BoundEditor editor(&document);
    LTextEffectNode *const item = firstItem(document);
    editor.showItem(item);
    turn();
    editor.type(QStringLiteral("one"));
    turn();
    const QString one = item->GetRawHtmlText();
    editor.type(QStringLiteral("two"), Qt::red);
    turn();
    const QString two = item->GetRawHtmlText();
    editor.view->undo(); // behind the history's back
    turn();
    QCOMPARE(item->GetRawHtmlText(), one);
    document.undo();
    QCOMPARE(item->GetRawHtmlText(), two);
    document.undo();
    QCOMPARE(item->GetRawHtmlText(), one);
    turn();
    QCOMPARE(editor.view->toPlainText(), QStringLiteral("one"));
    editor.type(QStringLiteral("x"), Qt::red);
    turn();
    editor.view->document()->clearUndoRedoStacks();
    document.undo();
    QCOMPARE(item->GetRawHtmlText(), one);
    turn();
    QCOMPARE(editor.view->toPlainText(), QStringLiteral("one"));
    document.undo();
    QCOMPARE(item->GetPlayText(), QString());

    // A step of the view that the history does not know of yet.
    document.redo();
    editor.showItem(item);
    turn();
    editor.type(QStringLiteral("live"), Qt::blue);
    turn();
    editor.type(QStringLiteral("unknown"), Qt::red);
    document.history()->undo();
    QCOMPARE(item->GetRawHtmlText(), one);
    turn();
    QCOMPARE(editor.view->toPlainText(), QStringLiteral("one"));
    document.redo();
    QCOMPARE(item->GetPlayText(), QStringLiteral("oneliveunknown"));
    document.undo();
    document.undo();

    // The node may be gone from the tree, or for good, while steps of it remain.
    document.redo();
    QVERIFY(document.remove(item->GetFrameNode()));
    editor.type(QStringLiteral("late"));
    turn();
    document.undo();
    document.undo();
    QCOMPARE(item->GetPlayText(), QString());
    delete item->GetFrameNode();
    document.redo();
    document.undo();
}

void TestTextHistory::openedAndClosedIsNotModified()
{
    ProgrammeDocument document;
    BoundEditor editor(&document);
    QVERIFY(!document.open(QStringLiteral(LCTRLSEX_SOURCE_DIR "/examples/demo.programme.json"))
                 .isSet());
    const auto items = player::programmeItems(document.controller());
    QVERIFY(items.size() > 3);
    for (const player::ProgrammeItem &item : items) {
        const int pushes = editor.pushes;
        editor.showItem(item.node);
        turn();
        QVERIFY(editor.pushes > pushes); // a normalised form of the same text
        QVERIFY2(!document.isModified(), qPrintable(item.place));
    }
    document.detachTextEditor();
    QVERIFY(!document.history()->canUndo());
}

void TestTextHistory::randomStepsComeBack_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 12; ++seed) {
        QTest::addRow("%u", seed) << seed;
    }
}

void TestTextHistory::randomStepsComeBack()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    ProgrammeDocument document;
    BoundEditor editor(&document);
    editor.pushesLoaded = false; // or loading would write what reads the same
    const auto contents = [&] {
        return document.contents();
    };
    if (seed % 2) {
        QVERIFY(!document.open(QStringLiteral(LCTRLSEX_SOURCE_DIR "/examples/demo.programme.json"))
                     .isSet());
    }
    // A loaded text may be normalised; what counts from then on is the user's.
    for (const player::ProgrammeItem &item : player::programmeItems(document.controller())) {
        editor.showItem(item.node);
        turn();
    }
    const QByteArray start = contents();
    QVector<LNode *> nodes;
    const std::function<void(LNode *)> collect = [&](LNode *node) {
        nodes.append(node);
        for (LNode *child : node->ChildNodes()) {
            collect(child);
        }
    };
    for (int i = 0; i < 120; ++i) {
        nodes.clear();
        collect(document.controller());
        LNode *const node = nodes.at(random.bounded(nodes.size()));
        LNode *const other = nodes.at(random.bounded(nodes.size()));
        auto *const item = qobject_cast<LTextEffectNode *>(node);
        switch (random.bounded(13)) {
        case 0:
            document.addScreen();
            break;
        case 1:
            document.addFrame(node);
            break;
        case 2:
            document.addItem(node);
            break;
        case 3:
            document.duplicate(node);
            break;
        case 4:
            if (nodes.size() > 4 && random.bounded(3) == 0) {
                document.remove(node);
            }
            break;
        case 5:
            document.rename(node, QString::number(random.bounded(100)));
            break;
        case 6:
            document.move(node, other, random.bounded(4));
            break;
        case 7:
            document.setGeometry(node, QRect(random.bounded(9), 3, random.bounded(9), 5));
            break;
        case 8:
            if (item) {
                editor.showItem(item);
            }
            break;
        case 9:
            if (item) {
                item->SetUseStroke(random.bounded(2));
                item->SetTableBindKey(QString::number(random.bounded(3)));
            }
            break;
        case 10:
            document.undo();
            break;
        default:
            if (editor.node && editor.node->GetControllerNode()) {
                editor.type(QString(random.bounded(4) == 0 ? 20000 : 3, QLatin1Char('x')),
                            random.bounded(2) ? QColor(Qt::red) : QColor(Qt::blue));
            }
        }
        if (random.bounded(4) != 0) {
            turn();
        }
    }
    const QByteArray end = contents();
    const int top = document.history()->index();
    QVERIFY(top > 20);
    QMap<int, QByteArray> passed{{top, end}};
    while (document.history()->canUndo()) {
        document.undo();
        if (random.bounded(2)) {
            turn();
        }
        passed.insert(document.history()->index(), contents());
    }
    QCOMPARE(contents(), start);
    QVERIFY(!document.isModified());
    while (document.history()->index() < top) {
        const QString step = document.history()->redoText();
        document.redo();
        if (random.bounded(2)) {
            turn();
        }
        QVERIFY2(contents() == passed.value(document.history()->index()), qPrintable(step));
    }
    QCOMPARE(contents(), end);
    document.history()->setIndex(0);
    QCOMPARE(contents(), start);
    turn();
    QVERIFY(!document.isModified());
}

QTEST_MAIN(TestTextHistory)
#include "tst_texthistory.moc"
