#include "inodeclient.h"
#include "lappconfig.h"
#include "lcontrollernode.h"
#include "lframenode.h"
#include "lscreennode.h"
#include "ltexteffectnode.h"
#include "pluginhost.h"

#include <QtTest>
#include <QtWidgets>

namespace {

Lum::INodeClient *client()
{
    return loadedClient();
}

const char *const playSignal = "PlayIndexChanged(int,int)";
const char *const frameSignal = "FrameChanged()";

/** A frame of a screen with a text item that has been edited before. */
struct Programme
{
    LControllerNode controller;
    LScreenNode *screen = new LScreenNode(&controller);
    LFrameNode *frame = new LFrameNode(screen);
    LTextEffectNode *text = addText();

    LTextEffectNode *addText()
    {
        auto *const node = new LTextEffectNode;
        node->SetHtmlText("<p>old</p>");
        node->SetRawHtmlText(QByteArray("<p>old</p>").toBase64());
        frame->AppendChild(node);
        return node;
    }
};

/** Names under which hosts and their style sheets look for widgets. */
const char *const promisedNames =
    "EditBg widget rbByTime sbByTime rbByCount sbByCount ContinuousMove frame_2 "
    "lblDisplay_4 PrePage PageTip NextPage wgtTextEditor BtnBg Return EffectBg widget_2 "
    "NoEffect Random lblDisplay_2 lblClear_2 ClearInterval DisplayInterval "
    "TextAttributesBg DisplayEffects lblHold_2 setOperation FieldLab RemainInterval "
    "ClearSreenEffects WarningLabel GUID FieldCbx TextAttributesBgHeader "
    "TextAttributesContentBg ConditionalStylesBtn";

QString pageTip()
{
    return clientChild<QLabel>("PageTip")->text();
}

bool panelEnabled()
{
    return clientChild<QWidget>("TextAttributesContentBg")->isEnabled();
}

} // namespace

class TestClient : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void oneInstance();
    void noDeadConnection();
    void widgets();
    void startsHidden();
    void identifier();
    void initFindsItem();
    void initIgnoresForeignNodes();
    void initLogsFrame();
    void widgetGetters();
    void gettersBindNothing();
    void pages_data();
    void pages();
    void pageButtonsAskTheEditor();
    void rebindingLeavesOneConnection_data();
    void rebindingLeavesOneConnection();
    void formerFrameActsNoMore();
    void lcdScreens_data();
    void lcdScreens();
    void nodeGoes();
    void finishLetsGo();
    void initInsideSlot();
    void nodeDeletedInsideInit();
    void returnLeavesEditing();
    void hostDeletesPanel();
    void hostDeletesClient();
};

void TestClient::cleanup()
{
    client()->Finish();
}

void TestClient::oneInstance()
{
    QVERIFY(client());
    QCOMPARE(client(), client());
    QCOMPARE(client()->GetClient(), static_cast<QWidget *>(client()));
    QCOMPARE(client()->metaObject()->className(), "Lum::LTextPlugin::LTextClient");
    QVERIFY(!client()->parentWidget());
}

void TestClient::noDeadConnection()
{
    delete client();
    Programme programme;
    const DeadConnections dead;
    client()->Init(programme.frame);
    client()->GetEditeWidget(programme.text);
    QCOMPARE(DeadConnections::found(), QStringList());
}

void TestClient::widgets()
{
    const QStringList names = QString(promisedNames).split(' ');
    for (const QString &name : names) {
        auto *const widget = clientChild<QWidget>(qPrintable(name));
        QVERIFY2(widget, qPrintable(name));
        auto *const button = qobject_cast<QAbstractButton *>(widget);
        QVERIFY2(!button || !(button->text() + button->toolTip()).isEmpty(), qPrintable(name));
    }
    QCOMPARE(client()->objectName(), QString("LTextClient"));
    const QFont font = clientChild<QWidget>("wgtTextEditor")->font();
    QCOMPARE(font.family(), QString::fromUtf8("华文宋体"));
    QCOMPARE(font.pointSize(), 16);
}

void TestClient::startsHidden()
{
    delete client();
    for (const char *name :
         {"BtnBg", "widget", "TextAttributesBg", "GUID", "FieldCbx", "FieldLab"}) {
        QVERIFY2(clientChild<QWidget>(name)->isHidden(), name);
    }
    QCOMPARE(
        clientChild<QHBoxLayout>("MainLayout")->indexOf(clientChild<QWidget>("TextAttributesBg")),
        -1);
    QCOMPARE(pageTip(), QString("1 / 1"));
    QVERIFY(!panelEnabled());
}

