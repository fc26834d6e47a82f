#include "autocompletelineedit.h"
#include "lmodbusparameteroperation.h"
#include "modalanswerer.h"

#include <QtTest>
#include <QtWidgets>

namespace {

using Calculations = QVector<CalculationCondition>;

CalculationStep step(const QString &name, const QString &func, const QStringList &args)
{
    return {name, {func, args, {}}, {}};
}

CalculationCondition calculation(const QString &name, const QVector<CalculationStep> &steps = {})
{
    return {"id of " + name, name, {}, steps, {}};
}

CalculationDynamicData dataOf(const Calculations &conditions)
{
    return {{{"temp", "21.5"}, {"list", "a;b;;c"}}, conditions, {{"any", "value"}}};
}

Calculations withoutIds(Calculations conditions)
{
    for (CalculationCondition &each : conditions) {
        each.id.clear();
    }
    return conditions;
}

auto answering(QMessageBox::StandardButton button)
{
    return [button](QDialog *box) {
        static_cast<QMessageBox *>(box)->button(button)->click();
    };
}

/** The dialog as a user finds it: widgets are what is seen at their places. */
class Shown : public LModbusParameterOperation
{
public:
    explicit Shown(const Calculations &conditions = {})
        : tree(findChild<QTreeWidget *>())
    {
        setDynamicData(dataOf(conditions));
        show();
        QTest::qWaitForWindowActive(this) || (qFatal("The dialog is not active"), false);
    }

    QTreeWidgetItem *row(int calculation) const { return tree->topLevelItem(calculation); }
    QTreeWidgetItem *row(int top, int step) const { return row(top)->child(step); }
    template <typename Widget = QLineEdit>
    Widget *at(QTreeWidgetItem *item, int column, double part = 0.5) const
    {
        const QHeaderView *header = tree->header();
        for (int i = 0; i < 4; ++i) { // the lay-out waits until there is nothing else to do
            tree->scrollToItem(item);
            tree->horizontalScrollBar()->setValue(header->sectionPosition(column));
            QCoreApplication::processEvents();
        }
        const int x = header->sectionViewportPosition(column) + part * header->sectionSize(column);
        const QPoint place(x, tree->visualItemRect(item).top() + 12);
        return qobject_cast<Widget *>(tree->viewport()->childAt(place));
    }
    QLabel *resultOf(QTreeWidgetItem *item) const { return at<QLabel>(item, 1); }
    AutoCompleteLineEdit *field(QTreeWidgetItem *item, int index, int count = 2) const
    {
        return at<AutoCompleteLineEdit>(item, 4, (index + 0.5) / count);
    }
    void choose(QTreeWidgetItem *item, const QString &func) const
    {
        auto *box = at<QComboBox>(item, 3);
        box->setCurrentIndex(box->findText(func));
    }
    void add(QTreeWidgetItem *item) const
    {
        click(at<QToolButton>(item, 5, 12.0 / buttonsWidth()));
    }
    void remove(QTreeWidgetItem *item) const
    {
        click(at<QToolButton>(item, 5, 1 - 12.0 / buttonsWidth()));
    }
    [[nodiscard]] int buttonsWidth() const { return tree->columnWidth(5); }
    QString rename(int calculation, const QString &name) const
    {
        auto *edit = at(row(calculation), 0);
        type(edit, name);
        QTest::keyClick(edit, Qt::Key_Return);
        return edit->text();
    }
    static void type(QLineEdit *edit, const QString &text)
    {
        edit->setFocus();
        edit->setText(text);
    }
    static void click(QWidget *button) { QTest::mouseClick(button, Qt::LeftButton); }
    QStringList names()
    {
        QStringList found;
        for (const CalculationCondition &each : dynamicData().conditions) {
            found.append(each.key);
        }
        return found;
    }

    QTreeWidget *tree;
};

void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
}

} // namespace

class TestOperationDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void keepsColumnWidths();
    void showsResults_data();
    void showsResults();
    void keepsWhatIsNotEdited();
    void changesOnlyWhatIsEdited();
    void checksNames();
    void worksWithTheClipboard();
    void mayGoAtAnyTime();
    void goesByKeyboardAlone();
    void followsTheSources();
    void survives();
    void equalsAPlainModel();

