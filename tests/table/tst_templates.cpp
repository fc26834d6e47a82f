#include "ltexteffectnode.h"
#include "table/tablebinding.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

using namespace lctrlsex;
using Node = LTextEffectNode;

/** What of a table is stored as its template: every folder of data/templates is a case. */
class TestTemplates : public QObject
{
    Q_OBJECT

private slots:
    void cases_data();
    void cases();
    void stopsWithTheNode();
};

namespace {

using Get = QString (Node::*)() const;

/** Template, prefix, suffix and placeholder by table type; null where there is none. */
const Get Stored[4][4] = {
    {&Node::GetTableFixedTemplate, nullptr, nullptr, &Node::GetTableFixedPlaceHolder},
    {&Node::GetTableRowTemplate, nullptr, nullptr, &Node::GetTableRowPlaceHolder},
    {&Node::GetTableColTemplate, &Node::GetTableColTemplatePrefix, &Node::GetTableColTemplateSuffix,
     &Node::GetTableColPlaceHolder},
    {&Node::GetTableAdaptRowsCols, &Node::GetTableAdaptRowsColsTemplatePrefix,
     &Node::GetTableAdaptRowsColsTemplateSuffix, &Node::GetTableAdaptRowsColsPlaceHolder}};

QString fileText(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString stored(const Node &node, int type, int text)
{
    const Get get = Stored[type][text];
    return get != nullptr ? (node.*get)() : QString();
}

void bind(Node *node, int type, bool hasHeader, const QString &key)
{
    node->SetTableType(type);
    node->SetTableHeader(hasHeader);
    QStringList keys{key, QString(), QString(), QString(), QString()};
    keys[type > 3 ? 1 : type + 1] = key;
    setBindKeys(node, keys, [] { return true; });
}

/** The document with one line of data that has as many values as the table was drawn with. */
QString putTogether(const Node &node, int type, int repetitions)
{
    const QString separator = node.GetTableColTemplateSeparator();
    const QStringList parts =
        type < 2 ? QStringList(stored(node, type, 0)) : stored(node, type, 0).split(separator);
    const QStringList prefixes = stored(node, type, 1).split(type < 2 ? QString("-") : separator);
    const QStringList suffixes = stored(node, type, 2).split(type < 2 ? QString("-") : separator);
    QString table;
    for (int row = 0; row < parts.size(); ++row) {
        table += prefixes.at(row) + parts.at(row).repeated(row == 0 ? repetitions : 1) +
                 suffixes.at(row);
    }
    return node.GetStringContent().replace("${" + stored(node, type, 3) + "}", table);
}

} // namespace

void TestTemplates::cases_data()
{
    QTest::addColumn<QString>("folder");
    const QDir cases(QFINDTESTDATA("../data/templates"));
    const QStringList names = cases.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    QVERIFY(!names.isEmpty());
    for (const QString &name : names) {
        QTest::newRow(qPrintable(name)) << cases.filePath(name) + "/";
    }
}

void TestTemplates::cases()
{
    QFETCH(QString, folder);
    const QJsonObject said =
        QJsonDocument::fromJson(fileText(folder + "node.json").toUtf8()).object();
    const QString input = fileText(folder + "input.html");
    const int type = said["type"].toInt() > 3 ? 0 : said["type"].toInt();
    Node node;
    bind(&node, said["type"].toInt(), said["header"].toBool(), said["key"].toString());
    node.SetTableRowTemplate("before");
    node.SetTableColTemplatePrefix("before");
    if (said.contains("error")) {
        const QString warning = QString("^HTML parse error at line %1 column \\d+ : \".+\"$");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(warning.arg(said["error"].toInt())));
    }
    storeTemplate(&node, input, [] { return true; });

    const bool isUntouched = said["isUntouched"].toBool();
    const bool isCut = QFile::exists(folder + "content.html");
    QCOMPARE(node.GetTableRowTemplate() == "before", isUntouched);
    QCOMPARE(node.GetTableColTemplatePrefix() == "before", isUntouched);
    const QString token = stored(node, type, 3);
    QCOMPARE(node.GetStringContent(),
             isCut ? fileText(folder + "content.html").replace("TOKEN", token) : input);
    if (!isCut) {
        QVERIFY(isUntouched || stored(node, type, 0).isEmpty());
        return;
    }
    QVERIFY(QRegularExpression("^table:\\d+$").match(token).hasMatch());
    const char *const files[] = {"part.html", "prefix.html", "suffix.html"};
    for (int text = 0; text < 3; ++text) {
        const QString expected = fileText(folder + files[text]);
        QCOMPARE(stored(node, type, text),
                 type < 2 ? expected
                          : QString(expected).replace("\n", node.GetTableColTemplateSeparator()));
    }
    QCOMPARE(node.GetTableFixedRow(), said["fixedRows"].toInt());
    if (said["roundTrip"].toBool()) {
        QCOMPARE(putTogether(node, type, said["repeated"].toInt(1)).remove("\n"),
                 QString(input).remove("\n"));
    }
}

/** Two extractions of one document differ in the token only; no other host is asked after the end.
 */
void TestTemplates::stopsWithTheNode()
{
    const QString html = "<html><body><table><tr><td>${0}</td></tr></table></body></html>";
    Node node;
    for (int type = 0; type < 4; ++type) {
        bind(&node, type, false, "s:x[][]");
        QStringList tokens;
        for (int i = 0; i < 2; ++i) {
            storeTemplate(&node, html, [] { return true; });
            tokens.append(stored(node, type, 3));
        }
        QVERIFY(tokens.first() != tokens.last());
        int calls = 3;
        storeTemplate(&node, html, [&calls] { return calls-- > 0; });
        QVERIFY(node.GetStringContent() == html);
        QCOMPARE(stored(node, type, 3), tokens.last());
    }
}

QTEST_GUILESS_MAIN(TestTemplates)
#include "tst_templates.moc"
