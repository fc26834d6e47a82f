#include "lcontrollernode.h"
#include "lframenode.h"
#include "lpluginmanager.h"
#include "lscreennode.h"
#include "ltexteffectnode.h"

#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

class TestNodes : public QObject
{
    Q_OBJECT

private slots:
    void insertTakeMove();
    void insertRefusals();
    void childMovesBetweenParents();
    void deletedChildLeavesItsParent();
    void parentDeletesItsChildren();
    void listenerDeletesTheRemovedChild();
    void ancestors();
    void sizeOfAnItem();
    void frameSignals();
    void frameImages_data();
    void frameImages();
    void deviceOfAScreen();
    void textTransparent();
    void pages_data();
    void pages();
    void fieldValues();
    void preview();
    void nodeImage();
};

void TestNodes::insertTakeMove()
{
    LScreenNode screen;
    auto *const a = new LFrameNode;
    auto *const b = new LFrameNode;
    auto *const c = new LFrameNode;
    QSignalSpy inserted(&screen, &LNode::ChildInserted);
    QSignalSpy moved(&screen, &LNode::ChildMoved);
    QSignalSpy removed(&screen, &LNode::ChildRemoved);

    QVERIFY(screen.AppendChild(b));
    QVERIFY(screen.InsertChild(-5, a));
    QVERIFY(screen.InsertChild(99, c));
    QCOMPARE(screen.ChildNodes(), QList<LNode *>({a, b, c}));
    QCOMPARE(inserted.at(1).at(1).toInt(), 0);
    QCOMPARE(inserted.at(2).at(1).toInt(), 2);
    QCOMPARE(a->ParentNode(), &screen);

    QVERIFY(screen.MoveChild(0, 2));
    QVERIFY(screen.InsertChild(0, c));
    QVERIFY(!screen.MoveChild(0, 3));
    QVERIFY(screen.MoveChild(1, 1));
    QCOMPARE(screen.ChildNodes(), QList<LNode *>({c, b, a}));
    QCOMPARE(moved.count(), 2);

    const std::unique_ptr<LNode> taken(screen.TakeChild(b));
    QCOMPARE(taken.get(), b);
    QVERIFY(!b->ParentNode());
    QVERIFY(!b->parent());
    QCOMPARE(removed.first().at(1).toInt(), 1);
    QVERIFY(!screen.TakeChild(b));
    QVERIFY(!screen.RemoveChild(nullptr));
    const QPointer<LNode> guard(a);
    QVERIFY(screen.RemoveChild(a));
    QVERIFY(!guard);
}

void TestNodes::insertRefusals()
{
    LScreenNode screen;
    auto *const frame = new LFrameNode(&screen);
    auto *const item = new LTextEffectNode(frame);
    QVERIFY(!screen.AppendChild(nullptr));
    QVERIFY(!item->AppendChild(item));
    QVERIFY(!item->AppendChild(frame));
    QVERIFY(!item->AppendChild(&screen));
    QVERIFY(item->ChildNodes().isEmpty());
}

void TestNodes::childMovesBetweenParents()
{
    LScreenNode screen;
    auto *const from = new LFrameNode(&screen);
    auto *const to = new LFrameNode(&screen);
    auto *const item = new LTextEffectNode(from);
    QSignalSpy removed(from, &LNode::ChildRemoved);
    QSignalSpy inserted(to, &LNode::ChildInserted);
    QVERIFY(to->AppendChild(item));
    QVERIFY(from->ChildNodes().isEmpty());
    QCOMPARE(item->GetFrameNode(), to);
    QCOMPARE(removed.count(), 1);
    QCOMPARE(inserted.count(), 1);
}

void TestNodes::deletedChildLeavesItsParent()
{
    LScreenNode screen;
    auto *const first = new LFrameNode(&screen);
    auto *const second = new LFrameNode(&screen);
    QSignalSpy removed(&screen, &LNode::ChildRemoved);
    delete first;
    QCOMPARE(screen.ChildNodes(), QList<LNode *>{second});
    QCOMPARE(removed.count(), 1);
}

