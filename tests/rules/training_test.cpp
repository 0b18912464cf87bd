// Band practice, music lessons and holidays.
#include "band/training.h"
#include "band/roster.h"
#include "band_draws.h"
#include "week/turn.h"

namespace tourvane {
namespace {

using testing::Lines;
using testing::memo;
using testing::TestGame;
using testing::yesno;

class Training : public ::testing::Test {
  protected:
    TestGame t;
    OfficeForm& f = t.g.forms.main;
    void SetUp() override {
        t.new_game();
        t.full_band();
        listupdate(t.g);
        update(t.g);
    }
    std::string offer(const char* who, const char* subject) {
        return std::string("It will cost £75 to give ") + who + " a " + subject +
               " lesson. Go ahead?";
    }
};

TEST_F(Training, PracticeStepsAtFourAndDropsWhatIsOver) {
    t.r.practice[2] = 3;
    t.pick(2, 4);  // the guitarist
    t.pick(2, 2);  // two points
    testing::spare(t);
    practise(t.g);
    EXPECT_TRUE(testing::only_spare_left(t));
    EXPECT_EQ(t.r.membertalent[2], 4);
    EXPECT_EQ(t.r.practice[2], 0);
    EXPECT_EQ(t.r.tiredness, 2);
    EXPECT_EQ(t.memos(),
              (Lines{memo("Dave",
                          "Good news, Boss. Thanks to practising, Bob Axe has become more "
                          "talented!")}));

    t.g.rnd.clear_queue();
    t.pick(4, 4);
    t.pick(1, 2);
    practise(t.g);
    EXPECT_EQ(t.r.practice[4], 1);
    EXPECT_EQ(t.r.membertalent[4], 3);
    EXPECT_EQ(t.r.tiredness, 4);
    EXPECT_TRUE(t.memos().empty());
}

TEST_F(Training, NoPracticeOfferWhileASlotIsEmpty) {
    t.r.membername[3] = "None";
    command6(t.g);
    for (const std::string& line : t.take()) EXPECT_NE(line.rfind("msgbox", 0), 0u) << line;
    EXPECT_EQ(t.r.tiredness, 0);
}

TEST_F(Training, LessonNeedsAPickAndNamesTheSubjectOfTheSlot) {
    click(t.g, "main", "label13");
    EXPECT_EQ(t.take(), (Lines{testing::okbox("Please select a band member")}));
    const char* who[] = {"Ann Vox", "Bob Axe", "Cy Low", "Di Kit"};
    const char* subject[] = {"Singing", "Guitar", "Guitar", "Drums"};
    for (int row = 0; row < 4; ++row) {
        click(t.g, "main", "members", row);
        t.no();
        EXPECT_EQ(click(t.g, "main", "label13"), ClickResult::Done);
        EXPECT_EQ(t.take(), (Lines{yesno(offer(who[row], subject[row]), false)}));
    }
    EXPECT_EQ(t.r.cash, 3000);
    for (int s = 1; s <= 4; ++s) EXPECT_EQ(t.r.practice[s], 0);
}

TEST_F(Training, LessonsAtSeventyFiveAndSeventyFour) {
    click(t.g, "main", "members", 2);
    t.r.practice[3] = 2;
    t.r.cash = 150;
    t.yes();
    click(t.g, "main", "label13");
    EXPECT_EQ(t.r.practice[3], 3);
    EXPECT_TRUE(t.memos().empty());
    t.yes();
    click(t.g, "main", "label13");  // the last 75 pounds
    EXPECT_EQ(t.take(),
              (Lines{yesno(offer("Cy Low", "Guitar"), true),
                     memo("Mona", "Thanks to the lesson, Cy Low has become more talented!")}));
    EXPECT_EQ(t.r.cash, 0);
    EXPECT_EQ(t.r.membertalent[3], 4);
    EXPECT_EQ(t.r.practice[3], 0);
    EXPECT_EQ(t.r.tiredness, 0);
    EXPECT_EQ(f.txtcash.caption, "£ 0");
    t.ok_memos();

    t.r.cash = 74;
    t.yes();
    click(t.g, "main", "label13");  // asked first, refused after
    EXPECT_EQ(t.take(),
              (Lines{yesno(offer("Cy Low", "Guitar"), true),
                     memo("Accounting", "You don't have enough money for this lesson!")}));
    EXPECT_EQ(t.r.cash, 74);
    EXPECT_EQ(t.r.practice[3], 0);
    EXPECT_EQ(f.txtcash.caption, "£ 0");  // no update
}

TEST_F(Training, HolidayRefusals) {
    t.r.cash = 299;
    click(t.g, "main", "holiday");
    EXPECT_EQ(t.take(), (Lines{memo("Dave", "We can't afford to book a holiday at this time.")}));
    t.ok_memos();
    t.r.cash = 300;
    t.no();
    click(t.g, "main", "holiday");
    EXPECT_EQ(t.take(), (Lines{yesno("Go ahead and book a 2 week holiday?", false)}));
    t.r.membername[4] = "None";
    t.r.cash = 5000;
    testing::spare(t);
    click(t.g, "main", "holiday");
    EXPECT_EQ(t.take(),
              (Lines{memo("Dave", "We need a full band before we can book a holiday, boss!")}));
    EXPECT_TRUE(testing::only_spare_left(t));  // no update, so no applicant either
    EXPECT_EQ(f.txtapplicant.caption, "No Applicants");
    EXPECT_EQ(t.r.gamedate, 37135.0);
    EXPECT_EQ(t.r.memberhappy[1], 10);
}

TEST_F(Training, HolidayCheersTheBandAndOnlyMovesTheDate) {
    testing::set_happy(t.r, {8, 3, 10, 0});
    t.r.memberill[2] = 3;
    t.r.tiredness = 3;
    t.r.songweeks = 5;
    t.r.interviewkind = 1;
    f.interview.enabled = true;
    t.g.main.applicantsseen = 2;
    t.r.cash = 300;
    t.yes();
    testing::spare(t);
    click(t.g, "main", "holiday");
    EXPECT_TRUE(testing::only_spare_left(t));
    EXPECT_TRUE(t.memos().empty());
    EXPECT_EQ(testing::happiness(t.r), "10 7 10 4");
    EXPECT_EQ(t.r.gamedate, 37149.0);
    EXPECT_EQ(f.txtdate.caption, "15/09/2001");
    EXPECT_EQ(t.r.cash, 0);
    EXPECT_EQ(f.txtcash.caption, "£ 0");
    EXPECT_EQ(t.r.memberill[2], 3);
    EXPECT_EQ(t.r.tiredness, 3);
    EXPECT_EQ(t.r.songweeks, 5);
    EXPECT_EQ(t.r.interviewkind, 1);
    EXPECT_TRUE(f.interview.enabled);
    EXPECT_EQ(t.g.main.applicantsseen, 2);
}

}  // namespace
}  // namespace tourvane