void TestClient::identifier()
{
    LAppConfig::SetSDKVersion(true);
    delete client();
    Programme programme;
    programme.text->SetIdentifier("sign-7");
    client()->Init(programme.text);
    auto *const edit = clientChild<QLineEdit>("GUID");
    QVERIFY(!edit->isHidden());
    QCOMPARE(edit->text(), QString("sign-7"));
    edit->setText("sign-8");
    QVERIFY(QMetaObject::invokeMethod(client(), "on_GUID_editingFinished"));
    QCOMPARE(programme.text->GetIdentifier(), QString("sign-8"));
    LAppConfig::SetSDKVersion(false);
    delete client();
}

void TestClient::initFindsItem()
{
    Programme programme;
    client()->Init(programme.frame);
    QCOMPARE(listeners(programme.text, playSignal), 1);
    QVERIFY(panelEnabled());
    QVERIFY(!clientChild<QWidget>("TextAttributesBg")->isHidden());
    QVERIFY(clientChild<QWidget>("BtnBg")->isHidden());
    client()->Init(programme.frame);
    client()->Init(programme.text);
    QCOMPARE(listeners(programme.text, playSignal), 1);
    QCOMPARE(listeners(programme.frame, frameSignal), 1);
    QCOMPARE(listeners(clientChild<QWidget>("wgtTextEditor"), "DocumentHasTable(bool)"), 1);
}

void TestClient::initIgnoresForeignNodes()
{
    Programme programme;
    client()->Init(programme.text);
    LFrameNode empty;
    LFrameNode withFrame;
    withFrame.AppendChild(new LFrameNode);
    for (LNode *node : {static_cast<LNode *>(nullptr), static_cast<LNode *>(programme.screen),
                        static_cast<LNode *>(&empty), static_cast<LNode *>(&withFrame)}) {
        client()->Init(node);
        QCOMPARE(listeners(programme.text, playSignal), 1);
        QCOMPARE(listeners(programme.frame, frameSignal), 1);
    }
    QCOMPARE(listeners(&empty, frameSignal), 0);
}

void TestClient::initLogsFrame()
{
    Programme programme;
    programme.frame->SetName("Left wall");
    const QRegularExpression expected(
        R"(^\d{4}-\d\d-\d\d \d\d:\d\d:\d\d\.\d{3} )"
        R"(\[\.\\ltext_client\.cpp::Lum::LTextPlugin::LTextClient::Init::43\] Frame Left wall$)");
    QTest::ignoreMessage(QtDebugMsg, expected);
    client()->Init(programme.frame);
}

void TestClient::widgetGetters()
{
    Programme programme;
    auto *const panel = clientChild<QWidget>("TextAttributesBg");
    QCOMPARE(client()->GetEditeWidget(programme.text), static_cast<QWidget *>(client()));
    QVERIFY(!clientChild<QWidget>("BtnBg")->isHidden());
    QVERIFY(clientChild<QHBoxLayout>("MainLayout")->indexOf(panel) >= 0);
    QCOMPARE(client()->GetAttributesWidget(programme.text), panel);
    QVERIFY(clientChild<QWidget>("BtnBg")->isHidden());
    QCOMPARE(listeners(programme.text, playSignal), 1);
    QCOMPARE(listeners(clientChild<QWidget>("wgtTextEditor"), "DocumentHasTable(bool)"), 1);

    // The same node is read anew.
    programme.text->SetDispTime(7);
    QCOMPARE(clientChild<QComboBox>("DisplayInterval")->currentIndex(), 0);
    client()->GetAttributesWidget(programme.text);
    QCOMPARE(clientChild<QComboBox>("DisplayInterval")->currentIndex(), 7);

    // A host lays the panel elsewhere and takes it back with the edit widget.
    QWidget window;
    (new QVBoxLayout(&window))->addWidget(client()->GetAttributesWidget(programme.text));
    QVERIFY(!client()->isAncestorOf(panel));
    client()->GetEditeWidget(programme.text);
    QVERIFY(client()->isAncestorOf(panel));
}

void TestClient::gettersBindNothing()
{
    Programme programme;
    for (LNode *const node :
         {static_cast<LNode *>(nullptr), static_cast<LNode *>(programme.frame)}) {
        for (const bool edit : {true, false}) {
            client()->Init(programme.text);
            programme.text->SetPageCount(3);
            programme.text->PageChanged();
            QCOMPARE(pageTip(), QString("1 / 3"));
            QVERIFY(edit ? client()->GetEditeWidget(node) : client()->GetAttributesWidget(node));
            QCOMPARE(pageTip(), QString("1 / 1"));
            QVERIFY(!panelEnabled());
            QCOMPARE(listeners(programme.text, playSignal), 0);
            QCOMPARE(listeners(programme.frame, frameSignal), 0);
        }
    }
}

