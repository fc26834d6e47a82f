#include "documentconversion.h"
#include "documentstorage.h"
#include "lappconfig.h"
#include "ltexteffectnode.h"
#include "modalanswerer.h"
#include "textedit.h"
#include "texteditthread.h"
#include "textprogresswidget.h"

#include <QAbstractButton>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextEdit>
#include <QTextTable>
#include <QtTest>

#include <memory>
#include <random>

using namespace lctrlsex;

namespace {

/** What Qt writes for @p body under the document font @p font. */
QString written(const QString &body, const QFont &font = QFont())
{
    QTextDocument document;
    document.setDefaultStyleSheet("a { text-decoration: none; }");
    document.setDefaultFont(font);
    document.setHtml(body);
    return document.toHtml();
}

QString paragraphs(int count)
{
    QString html;
    for (int i = 0; i < count; ++i) {
        html += QString("<p><span style='color:#0a0b0c'>one %1</span> <b>two</b> <i>three</i></p>")
                    .arg(i);
    }
    return written(html);
}

QTextCharFormat firstFormat(const QTextDocument &document)
{
    return document.begin().begin().fragment().charFormat();
}

QString convertedByThread(QString html, TextOperatType type)
{
    TextEditThread thread;
    thread.SetTpye(type);
    thread.SetText(html);
    thread.ThreadStart();
    thread.wait();
    return thread.GetText();
}

/** The text with the colour of each stretch behind it. */
QString colored(const QString &html)
{
    QTextDocument document;
    document.setHtml(html);
    QStringList parts;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat format = it.fragment().charFormat();
            parts += format.isImageFormat() // whose colour HTML does not keep
                         ? format.toImageFormat().name()
                         : it.fragment().text() + format.foreground().color().name(QColor::HexArgb);
        }
    }
    return parts.join(' ');
}

} // namespace

class ConversionTest : public QObject
{
    Q_OBJECT

private slots:
    void colors_data();
    void colors();
    void appliesColors();
    void keepsTheRest_data();
    void keepsTheRest();
    void refusedDocumentStays();
    void removesAntialiasing();
    void measures();

    void reportsProgressAndQuit();
    void stopsAtAnyFragment();
    void startAndQuitManyTimes();
    void editorsAndItemsComeAndGo();

    void dialogLooks();
    void dialogCloses_data();
    void dialogCloses();
    void dialogGoesWhileAsking_data();
    void dialogGoesWhileAsking();
};

void ConversionTest::colors_data()
{
    QTest::addColumn<QString>("color");
    QTest::addColumn<QString>("flipped");
    QTest::addColumn<QString>("swapped");

    QTest::newRow("grey") << "color:#808080"
                          << "#ff7f7f7f"
                          << "#ff808080";
    QTest::newRow("channels") << "color:#0a64fe"
                              << "#fff59b01"
                              << "#ff0a64fe";
    QTest::newRow("black") << "color:#000000"
                           << "#ffffffff"
                           << "#ffffffff";
    QTest::newRow("white") << "color:#ffffff"
                           << "#ff000000"
                           << "#ff000000";
    QTest::newRow("almost black") << "color:#000001"
                                  << "#fffffffe"
                                  << "#ff000001";
    QTest::newRow("no colour counts as black") << ""
                                               << "#ffffffff"
                                               << "#ffffffff";
    QTest::newRow("see-through black") << "color:rgba(0,0,0,0.501961)"
                                       << "#ffffffff"
                                       << "#80000000";
    QTest::newRow("see-through white") << "color:rgba(255,255,255,0.501961)"
                                       << "#ff000000"
                                       << "#80ffffff";
}

void ConversionTest::colors()
{
    QFETCH(QString, color);
    QFETCH(QString, flipped);
    QFETCH(QString, swapped);
    const QString html = written("<p><span style='" + color + "'>text</span></p>");

    QCOMPARE(colored(convertedByThread(html, ColorFlip)), "text" + flipped);
    QCOMPARE(colored(convertedByThread(html, BlackWhiteFlip)), "text" + swapped);
    QCOMPARE(convertedByThread(html, TextOperatType(3)), html);
}