private:
    QTemporaryDir m_data;
};

void TestOperationDialog::showsResults_data()
{
    QTest::addColumn<QStringList>("call");
    QTest::addColumn<QString>("result");
    QTest::newRow("no number") << QStringList({"+", "1", "x"}) << "?";
    QTest::newRow("variable") << QStringList({"+", "${temp}", "2"}) << "23.5";
    QTest::newRow("left") << QStringList({"left", "abcdef", "-3"}) << "";
    QTest::newRow("mid") << QStringList({"mid", "abcdef", "2", "3"}) << "cde";
    QTest::newRow("split") << QStringList({"split", "${list}", ";"}) << "a\nb\nc";
    QTest::newRow("outside") << QStringList({"index", "${var1}", "3"}) << "?";
    QTest::newRow("plain") << QStringList({"strcat", "<b>", "${var1}"}) << "<b>a\nb\nc";
    QTest::newRow("clamped") << QStringList({"decimal", "3.14159", "9"}) << "3.141590";
}

void TestOperationDialog::initTestCase()
{
    QVERIFY(m_data.isValid());
    qputenv("LCTRLSEX_DATA_DIR", QFile::encodeName(m_data.path()));
}

void TestOperationDialog::keepsColumnWidths()
{
    Shown dialog;
    dialog.tree->setColumnWidth(0, 321);
    dialog.reject();
    QCOMPARE(Shown().tree->columnWidth(0), 321);
}

void TestOperationDialog::showsResults()
{
    QFETCH(QStringList, call);
    QFETCH(QString, result);
    Shown dialog({calculation("c", {step("var1", "split", {"a;b;;c", ";"})})});
    const auto *tip = dialog.findChild<QLabel *>("SettingStatusTips");
    dialog.add(dialog.row(0));
    QTreeWidgetItem *row = dialog.row(0, 1);
    const int lowRow = dialog.tree->visualItemRect(row).height();
    dialog.choose(row, call.takeFirst());
    for (int i = 0; i < call.size(); ++i) {
        Shown::type(dialog.field(row, i, call.size()), call.at(i));
    }
    QVERIFY(tip->isHidden());
    press(Qt::Key_Return);
    QCOMPARE(tip->isVisible(), call.at(1) == "9");
    QVERIFY(dialog.isVisible() && dialog.isActiveWindow());
    const QLabel *label = dialog.resultOf(row);
    const bool isReason = result == "?";
    QCOMPARE(label->text(), isReason ? QString() : result);
    QCOMPARE(label->property("isReason").toBool(), isReason);
    QCOMPARE(label->toolTip().isEmpty(), result.isEmpty());
    QCOMPARE(dialog.resultOf(dialog.row(0))->text(), label->text());
    QCOMPARE(dialog.tree->visualItemRect(row).height() > lowRow, result.contains('\n'));
    QTRY_VERIFY_WITH_TIMEOUT(tip->isHidden(), 4000);
}

void TestOperationDialog::keepsWhatIsNotEdited()
{
    CalculationCondition odd =
        calculation(QString(40000, 'n'), {step("x", "foo", {"1"}), step("x", "+", {"1", "2", "3"}),
                                          step("", "mid", {}), step("var1", "SPLIT", {"a\nb"})});
    odd.others.insert("more", 1);
    odd.defaultValue = QString(40000, 'd');
    odd.expressions[1].others.insert("more", 2);
    odd.expressions[1].expression.others.insert("more", 3);
    const auto given = dataOf({odd, calculation("a:b"), calculation("a:b")});
    Shown dialog(given.conditions);
    dialog.tree->setFocus();
    for (int i = 0; i < 40; ++i) { // through all the cells
        press(Qt::Key_Tab);
    }
    dialog.accept();
    CalculationDynamicData kept = dialog.dynamicData();
    for (CalculationCondition &each : kept.conditions) {
        QVERIFY(!given.conditions.contains(each));
        each.id = dialog.formerIds().value(each.id);
    }
    QVERIFY(kept == given);
}

