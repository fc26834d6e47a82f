#include "languagewindow.h"
#include "ltranslation.h"
#include "modalanswerer.h"
#include "pseudolocale.h"
#include "widgettexts.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>

using namespace workbench;

/** The window in a language that is wordier than any: all is translated, and nothing cut off. */
class TestLongTexts : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void tellsWhatIsCramped();
    void leavesRoomForLongTexts_data();
    void leavesRoomForLongTexts();
    void leavesRoomInDialogs_data();
    void leavesRoomInDialogs();

private:
    void speakPseudo();

    LanguageWindow m_window;
    PseudoLocale m_pseudo;
};

/** Texts of the window that did not ask for a translation. */
static QStringList unspoken(const QWidget *window)
{
    // Each family is called what it is called; a language is named in itself, for whoever cannot
    // read the current one; what a file dialog lists is in the folders; a step keeps its name;
    // encodings, drivers and the settings of a source are called in every language what they are in
    // its file.
    static const QRegularExpression ownPlace("comboFont entry|/Undo |/Language\\.|lookInCombo|"
                                             "(listView|treeView|sidebar|SourceQueries) row|"
                                             "Source(Encoding|Format|Driver) entry|SourceNotice|"
                                             "Source(Url|Headers|Password|Query) placeholder");
    // Names of the programme, files, names of keys, and mnemonics, which the pseudo-locale keeps.
    static const QRegularExpression ownPart(
        "#\\w*|/[^\\s\\]]+|\\((Ctrl|Shift|F\\d|Del|\\W)+\\w*\\)|&.|"
        "\\[\\*\\]|\\(\\*.*\\)");
    static const QRegularExpression plain(QString("[%1]").arg(PseudoLocale::plainLetters()));
    QStringList faults;
    const QMap<QString, QString> texts = textsOf(window);
    for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
        const QString said = QString(text.value()).remove(ownPart);
        if (said.contains(plain) && !ownPlace.match(text.key()).hasMatch()) {
            faults.append(text.key() + " = " + text.value());
        }
    }
    return faults;
}

void TestLongTexts::initTestCase()
{
    const QString fault = m_window.setUp();
    QVERIFY2(fault.isEmpty(), qPrintable(fault));
}

void TestLongTexts::cleanup()
{
    m_window.close();
    QCoreApplication::removeTranslator(&m_pseudo);
}

/** The translator installed last is asked first. */
void TestLongTexts::speakPseudo()
{
    QVERIFY(QCoreApplication::installTranslator(&m_pseudo));
    emit LTranslation::instance()->LanguageChanged();
    QCoreApplication::processEvents();
}

/** The measure of the tests below measures. */
void TestLongTexts::tellsWhatIsCramped()
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

void TestLongTexts::leavesRoomForLongTexts_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<QSize>("size");
    for (const QString &state : LanguageWindow::states()) {
        for (const QSize &size : {QSize(1280, 800), QSize(1920, 1080)}) {
            QTest::addRow("%s, %d x %d", qPrintable(state), size.width(), size.height())
                << state << size;
        }
    }
}

void TestLongTexts::leavesRoomForLongTexts()
{
    QFETCH(QString, state);
    QFETCH(QSize, size);
    QVERIFY(m_window.open(size));
    m_window.enter(state);
    TELL(crampedIn(m_window.get()));
    speakPseudo();
    if (state == "notice") {
        // What was said about a file stays as it was said; the next one is another matter.
        m_window.enter(state);
    }
    QCOMPARE(m_window->size(), size);
    TELL(unspoken(m_window.get()));
    TELL(crampedIn(m_window.get()));
}

void TestLongTexts::leavesRoomInDialogs_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<bool>("changes");
    QTest::newRow("about") << "About" << false;
    QTest::newRow("unsaved changes") << "New" << true;
    QTest::newRow("open") << "Open" << false;
    QTest::newRow("save as") << "SaveAs" << false;
    QTest::newRow("export") << "ExportPages" << false;
    for (int kind = 1; kind <= 5; ++kind) {
        QTest::addRow("data source %d", kind) << QString("AddSource%1").arg(kind) << false;
    }
    QTest::newRow("text colour") << "actionTextColor" << false;
}

void TestLongTexts::leavesRoomInDialogs()
{
    QFETCH(QString, action);
    QFETCH(bool, changes);
    QVERIFY(m_window.open(QSize(1280, 800)));
    speakPseudo();
    if (changes) {
        m_window->findChild<QAction *>("AddItem")->trigger();
    }
    QStringList faults;
    const ModalAnswerer answerer([&](QDialog *dialog) {
        faults = unspoken(dialog) + crampedIn(dialog);
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
    dressApplication();
    TestLongTexts test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_longtexts.moc"
