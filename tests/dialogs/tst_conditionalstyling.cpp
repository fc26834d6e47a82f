#include "colorbutton.h"
#include "datasourceconfigmanager.h"
#include "lconditionalstyling.h"
#include "modalanswerer.h"

#include <QAction>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFontComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRandomGenerator>
#include <QScreen>
#include <QScrollBar>
#include <QSpinBox>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>
#include <QUuid>

namespace {

enum Column {
    Name,
    Source,
    Serial,
    Type,
    Expression,
    Font,
    Size,
    Color,
    Background,
    Bold,
    Italic,
    Underline,
    Operation
};

SpanCondition condition(const QString &text, const QString &key = {})
{
    SpanCondition result;
    result.type = text.startsWith('^') ? 1 : 0;
    if (!text.isEmpty()) {
        result.expression << text;
    }
    result.fontStyle.fontName = "DejaVu Sans";
    result.fontStyle.fontSize = 20;
    result.fontStyle.color = 0x0102ff;
    result.key = key;
    return result;
}

FieldConditions entry(const QString &name, const QVector<SpanCondition> &conditions)
{
    FieldConditions result;
    result.id = "id of " + name;
    result.name = name;
    result.conditions = conditions;
    return result;
}

/** The dialog with what a user finds in it. */
struct Dialog : public LConditionalStyling
{
    explicit Dialog(const QVector<FieldConditions> &items = {})
    {
        DynamicData edited;
        edited.name = "first";
        edited.hostText = "second";
        edited.fields = QStringList{"Prices:price", "Prices:PRICE", "Weather:temp"};
        edited.items = items;
        setDynamicData(edited);
    }

    [[nodiscard]] QTreeWidget *tree() const { return findChild<QTreeWidget *>(); }
    [[nodiscard]] QTreeWidgetItem *item(int index) const { return tree()->topLevelItem(index); }
    template <typename Widget>
    [[nodiscard]] Widget *cell(QTreeWidgetItem *row, int column, int index = 0) const
    {
        QWidget *const widget = tree()->itemWidget(row, column);
        auto *const self = qobject_cast<Widget *>(widget);
        return self != nullptr || widget == nullptr ? self
                                                    : widget->findChildren<Widget *>().value(index);
    }
    [[nodiscard]] QAction *action(const QString &text) const
    {
        for (QAction *each : tree()->actions()) {
            if (each->text() == text) {
                return each;
            }
        }
        return nullptr;
    }
    void run(const char *slot) { QVERIFY(QMetaObject::invokeMethod(this, slot)); }
    /** Runs @p slot and answers the box that it shows; gives title and text of the box. */
    QStringList answered(const char *slot, QMessageBox::StandardButton button)
    {
        QStringList shown;
        ModalAnswerer answerer([&](QDialog *dialog) {
            auto *box = qobject_cast<QMessageBox *>(dialog);
            shown << box->windowTitle() << box->text();
            box->button(button)->click();
        });
        run(slot);
        return shown;
    }
    /** Renames a row as its in-place editor does; gives the title of a box that appeared. */
    QString rename(QTreeWidgetItem *row, const QString &name)
    {
        QString title;
        ModalAnswerer answerer([&](QDialog *dialog) {
            title = dialog->windowTitle();
            dialog->accept();
        });
        row->setText(Name, name);
        return title;
    }
};

QStringList serials(const QTreeWidgetItem *item)
{
    QStringList result{item->text(Serial)};
    for (int i = 0; i < item->childCount(); ++i) {
        result << item->child(i)->text(Serial);
    }
    return result;
}

QStringList texts(const QVector<SpanCondition> &conditions)
{
    QStringList result;
    for (const SpanCondition &each : conditions) {
        result << each.expression.join('|');
    }
    return result;
}

} // namespace

class TestConditionalStyling : public QObject
{
    Q_OBJECT

private slots:
    void expressions_data();
    void expressions();
    void unchangedIsIdentity();
    void cellsWriteWhatIsSet();
    void names();
    void rejectedNameIsTheLastAccepted();
    void deletingPromotesTheNext();
    void clipboard();
    void clipboardOfTenThousand();
    void coverTakesEverything();
    void trial();
    void keyboard();
    void sourcesChange();
    void rowsAreMadeWhenSeen();
    void goneWhileABoxIsOpen();
    void randomActions();
};

