#include "documentstorage.h"
#include "itempages.h"
#include "itemrenderer.h"
#include "lframenode.h"
#include "livedata.h"
#include "lscreennode.h"
#include "ltexteffectnode.h"
#include "programmedocument.h"
#include "programmeitems.h"

#include <QProcess>
#include <QtTest>

#include <ctime>

using namespace workbench;

class TestItemPages : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void pagesAreThePlayers();
    void filesGoAtOnceAndComeBack();
    void filesAreBounded();
    void nodesComeAndGo();
    void folderIsTidied();

private:
    static LTextEffectNode *firstItem(const ProgrammeDocument &document)
    {
        return player::programmeItems(document.controller()).value(0).node;
    }
    static QStringList files(const LNode *node)
    {
        return node->GetFilePath(QStringLiteral("DynamicData"));
    }
    static void write(LTextEffectNode *item, int lines)
    {
        QString html;
        for (int i = 0; i < lines; ++i) {
            html += QStringLiteral("<p style=\"color:#ffffff\">line %1</p>").arg(i);
        }
        item->SetRawHtmlText(lctrlsex::encodeDocument(html));
    }
    std::unique_ptr<QTemporaryDir> m_data;
};

void TestItemPages::init()
{
    m_data = std::make_unique<QTemporaryDir>();
    qputenv("LCTRLSEX_DATA_DIR", QFile::encodeName(m_data->path()));
    qRegisterMetaType<LTextEffectNode *>();
}

void TestItemPages::pagesAreThePlayers()
{
    ProgrammeDocument document;
    QVERIFY(!document.open(QStringLiteral(LCTRLSEX_SOURCE_DIR "/tests/data/station.programme.json"))
                 .isSet());
    LiveData data(&document);
    ItemPages pages(&document, &data);
    for (const player::ProgrammeItem &item : player::programmeItems(document.controller())) {
        player::ItemRenderer played(item.node, item.place);
        QCOMPARE(pages.pageCount(item.node), played.pageCount());
        for (int i = 0; i < played.pageCount(); ++i) {
            QVERIFY2(pages.page(item.node, i) == played.finishedPage(i), qPrintable(item.place));
        }
        QVERIFY(pages.page(item.node, played.pageCount()).isNull());
        QVERIFY(pages.page(item.node, -1).isNull());
    }
    LTextEffectNode *const item = firstItem(document);
    QSignalSpy changed(&pages, &ItemPages::pagesChanged);
    const qint64 key = pages.page(item, 0).cacheKey();
    item->SetHoldTime(3);
    item->SetName(QStringLiteral("Another"));
    QCOMPARE(pages.page(item, 0).cacheKey(), key); // not made again
    const QImage before = pages.page(item, 0);
    item->SetTransBgColor(!item->GetTransBgColor());
    QVERIFY(pages.page(item, 0) != before);
    item->GetScreenNode()->SetSize(QSize(64, 32));
    item->GetFrameNode()->SetSize(QSize());
    item->SetSize(QSize());
    QCOMPARE(pages.page(item, 0).size(), QSize(64, 32)); // by way of what is above it
    QTRY_COMPARE(changed.size(), int(player::programmeItems(item->GetScreenNode()).size()));
    item->SetRawHtmlText(QStringLiteral("*"));
    QCOMPARE(pages.pageCount(item), 0);
    QVERIFY(pages.page(item, 0).isNull());
    QVERIFY(!pages.problems(item).isEmpty());
}