void TestOperationDialog::changesOnlyWhatIsEdited()
{
    const Calculations given = {
        calculation("c", {step("a", "mid", {"abc", "1", "2", "x"}), step("b", "+", {"1"}),
                          step("d", "+", {"1", "2", "3"})})};
    Shown dialog(given);
    auto expected = given;
    Shown::type(dialog.at(dialog.row(0), 4), expected[0].defaultValue = "none");
    dialog.choose(dialog.row(0, 0), "left");
    Shown::type(dialog.field(dialog.row(0, 1), 0), "7");
    dialog.choose(dialog.row(0, 2), "-");
    QCOMPARE(dialog.resultOf(dialog.row(0, 2))->text(), QString("-4"));
    expected[0].expressions = {step("a", "left", {"abc", "1"}), step("b", "+", {"7", ""}),
                               step("d", "-", {"1", "2", "3"})};
    QVERIFY(withoutIds(dialog.dynamicData().conditions) == withoutIds(expected));
}

void TestOperationDialog::checksNames()
{
    Shown dialog({calculation("a"), calculation("b")});
    QString warning;
    const auto name = [&](const QString &typed, bool isAccepted = false) {
        ModalAnswerer answerer([&](QDialog *box) {
            warning = static_cast<QMessageBox *>(box)->text();
            box->reject();
        });
        isAccepted ? Shown::type(dialog.at(dialog.row(0), 0), typed)
                   : void(dialog.rename(0, typed));
        isAccepted ? dialog.accept() : void(); // without leaving the edit
        QTest::qWait(50);
        return dialog.names().first() + '|' + std::exchange(warning, QString());
    };
    QCOMPARE(name(" new "), QString("new|"));
    QCOMPARE(name("  "), QString("new|"));
    QCOMPARE(name("b "), QString("new|Name already exists!"));
    QCOMPARE(name("x:y"), QString("new|Name contains illegal characters."));
    QCOMPARE(name("x:y", true), QString("new|Name contains illegal characters."));
    QVERIFY(dialog.isVisible());
    QCOMPARE(name("B", true), QString("B|"));
    QVERIFY(!dialog.isVisible());
}

void TestOperationDialog::worksWithTheClipboard()
{
    Shown dialog({calculation("a", {step("s", "+", {"1", "2"})}), calculation("b")});
    QVERIFY(!dialog.hasClipboardData());
    const auto confirm = [&](void (Shown::*slot)(), QMessageBox::StandardButton button) {
        ModalAnswerer answerer(answering(button));
        (dialog.*slot)();
        QVERIFY(answerer.wasAsked());
    };
    dialog.row(0, 0)->setSelected(true);
    dialog.OnCopySelectAction();
    confirm(&Shown::OnPasteAction, QMessageBox::No);
    QCOMPARE(dialog.names(), QStringList({"a", "b"}));
    confirm(&Shown::OnPasteAction, QMessageBox::Yes);
    confirm(&Shown::OnPasteAction, QMessageBox::Yes);
    QCOMPARE(dialog.names(), QStringList({"a", "b", "a_1", "a_2"}));
    QCOMPARE(dialog.formerIds().size(), 2);
    QCOMPARE(dialog.resultOf(dialog.row(3, 0))->text(), QString("3"));
    confirm(&Shown::OnDeleteAllAction, QMessageBox::Yes);
    QVERIFY(dialog.findChild<QLabel *>("EmptyHint")->isVisible());
    confirm(&Shown::OnCoverAction, QMessageBox::Yes);
    QCOMPARE(dialog.names(), QStringList("a"));
    QVERIFY(dialog.formerIds().isEmpty() && dialog.hasClipboardData());
}

void TestOperationDialog::mayGoAtAnyTime()
{
    QPointer<Shown> dialog;
    const auto open = [&] {
        dialog = new Shown({calculation("a"), calculation("b")});
        dialog->setClipboardData(dataOf({calculation("c")}));
        dialog->tree->setFocus();
    };
    open(); // behind a question
    ModalAnswerer question([&](QDialog *) { delete dialog; });
    press(Qt::Key_V, Qt::ControlModifier);
    QVERIFY(question.wasAsked() && !dialog);
    open(); // behind the menu
    QTimer::singleShot(50, dialog, [&] { delete dialog; });
    QContextMenuEvent menu(QContextMenuEvent::Mouse, QPoint(5, 5));
    QApplication::sendEvent(dialog->tree->viewport(), &menu);
    QVERIFY(!dialog);
    open(); // behind a warning
    ModalAnswerer warning([&](QDialog *) { delete dialog; });
    dialog->rename(0, "b");
    QTRY_VERIFY(!dialog);
    open(); // while a name is being written
    Shown::type(dialog->at(dialog->row(0), 0), "b");
    delete dialog;
}

