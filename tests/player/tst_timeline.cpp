#include "timeline.h"

#include "leffectnode.h"
#include "pageeffects.h"
#include "programmefile.h"
#include "programmeitems.h"

#include <QtTest>

#include <limits>

using namespace player;

Q_DECLARE_METATYPE(player::ItemPlay)

/** Two pages that fade within 0.3 s, are held 1 s and wiped out within 0.5 s, twice. */
static ItemPlay twoPages()
{
    ItemPlay play;
    play.displayEffect = LEffectNode::Fade;
    play.clearEffect = LEffectNode::WipeLeft;
    play.clearSpeed = 1;
    play.holdTenths = 10;
    play.rounds = 2;
    play.pageCount = 2;
    return play;
}

class TestTimeline : public QObject
{
    Q_OBJECT

private slots:
    void moments_data();
    void moments();
    void odd_data();
    void odd();
    void movesWithoutAStop();
    void playsItemsInTurns();
    void readsNodes();
};

void TestTimeline::moments_data()
{
    QTest::addColumn<qint64>("elapsed");
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("round");
    QTest::addColumn<int>("phase");
    QTest::addColumn<double>("progress");
    QTest::addColumn<qint64>("left");
    const auto row = [](const char *name, qint64 elapsed, int page, int round, PlayPhase phase,
                        double progress, qint64 left) {
        QTest::newRow(name) << elapsed << page << round << int(phase) << progress << left;
    };
    row("before", -5, 0, 0, PlayPhase::ComingIn, 0, 300);
    row("coming", 150, 0, 0, PlayPhase::ComingIn, 0.5, 150);
    row("there", 300, 0, 0, PlayPhase::Held, 0, 1000);
    row("going", 1300, 0, 0, PlayPhase::Clearing, 0, 500);
    row("second page", 1800, 1, 0, PlayPhase::ComingIn, 0, 300);
    row("second round", 3600 + 1550, 0, 1, PlayPhase::Clearing, 0.5, 250);
    row("the last", 7199, 1, 1, PlayPhase::Clearing, 0.998, 1);
    row("over", 7200, 1, 1, PlayPhase::Over, 1, 0);
    row("long over", std::numeric_limits<qint64>::max(), 1, 1, PlayPhase::Over, 1, 0);
}

void TestTimeline::moments()
{
    QFETCH(qint64, elapsed);
    const PlayMoment moment = ItemTimeline(twoPages()).at(elapsed);
    QTEST(moment.page, "page");
    QTEST(moment.round, "round");
    QTEST(int(moment.phase), "phase");
    QTEST(moment.progress, "progress");
    QTEST(moment.millisecondsLeft, "left");
}

void TestTimeline::odd_data()
{
    QTest::addColumn<ItemPlay>("play");
    QTest::addColumn<qint64>("duration"); // -1 for any
    const int most = std::numeric_limits<int>::max();
    const auto row = [](const char *name, qint64 duration, void (*change)(ItemPlay *)) {
        ItemPlay play = twoPages();
        change(&play);
        QTest::newRow(name) << play << duration;
    };
    row("no rounds", 3600, [](ItemPlay *play) { play->rounds = 0; });
    row("no pages", 3600, [](ItemPlay *play) { play->pageCount = -4; });
    row("for some time", 5000, [](ItemPlay *play) { play->isByTime = true, play->seconds = 5; });
    row("for no time", 400, [](ItemPlay *play) { play->isByTime = true, play->seconds = -1; });
    row("not held", 3200, [](ItemPlay *play) { play->holdTenths = -9; });
    row("kept", 2 * 2 * 1300, [](ItemPlay *play) { play->clearEffect = LEffectNode::KeepPage; });
    row("unknown", 4 * 1000,
        [](ItemPlay *play) { play->displayEffect = 99, play->clearEffect = -7; });
    row("LCD", 4 * (1000 + 1000), [](ItemPlay *play) { play->isLcd = true; });
    row("speeds beyond", 4 * (300 + 1000 + 5000),
        [](ItemPlay *play) { play->displaySpeed = -1, play->clearSpeed = 9; });
    QTest::newRow("nothing takes time") << ItemPlay{0, 0, 0, 0, 0} << qint64(ShortestPageTime);
    QTest::newRow("all is huge") << ItemPlay{11, 5,    most,  most,  most, false,
                                             0,  most, false, false, most, most}
                                 << qint64(-1);
    QTest::newRow("huge strip") << ItemPlay{101,  5,    most, most,  most, true,
                                            most, most, true, false, most, most}
                                << qint64(most) * 1000;
    QTest::newRow("no way to move") << ItemPlay{101, 5, 0, 0, 0, false, 0, 1, true, false, 3, -2}
                                    << qint64(3 * ShortestPageTime);
}

