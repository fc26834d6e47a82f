// Drives the real program as scripts do: arguments in; exit status, lines and files out.

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/resource.h>

namespace {

struct Outcome
{
    int status = -1;
    QString out;
    QString err;
};

Outcome pagerender(const QStringList &arguments, const QByteArray &input = QByteArray())
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("QT_QPA_PLATFORM"));
    environment.remove(QStringLiteral("DISPLAY"));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(LCTRLSEX_BINARY_DIR "/bin/pagerender"), arguments);
    process.write(input);
    process.closeWriteChannel();
    Outcome outcome;
    if (process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit) {
        outcome.status = process.exitCode();
    }
    outcome.out = QString::fromUtf8(process.readAllStandardOutput());
    outcome.err = QString::fromUtf8(process.readAllStandardError());
    return outcome;
}

QString source(const QString &name)
{
    return QStringLiteral(LCTRLSEX_SOURCE_DIR "/") + name;
}

/** A programme of one item, 64 x 32, with what a row needs changed. */
QByteArray programme(const QJsonObject &itemMembers, int width = 64, int height = 32)
{
    QJsonObject item{{QStringLiteral("name"), QStringLiteral("Item")}};
    for (auto it = itemMembers.begin(); it != itemMembers.end(); ++it) {
        item.insert(it.key(), it.value());
    }
    const QJsonObject frame{{QStringLiteral("name"), QStringLiteral("Frame")},
                            {QStringLiteral("width"), width},
                            {QStringLiteral("height"), height},
                            {QStringLiteral("items"), QJsonArray{item}}};
    const QJsonObject screen{{QStringLiteral("name"), QStringLiteral("Screen")},
                             {QStringLiteral("frames"), QJsonArray{frame}}};
    return QJsonDocument(
               QJsonObject{{QStringLiteral("format"), QStringLiteral("lctrlsex-programme")},
                           {QStringLiteral("version"), 1},
                           {QStringLiteral("screens"), QJsonArray{screen}}})
        .toJson();
}

QByteArray documentProgramme(const QString &html)
{
    return programme({{QStringLiteral("document"), html}});
}

QString dejavu(const QString &text)
{
    return QStringLiteral("<p style=\"font-family:'DejaVu Sans'; color:#ffffff\">%1</p>").arg(text);
}

} // namespace

class TestPagerender : public QObject
{
    Q_OBJECT
private slots:
    void rendersTheDemo();
    void pagesAreTheSameEveryTime();
    void readsStandardInput();
    void jsonReport();
    void selectsItemsAndSize();
    void commandLine_data();
    void commandLine();
    void badInput_data();
    void badInput();
    void lenientMakesThePage();
    void oneBadItemLeavesTheOthers();
    void unwritableOutput_data();
    void unwritableOutput();
    void check_data();
    void check();
    void checksRecords();
    void fillsFromData();
    void opensNothingOutside();
};

void TestPagerender::rendersTheDemo()
{
    QTemporaryDir folder;
    const auto give = [&folder](const QString &name, const QByteArray &json) {
        QFile file(folder.filePath(name));
        file.open(QIODevice::WriteOnly);
        file.write(json);
        return QStringLiteral("%1=%2").arg(name.section(QLatin1Char('.'), 0, 0), file.fileName());
    };
    const Outcome outcome = pagerender(
        {QStringLiteral("render"), source(QStringLiteral("examples/demo.programme.json")),
         QStringLiteral("-o"), folder.filePath(QStringLiteral("a/b")), QStringLiteral("--data"),
         give(QStringLiteral("Weather.json"),
              R"({"temperature": 21.5, "wind": 7, "text": "Sunny"})"),
         QStringLiteral("--data"),
         give(QStringLiteral("Sensors.json"), R"({"levels": [[11, 22, 33], [44, 55, 66]]})")});
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.status, 0);
    const QStringList files = outcome.out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QVERIFY(files.size() >= 10);
    for (const QString &file : files) {
        const QImage page(file);
        QVERIFY2(!page.isNull(), qPrintable(file));
        int lit = 0;
        for (int y = 0; y < page.height(); ++y) {
            for (int x = 0; x < page.width(); ++x) {
                lit += qGray(page.pixel(x, y)) > 96 ? 1 : 0;
            }
        }
        QVERIFY2(lit > 150, qPrintable(file + QStringLiteral(" shows next to nothing")));
    }
    QVERIFY(files.filter(QStringLiteral("Opening hours-2.png")).size() == 1);
    QCOMPARE(QDir(folder.filePath(QStringLiteral("a/b"))).entryList(QDir::Files).size(),
             files.size());
}

