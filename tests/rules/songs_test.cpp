// Writing songs: starting one, the song clock, finishing it, and the track list.
#include "music/songs.h"

#include "test_game.h"
#include "week/turn.h"

namespace tourvane {
namespace {

using testing::Lines;
using testing::memo;
using testing::str;

const std::string kStarted =
    memo("Dave", "Good news, Boss. The band has started writing a new song!");
const std::string kFinished = memo("Dave", "The band has finished writing a new song!");

class Songs : public testing::Office {
  protected:
    /// Record Song, then the lines it raised, with its memos acknowledged.
    Lines record() {
        click(g, "main", "command1");
        ok_memos();
        return take();
    }
};

TEST_F(Songs, RefusalsComeInOrderAndChangeNothing) {
    const Lines limit{testing::okbox("You have reached the limit of 20 songs!")};
    r.membername[2] = r.membername[4] = "None";
    r.songweeks = 5;
    r.songcount = 20;
    draws({0.5});  // must stay undrawn
    EXPECT_EQ(record(), limit);
    r.songcount = 19;
    EXPECT_EQ(record(), Lines{memo("Dave", "The band is currently working on a song.")});
    r.songweeks = 10;
    EXPECT_EQ(record(), Lines{memo("Dave", "You need a full band to write a song, Boss")});
    full_band();
    r.songcount = 20;
    EXPECT_EQ(record(), limit);
    EXPECT_EQ(str(r.songweeks, g.rnd.queued_left()), "10 1");
}

TEST_F(Songs, RestedBandStartsAtOnceTiredBandIsAskedAndYesCostsHappiness) {
    for (int k : {1, 4}) {
        r.songweeks = 10;
        pick(k, 4);
        EXPECT_EQ(record(), Lines{kStarted});
        EXPECT_EQ(r.songweeks, k + 3);  // four to seven weeks
    }
    const std::string tired = testing::yesno(
        "The band wants a rest before starting on a new song. Make them record anyway?", false);
    r.tiredness = 1;
    r.songweeks = 10;
    set_happy(0, 10, 5, 1);
    pick(2, 4);
    no();
    EXPECT_EQ(record(), Lines{tired});
    EXPECT_EQ(str(happiness(), r.songweeks), "0 10 5 1 10");
    yes();
    EXPECT_EQ(record(), (Lines{tired.substr(0, tired.size() - 2) + "yes", kStarted}));
    EXPECT_EQ(str(happiness(), r.songweeks, r.tiredness, r.cash), "0 9 4 0 5 1 3000");
}

TEST_F(Songs, MakesongDrawsQualityInSlotOrderThenTirednessThenTitle) {
    // Slot 2 was left mid-song: its talent and creativity of 0 count 1 each.
    put(1, "Ann Vox", {.talent = 5, .creativity = 3});
    r.membername[2] = "None";
    r.membertalent[2] = r.membercreativity[2] = 0;
    put(3, "Cy Low", {.talent = 4, .creativity = 2});
    put(4, "Di Kit", {.talent = 2, .creativity = 1});
    songs({20, 20, 20});
    r.tiredness = 9;
    picks({{5, 5}, {1, 3}});            // slot 1: talent 5, creativity 1
    draws({0.7, 0.7});                  // slot 2: 1 and 1
    picks({{2, 4}, {2, 2}, {2, 2}});    // slot 3: 2 and 2, slot 4: talent 2
    draws({0.1});                       // slot 4: creativity 1
    picks({{1, 3}, {1, 20}, {6, 20}});  // tiredness 2, replacing 9; "Wild" " Love"
    makesong(g);
    EXPECT_EQ(str(g.rnd.queued_left(), r.songquality[4], r.songname[4], r.tiredness, r.nextsong,
                  r.songcount),
              "0 15 Wild Love 2 4 4");
    EXPECT_EQ(g.forms.main.songlist.rows, (Lines{"Song 1", "Song 2", "Song 3", "Wild Love"}));
    EXPECT_EQ(memos(), Lines{kFinished});
    full_band({.talent = 1, .creativity = 1});  // a band of 1s always writes quality 8
    for (int i = 0; i < 8; ++i) draws({0.999});
    picks({{3, 3}, {20, 20}, {20, 20}});
    makesong(g);
    EXPECT_EQ(str(r.songname[5], r.songquality[5], r.tiredness), "Shocked Feelings 8 4");
}

TEST_F(Songs, TheTurnThatFinishesASongLeavesTirednessOneToThree) {
    calm_chart();
    for (int tired : {0, 2}) {
        r.songweeks = 1;
        r.tiredness = 6;
        for (int i = 0; i < 8; ++i) draws({0.5});
        pick(tired + 1, 3);
        draws({0.5, 0.5});
        week_start();
        week_end(false);
        command6(g);
        EXPECT_EQ(str(g.rnd.queued_left(), r.tiredness, r.songweeks), str(0, tired + 1, 10));
        EXPECT_EQ(memos().front(), kFinished);
        ok_memos();
    }
}

TEST_F(Songs, TrackListAndPickingASong) {
    EXPECT_EQ(click(g, "main", "songlist", 0), ClickResult::BadIndex);  // empty list
    songs({20, 20, 20});
    g.forms.main.songlist.rows = {"stale"};
    r.songcount = 2;
    updatesonglist(g);
    EXPECT_EQ(g.forms.main.songlist.rows, (Lines{"Song 1", "Song 2"}));
    click(g, "main", "songlist", 1);
    EXPECT_EQ(g.main.selectedsong, 2);
    message(g, "busy", "Dave");
    EXPECT_EQ(click(g, "main", "songlist", 0), ClickResult::Ignored);  // a memo is open
    ok_memos();
    click(g, "main", "songlist", 0);
    r.songcount = 0;
    updatesonglist(g);
    EXPECT_EQ(str(g.forms.main.songlist.rows.size(), g.main.selectedsong), "0 1");
}

}  // namespace
}  // namespace tourvane
