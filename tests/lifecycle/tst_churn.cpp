#include "datasourceconfigmanager.h"
#include "inodeclient.h"
#include "lframenode.h"
#include "lscreennode.h"
#include "ltexteffectnode.h"
#include "ltranslation.h"
#include "pluginhost.h"
#include "scenethumbnailcapture.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QMetaMethod>
#include <QProcess>
#include <QTest>

#include <memory>
#include <vector>

/** A host that binds and lets go for days, and one that ends without letting go. */
class TestChurn : public QObject
{
    Q_OBJECT

private slots:
    void bindingLeavesNothingBehind();
    void endingWithoutFinishIsQuiet_data();
    void endingWithoutFinishIsQuiet();
};

namespace {

constexpr int s_nodes = 10;
constexpr int s_warmUp = 500;

struct Item
{
    Item()
    {
        screen.AppendChild(frame);
        frame->AppendChild(node);
        node->SetSize(QSize(128, 48));
        const QString html = "<p>some <b>words</b></p><table><tr><td>1</td></tr></table>";
        node->SetHtmlText(html);
        node->SetRawHtmlText(QString::fromLatin1(html.toUtf8().toBase64()));
    }

    LScreenNode screen;
    LFrameNode *frame = new LFrameNode;
    LTextEffectNode *node = new LTextEffectNode;
};

using Items = std::vector<std::unique_ptr<Item>>;

void cycle(Lum::INodeClient *client, const Item &item, int number)
{
    client->Init(number % 2 == 0 ? static_cast<LNode *>(item.node) : item.frame);
    client->GetEditeWidget(item.node);
    client->GetAttributesWidget(item.node);
    client->Finish();
    QCoreApplication::processEvents();
}

/** Each signal of an object with the number of slots that are connected to it. */
QStringList receivers(const QObject *object)
{
    QStringList counts;
    const QMetaObject *const meta = object->metaObject();
    for (int index = 0; index < meta->methodCount(); ++index) {
        const QMetaMethod method = meta->method(index);
        if (method.methodType() == QMetaMethod::Signal) {
            counts.append(QString::fromLatin1(method.methodSignature()) + ' ' +
                          QString::number(listeners(object, method.methodSignature())));
        }
    }
    return counts;
}

QStringList allReceivers(const Items &items)
{
    QStringList counts = receivers(LTranslation::instance());
    counts += receivers(DataSourceConfigManager::instance());
    counts += receivers(SceneThumbnailCapture::instance());
    for (const auto &item : items) {
        counts += receivers(item->node) + receivers(item->frame) + receivers(&item->screen);
    }
    return counts;
}

int openFiles()
{
    return QDir("/proc/self/fd").entryList(QDir::AllEntries | QDir::System).size();
}

/** Memory in use, in kilobytes. */
qint64 residentMemory()
{
    QFile status("/proc/self/status");
    const QByteArrayList lines =
        status.open(QIODevice::ReadOnly) ? status.readAll().split('\n') : QByteArrayList();
    for (const QByteArray &line : lines) {
        if (line.startsWith("VmRSS:")) {
            return line.mid(6).chopped(2).trimmed().toLongLong();
        }
    }
    return 0;
}

} // namespace

void TestChurn::bindingLeavesNothingBehind()
{
    const int cycles = qEnvironmentVariableIsSet("LCTRLSEX_THOROUGH") ? 10000 : 2000;
    Lum::INodeClient *const client = loadedClient();
    QVERIFY(client != nullptr);
    QWidget window;
    client->GetClient()->setParent(&window);
    client->GetClient()->show();
    Items items;
    for (int number = 0; number < s_nodes; ++number) {
        items.push_back(std::make_unique<Item>());
    }
    const QStringList unbound = allReceivers(items);
    int files = 0;
    qint64 memory = 0;
    QStringList counts;
    for (int number = 0; number < cycles; ++number) {
        if (number == s_warmUp) {
            counts = allReceivers(items);
            files = openFiles();
            memory = residentMemory();
        }
        cycle(client, *items.at(number % s_nodes), number);
    }
    QCOMPARE(counts, unbound);
    QCOMPARE(allReceivers(items), counts);
    QCOMPARE(openFiles(), files);
    QVERIFY(memory > 0);
    const qint64 growth = residentMemory() - memory;
    qInfo("%d cycles, %lld kB more behind the first %d", cycles, growth, s_warmUp);
#ifndef __SANITIZE_ADDRESS__
    QVERIFY2(growth <= 1024, qPrintable(QString::number(growth)));
#endif
}

void TestChurn::endingWithoutFinishIsQuiet_data()
{
    QTest::addColumn<QString>("way");

    for (const char *way : {"return", "quit", "exit", "nodes-first", "window-first", "unsaved",
                            "attributes-elsewhere", "never-bound", "from-a-static"}) {
        QTest::newRow(way) << way;
    }
}

void TestChurn::endingWithoutFinishIsQuiet()
{
    QFETCH(QString, way);
    constexpr int starts = 6;
    for (int start = 0; start < starts; ++start) {
        QProcess process;
        process.start(ENDINGHOST, {way});
        QVERIFY(process.waitForFinished(60000));
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.readAllStandardError(), QByteArray());
        QCOMPARE(process.exitCode(), 0);
        QCOMPARE(process.readAllStandardOutput(), QByteArray("bound\n"));
    }
}

QTEST_MAIN(TestChurn)
#include "tst_churn.moc"