void TestPagerender::pagesAreTheSameEveryTime()
{
    QTemporaryDir folder;
    for (const QString &run : {QStringLiteral("1"), QStringLiteral("2")}) {
        QCOMPARE(pagerender({QStringLiteral("render"),
                             source(QStringLiteral("tests/data/station.programme.json")),
                             QStringLiteral("-o"), folder.filePath(run)})
                     .status,
                 0);
    }
    const QDir first(folder.filePath(QStringLiteral("1")));
    const QDir second(folder.filePath(QStringLiteral("2")));
    for (const QString &name : first.entryList(QDir::Files)) {
        QFile a(first.filePath(name));
        QFile b(second.filePath(name));
        QVERIFY(a.open(QIODevice::ReadOnly) && b.open(QIODevice::ReadOnly));
        QVERIFY2(a.readAll() == b.readAll(), qPrintable(name));
    }
}

void TestPagerender::readsStandardInput()
{
    QTemporaryDir folder;
    const Outcome outcome = pagerender(
        {QStringLiteral("render"), QStringLiteral("-"), QStringLiteral("-o"), folder.path()},
        documentProgramme(dejavu(QStringLiteral("Hello"))));
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.out.trimmed(), folder.filePath(QStringLiteral("Item-1.png")));
}

void TestPagerender::jsonReport()
{
    QTemporaryDir folder;
    const Outcome outcome = pagerender(
        {QStringLiteral("render"), QStringLiteral("-"), QStringLiteral("-o"), folder.path(),
         QStringLiteral("--json")},
        documentProgramme(dejavu(QStringLiteral("Two lines<br/>make<br/>several pages"))));
    const QJsonObject report = QJsonDocument::fromJson(outcome.out.toUtf8()).object();
    const QJsonArray pages = report.value(QStringLiteral("pages")).toArray();
    QVERIFY(pages.size() >= 2);
    QCOMPARE(pages.at(1).toObject().value(QStringLiteral("page")).toInt(), 2);
    QCOMPARE(pages.at(1).toObject().value(QStringLiteral("place")).toString(),
             QStringLiteral("Screen/Frame/Item"));
    QVERIFY(QFile::exists(pages.at(1).toObject().value(QStringLiteral("file")).toString()));
    QVERIFY(report.value(QStringLiteral("problems")).toArray().isEmpty());

    const Outcome bad = pagerender({QStringLiteral("render"), QStringLiteral("-"),
                                    QStringLiteral("-o"), folder.path(), QStringLiteral("--json")},
                                   "{");
    QCOMPARE(bad.status, 1);
    const QJsonArray problems = QJsonDocument::fromJson(bad.out.toUtf8())
                                    .object()
                                    .value(QStringLiteral("problems"))
                                    .toArray();
    QCOMPARE(problems.size(), 1);
    QCOMPARE(problems.at(0).toObject().value(QStringLiteral("severity")).toString(),
             QStringLiteral("error"));
}

void TestPagerender::selectsItemsAndSize()
{
    QTemporaryDir folder;
    const Outcome outcome = pagerender(
        {QStringLiteral("render"), source(QStringLiteral("tests/data/station.programme.json")),
         QStringLiteral("-o"), folder.path(), QStringLiteral("--item"), QStringLiteral("Headline"),
         QStringLiteral("--item"), QStringLiteral("Notices/Full/Sale"), QStringLiteral("--size"),
         QStringLiteral("400x140")});
    QCOMPARE(outcome.err, QString());
    QCOMPARE(outcome.out.count(QLatin1Char('\n')), 2);
    QCOMPARE(QImage(folder.filePath(QStringLiteral("Headline-1.png"))).size(), QSize(400, 140));

    const Outcome unknown = pagerender(
        {QStringLiteral("render"), source(QStringLiteral("tests/data/station.programme.json")),
         QStringLiteral("-o"), folder.path(), QStringLiteral("--item"), QStringLiteral("Headlin")});
    QCOMPARE(unknown.status, 1);
    QVERIFY(unknown.err.contains(QStringLiteral("Headline")));
}