void TestOperationDialog::goesByKeyboardAlone()
{
    Shown dialog({calculation("a", {step("s", "mid", {}), step("t", "+", {})}), calculation("b")});
    dialog.tree->setCurrentItem(dialog.row(0));
    dialog.tree->setFocus();
    QVector<QWidget *> visited;
    for (int i = 0; i < 17; ++i) {
        press(Qt::Key_Tab);
        visited.append(QApplication::focusWidget());
    }
    QCOMPARE(visited.at(0), dialog.at(dialog.row(0), 0));
    QCOMPARE(visited.at(1), dialog.at(dialog.row(0), 4));
    QCOMPARE(visited.at(4), dialog.at<QComboBox>(dialog.row(0, 0), 3));
    QCOMPARE(visited.at(7), dialog.field(dialog.row(0, 0), 2, 3));
    QCOMPARE(visited.at(13), dialog.at(dialog.row(1), 0));
    press(Qt::Key_Tab);
    QVERIFY(!dialog.tree->isAncestorOf(QApplication::focusWidget()));
    for (int i = 16; i >= 0; --i) {
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget(), visited.at(i));
        press(Qt::Key_Return);
        QVERIFY(dialog.isVisible());
    }
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    for (const int key : {Qt::Key_End, Qt::Key_Home, Qt::Key_Down}) { // from row to row
        press(key);
        QCOMPARE(QApplication::focusWidget(), dialog.tree);
    }
    press(Qt::Key_Insert);
    QCOMPARE(QApplication::focusWidget(), dialog.field(dialog.row(0, 2), 0));
    press(Qt::Key_F2);
    QCOMPARE(QApplication::focusWidget(), dialog.at(dialog.row(0), 0));
    press(Qt::Key_Delete); // is for the text
    QCOMPARE(dialog.names(), QStringList({"a", "b"}));
    dialog.tree->setFocus();
    press(Qt::Key_Delete);
    QCOMPARE(dialog.names(), QStringList("b"));
    Shown::click(dialog.findChild<QPushButton *>());
    const auto *name = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    QCOMPARE(name->selectedText(), QString("Configuration item"));
}

void TestOperationDialog::followsTheSources()
{
    Shown dialog({calculation("a", {step("var1", "+", {"${temp}", "1"})})});
    AutoCompleteLineEdit *field = dialog.field(dialog.row(0, 0), 1);
    QCOMPARE(field->words(), QStringList({"${temp}", "${list}", "${var1}"}));
    dialog.add(dialog.row(0));
    QCOMPARE(field->words().last(), QString("${var2}"));
    Shown::type(field, "2");
    dialog.setVariables({{"TEMP", "5"}, {"temp", "30"}});
    QCOMPARE(dialog.resultOf(dialog.row(0, 0))->text(), QString("32"));
    field->clear();
    QTest::keyClicks(field, "${T");
    QCOMPARE(field->completer()->completionCount(), 2);
    QTest::keyClick(field->completer()->popup(), Qt::Key_Down);
    QTest::keyClick(field->completer()->popup(), Qt::Key_Return);
    QCOMPARE(dialog.resultOf(dialog.row(0, 0))->text(), QString("35"));
}

void TestOperationDialog::survives()
{
    const QStringList ones = QString("1 ").repeated(1000).split(' ', Qt::SkipEmptyParts);
    const auto one = calculation(QString(10000, 'x'), {step("var1", "+", ones), step("", "+", {})});
    Shown dialog;
    dialog.setClipboardData(dataOf(Calculations(10000, one)));
    ModalAnswerer answerer(answering(QMessageBox::Yes));
    dialog.OnPasteAction();
    QCOMPARE(dialog.resultOf(dialog.row(9999, 0))->text(), QString("1000"));
    QCOMPARE(dialog.at(dialog.row(9999), 0)->text().right(6), QString("x_9999"));
    Shown::type(dialog.field(dialog.row(9999, 1), 0), "5"); // and goes while it has the focus
    delete dialog.row(9999, 1);
    auto *button = dialog.at<QToolButton>(dialog.row(9999, 0), 5, 0.75);
    button->click();
    dialog.tree->setCurrentItem(dialog.row(9999));
    QTest::keyClick(&dialog, Qt::Key_Insert); // may lie where the removed one lay
    button->click();
    QCOMPARE(dialog.row(9999)->childCount(), 1);
}

