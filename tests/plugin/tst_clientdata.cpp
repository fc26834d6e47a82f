#include "datasourceconfigmanager.h"
#include "inodeclient.h"
#include "lframenode.h"
#include "ltexteffectnode.h"
#include "pluginhost.h"

#include <QtTest>
#include <QtWidgets>

namespace {

Lum::INodeClient *client()
{
    return loadedClient();
}

DataSourceConfigManager *manager()
{
    return DataSourceConfigManager::instance();
}

QStringList chooserTexts()
{
    QStringList result;
    for (int i = 0; i < clientChild<QComboBox>("FieldCbx")->count(); ++i) {
        result << clientChild<QComboBox>("FieldCbx")->itemText(i);
    }
    return result;
}

/** What the editor's menu of conditional styles, or of calculations, offers. */
QStringList offered(const QString &firstEntry)
{
    QStringList result;
    const auto menus = client()->findChildren<QMenu *>();
    for (const QMenu *menu : menus) {
        const QList<QAction *> actions = menu->actions();
        if (!actions.isEmpty() && actions.first()->text() == firstEntry) {
            for (const QAction *action : actions) {
                result << action->text();
            }
        }
    }
    return result;
}

} // namespace

class TestClientData : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void fieldsAreRegistered();
    void unchangedFieldsCostNothing();
    void announcementsDoNotRecur();
    void rebindingDuringAnnouncement();
    void chooserWritesByTableType_data();
    void chooserWritesByTableType();
    void chooserFollowsTheNode();
    void unregisteredFieldStays();
    void configurationKeepsBindings();
    void nodeDeletedWhileRegistered();
    void recordsAreStored();
    void unreadableRecordsStay();

private:
    QScopedPointer<LTextEffectNode> m_text;
};

void TestClientData::init()
{
    DataSourceEntry weather;
    weather.name = "weather";
    DataSourceEntry clock;
    clock.name = "clock";
    clock.type = DataSourceEntry::System;
    DataSourceConfig config;
    config.sources = {weather, clock};
    manager()->SetConfig(config);
    const DynamicDataSource weatherData{
        "weather", {{"wind", "3", true}, {"rain", "0", false}, {"air", "9", true}}};
    const DynamicDataSource clockData{"clock", {{"time", "12:00", false}}};
    manager()->SetDynamicData({weatherData, clockData});
    m_text.reset(new LTextEffectNode);
    m_text->SetHtmlText("<p>old</p>");
    const QByteArray table = "<table border=1><tr><td>a</td></tr></table>";
    m_text->SetRawHtmlText(table.toBase64());
    client()->Init(m_text.data());
}

void TestClientData::cleanup()
{
    client()->Finish();
}

void TestClientData::fieldsAreRegistered()
{
    const QMap<QString, QString> fields{
        {"clock:time", "12:00"}, {"weather:air", "9"}, {"weather:wind", "3"}};
    QCOMPARE(m_text->FieldNameValues(), fields);
    QCOMPARE(chooserTexts(), QStringList({"", "clock:time", "weather:air", "weather:wind"}));
    QCOMPARE(clientChild<QComboBox>("FieldCbx")->currentIndex(), 0);
    QVERIFY(!clientChild<QComboBox>("FieldCbx")->isHidden());

    manager()->SetDynamicData({{"weather", {{"wind", "3", true}}}});
    QCOMPARE(m_text->FieldNameValues(), (QMap<QString, QString>{{"weather:wind", "3"}}));
    QCOMPARE(chooserTexts(), QStringList({"", "weather:wind"}));

    LTextEffectNode other;
    client()->GetEditeWidget(&other);
    QCOMPARE(other.FieldNameValues().size(), 1);
}

