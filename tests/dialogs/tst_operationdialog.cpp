#include "autocompletelineedit.h"
#include "lmodbusparameteroperation.h"
#include "modalanswerer.h"

#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QtTest>

namespace {

CalculationStep step(const QString &name, const QString &func, const QStringList &args)
{
    return {name, {func, args, {}}, {}};
}

CalculationCondition calculation(const QString &name, const QVector<CalculationStep> &steps)
{
    return {"id of " + name, name, {}, steps, {}};
}

CalculationDynamicData dataOf(const QVector<CalculationCondition> &conditions)
{
    return {{{"temp", "21.5"}, {"list", "a;b;;c"}}, conditions, {{"any", "value"}}};
}

QVector<CalculationCondition> withoutIds(QVector<CalculationCondition> conditions)
{
    for (CalculationCondition &each : conditions) {
        each.id.clear();
    }
    return conditions;
}

void answer(QDialog *box, QMessageBox::StandardButton button)
{
    QTest::mouseClick(static_cast<QMessageBox *>(box)->button(button), Qt::LeftButton);
}

/** The dialog as a user finds it: widgets are what is seen at their places. */

class Shown : public LModbusParameterOperation
{
public:
    explicit Shown(const QVector<CalculationCondition> &conditions = {})
        : tree(findChild<QTreeWidget *>())
        , tip(findChild<QLabel *>("SettingStatusTips"))
    {
        setDynamicData(dataOf(conditions));
        show();
        isActive = QTest::qWaitForWindowActive(this);
    }

    QTreeWidgetItem *row(int calculation, int stepIndex = -1) const
    {
        QTreeWidgetItem *top = tree->topLevelItem(calculation);
        return stepIndex < 0 ? top : top->child(stepIndex);
    }
    template <typename Widget = QLineEdit>
    Widget *at(QTreeWidgetItem *item, int column, double part = 0.5) const
    {
        const QHeaderView *header = tree->header();
        for (int i = 0; i < 4; ++i) { // the lay-out waits until there is nothing else to do
            tree->scrollToItem(item);
            tree->horizontalScrollBar()->setValue(header->sectionPosition(column));
            QCoreApplication::processEvents();
        }
        const QPoint place(header->sectionViewportPosition(column) +
                               int(part * header->sectionSize(column)),
                           tree->visualItemRect(item).top() + 12);
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
        box->setCurrentIndex(box->findText(func, Qt::MatchExactly | Qt::MatchCaseSensitive));
    }
    void add(QTreeWidgetItem *item) const { click(at<QToolButton>(item, 5, 0.25)); }
    void remove(QTreeWidgetItem *item) const { click(at<QToolButton>(item, 5, 0.75)); }
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
        edit->selectAll();
        text.isEmpty() ? edit->clear() : edit->insert(text);
    }
    static void click(QWidget *button) { QTest::mouseClick(button, Qt::LeftButton); }
    QStringList names() const
    {
        QStringList found;
        for (int i = 0; i < tree->topLevelItemCount(); ++i) {
            found.append(at(row(i), 0)->text());
        }
        return found;
    }

    QTreeWidget *tree;
    QLabel *tip;
    bool isActive = false;
};

} // namespace

class TestOperationDialog : public QObject
{
    Q_OBJECT

private slots:
    void showsResults_data();
    void showsResults();
    void keepsWhatIsNotEdited();
    void changesOnlyWhatIsEdited();
    void checksNames_data();
    void checksNames();
    void worksWithTheClipboard();
    void goesByKeyboardAlone();
    void followsTheSources();
    void survives();
    void equalsAPlainModel();
};

