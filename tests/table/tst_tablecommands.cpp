#include "tablecommands.h"

#include "lcolor.h"
#include "richtable.h"
#include "table/tableoperations.h"

#include <QSignalSpy>
#include <QTextEdit>
#include <QTextTable>
#include <QtTest>

#include <random>

using namespace lctrlsex;
using LUM_EditInterface::LTableProperties;

namespace {

using Code = TableCommands::Code;

/** Whether to take the minutes of a test before a release. */
bool isThorough()
{
    return qEnvironmentVariableIsSet("LCTRLSEX_THOROUGH");
}

LTableProperties sized(int rows, int columns)
{
    LTableProperties record;
    record.rows = rows;
    record.columns = columns;
    record.width = 50;
    record.borderWidth = 2;
    record.cellPadding = 3;
    record.borderColor = QColor_TO_BGR(QColor("#112233"));
    record.backgroundColor = QColor_TO_BGR(QColor("#445566"));
    return record;
}

/** A view with a table whose cells are named after their places, and the commands on it. */
struct Desk
{
    QTextEdit view;
    TableCommands commands{&view};

    Desk(int rows, int columns)
    {
        commands.insert(sized(rows, columns), Qt::AlignHCenter);
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column) {
                at(row, column).insertText(QString("%1%2").arg(row).arg(column));
            }
        }
    }
    QTextTable *table() const { return firstTable(view.document()); }
    QTextCursor at(int row, int column) const
    {
        return table()->cellAt(row, column).lastCursorPosition();
    }
    void place(int row, int column) { view.setTextCursor(at(row, column)); }
    void select(int row, int column, int lastRow, int lastColumn)
    {
        QTextCursor cursor = at(row, column);
        cursor.setPosition(at(lastRow, lastColumn).position(), QTextCursor::KeepAnchor);
        view.setTextCursor(cursor);
    }
    /** The texts, a row each; "." for the other slots of a merged cell. */
    QStringList texts() const
    {
        QStringList rows;
        for (int row = 0; row < table()->rows(); ++row) {
            QStringList cells;
            for (int column = 0; column < table()->columns(); ++column) {
                const QTextTableCell cell = table()->cellAt(row, column);
                QTextCursor text = cell.firstCursorPosition();
                text.setPosition(cell.lastPosition(), QTextCursor::KeepAnchor);
                const bool isFirst = cell.row() == row && cell.column() == column;
                cells.append(isFirst ? text.selectedText().replace(QChar(0x2029), '/') : ".");
            }
            rows.append(cells.join('|'));
        }
        return rows;
    }
};

QByteArray flaw(const QTextTable &table)
{
    for (int row = 0; row < table.rows(); ++row) {
        for (int column = 0; column < table.columns(); ++column) {
            const QTextTableCell cell = table.cellAt(row, column);
            const Span slot{row, column, 1, 1};
            const Span whole{0, 0, table.rows(), table.columns()};
            const Span span = spanOf(cell);
            if (!cell.isValid() || !span.meets(slot) || grownOver(whole, {span}) != whole) {
                return QString("cell %1, %2").arg(row).arg(column).toLatin1();
            }
        }
    }
    return {};
}

QVector<int> widths(const QTextTable &table)
{
    QVector<int> result;
    for (const QTextLength &length : table.format().columnWidthConstraints()) {
        result.append(length.type() == QTextLength::FixedLength ? int(length.rawValue()) : -1);
    }
    result.append(int(table.format().width().rawValue()));
    return result;
}

} // namespace

class TestTableCommands : public QObject
{
    Q_OBJECT

private slots:
    void insertsOneTable()
    {
        QTextEdit view;
        view.setPlainText("before");
        view.selectAll();
        view.setTextColor(Qt::red);
        view.moveCursor(QTextCursor::End);
        TableCommands commands(&view);
        QVERIFY(!commands.hasTable());
        QVERIFY(commands.insert(sized(3, 4), Qt::AlignRight | Qt::AlignTop));
        QVERIFY(commands.hasTable() && commands.current() == firstTable(view.document()));
        QCOMPARE(commands.record(), sized(3, 4));
        const QTextTableFormat format = commands.current()->format();
        QCOMPARE(format.alignment(), Qt::AlignRight);
        QCOMPARE(format.headerRowCount(), 1);
        QCOMPARE(widths(*commands.current()), QVector<int>({50, 50, 50, 50, 200}));

        QTest::keyClicks(&view, "x");
        QCOMPARE(view.textCursor().charFormat().foreground().color(), QColor(Qt::red));
        QCOMPARE(flaw(*commands.current()), QByteArray());
        QVERIFY2(!commands.insert(sized(1, 1), {}), "one table in a document");
        view.undo();
        view.undo();
        QVERIFY(!commands.hasTable());
        QCOMPARE(view.toPlainText(), QString("before"));
    }