void TestClientData::unchangedFieldsCostNothing()
{
    QSignalSpy fields(m_text.data(), &LTextEffectNode::FieldNameValueChanged);
    QSignalSpy attributes(m_text.data(), &LData::AttributeChanged);
    QSignalSpy rows(clientChild<QComboBox>("FieldCbx")->model(), &QAbstractItemModel::rowsInserted);
    QSignalSpy announced(manager(), &DataSourceConfigManager::SourceChanged);
    emit manager()->ConfigChanged();
    QCOMPARE(fields.count() + attributes.count() + rows.count(), 0);
    QCOMPARE(announced.count(), 1);
}

void TestClientData::announcementsDoNotRecur()
{
    int announced = 0;
    const auto connection = connect(manager(), &DataSourceConfigManager::SourceChanged, this, [&] {
        if (++announced < 1000) {
            emit manager()->ConfigChanged();
        }
    });
    emit manager()->ConfigChanged();
    disconnect(connection);
    QCOMPARE(announced, 1);
}

void TestClientData::rebindingDuringAnnouncement()
{
    LTextEffectNode other;
    other.SetHtmlText("<p>other</p>");
    const auto connection = connect(manager(), &DataSourceConfigManager::SourceChanged, this,
                                    [&other] { client()->Init(&other); });
    emit manager()->ConfigChanged();
    disconnect(connection);
    QCOMPARE(other.FieldNameValues().size(), 3);
    client()->Finish();
}

void TestClientData::chooserWritesByTableType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("key");
    QTest::newRow("fixed form") << 0 << "TableFixedBindKey";
    QTest::newRow("dynamic rows") << 1 << "TableRowBindKey";
    QTest::newRow("dynamic columns") << 2 << "TableColBindKey";
    QTest::newRow("adaptive") << 3 << "TableAdaptRowsColsBindKey";
}

void TestClientData::chooserWritesByTableType()
{
    QFETCH(int, type);
    QFETCH(QString, key);
    m_text->SetTableType(type);
    QStringList written;
    connect(m_text.data(), &LData::AttributeChanged, this, [&](const QString &changed) {
        if (changed.endsWith("BindKey")) {
            written << changed;
        }
    });
    auto *const chooser = clientChild<QComboBox>("FieldCbx");
    chooser->setCurrentIndex(chooser->findText("weather:air"));
    QCOMPARE(written, QStringList({"TableBindKey", key}));
    QCOMPARE(m_text->GetTableBindKey(), QString("weather:air"));
    QCOMPARE(m_text->Attribute(key).toString(), QString("weather:air"));
    QVERIFY(QMetaObject::invokeMethod(client(), "OnTableBindFieldChanged",
                                      Q_ARG(QString, "weather:air")));
    QCOMPARE(written.size(), 2);
    chooser->setCurrentIndex(0);
    QCOMPARE(m_text->GetTableBindKey(), QString());
    QCOMPARE(written.size(), 4);
}

void TestClientData::chooserFollowsTheNode()
{
    m_text->SetTableFixedBindKey("weather:wind");
    m_text->SetTableRowBindKey("clock:time");
    auto *const editor = clientChild<QWidget>("wgtTextEditor");
    QVERIFY(QMetaObject::invokeMethod(editor, "TableBindFieldChanged"));
    QCOMPARE(clientChild<QComboBox>("FieldCbx")->currentText(), QString("weather:wind"));
    m_text->SetTableType(1);
    QVERIFY(QMetaObject::invokeMethod(editor, "DocumentHasTable", Q_ARG(bool, true)));
    QCOMPARE(clientChild<QComboBox>("FieldCbx")->currentText(), QString("clock:time"));
    QCOMPARE(m_text->GetTableBindKey(), QString());
    QVERIFY(QMetaObject::invokeMethod(editor, "DocumentHasTable", Q_ARG(bool, false)));
    QVERIFY(clientChild<QWidget>("FieldCbx")->isHidden());
    QVERIFY(clientChild<QWidget>("FieldLab")->isHidden());
}

