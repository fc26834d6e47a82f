#include "bindingmenus.h"

#include "datasourceconfig.h"

#include <QMenu>
#include <QSignalSpy>
#include <QToolBar>
#include <QToolButton>
#include <QtTest>

using namespace lctrlsex;

class TestBindingMenus : public QObject
{
    Q_OBJECT

    static DataSourceIndex index(const QString &selected, const QString &value = "1")
    {
        DataSourceConfig config;
        config.sources = {{"weather", 3, true, {{"wind", 1, value, true}, {"air", 1, "2", true}}},
                          {"plan", 2, true, {}}};
        return {config, selected};
    }
    static QMenu *menu(const BindingMenus &menus, int button)
    {
        return qobject_cast<QToolButton *>(menus.buttons().at(button))->menu();
    }
    static QStringList texts(const QMenu *menu)
    {
        QStringList texts;
        for (const QAction *action : menu->actions()) {
            texts.append(action->isSeparator() ? "--" : action->text());
        }
        return texts;
    }
    static QMenu *expressions(const BindingMenus &menus)
    {
        return menu(menus, 1)->actions().last()->menu();
    }

private slots:
    void initTestCase() { qRegisterMetaType<QAction *>(); }

    void emptyMenusSayWhy()
    {
        BindingMenus menus;
        QCOMPARE(texts(menu(menus, 0)), QStringList({"No data source is enabled"}));
        QCOMPARE(texts(menu(menus, 1)),
                 QStringList({"No data source is enabled", "--", "Expression Data Source"}));
        QCOMPARE(texts(expressions(menus)), QStringList({"No calculation is defined"}));
        QCOMPARE(texts(menu(menus, 2)), QStringList({"No conditional style is defined"}));
        for (int i = 0; i < 3; ++i) {
            QVERIFY(!menu(menus, i)->actions().first()->isEnabled());
        }
        menus.rebuild(index(""), {});
        QCOMPARE(texts(menu(menus, 1)).first(), QString("Choose a data source first"));
    }

    void picksTellWhatWasPicked()
    {
        BindingMenus menus;
        menus.rebuild(index("weather"), {{"average", "3"}});
        menus.setConditionStyles({{"7", "Low"}, {"9", "High"}});
        QSignalSpy sources(&menus, &BindingMenus::sourcePicked);
        QSignalSpy fields(&menus, &BindingMenus::fieldPicked);
        QSignalSpy styles(&menus, &BindingMenus::stylePicked);

        QCOMPARE(menu(menus, 1)->styleSheet(), QString("QAbstractItemView{min-width:10px;}"));
        QCOMPARE(texts(menu(menus, 0)), QStringList({"weather", "plan"}));
        QVERIFY(menu(menus, 0)->actions().at(0)->isChecked());
        menu(menus, 0)->actions().at(1)->trigger();
        QCOMPARE(sources.count(), 1);
        QVERIFY(!menu(menus, 0)->actions().at(0)->isChecked());

        QCOMPARE(texts(menu(menus, 1)).mid(0, 2), QStringList({"air", "wind"}));
        menu(menus, 1)->actions().at(1)->trigger();
        expressions(menus)->actions().at(0)->trigger();
        QCOMPARE(fields.count(), 2);
        QCOMPARE(fields.at(0).at(0).value<QAction *>()->data().toString(), QString("weather:wind"));
        QCOMPARE(fields.at(1).at(0).value<QAction *>()->data().toString(), QString("average"));

        QCOMPARE(texts(menu(menus, 2)), QStringList({"High", "Low"}));
        menu(menus, 2)->actions().at(0)->trigger();
        const auto *style = styles.at(0).at(0).value<QAction *>();
        QCOMPARE(style->property("id").toString(), QString("9"));
        menus.setConditionStyles({});
        QCOMPARE(texts(menu(menus, 2)), QStringList({"No conditional style is defined"}));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void offersEachFieldOnce()
    {
        BindingMenus menus;
        menus.rebuild(index("weather"), {});
        menus.setClientFields({"plan:line", "wind", "weather:air", "weather:dew", "bus"});
        QCOMPARE(texts(menu(menus, 1)).mid(0, 6),
                 QStringList({"air", "bus", "plan:line", "weather:dew", "wind", "--"}));
        const QList<QAction *> actions = menu(menus, 1)->actions();
        QCOMPARE(actions.at(1)->data().toString(), QString("bus"));
        QCOMPARE(actions.at(4)->data().toString(), QString("weather:wind"));
        menus.setClientFields({});
        QCOMPARE(texts(menu(menus, 1)).mid(0, 3), QStringList({"air", "wind", "--"}));
    }

    void rebuildsOnlyWhatChanged()
    {
        BindingMenus menus;
        menus.rebuild(index("weather"), {{"average", "3"}});
        const QList<QAction *> sources = menu(menus, 0)->actions();
        const QList<QAction *> fields = menu(menus, 1)->actions();
        menus.rebuild(index("weather", "another value"), {{"average", "4"}});
        QCOMPARE(menu(menus, 1)->actions(), fields);

        // As the editor does it, from within the signal that the menu sends.
        connect(&menus, &BindingMenus::sourcePicked, this,
                [&menus](QAction *action) { menus.rebuild(index(action->text()), {}); });
        sources.at(1)->trigger();
        QCOMPARE(menu(menus, 0)->actions(), sources);
        QCOMPARE(texts(menu(menus, 1)).first(), QString("The data source has no fields"));
        menus.rebuild(index("gone"), {});
        QVERIFY(!sources.at(0)->isChecked() && !sources.at(1)->isChecked());
    }

    void eitherOwnerMayGoFirst()
    {
        auto menus = std::make_unique<BindingMenus>();
        auto bar = std::make_unique<QToolBar>();
        for (QWidget *button : menus->buttons()) {
            bar->addWidget(button);
        }
        bar.reset();
        QVERIFY(menus->buttons().isEmpty());
        menus->rebuild(index("weather"), {{"a", "b"}});
        menus->setConditionStyles({{"7", "Low"}});
        menus->retranslate();
    }
};

QTEST_MAIN(TestBindingMenus)
#include "tst_bindingmenus.moc"
