#include "hostiledocuments.h"
#include "htmlguard.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTextDocument>
#include <QtTest>

#include <ctime>
#include <functional>

#include <fcntl.h>
#include <sys/inotify.h>
#include <sys/resource.h>
#include <unistd.h>

using namespace lctrlsex;
using namespace lctrlsex::test;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool sanitized = true;
#else
constexpr bool sanitized = false;
#endif

namespace {

// Under the sanitizers only hangs are looked for.
constexpr double mostSeconds = sanitized ? 10 : 1;
constexpr double freeSeconds = sanitized ? 1 : 0.2;
constexpr double mostTimesHarmless = sanitized ? 8 : 4;
constexpr double mostMegabytes = sanitized ? 900 : 300;
constexpr rlim_t addressSpace = 1536UL * 1024 * 1024;

/** A document that loads nothing, as every document of the programme. */
class ClosedDocument : public QTextDocument
{
protected:
    QVariant loadResource(int type, const QUrl &) override
    {
        if (type != ImageResource) {
            return QByteArray();
        }
        QImage image(1, 1, QImage::Format_ARGB32);
        image.fill(Qt::transparent);
        return image;
    }
};

/** Processor time of the process, which other processes do not lengthen. */
double processorSeconds()
{
    return double(std::clock()) / CLOCKS_PER_SEC;
}

double statusMegabytes(const QByteArray &field)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith(field)) {
            return line.mid(field.size()).trimmed().split(' ').first().toDouble() / 1024;
        }
    }
    return 0;
}

void forgetPeakMemory()
{
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    if (file.open(QIODevice::WriteOnly)) {
        file.write("5");
    }
}

void loadAndDraw(const QString &html)
{
    ClosedDocument document;
    document.setUndoRedoEnabled(false);
    document.setHtml(html);
    document.setTextWidth(256);
    QVERIFY(document.size().height() >= 0);
    QImage page(256, 256, QImage::Format_ARGB32_Premultiplied);
    page.fill(Qt::black);
    QPainter painter(&page);
    document.drawContents(&painter, QRectF(0, 0, 256, 256));
}

double secondsFor(const std::function<void()> &work)
{
    const double before = processorSeconds();
    work();
    return processorSeconds() - before;
}

/** The slowest of the harmless documents of that size. */
double harmlessSeconds(int characters)
{
    double most = 0;
    for (const QString &html :
         {harmlessParagraphs(characters), harmlessTable(characters), harmlessLines(characters)}) {
        const GuardedHtml guarded = guardHtml(html);
        if (guarded.accepted) {
            most = qMax(most, secondsFor([&] { loadAndDraw(guarded.html); }));
        }
    }
    return most;
}

} // namespace

/** Every hostile document is refused, or costs little more than a harmless one. */
class tst_Hostile : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void staysInBounds_data();
    void staysInBounds();
    void opensNoCanary();
    void thereAreEnough() { QVERIFY(hostileDocumentNames().size() >= 150); }
};

void tst_Hostile::initTestCase()
{
    if (!sanitized) {
        const rlimit limit = {addressSpace, addressSpace};
        QCOMPARE(::setrlimit(RLIMIT_AS, &limit), 0);
    }
    // Fonts are found once, on nobody's account.
    loadAndDraw(QStringLiteral("<p>a <b>b</b> \u4e2d \u0628</p>"));
}

void tst_Hostile::staysInBounds_data()
{
    QTest::addColumn<QString>("name");
    const QStringList names = hostileDocumentNames();
    for (const QString &name : names) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

void tst_Hostile::staysInBounds()
{
    QFETCH(QString, name);
    const QString html = hostileDocument(name);
    QVERIFY(!html.isEmpty());

    forgetPeakMemory();
    const double memoryBefore = statusMegabytes("VmRSS:");
    GuardedHtml guarded;
    const double guardSeconds = secondsFor([&] { guarded = guardHtml(html); });
    QVERIFY2(guardSeconds < mostSeconds / 2, qPrintable(QString::number(guardSeconds)));
    if (!guarded.accepted) {
        QVERIFY(!guarded.reason.isEmpty() && !guarded.remedy.isEmpty());
        QVERIFY(guarded.line > 0 && guarded.column > 0);
        QVERIFY(guarded.html.isEmpty());
        return;
    }
    const GuardedHtml again = guardHtml(guarded.html);
    QVERIFY(again.accepted && again.html == guarded.html);

    const double seconds = guardSeconds + secondsFor([&] { loadAndDraw(guarded.html); });
    const double megabytes = statusMegabytes("VmHWM:") - memoryBefore;
    const double allowed = qMin(
        mostSeconds, qMax(freeSeconds, mostTimesHarmless * harmlessSeconds(guarded.html.size())));
    QVERIFY2(seconds <= allowed,
             qPrintable(QStringLiteral("%1 s of %2 s").arg(seconds).arg(allowed)));
    QVERIFY2(megabytes <= mostMegabytes, qPrintable(QString::number(megabytes)));
}

void tst_Hostile::opensNoCanary()
{
    const QString folder = canaryFolder();
    QVERIFY(QDir().mkpath(folder));
    const QStringList canaries = canaryFiles(folder);
    for (const QString &path : canaries) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("p { color: red }");
    }
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder));
    const int watch = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    QVERIFY(::inotify_add_watch(watch, QFile::encodeName(folder).constData(), IN_OPEN) >= 0);

    int mentioning = 0;
    const QStringList names = hostileDocumentNames();
    for (const QString &name : names) {
        const QString html = name.endsWith(QLatin1Char('k')) ? QString() : hostileDocument(name);
        if (html.contains(QLatin1String("canary."))) {
            ++mentioning;
            const GuardedHtml guarded = guardHtml(html);
            QVERIFY2(guarded.accepted, qPrintable(name));
            loadAndDraw(guarded.html);
        }
    }
    char event[4096];
    const auto opened = ::read(watch, event, sizeof event);
    ::close(watch);
    QVERIFY(QDir::setCurrent(before));
    QVERIFY(mentioning >= 8);
    QVERIFY2(opened <= 0, "a canary was opened");
}

QTEST_MAIN(tst_Hostile)
#include "tst_hostile.moc"
