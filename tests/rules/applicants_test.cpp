// Applicants: the draw and its sentence, and the week's limits on hiring and dismissing.
#include "band/applicants.h"
#include "test_game.h"

namespace tourvane {
namespace {

using testing::Lines;
using testing::memo;
using testing::str;

class Applicants : public ::testing::Test, protected testing::TestGame {
  protected:
    OfficeForm& f = g.forms.main;
    void SetUp() override { new_game(); }
    const std::string& panel() { return f.txtapplicant.caption; }
    /// Clicks (or updates, with no control) taking exactly the draws queued before.
    void press(const char* control = nullptr) {
        exactly([&] { control ? (void)click(g, "main", control) : update(g); });
    }
    /// The applicant on show as "name|sex|age talent charisma attitude looks creativity".
    std::string shown() {
        const MainFields& a = g.main;
        return a.applicantname + "|" + a.applicantsex + "|" +
               str(a.applicantage, a.applicanttalent, a.applicantcharisma, a.applicantattitude,
                   a.applicantlooks, a.applicantcreativity);
    }
};

TEST_F(Applicants, NineDrawsInOrderAndTheSentenceWordForWord) {
    applicant({19, 2, 3, 5, 2, 7, 4, 9, 3});
    press();
    EXPECT_EQ(shown(), "Joanne Del Ray|Female|19 2 7 4 9 3");
    EXPECT_EQ(panel(),
              "Joanne Del Ray wants to join the band, she is a poor Vocalist, and is gorgeous!! ");
    put(1, "Ann Vox");  // the lowest empty slot names the instrument; the ends of the ranges
    put(2, "Bob Axe");
    draws({0, 0, 0, 0, 0, 0, 0, 0, 0});
    press();
    EXPECT_EQ(shown(), "Aaron Johnson|Male|17 1 1 1 1 1");
    EXPECT_EQ(panel(),
              "Aaron Johnson wants to join the band, he is a terrible Bass player, and "
              "looks very ugly!");
    put(3, "Cy Low");
    for (int i = 0; i < 9; ++i) draws({0.99999});
    press();
    EXPECT_EQ(shown(), "Nicole Lee|Female|22 5 10 10 10 3");
    EXPECT_EQ(panel().substr(35), "she is a reasonable Drums player, and is gorgeous!! ");
    const char* talent[] = {"", "terrible ", "poor ", "poor ", "reasonable ", "reasonable "};
    const char* looks[] = {"looks very ugly!",    "looks quite ugly. ", "looks o.k. ",
                           "looks pretty good! ", "is gorgeous!! ",     "is gorgeous!! "};
    r.membername[2] = "None";
    for (int v = 1; v <= 10; ++v) {
        const int tal = (v - 1) % 5 + 1;
        applicant({.talent = tal, .looks = v});
        update(g);
        EXPECT_EQ(panel().substr(46),
                  std::string(talent[tal]) + "Guitar player, and " + looks[v / 2]);
    }
    // A talent raised in the band still has its word.
    EXPECT_EQ(str(talent_word(6), talent_word(7), talent_word(8), talent_word(12)),
              "good  good  excellent  excellent ");
}

TEST_F(Applicants, ThreeDismissalsThenTheFourthIsRefusedForTheWeek) {
    for (int n = 1; n <= 3; ++n) {
        applicant({.forename = n});
        press("dismiss");
    }
    EXPECT_EQ(panel().rfind("Ben Johnson wants", 0), 0u);
    press("dismiss");
    EXPECT_EQ(memos(), Lines{memo("Dave", "There are no more applicants this week, Boss.")});
    ok_memos();
    EXPECT_EQ(str(panel(), f.hire.enabled, f.dismiss.enabled), " 0 0");
    applicant();
    press();  // any update reopens the panel, but the count stays at 3
    EXPECT_TRUE(f.dismiss.enabled);
    press("dismiss");
    EXPECT_EQ(str(panel(), g.main.applicantsseen), " 3");
}

TEST_F(Applicants, HireAtThreeLetsTwoMoreDismissalsThroughThenTheWeekRunsDry) {
    applicant();
    update(g);
    g.main.applicantsseen = 3;
    applicant();
    press("hire");
    applicant({21, 2, 2, 3, 4, 8, 2, 6, 2});
    press("dismiss");
    press("dismiss");  // the sixth draws nobody
    EXPECT_EQ(str(g.main.applicantsseen, panel(), f.hire.enabled), "6 No Applicants 1");
    // Run dry: a hire copies the last applicant into each next empty slot, which keeps its
    // illness and practice.
    r.memberill[2] = 4;
    r.practice[2] = 3;
    r.memberfriction[2] = 6;
    r.memberhappy[2] = 1;
    press("hire");
    press("hire");
    for (int s : {2, 3}) EXPECT_EQ(member(s), "Beth Smith|Female|21 4 8 2 6 2 10 0");
    EXPECT_EQ(f.members.rows, (Lines{"Aaron Johnson", "Beth Smith", "Beth Smith"}));
    EXPECT_EQ(str(r.memberill[2], r.practice[2]), "4 3");
    press("dismiss");
    EXPECT_EQ(str(g.main.applicantsseen, panel()), "9 No Applicants");
    EXPECT_TRUE(memos().empty());
    r.membername[1] = "None";  // with slot 1 empty the old sentence stays
    f.txtapplicant.caption = "yesterday's";
    press();
    EXPECT_EQ(panel(), "yesterday's");
}

TEST_F(Applicants, MemoAtExactlyFiveComesAfterTheNextApplicantIsDrawn) {
    const Lines no_more{memo("Dave", "Sorry Boss, no more applicants this week")};
    g.main.applicantsseen = 4;
    applicant({.forename = 4, .surname = 4});
    press("hire");
    EXPECT_EQ(panel().rfind("Bryan Jones wants", 0), 0u);
    EXPECT_EQ(memos(), no_more);
    ok_memos();
    press("hire");  // the one on show can still be hired
    EXPECT_EQ(str(r.membername[2], panel()), "Bryan Jones No Applicants");
    EXPECT_TRUE(memos().empty());
    full_band();  // the hire that fills the band at five: the panel closes, the memo comes
    r.membername[4] = "None";
    g.main.applicantsseen = 4;
    applicant();
    update(g);
    press("hire");
    EXPECT_EQ(str(r.membername[4], f.hire.enabled, f.dismiss.enabled), "Aaron Johnson 0 0");
    EXPECT_EQ(memos(), no_more);
}

}  // namespace
}  // namespace tourvane
