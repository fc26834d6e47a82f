#include "datasourceconfigmanager.h"
#include "hostcalls.h"
#include "inodeclient.h"
#include "ltranslation.h"
#include "modalanswerer.h"
#include "operations.h"
#include "pluginhost.h"

#include <QColorDialog>
#include <QTest>

/**
 * A host may delete or rebind what the plug-in works on in any call that the plug-in makes. Each
 * operation is repeated with the stroke in its first call, its second, and so on.
 */
class TestLifecycle : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void callsLandHere();
    void faultsAreSeen();
    void strokes_data();
    void strokes();
    void cleanupTestCase();

private:
    enum Executioner { DeleteItem, DeleteFrame, DeleteScreen, Rebind, Finish };

    [[nodiscard]] int firstPlace(Executioner executioner, int operation) const;
    [[nodiscard]] int step(Executioner executioner, int place) const;
    int strokeAt(const Operation &operation, Executioner executioner, int place);
    void check(const QVariantMap &untouched, Stage *stage);
    void complain(const QString &what) { m_complaints.append(m_point + ": " + what); }

    QWidget m_window;
    QVector<Operation> m_operations;
    QString m_point;
    QStringList m_complaints;
    int m_strokes = 0;
    bool m_isThorough = false;
};

static void answerDialog(QDialog *dialog)
{
    if (auto *colours = qobject_cast<QColorDialog *>(dialog)) {
        colours->setCurrentColor(Qt::green);
    }
    dialog->accept();
}

void TestLifecycle::initTestCase()
{
    m_isThorough = qEnvironmentVariableIsSet("LCTRLSEX_THOROUGH");
    quietenPlatform();
    setUpSources();
    // Once before the plug-in's own connections and once behind them.
    const auto listen = [this] {
        auto *const sources = DataSourceConfigManager::instance();
        connect(LTranslation::instance(), &LTranslation::LanguageChanged, this,
                &HostCalls::announced);
        connect(sources, &DataSourceConfigManager::ConfigChanged, this, &HostCalls::announced);
        connect(sources, &DataSourceConfigManager::SourceChanged, this, &HostCalls::announced);
    };
    listen();
    QVERIFY(loadedClient() != nullptr);
    listen();
    m_window.resize(600, 300);
    loadedClient()->GetClient()->setParent(&m_window);
    loadedClient()->GetClient()->resize(m_window.size());
    loadedClient()->GetClient()->show();
    m_window.show();

    Programme programme(richDocument());
    Programme other({});
    setUpBinding(programme.item);
    Stage stage(&programme, &other);
    stage.open(programme.item);
    m_operations = allOperations(stage);
    stage.client->Finish();
    QVERIFY(m_operations.size() >= 60);
}

void TestLifecycle::callsLandHere()
{
    Programme programme(richDocument());
    HostCalls::watch(0, [] {});
    loadedClient()->Init(programme.item);
    const int bound = HostCalls::stop();
    loadedClient()->Finish();
    QVERIFY2(bound > 40, qPrintable(QString::number(bound)));
    QCOMPARE(HostCalls::takeFaults(), QStringList());
}

/** What looks like a call of the plug-in: the toolkit calls the node here. */
void TestLifecycle::faultsAreSeen()
{
    Programme programme(richDocument());
    LTextEffectNode *const node = programme.item;
    HostCalls::removeLive(node);
    QVERIFY(HostCalls::mayCall({"own", reinterpret_cast<void *>(&answerDialog)}, node));
    QVERIFY(!HostCalls::mayCall({"theirs", reinterpret_cast<void *>(&qVersion)}, node));
    QCOMPARE(HostCalls::takeFaults().size(), 1);
}

void TestLifecycle::strokes_data()
{
    QTest::addColumn<int>("index");
    for (int index = 0; index < m_operations.size(); ++index) {
        QTest::newRow(qPrintable(m_operations.at(index).name)) << index;
    }
}

void TestLifecycle::strokes()
{
    QFETCH(int, index);
    const Operation &operation = m_operations.at(index);
    m_complaints.clear();
    for (const Executioner executioner : {DeleteItem, DeleteFrame, DeleteScreen, Rebind, Finish}) {
        QCoreApplication::processEvents(); // what piles up would slow down all that follows
        int place = firstPlace(executioner, index);
        while (strokeAt(operation, executioner, place) >= place) {
            place += step(executioner, place);
            ++m_strokes;
        }
    }
    QVERIFY2(m_complaints.isEmpty(), qPrintable(m_complaints.mid(0, 12).join('\n')));
}

/**
 * The item goes with its frame and its screen, and Finish() binds null instead of another item: in
 * a quick run these strike at every fifth place, beginning elsewhere in each operation.
 */
static constexpr int s_stride = 5;

int TestLifecycle::firstPlace(Executioner executioner, int operation) const
{
    const bool isKin = executioner != DeleteItem && executioner != Rebind;
    return isKin && !m_isThorough ? 1 + operation % s_stride : 1;
}

int TestLifecycle::step(Executioner executioner, int place) const
{
    constexpr int allTried = 60;
    constexpr int longStep = 5;
    if (m_isThorough) {
        return 1;
    }
    if (executioner != DeleteItem && executioner != Rebind) {
        return s_stride;
    }
    return place < allTried ? 1 : longStep;
}

/** Gives the number of calls that the operation made. */
int TestLifecycle::strokeAt(const Operation &operation, Executioner executioner, int place)
{
    static const char *const names[] = {"delete item", "delete frame", "delete screen", "rebind",
                                        "finish"};
    m_point = QStringLiteral("%1 at %2").arg(names[executioner]).arg(place);
    setUpSources();
    Programme programme(richDocument());
    Programme other("<p>" + foreignWords() + "</p>");
    setUpBinding(programme.item);
    Stage stage(&programme, &other);
    stage.prepare(operation.start);
    const QVariantMap untouched = other.attributes();
    HostCalls::watch(place, [&] {
        switch (executioner) {
        case DeleteItem:
            delete programme.item;
            break;
        case DeleteFrame:
            delete programme.frame;
            break;
        case DeleteScreen:
            delete programme.screen;
            break;
        case Rebind:
            stage.client->Init(other.item);
            break;
        case Finish:
            stage.client->Finish();
            break;
        }
    });
    {
        const ModalAnswerer answerer(answerDialog);
        operation.run(stage);
        Stage::drain();
    }
    const int calls = HostCalls::stop();
    if (HostCalls::struckAt() != nullptr) {
        m_point += QStringLiteral(" (%1)").arg(HostCalls::struckAt());
    }
    check(untouched, &stage);
    return calls;
}

void TestLifecycle::check(const QVariantMap &untouched, Stage *stage)
{
    if (stage->other->attributes() != untouched) {
        complain("the other item was written");
    }
    if (stage->item->holds(foreignWords())) {
        complain("the item has the other one's text");
    }
    const QVariantMap before = stage->item->attributes();
    if (!stage->otherTakesText()) {
        complain("the client does not take text any more");
    }
    if (stage->item->attributes() != before) {
        complain("the item was written after it was let go of");
    }
    stage->client->Finish();
    Stage::drain();
    for (const QString &fault : HostCalls::takeFaults()) {
        complain(fault);
    }
}

void TestLifecycle::cleanupTestCase()
{
    qInfo("%d operations, %d strokes", int(m_operations.size()), m_strokes);
    QVERIFY(m_strokes >= 2000);
}

QTEST_MAIN(TestLifecycle)
#include "tst_lifecycle.moc"
