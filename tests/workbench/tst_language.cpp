#include "fontfolder.h"
#include "lcontrollernode.h"
#include "leffectnode.h"
#include "ltranslation.h"
#include "mainwindow.h"
#include "modalanswerer.h"
#include "programmedocument.h"
#include "pseudolocale.h"
#include "widgettexts.h"
#include "workbenchstyle.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QDockWidget>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <QtTest>

#include <memory>

using namespace workbench;

/** Fails with all the faults found, of which there should be none. */
#define TELL(faults)                                                                               \
    do {                                                                                           \
        const QStringList found = faults;                                                          \
        QVERIFY2(found.isEmpty(), qPrintable(found.join("\n")));                                   \
    } while (false)

/** The workbench's window with the real plug-in in several languages. */
class TestLanguage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void switchesAndReturns_data() { states(); }
    void switchesAndReturns();
    void keepsMenuLettersApart_data();
    void keepsMenuLettersApart();
    void tellsWhatIsCramped();
    void leavesRoomForLongTexts_data();
    void leavesRoomForLongTexts();
    void leavesRoomInDialogs_data();
    void leavesRoomInDialogs();

private:
    static void states();
    void open(const QSize &size);
    /** Brings the window into the state of that name. */
    void enter(const QString &state);
    LNode *node(const QList<int> &path) const;
    void speak(const QString &language);
    void speakPseudo();
    QStringList unspoken(const QWidget *window) const;

    LoadedPlugin m_plugin;
    QTemporaryDir m_folder;
    PseudoLocale m_pseudo;
    std::unique_ptr<MainWindow> m_window;
};

static const char Programme[] = R"({ "format": "lctrlsex-programme", "version": 1,
  "name": "#programme", "controller": { "kind": "LED", "width": 192, "height": 64 },
  "screens": [ { "name": "#screen", "frames": [
    { "name": "#frame", "items": [
      { "name": "#item", "document": "<p style=\"color:#ffffff\">#1</p>" },
      { "name": "#damaged", "attributes": { "RawHtml": "!" } } ] },
    { "name": "#bare", "x": 500, "items": [] } ] } ] })";

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
            patterns.append(QRegularExpression("^" + pattern + "$"));
        }
    }
    return patterns;
}

void TestLanguage::initTestCase()
{
    QVERIFY(m_folder.isValid());
    qputenv("LCTRLSEX_DATA_DIR", m_folder.filePath("data").toUtf8());
    QDir().mkpath(m_folder.filePath("data"));
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QVERIFY(FontFolder::fill().files > 0);
    m_plugin = loadPlugin({QStringLiteral(LCTRLSEX_PLUGIN)});
    QVERIFY2(m_plugin.client != nullptr, qPrintable(m_plugin.reason));
    LTranslation::instance()->SetFolder(LCTRLSEX_BINARY_DIR "/share/lctrlsex/translations");
    QCOMPARE(LTranslation::instance()->AvailableLanguages(), QStringList({"en", "zh_CN"}));
}

void TestLanguage::init()
{
    speak("en");
}

void TestLanguage::cleanup()
{
    m_window.reset();
    QCoreApplication::removeTranslator(&m_pseudo);
}

void TestLanguage::states()
{
    QTest::addColumn<QString>("state");
    for (const char *state : {"item", "damaged item", "frame", "bare frame", "screen", "programme",
                              "display", "notice"}) {
        QTest::newRow(state) << state;
    }
}

void TestLanguage::open(const QSize &size)
{
    const QString name = m_folder.filePath("#.programme.json");
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(Programme) > 0);
    file.close();
    m_window = std::make_unique<MainWindow>(m_plugin, FontFolder::Result());
    m_window->resize(size);
    m_window->show();
    m_window->start(name);
    QCoreApplication::processEvents();
    QCOMPARE(m_window->size(), size);
}

LNode *TestLanguage::node(const QList<int> &path) const
{
    LNode *node = m_window->document()->controller();
    for (const int index : path) {
        node = node->ChildNodes().at(index);
    }
    return node;
}

void TestLanguage::enter(const QString &state)
{
    static const QMap<QString, QList<int>> paths{
        {"item", {0, 0, 0}}, {"damaged item", {0, 0, 1}}, {"frame", {0, 0}}, {"bare frame", {0, 1}},
        {"screen", {0}},     {"programme", {}},           {"display", {}},   {"notice", {0, 0, 0}}};
    if (state == "display") {
        auto *display = m_window->findChild<QComboBox *>("DeviceKind");
        m_window->selectNode(node({}));
        display->setCurrentIndex(1);
        emit display->activated(1);
        m_window->selectNode(node({0, 0, 0}));
    } else {
        m_window->selectNode(node(paths.value(state)));
    }
    if (state == "frame" || state == "screen" || state == "programme") {
        m_window->findChild<QDockWidget *>("LayoutDock")->raise();
    }
    if (state == "notice") {
        QVERIFY(!m_window->openFile("/#"));
    }
    QTest::qWait(50);
}

void TestLanguage::speak(const QString &language)
{
    QVERIFY(LTranslation::instance()->SetLanguage(language));
    QTest::qWait(50);
}

/** The translator installed last is asked first. */
void TestLanguage::speakPseudo()
{
    QVERIFY(QCoreApplication::installTranslator(&m_pseudo));
    emit LTranslation::instance()->LanguageChanged();
    QTest::qWait(50);
}

