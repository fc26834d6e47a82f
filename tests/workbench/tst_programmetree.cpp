#include "lframenode.h"
#include "lscreennode.h"
#include "ltexteffectnode.h"
#include "programmedocument.h"
#include "programmeitems.h"
#include "programmetreemodel.h"

#include <QAbstractItemModelTester>
#include <QMimeData>
#include <QRandomGenerator>
#include <QUndoStack>
#include <QtTest>

using namespace workbench;

class TestProgrammeTree : public QObject
{
    Q_OBJECT
private slots:
    void showsTheNodes();
    void followsEveryChange();
    void dragging();
};

static void compare(const ProgrammeTreeModel &model, const QModelIndex &index, const LNode *node)
{
    QCOMPARE(model.nodeAt(index), node);
    QCOMPARE(model.indexOf(node), index);
    const QList<LNode *> children = node->ChildNodes();
    QCOMPARE(model.rowCount(index), children.size());
    for (int row = 0; row < children.size(); ++row) {
        compare(model, model.index(row, 0, index), children.at(row));
    }
}

static void collect(LNode *node, QVector<LNode *> *nodes)
{
    nodes->append(node);
    for (LNode *child : node->ChildNodes()) {
        collect(child, nodes);
    }
}

void TestProgrammeTree::showsTheNodes()
{
    ProgrammeDocument document;
    ProgrammeTreeModel model(&document);
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    LNode *const item = player::programmeItems(document.controller()).value(0).node;
    const QModelIndex index = model.indexOf(item);
    QCOMPARE(index.data().toString(), QStringLiteral("Text 1"));
    QCOMPARE(index.data(ProgrammeTreeModel::NodeRole).value<LNode *>(), item);
    QCOMPARE(index.data(ProgrammeTreeModel::KindRole).toString(), QStringLiteral("Text"));
    QCOMPARE(index.data(ProgrammeTreeModel::SizeRole).toSize(), QSize(256, 64));
    QVERIFY(!model.index(0, 0).data().toString().isEmpty());
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    model.setProblem(item, QStringLiteral("no font"));
    QCOMPARE(index.data(Qt::ToolTipRole).toString(), QStringLiteral("no font"));
    model.setThumbnail(item, QImage(4, 4, QImage::Format_RGB32));
    QCOMPARE(index.data(Qt::DecorationRole).value<QPixmap>().size(), QSize(4, 4));
    QCOMPARE(changed.size(), 2);
    model.setThumbnail(nullptr, QImage());
    QVERIFY(model.setData(index, QStringLiteral(" Title ")));
    QCOMPARE(item->name(), QStringLiteral("Title"));
    QVERIFY(!model.setData(index, QString()));
    document.undo();
    QCOMPARE(index.data().toString(), QStringLiteral("Text 1"));
    LTextEffectNode foreign;
    QVERIFY(!model.indexOf(&foreign).isValid());
    QVERIFY(!model.indexOf(static_cast<const LNode *>(nullptr)).isValid());
}

void TestProgrammeTree::followsEveryChange()
{
    ProgrammeDocument document;
    ProgrammeTreeModel model(&document);
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    QRandomGenerator random(7);
    for (int i = 0; i < 300; ++i) {
        QVector<LNode *> nodes;
        collect(document.controller(), &nodes);
        LNode *const node = nodes.at(random.bounded(nodes.size()));
        LNode *const other = nodes.at(random.bounded(nodes.size()));
        switch (random.bounded(9)) {
        case 0:
            document.addScreen();
            break;
        case 1:
            document.addItem(node);
            break;
        case 2:
            if (nodes.size() < 60) {
                document.duplicate(node);
            }
            break;
        case 3:
            document.remove(node);
            break;
        case 4:
        case 5:
            document.move(node, other, random.bounded(5));
            break;
        case 6:
            document.rename(node, QString::number(i));
            break;
        case 7:
            document.undo();
            break;
        default:
            document.redo();
        }
        compare(model, model.index(0, 0), document.controller());
    }
    document.history()->setIndex(0);
    compare(model, model.index(0, 0), document.controller());
    QVERIFY(!document.open(QStringLiteral(LCTRLSEX_SOURCE_DIR "/examples/demo.programme.json"))
                 .isSet());
    compare(model, model.index(0, 0), document.controller());
    // A host that deletes nodes itself.
    delete document.controller()->ChildNodes().first();
    compare(model, model.index(0, 0), document.controller());
}

void TestProgrammeTree::dragging()
{
    ProgrammeDocument document;
    ProgrammeTreeModel model(&document);
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    LNode *const first = player::programmeItems(document.controller()).value(0).node;
    LNode *const frame = first->ParentNode();
    LNode *const second = document.addItem(frame);
    LNode *const third = document.addItem(frame);
    LNode *const otherFrame = document.addFrame(frame->ParentNode());
    const auto drop = [&](LNode *node, LNode *onto, int row) {
        const QScopedPointer<QMimeData> data(model.mimeData({model.indexOf(node)}));
        const QModelIndex parent = model.indexOf(onto);
        const bool can = model.canDropMimeData(data.data(), Qt::MoveAction, row, 0, parent);
        const int steps = document.history()->count();
        model.dropMimeData(data.data(), Qt::MoveAction, row, 0, parent);
        return can && document.history()->count() == steps + 1;
    };
    QVERIFY(drop(first, frame, 2)); // between second and third
    QCOMPARE(frame->ChildNodes(), (QList<LNode *>{second, first, third}));
    QVERIFY(drop(third, frame, 0));
    QCOMPARE(frame->ChildNodes(), (QList<LNode *>{third, second, first}));
    QVERIFY(!drop(second, frame, 1)); // where it is
    QVERIFY(drop(second, otherFrame, -1));
    QCOMPARE(otherFrame->ChildNodes(), (QList<LNode *>{second}));
    QVERIFY(!drop(second, frame->ParentNode(), 0));
    QVERIFY(!drop(frame, otherFrame, 0));
    QVERIFY(!drop(frame->ParentNode(), frame, 0));
    document.undo();
    QCOMPARE(frame->ChildNodes(), (QList<LNode *>{third, second, first}));
    QVERIFY(!(model.flags(model.index(0, 0)) & Qt::ItemIsDragEnabled));
    QVERIFY(!(model.flags(model.indexOf(first)) & Qt::ItemIsDropEnabled));

    const QScopedPointer<QMimeData> old(model.mimeData({model.indexOf(first)}));
    ProgrammeTreeModel foreign(&document);
    QVERIFY(
        !foreign.canDropMimeData(old.data(), Qt::MoveAction, 0, 0, foreign.indexOf(otherFrame)));
    document.newProgramme(); // the node is deleted
    QMimeData text;
    text.setText(QStringLiteral("text"));
    const QModelIndex screen = model.index(0, 0, model.index(0, 0));
    for (const QMimeData *data : {old.data(), &text, static_cast<QMimeData *>(nullptr)}) {
        QVERIFY(!model.canDropMimeData(data, Qt::MoveAction, 0, 0, model.index(0, 0, screen)));
        model.dropMimeData(data, Qt::MoveAction, 0, 0, model.index(0, 0, screen));
    }
    QVERIFY(!document.isModified());
}

QTEST_MAIN(TestProgrammeTree)
#include "tst_programmetree.moc"
