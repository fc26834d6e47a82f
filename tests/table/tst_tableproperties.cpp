#include "tableproperties.h"

#include "ltranslation.h"

#include <QtTest>
#include <QtWidgets>

using LUM_EditInterface::LTableProperties;

class TestTableProperties : public QObject
{
    Q_OBJECT

private:
    template <class Widget>
    static Widget *child(const TableProperties &dialog, const char *name)
    {
        auto *widget = dialog.findChild<Widget *>(name);
        return widget != nullptr ? widget : (qFatal("no %s", name), nullptr);
    }

private slots:
    void defaults()
    {
        TableProperties dialog;
        QCOMPARE(dialog.objectName(), QString("TableProperty"));
        QCOMPARE(dialog.windowTitle(), QString("Table property"));
        dialog.setProperties(nullptr, true);
        child<QSpinBox>(dialog, "SBColumns")->setValue(3);
        QCOMPARE(dialog.value().width, 60);
        const LTableProperties record = dialog.value();
        QCOMPARE(record.rows, 2);
        QCOMPARE(record.cellPadding + record.borderWidth, 2);
        QCOMPARE(record.backgroundColor, 0xffffffu);
        QVERIFY(record.header && !record.fixedHeader && !record.fillArea && record.type == 0);
        QCOMPARE(child<QPushButton>(dialog, "PBTableColor")->styleSheet(),
                 QString("background-color: rgba(255, 255, 255);"));
    }

    void valuesComeBack()
    {
        LTableProperties record{5, 4, 0x0000ff, 60, 2, 0x800080u, 3, 1, 1, false, true, true};
        TableProperties dialog;
        dialog.setProperties(&record, false);
        QCOMPARE(dialog.value(), record);
        for (const char *name : {"TypeCbx", "HeaderCheckBox", "FixedCheckBox", "SBRows"}) {
            QVERIFY2(!child<QWidget>(dialog, name)->isEnabled(), name);
        }
        QVERIFY(child<QWidget>(dialog, "SBColumns")->isEnabled());
        QCOMPARE(child<QPushButton>(dialog, "PBBorderColor")->styleSheet(),
                 QString("background-color: #800080;"));
        const QString closed = child<QCheckBox>(dialog, "CBHeight")->text();
        emit LTranslation::instance()->LanguageChanged();
        QCOMPARE(child<QCheckBox>(dialog, "CBHeight")->text(), closed);
        QCOMPARE(dialog.value(), record);
    }

    void typesRule_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("withHeader");
        QTest::addColumn<QString>("without");
        QTest::addColumn<QString>("enabled");
        QTest::newRow("fixed form") << 0 << "7x6"
                                    << "7x6"
                                    << "rows columns";
        QTest::newRow("dynamic rows") << 1 << "2x6"
                                      << "1x6"
                                      << "columns";
        QTest::newRow("dynamic columns") << 2 << "7x2"
                                         << "7x1"
                                         << "rows";
        QTest::newRow("adaptive") << 3 << "1x1"
                                  << "1x1"
                                  << "";
    }
    void typesRule()
    {
        QFETCH(int, type);
        TableProperties dialog;
        dialog.setProperties(nullptr, true);
        auto *rows = child<QSpinBox>(dialog, "SBRows");
        auto *columns = child<QSpinBox>(dialog, "SBColumns");
        rows->setValue(7);
        columns->setValue(6);
        const auto size = [&] {
            return QString("%1x%2").arg(rows->value()).arg(columns->value());
        };
        child<QComboBox>(dialog, "TypeCbx")->setCurrentIndex(type);
        QTEST(size(), "withHeader");
        auto *header = child<QCheckBox>(dialog, "HeaderCheckBox");
        header->setCheckState(Qt::PartiallyChecked);
        QTEST(size(), "withHeader");
        header->setCheckState(Qt::Unchecked);
        QTEST(size(), "without");
        QStringList enabled;
        enabled << (rows->isEnabled() ? "rows" : "") << (columns->isEnabled() ? "columns" : "");
        enabled.removeAll("");
        QTEST(enabled.join(' '), "enabled");
    }

    void impossibleTablesAreNotAccepted()
    {
        TableProperties dialog;
        dialog.setItemSize(QSize(256, 64));
        dialog.setProperties(nullptr, true);
        QCOMPARE(dialog.value().width, 124);
        child<QSpinBox>(dialog, "SBColumns")->setValue(4);
        QCOMPARE(dialog.value().width, 62);
        child<QSpinBox>(dialog, "SBWidth")->setValue(50);
        child<QSpinBox>(dialog, "SBColumns")->setValue(2);
        QCOMPARE(dialog.value().width, 50);
        auto *ok = child<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Ok);
        QSignalSpy accepted(&dialog, &QDialog::accepted);
        child<QSpinBox>(dialog, "SBColumns")->setValue(4);
        for (const int rows : {5001, 5000}) {
            child<QSpinBox>(dialog, "SBRows")->setValue(rows);
            QCOMPARE(ok->isEnabled(), rows == 5000);
            QCOMPARE(child<QLabel>(dialog, "notice")->isHidden(), rows == 5000);
            dialog.accept();
        }
        QCOMPARE(accepted.count(), 1);
        QVERIFY(child<QSpinBox>(dialog, "SBHeight")->value() > 5000);
    }
};

QTEST_MAIN(TestTableProperties)
#include "tst_tableproperties.moc"
