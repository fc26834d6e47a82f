#include "lcontrollernode.h"
#include "lframenode.h"
#include "lscreennode.h"
#include "ltexteffectnode.h"

#include <QFile>
#include <QJsonValue>
#include <QPointer>
#include <QRegularExpression>
#include <QSet>
#include <QSignalSpy>
#include <QtTest>

#include <functional>
#include <iterator>
#include <memory>

using LUM_EditInterface::LTableProperties;

namespace {

/** One row of the table of attributes, callable on a node of its class. */
struct Accessor
{
    std::function<LNode *()> make;
    std::function<QVariant(LNode *)> get;
    std::function<void(LNode *, const QVariant &)> set;
    QVariant fallback;
};

const char *s_setters[] = {
#define NODE_ATTRIBUTE(Class, Type, Getter, Setter, Key, Default) #Setter,
#include "nodeattributes.def"
#undef NODE_ATTRIBUTE
};

const char *s_keys[] = {
#define NODE_ATTRIBUTE(Class, Type, Getter, Setter, Key, Default) Key,
#include "nodeattributes.def"
#undef NODE_ATTRIBUTE
};

/** Another value than @p value, of the same type. */
QVariant other(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::Bool:
        return !value.toBool();
    case QMetaType::Int:
        return value.toInt() + 7;
    default:
        return QVariant(value.toString() + QStringLiteral(" 屏 <&>"));
    }
}

} // namespace

Q_DECLARE_METATYPE(Accessor)

class TestAttributes : public QObject
{
    Q_OBJECT

private slots:
    void accessor_data();
    void accessor();
    void keysAreUnique();
    void everySetterOfTheHeadersIsDefined();
    void newItem();
    void conversion_data();
    void conversion();
    void changesAreRealChanges_data();
    void changesAreRealChanges();
    void attributesSetTogetherAreAllInPlace();
    void listenerMayDeleteTheNode();
    void files();
    void tableRecordIsOneWithTheFlags();
};

void TestAttributes::accessor_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<Accessor>("accessor");

#define NODE_ATTRIBUTE(Class, Type, Getter, Setter, Key, Default)                                  \
    QTest::newRow(#Class "::" #Setter)                                                             \
        << QString(Key)                                                                            \
        << Accessor{[] { return new Class; },                                                      \
                    [](LNode *node) { return QVariant(static_cast<Class *>(node)->Getter()); },    \
                    [](LNode *node, const QVariant &value) {                                       \
                        static_cast<Class *>(node)->Setter(value.value<Type>());                   \
                    },                                                                             \
                    QVariant(static_cast<Type>(Default))};
#include "nodeattributes.def"
#undef NODE_ATTRIBUTE
}

void TestAttributes::accessor()
{
    QFETCH(QString, key);
    QFETCH(Accessor, accessor);
    const std::unique_ptr<LNode> node(accessor.make());
    const QVariant value = other(accessor.fallback);
    QSignalSpy changes(node.get(), &LData::AttributeChanged);

    QVERIFY(!node->HasAttribute(key));
    QCOMPARE(accessor.get(node.get()), accessor.fallback);

    accessor.set(node.get(), value);
    accessor.set(node.get(), value);
    QCOMPARE(accessor.get(node.get()), value);
    QCOMPARE(node->Attribute(key), value);
    QCOMPARE(node->AttributeKeys(), QStringList{key});
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.first().first().toString(), key);

    const std::unique_ptr<LNode> loaded(accessor.make());
    loaded->SetAttribute(key, QJsonValue::fromVariant(node->Attribute(key)).toVariant());
    QCOMPARE(accessor.get(loaded.get()), value);

    const QVariant foreign = QVariantList{1, 2};
    loaded->SetAttribute(key, foreign);
    QCOMPARE(accessor.get(loaded.get()), accessor.fallback);
    QCOMPARE(loaded->Attribute(key), foreign);

    node->RemoveAttribute(key);
    QCOMPARE(accessor.get(node.get()), accessor.fallback);
}