void TestNodes::parentDeletesItsChildren()
{
    auto screen = std::make_unique<LScreenNode>();
    auto *const frame = new LFrameNode(screen.get());
    const QPointer<LNode> item = new LTextEffectNode(frame);
    bool parentSeen = true;
    connect(item, &QObject::destroyed, [&] { parentSeen = false; });
    QSignalSpy removed(screen.get(), &LNode::ChildRemoved);
    screen.reset();
    QVERIFY(!item);
    QVERIFY(!parentSeen);
    QCOMPARE(removed.count(), 0);
}

void TestNodes::listenerDeletesTheRemovedChild()
{
    LScreenNode screen;
    auto *const frame = new LFrameNode(&screen);
    connect(&screen, &LNode::ChildRemoved, [](LNode *child) { delete child; });
    QVERIFY(screen.RemoveChild(frame));
    QVERIFY(screen.ChildNodes().isEmpty());
}

void TestNodes::ancestors()
{
    LControllerNode controller;
    auto *const screen = new LScreenNode(&controller);
    auto *const frame = new LFrameNode(screen);
    auto *const item = new LTextEffectNode(frame);
    QCOMPARE(item->GetControllerNode(), &controller);
    QCOMPARE(item->GetScreenNode(), screen);
    QCOMPARE(item->GetFrameNode(), frame);
    QCOMPARE(frame->GetFrameNode(), frame);
    QVERIFY(!screen->GetFrameNode());
    QCOMPARE(controller.ChildType(), screen->TypeText());
    QCOMPARE(screen->ChildType(), frame->TypeText());
    QCOMPARE(frame->ChildType(), item->TypeText());

    LTextEffectNode orphan;
    QVERIFY(!orphan.GetControllerNode());
    QVERIFY(!orphan.GetScreenNode());
    QVERIFY(!orphan.GetFrameNode());
}

void TestNodes::sizeOfAnItem()
{
    LControllerNode controller;
    controller.SetSize({640, 320});
    auto *const screen = new LScreenNode(&controller);
    QCOMPARE(screen->Size(), QSize(640, 320));
    auto *const frame = new LFrameNode(screen);
    auto *const item = new LTextEffectNode(frame);
    QCOMPARE(item->Size(), QSize(640, 320));
    frame->SetRect({5, 6, 128, 64});
    QCOMPARE(item->Size(), QSize(128, 64));
    item->SetSize({10, 10});
    QCOMPARE(item->Size(), QSize(10, 10));
    item->SetAttribute("Height", "high");
    QCOMPARE(item->Size(), QSize(128, 64));
    frame->SetSize({0, 64});
    QCOMPARE(frame->Size(), QSize(640, 320));
    LTextEffectNode orphan;
    QCOMPARE(orphan.Size(), QSize());
}

void TestNodes::frameSignals()
{
    LFrameNode node;
    QSignalSpy frames(&node, &LFrameNode::FrameChanged);
    QSignalSpy rects(&node, &LFrameNode::RectChanged);

    LFrame frame;
    frame.SetEnable(true);
    frame.SetFrameType(8);
    frame.SetEffect(2);
    frame.SetSpeed(5);
    node.SetFrame(frame);
    node.SetFrame(frame);
    QCOMPARE(frames.count(), 1);
    QCOMPARE(node.GetFrame(), frame);
    node.SetAttribute("FrameSpeed", 6.0);
    QCOMPARE(frames.count(), 2);
    QCOMPARE(node.GetFrame().Speed(), 6);
    QCOMPARE(frame.Speed(), 5);
    QCOMPARE(rects.count(), 0);

    node.SetRect({1, 2, 30, 40});
    QCOMPARE(rects.count(), 1);
    QCOMPARE(node.GetRect(), QRect(1, 2, 30, 40));
    node.SetName("left half");
    QCOMPARE(frames.count() + rects.count(), 3);
}

void TestNodes::frameImages_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("image");
    QTest::newRow("none") << 0 << "";
    QTest::newRow("negative") << -1 << "";
    QTest::newRow("first P") << 1 << ":/images/P01.png";
    QTest::newRow("last P") << 6 << ":/images/P06.png";
    QTest::newRow("first M") << 7 << ":/images/M01.png";
    QTest::newRow("last M") << 12 << ":/images/M06.png";
    QTest::newRow("first T") << 13 << ":/images/T01.png";
    QTest::newRow("last T") << 18 << ":/images/T06.png";
    QTest::newRow("beyond") << 19 << "";
}

