#include "datasourceconfigmanager.h"
#include "inodeclient.h"
#include "lappconfig.h"
#include "ltexteffectnode.h"
#include "modalanswerer.h"
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

QPushButton *okButton(const QDialog *dialog)
{
    return dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
}

QLineEdit *cellEdit(const QDialog *dialog, const QModelIndex &cell, int index = 0)
{
    QWidget *const widget = dialog->findChild<QTreeWidget *>()->indexWidget(cell);
    return widget == nullptr ? nullptr : widget->findChildren<QLineEdit *>().value(index);
}

/** Clicks a button of the panel and does @p work in the dialog that opens; gives its class. */
QString open(const char *button, const std::function<void(QDialog *)> &work)
{
    QString opened;
    ModalAnswerer answerer([&](QDialog *dialog) {
        opened = dialog->metaObject()->className();
        work(dialog);
    });
    clientChild<QPushButton>(button)->click();
    return opened;
}

QJsonArray array(const QString &json)
{
    return QJsonDocument::fromJson(json.toUtf8()).array();
}

const QString oneStyle = R"([
    {
        "conditions": [
            {
                "expression": [
                    ">9"
                ],
                "fontStyle": {
                    "bgColor": 0,
                    "bold": false,
                    "color": 255,
                    "fontName": "DejaVu Sans",
                    "fontSize": 16,
                    "italic": false,
                    "underline": false
                },
                "key": "weather:wind",
                "type": 0
            }
        ],
        "id": "storm id",
        "name": "Storm"
    }
]
)";
const QString oneCalculation = R"([
    {
        "defaultValue": "",
        "expressions": [
            {
                "expression": {
                    "args": [
                        "${weather:wind}",
                        "2"
                    ],
                    "func": "*"
                },
                "variableName": "var1"
            }
        ],
        "id": "twice id",
        "key": "twice"
    }
]
)";

} // namespace

/** Both settings dialogs as the panel opens them, with what the node, the editor and the host get.
 */
class TestSettingsDialogs : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void buttonsOpenTheDialogs();
    void acceptingStoresAndKeepsIds();
    void unchangedWritesNothing();
    void clipboardSurvivesCancelling();
    void sourcesChangeWhileOpen();
    void nodeGoesWhileOpen();
    void unreadableRecordsAreKept();

private:
    QScopedPointer<LTextEffectNode> m_text;
};

void TestSettingsDialogs::init()
{
    manager()->SetDynamicData({{"weather", {{"wind", "3", true}}}});
    manager()->SetConditionalStylingData({});
    manager()->SetOperationsData({});
    m_text.reset(new LTextEffectNode);
    m_text->SetSpanConditions(oneStyle);
    m_text->SetCalculation(oneCalculation);
    client()->Init(m_text.data());
}

void TestSettingsDialogs::cleanup()
{
    client()->Finish();
}

void TestSettingsDialogs::buttonsOpenTheDialogs()
{
    QString wind;
    const auto close = [](QDialog *dialog) {
        dialog->reject();
    };
    QCOMPARE(open("ConditionalStylesBtn", close), QString("LConditionalStyling"));
    QCOMPARE(open("setOperation",
                  [&wind](QDialog *dialog) {
                      const auto *tree = dialog->findChild<QTreeWidget *>();
                      const QModelIndex step =
                          tree->model()->index(0, 1, tree->model()->index(0, 0));
                      wind = qobject_cast<QLabel *>(tree->indexWidget(step))->text();
                      dialog->reject();
                  }),
             QString("LModbusParameterOperation"));
    QCOMPARE(wind, QString("6"));
    QCOMPARE(m_text->GetSpanConditions(), oneStyle);
}

void TestSettingsDialogs::acceptingStoresAndKeepsIds()
{
    open("ConditionalStylesBtn", [](QDialog *dialog) {
        auto *tree = dialog->findChild<QTreeWidget *>();
        cellEdit(dialog, tree->model()->index(0, 4))->setText("10");
        dialog->findChild<QPushButton *>()->click(); // one more
        okButton(dialog)->click();
    });
    QMap<QString, QJsonObject> stored;
    for (const QJsonValue &entry : array(m_text->GetSpanConditions())) {
        stored.insert(entry["name"].toString(), entry.toObject());
    }
    QCOMPARE(stored.size(), 2);
    QCOMPARE(stored["Storm"].value("id").toString(), QString("storm id"));
    QCOMPARE(stored["Storm"].value("conditions")[0]["expression"][0].toString(), QString(">10"));
    QVERIFY(!QUuid(stored["Configuration item"].value("id").toString()).isNull());

    open("setOperation", [](QDialog *dialog) {
        auto *tree = dialog->findChild<QTreeWidget *>();
        const QModelIndex step = tree->model()->index(0, 4, tree->model()->index(0, 0));
        cellEdit(dialog, step, 1)->setText("3");
        okButton(dialog)->click();
    });
    const QJsonObject calculation = array(m_text->GetCalculation()).first().toObject();
    QCOMPARE(calculation["id"].toString(), QString("twice id"));
    QCOMPARE(calculation.value("expressions")[0]["expression"]["args"][1].toString(), QString("3"));
}

