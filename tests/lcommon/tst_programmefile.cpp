#include "jsonplace.h"
#include "lframenode.h"
#include "lscreennode.h"
#include "ltexteffectnode.h"
#include "programmefile.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QByteArray Head = "{\"format\": \"lctrlsex-programme\", \"version\": 1,\n";

QByteArray demo()
{
    QFile file(QStringLiteral(LCTRLSEX_SOURCE_DIR "/tests/data/station.programme.json"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

LTextEffectNode *firstItem(const ReadProgramme &read)
{
    const LNode *node = read.controller.get();
    while (node != nullptr && !node->ChildNodes().isEmpty()) {
        node = node->ChildNodes().constFirst();
    }
    return qobject_cast<LTextEffectNode *>(const_cast<LNode *>(node));
}

QByteArray itemProgramme(const QByteArray &item)
{
    return Head + "\"screens\": [{\"frames\": [{\"items\": [" + item + "]}]}]}";
}

QByteArray contentOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestProgrammeFile : public QObject
{
    Q_OBJECT
private slots:
    void readsTheDemo();
    void writingIsAFixPoint();
    void unknownMembersSurvive();
    void documents_data();
    void documents();
    void faults_data();
    void faults();
    void places_data();
    void places();
    void mutatedFilesOpenOrSayWhy();
    void savingKeepsTheOldFileOnErrors();
    void savingSurvivesBeingKilled();
    void savingReportsFailingCalls();
};

void TestProgrammeFile::readsTheDemo()
{
    const ReadProgramme read = readProgramme(demo());
    QVERIFY2(read.controller != nullptr, qPrintable(read.error.reason));
    QCOMPARE(read.controller->Size(), QSize(384, 128));
    QCOMPARE(read.controller->name(), QStringLiteral("Central Station"));
    const LNode *languages = read.controller->ChildNodes().at(3);
    const auto *frame = qobject_cast<LFrameNode *>(languages->ChildNodes().at(1));
    QCOMPARE(frame->GetRect(), QRect(192, 0, 192, 128));
    const LNode *hours = read.controller->ChildNodes().at(4)->ChildNodes().at(0);
    QCOMPARE(qobject_cast<const LFrameNode *>(hours)->GetFrame().FrameType(), 2);
    LTextEffectNode *item = firstItem(read);
    QCOMPARE(item->Size(), QSize(384, 128));
    QVERIFY(item->GetTransBgColor());
    QVERIFY(item->HasAttribute(QStringLiteral("Html")));
    QVERIFY(QByteArray::fromBase64(item->GetRawHtmlText().toLatin1()).contains("Central"));
}

void TestProgrammeFile::writingIsAFixPoint()
{
    const ReadProgramme first = readProgramme(demo());
    const QByteArray written = writeProgramme(*first.controller);
    const ReadProgramme second = readProgramme(written);
    QVERIFY2(second.controller != nullptr, qPrintable(second.error.reason));
    QCOMPARE(writeProgramme(*second.controller), written);
    QCOMPARE(firstItem(second)->GetRawHtmlText(), firstItem(first)->GetRawHtmlText());
    QCOMPARE(firstItem(second)->AttributeKeys(), firstItem(first)->AttributeKeys());
}

void TestProgrammeFile::unknownMembersSurvive()
{
    const QByteArray source = Head + R"(
        "dataSources": [{"type": "mqtt", "deep": [1, {"a": null}]}], "x": true,
        "controller": {"kind": "LCD", "gamma": 2.2, "attributes": {"Vendor": {"a": [1]}}},
        "screens": [{"night": 5, "attributes": {"Own": "s"}, "frames": [
            {"z": 3, "border": {"enabled": true, "glow": "red"}, "items": [
                {"mood": "calm", "attributes": {"Future": [1, 2], "ByTime": 3}}]}]}]})";
    const ReadProgramme read = readProgramme(source);
    QVERIFY2(read.controller != nullptr, qPrintable(read.error.reason));
    const QJsonObject written = QJsonDocument::fromJson(writeProgramme(*read.controller)).object();
    const QJsonObject original = QJsonDocument::fromJson(source).object();
    for (const char *key : {"dataSources", "x", "controller"}) {
        QVERIFY2(written.value(key) == original.value(key), key);
    }
    const QJsonObject screen = written.value("screens").toArray().at(0).toObject();
    QCOMPARE(screen.value("night").toInt(), 5);
    QCOMPARE(screen.value("attributes").toObject().value("Own").toString(), QString("s"));
    const QJsonObject frame = screen.value("frames").toArray().at(0).toObject();
    QCOMPARE(frame.value("z").toInt(), 3);
    QCOMPARE(frame.value("border").toObject().value("glow").toString(), QString("red"));
    const QJsonObject item = frame.value("items").toArray().at(0).toObject();
    QCOMPARE(item.value("mood").toString(), QString("calm"));
    QCOMPARE(item.value("attributes").toObject().value("Future").toArray().size(), 2);
}

void TestProgrammeFile::documents_data()
{
    QTest::addColumn<QByteArray>("item");
    QTest::addColumn<QByteArray>("stored");
    const auto base64 = [](const QByteArray &text) {
        return text.toBase64();
    };
    QTest::newRow("readable") << QByteArray(R"({"document": "<p>a</p>"})") << base64("<p>a</p>");
    QTest::newRow("lines") << QByteArray(R"({"document": ["a", "", "b"]})") << base64("a\n\nb");
    QTest::newRow("every script")
        << QByteArray("{\"document\": \"\xe6\xac\xa2 \xf0\x9f\x98\x80 \\u0000\"}")
        << base64(QByteArray("\xe6\xac\xa2 \xf0\x9f\x98\x80 \0", 10));
    QTest::newRow("carriage returns stay")
        << QByteArray(R"({"document": "a\r\nb"})") << base64("a\r\nb");
    QTest::newRow("stored form") << QByteArray(R"({"attributes": {"RawHtml": "PHA+"}})")
                                 << QByteArray("PHA+");
    QTest::newRow("broken Base64 stays")
        << QByteArray(R"({"attributes": {"RawHtml": "*PHA+*"}})") << QByteArray("*PHA+*");
    QTest::newRow("no UTF-8 inside")
        << QByteArray(R"({"attributes": {"RawHtml": "/////w=="}})") << QByteArray("/////w==");
    QTest::newRow("without padding")
        << QByteArray(R"({"attributes": {"RawHtml": "PGI"}})") << QByteArray("PGI");
}

void TestProgrammeFile::documents()
{
    QFETCH(QByteArray, item);
    QFETCH(QByteArray, stored);
    const ReadProgramme read = readProgramme(itemProgramme(item));
    QVERIFY2(read.controller != nullptr, qPrintable(read.error.reason));
    QCOMPARE(firstItem(read)->GetRawHtmlText().toLatin1(), stored);
    const ReadProgramme again = readProgramme(writeProgramme(*read.controller));
    QVERIFY2(again.controller != nullptr, qPrintable(again.error.reason));
    QCOMPARE(firstItem(again)->GetRawHtmlText().toLatin1(), stored);
    QCOMPARE(firstItem(again)->AttributeKeys(), firstItem(read)->AttributeKeys());
}

void TestProgrammeFile::faults_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("place");
    QTest::addColumn<QString>("reason");
    QTest::newRow("empty") << QByteArray() << "line 1, column 1"
                           << "JSON";
    QTest::newRow("missing comma")
        << QByteArray("{\n  \"format\": \"x\"\n  \"version\": 1\n}") << "line 3, column"
        << "JSON";
    QTest::newRow("column counts characters")
        << QByteArray("{\"\xc3\xa9\xc3\xa9\": nul}") << "line 1, column 9"
        << "JSON";
    QTest::newRow("no format") << QByteArray("{}") << "line 1, column 1"
                               << "no programme file";
    QTest::newRow("other format") << QByteArray("{\n \"format\": \"song\"}")
                                  << "line 2, column 12, format"
                                  << "no programme file";
    QTest::newRow("no version") << QByteArray("{\"format\": \"lctrlsex-programme\"}")
                                << "line 1, column 1, version"
                                << "version";
    QTest::newRow("newer version")
        << QByteArray("{\"format\": \"lctrlsex-programme\", \"version\": 2}")
        << "line 1, column 45, version"
        << "newer";
    QTest::newRow("kind of device") << Head + "\"controller\": {\"kind\": \"OLED\"}}"
                                    << "line 2, column 24, controller.kind"
                                    << "LED";
    QTest::newRow("width is text") << Head + "\"controller\": {\"width\": \"9\"}}"
                                   << "line 2, column 25, controller.width"
                                   << "whole number";
    QTest::newRow("broken pixel") << Head + "\"controller\": {\"width\": 1.5}}"
                                  << "controller.width"
                                  << "whole number";
    QTest::newRow("screens are no list") << Head + "\"screens\": {}}"
                                         << "screens"
                                         << "list";
    QTest::newRow("screen is no object") << Head + "\"screens\": [{}, 3]}"
                                         << "line 2, column 17, screens[1]"
                                         << "object";
    QTest::newRow("attribute of a wrong kind")
        << itemProgramme(R"({"attributes": {"UseHollow": "yes"}})")
        << "screens[0].frames[0].items[0].attributes.UseHollow"
        << "whole number";
    QTest::newRow("two documents")
        << itemProgramme(R"({"document": "a", "attributes": {"RawHtml": "PHA+"}})")
        << "items[0].document"
        << "twice";
}

void TestProgrammeFile::faults()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, place);
    QFETCH(QString, reason);
    const ReadProgramme read = readProgramme(bytes);
    QVERIFY(read.controller == nullptr);
    QVERIFY2(read.error.placeText().contains(place), qPrintable(read.error.placeText()));
    QVERIFY2(read.error.reason.contains(reason) || read.error.remedy.contains(reason),
             qPrintable(read.error.reason));
    QVERIFY(!read.error.remedy.isEmpty());
}