void TestOperationDialog::showsResults_data()
{
    QTest::addColumn<QString>("func");
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<QString>("result");
    QTest::addColumn<bool>("isReason");
    const auto add = [](const QString &func, const QStringList &args, const QString &result,
                        bool isReason = false) {
        QTest::addRow("%s %s", qPrintable(func), qPrintable(args.join(' ')))
            << func << args << result << isReason;
    };
    add("+", {"1", "x"}, "", true);
    add("+", {"${temp}", "2"}, "23.5");
    add("/", {"10", "0"}, "10");
    add("%", {"7", "0"}, "7");
    add("left", {"abcdef", "-3"}, "");
    add("right", {"abcdef", "2"}, "ef");
    add("mid", {"abcdef", "2", "3"}, "cde");
    add("split", {"${list}", ";"}, "a\nb\nc");
    add("index", {"${var1}", "3"}, "", true);
    add("index", {"${var1}", "1"}, "b");
    add("strcat", {"<b>", "${var1}"}, "<b>a\nb\nc");
    add("decimal", {"3.14159", "9"}, "3.141590");
    add("decimal", {"3.14159", "6"}, "3.141590");
}

void TestOperationDialog::showsResults()
{
    QFETCH(QString, func);
    QFETCH(QStringList, args);
    Shown dialog({calculation("c", {step("var1", "split", {"a;b;;c", ";"})})});
    dialog.add(dialog.row(0));
    QTreeWidgetItem *row = dialog.row(0, 1);
    QCOMPARE(dialog.at<QLabel>(row, 2)->text(), QString("var2"));
    const int lowRow = dialog.tree->visualItemRect(row).height();
    dialog.choose(row, func);
    for (int i = 0; i < args.size(); ++i) {
        Shown::type(dialog.field(row, i, args.size()), args.at(i));
    }
    QVERIFY(dialog.tip->isHidden());
    QTest::keyClick(dialog.field(row, 1, args.size()), Qt::Key_Return);
    QLabel *label = dialog.resultOf(row);
    QTEST(label->text(), "result");
    QTEST(label->property("isReason").toBool(), "isReason");
    QCOMPARE(label->toolTip().isEmpty(),
             label->text().isEmpty() && !label->property("isReason").toBool());
    QCOMPARE(dialog.tip->isVisible(), args.value(1) == "9");
    QCOMPARE(dialog.resultOf(dialog.row(0))->text(), label->text());
    QCOMPARE(dialog.tree->visualItemRect(row).height() > lowRow, label->text().contains('\n'));
    QVERIFY(!dialog.tip->isVisible() ||
            (dialog.tip->size() == QSize(300, 80) && dialog.isActiveWindow()));
    QTRY_VERIFY_WITH_TIMEOUT(dialog.tip->isHidden(), 4000);
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
    const auto given = dataOf({odd, calculation("a:b", {}), calculation("a:b", {})});
    Shown dialog(given.conditions);
    for (int i = 0; i < 40; ++i) { // through all the cells
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    dialog.onNameEdited(dialog.row(0));
    dialog.accept();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    CalculationDynamicData kept = dialog.dynamicData();
    QCOMPARE(dialog.formerIds().size(), 3);
    for (CalculationCondition &each : kept.conditions) {
        QVERIFY(!each.id.isEmpty());
        each.id = dialog.formerIds().value(each.id);
    }
    QVERIFY(kept == given);
}

void TestOperationDialog::changesOnlyWhatIsEdited()
{
    Shown dialog({calculation("c", {step("a", "mid", {"abc", "1", "2", "x"}), step("b", "+", {"1"}),
                                    step("d", "+", {"1", "2", "3"})})});
    auto expected = dialog.dynamicData().conditions;
    Shown::type(dialog.at(dialog.row(0), 4), "none");
    dialog.choose(dialog.row(0, 0), "left");
    Shown::type(dialog.field(dialog.row(0, 1), 0), "7");
    dialog.choose(dialog.row(0, 2), "-");
    QCOMPARE(dialog.resultOf(dialog.row(0, 2))->text(), QString("-4"));
    expected[0].defaultValue = "none";
    expected[0].expressions = {step("a", "left", {"abc", "1"}), step("b", "+", {"7", ""}),
                               step("d", "-", {"1", "2", "3"})};
    QVERIFY(withoutIds(dialog.dynamicData().conditions) == withoutIds(expected));
}

void TestOperationDialog::checksNames_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("warning");
    QTest::newRow("trimmed") << " new name "
                             << "new name"
                             << "";
    QTest::newRow("blank") << "  "
                           << "a"
                           << "";
    QTest::newRow("illegal") << "x:y"
                             << "a"
                             << "Name contains illegal characters.";
    QTest::newRow("taken") << "b "
                           << "a"
                           << "Name already exists!";
    QTest::newRow("itself") << " a"
                            << "a"
                            << "";
    QTest::newRow("case") << "B"
                          << "B"
                          << "";
    QTest::newRow("long") << QString(10000, 'x') << QString(10000, 'x') << "";
}

