// The band list, the member panel, the status memo, sacking, and members leaving.
#include "band/roster.h"
#include "test_game.h"
#include "week/turn.h"

namespace tourvane {
namespace {

using testing::Lines;
using testing::memo;
using testing::str;
using testing::yesno;

class Roster : public testing::Office {
  protected:
    OfficeForm& f = g.forms.main;
    void SetUp() override { listupdate(g), update(g); }
};

TEST_F(Roster, ListClosesGapsAndARowFillsThePanel) {
    dblclick(g, "main", "members");  // nobody picked yet
    EXPECT_EQ(take(), Lines{testing::okbox("Please select a band member")});
    r.membername[2] = "None";
    put(3, "Cy Low", {.talent = 4, .charisma = 6, .attitude = 7, .looks = 8, .sex = "Female"});
    listupdate(g);
    EXPECT_EQ(f.members.rows, (Lines{"Ann Vox", "Cy Low", "Di Kit"}));
    EXPECT_FALSE(f.Command2.enabled);
    click(g, "main", "members", 1);
    EXPECT_EQ(str(g.main.selectedmember, f.Command2.enabled, f.txtage.caption, f.txtsex.caption,
                  f.txtinstrument.caption, f.txttalent.caption, f.txtcharisma.caption,
                  f.txtattitude.caption, f.txtlooks.caption),
              "3 1 20 Female Bass 4 6 7 8");
}

TEST_F(Roster, StatusMemoHasHappinessFrictionAndIllness) {
    const std::string content = "Bob Axe is content.  The other band members seem to get on OK ";
    const std::string quite = "Bob Axe is quite happy.  The other band members just about tolerate";
    const struct {
        int happy, friction, ill;
        const char* sex;
        std::string text;
    } cases[] = {
        {2, 2, 0, "Male",
         "Bob Axe is unhappy. The other members of the band get on with him very well."},
        {3, 0, 1, "Female",
         " The other members of the band get on with her very well. Bob Axe is ill at the moment. "
         "She should be fit again in 1 weeks."},
        {4, 3, 0, "Male", content + "with him."},
        {6, 4, 0, "Male", content + "with him."},
        {7, 5, 0, "0", quite + " her."},
        {8, 6, 0, "Male", quite + " him."},
        {9, 7, 10, "Male",
         "Bob Axe is very happy.  The rest of the band really don't get on with him. Bob Axe is "
         "ill at the moment. He should be fit again in 10 weeks."},
    };
    for (const auto& c : cases) {
        r.memberhappy[2] = static_cast<Integer>(c.happy);
        r.memberfriction[2] = static_cast<Integer>(c.friction);
        r.memberill[2] = static_cast<Integer>(c.ill);
        r.membersex[2] = c.sex;
        dblclick(g, "main", "members", 1);
        EXPECT_EQ(memos(), (Lines{memo("Dave", c.text)})) << c.happy;
        ok_memos();
    }
}

// Bob (talent 3, charisma 6, looks 5, creativity 2) costs 32 popularity; his friction of 2 lifts
// the others by 2 up to 10 and leaves his own happiness alone. No disarms the button first.
TEST_F(Roster, SackedMemberWithFrictionLiftsTheOthersAndLeavesTheSlotHalfKept) {
    put(2, "Bob Axe", {.talent = 3, .charisma = 6, .attitude = 9, .looks = 5, .creativity = 2});
    set_happy(9, 4, 5, 10);
    r.memberfriction[2] = r.memberill[2] = 2;
    r.practice[2] = 3;
    r.popularity = 100;
    click(g, "main", "members", 1);
    no();
    click(g, "main", "Command2");
    EXPECT_EQ(take(), Lines{yesno("Are you sure you want to sack Bob Axe?", false)});
    EXPECT_EQ(click(g, "main", "Command2"), ClickResult::Ignored);
    click(g, "main", "members", 1);
    yes();
    applicant({.forename = 2, .surname = 4, .talent = 4, .looks = 6});
    exactly([&] { click(g, "main", "Command2"); });
    EXPECT_EQ(str(r.popularity, happiness()), "68 10 4 7 10");
    // Emptied: name, sex and the five attributes; kept: age, happiness, friction, illness and
    // practice points. The next applicant is for the guitar.
    EXPECT_EQ(member(2), "None|0|20 0 0 0 0 0 4 2");
    EXPECT_EQ(str(r.memberill[2], r.practice[2], r.vacancy), "2 3 2");
    EXPECT_EQ(f.members.rows, (Lines{"Ann Vox", "Cy Low", "Di Kit"}));
    EXPECT_EQ(f.txtapplicant.caption.rfind("Adam Jones wants to join the band, he is a "
                                           "reasonable Guitar",
                                           0),
              0u);
}

TEST_F(Roster, LeaverWithoutFrictionCostsEveryoneFourAndPopularityStopsAtZero) {
    set_happy(3, 2, 7, 10);
    r.popularity = 29;  // below twice 3 + 5 + 5 + 2
    g.main.selectedmember = 4;
    applicant();
    exactly([&] { delete_member(g); });
    EXPECT_EQ(str(r.popularity, happiness()), "0 0 0 3 6");
}

// A walk-out in slot 1 costs the others 4 happiness; Cy drops to 0 and, later in the same
// order, walks out too. The picked slot is then an empty one.
TEST_F(Roster, WalkOutCarriesALaterMemberAndLeavesTheEmptySlotPicked) {
    set_happy(0, 10, 3, 10);
    r.memberill[3] = 2;
    r.popularity = 100;
    click(g, "main", "members", 0);  // SACK THIS MEMBER armed
    no();                            // no practice
    pick(1, 5);                      // Ann walks out
    applicant({.forename = 5});      // update in the removal
    pick(1, 5);                      // Cy walks out
    applicant({.forename = 6});
    picks({{3, 3}, {2, 3}});                   // wages of Bob and Di
    for (int v : {1, 2, 1, 2, 1}) pick(v, 2);  // venues
    picks({{2, 1000}, {2, 1000}});             // nobody falls ill
    applicant({.forename = 7, .surname = 7});  // the turn's update: Carl Richards
    command6(g);
    // 100 - 30 - 30, then the decay; 10 less 4 for each leaver.
    EXPECT_EQ(str(r.membername[1], r.membername[3], r.popularity, happiness(), r.cash,
                  g.main.applicantname, g.main.selectedmember),
              "None None 39 0 2 0 2 2995 Carl Richards 3");
    const std::string shock =
        " has decided to leave the band! The rest of the band is in a state of shock.";
    EXPECT_EQ(memos(), (Lines{memo("Mona", "Ann Vox" + shock), memo("Mona", "Cy Low" + shock)}));
    ok_memos();
    dblclick(g, "main", "members");  // the empty slot is still the one asked about
    EXPECT_EQ(memos(), (Lines{memo("Dave",
                                   "None is unhappy. The other members of the band get on "
                                   "with her very well. None is ill at the moment. She "
                                   "should be fit again in 1 weeks.")}));
    ok_memos();
    // SACK THIS MEMBER stayed armed: a Yes removes nobody, only the happiness step runs again.
    yes();
    applicant();
    click(g, "main", "Command2");
    EXPECT_EQ(take().front(), yesno("Are you sure you want to sack None?", true));
    EXPECT_EQ(str(r.popularity, happiness()), "39 0 0 0 0");
}

}  // namespace
}  // namespace tourvane