void TestProgrammeFile::places_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QStringList>("steps");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("column");
    const QByteArray json = "{ \"a\\\"]\": \"}{[\\\\\",\n \"b\": [1, [2, {\"c\": -3e2}], null],"
                            "\n\t\"b\": {\"d\" : [ ]}, \"\xc3\xa9\": true }";
    QTest::newRow("the document") << json << QStringList() << 1 << 1;
    QTest::newRow("escaped key") << json << QStringList{"a\"]"} << 1 << 11;
    QTest::newRow("last of equal keys") << json << QStringList{"b", "d"} << 3 << 14;
    QTest::newRow("after letters of two bytes") << json << QStringList{"\u00e9"} << 3 << 25;
    QTest::newRow("missing value is placed at its parent")
        << json << QStringList{"b", "no"} << 3 << 7;
    const QByteArray list = "[[1, \"a,b\"],\n {\"x\": [true, {\"y\": 5}]}]";
    QTest::newRow("element") << list << QStringList{"[0]", "[1]"} << 1 << 6;
    QTest::newRow("deep element") << list << QStringList{"[1]", "x", "[1]", "y"} << 2 << 21;
    QTest::newRow("beyond the end") << list << QStringList{"[7]"} << 1 << 1;
}

void TestProgrammeFile::places()
{
    QFETCH(QByteArray, json);
    QFETCH(QStringList, steps);
    JsonPath path;
    for (const QString &step : steps) {
        path = step.startsWith('[') ? path.index(step.mid(1, step.size() - 2).toInt())
                                    : path.key(step);
    }
    const TextPlace place = placeOfValue(json, path);
    QTEST(place.line, "line");
    QTEST(place.column, "column");
}

