#include "editorfixture.h"
#include "fragmentmerge.h"

#include <QApplication>
#include <QRandomGenerator>
#include <QTextBlock>
#include <QTimer>

namespace {

/** Thousands of sequences instead of some dozens; takes about an hour. */
bool isThorough()
{
    return qEnvironmentVariableIntValue("LCTRLSEX_THOROUGH") != 0;
}

/** What a user can tell apart: runs that look alike count as one, and HTML leaves some out. */
QString visible(const QTextEdit *view)
{
    const std::unique_ptr<QTextDocument> copy(view->document()->clone());
    lctrlsex::smartMerge(copy.get());
    QString look = copy->toHtml();
    const auto add = [&look](const QTextCharFormat &format) {
        look += QString::number(format.fontLetterSpacing()) + ' ' +
                QString::number(format.fontLetterSpacingType()) + ' ';
    };
    for (QTextBlock block = copy->begin(); block.isValid(); block = block.next()) {
        for (auto it = block.begin(); !it.atEnd(); ++it) {
            const QTextCharFormat format = it.fragment().charFormat();
            add(format);
            look += format.isImageFormat() ? format.background().color().name() : QString();
        }
    }
    // Nothing of an empty cell, and a copy has nothing of an empty first paragraph.
    for (QTextBlock block = view->document()->begin(); block.isValid(); block = block.next()) {
        const QTextCharFormat format = block.length() == 1 ? block.charFormat() : QTextCharFormat();
        add(format);
        look += format.font().toString() + format.foreground().color().name() +
                format.background().color().name() +
                QString::number(int(block.blockFormat().alignment())) + ' ' +
                QString::number(block.blockFormat().lineHeight());
    }
    return look;
}

/** Random edits of an item, by what the tool bar, the keyboard and the clipboard offer. */
class Monkey
{
public:
    Monkey(EditorFixture *item, quint32 seed, bool waits)
        : m_item(item)
        , m_random(seed)
        , m_waits(waits)
    {}

    void act()
    {
        const int count = m_item->view->document()->characterCount();
        const int choice = m_random.bounded(22);
        m_log += QString::number(choice) + ' ';
        switch (choice) {
        case 0:
        case 1:
        case 2:
            m_item->type(QStringLiteral("%1 ").arg(++m_count)); // never what is there already
            break;
        case 3:
        case 4: {
            const int from = m_random.bounded(count);
            m_item->select(from, from);
            break;
        }
        case 5:
        case 6:
            m_item->select(m_random.bounded(count), m_random.bounded(count));
            break;
        case 7:
            m_item->key(Qt::Key_Backspace);
            break;
        case 8:
            m_item->key(Qt::Key_Delete);
            break;
        case 9:
            // Over the end of a paragraph, Return would leave what is there.
            if (m_item->view->textCursor().selectedText() != QChar(QChar::ParagraphSeparator)) {
                m_item->key(Qt::Key_Return);
            }
            break;
        case 10:
            m_item->call("InsertCopyText", Q_ARG(QString, text()));
            break;
        case 11:
            m_item->call("performSmartMerge");
            break;
        case 12:
        case 13:
            undoOrRedo(true);
            break;
        case 14:
            undoOrRedo(false);
            break;
        default:
            format(choice);
        }
        idle();
    }

    /** Undoes or redoes one step; false when that shows nothing or loses what could be redone. */
    void undoOrRedo(bool isUndo)
    {
        const QTextDocument *document = m_item->view->document();
        if (isUndo ? !document->isUndoAvailable() : !document->isRedoAvailable()) {
            return;
        }
        const QString before = visible(m_item->view);
        if (m_random.bounded(2)) {
            m_item->key(isUndo ? Qt::Key_Z : Qt::Key_Y, Qt::ControlModifier);
        } else {
            isUndo ? m_item->view->undo() : m_item->view->redo();
        }
        const int toRedo = document->availableRedoSteps();
        check(visible(m_item->view) != before, "a step shows nothing");
        idle();
        m_item->call("performSmartMerge");
        idle();
        check(document->availableRedoSteps() == toRedo, "idling lost what could be redone");
    }

    void check(bool holds, const char *what)
    {
        if (!holds && m_fault.isEmpty()) {
            m_fault = QLatin1String(what) + " after " + m_log;
        }
    }