void TestLanguage::switchesAndReturns()
{
    QFETCH(QString, state);
    open(QSize(1280, 800));
    enter(state);
    const QMap<QString, QString> english = textsOf(m_window.get());
    const QMap<QString, int> choices = choicesOf(m_window.get());
    QVERIFY(english.size() > 150);

    speak("zh_CN");
    const QMap<QString, QString> chinese = textsOf(m_window.get());
    const QVector<QRegularExpression> sources = translatedSources();
    QVERIFY(!sources.isEmpty());
    QStringList stale;
    for (auto text = chinese.cbegin(); text != chinese.cend(); ++text) {
        for (const QRegularExpression &source : sources) {
            if (source.match(text.value()).hasMatch()) {
                stale.append(text.key() + " = " + text.value());
                break;
            }
        }
    }
    TELL(stale);
    QCOMPARE(choicesOf(m_window.get()), choices);
    QCOMPARE(m_window->findChild<QAction *>("Save")->text(), QString("保存(&S)"));

    speak("en");
    const QMap<QString, QString> again = textsOf(m_window.get());
    for (auto text = english.cbegin(); text != english.cend(); ++text) {
        QCOMPARE(text.key() + " = " + again.value(text.key()), text.key() + " = " + text.value());
    }
    QCOMPARE(again.keys(), english.keys());
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
    open(QSize(1280, 800));
    speak(language);
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

QStringList TestLanguage::unspoken(const QWidget *window) const
{
    QStringList plain;
    const QMap<QString, QString> texts = textsOf(window);
    for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
        const QString value = QString(text.value()).remove("[*]");
        const bool isSpoken = value.contains('[') && value.contains(']');
        const bool isWord = value.contains(QRegularExpression("[A-Za-z]"));
        // Names and texts of the programme begin with "#"; each family is called what it is called,
        // and a language is named in itself, for whoever cannot read the current one.
        // What a file dialog lists is in the folders; its own texts are in its heads and labels.
        static const QRegularExpression own("comboFont entry|/Language\\.|"
                                            "(listView|treeView|sidebar) row|lookInCombo");
        const bool isOwn = value.contains('#') || own.match(text.key()).hasMatch();
        if (isWord && !isSpoken && !isOwn) {
            plain.append(text.key() + " = " + value);
        }
    }
    return plain;
}

/** The measure of the tests below measures. */
void TestLanguage::tellsWhatIsCramped()
{
    QWidget window;
    auto *label = new QLabel("A label", &window);
    auto *button = new QPushButton("A button", &window);
    const QSize room = label->sizeHint().expandedTo(button->sizeHint());
    window.resize(room.width(), 2 * room.height());
    label->setGeometry(QRect(QPoint(0, 0), room));
    button->setGeometry(QRect(QPoint(0, room.height()), room));
    window.show();
    TELL(crampedIn(&window));
    button->move(0, room.height() - 1);
    QCOMPARE(crampedIn(&window), QStringList("QWidget/QLabel lies upon QWidget/QPushButton"));
    button->move(0, room.height());
    label->resize(label->sizeHint().width() - 1, room.height());
    QCOMPARE(crampedIn(&window).size(), 1);
    label->setWordWrap(true);
    QCOMPARE(crampedIn(&window).size(), label->heightForWidth(label->width()) > room.height());
    button->resize(button->sizeHint().width() - 1, room.height());
    QVERIFY(crampedIn(&window).last().startsWith("QWidget/QPushButton needs"));
}

void TestLanguage::leavesRoomForLongTexts_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<QSize>("size");
    for (const char *state : {"item", "damaged item", "frame", "bare frame", "screen", "programme",
                              "display", "notice"}) {
        for (const QSize &size : {QSize(1280, 800), QSize(1920, 1080)}) {
            QTest::addRow("%s, %d x %d", state, size.width(), size.height())
                << QString(state) << size;
        }
    }
}

void TestLanguage::leavesRoomForLongTexts()
{
    QFETCH(QString, state);
    QFETCH(QSize, size);
    open(size);
    enter(state);
    TELL(crampedIn(m_window.get()));
    speakPseudo();
    QCOMPARE(m_window->size(), size);
    TELL(unspoken(m_window.get()));
    TELL(crampedIn(m_window.get()));
}

void TestLanguage::leavesRoomInDialogs_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<bool>("changes");
    QTest::newRow("about") << "About" << false;
    QTest::newRow("unsaved changes") << "New" << true;
    QTest::newRow("open") << "Open" << false;
    QTest::newRow("save as") << "SaveAs" << false;
    QTest::newRow("export") << "ExportPages" << false;
    QTest::newRow("text colour") << "actionTextColor" << false;
}

void TestLanguage::leavesRoomInDialogs()
{
    QFETCH(QString, action);
    QFETCH(bool, changes);
    open(QSize(1280, 800));
    speakPseudo();
    if (changes) {
        m_window->findChild<QAction *>("AddItem")->trigger();
    }
    QStringList faults;
    const ModalAnswerer answerer([&](QDialog *dialog) {
        faults = unspoken(dialog) + crampedIn(dialog);
        // Of a file dialog, what stands in the folders is user data.
        dialog->reject();
    });
    m_window->findChild<QAction *>(action)->trigger();
    QTRY_VERIFY(answerer.wasAsked());
    TELL(faults);
}

int main(int argc, char **argv)
{
    qputenv("QT_FONT_DPI", "72");
    QApplication application(argc, argv);
    QApplication::setStyle(new WorkbenchStyle);
    QFont font = QApplication::font();
    font.setPixelSize(13);
    QApplication::setFont(font);
    TestLanguage test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_language.moc"