void TestTimeline::odd()
{
    QFETCH(ItemPlay, play);
    QFETCH(qint64, duration);
    const ItemTimeline timeline(play);
    QVERIFY(timeline.duration() >= ShortestPageTime);
    if (duration >= 0) {
        QCOMPARE(timeline.duration(), duration);
    }
    const FrameTimeline frame({play, play});
    for (const qint64 elapsed : {qint64(0), timeline.duration() / 2, timeline.duration() - 1}) {
        const PlayMoment moment = timeline.at(elapsed);
        QVERIFY(moment.phase != PlayPhase::Over && moment.millisecondsLeft > 0);
        QVERIFY(moment.progress >= 0 && moment.progress < 1);
        QCOMPARE(timeline.startOf(moment.page, moment.round) + moment.pageElapsed, elapsed);
        QVERIFY(moment.page >= 0 && moment.page < std::max(1, play.pageCount));
        QCOMPARE(frame.at(timeline.duration() + elapsed).item, 1);
    }
    QVERIFY(frame.at(std::numeric_limits<qint64>::max()).item >= 0);
}

void TestTimeline::movesWithoutAStop()
{
    ItemPlay play = twoPages();
    play.isContinuous = true;
    play.displayEffect = MoveLeft;
    play.moveExtent = 640;
    const ItemTimeline timeline(play);
    QCOMPARE(timeline.duration(), qint64(2 * 2 * 2000)); // 320 pixels a second
    QVERIFY(timeline.keepsPages());
    for (qint64 elapsed = 0; elapsed < timeline.duration(); elapsed += 500) {
        const PlayMoment moment = timeline.at(elapsed);
        QCOMPARE(moment.phase, PlayPhase::ComingIn);
        QCOMPARE(moment.page + moment.progress + 2 * moment.round, double(elapsed) / 2000);
    }
}

void TestTimeline::playsItemsInTurns()
{
    ItemPlay second;
    second.isByTime = true;
    second.seconds = 3;
    const FrameTimeline frame({twoPages(), second});
    QCOMPARE(frame.startOf(1), qint64(7200));
    QCOMPARE(frame.at(7199).item, 0);
    QCOMPARE(frame.at(7200).item, 1);
    QCOMPARE(frame.at(7200 + 2500).itemElapsed, qint64(2500));
    const FrameMoment again = frame.at(2 * 10200 + 150);
    QCOMPARE(again.item, 0);
    QCOMPARE(again.cycle, 2);
    QCOMPARE(again.moment.progress, 0.5);
    QCOMPARE(FrameTimeline().at(4).item, -1);
    QCOMPARE(FrameTimeline({ItemPlay()}).at(-4).item, 0);
}

void TestTimeline::readsNodes()
{
    const ReadProgramme read = readProgramme(R"({ "format": "lctrlsex-programme", "version": 1,
        "controller": { "kind": "LCD", "width": 64, "height": 32 },
        "screens": [ { "frames": [ { "items": [ { "attributes": {
            "DispEffect": 102, "ClearEffect": 6, "DispTime": 3, "ClearTime": 2, "HoldTime": 7,
            "PlayType": "ByTime", "ByTime": 9, "ByCount": 4, "ContinueMove": true } } ] } ] } ] })");
    QVERIFY(read.controller != nullptr);
    LTextEffectNode *const node = programmeItems(read.controller.get()).value(0).node;
    const ItemPlay expected{102, 6, 4, 2, 7, true, 9, 4, true, true, 5, 64};
    QVERIFY(itemPlayOf(node, 5) == expected);
    QVERIFY(itemPlayOf(nullptr, 1) == ItemPlay());
}

QTEST_GUILESS_MAIN(TestTimeline)
#include "tst_timeline.moc"
