#include "datasourceconfigmanager.h"
#include "inodeclient.h"
#include "lappconfig.h"
#include "lbutton.h"
#include "lcolor.h"
#include "leffectnode.h"
#include "lnode.h"
#include "ltranslation.h"
#include "scenethumbnailcapture.h"

#include <QDataStream>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <cstddef>
#include <cstring>

namespace {

/** What comes first behind the virtual operations of QFrame. */
class FirstSlot : public QFrame
{
public:
    virtual void probe() {}
};

/** Offset into the table of virtual functions, as the Itanium ABI writes it into the pointer. */
template <typename Member>
std::ptrdiff_t slotOffset(Member member)
{
    std::ptrdiff_t raw[2];
    static_assert(sizeof member == sizeof raw, "a pointer to member is two words");
    std::memcpy(raw, &member, sizeof raw);
    return raw[0] - 1;
}

/** A compiled catalogue that translates one text, written by hand: lrelease may be missing. */
QByteArray catalogue(const QByteArray &context, const QByteArray &source, const QString &text)
{
    quint32 hash = 0;
    for (const char character : source) {
        hash = (hash << 4) + uchar(character);
        const quint32 high = hash & 0xf0000000u;
        hash = (hash ^ high >> 24) & ~high;
    }
    enum Tag : quint8 {
        End = 1,
        Translation = 3,
        Source = 6,
        Context = 7,
        Hashes = 0x42,
        Texts = 0x69
    };
    QByteArray texts;
    QDataStream message(&texts, QIODevice::WriteOnly);
    message << quint8(Translation) << text << quint8(Source) << quint32(source.size());
    message.writeRawData(source.constData(), source.size());
    message << quint8(Context) << quint32(context.size());
    message.writeRawData(context.constData(), context.size());
    message << quint8(End);
    QByteArray file = QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd");
    QDataStream stream(&file, QIODevice::Append);
    stream << quint8(Hashes) << quint32(8) << hash << quint32(0) << quint8(Texts) << texts;
    return file;
}

DataSourceConfig config(const QString &value, bool enabled = true)
{
    DataSourceKey key;
    key.name = QStringLiteral("price");
    key.value = value;
    DataSourceEntry source;
    source.name = QStringLiteral("shop");
    source.enabled = enabled;
    source.keys.append(key);
    return {{source}};
}

} // namespace

class TestLcommon : public QObject
{
    Q_OBJECT

private slots:
    void colours_data();
    void colours();
    void illegalCharacters_data();
    void illegalCharacters();
    void effectLists();
    void slotOrderOfTheClient();
    void sourcesAndConfiguration();
    void folders();
    void mainWindowIsGuarded();
    void thumbnailsAreCollected();
    void language();
    void buttonImages();
};

void TestLcommon::colours_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<unsigned int>("packed");
    QTest::addColumn<QColor>("back");
    QTest::newRow("red") << QColor(255, 0, 0) << 255u << QColor(255, 0, 0);
    QTest::newRow("green") << QColor(0, 255, 0) << 0xff00u << QColor(0, 255, 0);
    QTest::newRow("blue") << QColor(0, 0, 255) << 0xff0000u << QColor(0, 0, 255);
    QTest::newRow("alpha is lost") << QColor(1, 2, 3, 4) << 0x030201u << QColor(1, 2, 3);
    QTest::newRow("invalid") << QColor() << 0u << QColor(0, 0, 0);
    QTest::newRow("hue") << QColor::fromHsv(120, 255, 255) << 0xff00u << QColor(0, 255, 0);
}

void TestLcommon::colours()
{
    QFETCH(QColor, color);
    QFETCH(unsigned int, packed);
    QCOMPARE(QColor_TO_BGR(color), packed);
    QCOMPARE(LAppConfig::ColorToInt(color), int(packed));
    QTEST(BGR_TO_QColor(packed | 0xff000000u), "back");
    QTEST(LAppConfig::IntToColor(int(packed | 0xff000000u)), "back");
}

