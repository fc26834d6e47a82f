#include "languagewindow.h"
#include "ltranslation.h"
#include "widgettexts.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QXmlStreamReader>

using namespace workbench;

/** The language of the window changes while it is open. */
class TestLanguage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup() { m_window.close(); }

    void switchesAndReturns_data();
    void switchesAndReturns();
    void keepsMenuLettersApart_data();
    void keepsMenuLettersApart();

private:
    LanguageWindow m_window;
};

/** The texts of the catalogue that differ in Chinese, as patterns that match them filled in. */
static QVector<QRegularExpression> translatedSources()
{
    QVector<QRegularExpression> patterns;
    QFile file(LCTRLSEX_SOURCE_DIR "/translations/lctrlsex_zh_CN.ts");
    if (!file.open(QIODevice::ReadOnly)) {
        return patterns;
    }
    QXmlStreamReader xml(&file);
    QString source;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == QLatin1String("source")) {
            source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation") &&
                   source.contains(QRegularExpression("[A-Za-z]{2}")) &&
                   xml.readElementText(QXmlStreamReader::IncludeChildElements).trimmed() !=
                       source) {
            QString pattern = QRegularExpression::escape(source);
            pattern.replace(QRegularExpression("\\\\%(\\d|n)"), ".*");
            // A sentence may stand in a longer text, a word of its own may not.
            const bool isSentence = source.count(' ') > 2;
            patterns.append(QRegularExpression(isSentence ? pattern : "^" + pattern + "$"));
        }
    }
    return patterns;
}

/** Texts of the window that the catalogue has but that are still, or in part, English. */
static QStringList untranslated(const QWidget *window)
{
    static const QVector<QRegularExpression> sources = translatedSources();
    // What was done, or was said about a file, keeps the words of that moment.
    static const QRegularExpression past("/(Undo|Redo) |NoticeBar");
    QStringList stale;
    const QMap<QString, QString> texts = textsOf(window);
    for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
        for (const QRegularExpression &source : sources) {
            if (source.match(text.value()).hasMatch() && !text.key().contains(past)) {
                stale.append(text.key() + " = " + text.value());
                break;
            }
        }
    }
    return sources.isEmpty() ? QStringList("no catalogue") : stale;
}

static QStringList differences(const QMap<QString, QString> &before,
                               const QMap<QString, QString> &after)
{
    QStringList places = before.keys();
    for (const QString &place : after.keys()) {
        if (!before.contains(place)) {
            places.append(place);
        }
    }
    QStringList different;
    for (const QString &place : qAsConst(places)) {
        if (before.value(place) != after.value(place)) {
            different.append(place + ": " + before.value(place) + " -> " + after.value(place));
        }
    }
    return different;
}

void TestLanguage::initTestCase()
{
    const QString fault = m_window.setUp();
    QVERIFY2(fault.isEmpty(), qPrintable(fault));
    QCOMPARE(LTranslation::instance()->AvailableLanguages(), QStringList({"en", "zh_CN"}));
}

void TestLanguage::switchesAndReturns_data()
{
    QTest::addColumn<QString>("state");
    for (const QString &state : LanguageWindow::states()) {
        QTest::newRow(qPrintable(state)) << state;
    }
}

void TestLanguage::switchesAndReturns()
{
    QFETCH(QString, state);
    QVERIFY(m_window.speak("en"));
    QVERIFY(m_window.open(QSize(1280, 800)));
    m_window.enter(state);
    QTest::qWait(400); // Until thumbnails have told what is wrong with their items.
    const QMap<QString, QString> english = textsOf(m_window.get());
    const QMap<QString, int> choices = choicesOf(m_window.get());
    QVERIFY(english.size() > 150);

    QVERIFY(m_window.speak("zh_CN"));
    TELL(untranslated(m_window.get()));
    QCOMPARE(choicesOf(m_window.get()), choices);
    QCOMPARE(m_window->findChild<QAction *>("Save")->text(), QString("保存(&S)"));

    QVERIFY(m_window.speak("en"));
    TELL(differences(english, textsOf(m_window.get())));
    QCOMPARE(choicesOf(m_window.get()), choices);
}

void TestLanguage::keepsMenuLettersApart_data()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("en") << "en";
    QTest::newRow("zh_CN") << "zh_CN";
}

void TestLanguage::keepsMenuLettersApart()
{
    QFETCH(QString, language);
    QVERIFY(m_window.open(QSize(1280, 800)));
    QVERIFY(m_window.speak(language));
    QList<QWidget *> menus{m_window->menuBar()};
    for (QMenu *menu : m_window->findChildren<QMenu *>()) {
        menus.append(menu);
    }
    for (const QWidget *menu : qAsConst(menus)) {
        QMap<QString, QString> taken;
        for (const QAction *action : menu->actions()) {
            const QString letter = QKeySequence::mnemonic(action->text()).toString();
            QVERIFY2(letter.isEmpty() || !taken.contains(letter),
                     qPrintable(action->text() + " and " + taken.value(letter)));
            taken.insert(letter, action->text());
        }
    }
}

int main(int argc, char **argv)
{
    qputenv("QT_FONT_DPI", "72");
    QApplication application(argc, argv);
    dressApplication();
    TestLanguage test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_language.moc"