void TestClient::pages_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("total");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("previous");
    QTest::addColumn<bool>("next");
    QTest::newRow("none") << 0 << 0 << "1 / 1" << false << false;
    QTest::newRow("first") << 1 << 5 << "1 / 5" << false << true;
    QTest::newRow("second") << 2 << 5 << "2 / 5" << true << true;
    QTest::newRow("last") << 5 << 5 << "5 / 5" << true << false;
    QTest::newRow("behind") << 7 << 3 << "3 / 3" << true << false;
    QTest::newRow("negative") << -4 << -2 << "1 / 1" << false << false;
    QTest::newRow("thousands") << 1234 << 56789 << "1234 / 56789" << true << true;
}

void TestClient::pages()
{
    QFETCH(int, current);
    QFETCH(int, total);
    QVERIFY(
        QMetaObject::invokeMethod(client(), "PageChanged", Q_ARG(int, current), Q_ARG(int, total)));
    QTEST(pageTip(), "text");
    QTEST(clientChild<QAbstractButton>("PrePage")->isEnabled(), "previous");
    QTEST(clientChild<QAbstractButton>("NextPage")->isEnabled(), "next");
}

void TestClient::pageButtonsAskTheEditor()
{
    Programme programme;
    client()->Init(programme.text);
    programme.text->SetPageCount(3);
    programme.text->PageChanged();
    clientChild<QAbstractButton>("NextPage")->click();
    QCOMPARE(programme.text->GetCurrentPage(), 2);
    QCOMPARE(pageTip(), QString("2 / 3"));
    clientChild<QAbstractButton>("PrePage")->click();
    QCOMPARE(programme.text->GetCurrentPage(), 1);
    QCOMPARE(pageTip(), QString("1 / 3"));
}

void TestClient::rebindingLeavesOneConnection_data()
{
    QTest::addColumn<int>("entry");
    QTest::newRow("Init") << 0;
    QTest::newRow("GetEditeWidget") << 1;
    QTest::newRow("GetAttributesWidget") << 2;
}

void TestClient::rebindingLeavesOneConnection()
{
    QFETCH(int, entry);
    const auto bind = [entry](LNode *node) {
        if (entry == 0) {
            client()->Init(node);
        } else {
            entry == 1 ? client()->GetEditeWidget(node) : client()->GetAttributesWidget(node);
        }
    };
    Programme one;
    Programme two;
    for (int round = 0; round < 3; ++round) {
        bind(one.text);
        QCOMPARE(listeners(one.text, playSignal), 1);
        QCOMPARE(listeners(two.text, playSignal), 0);
        QCOMPARE(listeners(one.frame, frameSignal), 1);
        QCOMPARE(listeners(two.frame, frameSignal), 0);
        bind(two.text);
    }
    QCOMPARE(listeners(one.text, playSignal), 0);
    QCOMPARE(listeners(one.frame, frameSignal), 0);
    QCOMPARE(listeners(clientChild<QComboBox>("FieldCbx"), "currentIndexChanged(QString)"), 1);
    QCOMPARE(listeners(clientChild<QWidget>("setOperation"), "clicked(bool)"), 1);
}

void TestClient::formerFrameActsNoMore()
{
    Programme one;
    Programme two;
    client()->Init(one.frame);
    client()->Init(two.frame);
    QSignalSpy written(two.text, &LData::AttributeChanged);
    LFrame border;
    border.SetEnable(true);
    one.frame->SetFrame(border);
    QCOMPARE(written.count(), 0);
    two.frame->SetFrame(border);
    QVERIFY(two.text->GetBorderEnable());
    QVERIFY(!one.text->GetBorderEnable());
}

void TestClient::lcdScreens_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("useLcd");
    QTest::addColumn<int>("textMode");
    QTest::addColumn<QString>("holdText");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<bool>("speeds");
    QTest::addColumn<bool>("hold");
    QTest::newRow("LED") << "LED" << true << 0 << "Hold" << 1 << true << true;
    QTest::newRow("LED, one line") << "LED" << true << 1 << "Hold" << 1 << true << true;
    QTest::newRow("LCD") << "LCD" << true << 0 << "Play Time" << 0 << false << true;
    QTest::newRow("LCD, one line") << "LCD" << true << 1 << "Play Time" << 0 << false << false;
    QTest::newRow("LCD, LED effects") << "LCD" << false << 1 << "Hold" << 1 << true << true;
}