void TestOperationDialog::equalsAPlainModel()
{
    QRandomGenerator random(7);
    const auto pick = [&](int count) {
        return int(random.bounded(quint32(count)));
    };
    const QStringList funcs = {"+", "mid", "split", "index", "strcat", "decimal"};
    const QStringList names = {"a", "b", "x:y", "  ", "Configuration item", " c ", "a_1"};
    const QStringList texts = {"1", "${var1}", "a;b", "", "${temp}"};
    Calculations model;
    const auto freeName = [](const QString &base, const QStringList &taken) {
        QString name = base;
        for (int i = 1; taken.contains(name); ++i) {
            name = QString("%1_%2").arg(base).arg(i);
        }
        return name;
    };
    const auto addStep = [&](CalculationCondition *to) {
        QStringList taken;
        for (const CalculationStep &each : qAsConst(to->expressions)) {
            taken.append(each.variableName);
        }
        const QString name = freeName(QString("var%1").arg(taken.size() + 1), taken);
        to->expressions.append(step(name, "+", {"", ""}));
    };
    Shown dialog;
    dialog.tree->setUpdatesEnabled(false); // is most of the time
    for (int i = 0; i < 3000; ++i) {
        const QStringList keys = dialog.names(); // equal to the model's
        const int action = model.isEmpty() ? 0 : model.size() > 6 ? 1 : pick(9);
        const int at = model.isEmpty() ? 0 : pick(model.size());
        const int steps = model.isEmpty() ? 0 : model.at(at).expressions.size();
        const int stepAt = steps == 0 ? 0 : pick(steps);
        FunctionCall *call = steps == 0 ? nullptr : &model[at].expressions[stepAt].expression;
        if (action == 0) {
            dialog.onAddRootButtonClicked();
            model.append(calculation(freeName("Configuration item", keys)));
            addStep(&model.last());
        } else if (action == 1) {
            dialog.remove(dialog.row(at));
            model.remove(at);
        } else if (action <= 3 && steps < 6) {
            dialog.add(dialog.row(at));
            addStep(&model[at]);
        } else if (action == 4 && steps > 0) {
            dialog.remove(dialog.row(at, stepAt));
            model[at].expressions.remove(stepAt);
        } else if (action == 5 && steps > 0) {
            call->func = funcs.at(pick(funcs.size()));
            call->args = (call->args + QStringList({"", ""})).mid(0, call->func == "mid" ? 3 : 2);
            dialog.choose(dialog.row(at, stepAt), call->func);
        } else if (action == 6 && steps > 0) {
            QString *text = &call->args[pick(call->args.size())];
            *text = texts.at(pick(texts.size()));
            const int index = int(text - &call->args.first());
            Shown::type(dialog.field(dialog.row(at, stepAt), index, call->args.size()), *text);
        } else if (action == 7) {
            const QString name = names.at(pick(names.size())).trimmed();
            const bool isTaken = name != model.at(at).key && keys.contains(name);
            ModalAnswerer answerer([](QDialog *box) { box->reject(); });
            dialog.rename(at, name);
            QTRY_COMPARE(answerer.wasAsked(), isTaken || name.contains(':'));
            model[at].key = name.isEmpty() || answerer.wasAsked() ? keys.at(at) : name;
        } else if (action == 8) {
            dialog.tree->clearSelection();
            dialog.row(at)->setSelected(true);
            dialog.OnCopySelectAction();
            ModalAnswerer answerer(answering(QMessageBox::Yes));
            dialog.OnPasteAction();
            model.append(model.at(at));
            model.last().key = freeName(keys.at(at), keys);
        }
        const auto collected = withoutIds(dialog.dynamicData().conditions);
        QVERIFY2(collected == withoutIds(model), qPrintable(QString("%1: %2").arg(i).arg(action)));
    }
}

QTEST_MAIN(TestOperationDialog)
#include "tst_operationdialog.moc"