void TestAttributes::keysAreUnique()
{
    // "Name", the size and the table's record are kept beside those of the table of attributes.
    QSet<QString> known{"Name", "Width", "Height", "TableProperties"};
    for (const char *key : s_keys) {
        QVERIFY2(!known.contains(key), key);
        known.insert(key);
    }
}

void TestAttributes::everySetterOfTheHeadersIsDefined()
{
    QSet<QString> defined{"SetName", "SetSize", "SetTableProperties", "SetPageCount",
                          "SetCurrentPage"};
    for (const char *setter : s_setters) {
        defined.insert(QString::fromLatin1(setter));
    }
    const QRegularExpression declaration("\\bvoid (Set\\w+)\\(");
    for (const char *header : {"leffectnode.h", "ltexteffectnode.h", "lcontrollernode.h"}) {
        QFile file(QStringLiteral(LCTRLSEX_SOURCE_DIR "/host/") + header);
        QVERIFY(file.open(QIODevice::ReadOnly));
        auto matches = declaration.globalMatch(QString::fromUtf8(file.readAll()));
        QVERIFY(matches.hasNext());
        while (matches.hasNext()) {
            const QString setter = matches.next().captured(1);
            QVERIFY2(defined.contains(setter), qPrintable(setter));
        }
    }
}

void TestAttributes::newItem()
{
    LTextEffectNode node;
    QVERIFY(!node.HasAttribute("Html"));
    QVERIFY(node.AttributeKeys().isEmpty());
    QCOMPARE(node.GetSingleMode(), 0);
    QCOMPARE(node.GetEditBgColor(), 0);
    QCOMPARE(node.GetFontSize(), 16);
    QCOMPARE(node.GetFontSpace(), 0);
    QCOMPARE(node.GetContentAlign(), 0x80);
    QCOMPARE(node.GetContentHAlign(), 1);
    QCOMPARE(node.GetHoldTime(), 50);
    QCOMPARE(node.GetTableProperties(), LTableProperties());
    QCOMPARE(node.Size(), QSize());

    // An empty text is a text: the editor tells a new item by the missing attribute.
    node.SetHtmlText(QString());
    QVERIFY(node.HasAttribute("Html"));
}

void TestAttributes::conversion_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<int>("asNumber");
    QTest::addColumn<bool>("asFlag");
    // Fallbacks: font size 16, header true.
    QTest::newRow("double") << QVariant(24.0) << 24 << true;
    QTest::newRow("long") << QVariant(24LL) << 24 << true;
    QTest::newRow("fraction") << QVariant(24.5) << 16 << true;
    QTest::newRow("beyond int") << QVariant(3e9) << 16 << true;
    QTest::newRow("lowest int") << QVariant(-2147483648.0) << int(-2147483647 - 1) << true;
    QTest::newRow("infinite") << QVariant(qInf()) << 16 << true;
    QTest::newRow("not a number") << QVariant(qQNaN()) << 16 << true;
    QTest::newRow("text of digits") << QVariant("24") << 16 << true;
    QTest::newRow("false") << QVariant(false) << 0 << false;
    QTest::newRow("zero") << QVariant(0.0) << 0 << false;
    QTest::newRow("two is no flag") << QVariant(2) << 2 << true;
    QTest::newRow("text of a flag") << QVariant("false") << 16 << true;
    QTest::newRow("null") << QVariant::fromValue(nullptr) << 16 << true;
}

void TestAttributes::conversion()
{
    QFETCH(QVariant, stored);
    LTextEffectNode node;
    node.SetAttribute("FontSize", stored);
    node.SetAttribute("TableHeader", stored);
    QTEST(node.GetFontSize(), "asNumber");
    QTEST(node.GetTableHeader(), "asFlag");
}