    void refusesUnusableRecords()
    {
        using Record = LTableProperties;
        const QVector<QPair<int Record::*, int>> wrong{
            {&Record::rows, 0},           {&Record::columns, -1},   {&Record::rows, 10001},
            {&Record::rows, 0x7fffffff},  {&Record::width, 8193},   {&Record::cellPadding, -1},
            {&Record::borderWidth, 1000}, {&Record::columns, 10001}};
        Desk desk(2, 2);
        desk.place(0, 0);
        for (const auto &each : wrong) {
            Record record = sized(2, 2);
            record.*each.first = each.second;
            QTextEdit view;
            QVERIFY(!TableCommands(&view).insert(record, {}));
            desk.commands.reformat(record);
            QCOMPARE(desk.commands.record(), sized(2, 2));
        }
    }

    void reformats()
    {
        Desk desk(2, 2);
        desk.place(1, 1);
        QSignalSpy changes(&desk.view, &QTextEdit::textChanged);
        desk.commands.reformat(sized(2, 2));
        QVERIFY(changes.isEmpty());
        LTableProperties record = sized(3, 1);
        record.width = 70;
        record.borderColor = 255;
        desk.commands.reformat(record);
        desk.place(0, 0);
        QCOMPARE(desk.commands.record(), record);
        QCOMPARE(desk.texts(), QStringList({"00", "10", ""}));
        QCOMPARE(desk.table()->format().alignment(), Qt::AlignHCenter);
        desk.view.undo();
        desk.place(1, 1);
        QCOMPARE(desk.commands.record(), sized(2, 2));
        QCOMPARE(desk.texts(), QStringList({"00|01", "10|11"}));
    }

    void operates_data()
    {
        QTest::addColumn<QVector<int>>("selection");
        QTest::addColumn<int>("code");
        QTest::addColumn<QStringList>("texts");
        using V = QVector<int>;
        using L = QStringList;
        // Slots 0, 0 to 1, 1 of three rows and columns are merged.
        const auto row = [](const char *name, const V &selection, int code, const L &texts) {
            QTest::newRow(name) << selection << code << texts;
        };
        const QString square = "00 01/10 11";
        row("row above", V{1, 2}, Code::InsertRowAbove,
            L{square + "|.|02", ".|.|", ".|.|12", "20|21|22"});
        row("row below a merged cell", V{0, 0}, Code::InsertRowBelow,
            L{square + "|.|02", ".|.|12", "||", "20|21|22"});
        row("column left", V{2, 1}, Code::InsertColumnLeft,
            L{square + "|.|.|02", ".|.|.|12", "20||21|22"});
        row("column right of a merged cell", V{0, 1}, Code::InsertColumnRight,
            L{square + "|.||02", ".|.||12", "20|21||22"});
        row("first column", V{2, 0}, Code::InsertColumnLeft,
            L{"|" + square + "|.|02", "|.|.|12", "|20|21|22"});
        row("row of a merged cell goes, its text stays", V{0, 2}, Code::DeleteRow,
            L{square + "|.|12", "20|21|22"});
        row("its last row goes", V{1, 2}, Code::DeleteRow, L{square + "|.|02", "20|21|22"});
        row("column of a merged cell goes, its text stays", V{2, 0}, Code::DeleteColumn,
            L{square + "|02", ".|12", "21|22"});
        row("rows of the selection", V{2, 2, 1, 2}, Code::DeleteRow, L{square + "|.|02"});
        row("columns of the selection", V{2, 1, 2, 2}, Code::DeleteColumn, L{square, ".", "20"});
        row("merge grows over what it cuts", V{1, 2, 2, 2}, Code::Merge,
            L{square + "|.|02", ".|.|12/22", "20|21|."});
        row("merge over a merged cell", V{2, 1, 1, 0}, Code::Merge,
            L{square + "/20 21|.|02", ".|.|12", ".|.|22"});
        row("nothing to merge", V{2, 1}, Code::Merge, L{square + "|.|02", ".|.|12", "20|21|22"});
    }
    void operates()
    {
        QFETCH(QVector<int>, selection);
        QFETCH(int, code);
        Desk desk(3, 3);
        desk.select(0, 0, 1, 1);
        desk.commands.operate(Code::Merge, 0);
        const QStringList before = desk.texts();
        if (selection.size() == 2) {
            desk.place(selection.at(0), selection.at(1));
        } else {
            desk.select(selection.at(0), selection.at(1), selection.at(2), selection.at(3));
        }
        desk.commands.operate(code, 0);
        QTEST(desk.texts(), "texts");
        QCOMPARE(flaw(*desk.table()), QByteArray());
        QVERIFY(desk.commands.current() != nullptr);
        if (desk.texts() != before) {
            desk.view.undo();
            QCOMPARE(desk.texts(), before);
        }
    }

