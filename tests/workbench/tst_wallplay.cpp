#include "mainwindowtest.h"

#include "leffectnode.h"
#include "ltexteffectnode.h"
#include "wallpanel.h"
#include "wallplayer.h"
#include "wallview.h"

#include <QDockWidget>
#include <QLabel>
#include <QToolButton>

using namespace workbench;

/** The programme played on the wall, by the buttons and keys of the window. */
class TestWallPlay : public MainWindowTest
{
    Q_OBJECT

private slots:
    void playsAndStops();
    void standsStillUnseen();
    void followsEdits();
    void outlivesItsNodes();
    void turnsPages();
    void selectsWhatIsClicked();

private:
    /** Opens a screen with two frames; its first item fades in at once and is held for long. */
    void openPlayed(int holdTenths)
    {
        open(demo());
        item({0, 0, 0})->SetDispEffect(LEffectNode::Fade);
        item({0, 0, 0})->SetHoldTime(holdTenths);
        QVERIFY(!m_window->document()->save().isSet());
        m_window->selectNode(item({0, 0, 0}));
    }
    LTextEffectNode *item(const QList<int> &path) const
    {
        return qobject_cast<LTextEffectNode *>(node(path));
    }
    WallPlayer *player() const { return m_window->wall()->player(); }
    const WallItem &shown(int index) const
    {
        return m_window->wall()->view()->scene().items.at(index);
    }
    QString text(const char *label) const { return find<QLabel>(label)->text(); }
    static QImage plain(const QImage &page)
    {
        return page.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    }
};

void TestWallPlay::playsAndStops()
{
    openPlayed(1);
    const QImage edited = shown(0).page;
    QVERIFY(!action("StopPlay")->isEnabled());
    find<QToolButton>("WallPlay")->click();
    QCOMPARE(player()->state(), WallPlayer::Playing);
    QVERIFY(action("StopPlay")->isEnabled());
    QVERIFY(text("WallPlayLabel").contains("coming in"));
    QVERIFY(plain(shown(0).page) != plain(edited));
    // On to the second item, while the other frame holds its only one; and round again.
    QTRY_COMPARE(shown(0).name, QString("Second"));
    QVERIFY(text("WallPlayLabel").contains("held"));
    QCOMPARE(shown(1).name, QString("Third"));
    item({0, 0, 1})->SetHoldTime(1);
    QTRY_COMPARE(shown(0).name, QString("First"));
    action("StopPlay")->trigger();
    QVERIFY(!player()->isOn() && !player()->isRunning());
    QCOMPARE(shown(0).name, QString("First"));
    QCOMPARE(plain(shown(0).page), plain(edited));
    QVERIFY(!find<QLabel>("WallPlayLabel")->isVisible());
    // Playing is no change: only the one made above is.
    m_window->document()->undo();
    QVERIFY(!m_window->document()->isModified());
    m_window->selectNode(node({}));
    QVERIFY(action("Play")->isEnabled());
}

void TestWallPlay::standsStillUnseen()
{
    openPlayed(100);
    action("Play")->trigger();
    QTRY_VERIFY(text("WallPlayLabel").contains("held"));
    QTRY_COMPARE(plain(shown(0).page), shown(0).page);
    const qint64 held = shown(0).page.cacheKey();
    QTest::qWait(60);
    QCOMPARE(shown(0).page.cacheKey(), held); // Not painted again.
    for (const auto &hide :
         {std::function<void(bool)>(
              [this](bool hides) { find<QDockWidget>("WallDock")->setVisible(!hides); }),
          std::function<void(bool)>([this](bool) { action("Play")->trigger(); }),
          std::function<void(bool)>([this](bool hides) {
              m_window->setWindowState(hides ? Qt::WindowMinimized : Qt::WindowNoState);
          })}) {
        QVERIFY(player()->isRunning());
        hide(true);
        QTRY_VERIFY(!player()->isRunning());
        const qint64 elapsed = player()->elapsed();
        QTest::qWait(30);
        QCOMPARE(player()->elapsed(), elapsed);
        hide(false);
        QTRY_VERIFY(player()->isRunning());
    }
}

