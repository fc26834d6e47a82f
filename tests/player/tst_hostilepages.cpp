// Every hostile document through the real reader, layout, page breaker and painter.

#include "hostiledocuments.h"
#include "itemcheck.h"
#include "itemrenderer.h"
#include "lframenode.h"
#include "lscreennode.h"
#include "ltexteffectnode.h"
#include "programmefile.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using namespace lctrlsex::test;

namespace {

QString stored(const QString &html)
{
    return QString::fromLatin1(html.toUtf8().toBase64());
}

} // namespace

class TestHostilePages : public QObject
{
    Q_OBJECT
private slots:
    void everyDocumentIsShownOrRefused();
    void programmeOpensNoCanary();
};

void TestHostilePages::everyDocumentIsShownOrRefused()
{
    int shown = 0;
    int refused = 0;
    qint64 slowest = 0;
    QString slowestName;
    for (const QString &name : hostileDocumentNames()) {
        LTextEffectNode node;
        node.SetSize({256, 64});
        node.SetRawHtmlText(stored(hostileDocument(name)));
        QElapsedTimer timer;
        timer.start();
        player::ItemRenderer item(&node, name);
        const player::Problems found = player::checkItem(&item);
        const QImage first = item.finishedPage(0);
        const QImage last = item.finishedPage(item.pageCount() - 1);
        if (timer.elapsed() > slowest) {
            slowest = timer.elapsed();
            slowestName = name;
        }
        // A limit for hangs; how fast it is, is not this test's question.
        QVERIFY2(timer.elapsed() < 15000, qPrintable(name));
        if (item.hasPages()) {
            ++shown;
            QCOMPARE(first.size(), QSize(256, 64));
            QCOMPARE(last.size(), QSize(256, 64));
            QVERIFY(item.pageCount() <= lctrlsex::MostPages);
        } else {
            ++refused;
            QVERIFY(first.isNull());
            QCOMPARE(item.problems().size(), 1);
            QVERIFY(!item.problems().first().remedy.isEmpty());
        }
        Q_UNUSED(found)
    }
    qInfo("%d shown, %d refused, slowest %s with %lld ms", shown, refused, qPrintable(slowestName),
          slowest);
    QVERIFY(shown > 20);
    QVERIFY(refused > 20);
}

void TestHostilePages::programmeOpensNoCanary()
{
    LControllerNode programme;
    programme.SetSize({256, 64});
    auto *screen = new LScreenNode;
    programme.AppendChild(screen);
    auto *frame = new LFrameNode;
    screen->AppendChild(frame);
    for (const QString &name : hostileDocumentNames()) {
        const QString html = hostileDocument(name);
        if (html.size() > 1000000) {
            continue;
        }
        auto *item = new LTextEffectNode;
        frame->AppendChild(item);
        item->SetName(name);
        item->SetRawHtmlText(stored(html));
    }
    QTemporaryDir folder;
    QVERIFY(!saveProgramme(programme, folder.filePath("p.json")).isSet());
    for (const QString &name : canaryFiles(folder.path())) {
        QDir().mkpath(QFileInfo(name).path());
    }

    QProcess process;
    process.setWorkingDirectory(folder.path());
    process.start("strace", {"-f", "-e", "trace=%file,%network", "-o", "trace",
                             LCTRLSEX_BINARY_DIR "/bin/pagerender", "check", "p.json", "--json"});
    QVERIFY(!process.waitForStarted() || process.waitForFinished(280000));
    QFile trace(folder.filePath("trace"));
    if (process.exitCode() != 1 || !trace.open(QIODevice::ReadOnly)) {
        QSKIP("strace cannot trace here");
    }
    const QByteArray calls = trace.readAll();
    QVERIFY(calls.contains("p.json"));
    QVERIFY2(!calls.contains("canary"), calls.constData() + qMax(0, calls.indexOf("canary") - 80));
    QVERIFY(!calls.contains("AF_INET"));
    QVERIFY(!calls.contains("/etc/hostname"));
}

QTEST_MAIN(TestHostilePages)
#include "tst_hostilepages.moc"