void TestProgrammeFile::mutatedFilesOpenOrSayWhy()
{
    const QByteArray original = demo();
    QRandomGenerator random(20);
    const QByteArray alphabet = "{}[]\",:\\0-9eE.tfn \n\xff\xc3";
    for (int i = 0; i < 2000; ++i) {
        QByteArray bytes = original;
        for (int changes = random.bounded(1, 6); changes > 0; --changes) {
            const int at = random.bounded(bytes.size());
            switch (random.bounded(4)) {
            case 0:
                bytes.truncate(qMax(1, at));
                break;
            case 1:
                bytes.remove(at, random.bounded(1, 40));
                break;
            case 2:
                bytes.insert(at, bytes.mid(random.bounded(bytes.size()), 30));
                break;
            default:
                bytes[at] = alphabet.at(random.bounded(alphabet.size()));
            }
            if (bytes.isEmpty()) {
                bytes = "{";
            }
        }
        const ReadProgramme read = readProgramme(bytes);
        QCOMPARE(read.controller == nullptr, read.error.isSet());
        if (read.controller != nullptr) {
            const ReadProgramme again = readProgramme(writeProgramme(*read.controller));
            QVERIFY2(again.controller != nullptr, qPrintable(again.error.reason));
        }
    }
}

void TestProgrammeFile::savingKeepsTheOldFileOnErrors()
{
    const ReadProgramme read = readProgramme(demo());
    QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("a.programme.json"));
    QVERIFY(!saveProgramme(*read.controller, file).isSet());
    QCOMPARE(contentOf(file), writeProgramme(*read.controller));
    for (const QString &target : {folder.filePath(QStringLiteral("none/b.json")), folder.path(),
                                  file + QStringLiteral("/c.json")}) {
        const ProgrammeError error = saveProgramme(*read.controller, target);
        QVERIFY2(error.isSet(), qPrintable(target));
        QVERIFY(!error.remedy.isEmpty());
    }
    QCOMPARE(contentOf(file), writeProgramme(*read.controller));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