void TestConditionalStyling::expressions_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QStringList>("editors");
    QTest::addColumn<QString>("built");
    QTest::addColumn<int>("type");
    const auto row = [](const char *stored, int kind, const QStringList &editors, const char *built,
                        int type) {
        QTest::newRow(stored) << stored << kind << editors << built << type;
    };
    row(">=5", 0, {">=", "5"}, ">=5", 0);
    row("== -3.5", 0, {"==", "-3.5"}, "==-3.5", 0);
    row("(1,2)", 1, {"1", "2"}, "(1,2)", 0);
    row("[,]", 2, {"", ""}, "[,]", 0);
    row("[ 1 , 2 )", 3, {"1", "2"}, "[1,2)", 0);
    row("(,7]", 4, {"", "7"}, "(,7]", 0);
    row("abc", 5, {"abc"}, "abc", 1);
    row("", 5, {""}, "", 1);
}

void TestConditionalStyling::expressions()
{
    QFETCH(QString, stored);
    QFETCH(QStringList, editors);
    Dialog dialog({entry("a", {condition(stored)})});
    QTreeWidgetItem *const row = dialog.item(0);
    QTEST(dialog.cell<QComboBox>(row, Type)->currentIndex(), "kind");
    if (editors.first().contains(QRegularExpression("[<>=]"))) {
        QCOMPARE(dialog.cell<QComboBox>(row, Expression)->currentText(), editors.takeFirst());
    }
    for (int i = 0; i < editors.size(); ++i) {
        QCOMPARE(dialog.cell<QLineEdit>(row, Expression, i)->text(), editors.at(i));
    }
    const SpanCondition result = dialog.dynamicData().items.first().conditions.first();
    QTEST(result.expression.value(0), "built");
    QCOMPARE(result.expression.isEmpty(), stored.isEmpty());
    QTEST(result.type, "type");
}

void TestConditionalStyling::unchangedIsIdentity()
{
    SpanCondition odd = condition("[1,2)", "Gone:key");
    odd.fontStyle.fontName = "No Such Font";
    odd.fontStyle.fontSize = 300;
    odd.fontStyle.color = 0x7f123456;
    odd.fontStyle.others.insert("later", 1);
    odd.others.insert("later", 2);
    FieldConditions first = entry("first", {odd, condition("^x"), condition(">1", "Weather:temp")});
    first.others.insert("later", 3);
    const QVector<FieldConditions> items{first, entry("second", {condition("<3", "prices:price")})};
    Dialog dialog(items);
    dialog.show();
    QApplication::processEvents();
    QCOMPARE(dialog.cell<QComboBox>(dialog.item(1), Source)->currentIndex(), -1);
    DynamicData result = dialog.dynamicData();
    QCOMPARE(result.name, QString("first"));
    QCOMPARE(result.hostText, QString("second"));
    for (FieldConditions &each : result.items) {
        QVERIFY(!QUuid(each.id).isNull());
        each.id = dialog.formerIds().value(each.id);
    }
    QVERIFY(result.items == items);
}

void TestConditionalStyling::cellsWriteWhatIsSet()
{
    Dialog dialog;
    QTest::mouseClick(dialog.findChild<QPushButton *>(), Qt::LeftButton);
    QTreeWidgetItem *const row = dialog.item(0);
    SpanCondition fresh = dialog.dynamicData().items.first().conditions.first();
    QCOMPARE(fresh.fontStyle.fontName, QApplication::font().family());
    QCOMPARE(fresh.fontStyle.fontSize, 16);
    QCOMPARE(fresh.fontStyle.color, 255);

    dialog.cell<QComboBox>(row, Source)->setCurrentText("Prices:PRICE");
    dialog.cell<QComboBox>(row, Type)->setCurrentIndex(4);
    dialog.cell<QLineEdit>(row, Expression, 1)->setText("9");
    dialog.cell<QFontComboBox>(row, Font)->setCurrentFont(QFont("Liberation Serif"));
    dialog.cell<QSpinBox>(row, Size)->setValue(99);
    dialog.cell<QCheckBox>(row, Underline)->click();
    auto *const color = dialog.cell<QPushButton>(row, Color);
    ModalAnswerer answerer([](QDialog *chooser) {
        qobject_cast<QColorDialog *>(chooser)->setCurrentColor(QColor("#f8f9fa"));
        chooser->accept();
    });
    color->click();
    QCOMPARE(color->styleSheet(), QString("background-color: #f8f9fa; color: black;"));
    dialog.cell<QPushButton>(row, Background)->setProperty("colorValue", QColor());
    const SpanCondition set = dialog.dynamicData().items.first().conditions.first();
    QCOMPARE(set.key, QString("Prices:PRICE"));
    QCOMPARE(set.expression, QStringList{"(,9]"});
    QCOMPARE(set.fontStyle.fontName, QString("Liberation Serif"));
    QCOMPARE(set.fontStyle.fontSize, 72);
    QCOMPARE(set.fontStyle.color, 0xfaf9f8);
    QCOMPARE(set.fontStyle.bgColor, 0);
    QVERIFY(set.fontStyle.underline && !set.fontStyle.bold && !set.fontStyle.italic);
}

