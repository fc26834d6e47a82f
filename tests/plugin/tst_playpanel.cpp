#include "inodeclient.h"
#include "lappconfig.h"
#include "lcontrollernode.h"
#include "lframenode.h"
#include "lscreennode.h"
#include "ltexteffectnode.h"
#include "ltranslation.h"
#include "pluginhost.h"

#include <QtTest>
#include <QtWidgets>

namespace {

Lum::INodeClient *client()
{
    return loadedClient();
}

QComboBox *box(const char *name)
{
    return clientChild<QComboBox>(name);
}

QStringList texts(const QComboBox *combo)
{
    QStringList result;
    for (int i = 0; i < combo->count(); ++i) {
        result << combo->itemText(i);
    }
    return result;
}

void retranslate()
{
    emit LTranslation::instance()->LanguageChanged();
}

} // namespace

class TestPlayPanel : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void controlsWrite_data();
    void controlsWrite();
    void holdIsCutOff_data();
    void holdIsCutOff();
    void everyTenthIsKept();
    void speedHoldsThePage();
    void effectLists();
    void buttons_data();
    void buttons();
    void buttonsSelectBothEffects_data();
    void buttonsSelectBothEffects();
    void dependents_data();
    void dependents();
    void fillingWritesNothing();
    void translationKeepsSelections();
    void continuousMovement();
    void unknownEffectIsNotReplaced();
    void frameIsCopied_data();
    void frameIsCopied();
    void frameStopsWithTheNode();
    void slotsStopWithTheNode();

private:
    QScopedPointer<LControllerNode> m_root;
    LFrameNode *m_frame = nullptr;
    LTextEffectNode *m_text = nullptr;
};

void TestPlayPanel::init()
{
    m_root.reset(new LControllerNode);
    m_frame = new LFrameNode(new LScreenNode(m_root.data()));
    m_text = new LTextEffectNode;
    m_text->SetHtmlText("<p>old</p>");
    m_text->SetRawHtmlText(QByteArray("<p>old</p>").toBase64());
    m_frame->AppendChild(m_text);
    client()->Init(m_frame);
}

void TestPlayPanel::cleanup()
{
    client()->Finish();
}

void TestPlayPanel::controlsWrite_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariantMap>("written");
    const auto add = [](const char *name, const QVariant &value, const QVariantMap &written) {
        QTest::newRow(name) << value << written;
    };
    add("DisplayEffects", 4, {{"DispEffect", LEffectNode::SlideUp}});
    add("ClearSreenEffects", 21, {{"ClearEffect", LEffectNode::KeepPage}});
    add("DisplayInterval", 8, {{"DispTime", 8}, {"Speed", 8}});
    add("ClearInterval", 3, {{"ClearTime", 3}});
    add("RemainInterval", 7.5, {{"HoldTime", 75}});
    add("rbByTime", true, {{"PlayType", "ByTime"}});
    add("sbByTime", 33, {{"ByTime", 33}});
    add("sbByCount", 44, {{"ByCount", 44}});
}

void TestPlayPanel::controlsWrite()
{
    QFETCH(QVariant, value);
    QFETCH(QVariantMap, written);
    QSignalSpy changes(m_text, &LData::AttributeChanged);
    auto *const widget = clientChild<QWidget>(QTest::currentDataTag());
    if (auto *const combo = qobject_cast<QComboBox *>(widget)) {
        combo->setCurrentIndex(value.toInt());
    } else if (auto *const button = qobject_cast<QRadioButton *>(widget)) {
        button->click();
    } else {
        QVERIFY(widget->setProperty("value", value));
    }
    QVariantMap found;
    for (const QList<QVariant> &change : changes) {
        found.insert(change.first().toString(), m_text->Attribute(change.first().toString()));
    }
    QCOMPARE(found, written);
}

void TestPlayPanel::holdIsCutOff_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<int>("tenths");
    QTest::newRow("cut off") << 2.35 << 23;
    QTest::newRow("below a tenth") << 0.05 << 0;
    QTest::newRow("negative") << -0.19 << -1;
    QTest::newRow("beyond the integers") << 1e300 << 50;
    QTest::newRow("no number") << qQNaN() << 50;
}

