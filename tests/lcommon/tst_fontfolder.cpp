#include "fontfolder.h"
#include "lappconfig.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFontDatabase>
#include <QRawFont>
#include <QTemporaryDir>
#include <QtTest>

class TestFontFolder : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void everyNameIsAFamily();
    void secondFillIsSkipped();
    void usersFilesStay();
    void brokenLinkIsReplaced();
    void newFamiliesOnRequest();
    void unusableFolder();

private:
    QScopedPointer<QTemporaryDir> m_base;
    QString m_folder;
};

void TestFontFolder::init()
{
    m_base.reset(new QTemporaryDir);
    m_folder = m_base->filePath("outputpath/Font");
}

void TestFontFolder::everyNameIsAFamily()
{
    qputenv("LCTRLSEX_DATA_DIR", m_base->path().toLocal8Bit());
    const FontFolder::Result result = FontFolder::fill();
    QCOMPARE(FontFolder::path(), m_folder);
    qunsetenv("LCTRLSEX_DATA_DIR");
    if (result.files == 0) {
        QVERIFY(!result.error.isEmpty());
        QSKIP("the system has no TrueType font");
    }
    QCOMPARE(result.error, QString());
    const QFileInfoList files = QDir(m_folder).entryInfoList(QDir::Files);
    QCOMPARE(files.size(), result.files);
    const QStringList families = QFontDatabase().families();
    bool cjkLinked = result.cjkFamily.isEmpty();
    for (const QFileInfo &file : files) {
        QVERIFY2(families.contains(file.baseName()), qPrintable(file.fileName()));
        QVERIFY(file.isSymLink() && file.exists());
        QVERIFY(QStringList({"ttf", "ttc"}).contains(file.suffix()));
        cjkLinked = cjkLinked || file.baseName() == result.cjkFamily;
    }
    QVERIFY(cjkLinked);
    const bool qtKnowsChinese =
        !QFontDatabase().families(QFontDatabase::SimplifiedChinese).isEmpty();
    QVERIFY(!qtKnowsChinese || !result.cjkFamily.isEmpty());
    if (!result.cjkFamily.isEmpty()) {
        QVERIFY(QRawFont::fromFont(QFont(result.cjkFamily)).supportsCharacter(QChar(0x4e2d)));
    }
}

void TestFontFolder::secondFillIsSkipped()
{
    const FontFolder::Result first = FontFolder::fill(FontFolder::WhenNeeded, m_folder);
    const FontFolder::Result second = FontFolder::fill(FontFolder::WhenNeeded, m_folder);
    QVERIFY(!first.skipped);
    QCOMPARE(second.skipped, first.files > 0);
    QCOMPARE(second.files, first.files);
    QCOMPARE(second.cjkFamily, first.cjkFamily);
}

void TestFontFolder::usersFilesStay()
{
    const FontFolder::Result plain = FontFolder::fill(FontFolder::WhenNeeded, m_folder);
    const QFileInfoList links = QDir(m_folder).entryInfoList(QDir::Files, QDir::Name);
    if (links.isEmpty()) {
        QSKIP("the system has no TrueType font");
    }
    const QString own = links.first().filePath();
    QVERIFY(QFile::remove(own));
    QFile file(own);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("mine") == 4);
    file.close();
    const FontFolder::Result again = FontFolder::fill(FontFolder::Always, m_folder);
    QCOMPARE(again.error, QString());
    QCOMPARE(again.files, plain.files);
    QVERIFY(!QFileInfo(own).isSymLink());
    QCOMPARE(QFileInfo(own).size(), 4);
}

void TestFontFolder::brokenLinkIsReplaced()
{
    const FontFolder::Result plain = FontFolder::fill(FontFolder::WhenNeeded, m_folder);
    const QFileInfoList links = QDir(m_folder).entryInfoList(QDir::Files, QDir::Name);
    if (links.isEmpty()) {
        QSKIP("the system has no TrueType font");
    }
    const QString link = links.last().filePath();
    QVERIFY(QFile::remove(link));
    QVERIFY(QFile::link("/nowhere/font.ttf", link));
    const FontFolder::Result again = FontFolder::fill(FontFolder::WhenNeeded, m_folder);
    QVERIFY(!again.skipped);
    QCOMPARE(again.files, plain.files);
    QVERIFY(QFileInfo::exists(link));
}

void TestFontFolder::newFamiliesOnRequest()
{
    const FontFolder::Result plain = FontFolder::fill(FontFolder::WhenNeeded, m_folder);
    if (plain.files < 3) {
        QSKIP("the system has too few TrueType fonts");
    }
    // A link that the user removed stays away until the fonts are read again.
    for (const QFileInfo &link : QDir(m_folder).entryInfoList(QDir::Files)) {
        if (link.baseName() != plain.cjkFamily) {
            QVERIFY(QFile::remove(link.filePath()));
            break;
        }
    }
    QVERIFY(FontFolder::fill(FontFolder::WhenNeeded, m_folder).skipped);
    QCOMPARE(FontFolder::fill(FontFolder::Always, m_folder).files, plain.files);
}

void TestFontFolder::unusableFolder()
{
    QFile obstacle(m_base->filePath("outputpath"));
    QVERIFY(obstacle.open(QIODevice::WriteOnly));
    const FontFolder::Result result = FontFolder::fill(FontFolder::WhenNeeded, m_folder);
    QCOMPARE(result.files, 0);
    QVERIFY(result.error.startsWith("Cannot make the folder " + m_folder + ": "));
    QVERIFY(!result.error.endsWith(": "));
}

QTEST_MAIN(TestFontFolder)
#include "tst_fontfolder.moc"