void TestConditionalStyling::names()
{
    Dialog dialog({entry("", {condition(">1")}), entry("a", {condition(">1")})});
    dialog.run("onAddRootButtonClicked");
    QCOMPARE(dialog.item(0)->text(Name), QString("Configuration item"));
    QCOMPARE(dialog.item(2)->text(Name), QString("Configuration item_1"));
    QVERIFY(dialog.rename(dialog.item(0), "b").isEmpty());
    for (const char *nothing : {"", "  "}) {
        QVERIFY(dialog.rename(dialog.item(0), nothing).isEmpty());
        QCOMPARE(dialog.item(0)->text(Name), QString("b"));
    }
    QCOMPARE(dialog.rename(dialog.item(1), "b"), QString("Duplicate Name"));
    QCOMPARE(dialog.item(1)->text(Name), QString("Configuration item")); // "b" is not free
    const QString longest(10000, 'n');
    QVERIFY(dialog.rename(dialog.item(1), longest).isEmpty());
    dialog.show();
    QVERIFY(dialog.tree()->columnWidth(Name) < 400);
}

void TestConditionalStyling::rejectedNameIsTheLastAccepted()
{
    Dialog dialog({entry("a", {condition(">1")}), entry("b", {condition(">1")})});
    QVERIFY(dialog.rename(dialog.item(1), "last").isEmpty());
    delete dialog.item(1);
    QCOMPARE(dialog.rename(dialog.item(0), "a:b"), QString("Invalid Name"));
    QCOMPARE(dialog.item(0)->text(Name), QString("last"));
    Dialog other({entry("x", {condition(">1")})}); // shared by all dialogs
    QCOMPARE(other.rename(other.item(0), "x*"), QString("Invalid Name"));
    QCOMPARE(other.item(0)->text(Name), QString("last"));
}

void TestConditionalStyling::deletingPromotesTheNext()
{
    Dialog dialog(
        {entry("a", {condition(">1", "Weather:temp"), condition("<2"), condition("^3")})});
    QTreeWidgetItem *const item = dialog.item(0);
    QCOMPARE(serials(item), (QStringList{"1", "2", "3"}));
    dialog.cell<QLineEdit>(item->child(0), Expression)->setText("22");
    dialog.cell<QToolButton>(item, Operation, 1)->click();
    QCOMPARE(serials(item), (QStringList{"1", "2"}));
    QCOMPARE(dialog.cell<QLineEdit>(item, Expression)->text(), QString("22"));
    const FieldConditions left = dialog.dynamicData().items.first();
    QCOMPARE(texts(left.conditions), (QStringList{"<22", "^3"}));
    QCOMPARE(left.conditions.first().key, QString("Weather:temp"));
    auto *const remove = dialog.cell<QToolButton>(item->child(0), Operation);
    remove->click();
    remove->click(); // its row is gone, it is not yet
    dialog.cell<QToolButton>(item, Operation)->click();
    QCOMPARE(serials(item), (QStringList{"1", "2"}));
    dialog.tree()->editItem(item, Name);
    dialog.cell<QToolButton>(item, Operation, 1)->click();
    dialog.cell<QToolButton>(item, Operation, 1)->click();
    QCOMPARE(dialog.tree()->topLevelItemCount(), 0);
    QApplication::processEvents();
}