void TestAttributes::changesAreRealChanges_data()
{
    QTest::addColumn<QVariant>("before");
    QTest::addColumn<QVariant>("after");
    QTest::addColumn<int>("signalCount");
    QTest::newRow("equal text") << QVariant("a") << QVariant("a") << 0;
    QTest::newRow("same number, other type") << QVariant(16.0) << QVariant(16) << 0;
    QTest::newRow("text of a number") << QVariant("16") << QVariant(16) << 1;
    QTest::newRow("flag and number") << QVariant(true) << QVariant(1) << 1;
    QTest::newRow("first empty text") << QVariant() << QVariant("") << 1;
    QTest::newRow("removed") << QVariant("a") << QVariant() << 1;
    QTest::newRow("removed, never there") << QVariant() << QVariant() << 0;
}

void TestAttributes::changesAreRealChanges()
{
    QFETCH(QVariant, before);
    QFETCH(QVariant, after);
    LNode node;
    node.SetAttribute("key", before);
    QSignalSpy changes(&node, &LData::AttributeChanged);
    node.SetAttribute("key", after);
    node.SetAttribute(QString(), after);
    QTEST(changes.count(), "signalCount");
    QCOMPARE(node.Attribute("key").userType(),
             changes.isEmpty() ? before.userType() : after.userType());
}

void TestAttributes::attributesSetTogetherAreAllInPlace()
{
    LNode node;
    QStringList seen;
    connect(&node, &LData::AttributeChanged,
            [&](const QString &key) { seen += key + node.AttributeKeys().join(""); });
    node.SetAttributes({{"b", 1}, {"a", 2}});
    QCOMPARE(seen, QStringList({"aab", "bab"}));
}

void TestAttributes::listenerMayDeleteTheNode()
{
    const auto deletesOnChange = [](LNode *node) {
        connect(node, &LData::AttributeChanged, [node] { delete node; });
        return QPointer<LNode>(node);
    };
    auto *const text = new LTextEffectNode;
    const QPointer<LNode> first = deletesOnChange(text);
    text->SetTableProperties({3, 4});
    QVERIFY(!first);

    auto *const frame = new LFrameNode;
    const QPointer<LNode> second(frame);
    connect(frame, &LFrameNode::FrameChanged, [frame] { delete frame; });
    frame->SetAttributes({{"FrameEnable", true}, {"X", 7}});
    QVERIFY(!second);
}

void TestAttributes::files()
{
    LTextEffectNode node;
    QSignalSpy changes(&node, &LData::FilePathChanged);
    QSignalSpy attributes(&node, &LData::AttributeChanged);
    QVERIFY(node.GetFilePath("DynamicData").isEmpty());
    node.SetFilePath("DynamicData", {"1.png", "2.png"});
    node.SetFilePath("DynamicData", {"1.png", "2.png"});
    node.SetFilePath("Other", {});
    QCOMPARE(node.GetFilePath("DynamicData"), QStringList({"1.png", "2.png"}));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(attributes.count(), 0);
    QVERIFY(node.AttributeKeys().isEmpty());
}

void TestAttributes::tableRecordIsOneWithTheFlags()
{
    LTextEffectNode node;
    const LTableProperties record{5, 4, 0x0000ff, 60, 2, 0xff000080u, 3, 2, 1, false, true, true};
    node.SetTableProperties(record);
    QCOMPARE(node.GetTableProperties(), record);
    QCOMPARE(node.GetTableType(), 2);
    QVERIFY(!node.GetTableHeader());

    node.SetTableType(0);
    node.SetTableFillArea(false);
    const LTableProperties changed = node.GetTableProperties();
    QCOMPARE(changed.type, 0);
    QVERIFY(!changed.fillArea);
    QCOMPARE(changed.columns, 4);

    LTextEffectNode loaded;
    for (const QString &key : node.AttributeKeys()) {
        loaded.SetAttribute(key, QJsonValue::fromVariant(node.Attribute(key)).toVariant());
    }
    QCOMPARE(loaded.GetTableProperties(), changed);

    loaded.SetAttribute("TableProperties", QVariantMap{{"rows", "many"}, {"later", 1}});
    QCOMPARE(loaded.GetTableProperties().rows, 2);
    loaded.SetTableProperties(record);
    QCOMPARE(loaded.Attribute("TableProperties").toMap().value("later").toInt(), 1);
}

QTEST_MAIN(TestAttributes)
#include "tst_attributes.moc"