void TestPlayPanel::holdIsCutOff()
{
    QFETCH(double, seconds);
    QVERIFY(QMetaObject::invokeMethod(client(), "OnRemainInterval", Q_ARG(double, seconds)));
    QTEST(m_text->GetHoldTime(), "tenths");
}

void TestPlayPanel::everyTenthIsKept()
{
    for (int tenths = 1; tenths <= 3000; ++tenths) {
        clientChild<QDoubleSpinBox>("RemainInterval")->setValue(tenths / 10.0);
        QCOMPARE(m_text->GetHoldTime(), tenths);
    }
}

void TestPlayPanel::speedHoldsThePage()
{
    clientChild<QDoubleSpinBox>("RemainInterval")->setValue(0);
    QCOMPARE(m_text->GetHoldTime(), 0);
    box("DisplayInterval")->setCurrentIndex(2);
    QCOMPARE(m_text->GetHoldTime(), 50);
    QCOMPARE(clientChild<QDoubleSpinBox>("RemainInterval")->value(), 5.0);
    clientChild<QDoubleSpinBox>("RemainInterval")->setValue(0.1);
    box("DisplayInterval")->setCurrentIndex(3);
    QCOMPARE(m_text->GetHoldTime(), 1);
}

void TestPlayPanel::effectLists()
{
    const auto check = [](const QComboBox *combo, const QVector<LEffectItem> &items) {
        QCOMPARE(combo->count(), items.size());
        for (int i = 0; i < items.size(); ++i) {
            QCOMPARE(combo->itemText(i), items[i].name);
            QCOMPARE(combo->itemData(i), QVariant(items[i].effectType));
            QVERIFY(combo->itemIcon(i).isNull());
        }
    };
    check(box("DisplayEffects"), LEffectNode::GetDispEffectName());
    check(box("ClearSreenEffects"), LEffectNode::GetClearEffectName());
    const QStringList speeds{"1 fast", "2", "3", "4", "5", "6", "7", "8", "9 slow"};
    QCOMPARE(texts(box("DisplayInterval")), speeds);
    QCOMPARE(texts(box("ClearInterval")), speeds);
}

void TestPlayPanel::buttons_data()
{
    QTest::addColumn<int>("display");
    QTest::addColumn<int>("clear");
    QTest::addColumn<bool>("none");
    QTest::addColumn<bool>("random");
    QTest::newRow("none") << 0 << 0 << true << false;
    QTest::newRow("none, page kept") << 0 << 20 << true << false;
    QTest::newRow("clear only") << 0 << 11 << false << false;
    QTest::newRow("display only") << 11 << 0 << false << false;
    QTest::newRow("random") << 25 << 25 << false << true;
    QTest::newRow("random display") << 25 << 0 << false << false;
    QTest::newRow("random clear") << 0 << 25 << false << false;
}

void TestPlayPanel::buttons()
{
    QFETCH(int, display);
    QFETCH(int, clear);
    QComboBox *const displays = box("DisplayEffects");
    QComboBox *const clears = box("ClearSreenEffects");
    displays->setCurrentIndex(displays->findData(display));
    clears->setCurrentIndex(clears->findData(clear));
    QTEST(clientChild<QAbstractButton>("NoEffect")->isChecked(), "none");
    QTEST(clientChild<QAbstractButton>("Random")->isChecked(), "random");
}

void TestPlayPanel::buttonsSelectBothEffects_data()
{
    QTest::addColumn<int>("effect");
    QTest::newRow("NoEffect") << 0;
    QTest::newRow("Random") << 25;
}

void TestPlayPanel::buttonsSelectBothEffects()
{
    QFETCH(int, effect);
    m_text->SetDispEffect(LEffectNode::Fade);
    m_text->SetClearEffect(LEffectNode::KeepPage);
    client()->GetAttributesWidget(m_text);
    auto *const button = clientChild<QAbstractButton>(QTest::currentDataTag());
    for (int click = 0; click < 2; ++click) {
        button->click();
        QCOMPARE(m_text->GetDispEffect(), effect);
        QCOMPARE(m_text->GetClearEffect(), effect);
        QCOMPARE(box("DisplayEffects")->currentData(), QVariant(effect));
        QVERIFY(button->isChecked());
    }
}