void TestPagerender::commandLine_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("says");
    const auto row = [](const char *name, const QString &arguments, int status,
                        const QString &says) {
        QTest::newRow(name) << arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts) << status
                            << says;
    };
    row("nothing", "", 2, "render, check or watch");
    row("unknown command", "paint x", 2, "paint");
    row("no programme", "render -o d", 2, "no programme");
    row("no output", "render x", 2, "-o DIR");
    row("two programmes", "check a b", 2, "\"b\"");
    row("unknown option", "check a --fast", 2, "fast");
    row("option of another command", "check a --lenient", 2, "lenient");
    row("size of nothing", "check a --size 0x10", 2, "--size 0x10");
    row("gigantic size", "check a --size 100000x100000", 2, "16384");
    row("size without numbers", "check a --size big", 2, "256x64");
    row("help", "--help", 0, "usage: pagerender render");
    row("help of a command", "help render", 0, "--lenient");
    row("help as an option", "check --help", 0, "usage: pagerender check");
    row("version", "--version", 0, "pagerender ");
}

void TestPagerender::commandLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QFETCH(QString, says);
    const Outcome outcome = pagerender(arguments);
    QCOMPARE(outcome.status, status);
    QVERIFY2((status == 0 ? outcome.out : outcome.err).contains(says), qPrintable(outcome.err));
}

void TestPagerender::badInput_data()
{
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QString>("says");
    const auto document = [](const QString &html) {
        return documentProgramme(html);
    };
    QTest::newRow("empty") << QByteArray() << "line 1, column 1";
    QTest::newRow("cut short") << documentProgramme("x").left(60) << "line ";
    QTest::newRow("text behind the end") << documentProgramme("x") + "}"
                                         << "line ";
    QTest::newRow("number beyond all bounds") << QByteArray("{\n  \"version\": 1e400}") << "line 2";
    QTest::newRow("not UTF-8") << QByteArray("{\"name\": \"\xff\xfe\"}") << "line 1";
    QTest::newRow("another format") << QByteArray("{\"format\": \"x\"}") << "format";
    QTest::newRow("from the future")
        << QByteArray("{\"format\": \"lctrlsex-programme\", \"version\": 99}") << "version";
    QTest::newRow("an array") << QByteArray("[]") << "object";
    QTest::newRow("deep") << QByteArray(100000, '[') << "deep";
    QTest::newRow("unknown kind of item")
        << programme({{"type", "hologram"}}) << "screens[0].frames[0].items[0].type";
    QTest::newRow("name is a number") << programme({{"name", 5}}) << "items[0].name";
    QTest::newRow("document is a number") << programme({{"document", 5}}) << "items[0].document";
    QTest::newRow("width of nothing") << programme({}, 0, 32) << "frames[0].width";
    QTest::newRow("gigantic height") << programme({}, 64, 100000) << "frames[0].height";
    QTest::newRow("attribute of a wrong kind")
        << programme({{"attributes", QJsonObject{{"ContentAlign", "middle"}}}}) << "ContentAlign";
    QTest::newRow("broken Base64")
        << programme({{"attributes", QJsonObject{{"RawHtml", "PGI+*"}}}}) << "Screen/Frame/Item";
    QTest::newRow("cut Base64") << programme({{"attributes", QJsonObject{{"RawHtml", "PGI+a"}}}})
                                << "Screen/Frame/Item";
    QTest::newRow("deep tables") << document(QString("<table><tr><td>").repeated(50)) << "table";
    QTest::newRow("missing font") << document("<p style=\"font-family:'No Such Font'\">x</p>")
                                  << "font No Such Font";
    QTest::newRow("file image") << document("<img src=\"/etc/hostname\">") << "/etc/hostname";
    QTest::newRow("web image") << document("<img src=\"http://127.0.0.1/a.png\">") << "image";
    QTest::newRow("image lies about its size")
        << document(
               "<img src=\"data:image/png;base64,iVBORw0KGgoAAAANSUhEUgAAdTAAAHUwCAIAAAAAAAAA\">")
        << "image";
    QTest::newRow("svg image") << document("<img src=\"data:image/svg+xml;base64,PHN2Zy8+\">")
                               << "image";
    QTest::newRow("no item") << QByteArray("{\"format\": \"lctrlsex-programme\", \"version\": 1}")
                             << "no text item";
}