    /** What went wrong first, and after which actions. */
    [[nodiscard]] QString fault() const { return m_fault; }

    void idle()
    {
        if (m_waits && m_random.bounded(8) == 0) {
            QTest::qWait(m_random.bounded(100));
        }
        QCoreApplication::processEvents();
    }

private:
    QString text()
    {
        static const QStringList texts{QStringLiteral("%1"), QStringLiteral("%1\nlines"),
                                       QStringLiteral("\r\n%1"), QStringLiteral("%1 words ")};
        QString text = texts.at(m_random.bounded(texts.size()));
        return text.replace("%1", QString::number(++m_count));
    }

    void format(int choice)
    {
        static const QStringList actions{
            QStringLiteral("actionTextBold"),      QStringLiteral("actionTextItalic"),
            QStringLiteral("actionTextUnderline"), QStringLiteral("actionAlignLeft"),
            QStringLiteral("actionAlignCenter"),   QStringLiteral("actionClearTextBgcolor")};
        switch (choice) {
        case 15:
        case 16:
        case 17:
            m_item->action(actions.at(m_random.bounded(actions.size())))->trigger();
            break;
        case 18: {
            QComboBox *box = m_item->combo(m_random.bounded(2) ? "comboSize" : "comboFont");
            box->setCurrentIndex(m_random.bounded(qMin(3, box->count())));
            break;
        }
        case 19: {
            const uint color = m_random.bounded(2) ? 0xffffff : 0xff0000;
            m_item->call(m_random.bounded(3) ? "TextColorChanged" : "TextBackgroundColorChanged",
                         Q_ARG(uint, color));
            break;
        }
        case 20:
            if (m_random.bounded(2)) {
                m_item->spin("spxWord")->setValue(m_random.bounded(3));
            } else {
                m_item->spin("spxLine")->setValue(100 + 50 * m_random.bounded(2));
            }
            break;
        default:
            m_item->call("ONInsertFieldNameChanged",
                         Q_ARG(QString, QStringLiteral("source:%1").arg(++m_count)));
        }
    }

    EditorFixture *m_item;
    QRandomGenerator m_random;
    bool m_waits;
    int m_count = 0;
    QString m_log;
    QString m_fault;
};

} // namespace

/** The undo history of an item, whatever is done to it and whenever runs are merged. */
class TestUndo : public QObject
{
    Q_OBJECT

private slots:
    void anythingCanBeUndone_data();
    void anythingCanBeUndone();
    void silenceFollows_data();
    void silenceFollows();
};

void TestUndo::anythingCanBeUndone_data()
{
    QTest::addColumn<QString>("html");

    QTest::newRow("empty") << QString();
    QTest::newRow("plain") << "<p>one two</p><p>three</p>";
    QTest::newRow("mixed") << "<p style='color:#fff'>ab<sup>cd</sup><b>ef</b>gh "
                              "<span style='color:#f00'>ij</span>"
                              "<span style='color:rgba(255,0,0,0.5)'>kl</span></p><p><br></p>";
    QTest::newRow("table") << "<p>over</p><table border=1><tr><td>a<sup>b</sup></td><td>c d</td>"
                              "</tr><tr><td></td><td>e</td></tr></table><p>under</p>";
    QTest::newRow("links") << "<p>go <a href='bindStyle;1;a'>here</a><a href='bindStyle;2;b'>there"
                              "</a> or <a href='bindStyle;1;a'><sup>up</sup></a></p>";
    QTest::newRow("fields") << "<p>at <img src='data://bindKey/s/f.png' title='s:f' alt="
                               "';Sans;20;0;1;1;#ff0000;'> o'clock</p>";
}

/** Undoes everything, and redoes it. */
static void thereAndBack(EditorFixture *item, Monkey *monkey, const QString &loaded,
                         const QString &stored)
{
    item->select(0, 0);
    item->call("performSmartMerge"); // which a selection may have held up
    const QString left = item->view->toHtml();
    int steps = 0;
    while (item->view->document()->isUndoAvailable() && steps < 500) {
        monkey->undoOrRedo(true);
        ++steps;
    }
    monkey->check(item->view->toHtml() == loaded, "undoing does not lead to what was loaded");
    monkey->check(item->node->GetRawHtmlText() == stored, "the item does not hold what it did");
    for (; steps > 0; --steps) {
        monkey->undoOrRedo(false);
    }
    monkey->check(item->view->toHtml() == left, "redoing does not lead back");
}

