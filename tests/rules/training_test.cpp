// Band practice, music lessons and holidays.
#include "band/training.h"
#include "band/roster.h"
#include "test_game.h"
#include "week/turn.h"

namespace tourvane {
namespace {

using testing::Lines;
using testing::memo;
using testing::okbox;
using testing::yesno;

class Training : public ::testing::Test, protected testing::TestGame {
  protected:
    OfficeForm& f = g.forms.main;
    void SetUp() override {
        new_game();
        full_band();
        listupdate(g);
        update(g);
    }
    static std::string offer(const char* who, const char* subject) {
        return std::string("It will cost £75 to give ") + who + " a " + subject +
               " lesson. Go ahead?";
    }
};

TEST_F(Training, PracticeStepsUpAtFourPoints) {
    const std::string better =
        "Good news, Boss. Thanks to practising, Bob Axe has become more talented!";
    const int cases[][4] = {
        {3, 2, 0, 4}, {3, 1, 0, 4}, {2, 1, 3, 3}};  // points, drawn, after, talent
    for (const auto& [before, drawn, after, talent] : cases) {
        r.practice[2] = static_cast<Integer>(before);
        r.membertalent[2] = 3;
        r.tiredness = 0;
        picks({{2, 4}, {drawn, 2}});  // the guitarist
        exactly([&] { practise(g); });
        EXPECT_EQ(r.practice[2], after);
        EXPECT_EQ(r.membertalent[2], talent);
        EXPECT_EQ(r.tiredness, 2);
        EXPECT_EQ(memos(), talent == 4 ? Lines{memo("Dave", better)} : Lines{});
        ok_memos();
    }
    r.membername[3] = "None";  // no practice offered to a band with an empty slot
    command6(g);
    for (const std::string& line : take()) EXPECT_NE(line.rfind("msgbox", 0), 0u) << line;
}

TEST_F(Training, LessonNeedsAPickAndNamesTheSubjectOfTheSlot) {
    click(g, "main", "label13");
    EXPECT_EQ(take(), Lines{okbox("Please select a band member")});
    const char* who[] = {"Ann Vox", "Bob Axe", "Cy Low", "Di Kit"};
    const char* subject[] = {"Singing", "Guitar", "Guitar", "Drums"};
    for (int row = 0; row < 4; ++row) {
        click(g, "main", "members", row);
        no();
        click(g, "main", "label13");
        EXPECT_EQ(take(), Lines{yesno(offer(who[row], subject[row]), false)});
    }
    EXPECT_EQ(r.cash, 3000);
}

TEST_F(Training, LessonsAtSeventyFiveAndSeventyFour) {
    click(g, "main", "members", 2);
    r.practice[3] = 2;
    r.cash = 150;
    yes();
    click(g, "main", "label13");
    EXPECT_EQ(r.practice[3], 3);
    EXPECT_TRUE(memos().empty());
    yes();
    click(g, "main", "label13");  // the last 75 pounds
    EXPECT_EQ(memos(),
              Lines{memo("Mona", "Thanks to the lesson, Cy Low has become more talented!")});
    EXPECT_EQ(r.membertalent[3] * 10 + r.practice[3], 40);
    EXPECT_EQ(f.txtcash.caption, "£ 0");
    ok_memos();
    r.cash = 74;
    yes();
    click(g, "main", "label13");  // asked first, refused after
    EXPECT_EQ(take(), (Lines{yesno(offer("Cy Low", "Guitar"), true),
                             memo("Accounting", "You don't have enough money for this lesson!")}));
    EXPECT_EQ(r.cash, 74);
    EXPECT_EQ(r.practice[3], 0);
}

TEST_F(Training, HolidayRefusals) {
    r.cash = 299;
    click(g, "main", "holiday");
    EXPECT_EQ(take(), Lines{memo("Dave", "We can't afford to book a holiday at this time.")});
    ok_memos();
    r.cash = 300;
    no();
    click(g, "main", "holiday");
    EXPECT_EQ(take(), Lines{yesno("Go ahead and book a 2 week holiday?", false)});
    r.membername[4] = "None";
    r.cash = 5000;
    exactly([&] { click(g, "main", "holiday"); });  // no update, so no applicant either
    EXPECT_EQ(take(),
              Lines{memo("Dave", "We need a full band before we can book a holiday, boss!")});
    EXPECT_EQ(r.gamedate, 37135.0);
}

TEST_F(Training, HolidayCheersTheBandAndOnlyMovesTheDate) {
    set_happy(8, 3, 10, 0);
    r.memberill[2] = r.tiredness = 3;
    r.songweeks = 5;
    g.main.applicantsseen = 2;
    r.cash = 300;
    yes();
    exactly([&] { click(g, "main", "holiday"); });
    EXPECT_TRUE(memos().empty());
    EXPECT_EQ(happiness(), "10 7 10 4");
    EXPECT_EQ(f.txtdate.caption + f.txtcash.caption, "15/09/2001£ 0");
    EXPECT_EQ(r.memberill[2] + r.tiredness + r.songweeks + g.main.applicantsseen, 13);
}

}  // namespace
}  // namespace tourvane