void TestPagerender::badInput()
{
    QFETCH(QByteArray, input);
    QFETCH(QString, says);
    QTemporaryDir folder;
    QElapsedTimer timer;
    timer.start();
    const Outcome outcome = pagerender(
        {QStringLiteral("render"), QStringLiteral("-"), QStringLiteral("-o"), folder.path()},
        input);
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.err.startsWith(QStringLiteral("standard input: ")), qPrintable(outcome.err));
    QVERIFY2(outcome.err.contains(says), qPrintable(outcome.err));
    QCOMPARE(outcome.err.count(QLatin1Char('\n')), 1);
    QCOMPARE(outcome.out, QString());
    QVERIFY(QDir(folder.path()).isEmpty());
    QVERIFY(timer.elapsed() < 20000);
}

void TestPagerender::lenientMakesThePage()
{
    QTemporaryDir folder;
    const Outcome outcome =
        pagerender({QStringLiteral("render"), QStringLiteral("-"), QStringLiteral("-o"),
                    folder.path(), QStringLiteral("--lenient")},
                   documentProgramme(QStringLiteral(
                       "<p style=\"font-family:'No Such Font'; color:#fff\">x</p>")));
    QCOMPARE(outcome.status, 0);
    QVERIFY(outcome.err.contains(QStringLiteral("warning: ")));
    QVERIFY(QFile::exists(folder.filePath(QStringLiteral("Item-1.png"))));
}

void TestPagerender::oneBadItemLeavesTheOthers()
{
    QByteArray input = documentProgramme(dejavu(QStringLiteral("Good")));
    input.replace("\"items\": [", "\"items\": [{\"name\": \"Bad\", \"attributes\": "
                                  "{\"RawHtml\": \"***\"}},");
    QTemporaryDir folder;
    const Outcome outcome = pagerender(
        {QStringLiteral("render"), QStringLiteral("-"), QStringLiteral("-o"), folder.path()},
        input);
    QCOMPARE(outcome.status, 1);
    QVERIFY(outcome.err.contains(QStringLiteral("Screen/Frame/Bad")));
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), QStringList{QStringLiteral("Item-1.png")});
}

void TestPagerender::unwritableOutput_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("below a file") << source(QStringLiteral("README.md/pages"));
    QTest::newRow("not a folder") << source(QStringLiteral("README.md"));
    QTest::newRow("no such device") << QStringLiteral("/proc/pages");
    QTest::newRow("full device") << QStringLiteral("/dev/full/pages");
}

void TestPagerender::unwritableOutput()
{
    QFETCH(QString, folder);
    const Outcome outcome =
        pagerender({QStringLiteral("render"), QStringLiteral("-"), QStringLiteral("-o"), folder},
                   documentProgramme(dejavu(QStringLiteral("x"))));
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.err.count(QLatin1Char('\n')), 1);
    QVERIFY2(outcome.err.contains(folder), qPrintable(outcome.err));
}

void TestPagerender::check_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<QString>("says");
    QTest::newRow("all is well") << dejavu("Fine") << QString();
    QTest::newRow("missing font") << "<p style=\"font-family:'No Such Font';color:#fff\">x</p>"
                                  << "font No Such Font";
    QTest::newRow("missing glyph") << dejavu(QString(QChar(0xa9c1))) << "U+a9c1";
    QTest::newRow("too high") << dejavu("<span style=\"font-size:70px\">Xg</span>") << "higher";
    QTest::newRow("too wide") << "<p style=\"font-family:'DejaVu Sans'; color:#fff; "
                                 "white-space:pre\">A very long line of text</p>"
                              << "wider";
    QTest::newRow("black on black") << "<p style=\"font-family:'DejaVu Sans'\">Dark</p>"
                                    << "colour of its ground";
    QTest::newRow("many of a kind")
        << dejavu(QString("<span style=\"font-size:70px\">X</span><br/>").repeated(50))
        << "45 more";
    QTest::newRow("large image")
        << dejavu("<img width=\"900\" height=\"20\" "
                  "src=\"data:image/gif;base64,R0lGODlhAQABAIAAAP///wAAACwAAAAAAQABAAACAkQBADs=\">")
        << "larger than the item";
}

