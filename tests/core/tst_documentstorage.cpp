#include "documentstorage.h"

#include <QtTest>

using namespace lctrlsex;

class tst_DocumentStorage : public QObject
{
    Q_OBJECT

private slots:
    void comesBack_data();
    void comesBack();
    void everyCutIsNoticed();
    void refuses_data();
    void refuses();
    void toleratesBlanks();
};

void tst_DocumentStorage::comesBack_data()
{
    QTest::addColumn<QString>("html");
    QTest::addColumn<QString>("back");

    const auto same = [](const char *name, const QString &html) {
        QTest::newRow(name) << html << html;
    };
    same("empty", QString());
    same("one letter", "a");
    same("two letters", "ab");
    same("three letters", "abc");
    same("Chinese", QStringLiteral("<p>\u6e29\u5ea6 21\u2103</p>"));
    same("outside the basic plane", QString::fromUtf8("\xf0\x9f\x98\x80"));
    same("byte order mark", QString(QChar(0xfeff)) + "a");
    same("controls and noncharacters",
         QString(QChar(0)) + QChar(1) + QChar(0x7f) + QChar(0xfffe) + QChar(0xffff));
    QTest::newRow("lone surrogates")
        << QString(QChar(0xd83d)) + "a" + QChar(0xde00) << QStringLiteral("\ufffda\ufffd");
}

void tst_DocumentStorage::comesBack()
{
    QFETCH(QString, html);
    QFETCH(QString, back);
    const DecodedDocument decoded = decodeDocument(encodeDocument(html));
    QVERIFY2(decoded.error.isEmpty(), qPrintable(decoded.error));
    QCOMPARE(decoded.html, back);
}

void tst_DocumentStorage::everyCutIsNoticed()
{
    const QString stored = encodeDocument(QStringLiteral("<p>\u6e29\u5ea6</p>!"));
    for (int length = 1; length < stored.size(); ++length) {
        const DecodedDocument decoded = decodeDocument(stored.left(length));
        // Only a cut between two groups of four leaves sound Base64; then the text may be sound
        // too.
        const bool sound = length % 4 == 0;
        QVERIFY2(sound || !decoded.error.isEmpty(), qPrintable(stored.left(length)));
        QVERIFY(decoded.error.isEmpty() || decoded.html.isEmpty());
    }
}

void tst_DocumentStorage::refuses_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("place");

    QTest::newRow("foreign character") << "YWJj*GFi"
                                       << "position 5";
    QTest::newRow("URL alphabet") << "_-__"
                                  << "position 1";
    QTest::newRow("not even ASCII") << QStringLiteral("YWJ\u0141") << "U+0141";
    QTest::newRow("null character") << QString("YWJj") + QChar(0) << "U+0000";
    QTest::newRow("padding alone") << "===="
                                   << "position 1";
    QTest::newRow("padding in the first group") << "Y==="
                                                << "position 2";
    QTest::newRow("padding too long") << "YWI=="
                                      << "position 5";
    QTest::newRow("padding missing") << "YWI"
                                     << "character 3";
    QTest::newRow("padding too short") << "YQ="
                                       << "character 3";
    QTest::newRow("data behind padding") << "YQ==YQ=="
                                         << "position 5";
    QTest::newRow("data inside padding") << "YQ=Y"
                                         << "position 4";
    QTest::newRow("bits left over") << "YR=="
                                    << "character 4";
    QTest::newRow("UTF-8 cut") << QString::fromLatin1(QByteArray("ab\xe6\xb8").toBase64())
                               << "byte 3";
    QTest::newRow("UTF-8 overlong")
        << QString::fromLatin1(QByteArray("\xc0\x80").toBase64()) << "byte 1";
    QTest::newRow("UTF-8 surrogate")
        << QString::fromLatin1(QByteArray("a\xed\xa0\x80").toBase64()) << "byte 2";
    QTest::newRow("UTF-8 stray byte")
        << QString::fromLatin1(QByteArray("abc\x80").toBase64()) << "byte 4";
}

void tst_DocumentStorage::refuses()
{
    QFETCH(QString, stored);
    QFETCH(QString, place);
    const DecodedDocument decoded = decodeDocument(stored);
    QVERIFY(decoded.html.isEmpty());
    QVERIFY2(decoded.error.contains(place), qPrintable(decoded.error));
}

void tst_DocumentStorage::toleratesBlanks()
{
    QCOMPARE(decodeDocument("\n PHA+\r\n\tYTwv cD4=\n ").html, QString("<p>a</p>"));
    QVERIFY(decodeDocument(" \n\t ").error.isEmpty());
}

QTEST_APPLESS_MAIN(tst_DocumentStorage)
#include "tst_documentstorage.moc"
