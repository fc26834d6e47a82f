#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QtTest>

namespace {

constexpr int Patience = 60000; // milliseconds

struct Message
{
    QString context;
    QString source;
    QString state;
    bool isNumerus = false;
    QStringList forms;

    [[nodiscard]] QString key() const { return context + ": " + source; }
};

Message readMessage(QXmlStreamReader *xml, const QString &context)
{
    Message message;
    message.context = context;
    message.isNumerus = xml->attributes().value("numerus") == QLatin1String("yes");
    while (xml->readNextStartElement()) {
        if (xml->name() == QLatin1String("source")) {
            message.source = xml->readElementText();
        } else if (xml->name() == QLatin1String("translation")) {
            message.state = xml->attributes().value("type").toString();
            if (!message.isNumerus) {
                message.forms = QStringList{xml->readElementText()};
                continue;
            }
            while (xml->readNextStartElement()) {
                message.forms.append(xml->readElementText());
            }
        } else {
            xml->skipCurrentElement();
        }
    }
    return message;
}

QVector<Message> readCatalogue(const QString &name)
{
    QVector<Message> messages;
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) {
        return messages;
    }
    QXmlStreamReader xml(&file);
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("message")) {
            messages.append(readMessage(&xml, context));
        }
    }
    return xml.hasError() ? QVector<Message>() : messages;
}

/** All that matches in a text, sorted: what must be the same in source and translation. */
QStringList marks(const QString &text, const QString &pattern)
{
    QStringList found;
    auto matches = QRegularExpression(pattern).globalMatch(text);
    while (matches.hasNext()) {
        found.append(matches.next().captured());
    }
    found.sort();
    return found;
}

QString faultOf(const Message &message)
{
    for (const QString &form : message.forms) {
        if (form.trimmed().isEmpty()) {
            return "is not translated";
        }
        for (const char *same : {"%L?[0-9]+", "%n", R"(\[\*\])", R"(\.\.\.$)", "…$", "\n"}) {
            if (marks(form, same) != marks(message.source, same)) {
                return QString("differs in %1: %2").arg(same, form);
            }
        }
        const char *const mnemonic = "&[A-Za-z]";
        if (marks(form, mnemonic).size() != marks(message.source, mnemonic).size()) {
            return "lost or gained its mnemonic: " + form;
        }
        if (form.front().isSpace() != message.source.front().isSpace()) {
            return "differs in the blank before it: " + form;
        }
    }
    return message.forms.isEmpty() ? "is not translated" : QString();
}

} // namespace

/** The catalogues against the sources, with the translators' own tools. */
class TestCatalogues : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void holdsTheTextsOfTheSources_data() { languages(); }
    void holdsTheTextsOfTheSources();
    void translatesEveryText_data() { languages(); }
    void translatesEveryText();
    void compilesWithoutWarning_data() { languages(); }
    void compilesWithoutWarning();

private:
    void languages();
    static QString stored(const QString &language)
    {
        return QString(LCTRLSEX_SOURCE_DIR "/translations/lctrlsex_%1.ts").arg(language);
    }
    QTemporaryDir m_folder;
};

void TestCatalogues::initTestCase()
{
    QProcess update;
    update.setProcessChannelMode(QProcess::MergedChannels);
    update.start("sh", {LCTRLSEX_SOURCE_DIR "/translations/update.sh", m_folder.path()});
    QVERIFY(update.waitForFinished(Patience));
    const QByteArray said = update.readAll();
    QVERIFY2(update.exitCode() == 0 && said.isEmpty(), said.constData());
}

void TestCatalogues::languages()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("leastCount");
    QTest::newRow("only plural forms") << "en" << 2;
    QTest::newRow("every text") << "zh_CN" << 400;
}

void TestCatalogues::holdsTheTextsOfTheSources()
{
    QFETCH(QString, language);
    QFETCH(int, leastCount);
    const auto keys = [](const QVector<Message> &messages) {
        QSet<QString> result;
        for (const Message &message : messages) {
            result.insert(message.key());
        }
        return result;
    };
    const QVector<Message> fresh =
        readCatalogue(QString("%1/lctrlsex_%2.ts").arg(m_folder.path(), language));
    QVERIFY(fresh.size() >= leastCount);
    const QSet<QString> wanted = keys(fresh);
    const QSet<QString> there = keys(readCatalogue(stored(language)));
    const QString missing = QStringList((wanted - there).values()).join("\n");
    const QString stale = QStringList((there - wanted).values()).join("\n");
    QVERIFY2(missing.isEmpty(), qPrintable("run translations/update.sh, translate:\n" + missing));
    QVERIFY2(stale.isEmpty(), qPrintable("run translations/update.sh to drop:\n" + stale));
}

void TestCatalogues::translatesEveryText()
{
    QFETCH(QString, language);
    QStringList faults;
    const QVector<Message> messages = readCatalogue(stored(language));
    QVERIFY(!messages.isEmpty());
    for (const Message &message : messages) {
        const QString fault = message.state.isEmpty() ? faultOf(message) : message.state;
        if (!fault.isEmpty()) {
            faults.append(message.key() + ": " + fault);
        }
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join("\n")));
}

void TestCatalogues::compilesWithoutWarning()
{
    QFETCH(QString, language);
    QProcess compile;
    compile.setProcessChannelMode(QProcess::MergedChannels);
    compile.start(LRELEASE_PROGRAM,
                  {"-silent", stored(language), "-qm", m_folder.filePath(language + ".qm")});
    QVERIFY(compile.waitForFinished(Patience));
    const QByteArray said = compile.readAll();
    QVERIFY2(compile.exitCode() == 0 && said.isEmpty(), said.constData());
}

QTEST_GUILESS_MAIN(TestCatalogues)
#include "tst_catalogues.moc"