void TestItemPages::filesGoAtOnceAndComeBack()
{
    ProgrammeDocument document;
    LiveData data(&document);
    ItemPages pages(&document, &data);
    LTextEffectNode *const item = firstItem(document);
    write(item, 12);
    pages.watch(item);
    QSignalSpy played(item, &LTextEffectNode::PlayIndexChanged);
    QTRY_VERIFY(pages.pageCount(item) > 2 && files(item).size() == pages.pageCount(item));
    QCOMPARE(item->GetPageCount(), pages.pageCount(item));
    QVERIFY(!played.isEmpty());
    item->SetUseStroke(1);
    QVERIFY(files(item).isEmpty()); // at once, or an editor would show an old page
    QTest::qWait(150);
    item->SetUseHollow(1);
    QTest::qWait(150);
    QVERIFY(files(item).isEmpty()); // not before it has settled
    QTRY_COMPARE(files(item).size(), pages.pageCount(item));
    player::ItemRenderer renderer(item, QString());
    for (int i = 0; i < renderer.pageCount(); ++i) { // without stroke and hollow
        const QImage page = renderer.page(i);
        QVERIFY(QImage(files(item).at(i)).convertToFormat(page.format()) == page);
    }
    const QStringList old = files(item);
    item->SetDispEffect(4);
    QCOMPARE(files(item), old);
    item->GetFrameNode()->SetRect(QRect(0, 0, 100, 50));
    QVERIFY(files(item).isEmpty());
    QTRY_VERIFY(!files(item).isEmpty());
    QVERIFY(files(item).first() != old.first()); // never two pages under one name
    QVERIFY(!document.isModified() || document.contents().indexOf("DynamicData") < 0);

    auto *const other = qobject_cast<LTextEffectNode *>(document.addItem(item->GetScreenNode()));
    pages.watch(other);
    QVERIFY(files(item).isEmpty());
    QTRY_COMPARE(files(other).size(), 1);
    pages.watch(nullptr);
    QVERIFY(files(other).isEmpty());
}

void TestItemPages::filesAreBounded()
{
    ProgrammeDocument document;
    LiveData data(&document);
    ItemPages pages(&document, &data);
    LTextEffectNode *const item = firstItem(document);
    item->SetSize(QSize(40, 16));
    write(item, 600);
    pages.watch(item);
    // The first turn lays the document out, which takes what it takes.
    QTRY_VERIFY(!files(item).isEmpty());
    std::clock_t before = std::clock();
    std::clock_t longest = 0; // of processor time, whatever else the machine does
    QTimer heart;
    connect(&heart, &QTimer::timeout, this, [&] {
        longest = qMax(longest, std::clock() - before);
        before = std::clock();
    });
    heart.start(0);
    QTRY_COMPARE_WITH_TIMEOUT(files(item).size(), 500, 20000);
    QVERIFY(item->GetPageCount() >= 600);
    QVERIFY2(longest < CLOCKS_PER_SEC / 20, qPrintable(QString::number(longest)));
    QTest::qWait(50);
    QCOMPARE(files(item).size(), 500);
}

void TestItemPages::nodesComeAndGo()
{
    ProgrammeDocument document;
    LiveData data(&document);
    ItemPages pages(&document, &data);
    LTextEffectNode *const item = firstItem(document);
    LNode *const frame = item->ParentNode();
    pages.watch(item);
    QTRY_COMPARE(files(item).size(), 1);
    QVERIFY(document.remove(frame));
    QCOMPARE(pages.pageCount(item), 0);
    QVERIFY(pages.page(nullptr, 0).isNull());
    document.undo();
    QCOMPARE(pages.pageCount(item), 1);
    item->SetUseStroke(1);
    delete frame;
    QTest::qWait(300);
    document.newProgramme();
    pages.watch(firstItem(document));
    QVERIFY(!pages.page(firstItem(document), 0).isNull());
    LTextEffectNode foreign;
    pages.watch(&foreign);
    QVERIFY(files(&foreign).isEmpty());
    QCOMPARE(pages.pageCount(&foreign), 0);
}

void TestItemPages::folderIsTidied()
{
    QProcess gone;
    gone.start(QStringLiteral("true"), QStringList());
    const qint64 id = gone.processId();
    QVERIFY(gone.waitForFinished());
    const QString all = m_data->path() + QStringLiteral("/pages/");
    const QString stale = all + QString::number(id);
    const QString running = all + QString::number(QCoreApplication::applicationPid());
    QVERIFY(QDir().mkpath(stale) && QDir().mkpath(all + QStringLiteral("1")));
    {
        ProgrammeDocument document;
        LiveData data(&document);
        ItemPages pages(&document, &data);
        pages.watch(firstItem(document));
        QTRY_COMPARE(QDir(running).entryList(QDir::Files).size(), 1);
        QVERIFY(!QFileInfo::exists(stale));
        QVERIFY(QFileInfo::exists(all + QStringLiteral("1"))); // the first process never ends
    }
    QVERIFY(!QFileInfo::exists(running));
}

QTEST_MAIN(TestItemPages)
#include "tst_itempages.moc"