void TestUndo::anythingCanBeUndone()
{
    QFETCH(QString, html);
    const int only = qEnvironmentVariableIntValue("LCTRLSEX_SEED");
    const int direct = isThorough() ? 1667 : 10; // sequences for each of the six documents
    const int waiting = isThorough() ? 34 : 1;   // that leave the merge to its timer
    EditorFixture item(html);
    const QString stored = item.node->GetRawHtmlText();
    auto *timer = item.editor->findChild<QTimer *>(QStringLiteral("MergeTimer"));
    QVERIFY(timer != nullptr);
    const int delay = timer->interval();
    for (int seed = 1; seed <= direct + waiting; ++seed) {
        if (only != 0 && seed != only) {
            continue;
        }
        const bool waits = seed > direct;
        timer->setInterval(waits ? delay : 1000000); // to find the same each time
        item.client->Finish();
        item.node = std::make_unique<LTextEffectNode>();
        item.node->SetSize(QSize(256, 64));
        item.node->SetRawHtmlText(stored);
        item.client->Init(item.node.get());
        QCoreApplication::processEvents();
        item.call("performSmartMerge");
        QVERIFY(!item.view->document()->isUndoAvailable());
        const QString loaded = item.view->toHtml();
        Monkey monkey(&item, quint32(seed), waits);
        for (int i = 0; i < 50; ++i) {
            monkey.act();
        }
        thereAndBack(&item, &monkey, loaded, stored);
        QVERIFY2(monkey.fault().isEmpty(),
                 qPrintable(QStringLiteral("seed %1: %2").arg(seed).arg(monkey.fault())));
    }
    timer->setInterval(delay);
}

void TestUndo::silenceFollows_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QByteArray>("slot");
    QTest::addColumn<int>("pushes");

    QTest::newRow("one key") << "x" << QByteArray() << 1;
    QTest::newRow("ten quick keys") << "abcdefghij" << QByteArray() << 10;
    QTest::newRow("paste") << "" << QByteArray("InsertCopyText") << 1;
    QTest::newRow("undo") << "x" << QByteArray("undo") << 2;
    QTest::newRow("format") << "" << QByteArray("textBold") << 1;
    QTest::newRow("nothing") << "" << QByteArray("performSmartMerge") << 0;
}

void TestUndo::silenceFollows()
{
    QFETCH(QString, keys);
    QFETCH(QByteArray, slot);
    // Runs to merge from the start, and no colour: the typing format is restored at each change.
    EditorFixture item("<p>a<sup>b</sup> cd</p>");
    QStringList told;
    connect(item.node.get(), &LData::AttributeChanged, item.view,
            [&told](const QString &key) { told.append(key); });
    connect(item.node.get(), &LTextEffectNode::PreviewCacheChanged, item.view,
            [&told] { told.append("preview"); });
    for (const QChar &key : keys) {
        item.type(key);
        QCoreApplication::processEvents();
    }
    if (slot == "InsertCopyText") {
        item.call("InsertCopyText", Q_ARG(QString, "pasted"));
    } else if (slot == "undo") {
        item.view->undo();
    } else if (slot == "textBold") {
        item.action("actionTextBold")->trigger();
    } else if (!slot.isEmpty()) {
        item.call(slot);
    }
    QTest::qWait(isThorough() ? 1000 : 200);
    QTEST(told.count("RawHtml"), "pushes");
    QTEST(told.count("preview"), "pushes");
    told.clear();
    connect(item.view, &QTextEdit::textChanged, item.view, [&told] { told.append("text"); });
    QTest::qWait(isThorough() ? 3000 : 400);
    QCOMPARE(told, QStringList());
    const auto timers = item.editor->findChildren<QTimer *>();
    QVERIFY(std::none_of(timers.cbegin(), timers.cend(),
                         [](auto *timer) { return timer->isActive(); }));
}

int main(int argc, char **argv)
{
    if (isThorough() && !qEnvironmentVariableIsSet("QTEST_FUNCTION_TIMEOUT")) {
        qputenv("QTEST_FUNCTION_TIMEOUT", "7200000"); // milliseconds
    }
    QApplication application(argc, argv);
    TestUndo test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_undo.moc"
