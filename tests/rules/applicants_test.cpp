// Applicants: the draw and its sentence, and the week's limits on hiring and dismissing.
#include "band/applicants.h"
#include "band_draws.h"

namespace tourvane {
namespace {

using testing::Lines;
using testing::memo;
using testing::queue_applicant;
using testing::shown;
using testing::TestGame;

const std::string kNoMore = memo("Dave", "Sorry Boss, no more applicants this week");

class Applicants : public ::testing::Test {
  protected:
    TestGame t;
    OfficeForm& f = t.g.forms.main;
    void SetUp() override { t.new_game(); }

    const std::string& panel() { return f.txtapplicant.caption; }
    bool open() { return f.hire.enabled && f.dismiss.enabled; }
    /// Clicks or updates with the draws queued before; expects exactly those taken.
    ClickResult press(const char* control) {
        testing::spare(t);
        ClickResult r = control ? click(t.g, "main", control) : (update(t.g), ClickResult::Done);
        EXPECT_TRUE(testing::only_spare_left(t)) << (control ? control : "update");
        t.g.rnd.clear_queue();
        return r;
    }
};

TEST_F(Applicants, NineDrawsInOrderAndTheSentenceWordForWord) {
    // age, sex, forename, surname, talent, charisma, attitude, looks, creativity
    queue_applicant(t, {19, 2, 3, 5, 2, 7, 4, 9, 3});
    press(nullptr);
    EXPECT_EQ(shown(t.g.main), "Joanne Del Ray|Female|19|2 7 4 9 3");
    EXPECT_EQ(panel(),
              "Joanne Del Ray wants to join the band, she is a poor Vocalist, and is gorgeous!! ");
    EXPECT_TRUE(open());

    // The lowest empty slot, and the ends of every range.
    t.put(1, "Ann Vox");
    t.put(2, "Bob Axe");
    t.draws({0, 0, 0, 0, 0, 0, 0, 0, 0});
    press(nullptr);
    EXPECT_EQ(t.r.vacancy, 3);
    EXPECT_EQ(shown(t.g.main), "Aaron Johnson|Male|17|1 1 1 1 1");
    EXPECT_EQ(panel(),
              "Aaron Johnson wants to join the band, he is a terrible Bass player, and looks very "
              "ugly!");
    t.put(3, "Cy Low");
    for (int i = 0; i < 9; ++i) t.draws({0.99999});
    press(nullptr);
    EXPECT_EQ(shown(t.g.main), "Nicole Lee|Female|22|5 10 10 10 3");
    EXPECT_EQ(panel(),
              "Nicole Lee wants to join the band, she is a reasonable Drums player, and "
              "is gorgeous!! ");
}

TEST_F(Applicants, TalentWordsAndLooksPhrases) {
    const char* talent[] = {"", "terrible ", "poor ", "poor ", "reasonable ", "reasonable "};
    const char* looks[] = {"",
                           "looks very ugly!",
                           "looks quite ugly. ",
                           "looks quite ugly. ",
                           "looks o.k. ",
                           "looks o.k. ",
                           "looks pretty good! ",
                           "looks pretty good! ",
                           "is gorgeous!! ",
                           "is gorgeous!! ",
                           "is gorgeous!! "};
    for (int v = 1; v <= 10; ++v) {
        const int tal = (v - 1) % 5 + 1;
        queue_applicant(t, {.talent = tal, .looks = v});
        update(t.g);
        EXPECT_EQ(panel(), "Aaron Johnson wants to join the band, he is a " +
                               std::string(talent[tal]) + "Vocalist, and " + looks[v]);
    }
    // Beyond what a draw gives: a talent raised in the band still has its word.
    EXPECT_STREQ(talent_word(6), "good ");
    EXPECT_STREQ(talent_word(7), "good ");
    EXPECT_STREQ(talent_word(8), "excellent ");
    EXPECT_STREQ(talent_word(12), "excellent ");
}

TEST_F(Applicants, FourthDismissalClosesThePanelUntilTheNextUpdate) {
    const char* names[] = {"", "Aaron Johnson", "Adam Johnson", "Ben Johnson"};
    for (int n = 1; n <= 3; ++n) {
        queue_applicant(t, {.forename = n});
        EXPECT_EQ(press("dismiss"), ClickResult::Done);
        EXPECT_EQ(t.g.main.applicantsseen, n);
        EXPECT_EQ(panel().rfind(names[n], 0), 0u);
    }
    EXPECT_EQ(press("dismiss"), ClickResult::Done);
    EXPECT_EQ(panel(), "");
    EXPECT_EQ(t.memos(), Lines{memo("Dave", "There are no more applicants this week, Boss.")});
    t.ok_memos();
    EXPECT_FALSE(f.hire.enabled || f.dismiss.enabled);
    EXPECT_EQ(click(t.g, "main", "dismiss"), ClickResult::Ignored);
    EXPECT_EQ(click(t.g, "main", "hire"), ClickResult::Ignored);
    EXPECT_EQ(t.g.main.applicantsseen, 3);

    queue_applicant(t, {.sex = 2, .forename = 2});
    press(nullptr);  // any update reopens the panel
    EXPECT_TRUE(open());
    EXPECT_EQ(panel().rfind("Beth Johnson wants", 0), 0u);
    EXPECT_EQ(press("dismiss"), ClickResult::Done);  // still refused: the count is 3
    EXPECT_EQ(panel(), "");
    EXPECT_EQ(t.g.main.applicantsseen, 3);
}

TEST_F(Applicants, HireAtThreeLetsTwoMoreDismissalsThroughThenTheWeekRunsDry) {
    testing::any_applicants(t, 2);  // Aaron Johnson, for slot 1 and then slot 2
    update(t.g);
    t.g.main.applicantsseen = 3;
    press("hire");
    EXPECT_EQ(t.g.main.applicantsseen, 4);
    queue_applicant(t, {21, 2, 2, 3, 4, 8, 2, 6, 2});
    press("dismiss");
    press("dismiss");  // the sixth draws nobody
    EXPECT_EQ(t.g.main.applicantsseen, 6);
    EXPECT_EQ(panel(), "No Applicants");
    EXPECT_TRUE(open());

    // Run dry: a hire copies the last applicant into each next empty slot, which keeps its
    // illness and practice.
    t.r.memberill[2] = 4;
    t.r.practice[2] = 3;
    t.r.memberfriction[2] = 6;
    t.r.memberhappy[2] = 1;
    press("hire");
    press("hire");
    for (int s : {2, 3}) EXPECT_EQ(testing::slot_of(t.r, s), "Beth Smith|Female|21|4 8 2 6 2|10 0");
    EXPECT_EQ(t.r.memberill[2], 4);
    EXPECT_EQ(t.r.practice[2], 3);
    EXPECT_EQ(f.members.rows, (Lines{"Aaron Johnson", "Beth Smith", "Beth Smith"}));
    press("dismiss");
    EXPECT_EQ(t.g.main.applicantsseen, 9);
    EXPECT_EQ(panel(), "No Applicants");
    EXPECT_TRUE(t.memos().empty());

    // With slot 1 itself empty the old sentence stays.
    t.r.membername[1] = "None";
    f.txtapplicant.caption = "yesterday's applicant";
    press(nullptr);
    EXPECT_EQ(panel(), "yesterday's applicant");
    EXPECT_TRUE(open());
}

TEST_F(Applicants, MemoAtExactlyFiveComesAfterTheNextApplicantIsDrawn) {
    t.g.main.applicantsseen = 4;
    queue_applicant(t, {.forename = 4, .surname = 4, .talent = 5, .looks = 6});
    press("hire");
    EXPECT_EQ(panel(),
              "Bryan Jones wants to join the band, he is a reasonable Guitar player, and "
              "looks pretty good! ");
    EXPECT_EQ(t.memos(), Lines{kNoMore});
    t.ok_memos();
    EXPECT_EQ(press("hire"), ClickResult::Done);  // the one on show can still be hired
    EXPECT_EQ(t.r.membername[2], "Bryan Jones");
    EXPECT_EQ(panel(), "No Applicants");
    EXPECT_TRUE(t.memos().empty());

    // The hire that fills the band at five: closed panel and the memo.
    t.full_band();
    t.r.membername[4] = "None";
    t.g.main.applicantsseen = 4;
    testing::any_applicants(t);
    update(t.g);
    press("hire");
    EXPECT_EQ(t.r.membername[4], "Aaron Johnson");
    EXPECT_EQ(panel(), "No Applicants");
    EXPECT_FALSE(f.hire.enabled || f.dismiss.enabled);
    EXPECT_EQ(t.memos(), Lines{kNoMore});
}

}  // namespace
}  // namespace tourvane