void TestConditionalStyling::clipboard()
{
    Dialog dialog({entry("a", {condition(">1", "Weather:temp"), condition("<2")}),
                   entry("b", {condition("^x")})});
    dialog.tree()->clearSelection();
    dialog.tree()->setCurrentItem(nullptr);
    dialog.setClipboardData({});
    for (const char *text : {"Copy", "Copy All", "Delete All", "Paste", "Cover"}) {
        QVERIFY2(!dialog.action(text)->isEnabled(), text);
    }
    QCOMPARE(dialog.action("Cover")->toolTip(), QString("No data in clipboard"));
    QCOMPARE(dialog.answered("onCopySelectAction", QMessageBox::Ok).last(),
             QString("Please select at least one configuration item to copy"));
    QCOMPARE(dialog.answered("onPasteAction", QMessageBox::Ok).last(),
             QString("No data in clipboard"));
    QVERIFY(!dialog.hasClipboardData());
    dialog.item(0)->child(0)->setSelected(true); // stands for its item
    QVERIFY(dialog.action("Copy All")->isEnabled());
    dialog.run("onCopySelectAction");
    QCOMPARE(dialog.clipboardData().items.size(), 1);
    QCOMPARE(texts(dialog.clipboardData().items.first().conditions), (QStringList{">1", "<2"}));
    QCOMPARE(dialog.action("Paste")->toolTip(), QString("Append 1 configuration items"));
    QCOMPARE(dialog.answered("onPasteAction", QMessageBox::No),
             (QStringList{"Paste", "Are you sure you want to paste 1 configuration item(s) from "
                                   "clipboard?"}));
    QCOMPARE(dialog.tree()->topLevelItemCount(), 2);
    dialog.answered("onPasteAction", QMessageBox::Yes);
    QCOMPARE(dialog.item(2)->text(Name), QString("a_1"));
    QCOMPARE(dialog.cell<QComboBox>(dialog.item(2), Source)->currentText(),
             QString("Weather:temp"));
    QVERIFY(!dialog.formerIds().values().contains(dialog.dynamicData().items.at(2).id));
    QCOMPARE(dialog.answered("onDeleteAllAction", QMessageBox::Yes),
             (QStringList{"Delete", "Do you want to delete all configuration items?"}));
    QCOMPARE(dialog.tree()->topLevelItemCount(), 0);
    QCOMPARE(dialog.answered("onCopyAllAction", QMessageBox::Ok),
             (QStringList{"Copy All", "No configuration items to copy"}));
    QVERIFY(dialog.hasClipboardData());
}

void TestConditionalStyling::clipboardOfTenThousand()
{
    SpanCondition unknown = condition("x");
    unknown.type = 77;
    unknown.expression << "two"
                       << "three";
    DynamicData many;
    for (int i = 0; i < 10000; ++i) {
        many.items.append(
            entry("same", i % 2 != 0 ? QVector<SpanCondition>{} : QVector<SpanCondition>{unknown}));
    }
    Dialog dialog;
    dialog.setClipboardData(many);
    dialog.answered("onPasteAction", QMessageBox::Yes);
    QCOMPARE(dialog.tree()->topLevelItemCount(), 10000);
    QCOMPARE(dialog.item(9999)->text(Name), QString("same_9999"));
    QVERIFY(dialog.findChildren<QWidget *>().size() < 5000);
    QCOMPARE(dialog.dynamicData().items.size(), 10000);
}

void TestConditionalStyling::coverTakesEverything()
{
    Dialog dialog({entry("a", {condition(">1", "Weather:temp")})});
    DynamicData shared;
    shared.name = "other";
    shared.fields = QStringList{"New:field"};
    shared.items.append(entry("b", {condition("<2", "New:field")}));
    dialog.setClipboardData(shared);
    QCOMPARE(dialog.answered("onCoverAction", QMessageBox::Yes),
             (QStringList{"Cover", "Are you sure you want to override all configuration items?"}));
    QCOMPARE(dialog.cell<QComboBox>(dialog.item(0), Source)->currentText(), QString("New:field"));
    const DynamicData result = dialog.dynamicData();
    QCOMPARE(result.name, QString("other"));
    QCOMPARE(result.items.size(), 1);
    QVERIFY(dialog.formerIds().isEmpty());
}