void TestLcommon::illegalCharacters_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("illegal");
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("generated") << QString("Configuration item_1") << false;
    QTest::newRow("file") << QString("prices-2024.csv") << false;
    QTest::newRow("Chinese") << QString("价格表 一") << false;
    QTest::newRow("beyond the first plane") << QString::fromUcs4(U"\U00020bb7") << false;
    QTest::newRow("lone surrogate") << QString(QChar(0xd842)) << true;
    QTest::newRow("line separator") << QString(QChar(0x2028)) << true;
    for (const char illegal : QByteArray(":;,$%&|*?\"'/\\<>{}[]\n\t\0", 22)) {
        QTest::addRow("character %d", illegal) << QString("a%1b").arg(QChar(illegal)) << true;
    }
}

void TestLcommon::illegalCharacters()
{
    QFETCH(QString, name);
    QTEST(DataSourceConfigManager::ContainsIllegalChars(name), "illegal");
}

void TestLcommon::effectLists()
{
    const auto numbers = [](const QVector<LEffectItem> &items) {
        QList<int> found;
        for (const LEffectItem &item : items) {
            found.append(item.effectType);
        }
        return found;
    };
    const QList<int> display = numbers(LEffectNode::GetDispEffectName());
    const QList<int> clear = numbers(LEffectNode::GetClearEffectName());
    for (const QList<int> &list : {display, clear}) {
        QVERIFY(list.contains(0));
        QVERIFY(list.contains(25));
        QCOMPARE(QSet<int>(list.cbegin(), list.cend()).size(), list.size());
    }
    QVERIFY(!display.contains(20));
    QVERIFY(clear.contains(20));
    QVERIFY(display.size() >= 20);
    QSet<QString> names;
    for (const LEffectItem &item : LEffectNode::GetClearEffectName()) {
        names.insert(item.name);
    }
    QCOMPARE(names.size(), clear.size());
}

void TestLcommon::slotOrderOfTheClient()
{
    constexpr std::ptrdiff_t word = sizeof(void *);
    const std::ptrdiff_t first = slotOffset(&FirstSlot::probe);
    QCOMPARE(slotOffset(&Lum::INodeClient::GetClient), first);
    QCOMPARE(slotOffset(&Lum::INodeClient::GetAttributesWidget), first + word);
    QCOMPARE(slotOffset(&Lum::INodeClient::GetEditeWidget), first + 2 * word);
    QCOMPARE(slotOffset(&Lum::INodeClient::Init), first + 3 * word);
    QCOMPARE(slotOffset(&Lum::INodeClient::Finish), first + 4 * word);
    QVERIFY(Lum::INodeClient::staticMetaObject.indexOfSignal("editFinish()") >= 0);
}

void TestLcommon::sourcesAndConfiguration()
{
    auto *const manager = DataSourceConfigManager::instance();
    QSignalSpy sources(manager, &DataSourceConfigManager::SourceChanged);
    QSignalSpy configuration(manager, &DataSourceConfigManager::ConfigChanged);
    const auto counts = [&] {
        return QPoint(sources.count(), configuration.count());
    };

    manager->SetConfig(config("3"));
    manager->SetConfig(config("3"));
    QCOMPARE(counts(), QPoint(0, 1));
    manager->SetConfig(config("4"));
    QCOMPARE(counts(), QPoint(1, 1));
    manager->SetConfig(config("4", false));
    QCOMPARE(counts(), QPoint(1, 2));
    QCOMPARE(manager->GetConfig().find("shop")->keys.first().value, QString("4"));
    QVERIFY(!manager->GetConfig().find("bank"));

    manager->SetDynamicData({{"shop", {{"price", "3", true}}}});
    QCOMPARE(counts(), QPoint(1, 3));
    manager->SetDynamicData({{"shop", {{"price", "5", true}}}});
    QCOMPARE(counts(), QPoint(2, 3));
    manager->SetDynamicData({{"shop", {{"price", "5", false}}}});
    QCOMPARE(counts(), QPoint(2, 4));
}

void TestLcommon::folders()
{
    QTemporaryDir folder;
    qputenv("LCTRLSEX_APP_DIR", (folder.path() + "/a/../app/").toLocal8Bit());
    qputenv("LCTRLSEX_DATA_DIR", folder.path().toLocal8Bit());
    QCOMPARE(LAppConfig::AppDir(), folder.path() + "/app");
    QCOMPARE(LAppConfig::AppDataDir(), folder.path());
    qunsetenv("LCTRLSEX_APP_DIR");
    qunsetenv("LCTRLSEX_DATA_DIR");
    const QString installed =
        QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../share/lctrlsex");
    QCOMPARE(LAppConfig::AppDir(),
             QDir(installed).exists() ? installed : QCoreApplication::applicationDirPath());
    QVERIFY(LAppConfig::AppDataDir().endsWith("/lctrlsex"));
}

