#include "itemeditor.h"
#include "lframenode.h"
#include "lscreennode.h"
#include "programmedocument.h"
#include "programmeitems.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTextCursor>
#include <QUndoStack>
#include <QtTest>

#include <functional>
#include <sys/stat.h>

using namespace workbench;

class TestProgrammeDocument : public QObject
{
    Q_OBJECT
private slots:
    void newProgrammeIsReadyToTypeIn();
    void openingAndSaving();
    void structureKeepsItsNodes();
    void whatFitsWhere();
    void changesOfOthersBecomeSteps_data();
    void changesOfOthersBecomeSteps();
    void changesOfOneTurnAreOneStep();
    void whatReadsTheSameIsNoStep();
    void typingIsUndoneInTheView();
    void typingAcrossBindings();
    void typingAfterSavingIsUnsaved();
    void undoIsRightWhateverTheViewDoes();
    void openedAndClosedIsNotModified();
    void randomStepsComeBack_data();
    void randomStepsComeBack();
    void undoLimitKeepsNodesAlive();

    void initTestCase()
    {
        qRegisterMetaType<LNode *>();
        qRegisterMetaType<LTextEffectNode *>();
    }

private:
    static LTextEffectNode *firstItem(const ProgrammeDocument &document)
    {
        return player::programmeItems(document.controller()).value(0).node;
    }
};

/** An editor that the document binds anew as the window does. */
class BoundEditor : public ItemEditor
{
public:
    explicit BoundEditor(ProgrammeDocument *programme)
        : document(programme)
    {
        connect(programme, &ProgrammeDocument::reloadItem, this, [this](LTextEffectNode *item) {
            if (item == node) {
                showItem(item);
            }
        });
        connect(programme, &ProgrammeDocument::aboutToReplace, this, [this] { showItem(nullptr); });
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
    ProgrammeDocument *const document;
    int bindings = 0;
};

static void turn()
{
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
}

void TestProgrammeDocument::newProgrammeIsReadyToTypeIn()
{
    ProgrammeDocument document;
    QVERIFY(!document.isModified());
    QVERIFY(document.fileName().isEmpty());
    const LTextEffectNode *item = firstItem(document);
    QVERIFY(item);
    QCOMPARE(item->Size(), QSize(256, 64));
    QCOMPARE(item->name(), QStringLiteral("Text 1"));
    QCOMPARE(document.controller()->GetDeviceKind(), QStringLiteral("LED"));
    QVERIFY(document.save().isSet());
}

void TestProgrammeDocument::openingAndSaving()
{
    QTemporaryDir folder;
    ProgrammeDocument document;
    const LControllerNode *before = document.controller();
    QFile broken(folder.filePath(QStringLiteral("broken.programme.json")));
    QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("{\n \"format\": 3") > 0);
    broken.close();
    const ProgrammeError error = document.open(broken.fileName());
    QVERIFY(!error.reason.isEmpty() && !error.remedy.isEmpty() && error.at.line == 2);
    const QString pipe = folder.filePath(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(qPrintable(pipe), 0600), 0);
    QVERIFY(document.open(pipe).isSet());
    QVERIFY(document.open(folder.filePath(QStringLiteral("none"))).isSet());
    QCOMPARE(document.controller(), before);

    const QString demo = QStringLiteral(LCTRLSEX_SOURCE_DIR "/examples/demo.programme.json");
    QSignalSpy replaced(&document, &ProgrammeDocument::replaced);
    QVERIFY(!document.openCopy(demo).isSet());
    QVERIFY(document.fileName().isEmpty());
    QVERIFY(!document.open(demo).isSet());
    QCOMPARE(document.displayName(), QStringLiteral("demo"));
    QCOMPARE(replaced.size(), 2);

    QVERIFY(document.addScreen());
    const QString missing = folder.filePath(QStringLiteral("no/such/folder.programme.json"));
    QVERIFY(document.saveAs(missing).isSet());
    QVERIFY(document.isModified());
    QCOMPARE(document.fileName(), demo);
    QSignalSpy modified(&document, &ProgrammeDocument::modifiedChanged);
    const QString file = folder.filePath(QStringLiteral("copy.programme.json"));
    QVERIFY(!document.saveAs(file).isSet());
    QVERIFY(!document.isModified());
    QCOMPARE(modified.size(), 1);
    document.undo();
    QVERIFY(document.isModified());
    document.redo();
    QVERIFY(!document.isModified());

    const QByteArray bytes = document.contents();
    QVERIFY(!document.restore(bytes, file).isSet());
    QVERIFY(document.isModified()); // until it is saved
    QVERIFY(!document.save().isSet());
    QVERIFY(!document.isModified());
    QCOMPARE(writeProgramme(*loadProgramme(file).controller), bytes);
}