void TestConditionalStyling::trial()
{
    Dialog dialog({entry(
        "price", {condition(">100", "Prices:price"), condition("<10"), condition(">1000")})});
    QTreeWidgetItem *const item = dialog.item(0);
    auto *const value = dialog.findChild<QLineEdit *>("TestValue");
    auto *const verdict = dialog.findChild<QLabel *>("TestVerdict");
    auto *const reasons = dialog.findChild<QTreeWidget *>("TestReasons");
    QTest::keyClicks(value, "5");
    QApplication::processEvents();
    QCOMPARE(verdict->text(), QString("price: condition 2 applies"));
    QVERIFY(item->icon(Serial).isNull() && !item->child(0)->icon(Serial).isNull());
    const QString reason = reasons->topLevelItem(0)->text(2);
    QCOMPARE(reason, QString("5 is not greater than 100 (condition >100)"));
    QVERIFY(item->toolTip(Serial).contains(reason.toHtmlEscaped())); // never as markup
    const auto *const sample = dialog.findChild<QLabel *>("TestSample");
    QCOMPARE(sample->text(), QString("5"));
    QCOMPARE(sample->font().pixelSize(), 20);
    QVERIFY(sample->styleSheet().contains("color: #ff0201"));
    // The live value follows the source, and the conditions as they are changed.
    dialog.setLiveValues({{"Prices:price", "2000"}});
    dialog.findChild<QCheckBox *>("TestLive")->click();
    QApplication::processEvents();
    QCOMPARE(verdict->text(), QString("price: condition 1 applies"));
    dialog.setLiveValues({{"Prices:price", "50"}});
    QApplication::processEvents();
    QCOMPARE(verdict->text(), QString("price: no condition holds"));
    dialog.cell<QLineEdit>(item, Expression)->setText("40");
    QApplication::processEvents();
    QCOMPARE(verdict->text(), QString("price: condition 1 applies"));
    // What is shown goes on being tried when it is not followed any more.
    dialog.findChild<QCheckBox *>("TestLive")->click();
    QApplication::processEvents();
    QCOMPARE(value->text(), QString("50"));
    QCOMPARE(verdict->text(), QString("price: condition 1 applies"));
}