void TestClientData::unregisteredFieldStays()
{
    m_text->SetTableFixedBindKey("tides:high");
    emit manager()->ConfigChanged();
    QCOMPARE(clientChild<QComboBox>("FieldCbx")->currentText(), QString("tides:high"));
    QCOMPARE(m_text->GetTableFixedBindKey(), QString("tides:high"));
}

void TestClientData::configurationKeepsBindings()
{
    const QStringList keys{"TableBindKey", "TableFixedBindKey", "TableRowBindKey",
                           "TableColBindKey", "TableAdaptRowsColsBindKey"};
    for (const QString &key : keys) {
        m_text->SetAttribute(key, "source:" + key);
    }
    for (int i = 0; i < 200; ++i) {
        manager()->SetDynamicData({{"weather", {{QString::number(i), "3", i % 2 == 0}}}});
        m_text->SetTableType(i % 6 - 1);
        emit manager()->ConfigChanged();
    }
    for (const QString &key : keys) {
        QCOMPARE(m_text->Attribute(key).toString(), "source:" + key);
    }
}

void TestClientData::nodeDeletedWhileRegistered()
{
    auto *const doomed = new LTextEffectNode;
    connect(doomed, &LTextEffectNode::FieldNameValueChanged, this, [doomed] { delete doomed; });
    client()->Init(doomed);
    QVERIFY(!clientChild<QWidget>("TextAttributesContentBg")->isEnabled());
}

void TestClientData::recordsAreStored()
{
    DynamicData edited;
    edited.items = {{"{1}", "Storm", {{0, {">9"}, {}, "weather:wind"}, {0, {">5"}, {}, ""}}},
                    {"{2}", "Calm", {{0, {"<1"}, {}, ""}}}};
    QSignalSpy changes(m_text.data(), &LData::AttributeChanged);
    const auto accept = [this](const DynamicData &result) {
        return QMetaObject::invokeMethod(client(), "AcceptConditionalStyles",
                                         Q_ARG(DynamicData, result));
    };
    QVERIFY(accept(edited));
    QCOMPARE(changes.count(), 1);
    QCOMPARE(offered("Calm"), QStringList({"Calm", "Storm"}));
    const QJsonArray stored = QJsonDocument::fromJson(m_text->GetSpanConditions().toUtf8()).array();
    QCOMPARE(stored.at(0)["name"].toString(), QString("Calm"));
    const QJsonArray storm = stored.at(1)["conditions"].toArray();
    QCOMPARE(storm.at(0)["key"].toString() + storm.at(1)["key"].toString(),
             QString("weather:wind"));
    QVERIFY(accept({}));
    QCOMPARE(m_text->GetSpanConditions(), QString("[\n]\n"));
    QCOMPARE(offered("No conditional style is defined").size(), 1);

    CalculationDynamicData operations;
    operations.conditions = {{"1", "sum", "0", {}}, {"2", "mean", "7", {}}, {"3", "sum", "5", {}}};
    QVERIFY(QMetaObject::invokeMethod(client(), "AcceptOperations",
                                      Q_ARG(CalculationDynamicData, operations)));
    QCOMPARE(offered("mean"), QStringList({"mean", "sum"}));
    QCOMPARE(QJsonDocument::fromJson(m_text->GetCalculation().toUtf8()).array().size(), 3);
}

void TestClientData::unreadableRecordsStay()
{
    const QString broken = R"([{"id":"1","name":"Storm"},{"id":)";
    m_text->SetSpanConditions(broken);
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression("^Conditional styles of a text item, byte 33"));
    emit manager()->ConfigChanged();
    emit manager()->ConfigChanged();
    QCOMPARE(offered("No conditional style is defined").size(), 1);
    QCOMPARE(m_text->GetSpanConditions(), broken);
    m_text->SetSpanConditions(R"([{"id":"1","name":"Storm"}])");
    emit manager()->ConfigChanged();
    QCOMPARE(offered("Storm").size(), 1);
}

QTEST_MAIN(TestClientData)
#include "tst_clientdata.moc"