    void movedTextKeepsItsLook()
    {
        Desk desk(2, 2);
        QTextCursor cell = desk.at(1, 0);
        QTextBlockFormat centred;
        centred.setAlignment(Qt::AlignHCenter);
        QTextCharFormat red;
        red.setForeground(Qt::red);
        cell.insertBlock();
        cell.insertText("red", red);
        cell.setBlockFormat(centred);
        mergeCells(desk.table(), {0, 0, 2, 1});
        removeLines(desk.table(), Axis::Rows, 0, 1);
        QCOMPARE(desk.texts(), QStringList({"00/10/red|11"}));
        cell = desk.at(0, 0);
        QCOMPARE(cell.charFormat().foreground().color(), QColor(Qt::red));
        QCOMPARE(cell.blockFormat().alignment(), Qt::AlignHCenter);
        cell.movePosition(QTextCursor::PreviousBlock);
        QVERIFY(cell.blockFormat().alignment() != Qt::AlignHCenter);
    }

    void deletingTheLastLineDeletesTheTable()
    {
        for (const int code : {int(Code::DeleteRow), int(Code::DeleteColumn)}) {
            Desk desk(2, 2);
            desk.select(0, 0, 1, 1);
            desk.commands.operate(code, 0);
            QVERIFY(!desk.commands.hasTable());
            desk.view.undo();
            QCOMPARE(desk.texts(), QStringList({"00|01", "10|11"}));
        }
    }

    void keepsFixedWidths()
    {
        Desk desk(1, 2);
        desk.place(0, 1);
        desk.commands.operate(Code::InsertColumnRight, 0);
        QCOMPARE(widths(*desk.table()), QVector<int>({50, 50, 50, 150}));
        desk.commands.operate(Code::DeleteColumn, 0);
        QCOMPARE(widths(*desk.table()), QVector<int>({50, 50, 100}));

        QTextTableFormat format = desk.table()->format();
        format.setColumnWidthConstraints({QTextLength(QTextLength::FixedLength, 30)});
        desk.table()->setFormat(format);
        desk.commands.operate(Code::InsertColumnRight, 0);
        QCOMPARE(widths(*desk.table()), QVector<int>({30, -1, -1, 100}));
    }

    void splits_data()
    {
        QTest::addColumn<bool>("vertical");
        QTest::addColumn<int>("pieces");
        QTest::addColumn<QStringList>("texts");
        const QString all = "00 01/10 11/20 21/30 31";
        const QStringList whole{all + "|.", ".|.", ".|.", ".|."};
        QTest::newRow("halves") << true << 2 << QStringList{all + "|.", ".|.", "|.", ".|."};
        QTest::newRow("rows") << true << 4 << QStringList{all + "|.", "|.", "|.", "|."};
        QTest::newRow("side by side") << false << 2 << QStringList{all + "|", ".|.", ".|.", ".|."};
        QTest::newRow("does not divide") << true << 3 << whole;
        QTest::newRow("more than it has") << false << 100 << whole;
    }
    void splits()
    {
        QFETCH(bool, vertical);
        QFETCH(int, pieces);
        QFETCH(QStringList, texts);
        Desk desk(4, 2);
        desk.select(0, 0, 3, 1);
        desk.commands.operate(Code::Merge, 0);
        const QStringList before = desk.texts();
        QCOMPARE(desk.commands.splitCell(vertical, pieces), texts != before);
        QCOMPARE(desk.texts(), texts);
        QCOMPARE(flaw(*desk.table()), QByteArray());
    }

    void aligns()
    {
        Desk desk(2, 2);
        desk.place(1, 1);
        const QVector<QPair<int, QTextCharFormat::VerticalAlignment>> codes{
            {24, QTextCharFormat::AlignTop},
            {25, QTextCharFormat::AlignBottom},
            {26, QTextCharFormat::AlignMiddle}};
        for (const auto &code : codes) {
            desk.commands.operate(code.first, 0);
            QCOMPARE(desk.table()->cellAt(1, 1).format().verticalAlignment(), code.second);
        }
        QSignalSpy changes(&desk.view, &QTextEdit::textChanged);
        desk.commands.operate(26, 0);
        QVERIFY(changes.isEmpty());
    }