void TestPlayPanel::dependents_data()
{
    QTest::addColumn<bool>("continuous");
    QTest::addColumn<int>("clear");
    QTest::addColumn<int>("textMode");
    QTest::addColumn<bool>("source");
    QTest::addColumn<QString>("shown");
    QTest::newRow("clears") << false << 11 << 0 << false << "clear speed hold";
    QTest::newRow("clears nothing") << false << 0 << 0 << false << "clear hold";
    QTest::newRow("keeps the page") << false << 20 << 1 << false << "clear hold";
    QTest::newRow("continuous") << true << 11 << 0 << false << "";
    QTest::newRow("line of a source") << false << 11 << 1 << true << "clear speed";
    QTest::newRow("text of a source") << false << 11 << 0 << true << "clear speed hold";
}

void TestPlayPanel::dependents()
{
    QFETCH(bool, continuous);
    QFETCH(int, clear);
    QFETCH(int, textMode);
    QFETCH(bool, source);
    m_text->SetContinueMove(continuous);
    m_text->SetClearEffect(clear);
    m_text->SetSingleMode(textMode);
    m_text->SetSourceMode(source);
    client()->GetAttributesWidget(m_text);
    QStringList shown;
    const auto add = [&shown](const char *name, const char *word) {
        if (!clientChild<QWidget>(name)->isHidden()) {
            shown << word;
        }
    };
    add("ClearSreenEffects", "clear");
    add("ClearInterval", "speed");
    add("RemainInterval", "hold");
    QTEST(shown.join(' '), "shown");
}

void TestPlayPanel::fillingWritesNothing()
{
    auto *const other = new LTextEffectNode;
    other->SetAttributes({{"Html", "<p>new</p>"},
                          {"DispEffect", 7},
                          {"ClearEffect", 12},
                          {"DispTime", 800},
                          {"ClearTime", -5},
                          {"Speed", 6},
                          {"HoldTime", 0},
                          {"PlayType", "ByTime"},
                          {"ByTime", 100000},
                          {"ByCount", 0},
                          {"SingleMode", 1}});
    m_root->SetDeviceKind("LCD");
    m_frame->AppendChild(other);
    QSignalSpy changes(other, &LData::AttributeChanged);
    client()->Init(other);
    client()->GetEditeWidget(other);
    client()->GetAttributesWidget(other);
    retranslate();
    QCOMPARE(changes.count(), 0);
    QCOMPARE(box("DisplayEffects")->currentData(), QVariant(7));
    QCOMPARE(box("DisplayInterval")->currentIndex(), 8);
    QCOMPARE(box("ClearInterval")->currentIndex(), 0);
    QVERIFY(clientChild<QRadioButton>("rbByTime")->isChecked());
}

void TestPlayPanel::translationKeepsSelections()
{
    m_text->SetDispEffect(LEffectNode::Fade);
    m_text->SetClearEffect(LEffectNode::Snow);
    m_text->SetDispTime(4);
    m_text->SetClearTime(6);
    client()->GetAttributesWidget(m_text);
    QSignalSpy changes(m_text, &LData::AttributeChanged);
    // Turned on behind the panel's back: three entries come before the one that is selected.
    m_text->SetContinueMove(true);
    retranslate();
    QCOMPARE(box("DisplayEffects")->currentData(), QVariant(LEffectNode::Fade));
    QCOMPARE(box("ClearSreenEffects")->currentData(), QVariant(LEffectNode::Snow));
    QCOMPARE(box("DisplayInterval")->currentIndex(), 4);
    QCOMPARE(box("ClearInterval")->currentIndex(), 6);
    QCOMPARE(changes.count(), 1);
}

void TestPlayPanel::continuousMovement()
{
    m_text->SetContinueMove(true);
    client()->GetAttributesWidget(m_text);
    QCOMPARE(texts(box("DisplayEffects")).mid(0, 3),
             QStringList({"Continuous Move Left", "Continuous Move Right", "Continuous Move Up"}));
    QSet<int> data;
    for (int i = 0; i < box("DisplayEffects")->count(); ++i) {
        data.insert(box("DisplayEffects")->itemData(i).toInt());
    }
    QCOMPARE(data.size(), box("DisplayEffects")->count());
    for (int i = 0; i < 3; ++i) {
        box("DisplayEffects")->setCurrentIndex(i);
        client()->GetAttributesWidget(m_text);
        QCOMPARE(box("DisplayEffects")->currentIndex(), i);
    }
    auto *const moves = clientChild<QCheckBox>("ContinuousMove");
    moves->click();
    QVERIFY(!m_text->IsContinueMove());
    QCOMPARE(m_text->GetDispEffect(), int(LEffectNode::NoEffect));
    QCOMPARE(box("DisplayEffects")->currentText(), QString("No Effect"));
    moves->click();
    QVERIFY(m_text->IsContinueMove());
    QCOMPARE(box("DisplayEffects")->currentText(), QString("Continuous Move Left"));
    QCOMPARE(QVariant(m_text->GetDispEffect()), box("DisplayEffects")->currentData());
}