void ConversionTest::appliesColors()
{
    QTextDocument document;
    document.setHtml("<p>a<font color='#0a64fe'>b</font><a href='x'>c</a><img src='d'></p>");
    QTextCharFormat outlined;
    outlined.setTextOutline(QPen(Qt::red));
    QTextCursor cursor(&document);
    cursor.setPosition(2, QTextCursor::KeepAnchor);
    cursor.mergeCharFormat(outlined);
    document.clearUndoRedoStacks();
    QSignalSpy changes(&document, &QTextDocument::contentsChanged);
    const StopFlag stop(false);
    const auto flipped = convertColors(document.toHtml(), ColorConversion::Flip, stop, {});
    QVERIFY(flipped.has_value());

    QVERIFY(applyColors(&document, *flipped));
    QCOMPARE(colored(document.toHtml()), QString("a#ffffffff b#fff59b01 c#ffffff00 d"));
    QCOMPARE(firstFormat(document).textOutline().color(), QColor(Qt::red));
    QCOMPARE(changes.count(), 1);
    QVERIFY(applyColors(&document, {QString(), document.toPlainText(), {}}));
    QCOMPARE(changes.count(), 1);
    document.undo();
    QVERIFY(!document.isUndoAvailable());
    cursor.insertText("e");
    QVERIFY(!applyColors(&document, *flipped));
}

void ConversionTest::keepsTheRest_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<QString>("flipped");

    QTest::newRow("table")
        << "<table width='80'><tr><td bgcolor='#000000'><font "
           "color='#111111'>a</font></td><td></td>"
           "</tr><tr><td colspan='2'><font color='#222222'>b</font></td></tr></table>"
        << "a#ffeeeeee b#ffdddddd";
    QTest::newRow("picture that is nowhere")
        << "<p><img src='data://bindKey/a/b.png' title='a:b' alt='i;12' width='8'></p>"
        << "data://bindKey/a/b.png";
    QTest::newRow("file that must not be opened") << "<p><img src='/dev/zero'></p>"
                                                  << "/dev/zero";
    QTest::newRow("links") << "<p><a href='bindStyle;1;n'><font color='#333333'>c</font></a>"
                              "<a href='x'>d</a></p>"
                           << "c#ffcccccc d#ffffff00";
    QTest::newRow("blanks") << "<p><font color='#444444'>e</font><font color='#555555'> </font>"
                               "<font color='#444444'>f</font></p><p></p><ul><li></li></ul>"
                            << "e#ffbbbbbb  #ffaaaaaa f#ffbbbbbb";
}

void ConversionTest::keepsTheRest()
{
    QFETCH(QString, body);
    const QString html = written(body, QFont("DejaVu Serif", 23));

    QTEST(colored(convertedByThread(html, ColorFlip)), "flipped");
    QCOMPARE(convertedByThread(html, BlackWhiteFlip), html); // nothing is black: byte for byte
}

void ConversionTest::refusedDocumentStays()
{
    const QString hostile = QString("<table><tr><td>").repeated(60) + "x";
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("colours not converted"));
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(convertedByThread(hostile, ColorFlip), hostile);
    QVERIFY(clock.elapsed() < 5000);
}

void ConversionTest::removesAntialiasing()
{
    QTextDocument document;
    document.setHtml("<p>plain <b>bold</b></p><p></p><table><tr><td>cell</td></tr></table>");
    const QString html = document.toHtml();
    QSignalSpy changes(&document, &QTextDocument::contentsChanged);

    removeAntialiasing(&document);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            QCOMPARE(it.fragment().charFormat().fontStyleStrategy(), QFont::NoAntialias);
        }
    }
    QCOMPARE(changes.count(), 1);
    removeAntialiasing(&document);
    QCOMPARE(changes.count(), 1);
    QCOMPARE(document.toHtml(), html);

    document.undo();
    QVERIFY(firstFormat(document).fontStyleStrategy() != QFont::NoAntialias);
    QVERIFY(!document.isUndoAvailable());
}

void ConversionTest::measures()
{
    QTextDocument document;
    document.setHtml("<p style='font-size:20pt'>big</p><p>small</p><p><br></p>");
    const int revision = document.revision();
    const QFont big = firstFormat(document).font();

    TextEditThread thread;
    QCOMPARE(thread.GetSize(), QSize(0, 0));
    thread.SetTpye(DocAntialias);
    thread.ThreadStart(); // on no document
    thread.wait();
    QCOMPARE(thread.GetSize(), QSize(0, 0));

    thread.SetDocument(&document);
    thread.setMeasureOnly(true);
    thread.ThreadStart();
    thread.ThreadQuit(); // does not stop this one
    thread.wait();
    const QFont small = document.begin().next().begin().fragment().charFormat().font();
    const int width = QFontMetrics(big).boundingRect("big").width() +
                      QFontMetrics(small).boundingRect("small").width();
    QVERIFY(qAbs(thread.GetSize().width() - width) <= 1); // and the line break
    QCOMPARE(thread.GetSize().height(), QFontMetrics(big).height());
    QCOMPARE(document.revision(), revision);

    thread.setMeasureOnly(false);
    thread.ThreadStart();
    thread.wait();
    QCOMPARE(firstFormat(document).fontStyleStrategy(), QFont::NoAntialias);
    QVERIFY(document.revision() != revision);
    QCOMPARE(document.rootFrame()->parent(), &document); // nothing of it was made in the worker
}