    void enablesTheMenu_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("state"); // rows, columns, merge, split, properties
        QTest::newRow("fixed form") << 0 << "rc-sp";
        QTest::newRow("dynamic rows") << 1 << "-c--p";
        QTest::newRow("dynamic columns") << 2 << "r---p";
        QTest::newRow("adaptive") << 3 << "----p";
    }
    void enablesTheMenu()
    {
        QFETCH(int, type);
        QFETCH(QString, state);
        Desk desk(2, 2);
        const auto shown = [&desk, type] {
            const TableCommands::MenuState menu = desk.commands.menuState(type);
            return QString(menu.rows ? "r" : "-") + (menu.columns ? "c" : "-") +
                   (menu.merge ? "m" : "-") + (menu.split ? "s" : "-") +
                   (menu.properties ? "p" : "-");
        };
        desk.place(0, 0);
        QCOMPARE(shown(), state);
        desk.select(0, 0, 1, 0);
        QCOMPARE(shown(), state.replace(2, 1, "m"));
        desk.commands.operate(Code::Merge, type);
        QCOMPARE(mergedCells(*desk.table()).isEmpty(), type != 0);
        desk.view.moveCursor(QTextCursor::End, QTextCursor::KeepAnchor);
        QVERIFY(!desk.commands.menuState(type).merge);
        desk.view.moveCursor(QTextCursor::End);
        QCOMPARE(shown(), QString("-----"));
    }

    void aDeletedViewIsIgnored()
    {
        auto view = std::make_unique<QTextEdit>();
        TableCommands commands(view.get());
        view.reset();
        QVERIFY(!commands.hasTable() && !commands.insert(sized(2, 2), {}));
        commands.operate(Code::DeleteRow, 0);
        commands.reformat(sized(2, 2));
    }

    void survivesRandomCommands_data()
    {
        QTest::addColumn<int>("seed");
        for (int seed = 1; seed <= (isThorough() ? 60 : 20); ++seed) {
            QTest::addRow("seed %d", seed) << seed;
        }
    }
    void survivesRandomCommands()
    {
        QFETCH(int, seed);
        std::mt19937 random{unsigned(seed)};
        const auto below = [&random](int limit) {
            return int(random() % unsigned(limit));
        };
        const QVector<int> codes{12, 13, 14, 14, 16, 17, 18, 18, 19, 19, 20, 24};
        Desk desk(3, 3);
        desk.view.document()->clearUndoRedoStacks();
        const QString before = desk.view.toHtml();
        for (int step = 0; step < (isThorough() ? 17000 : 2000); ++step) {
            if (desk.table() == nullptr) {
                QVERIFY(desk.commands.insert(sized(1 + below(5), 1 + below(5)), {}));
            }
            const int rows = desk.table()->rows();
            const int columns = desk.table()->columns();
            desk.select(below(rows), below(columns), below(rows), below(columns));
            const int action = below(22);
            if (action < codes.size()) {
                const bool grows = codes.at(action) % 4 < 2 && codes.at(action) < 18;
                desk.commands.operate(grows && rows + columns > 14 ? 14 : codes.at(action), 0);
            } else if (action < 15) {
                desk.commands.splitCell(below(2) == 0, 2 + below(3));
            } else if (action == 20) {
                desk.commands.moveByTab(below(2) == 0, rows > 9 ? 1 : 0);
            } else if (action == 21) {
                desk.commands.fill({{"1", "2"}, {"3"}}, rows + columns > 14 ? 3 : 0, {});
            } else if (action < 18) {
                desk.view.insertPlainText(below(3) == 0 ? "\n" : QString::number(step));
            } else {
                for (int times = below(5); times >= 0; --times) {
                    action == 18 ? desk.view.undo() : desk.view.redo();
                }
            }
            if (desk.table() != nullptr) {
                QCOMPARE(flaw(*desk.table()), QByteArray());
            }
        }
        const auto goTo = [&desk](void (QTextEdit::*step)(), bool (QTextDocument::*more)() const) {
            while ((desk.view.document()->*more)()) {
                (desk.view.*step)();
            }
            return desk.view.toHtml();
        };
        const QString after = goTo(&QTextEdit::redo, &QTextDocument::isRedoAvailable);
        QCOMPARE(goTo(&QTextEdit::undo, &QTextDocument::isUndoAvailable), before);
        QCOMPARE(goTo(&QTextEdit::redo, &QTextDocument::isRedoAvailable), after);
    }
};

QTEST_MAIN(TestTableCommands)
#include "tst_tablecommands.moc"