void TestPagerender::check()
{
    QFETCH(QString, html);
    QFETCH(QString, says);
    const Outcome outcome =
        pagerender({QStringLiteral("check"), QStringLiteral("-")}, documentProgramme(html));
    QCOMPARE(outcome.status, says.isEmpty() ? 0 : 1);
    QVERIFY2(says.isEmpty() || outcome.err.contains(says), qPrintable(outcome.err));
}

void TestPagerender::checksRecords()
{
    const auto said = [](const QString &styles, const QString &calculation) {
        const QJsonObject attributes{{QStringLiteral("SpanConditions"), styles},
                                     {QStringLiteral("Calculation"), calculation}};
        return pagerender(
                   {QStringLiteral("check"), QStringLiteral("-")},
                   programme({{QStringLiteral("document"),
                               dejavu(QStringLiteral("<a href=\"bindStyle;1;Storm\">Fine</a>"))},
                              {QStringLiteral("attributes"), attributes}}))
            .err;
    };
    QCOMPARE(said(R"([{"id":"1","name":"Storm","conditions":[{"expression":[">9"]}]}])",
                  R"([{"key":"sum","expressions":[{"variableName":"var1","expression":
                     {"func":"+","args":["${weather:wind}","1"]}}]}])"),
             QStringLiteral("nothing to mend\n"));
    const QString broken =
        said(R"x([{"id":"1","name":"Storm","conditions":[{"type":1,"expression":["a(b"]},
                                    {"expression":["(-,3)"]},{}]}])x",
             R"([{"key":"sum","expressions":[{"variableName":"var1","expression":
                                   {"func":"+","args":["var2","1"]}},{"variableName":"var2",
                                   "expression":{"func":"power","args":[]}}]}])");
    QVERIFY(!broken.contains(QStringLiteral("lctrlsex.")));
    for (const char *reason :
         {"Storm, condition 1: warning: the pattern a(b is broken at character 4",
          "condition 2: warning: (-,3) never", "condition 3: warning: the condition is empty",
          "calculation sum: warning: var1: argument 1 is empty",
          "there is no operator \"power\""}) {
        QVERIFY2(broken.contains(QLatin1String(reason)), qPrintable(broken));
    }
    const QString lines =
        said(R"([{"id":"1","name":"a\nb","conditions":[{}]}])",
             R"([{"key":"c\nd","expressions":[{"expression":{"func":"e\nf"}}]}])");
    QVERIFY2(lines.count(QLatin1Char('\n')) == 2, qPrintable(lines));
    QVERIFY(said(QStringLiteral("[{"), QStringLiteral("[]"))
                .contains(QStringLiteral("they cannot be read from character 2 on")));
}

void TestPagerender::fillsFromData()
{
    const QString table = QStringLiteral(
        "<html><body>%1<table border=\"1\" width=\"60\"><tr><td width=\"60\">Head</td></tr>"
        "%2</table></body></html>");
    const QString row = QStringLiteral("<tr><td width=\"60\">${name}</td></tr>");
    const QJsonObject attributes{
        {QStringLiteral("TableType"), 1},
        {QStringLiteral("TableRowBindKey"), QStringLiteral("shop:rows.{name,price}[]")},
        {QStringLiteral("TableRowTemplate"), row},
        {QStringLiteral("TableRowPlaceHolder"), QStringLiteral("table:1")},
        {QStringLiteral("StringContent"), table.arg(QString(), QStringLiteral("${table:1}"))}};
    const QByteArray input = programme({{QStringLiteral("document"), table.arg(QString(), row)},
                                        {QStringLiteral("attributes"), attributes}});
    QTemporaryDir folder;
    QFile csv(folder.filePath(QStringLiteral("a.csv")));
    QVERIFY(csv.open(QIODevice::WriteOnly));
    csv.write("name,price\nBread,1\nCheese,2\nWine,3\n");
    csv.close();
    const auto run = [&input](const QString &arguments) {
        return pagerender(arguments.split(QLatin1Char(' ')), input);
    };
    const QString render = QStringLiteral("render - -o ") + folder.path();
    QCOMPARE(run(render).status, 0); // as its author sees it
    const QString data = QStringLiteral(" --data shop=") + csv.fileName();
    const Outcome filled = run(render + data);
    QCOMPARE(filled.err, QString());
    QCOMPARE(filled.out.count(QLatin1Char('\n')), 4);
    // Without the source the page says that there is no data, and why.
    const Outcome missing = run(render + QStringLiteral(" --set shop:row=1"));
    QCOMPARE(missing.status, 0);
    QVERIFY2(missing.err.contains(QStringLiteral("leads to no data")), qPrintable(missing.err));
    const Outcome checked = run(QStringLiteral("check - --data shap=") + csv.fileName());
    QCOMPARE(checked.status, 1);
    QVERIFY2(checked.err.contains(QStringLiteral("\"shap:rows.{name,price}[]\"")),
             qPrintable(checked.err));
    for (const char *wrong :
         {" --data shop", " --data =x.csv", " --data shop=x.exe", " --set shop=1",
          " --data shop=none.csv", " --set shop:a=1 --set shop:a.b=2"}) {
        QCOMPARE(run(render + QLatin1String(wrong)).status, 1);
    }
}