void TestWallPlay::followsEdits()
{
    openPlayed(1000);
    action("Play")->trigger();
    QTRY_VERIFY(text("WallPlayLabel").contains("held"));
    const QImage before = shown(0).page;
    item({0, 0, 0})->SetTransBgColor(!item({0, 0, 0})->GetTransBgColor());
    QTRY_VERIFY(plain(shown(0).page) != before);
    QVERIFY(text("WallPlayLabel").contains("held"));
    // Another effect is seen at once; another time is no reason to begin anew.
    item({0, 0, 0})->SetDispEffect(LEffectNode::Snow);
    QTRY_VERIFY(text("WallPlayLabel").contains("coming in"));
    QTRY_VERIFY(text("WallPlayLabel").contains("held"));
    item({0, 0, 0})->SetHoldTime(2000);
    QTest::qWait(30);
    QVERIFY(text("WallPlayLabel").contains("held"));
    item({0, 0, 0})->SetHoldTime(0);
    QTRY_COMPARE(shown(0).name, QString("Second"));
}

void TestWallPlay::outlivesItsNodes()
{
    openPlayed(1000);
    action("Play")->trigger();
    // The item that plays, by way of the window, as a user would.
    action("Remove")->trigger();
    QTRY_COMPARE(shown(0).name, QString("Second"));
    QVERIFY(player()->isRunning());
    m_window->document()->undo();
    QTRY_VERIFY(player()->isRunning());
    delete item({0, 1, 0});
    QTRY_COMPARE(m_window->wall()->view()->scene().items.size(), 1);
    delete node({0, 0});
    QTRY_COMPARE(m_window->wall()->view()->scene().items.size(), 0);
    QVERIFY(player()->isRunning());
    m_window->selectNode(node({1, 0}));
    QVERIFY(player()->isRunning());
    delete node({1});
    QTest::qWait(30);
    m_window->selectNode(node({0}));
    m_window->openFile(m_folder->filePath("demo.programme.json"));
    QVERIFY(!player()->isOn());
    action("Play")->trigger();
    QVERIFY(player()->isRunning());
    m_window->openFile(write("empty.programme.json", R"({ "format": "lctrlsex-programme",
        "version": 1, "controller": { "width": 8, "height": 8 }, "screens": [] })"));
    QVERIFY(!player()->isOn() && !action("Play")->isEnabled());
    action("Play")->trigger();
    player()->toggle();
    QVERIFY(!player()->isOn());
}

void TestWallPlay::turnsPages()
{
    open(write("pages.programme.json", R"({ "format": "lctrlsex-programme", "version": 1,
        "controller": { "kind": "LED", "width": 64, "height": 16 },
        "screens": [ { "frames": [ { "items": [ { "document": "<p style='font-size:12px'>a</p><p style='font-size:12px'>b</p><p style='font-size:12px'>c</p>", "attributes": {
            "HoldTime": 2, "DispEffect": 101, "ContinueMove": true, "ByCount": 50 } } ] } ] } ] })"));
    m_window->selectNode(item({0, 0, 0}));
    QTRY_VERIFY(item({0, 0, 0})->GetPageCount() > 1);
    const int count = item({0, 0, 0})->GetPageCount();
    action("Play")->trigger();
    QTRY_COMPARE(text("WallPageLabel"), QString("Page 2 of %1").arg(count));
    QVERIFY(text("WallPlayLabel").contains("coming in"));
    QCOMPARE(item({0, 0, 0})->GetCurrentPage(), 1);
    QVERIFY(!find<QToolButton>("WallNextPage")->isEnabled());
    QVERIFY(!m_window->document()->isModified());
    action("StopPlay")->trigger();
    QCOMPARE(text("WallPageLabel"), QString("Page 1 of %1").arg(count));
}

void TestWallPlay::selectsWhatIsClicked()
{
    openPlayed(1000);
    action("Play")->trigger();
    WallView *view = m_window->wall()->view();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->rectOf(1).center());
    QVERIFY(shown(1).isCurrent && !shown(0).isCurrent);
    QVERIFY(player()->isRunning());
}

int main(int argc, char **argv)
{
    return runMainWindowTest<TestWallPlay>(argc, argv);
}
#include "tst_wallplay.moc"
