// The soak's checks catch each kind of fault they are there for, and the soak replays the
// same clicks from the same seed.

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

#include "core/scripted_port.h"
#include "flow/clicks.h"
#include "flow/office.h"
#include "rules/temp_dir.h"
#include "tests/soak/invariants.h"
#include "tests/soak/soak.h"

namespace tourvane::soak {
namespace {

class InvariantsTest : public ::testing::Test {
  protected:
    ScriptedPort port;
    Game g{port};
    Watch watch;
    Module1& r = g.rec;

    void SetUp() override {
        load_main(g, 7);
        port.queue_input("The Wasps");
        port.queue_input("Sam");
        ASSERT_EQ(click(g, "Form1", "New"), ClickResult::Done);
        for (int i = 0; i < 4; ++i) ASSERT_EQ(click(g, "main", "hire"), ClickResult::Done);
        while (!g.memos.empty()) click(g, "messageForm", "command1");
        watch.start(g);
    }

    /// The faults found now, as after a click of the given kind.
    std::vector<std::string> faults(ClickFacts facts = {}) { return watch.after_click(facts); }

    /// True when some fault mentions `words`.
    bool caught(const std::string& words, ClickFacts facts = {}) {
        const std::vector<std::string> found = faults(facts);
        return std::any_of(found.begin(), found.end(), [&](const std::string& f) {
            return f.find(words) != std::string::npos;
        });
    }
};

TEST_F(InvariantsTest, AGameAsPlayedHasNoFault) {
    EXPECT_EQ(faults(), std::vector<std::string>{});
    for (int week = 0; week < 30; ++week) {
        ASSERT_EQ(click(g, "main", "command6"), ClickResult::Done);
        while (!g.memos.empty()) click(g, "messageForm", "command1");
        EXPECT_EQ(faults(), std::vector<std::string>{}) << "week " << week;
    }
}

TEST_F(InvariantsTest, MemberSlotsAndTheVacantMarker) {
    r.membername[2] = "";
    EXPECT_TRUE(caught("membername(2) is empty"));
    r.membername[2] = kVacant;  // emptied without going through the rules
    EXPECT_TRUE(caught("vacant slot 2 keeps the qualities"));
    EXPECT_TRUE(caught("band list does not show the members"));
    EXPECT_TRUE(caught("the first empty slot is 2"));
}

TEST_F(InvariantsTest, MembersOutsideTheirRanges) {
    r.memberage[1] = 23;
    EXPECT_TRUE(caught("member 1 is aged 23"));
    r.memberage[1] = 20;
    r.membercreativity[3] = 4;
    EXPECT_TRUE(caught("member 3 has creativity 4"));
    r.membercreativity[3] = 3;
    r.membersex[4] = "0";
    EXPECT_TRUE(caught("member 4 has membersex \"0\""));
}

TEST_F(InvariantsTest, HappinessStaysWithinItsRange) {
    r.memberhappy[1] = 11;
    EXPECT_TRUE(caught("memberhappy(1) is 11"));
    r.memberhappy[1] = 0;
    faults();
    // Only a very bad gig takes happiness below 0, one point per gig.
    r.memberhappy[1] = -1;
    EXPECT_TRUE(caught("memberhappy(1) fell from 0 to -1 without a gig"));
    r.memberhappy[1] = 0;
    faults();
    g.gig.gigscore = 5;
    r.memberhappy[1] = -1;
    EXPECT_FALSE(caught("memberhappy", {.gig_played = true}));
    EXPECT_EQ(watch.very_bad_gigs(), 1);
    r.memberhappy[1] = -2;
    EXPECT_TRUE(caught("memberhappy(1) is -2 after 1 very bad gigs"));
}

TEST_F(InvariantsTest, SongCountAndTrackList) {
    r.songcount = r.nextsong = 21;
    EXPECT_TRUE(caught("songcount is 21"));
    r.songcount = r.nextsong = 1;
    EXPECT_TRUE(caught("song slot 1 is named \"\""));
    r.songname[1] = "Wild Rain";
    r.songquality[1] = 12;
    EXPECT_TRUE(caught("track list does not show the songs"));
    g.forms.main.songlist.rows = {"Wild Rain"};
    r.nextsong = 2;
    EXPECT_TRUE(caught("nextsong is 2 but songcount is 1"));
    r.nextsong = 1;
    r.released[3] = kTrue;
    EXPECT_TRUE(caught("unwritten song slot 3 is out as a single"));
}

TEST_F(InvariantsTest, WidthsSaturateAndNeverWrap) {
    r.cash = std::numeric_limits<Long>::max() - 5;
    EXPECT_EQ(faults(), std::vector<std::string>{});
    r.cash = std::numeric_limits<Long>::min() + 5;  // what a wrapping add would leave
    EXPECT_TRUE(caught("cash wrapped"));
    r.popularity = 32'000;
    faults();
    r.popularity = std::numeric_limits<Integer>::max();  // saturated: fine
    EXPECT_EQ(faults(), std::vector<std::string>{});
    r.chartsales[33] = std::numeric_limits<Long>::min();
    EXPECT_FALSE(caught("chartsales(33) wrapped"));  // a leap from 0 is no wrap
    r.chartsales[33] = std::numeric_limits<Long>::max();
    EXPECT_TRUE(caught("chartsales(33) wrapped"));
    // A load brings values from a file: no comparison with the game before it.
    r.cash = std::numeric_limits<Long>::min();
    EXPECT_EQ(faults({.loaded = true}), std::vector<std::string>{});
}

TEST_F(InvariantsTest, ChartRivalRowsStayNamed) {
    r.chartband[70] = "";
    EXPECT_TRUE(caught("chart row 70 has no band"));
    r.chartband[70] = "Rival";
    r.chartlife[20] = 0;
    EXPECT_TRUE(caught("chartlife(20) is 0"));
    r.chartlife[20] = 10;
    r.chartplace[5] = 71;
    EXPECT_TRUE(caught("chartplace(5) is 71"));
}

TEST_F(InvariantsTest, IndexesAndScreens) {
    g.main.selectedmember = 5;
    EXPECT_TRUE(caught("selectedmember is 5"));
    g.main.selectedmember = 0;
    r.setlist[4] = 1;
    EXPECT_TRUE(caught("setlist(4) is 1"));
    r.setlist[4] = 0;
    g.forms.main.members.selected = 4;
    EXPECT_TRUE(caught("members has row 4 selected of 4"));
    g.forms.main.members.selected = -1;
    g.forms.main.enabled = false;
    EXPECT_TRUE(caught("the office is disabled with no memo"));
}

TEST(Soak, TheSameSeedPlaysTheSameGames) {
    // Each run in a folder of its own: saves left by one run would change the next.
    const SoakOptions options{.seed = 42, .weeks = 1500};
    auto run = [&] {
        testing::TempDir dir;
        return run_soak(options);
    };
    const SoakReport a = run();
    const SoakReport b = run();
    EXPECT_EQ(a.faults, std::vector<std::string>{});
    EXPECT_GE(a.weeks, 1500);
    EXPECT_EQ(a.clicks, b.clicks);
    EXPECT_EQ(a.games, b.games);
    EXPECT_EQ(a.saves, b.saves);
    EXPECT_EQ(a.loads, b.loads);
    EXPECT_GT(a.saves, 0);
    EXPECT_GT(a.loads, 0);
    EXPECT_GT(a.gigs, 0);
}

}  // namespace
}  // namespace tourvane::soak