namespace {

/** Saves under strace with a call tampered with; false where this machine allows no tracing. */
class TamperedSave
{
public:
    explicit TamperedSave(const QString &folder)
        : m_folder(folder)
        , m_file(folder + "/p.json")
    {
        QFile(QStringLiteral(LCTRLSEX_SOURCE_DIR "/tests/data/station.programme.json"))
            .copy(m_file);
    }

    [[nodiscard]] bool isPossible()
    {
#ifdef __SANITIZE_ADDRESS__
        return false; // the sanitizer makes system calls of its own
#endif
        return !QStandardPaths::findExecutable("strace").isEmpty() &&
               run("write:error=ENOSPC:when=9999", "x") == 0;
    }

    /** The exit status of saving under the name given; 128 and more where it was killed. */
    int run(const QString &injection, const QString &name)
    {
        QProcess process;
        process.start("strace", {"-f", "-o", "/dev/null", "-e", "inject=" + injection,
                                 LCTRLSEX_BINARY_DIR "/bin/saveprogramme", m_file, m_file, name});
        process.waitForFinished(60000);
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : 128;
    }

    /** The controller's name in the file; null when the file is neither old nor new. */
    [[nodiscard]] QString savedName() const
    {
        const ReadProgramme read = loadProgramme(m_file);
        return read.controller != nullptr && firstItem(read) != nullptr ? read.controller->name()
                                                                        : QString();
    }

    [[nodiscard]] QStringList leftovers() const
    {
        QStringList files = QDir(m_folder).entryList(QDir::Files | QDir::Hidden);
        files.removeAll("p.json");
        return files;
    }

private:
    QString m_folder;
    QString m_file;
};

} // namespace

void TestProgrammeFile::savingSurvivesBeingKilled()
{
    QTemporaryDir folder;
    TamperedSave save(folder.path());
    if (!save.isPossible()) {
        QSKIP("strace cannot trace here");
    }
    QString old = save.savedName();
    int kills = 0;
    const QStringList calls{"write", "fdatasync", "linkat", "rename", "openat", "close", "unlink"};
    for (const QString &call : calls) {
        for (int when = 1; when <= 40; when += call == "openat" || call == "close" ? 3 : 1) {
            const QString name = QStringLiteral("%1 %2").arg(call).arg(when);
            const int status =
                save.run(QStringLiteral("%1:signal=SIGKILL:when=%2").arg(call).arg(when), name);
            const QString saved = save.savedName();
            QVERIFY2(saved == old || saved == name, qPrintable(name));
            kills += status == 0 ? 0 : 1;
            old = saved;
            if (status == 0 && saved == name) {
                break; // the save was over before that call
            }
        }
    }
    QVERIFY2(kills > 20, qPrintable(QString::number(kills)));
}

void TestProgrammeFile::savingReportsFailingCalls()
{
    QTemporaryDir folder;
    TamperedSave save(folder.path());
    if (!save.isPossible()) {
        QSKIP("strace cannot trace here");
    }
    const QString old = save.savedName();
    const QStringList injections{"write:error=ENOSPC:when=1+", "write:error=EIO:when=1+",
                                 "rename,renameat,renameat2,linkat:error=EIO:when=1+",
                                 "fdatasync:error=EIO:when=1+"};
    for (const QString &injection : injections) {
        const int status = save.run(injection, "new");
        QVERIFY2(status == 1, qPrintable(injection));
        QCOMPARE(save.savedName(), old);
        QCOMPARE(save.leftovers(), QStringList());
    }
}

QTEST_GUILESS_MAIN(TestProgrammeFile)
#include "tst_programmefile.moc"
