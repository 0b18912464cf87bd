// Radio interviews and cable TV shows: the score, the memo and the popularity gained.
#include "band/interviews.h"
#include "band_draws.h"

namespace tourvane {
namespace {

using testing::Lines;
using testing::memo;
using testing::picks;
using testing::TestGame;

const char* const kRadio[] = {
    "The band interview went less well than expected",
    "The band interview went OK, but i think we could do better next time.",
    "The Interview went really well, the band seem very pleased!"};
const char* const kCable[] = {"The bands appearance on a cable music show was quite poor.",
                              "The band interview on a cable T.V show went o.k",
                              "The bands appearance on a cable T.V show was fantastic!"};

class Interviews : public ::testing::Test {
  protected:
    TestGame t;
    void SetUp() override {
        t.new_game();
        t.r.popularity = 100;
    }
    void band(int charisma, int attitude, int looks = 5) {
        t.full_band({.charisma = charisma, .attitude = attitude, .looks = looks});
    }
    /// Radio draws: each charisma roll Int(Rnd()*n) gives `drawn`, the bonus roll `bonus`.
    void radio(int drawn, int n, int bonus) {
        for (int s = 0; s < 4; ++s) t.pick(drawn + 1, n);
        t.pick(bonus + 1, 20);
    }
    /// Takes up an invitation of `kind` with the draws queued; expects exactly those taken,
    /// the memo given (or none) and the popularity gained.
    void expect(int kind, const char* text, int gain) {
        t.r.interviewkind = static_cast<Integer>(kind);
        t.g.forms.main.interview.enabled = true;
        testing::spare(t);
        EXPECT_EQ(click(t.g, "main", "interview"), ClickResult::Done);
        EXPECT_TRUE(testing::only_spare_left(t));
        t.g.rnd.clear_queue();
        Lines want;
        if (text) want.push_back(memo("Mona", text));
        EXPECT_EQ(t.memos(), want);
        EXPECT_EQ(t.r.popularity, 100 + gain);
        EXPECT_EQ(t.r.interviewkind, kind);
        EXPECT_FALSE(t.g.forms.main.interview.enabled);
        t.ok_memos();
        t.r.popularity = 100;
    }
};

TEST_F(Interviews, HotSpotStartsDisabledAndGoesOffWhenUsed) {
    EXPECT_EQ(click(t.g, "main", "interview"), ClickResult::Ignored);
    band(6, 4);
    radio(3, 6, 10);  // 4 * (3 + 1 + 6) + 10 + 5 = 55
    expect(1, kRadio[1], 13);
    EXPECT_EQ(click(t.g, "main", "interview"), ClickResult::Ignored);
}

TEST_F(Interviews, RadioScoreBandsAndTheSilentTwentyAndSixty) {
    band(1, 10);  // 1 a member from charisma, nothing from attitude
    radio(0, 1, 0);
    expect(1, kRadio[0], 2);  // 9, the least a radio interview can score
    radio(0, 1, 11);
    expect(1, nullptr, 5);  // 20
    radio(0, 1, 12);
    expect(1, kRadio[1], 5);  // 21
    band(4, 1);               // 9 a member from attitude
    radio(3, 4, 3);
    expect(1, nullptr, 15);  // 36 + 16 + 8 = 60
    radio(3, 4, 4);
    expect(1, kRadio[2], 15);  // 61
}

TEST_F(Interviews, CableTakesCharismaThenLooksPerMemberAndNoBonus) {
    band(10, 7, 2);
    for (int s = 0; s < 4; ++s) picks(t, {{1, 10}, {1, 2}});
    expect(2, nullptr, 5);  // 4 * (1 + 1 + 3) = 20
    for (int s = 0; s < 4; ++s) picks(t, {{7, 10}, {2, 2}});
    expect(2, kCable[1], 12);  // 4 * (7 + 2 + 3) = 48
    for (int s = 0; s < 4; ++s) picks(t, {{1, 10}, {s == 0 ? 2 : 1, 2}});
    expect(0, kCable[1], 5);  // any kind but radio: 21
    for (int s = 0; s < 4; ++s) picks(t, {{1, 10}, {1, 2}});
    t.r.memberattitude[1] = 8;
    expect(3, kCable[0], 4);  // 19
    for (int s = 0; s < 4; ++s) picks(t, {{10, 10}, {2, 2}});
    t.r.memberattitude[1] = 6;
    expect(2, kCable[2], 15);  // 16 + 3 * 15 = 61
}

TEST_F(Interviews, EmptySlotsStillScoreAndTakeTheirDraws) {
    t.draws({0.5, 0.5, 0.5, 0.5});
    t.pick(1, 20);
    expect(1, kRadio[1], 12);  // 4 * 11 + 5 = 49
    t.draws({0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5});
    expect(2, kCable[1], 12);  // 4 * 12 = 48
}

}  // namespace
}  // namespace tourvane