void TestProgrammeDocument::structureKeepsItsNodes()
{
    ProgrammeDocument document;
    QSignalSpy revealed(&document, &ProgrammeDocument::revealNode);
    LNode *const screen = document.addScreen();
    const QPointer<LNode> item = document.addItem(screen);
    QVERIFY(item && item->GetFrameNode());
    QCOMPARE(item->name(), QStringLiteral("Text 2"));
    LNode *const frame = item->GetFrameNode();
    LNode *const second = document.addFrame(screen);
    QVERIFY(!qobject_cast<LFrameNode *>(second)->GetRect().contains(screen->Size().width(), 1));
    QCOMPARE(document.history()->undoText(), QStringLiteral("Add frame"));
    QSignalSpy left(&document, &ProgrammeDocument::nodeTaken);
    QVERIFY(document.remove(screen));
    QCOMPARE(left.value(0).value(0).value<LNode *>(), screen);
    QCOMPARE(document.history()->undoText(), QStringLiteral("Remove Screen 2"));
    QVERIFY(item);
    document.undo();
    QCOMPARE(screen->ParentNode(), document.controller());
    QCOMPARE(frame->ChildNodes().value(0), item.data());
    QCOMPARE(revealed.last().at(0).value<LNode *>(), screen);

    LNode *const copy = document.duplicate(frame);
    QVERIFY(copy && copy->ParentNode() == screen);
    QCOMPARE(screen->ChildNodes().indexOf(copy), 1);
    QCOMPARE(copy->ChildNodes().size(), 1);
    QVERIFY(copy->name() != frame->name());
    QSignalSpy taken(&document, &ProgrammeDocument::nodeTaken);
    QVERIFY(document.move(copy->ChildNodes().first(), frame, 0));
    QCOMPARE(taken.size(), 0);
    QCOMPARE(frame->ChildNodes().at(1), item.data());
    document.undo();
    document.undo();
    document.undo();
    document.undo();
    document.undo();
    QCOMPARE(document.controller()->ChildNodes().size(), 1);
    QVERIFY(item); // to be redone
    QVERIFY(document.rename(document.controller()->ChildNodes().first(), QStringLiteral("Wall")));
    QVERIFY(!item); // nobody can bring it back
}

void TestProgrammeDocument::whatFitsWhere()
{
    ProgrammeDocument document;
    LTextEffectNode *const item = firstItem(document);
    LNode *const frame = item->ParentNode();
    LNode *const screen = frame->ParentNode();
    LTextEffectNode foreign;
    QVERIFY(!document.addItem(item));
    QVERIFY(!document.addItem(document.controller()));
    QVERIFY(!document.addItem(nullptr));
    QVERIFY(!document.addFrame(frame));
    QVERIFY(!document.duplicate(document.controller()));
    QVERIFY(!document.remove(document.controller()));
    QVERIFY(!document.remove(&foreign));
    QVERIFY(!document.rename(item, QStringLiteral("  ")));
    QVERIFY(!document.rename(item, item->name()));
    QVERIFY(!document.canMove(item, screen));
    QVERIFY(!document.canMove(frame, frame));
    QVERIFY(!document.move(item, frame, 0));
    QVERIFY(!document.setGeometry(item, QRect(0, 0, 16385, 1)));
    QVERIFY(!document.setGeometry(frame, QRect(0, 0, 256, 64))); // is so
    QVERIFY(!document.isModified());
    QVERIFY(document.setGeometry(item, QRect(5, 5, 100, 20)));
    QCOMPARE(item->Size(), QSize(100, 20));
    QVERIFY(document.setGeometry(item, QRect()));
    QCOMPARE(item->Size(), frame->Size());
    QCOMPARE(document.history()->count(), 0); // there and back within a second
}

void TestProgrammeDocument::changesOfOthersBecomeSteps_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("name");
    const auto row = [](const char *key, const QVariant &value, const char *name) {
        QTest::newRow(key) << QString::fromLatin1(key) << value << QString::fromLatin1(name);
    };
    row("UseStroke", 1, "Change stroke");
    row("EditBgColor", 255, "Change background");
    row("ContentAlign", 0x20, "Change alignment");
    row("FontSpace", 4, "Change spacing");
    row("DispEffect", 3, "Change effect");
    row("HoldTime", 20, "Change hold time");
    row("BorderEnable", true, "Change border");
    row("Width", 10, "Change size");
    row("TableType", 2, "Change table");
    row("TableBindKey", QStringLiteral("a.b"), "Change table");
    row("Anything", 1, "Change item");
}

void TestProgrammeDocument::changesOfOthersBecomeSteps()
{
    QFETCH(QString, key);
    QFETCH(QVariant, value);
    ProgrammeDocument document;
    LTextEffectNode *const item = firstItem(document);
    QSignalSpy reload(&document, &ProgrammeDocument::reloadItem);
    const QByteArray start = document.contents();
    item->SetAttribute(key, value);
    turn();
    QTEST(document.history()->undoText(), "name");
    QVERIFY(document.isModified());
    const QByteArray end = document.contents();
    document.undo();
    QCOMPARE(document.contents(), start);
    QCOMPARE(reload.size(), 1);
    QVERIFY(!document.isModified());
    document.redo();
    QCOMPARE(document.contents(), end);
    QCOMPARE(document.history()->count(), 1);
}