void TestLcommon::mainWindowIsGuarded()
{
    LAppConfig *const config = LAppConfig::instance();
    QVERIFY(!config->GetMainWindow());
    {
        QWidget window;
        config->SetMainWindow(&window);
        QCOMPARE(config->GetMainWindow(), &window);
    }
    QVERIFY(!config->GetMainWindow());
}

void TestLcommon::thumbnailsAreCollected()
{
    auto *const capture = SceneThumbnailCapture::instance();
    QVector<LNode *> delivered;
    LNode first;
    LNode second;
    auto *const gone = new LNode;
    QObject context;
    connect(capture, &SceneThumbnailCapture::ThumbnailRequested, &context, [&](LNode *node) {
        delivered.append(node);
        if (delivered.size() == 1) {
            capture->requestFromNode(&second);
        }
    });
    capture->requestFromNode(nullptr);
    for (int i = 0; i < 100; ++i) {
        capture->requestFromNode(gone);
        capture->requestFromNode(&second);
        capture->requestFromNode(&first);
    }
    delete gone;
    QVERIFY(delivered.isEmpty());
    QTRY_COMPARE(delivered, QVector<LNode *>({&second, &first, &second}));
}

void TestLcommon::language()
{
    QTemporaryDir folder;
    const auto write = [&folder](const QString &name, const QByteArray &content) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), qint64(content.size()));
    };
    write("broken_zh_CN.qm", "not a catalogue");
    write("lctrlsex_de.qm", catalogue("LEffectNode", "Random", "Zufall"));
    write("host_de.qm", catalogue("LEffectNode", "Fade", "Blende"));
    auto *const service = LTranslation::instance();
    QSignalSpy changes(service, &LTranslation::LanguageChanged);
    QVERIFY(!service->SetLanguage("de"));
    service->SetFolder(folder.path());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("broken_zh_CN.qm"));
    QVERIFY(!service->SetLanguage("zh_CN"));
    QCOMPARE(changes.count(), 0);
    QCOMPARE(service->Language(), QString("en"));
    QCOMPARE(service->AvailableLanguages(), QStringList({"de", "en", "zh_CN"}));

    const auto names = [] {
        QStringList found;
        for (const LEffectItem &item : LEffectNode::GetDispEffectName()) {
            found.append(item.name);
        }
        return found;
    };
    QVERIFY(service->SetLanguage("de"));
    QVERIFY(names().contains("Zufall") && names().contains("Blende"));
    QVERIFY(service->SetLanguage("en"));
    QVERIFY(names().contains("Random") && names().contains("Fade"));
    QCOMPARE(changes.count(), 2);
}

void TestLcommon::buttonImages()
{
    QTemporaryDir folder;
    const auto save = [&folder](const QString &name, Qt::GlobalColor color) {
        QImage image(40, 40, QImage::Format_ARGB32);
        image.fill(color);
        return image.save(folder.filePath(name)) ? folder.filePath(name) : QString();
    };
    const QString normal = save("normal.png", Qt::red).chopped(4);
    const QString active = save("active.png", Qt::green);
    LButton button;
    button.setCheckable(true);
    button.resize(40, 30);
    button.SetBtnImage(normal, active, 10);
    const auto shown = [&button] {
        return button.icon().pixmap(10, 10).toImage().pixelColor(5, 5);
    };
    QCOMPARE(button.iconSize(), QSize(20, 20));
    QCOMPARE(shown(), QColor(Qt::red));
    button.setChecked(true);
    QCOMPARE(shown(), QColor(Qt::green));
    button.setChecked(false);
    QEvent enter(QEvent::Enter);
    QCoreApplication::sendEvent(&button, &enter);
    QCOMPARE(shown(), QColor(Qt::green));
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&button, &leave);
    QCOMPARE(shown(), QColor(Qt::red));

    button.SetBtnImage(folder.filePath("missing"), active, -5);
    QCOMPARE(shown(), QColor(Qt::green));
}

QTEST_MAIN(TestLcommon)
#include "tst_lcommon.moc"