void ConversionTest::reportsProgressAndQuit()
{
    QString html = paragraphs(7);
    TextEditThread thread;
    QVector<int> values;
    connect(&thread, &TextEditThread::emitProcessValue, this, [&](int value) {
        QCOMPARE(QThread::currentThread(), qApp->thread());
        values += value;
    });
    thread.SetText(html);
    QVERIFY(thread.IsQuit());
    thread.ThreadStart();
    QVERIFY(!thread.IsQuit());
    QVERIFY(QTest::qWaitFor([&] { return thread.isFinished() && values.size() >= 7; }));
    QCOMPARE(values, QVector<int>({14, 28, 42, 57, 71, 85, 100}));
    QVERIFY(!thread.IsQuit());
    thread.ThreadQuit();
    QVERIFY(thread.IsQuit());
}

void ConversionTest::stopsAtAnyFragment()
{
    QString html = paragraphs(200);
    std::mt19937 random(1);
    for (int round = 0; round < 20; ++round) {
        const int at = int(random() % 100U);
        int last = 0;
        TextEditThread thread;
        connect(
            &thread, &TextEditThread::emitProcessValue, &thread,
            [&](int value) {
                last = value;
                if (value >= at) {
                    thread.ThreadQuit();
                }
            },
            Qt::DirectConnection);
        thread.SetText(html);
        thread.ThreadStart();
        thread.wait();
        QVERIFY(thread.IsQuit());
        QCOMPARE(thread.GetText(), html);
        QCOMPARE(last, at);
    }
}

void ConversionTest::startAndQuitManyTimes()
{
    QString html = paragraphs(20);
    const QString flipped = convertedByThread(html, ColorFlip);
    TextEditThread thread;
    std::mt19937 random(3);
    int stopped = 0;
    for (int round = 0; round < 500; ++round) {
        thread.SetText(html);
        thread.SetTpye(ColorFlip);
        thread.ThreadStart();
        if (round % 3 == 0) {
            thread.wait();
        }
        QThread::usleep(random() % 3000U);
        thread.ThreadQuit();
        thread.wait();
        const QString text = thread.GetText();
        QVERIFY(text == html || text == flipped);
        stopped += text == html ? 1 : 0;
    }
    QVERIFY2(stopped > 0 && stopped < 500, qPrintable(QString::number(stopped)));
}

/** Items in editors, each stopped in another way at another moment, or let run to its end. */
void ConversionTest::editorsAndItemsComeAndGo()
{
    const QString stored = encodeDocument(paragraphs(60));
    const int rounds = qEnvironmentVariableIsSet("LCTRLSEX_THOROUGH") ? 5000 : 200;
    std::mt19937 random(5);
    std::unique_ptr<TextEdit> editor;
    std::unique_ptr<LTextEffectNode> node;
    int converted = 0;
    for (int round = 0; round < rounds; ++round) {
        if (editor == nullptr) {
            editor = std::make_unique<TextEdit>();
        }
        if (node == nullptr || node->GetRawHtmlText() != stored || !node->GetTextAntialias()) {
            node = std::make_unique<LTextEffectNode>();
            node->SetSize({64, 32});
            node->SetHtmlText(QString());
            node->SetRawHtmlText(stored);
        }
        editor->Init(node.get());
        editor->ConvertText(int(random() % 3U));
        QVERIFY(!editor->CanConvertText());
        QTest::qWait(int(random() % 12U));
        switch (random() % 6U) {
        case 0:
            editor.reset();
            break;
        case 1:
            node.reset();
            break;
        case 2:
            editor->Init(nullptr);
            break;
        case 3:
            QTRY_VERIFY(editor->CanConvertText());
            QTest::qWait(1);
            QVERIFY(node->GetRawHtmlText() != stored || !node->GetTextAntialias());
            ++converted;
            break;
        default:
            break;
        }
    }
    QVERIFY(converted > 0 && converted < rounds);
}