void TestOperationDialog::checksNames()
{
    QFETCH(QString, typed);
    Shown dialog({calculation("a", {}), calculation("b", {})});
    QString warning;
    ModalAnswerer answerer([&](QDialog *box) {
        warning = static_cast<QMessageBox *>(box)->text();
        box->reject();
    });
    QTEST(dialog.rename(0, typed), "name");
    QTEST(dialog.dynamicData().conditions.first().key, "name");
    QTest::qWait(50);
    QTEST(warning, "warning");
    // The name that is being written when the dialog is accepted, by the key of its button
    Shown::type(dialog.at(dialog.row(0), 0), typed);
    dialog.accept();
    QCOMPARE(dialog.isVisible(), !warning.isEmpty());
}

void TestOperationDialog::worksWithTheClipboard()
{
    auto *dialog =
        new Shown({calculation("a", {step("s", "+", {"1", "2"})}), calculation("b", {})});
    QVERIFY(!dialog->hasClipboardData());
    dialog->row(0, 0)->setSelected(true);
    dialog->OnCopySelectAction();
    QVERIFY(dialog->clipboardData().conditions ==
                QVector{dialog->dynamicData().conditions.first()} ||
            dialog->clipboardData().conditions.first().key == "a");
    const auto confirmed = [&](auto slot, QMessageBox::StandardButton button) {
        ModalAnswerer answerer([button](QDialog *box) { answer(box, button); });
        (dialog->*slot)();
        return answerer.wasAsked();
    };
    QVERIFY(confirmed(&Shown::OnPasteAction, QMessageBox::No));
    QCOMPARE(dialog->names(), QStringList({"a", "b"}));
    QVERIFY(confirmed(&Shown::OnPasteAction, QMessageBox::Yes));
    QVERIFY(confirmed(&Shown::OnPasteAction, QMessageBox::Yes));
    QCOMPARE(dialog->names(), QStringList({"a", "b", "a_1", "a_2"}));
    QCOMPARE(dialog->resultOf(dialog->row(3, 0))->text(), QString("3"));
    QVERIFY(confirmed(&Shown::OnDeleteAllAction, QMessageBox::Yes));
    QVERIFY(dialog->findChild<QLabel *>("EmptyHint")->isVisible());
    QVERIFY(confirmed(&Shown::OnCoverAction, QMessageBox::Yes));
    QCOMPARE(dialog->names(), QStringList({"a"}));
    QVERIFY(dialog->findChild<QLabel *>("EmptyHint")->isHidden());
    QCOMPARE(dialog->dynamicData().conditions.size(), 1);
    QVERIFY(dialog->formerIds().isEmpty());
    // Gone behind its question, then behind its menu, then behind its warning
    ModalAnswerer question([&](QDialog *) { delete dialog; });
    dialog->OnCoverAction();
    QVERIFY(question.wasAsked());
    dialog = new Shown({calculation("a", {}), calculation("b", {})});
    QTimer::singleShot(20, dialog, [&] { delete dialog; });
    dialog->ShowContextMenu();
    const QPointer<Shown> last = dialog = new Shown({calculation("a", {}), calculation("b", {})});
    ModalAnswerer warning([&](QDialog *) { delete dialog; });
    dialog->rename(0, "b");
    QTRY_VERIFY(last.isNull());
}

