#include "richtable.h"
#include "table/tablecells.h"
#include "table/tableoperations.h"
#include "tablecommands.h"

#include <QTextEdit>
#include <QTextTable>
#include <QtTest>

using namespace lctrlsex;

namespace {

QString shown(const QVector<QStringList> &rows)
{
    QStringList lines;
    for (const QStringList &row : rows) {
        lines << row.join('|');
    }
    return lines.join('/');
}

/** A view with an empty table of 2 by 2 cells, the cursor in its last. */
struct Desk
{
    QTextEdit view;
    TableCommands commands{&view};

    Desk()
    {
        commands.insert({}, Qt::AlignLeft);
        view.document()->clearUndoRedoStacks();
        place(1, 1);
    }
    QTextTable *table() const { return firstTable(view.document()); }
    void place(int row, int column)
    {
        view.setTextCursor(table()->cellAt(row, column).firstCursorPosition());
    }
    QString text(int row, int column) const
    {
        const QTextTableCell cell = table()->cellAt(row, column);
        QTextCursor cursor = cell.firstCursorPosition();
        cursor.setPosition(cell.lastPosition(), QTextCursor::KeepAnchor);
        return cursor.selectedText();
    }
    QString texts() const
    {
        QVector<QStringList> rows;
        for (int row = 0; row < table()->rows(); ++row) {
            rows.append(QStringList());
            for (int column = 0; column < table()->columns(); ++column) {
                rows.last() << text(row, column);
            }
        }
        return shown(rows);
    }
    QString place() const
    {
        const QTextTableCell cell = table()->cellAt(view.textCursor());
        return QString("%1,%2").arg(cell.row()).arg(cell.column());
    }
};

} // namespace

class TestTableCells : public QObject
{
    Q_OBJECT

private slots:
    void reads_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("cells");
        QTest::newRow("no more than text") << "a\nb"
                                           << "";
        QTest::newRow("grid") << "a\tb\nc\td"
                              << "a|b/c|d";
        QTest::newRow("last line end") << "a\tb\r\nc\td\r\n"
                                       << "a|b/c|d";
        QTest::newRow("empty cells") << "\t\n\tx\t"
                                     << "|/|x|";
        QTest::newRow("quoted") << "\"a\nb\tc\"\t\"say \"\"x\"\"\"\n"
                                << "a\nb\tc|say \"x\"";
        QTest::newRow("no quotes") << "\"a\" b\t5\"\n\"open\tx"
                                   << "\"a\" b|5\"/\"open|x";
    }
    void reads()
    {
        QFETCH(QString, text);
        QTEST(shown(cellsOf(text)), "cells");
    }

    void fills_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("texts");
        QTest::addColumn<int>("left");
        QTest::newRow("fixed form") << 0 << "||/|1|2/|3|4" << 0;
        QTest::newRow("dynamic rows") << 1 << "||/|1|2" << 2;
        QTest::newRow("dynamic columns") << 2 << "|/|1/|3" << 2;
        QTest::newRow("adaptive") << 3 << "|/|1" << 3;
    }
    void fills()
    {
        QFETCH(int, type);
        Desk desk;
        QTEST(desk.commands.fill({{"1", "2"}, {"3", "4"}}, type, {}), "left");
        QTEST(desk.texts(), "texts");
        desk.view.undo();
        QCOMPARE(desk.texts(), QString("|/|"));
        QVERIFY(!desk.view.document()->isUndoAvailable());
    }

    void fillsMergedCells()
    {
        Desk desk;
        QVERIFY(mergeCells(desk.table(), {0, 0, 1, 2}));
        desk.place(0, 0);
        QCOMPARE(desk.commands.fill({{"1", "2"}, {"3", ""}}, 3, {}), 1);
        QCOMPARE(desk.text(0, 0) + desk.text(1, 0), QString("13"));
        desk.place(0, 0);
        const QVector<QStringList> many(9000, QStringList{"x", "x", "x"});
        const int left = desk.commands.fill(many, 0, {});
        QCOMPARE(desk.table()->columns(), 3);
        QCOMPARE(desk.table()->rows(), 6666);
        QCOMPARE(left, 27000 - 3 * 6666 + 1);
    }

    void movesByTab()
    {
        Desk desk;
        QVERIFY(mergeCells(desk.table(), {0, 0, 1, 2}));
        desk.place(0, 0);
        QVERIFY(!desk.commands.moveByTab(false, 1) || desk.place() == "0,0");
        QStringList places;
        for (const bool forward : {true, true, true, false, false, true}) {
            QVERIFY(desk.commands.moveByTab(forward, 1));
            places << desk.place();
        }
        QCOMPARE(places.join(' '), QString("1,0 1,1 1,1 1,0 0,0 1,0"));
        desk.place(1, 1);
        desk.commands.moveByTab(true, 0);
        QCOMPARE(desk.place(), QString("2,0"));
        desk.view.moveCursor(QTextCursor::End);
        QVERIFY(!desk.commands.moveByTab(true, 0));
    }
};

QTEST_MAIN(TestTableCells)
#include "tst_tablecells.moc"