void TestProgrammeDocument::changesOfOneTurnAreOneStep()
{
    ProgrammeDocument document;
    LTextEffectNode *const item = firstItem(document);
    const QByteArray start = document.contents();
    item->SetUseStroke(1);
    item->SetHoldTime(7);
    item->GetFrameNode()->SetRect(QRect(1, 2, 30, 40));
    turn();
    QCOMPARE(document.history()->count(), 1);
    QCOMPARE(document.history()->undoText(), QStringLiteral("Change item"));
    for (int value : {1, 2, 3}) { // as a spin box does
        item->SetFontSpace(value);
        turn();
    }
    QCOMPARE(document.history()->count(), 2);
    QTest::qWait(1050);
    item->SetFontSpace(9);
    turn();
    QCOMPARE(document.history()->count(), 3);
    document.undo();
    QCOMPARE(item->GetFontSpace(), 3);
    document.undo();
    document.undo();
    QCOMPARE(document.contents(), start);
}

void TestProgrammeDocument::whatReadsTheSameIsNoStep()
{
    ProgrammeDocument document;
    LTextEffectNode *const item = firstItem(document);
    item->SetHoldTime(50);
    item->SetTableBindKey(QString());
    item->SetPageCount(3);
    item->SetCurrentPage(2);
    item->SetFilePath(QStringLiteral("DynamicData"), {QStringLiteral("a")});
    turn();
    QVERIFY(!document.isModified());
    QVERIFY(!document.history()->canUndo());
}

void TestProgrammeDocument::typingIsUndoneInTheView()
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

void TestProgrammeDocument::typingAcrossBindings()
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

void TestProgrammeDocument::typingAfterSavingIsUnsaved()
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

void TestProgrammeDocument::undoIsRightWhateverTheViewDoes()
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

void TestProgrammeDocument::openedAndClosedIsNotModified()
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

void TestProgrammeDocument::randomStepsComeBack_data()
{
    QTest::addColumn<quint32>("seed");
    QTest::addColumn<bool>("isNormalised");
    for (quint32 seed = 1; seed <= 12; ++seed) {
        QTest::addRow("exact %u", seed) << seed << false;
        QTest::addRow("normalised on load %u", seed) << seed << true;
    }
}

/** The programme but for what an editor may write in another way. */
static QByteArray withoutMarkup(const QByteArray &programme)
{
    static const QStringList markup{QStringLiteral("RawHtml"), QStringLiteral("Html"),
                                    QStringLiteral("TableRowPlaceHolder"),
                                    QStringLiteral("TableBindKey"), QStringLiteral("document")};
    const std::function<QJsonValue(const QJsonValue &)> strip = [&](const QJsonValue &value) {
        QJsonObject object = value.toObject();
        QJsonArray array = value.toArray();
        for (const QString &key : markup) {
            object.remove(key);
        }
        for (auto it = object.begin(); it != object.end(); ++it) {
            *it = strip(*it);
        }
        for (auto it = array.begin(); it != array.end(); ++it) {
            *it = strip(*it);
        }
        return value.isObject() ? QJsonValue(object) : value.isArray() ? QJsonValue(array) : value;
    };
    return QJsonDocument(strip(QJsonDocument::fromJson(programme).object()).toObject()).toJson();
}

void TestProgrammeDocument::randomStepsComeBack()
{
    QFETCH(quint32, seed);
    QFETCH(bool, isNormalised);
    QRandomGenerator random(seed);
    ProgrammeDocument document;
    BoundEditor editor(&document);
    editor.pushesLoaded = isNormalised;
    const auto contents = [&] {
        return isNormalised ? withoutMarkup(document.contents()) : document.contents();
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

void TestProgrammeDocument::undoLimitKeepsNodesAlive()
{
    ProgrammeDocument document;
    const QPointer<LNode> first = document.addScreen();
    const QPointer<LNode> second = document.addScreen();
    QVERIFY(document.remove(second));
    for (int i = 0; i < 496; ++i) {
        QVERIFY(document.addScreen());
    }
    QVERIFY(document.remove(first));
    QVERIFY(second);
    QVERIFY(document.addScreen());
    QCOMPARE(document.history()->count(), 500);
    QVERIFY(first); // the step that added it is gone, the one that removed it is not
    QVERIFY(document.addScreen());
    QVERIFY(document.addScreen());
    QVERIFY(!second); // nobody can bring it back
    while (document.history()->canUndo()) {
        document.undo();
    }
    QCOMPARE(first->ParentNode(), document.controller());
}

QTEST_MAIN(TestProgrammeDocument)
#include "tst_programmedocument.moc"