void TestConditionalStyling::keyboard()
{
    Dialog dialog({entry("a", {condition(">1")})});
    dialog.show();
    dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    dialog.tree()->setFocus();
    dialog.tree()->setCurrentItem(dialog.item(0));
    QTest::keyClick(dialog.tree(), Qt::Key_Insert);
    QCOMPARE(dialog.item(0)->childCount(), 1);
    QTest::keyClick(dialog.tree(), Qt::Key_Delete);
    QCOMPARE(dialog.item(0)->childCount(), 0);
    QTest::keyClick(dialog.tree(), Qt::Key_F2);
    auto *const editor = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    QVERIFY(editor != nullptr && dialog.tree()->isAncestorOf(editor));
    QTest::keyClicks(editor, "renamed");
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(dialog.item(0)->text(Name), QString("renamed"));
    // Tab goes through the cells in their order, also through one that was made anew.
    auto *const type = dialog.cell<QComboBox>(dialog.item(0), Type);
    type->setCurrentIndex(1);
    type->setFocus();
    QTest::keyClick(type, Qt::Key_Tab);
    auto *const number = dialog.cell<QLineEdit>(dialog.item(0), Expression);
    QCOMPARE(QApplication::focusWidget(), number);
    QTest::keyClick(number, Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(QApplication::focusWidget(), dialog.cell<QFontComboBox>(dialog.item(0), Font));
    number->setFocus();
    QTest::keyClick(number, Qt::Key_Return); // ends the work on the cell, not on the dialog
    QVERIFY(dialog.isVisible());
    QVERIFY(dialog.screen()->availableSize().width() >= dialog.width());
    dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void TestConditionalStyling::sourcesChange()
{
    Dialog dialog({entry("a", {condition(">1", "Weather:temp")})});
    auto *const box = dialog.cell<QComboBox>(dialog.item(0), Source);
    dialog.setFields({"Other:field"});
    QCOMPARE(box->currentIndex(), -1);
    QCOMPARE(dialog.dynamicData().items.first().conditions.first().key, QString("Weather:temp"));
    dialog.setFields({"Other:field", "Weather:temp"});
    QCOMPARE(box->currentText(), QString("Weather:temp"));
}

void TestConditionalStyling::rowsAreMadeWhenSeen()
{
    QVector<FieldConditions> items;
    for (int i = 0; i < 500; ++i) {
        items.append(entry(QString::number(i), {condition(">1"), condition("<2")}));
    }
    Dialog dialog(items);
    dialog.show();
    QApplication::processEvents();
    QVERIFY(dialog.cell<QComboBox>(dialog.item(0), Type) != nullptr);
    QVERIFY(dialog.cell<QComboBox>(dialog.item(499), Type) == nullptr);
    dialog.tree()->verticalScrollBar()->setValue(dialog.tree()->verticalScrollBar()->maximum());
    QVERIFY(dialog.cell<QComboBox>(dialog.item(499)->child(0), Type) != nullptr);
    QVERIFY(dialog.cell<QComboBox>(dialog.item(250), Type) == nullptr);
}

void TestConditionalStyling::goneWhileABoxIsOpen()
{
    for (const char *slot : {"onDeleteAllAction", "onCoverAction", "onPasteAction"}) {
        auto *const dialog = new Dialog({entry("a", {condition(">1")})});
        dialog->tree()->selectAll();
        dialog->run("onCopyAllAction");
        ModalAnswerer answerer([dialog](QDialog *) { delete dialog; });
        dialog->run(slot);
        QVERIFY(answerer.wasAsked());
    }
    auto *const dialog = new Dialog({entry("a", {condition(">1")}), entry("b", {})});
    ModalAnswerer answerer([dialog](QDialog *) { delete dialog; });
    dialog->item(1)->setText(Name, "a");
    QVERIFY(answerer.wasAsked());
}

void TestConditionalStyling::randomActions()
{
    const int actions = qEnvironmentVariableIsSet("LCTRLSEX_THOROUGH") ? 20000 : 800;
    QRandomGenerator random(20261122);
    Dialog dialog;
    dialog.show();
    QVector<QPair<QString, QStringList>> model; // names and expressions
    QVector<QPair<QString, QStringList>> copied;
    const auto pick = [&random](int count) {
        return int(random.bounded(count));
    };
    const auto uniqueName = [&model](const QString &base) {
        QStringList taken;
        for (const auto &each : qAsConst(model)) {
            taken << each.first;
        }
        QString name = base;
        for (int i = 1; taken.contains(name); ++i) {
            name = base + "_" + QString::number(i);
        }
        return name;
    };
    for (int step = 0; step < actions; ++step) {
        const int index = model.isEmpty() ? -1 : pick(model.size());
        QTreeWidgetItem *const item = index < 0 ? nullptr : dialog.item(index);
        const int row = index < 0 ? 0 : pick(model.at(index).second.size());
        QTreeWidgetItem *const each = row == 0 ? item : item->child(row - 1);
        const int action = index < 0 ? 0 : pick(12);
        if (each != nullptr) {
            dialog.tree()->scrollToItem(item); // as whoever wants to click it
            dialog.tree()->scrollToItem(each);
            QApplication::processEvents();
        }
        if (action == 0 && model.size() < 12) {
            model.append({uniqueName("Configuration item"), {">"}});
            dialog.run("onAddRootButtonClicked");
        } else if (action == 1 && model.at(index).second.size() < 5) {
            model[index].second.append(">");
            dialog.cell<QToolButton>(item, Operation)->click();
        } else if (action >= 2 && action <= 4) {
            model[index].second.removeAt(row);
            if (model.at(index).second.isEmpty()) {
                model.removeAt(index);
            }
            const auto buttons =
                dialog.tree()->itemWidget(each, Operation)->findChildren<QToolButton *>();
            buttons.last()->click();
        } else if (action >= 5 && action <= 7) {
            const int kind = pick(6);
            const QString number = QString::number(pick(100));
            static const char *const forms[] = {">%1", "(%1,)", "[%1,]", "[%1,)", "(%1,]", "%1"};
            model[index].second[row] = QString(forms[kind]).arg(number);
            dialog.cell<QComboBox>(each, Type)->setCurrentIndex(5 - kind); // another one, or this
            dialog.cell<QComboBox>(each, Type)->setCurrentIndex(kind);
            dialog.cell<QLineEdit>(each, Expression)->setText(number);
        } else if (action == 8) {
            const QString name = uniqueName(QString(QChar('a' + pick(6))));
            model[index].first = name;
            item->setText(Name, name);
        } else if (action == 9) {
            dialog.tree()->clearSelection();
            each->setSelected(true);
            dialog.run("onCopySelectAction");
            copied = {model.at(index)};
        } else if (action == 10 && !copied.isEmpty() && model.size() < 12) {
            for (const auto &entry : qAsConst(copied)) {
                model.append({uniqueName(entry.first), entry.second});
            }
            dialog.answered("onPasteAction", QMessageBox::Yes);
        } else if (action == 11 && !copied.isEmpty() && pick(4) == 0) {
            model = copied;
            dialog.answered("onCoverAction", QMessageBox::Yes);
        }
        if (step % 8 == 0) {
            QApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        const DynamicData result = dialog.dynamicData();
        QCOMPARE(result.items.size(), model.size());
        for (int i = 0; i < model.size(); ++i) {
            QCOMPARE(result.items.at(i).name, model.at(i).first);
            QCOMPARE(texts(result.items.at(i).conditions), model.at(i).second);
            QCOMPARE(serials(dialog.item(i)).last(), QString::number(model.at(i).second.size()));
        }
    }
}

QTEST_MAIN(TestConditionalStyling)
#include "tst_conditionalstyling.moc"
