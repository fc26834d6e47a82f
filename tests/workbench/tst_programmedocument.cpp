#include "lframenode.h"
#include "lscreennode.h"
#include "ltexteffectnode.h"
#include "programmedocument.h"
#include "programmeitems.h"

#include <QSignalSpy>
#include <QUndoStack>
#include <QtTest>

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