void TestPagerender::opensNothingOutside()
{
    QTemporaryDir folder;
    QImage canary(8, 8, QImage::Format_RGB32);
    canary.fill(Qt::red);
    const QString path = folder.filePath(QStringLiteral("canary.png"));
    QVERIFY(canary.save(path));
    QFile style(folder.filePath(QStringLiteral("canary.css")));
    QVERIFY(style.open(QIODevice::WriteOnly));
    style.close();
    const QString html =
        QStringLiteral(
            "<html><head><link rel=\"stylesheet\" href=\"canary.css\">"
            "<style>@import url(canary.css); p{background:url(canary.png)}</style></head>"
            "<body background=\"canary.png\"><p style=\"color:#fff;font-family:'DejaVu "
            "Sans';background-image:url(%1)\">x<img src=\"canary.png\"><img src=\"%1\">"
            "<img src=\"file://%1\"><img src=\"file:canary.png\">"
            "<img src=\"//127.0.0.1/canary.png\"><img src=\"http://127.0.0.1:9/canary.png\">"
            "<img src=\"data:image/svg+xml;base64,%2\"></p>"
            "<table background=\"canary.png\"><tr><td>y</td></tr></table>")
            .arg(path, QString::fromLatin1(
                           QByteArray("<svg xmlns='http://www.w3.org/2000/svg' "
                                      "xmlns:xlink='http://www.w3.org/1999/xlink' width='9' "
                                      "height='9'><image width='9' height='9' xlink:href='" +
                                      path.toUtf8() + "'/></svg>")
                               .toBase64()));
    QFile programmeFile(folder.filePath(QStringLiteral("p.json")));
    QVERIFY(programmeFile.open(QIODevice::WriteOnly));
    programmeFile.write(documentProgramme(html));
    programmeFile.close();

    QProcess process;
    process.setWorkingDirectory(folder.path());
    process.start(QStringLiteral("strace"),
                  {QStringLiteral("-f"), QStringLiteral("-e"),
                   QStringLiteral("trace=%file,%network"), QStringLiteral("-o"),
                   QStringLiteral("trace"), QStringLiteral(LCTRLSEX_BINARY_DIR "/bin/pagerender"),
                   QStringLiteral("render"), QStringLiteral("p.json"), QStringLiteral("-o"),
                   QStringLiteral("pages"), QStringLiteral("--lenient")});
    if (!process.waitForStarted() || !process.waitForFinished(60000) || process.exitCode() != 0) {
        QSKIP("strace cannot trace here");
    }
    QVERIFY(QFile::exists(folder.filePath(QStringLiteral("pages/Item-1.png"))));
    QFile trace(folder.filePath(QStringLiteral("trace")));
    QVERIFY(trace.open(QIODevice::ReadOnly));
    const QByteArray calls = trace.readAll();
    QVERIFY(calls.contains("p.json"));
    QVERIFY2(!calls.contains("canary"), calls.constData() + qMax(0, calls.indexOf("canary") - 80));
    QVERIFY(!calls.contains("AF_INET"));
}

QTEST_MAIN(TestPagerender)
#include "tst_pagerender.moc"