void TestSettingsDialogs::unchangedWritesNothing()
{
    QSignalSpy changes(m_text.data(), &LData::AttributeChanged);
    const auto accept = [](QDialog *dialog) {
        okButton(dialog)->click();
    };
    open("ConditionalStylesBtn", accept);
    open("setOperation", accept);
    QCOMPARE(changes.count(), 0);
    // What the client writes itself is, to the byte, what it reads.
    QVERIFY(QMetaObject::invokeMethod(client(), "UpdateDialogs"));
    QCOMPARE(m_text->GetSpanConditions(), oneStyle);
    QCOMPARE(m_text->GetCalculation(), oneCalculation);
}

void TestSettingsDialogs::clipboardSurvivesCancelling()
{
    const auto copyAll = [](QDialog *dialog, const char *slot) {
        dialog->findChild<QTreeWidget *>()->selectAll();
        QVERIFY(QMetaObject::invokeMethod(dialog, slot));
        dialog->reject();
    };
    QSignalSpy announced(manager(), &DataSourceConfigManager::SourceChanged);
    open("ConditionalStylesBtn", [&](QDialog *dialog) { copyAll(dialog, "onCopyAllAction"); });
    QCOMPARE(manager()->GetConditionalStylingData().items.value(0).name, QString("Storm"));
    open("setOperation", [&](QDialog *dialog) { copyAll(dialog, "OnCopyAllAction"); });
    QCOMPARE(manager()->GetOperationsData().conditions.value(0).key, QString("twice"));
    QCOMPARE(announced.count(), 1);
    QCOMPARE(m_text->GetSpanConditions(), oneStyle);
}

void TestSettingsDialogs::sourcesChangeWhileOpen()
{
    QStringList offered;
    open("ConditionalStylesBtn", [&offered](QDialog *dialog) {
        manager()->SetDynamicData({{"weather", {{"rain", "1", true}}}});
        auto *tree = dialog->findChild<QTreeWidget *>();
        auto *box = qobject_cast<QComboBox *>(tree->indexWidget(tree->model()->index(0, 1)));
        for (int i = 0; i < box->count(); ++i) {
            offered << box->itemText(i);
        }
        okButton(dialog)->click();
    });
    QCOMPARE(offered, QStringList{"weather:rain"});
    QCOMPARE(m_text->GetSpanConditions(), oneStyle); // still bound to the field that went
}

void TestSettingsDialogs::nodeGoesWhileOpen()
{
    for (const char *button : {"ConditionalStylesBtn", "setOperation"}) {
        init();
        QPointer<QDialog> opened;
        open(button, [&](QDialog *dialog) {
            opened = dialog;
            dialog->findChild<QPushButton *>()->click();
            m_text.reset();
        });
        QVERIFY(opened.isNull());
    }
}

void TestSettingsDialogs::unreadableRecordsAreKept()
{
    const QString broken = R"([{"id":)";
    m_text->SetSpanConditions(broken);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^Conditional styles of a text item"));
    QStringList said;
    QScopedPointer<ModalAnswerer> answerer;
    ModalAnswerer box([&](QDialog *dialog) {
        said = qobject_cast<QMessageBox *>(dialog)->text().split('\n');
        answerer.reset(new ModalAnswerer([](QDialog *settings) {
            settings->findChild<QPushButton *>()->click();
            okButton(settings)->click();
        }));
        dialog->accept();
    });
    clientChild<QPushButton>("ConditionalStylesBtn")->click();
    QVERIFY(box.wasAsked());
    QCOMPARE(array(m_text->GetSpanConditions()).size(), 1);
    const QString path = said.last().mid(said.last().indexOf('/'));
    QVERIFY(path.startsWith(LAppConfig::AppDataDir()));
    QFile copy(path);
    QVERIFY2(copy.open(QIODevice::ReadOnly), qPrintable(path));
    QCOMPARE(QString::fromUtf8(copy.readAll()), broken);
}

QTEST_MAIN(TestSettingsDialogs)
#include "tst_settingsdialogs.moc"