void ConversionTest::dialogLooks()
{
    QWidget window;
    window.setGeometry(100, 50, 640, 480);
    window.show();
    LAppConfig::instance()->SetMainWindow(&window);
    TextProgressWidget dialog;
    auto *bar = dialog.findChild<QProgressBar *>();
    QVERIFY(dialog.isModal());

    dialog.show();
    QCOMPARE(dialog.minimumSize(), dialog.maximumSize());
    QCOMPARE(dialog.pos(), QPoint(window.x() + (640 - dialog.width()) / 2,
                                  window.y() + (480 - dialog.height()) / 2));
    dialog.SetProgressVaule(42);
    QCOMPARE(bar->value(), 42);
    dialog.SetAllowClose(true);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(dialog.isVisible());
    LAppConfig::instance()->SetMainWindow(nullptr);
}

void ConversionTest::dialogCloses_data()
{
    QTest::addColumn<bool>("allow");
    QTest::addColumn<bool>("ask");
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("closes");
    QTest::addColumn<int>("cancels");
    QTest::addColumn<int>("ignores");

    const int none = QMessageBox::NoButton;
    QTest::newRow("refused") << false << false << none << false << 0 << 0;
    QTest::newRow("refused unasked") << false << true << none << false << 0 << 0;
    QTest::newRow("unasked") << true << false << none << true << 0 << 0;
    QTest::newRow("yes") << true << true << int(QMessageBox::Yes) << true << 1 << 0;
    QTest::newRow("no") << true << true << int(QMessageBox::No) << false << 0 << 1;
}

void ConversionTest::dialogCloses()
{
    QFETCH(bool, allow);
    QFETCH(bool, ask);
    QFETCH(int, answer);
    TextProgressWidget dialog;
    dialog.SetAllowClose(allow);
    dialog.SetCloseSymbol(ask);
    QSignalSpy cancels(&dialog, &TextProgressWidget::CancleOperat);
    QSignalSpy ignores(&dialog, &TextProgressWidget::IgnoreOperat);
    dialog.show();

    QString text;
    const auto close = [&] {
        ModalAnswerer answerer([&](QDialog *question) {
            if (QMessageBox *box = qobject_cast<QMessageBox *>(question)) {
                text = box->windowTitle() + '|' + box->text();
                box->button(QMessageBox::StandardButton(answer))->click();
            }
        });
        return dialog.close();
    };
    QTEST(close(), "closes");
    QTEST(!dialog.isVisible(), "closes");
    QTEST(cancels.count(), "cancels");
    QTEST(ignores.count(), "ignores");
    if (answer != QMessageBox::NoButton) {
        QCOMPARE(text, QString("Exit the program|"
                               "File is the conversion, whether to quit the conversion?"));
    }
    if (answer == QMessageBox::No) {
        close(); // it asks each time
        QCOMPARE(ignores.count(), 2);
    }
}

void ConversionTest::dialogGoesWhileAsking_data()
{
    QTest::addColumn<int>("how");
    QTest::newRow("deleted") << 0;
    QTest::newRow("hidden") << 1;
    QTest::newRow("no question is wanted any more") << 2;
}

void ConversionTest::dialogGoesWhileAsking()
{
    QFETCH(int, how);
    QPointer<TextProgressWidget> dialog = new TextProgressWidget;
    dialog->SetAllowClose(true);
    dialog->SetCloseSymbol(true);
    QSignalSpy cancels(dialog, &TextProgressWidget::CancleOperat);
    QSignalSpy ignores(dialog, &TextProgressWidget::IgnoreOperat);
    dialog->show();

    ModalAnswerer answerer([&](QDialog *) {
        if (how == 0) {
            delete dialog;
        } else if (how == 1) {
            dialog->hide();
        } else {
            dialog->SetCloseSymbol(false);
        }
    });
    dialog->close();
    QVERIFY(answerer.wasAsked());
    QCOMPARE(dialog.isNull(), how == 0);
    QVERIFY(how == 0 || !dialog->isVisible());
    QCOMPARE(cancels.count() + ignores.count(), 0);
    QCOMPARE(QApplication::activeModalWidget(), nullptr);
    delete dialog;
}

QTEST_MAIN(ConversionTest)
#include "tst_conversion.moc"