void TestOperationDialog::goesByKeyboardAlone()
{
    Shown dialog(
        {calculation("a", {step("s", "mid", {}), step("t", "+", {})}), calculation("b", {})});
    QVERIFY(dialog.isActive);
    const auto press = [](int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
    };
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
    QCOMPARE(visited.at(9), dialog.at<QComboBox>(dialog.row(0, 1), 3));
    QCOMPARE(visited.at(13), dialog.at(dialog.row(1), 0));
    QVERIFY(dialog.tree->currentItem() == dialog.row(1));
    press(Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget()->parentWidget(), dialog.findChild<QDialogButtonBox *>());
    for (int i = 16; i >= 0; --i) {
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(QApplication::focusWidget(), visited.at(i));
        press(Qt::Key_Return);
        QVERIFY(dialog.isVisible());
    }
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(QApplication::focusWidget(), dialog.tree);
    press(Qt::Key_Insert);
    QCOMPARE(QApplication::focusWidget(), dialog.field(dialog.row(0, 2), 0));
    press(Qt::Key_F2);
    QCOMPARE(QApplication::focusWidget(), dialog.at(dialog.row(0), 0));
    press(Qt::Key_Delete); // is for the text
    QCOMPARE(dialog.tree->topLevelItemCount(), 2);
    dialog.tree->setFocus();
    press(Qt::Key_Delete);
    QCOMPARE(dialog.names(), QStringList("b"));
    QTest::mouseClick(dialog.findChild<QPushButton *>(), Qt::LeftButton);
    auto *name = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    QCOMPARE(name->selectedText(), QString("Configuration item"));
    QCOMPARE(dialog.dynamicData().conditions.at(1).expressions.first().expression.args.size(), 2);
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
    QCOMPARE(field->words(), QStringList({"${TEMP}", "${temp}", "${var1}", "${var2}"}));
    field->clear();
    QTest::keyClicks(field, "${T");
    QCOMPARE(field->completer()->completionCount(), 2);
    QTest::keyClick(field->completer()->popup(), Qt::Key_Down);
    QTest::keyClick(field->completer()->popup(), Qt::Key_Return);
    QCOMPARE(dialog.dynamicData().conditions.first().expressions.first().expression.args.at(1),
             QString("${TEMP}"));
    QVERIFY(dialog.isVisible());
}

void TestOperationDialog::survives()
{
    QStringList ones;
    for (int i = 0; i < 1000; ++i) {
        ones.append("1");
    }
    const auto one =
        calculation(QString(10000, 'x'), {step("var1", "+", ones), step("var2", "+", {})});
    Shown dialog;
    dialog.setClipboardData(dataOf(QVector<CalculationCondition>(10000, one)));
    ModalAnswerer answerer([](QDialog *box) { answer(box, QMessageBox::Yes); });
    QElapsedTimer time;
    time.start();
    dialog.OnPasteAction();
    QVERIFY2(time.elapsed() < 5000, qPrintable(QString::number(time.elapsed())));
    QCOMPARE(dialog.resultOf(dialog.row(9999, 0))->text(), QString("1000"));
    QCOMPARE(dialog.at(dialog.row(9999), 0)->text().right(6), QString("x_9999"));
    QVERIFY(dialog.resultOf(dialog.row(0, 0)) && dialog.resultOf(dialog.row(9999, 0)));
    Shown::type(dialog.field(dialog.row(9999, 1), 0), "5"); // and goes while it has the focus
    delete dialog.row(9999, 1);
    auto *button = dialog.at<QToolButton>(dialog.row(9999, 0), 5, 0.75);
    button->click();
    dialog.add(dialog.row(9999)); // may lie where the removed one lay
    button->click();
    QCOMPARE(dialog.row(9999)->childCount(), 1);
    dialog.remove(dialog.row(9999));
    QCOMPARE(dialog.tree->topLevelItemCount(), 9999);
}