void TestPlayPanel::unknownEffectIsNotReplaced()
{
    m_text->SetDispEffect(77);
    client()->GetAttributesWidget(m_text);
    QCOMPARE(box("DisplayEffects")->currentIndex(), -1);
    QCOMPARE(m_text->GetDispEffect(), 77);
}

void TestPlayPanel::frameIsCopied_data()
{
    QTest::addColumn<bool>("enable");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("path");
    QTest::newRow("P") << true << 2 << "/images/p/P02.png";
    QTest::newRow("M") << true << 9 << "/images/m/M03.png";
    QTest::newRow("T, off") << false << 18 << "/images/t/T06.png";
    QTest::newRow("unknown") << true << 99 << "/";
}

void TestPlayPanel::frameIsCopied()
{
    QFETCH(bool, enable);
    QFETCH(int, type);
    QFETCH(QString, path);
    m_text->SetShapedBorderEnable(true);
    m_text->SetBorderEnable(!enable);
    // Read into the panel behind the border, where it does not fit, and not written back.
    m_text->SetDispTime(800);
    QStringList order;
    connect(m_text, &LData::AttributeChanged, this, [&order](const QString &key) { order << key; });
    connect(m_text, &LEffectNode::Attribute3DChanged, this, [&order] { order << "3D"; });
    LFrame frame;
    frame.SetEnable(enable);
    frame.SetFrameType(type);
    frame.SetEffect(3);
    frame.SetSpeed(6);
    m_frame->SetFrame(frame);
    QStringList wanted{"BorderEnable", "BorderPath", "BorderStyle", "BorderSpeed", "3D"};
    if (!enable) {
        wanted.prepend("ShapedBorderEnable");
    }
    QCOMPARE(order, wanted);
    QCOMPARE(m_text->GetBorderEnable(), enable);
    QCOMPARE(m_text->GetShapedBorderEnable(), enable);
    QCOMPARE(m_text->GetBorderPath(), LAppConfig::AppDir() + path);
    QCOMPARE(m_text->GetBorderStyle(), 3);
    QCOMPARE(m_text->GetBorderSpeed(), 6);
}

// The host deletes the node at each of the calls that it gets while the border is copied.
void TestPlayPanel::frameStopsWithTheNode()
{
    for (int fatal = 1; fatal <= 6; ++fatal) {
        init();
        m_text->SetShapedBorderEnable(true);
        m_text->SetBorderEnable(true);
        int calls = 0;
        const QPointer<LTextEffectNode> node = m_text;
        const auto kill = [&] {
            if (++calls == fatal) {
                delete node;
            }
        };
        connect(m_text, &LData::AttributeChanged, this, kill);
        connect(m_text, &LEffectNode::Attribute3DChanged, this, kill);
        LFrame frame;
        frame.SetFrameType(5);
        frame.SetEffect(3);
        frame.SetSpeed(6);
        m_frame->SetFrame(frame);
        QVERIFY(!node);
        QCOMPARE(calls, fatal);
    }
}

void TestPlayPanel::slotsStopWithTheNode()
{
    const char *const names[] = {"DisplayEffects", "ClearSreenEffects", "DisplayInterval"};
    for (const char *name : names) {
        init();
        const QPointer<LTextEffectNode> node = m_text;
        connect(m_text, &LData::AttributeChanged, this, [node] { delete node; });
        box(name)->setCurrentIndex(5);
        QVERIFY(!node);
    }
    init();
    const QPointer<LTextEffectNode> node = m_text;
    connect(m_text, &LData::AttributeChanged, this, [node] { delete node; });
    clientChild<QAbstractButton>("Random")->click();
    QVERIFY(!node);
}

QTEST_MAIN(TestPlayPanel)
#include "tst_playpanel.moc"
