// Writing songs: starting one, the song clock, finishing it, and the track list.
#include "music/songs.h"

#include "music_week.h"
#include "week/turn.h"

namespace tourvane {
namespace {

using testing::draw;
using testing::memo;
using testing::okbox;
using testing::TestGame;
using Lines = std::vector<std::string>;

const std::string kBusy = memo("Dave", "The band is currently working on a song.");
const std::string kNeedBand = memo("Dave", "You need a full band to write a song, Boss");
const std::string kStarted =
    memo("Dave", "Good news, Boss. The band has started writing a new song!");
const std::string kFinished = memo("Dave", "The band has finished writing a new song!");
const std::string kTiredBox =
    "msgbox yesno \"The band wants a rest before starting on a new song. Make them record "
    "anyway?\" -> ";

class Songs : public ::testing::Test {
  protected:
    TestGame t;
    void SetUp() override {
        t.new_game();
        t.full_band();
    }
    /// Record Song, then the lines it raised, with its memos acknowledged.
    Lines record() {
        EXPECT_EQ(click(t.g, "main", "command1"), ClickResult::Done);
        t.ok_memos();
        return t.take();
    }
};

TEST_F(Songs, RefusalsComeInOrderAndChangeNothing) {
    t.r.membername[2] = "None";
    t.r.membername[4] = "None";
    t.r.songweeks = 5;
    t.r.songcount = 20;
    t.draws({0.5});  // must stay undrawn
    EXPECT_EQ(record(), Lines{okbox("You have reached the limit of 20 songs!")});
    t.r.songcount = 19;
    EXPECT_EQ(record(), Lines{kBusy});
    t.r.songweeks = 10;
    EXPECT_EQ(record(), Lines{kNeedBand});  // one memo, however many slots are empty
    EXPECT_EQ(t.r.songweeks, 10);
    EXPECT_EQ(t.g.rnd.queued_left(), 1u);

    t.full_band();
    t.r.songcount = 20;
    EXPECT_EQ(record(), Lines{okbox("You have reached the limit of 20 songs!")});
    EXPECT_EQ(t.r.songweeks, 10);
}

TEST_F(Songs, RestedBandStartsAtOnceWithAClockOfFourToSeven) {
    draw(t, 0, 4);
    EXPECT_EQ(record(), Lines{kStarted});
    EXPECT_EQ(t.r.songweeks, 4);
    t.r.songweeks = 10;
    draw(t, 3, 4);
    EXPECT_EQ(record(), Lines{kStarted});
    EXPECT_EQ(t.r.songweeks, 7);
    EXPECT_EQ(t.r.cash, 3000);
}

TEST_F(Songs, TiredBandIsAskedAndYesCostsHappinessOnly) {
    t.r.tiredness = 1;
    t.r.memberhappy = {0, 10, 0, 5, 1};
    draw(t, 1, 4);

    t.no();
    EXPECT_EQ(record(), Lines{kTiredBox + "no"});
    EXPECT_EQ(t.r.memberhappy, (Arr<Integer, 4>{0, 10, 0, 5, 1}));
    EXPECT_EQ(t.r.songweeks, 10);
    EXPECT_EQ(t.r.tiredness, 1);
    EXPECT_EQ(t.g.rnd.queued_left(), 1u);

    t.yes();
    EXPECT_EQ(record(), (Lines{kTiredBox + "yes", kStarted}));
    EXPECT_EQ(t.r.memberhappy, (Arr<Integer, 4>{0, 9, 0, 4, 0}));
    EXPECT_EQ(t.r.songweeks, 5);
    EXPECT_EQ(t.r.tiredness, 1);
}

TEST_F(Songs, MakesongDrawsQualityInSlotOrderThenTirednessThenTitle) {
    // Slot 2 was left mid-song: its talent and creativity of 0 count 1 each.
    t.put(1, "Ann Vox", {.talent = 5, .creativity = 3});
    t.r.membername[2] = "None";
    t.r.membertalent[2] = t.r.membercreativity[2] = 0;
    t.put(3, "Cy Low", {.talent = 4, .creativity = 2});
    t.put(4, "Di Kit", {.talent = 2, .creativity = 1});
    testing::add_songs(t, {20, 20, 20});
    t.r.tiredness = 9;

    draw(t, 4, 5);  // slot 1 talent 5
    draw(t, 0, 3);  // slot 1 creativity 1
    t.draws({0.7, 0.7});
    draw(t, 1, 4);  // slot 3 talent 2
    draw(t, 1, 2);  // slot 3 creativity 2
    draw(t, 1, 2);  // slot 4 talent 2
    t.draws({0.1});
    draw(t, 0, 3);   // tiredness 2, replacing 9
    draw(t, 0, 20);  // "Wild"
    draw(t, 5, 20);  // " Love"
    makesong(t.g);

    EXPECT_EQ(t.g.rnd.queued_left(), 0u);
    EXPECT_EQ(t.r.songquality[4], 5 + 1 + 1 + 1 + 2 + 2 + 2 + 1);
    EXPECT_EQ(t.r.songname[4], "Wild Love");
    EXPECT_EQ(t.r.tiredness, 2);
    EXPECT_EQ(t.r.nextsong, 4);
    EXPECT_EQ(t.r.songcount, 4);
    EXPECT_EQ(t.g.forms.main.songlist.rows, (Lines{"Song 1", "Song 2", "Song 3", "Wild Love"}));
    EXPECT_EQ(t.memos(), Lines{kFinished});
}

TEST_F(Songs, BandOfOnesAlwaysWritesQualityEight) {
    t.full_band({.talent = 1, .creativity = 1});
    for (int i = 0; i < 8; ++i) t.draws({0.999});
    draw(t, 2, 3);
    draw(t, 19, 20);
    draw(t, 19, 20);
    makesong(t.g);
    EXPECT_EQ(t.r.songquality[1], 8);
    EXPECT_EQ(t.r.songname[1], "Shocked Feelings");
    EXPECT_EQ(t.r.tiredness, 4);
    EXPECT_EQ(t.g.rnd.queued_left(), 0u);
}

TEST_F(Songs, TheTurnThatFinishesASongLeavesTirednessOneToThree) {
    testing::calm_chart(t);
    for (int tired : {0, 2}) {
        t.r.songweeks = 1;
        t.r.tiredness = 6;
        for (int i = 0; i < 8; ++i) t.draws({0.5});
        draw(t, tired, 3);
        t.draws({0.5, 0.5});
        testing::week_start(t);
        testing::week_end(t, false);
        command6(t.g);
        EXPECT_EQ(t.g.rnd.queued_left(), 0u);
        EXPECT_EQ(t.r.tiredness, tired + 1);
        EXPECT_EQ(t.r.songweeks, 10);
        EXPECT_EQ(t.memos().front(), kFinished);
        t.ok_memos();
    }
    EXPECT_EQ(t.r.songcount, 2);
}

TEST_F(Songs, TrackListAndPickingASong) {
    EXPECT_EQ(click(t.g, "main", "songlist", 0), ClickResult::BadIndex);  // empty list
    EXPECT_EQ(t.g.main.selectedsong, 0);

    testing::add_songs(t, {20, 20, 20});
    t.g.forms.main.songlist.rows = {"stale"};
    t.r.songcount = 2;
    updatesonglist(t.g);
    EXPECT_EQ(t.g.forms.main.songlist.rows, (Lines{"Song 1", "Song 2"}));

    EXPECT_EQ(click(t.g, "main", "songlist", 1), ClickResult::Done);
    EXPECT_EQ(t.g.main.selectedsong, 2);
    EXPECT_EQ(click(t.g, "main", "songlist", 2), ClickResult::BadIndex);
    message(t.g, "busy", "Dave");
    EXPECT_EQ(click(t.g, "main", "songlist", 0), ClickResult::Ignored);  // a memo is open
    EXPECT_EQ(t.g.main.selectedsong, 2);
    t.ok_memos();
    EXPECT_EQ(click(t.g, "main", "songlist", 0), ClickResult::Done);
    EXPECT_EQ(t.g.main.selectedsong, 1);

    t.r.songcount = 0;
    updatesonglist(t.g);
    EXPECT_TRUE(t.g.forms.main.songlist.rows.empty());
    EXPECT_EQ(t.g.main.selectedsong, 1);  // only a click changes it
}

}  // namespace
}  // namespace tourvane