void TestOperationDialog::equalsAPlainModel()
{
    QRandomGenerator random(7);
    const auto pick = [&](int count) {
        return int(random.bounded(quint32(count)));
    };
    const QStringList funcs = {"+", "mid", "split", "index", "strcat", "decimal"};
    const QStringList names = {"a", "b", "x:y", "  ", "Configuration item", " c ", "a_1"};
    QVector<CalculationCondition> model;
    const auto freeName = [](const QString &base, const QStringList &taken) {
        QString name = base;
        for (int i = 1; taken.contains(name); ++i) {
            name = QString("%1_%2").arg(base).arg(i);
        }
        return name;
    };
    const auto keys = [&] {
        QStringList taken;
        std::transform(model.cbegin(), model.cend(), std::back_inserter(taken),
                       [](const auto &each) { return each.key; });
        return taken;
    };
    const auto addStep = [&](CalculationCondition *to) {
        QStringList taken;
        std::transform(to->expressions.cbegin(), to->expressions.cend(), std::back_inserter(taken),
                       [](const auto &each) { return each.variableName; });
        to->expressions.append(
            step(freeName(QString("var%1").arg(taken.size() + 1), taken), "+", {"", ""}));
    };
    Shown dialog;
    for (int i = 0; i < 3000; ++i) {
        const int action = model.isEmpty() ? 0 : model.size() > 6 ? 6 : pick(9);
        const int at = model.isEmpty() ? 0 : pick(model.size());
        const int steps = model.isEmpty() ? 0 : model.at(at).expressions.size();
        const int stepAt = steps == 0 ? 0 : pick(steps);
        if (action == 0) {
            dialog.onAddRootButtonClicked();
            model.append(calculation(freeName("Configuration item", keys()), {}));
            addStep(&model.last());
        } else if (action == 1 && steps < 6) {
            dialog.add(dialog.row(at));
            addStep(&model[at]);
        } else if (action == 2 && steps > 0) {
            dialog.remove(dialog.row(at, stepAt));
            model[at].expressions.remove(stepAt);
        } else if (action == 3 && steps > 0) {
            const QString func = funcs.at(pick(funcs.size()));
            dialog.choose(dialog.row(at, stepAt), func);
            FunctionCall &call = model[at].expressions[stepAt].expression;
            call.func = func;
            call.args = (call.args + QStringList({"", "", ""})).mid(0, func == "mid" ? 3 : 2);
        } else if (action == 4 && steps > 0) {
            QStringList &args = model[at].expressions[stepAt].expression.args;
            const int index = pick(args.size());
            args[index] = QStringList({"1", "${var1}", "a;b", "", "${temp}"}).at(pick(5));
            Shown::type(dialog.field(dialog.row(at, stepAt), index, args.size()), args.at(index));
        } else if (action == 5) {
            const QString name = names.at(pick(names.size())).trimmed();
            const bool isRefused =
                name.contains(':') || (name != model.at(at).key && keys().contains(name));
            ModalAnswerer answerer([](QDialog *box) { box->reject(); });
            dialog.rename(at, name);
            model[at].key = name.isEmpty() || isRefused ? model.at(at).key : name;
            QTRY_COMPARE(answerer.wasAsked(), isRefused);
        } else if (action == 6) {
            dialog.remove(dialog.row(at));
            model.remove(at);
        } else if (action == 7) {
            dialog.tree->clearSelection();
            dialog.row(at)->setSelected(true);
            dialog.OnCopySelectAction();
            ModalAnswerer answerer([](QDialog *box) { answer(box, QMessageBox::Yes); });
            dialog.OnPasteAction();
            model.append(model.at(at));
            model.last().key.clear();
            model.last().key = freeName(model.at(at).key, keys());
        } else if (action == 8) {
            dialog.setVariables({{"temp", QString::number(i)}});
        }
        const auto collected = withoutIds(dialog.dynamicData().conditions);
        QVERIFY2(collected == withoutIds(model), qPrintable(QString("%1: %2").arg(i).arg(action)));
    }
}

QTEST_MAIN(TestOperationDialog)
#include "tst_operationdialog.moc"