void TestClient::lcdScreens()
{
    QFETCH(QString, kind);
    QFETCH(bool, useLcd);
    QFETCH(int, textMode);
    Programme programme;
    programme.controller.SetDeviceKind(kind);
    programme.screen->SetUseLcdEeffct(useLcd);
    programme.text->SetSingleMode(textMode);
    programme.text->SetClearEffect(LEffectNode::Fade);
    programme.text->SetHoldTime(25);
    client()->Init(programme.frame);
    QTEST(clientChild<QLabel>("lblHold_2")->text(), "holdText");
    QTEST(clientChild<QDoubleSpinBox>("RemainInterval")->decimals(), "decimals");
    for (const char *name :
         {"ClearSreenEffects", "ClearInterval", "lblClear_2", "DisplayInterval"}) {
        QTEST(!clientChild<QWidget>(name)->isHidden(), "speeds");
    }
    for (const char *name : {"lblHold_2", "RemainInterval", "NoEffect"}) {
        QTEST(!clientChild<QWidget>(name)->isHidden(), "hold");
    }
    QCOMPARE(programme.text->GetHoldTime(), 25);
}

void TestClient::nodeGoes()
{
    Programme programme;
    client()->GetEditeWidget(programme.text);
    programme.text->SetPageCount(4);
    programme.text->PageChanged();
    delete programme.text;
    QCOMPARE(pageTip(), QString("1 / 1"));
    QVERIFY(!panelEnabled());
    const QMetaObject *const meta = client()->metaObject();
    for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
        if (meta->method(i).parameterCount() == 0) {
            QVERIFY(meta->method(i).invoke(client()));
        }
    }
    LFrame border;
    border.SetEnable(true);
    programme.frame->SetFrame(border);
}

void TestClient::finishLetsGo()
{
    Programme programme;
    client()->Init(programme.frame);
    client()->Finish();
    QCOMPARE(listeners(programme.text, playSignal), 0);
    QCOMPARE(listeners(programme.frame, frameSignal), 0);
    QVERIFY(!panelEnabled());
    client()->Init(programme.frame);
    QVERIFY(panelEnabled());
}

void TestClient::initInsideSlot()
{
    Programme one;
    Programme two;
    client()->Init(one.text);
    connect(one.text, &LData::AttributeChanged, this, [&two] { client()->Init(two.text); });
    QSignalSpy written(two.text, &LData::AttributeChanged);
    clientChild<QComboBox>("DisplayInterval")->setCurrentIndex(4);
    QCOMPARE(one.text->GetDispTime(), 4);
    QCOMPARE(one.text->GetSpeed(), 0);
    QCOMPARE(written.count(), 0);
    QCOMPARE(listeners(one.text, playSignal), 0);
    QCOMPARE(listeners(two.text, playSignal), 1);
}

void TestClient::nodeDeletedInsideInit()
{
    Programme programme;
    // A new item is written to while it is loaded.
    auto *const fresh = new LTextEffectNode;
    programme.frame->AppendChild(fresh);
    connect(fresh, &LData::AttributeChanged, this, [fresh] { delete fresh; });
    client()->Init(fresh);
    QVERIFY(!panelEnabled());
    QCOMPARE(pageTip(), QString("1 / 1"));
}

void TestClient::returnLeavesEditing()
{
    QSignalSpy left(client(), &Lum::INodeClient::editFinish);
    clientChild<QAbstractButton>("Return")->click();
    QCOMPARE(left.count(), 1);
}

void TestClient::hostDeletesPanel()
{
    Programme programme;
    programme.text->SetDispTime(3);
    {
        QWidget window;
        (new QVBoxLayout(&window))->addWidget(client()->GetAttributesWidget(programme.text));
    }
    auto *const speed = clientChild<QComboBox>("DisplayInterval");
    QVERIFY(speed);
    QVERIFY(panelEnabled());
    QCOMPARE(speed->currentIndex(), 3);
    speed->setCurrentIndex(5);
    QCOMPARE(programme.text->GetDispTime(), 5);
    QVERIFY(client()->GetAttributesWidget(programme.text));
    QCOMPARE(listeners(speed, "currentIndexChanged(int)"), 1);
}

void TestClient::hostDeletesClient()
{
    Programme programme;
    auto *const window = new QMainWindow;
    window->setCentralWidget(client()->GetEditeWidget(programme.text));
    auto *const dock = new QDockWidget(window);
    dock->setWidget(client()->GetAttributesWidget(programme.text));
    window->addDockWidget(Qt::RightDockWidgetArea, dock);
    delete window;
    QCOMPARE(listeners(programme.text, playSignal), 0);
    QVERIFY(client());
    client()->Init(programme.text);
    QVERIFY(panelEnabled());
}

QTEST_MAIN(TestClient)
#include "tst_client.moc"
