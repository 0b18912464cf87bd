// Band practice, music lessons and holidays.
#include "band/training.h"
#include "band/roster.h"
#include "test_game.h"
#include "week/turn.h"

namespace tourvane {
namespace {

using testing::Lines;
using testing::memo;
using testing::str;
using testing::yesno;

class Training : public testing::Office {
  protected:
    void SetUp() override { listupdate(g), update(g); }
    /// A lesson for the member of row `row`, answered Yes or No; the lines it raised.
    Lines lesson(int row, bool go) {
        click(g, "main", "members", row);
        go ? yes() : no();
        click(g, "main", "label13");
        return take();
    }
};

TEST_F(Training, PracticeStepsUpAtFourPoints) {
    const Lines better{
        memo("Dave", "Good news, Boss. Thanks to practising, Bob Axe has become more talented!")};
    const int cases[][4] = {
        {3, 2, 0, 4}, {3, 1, 0, 4}, {2, 1, 3, 3}};  // points, drawn, after, talent
    for (const auto& [before, drawn, after, talent] : cases) {
        r.practice[2] = static_cast<Integer>(before);
        r.membertalent[2] = 3;
        r.tiredness = 0;
        picks({{2, 4}, {drawn, 2}});  // the guitarist
        exactly([&] { practise(g); });
        EXPECT_EQ(str(r.practice[2], r.membertalent[2], r.tiredness), str(after, talent, 2));
        EXPECT_EQ(memos(), talent == 4 ? better : Lines{});
        ok_memos();
    }
    r.membername[3] = "None";  // no practice offered to a band with an empty slot
    command6(g);
    for (const std::string& line : take()) EXPECT_NE(line.rfind("msgbox", 0), 0u) << line;
}

TEST_F(Training, LessonsNeedAPickNameTheSubjectOfTheSlotAndCost75) {
    click(g, "main", "label13");
    EXPECT_EQ(take(), Lines{testing::okbox("Please select a band member")});
    const char* offer[] = {"Ann Vox a Singing", "Bob Axe a Guitar", "Cy Low a Guitar",
                           "Di Kit a Drums"};
    for (int row = 0; row < 4; ++row)
        EXPECT_EQ(lesson(row, false), Lines{yesno(std::string("It will cost £75 to give ") +
                                                      offer[row] + " lesson. Go ahead?",
                                                  false)});
    r.practice[3] = 2;
    r.cash = 150;
    lesson(2, true);
    EXPECT_EQ(lesson(2, true).back(),  // the last 75 pounds
              memo("Mona", "Thanks to the lesson, Cy Low has become more talented!"));
    EXPECT_EQ(str(r.membertalent[3], r.practice[3], g.forms.main.txtcash.caption), "4 0 £ 0");
    ok_memos();
    r.cash = 74;  // asked first, refused after
    EXPECT_EQ(lesson(2, true).back(),
              memo("Accounting", "You don't have enough money for this lesson!"));
    EXPECT_EQ(str(r.cash, r.practice[3]), "74 0");
}

TEST_F(Training, HolidayRefusalsAndTheHolidayThatOnlyMovesTheDate) {
    r.cash = 299;
    click(g, "main", "holiday");
    EXPECT_EQ(take(), Lines{memo("Dave", "We can't afford to book a holiday at this time.")});
    ok_memos();
    r.cash = 300;
    no();
    click(g, "main", "holiday");
    EXPECT_EQ(take(), Lines{yesno("Go ahead and book a 2 week holiday?", false)});
    set_happy(8, 3, 10, 0);
    r.memberill[2] = r.tiredness = 3;
    r.songweeks = 5;
    g.main.applicantsseen = 2;
    yes();
    exactly([&] { click(g, "main", "holiday"); });
    EXPECT_TRUE(memos().empty());
    EXPECT_EQ(str(happiness(), g.forms.main.txtdate.caption, g.forms.main.txtcash.caption),
              "10 7 10 4 15/09/2001 £ 0");
    EXPECT_EQ(str(r.memberill[2], r.tiredness, r.songweeks, g.main.applicantsseen), "3 3 5 2");
    r.membername[4] = "None";
    r.cash = 5000;
    exactly([&] { click(g, "main", "holiday"); });  // no update, so no applicant either
    EXPECT_EQ(take(),
              Lines{memo("Dave", "We need a full band before we can book a holiday, boss!")});
    EXPECT_EQ(r.gamedate, 37149.0);
}

}  // namespace
}  // namespace tourvane
