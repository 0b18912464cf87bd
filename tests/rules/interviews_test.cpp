// Radio interviews and cable TV shows: the score, the memo and the popularity gained.
#include "band/interviews.h"
#include "test_game.h"

namespace tourvane {
namespace {

using testing::Lines;

const char* const kRadio[] = {
    "The band interview went less well than expected",
    "The band interview went OK, but i think we could do better next time.",
    "The Interview went really well, the band seem very pleased!"};
const char* const kCable[] = {"The bands appearance on a cable music show was quite poor.",
                              "The band interview on a cable T.V show went o.k",
                              "The bands appearance on a cable T.V show was fantastic!"};

class Interviews : public ::testing::Test, protected testing::TestGame {
  protected:
    void SetUp() override { new_game(); }
    /// Takes up an invitation of `kind` from popularity 100 with the draws queued; expects
    /// exactly those taken, the memo given (or none) and the popularity gained.
    void expect(int kind, const char* text, int gain) {
        r.interviewkind = static_cast<Integer>(kind);
        r.popularity = 100;
        g.forms.main.interview.enabled = true;
        exactly([&] { EXPECT_EQ(click(g, "main", "interview"), ClickResult::Done); });
        EXPECT_EQ(memos(), text ? Lines{testing::memo("Mona", text)} : Lines{});
        EXPECT_EQ(r.popularity, 100 + gain);
        EXPECT_FALSE(g.forms.main.interview.enabled);
        ok_memos();
    }
    /// Radio draws: each charisma roll Int(Rnd()*n) gives `drawn`, the bonus roll `bonus`.
    void radio(int drawn, int n, int bonus) {
        for (int s = 0; s < 4; ++s) pick(drawn + 1, n);
        pick(bonus + 1, 20);
    }
};

TEST_F(Interviews, RadioScoresAndTheSilentTwentyAndSixty) {
    EXPECT_EQ(click(g, "main", "interview"), ClickResult::Ignored);  // no invitation yet
    full_band({.charisma = 6, .attitude = 4});
    radio(3, 6, 10);  // 4 * (3 + 1 + 6) + 10 + 5 = 55
    expect(1, kRadio[1], 13);
    EXPECT_EQ(click(g, "main", "interview"), ClickResult::Ignored);
    full_band({.charisma = 1, .attitude = 10});  // 1 a member from charisma
    radio(0, 1, 0);
    expect(1, kRadio[0], 2);  // 9, the least a radio interview can score
    radio(0, 1, 11);
    expect(1, nullptr, 5);  // 20
    radio(0, 1, 12);
    expect(1, kRadio[1], 5);                    // 21
    full_band({.charisma = 4, .attitude = 1});  // 9 a member from attitude
    radio(3, 4, 3);
    expect(1, nullptr, 15);  // 36 + 16 + 8 = 60
    radio(3, 4, 4);
    expect(1, kRadio[2], 15);  // 61
}

TEST_F(Interviews, CableTakesCharismaThenLooksPerMemberAndNoBonus) {
    full_band({.charisma = 10, .attitude = 7, .looks = 2});
    for (int s = 0; s < 4; ++s) picks({{1, 10}, {1, 2}});
    expect(2, nullptr, 5);  // 4 * (1 + 1 + 3) = 20
    for (int s = 0; s < 4; ++s) picks({{7, 10}, {2, 2}});
    expect(2, kCable[1], 12);  // 4 * (7 + 2 + 3) = 48
    for (int s = 0; s < 4; ++s) picks({{1, 10}, {s == 0 ? 2 : 1, 2}});
    expect(0, kCable[1], 5);  // any kind but radio: 21
    r.memberattitude[1] = 8;
    for (int s = 0; s < 4; ++s) picks({{1, 10}, {1, 2}});
    expect(3, kCable[0], 4);  // 19
    r.memberattitude[1] = 6;
    for (int s = 0; s < 4; ++s) picks({{10, 10}, {2, 2}});
    expect(2, kCable[2], 15);  // 16 + 3 * 15 = 61
}

TEST_F(Interviews, EmptySlotsStillScoreAndTakeTheirDraws) {
    draws({0.5, 0.5, 0.5, 0.5});
    pick(1, 20);
    expect(1, kRadio[1], 12);  // 4 * 11 + 5 = 49
    draws({0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5, 0.5});
    expect(2, kCable[1], 12);  // 4 * 12 = 48
}

}  // namespace
}  // namespace tourvane