void TestNodes::frameImages()
{
    QFETCH(int, type);
    QTEST(LFrame::Type2Image(type), "image");
}

void TestNodes::deviceOfAScreen()
{
    LControllerNode controller;
    auto *const screen = new LScreenNode(&controller);
    QVERIFY(!screen->IsLCDDevice());
    controller.SetDeviceKind("LCD");
    controller.SetDeviceModel("A4");
    QVERIFY(screen->IsLCDDevice());
    QVERIFY(screen->GetUseLcdEeffct());
    QCOMPARE(screen->GetDeviceModel(), QString("A4"));

    LScreenNode orphan;
    QVERIFY(!orphan.IsLCDDevice());
    QVERIFY(orphan.GetDeviceModel().isEmpty());
}

void TestNodes::textTransparent()
{
    LControllerNode controller;
    auto *const item = new LTextEffectNode(new LFrameNode(new LScreenNode(&controller)));
    const auto transparent = [](LNode *node) {
        return LPluginManager::instance()->TextTransparent(node);
    };
    QVERIFY(!transparent(nullptr));
    QVERIFY(!transparent(item));
    controller.SetAttribute("TextTransparent", true);
    QVERIFY(transparent(item));
}

void TestNodes::pages_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("count");
    QTest::addColumn<QList<int>>("reported");
    QTest::newRow("second of five") << 2 << 5 << QList<int>{2, 5};
    QTest::newRow("below one") << 0 << -3 << QList<int>{1, 1};
    QTest::newRow("beyond the count, which its caller clamps") << 7 << 3 << QList<int>{7, 3};
}

void TestNodes::pages()
{
    QFETCH(int, page);
    QFETCH(int, count);
    LTextEffectNode node;
    QSignalSpy played(&node, &LTextEffectNode::PlayIndexChanged);
    node.SetCurrentPage(page);
    node.SetPageCount(count);
    QCOMPARE(played.count(), 0);
    node.PageChanged();
    QCOMPARE(played.count(), 1);
    const QList<int> reported{played.first().at(0).toInt(), played.first().at(1).toInt()};
    QTEST(reported, "reported");
    QVERIFY(node.AttributeKeys().isEmpty());
}

void TestNodes::fieldValues()
{
    LTextEffectNode node;
    QSignalSpy changes(&node, &LTextEffectNode::FieldNameValueChanged);
    node.ClearFieldNameValue();
    node.AddFieldNameValue("shop:price", "3");
    node.AddFieldNameValue("clock:time", "");
    node.AddFieldNameValue("shop:price", "3");
    QCOMPARE(changes.count(), 2);
    QCOMPARE(node.FieldNameValues().keys(), QStringList({"clock:time", "shop:price"}));
    node.ClearFieldNameValue();
    QVERIFY(node.FieldNameValues().isEmpty());
}

void TestNodes::preview()
{
    LTextEffectNode node;
    QSignalSpy changes(&node, &LTextEffectNode::PreviewCacheChanged);
    node.UpdatePreviewCache(QImage());
    QCOMPARE(changes.count(), 0);
    QImage image(2, 2, QImage::Format_ARGB32);
    image.fill(Qt::red);
    node.UpdatePreviewCache(image);
    node.UpdatePreviewCache(image);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(node.PreviewCache(), image);
}

void TestNodes::nodeImage()
{
    LTextEffectNode node;
    node.SetEditBgColor(0x0000c8 | 0x640000);
    const QImage image = node.NodeImage({3, 2});
    QCOMPARE(image.size(), QSize(3, 2));
    QCOMPARE(image.format(), QImage::Format_ARGB32);
    QCOMPARE(image.pixelColor(2, 1), QColor(200, 0, 100));
    node.SetTransBgColor(true);
    QCOMPARE(node.NodeImage({3, 2}).pixel(0, 0), 0u);
    QVERIFY(node.NodeImage({0, 2}).isNull());
    QVERIFY(node.NodeImage({1 << 20, 1 << 20}).isNull());
}

QTEST_MAIN(TestNodes)
#include "tst_nodes.moc"
