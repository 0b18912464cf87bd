// The band list, the member panel, the status memo, sacking, and members leaving.
#include "band/roster.h"
#include "band_draws.h"
#include "week/turn.h"

namespace tourvane {
namespace {

using testing::Lines;
using testing::memo;
using testing::queue_applicant;
using testing::TestGame;
using testing::yesno;

class Roster : public ::testing::Test {
  protected:
    TestGame t;
    OfficeForm& f = t.g.forms.main;
    void SetUp() override {
        t.new_game();
        t.full_band();
        listupdate(t.g);
        update(t.g);
    }
};

TEST_F(Roster, ListClosesGapsAndARowFillsThePanel) {
    t.r.membername[2] = "None";
    t.put(3, "Cy Low", {.talent = 4, .charisma = 6, .attitude = 7, .looks = 8, .sex = "Female"});
    t.r.memberage[3] = 19;
    listupdate(t.g);
    EXPECT_EQ(f.members.rows, (Lines{"Ann Vox", "Cy Low", "Di Kit"}));
    EXPECT_FALSE(f.Command2.enabled);
    EXPECT_EQ(click(t.g, "main", "members", 1), ClickResult::Done);
    EXPECT_EQ(t.g.main.selectedmember, 3);
    EXPECT_TRUE(f.Command2.enabled);
    std::string panel;
    for (Control* c : {&f.txtage, &f.txtsex, &f.txtinstrument, &f.txttalent, &f.txtcharisma,
                       &f.txtattitude, &f.txtlooks})
        panel += c->caption + " ";
    EXPECT_EQ(panel, "19 Female Bass 4 6 7 8 ");
}

TEST(RosterEmpty, StatusMemoNeedsAPickedMember) {
    TestGame t;
    t.new_game();
    EXPECT_EQ(dblclick(t.g, "main", "members"), ClickResult::Done);
    EXPECT_EQ(t.take(), (Lines{testing::okbox("Please select a band member")}));
}

TEST_F(Roster, StatusMemoHasHappinessFrictionAndIllness) {
    struct Case {
        int happy, friction, ill;
        const char* sex;
        const char* text;
    } cases[] = {
        {2, 2, 0, "Male",
         "Bob Axe is unhappy. The other members of the band get on with him very well."},
        {3, 0, 1, "Female",
         " The other members of the band get on with her very well. Bob Axe is ill at the moment. "
         "She should be fit again in 1 weeks."},
        {4, 3, 0, "Male",
         "Bob Axe is content.  The other band members seem to get on OK with him."},
        {6, 4, 0, "Male",
         "Bob Axe is content.  The other band members seem to get on OK with him."},
        {7, 5, 0, "0", "Bob Axe is quite happy.  The other band members just about tolerate her."},
        {8, 6, 0, "Male",
         "Bob Axe is quite happy.  The other band members just about tolerate him."},
        {9, 7, 10, "Male",
         "Bob Axe is very happy.  The rest of the band really don't get on with him. Bob Axe is "
         "ill at the moment. He should be fit again in 10 weeks."},
    };
    for (const Case& c : cases) {
        t.r.memberhappy[2] = static_cast<Integer>(c.happy);
        t.r.memberfriction[2] = static_cast<Integer>(c.friction);
        t.r.memberill[2] = static_cast<Integer>(c.ill);
        t.r.membersex[2] = c.sex;
        EXPECT_EQ(dblclick(t.g, "main", "members", 1), ClickResult::Done);
        EXPECT_EQ(t.memos(), (Lines{memo("Dave", c.text)})) << c.happy;
        t.ok_memos();
    }
}

TEST_F(Roster, NoAtTheSackQuestionDisarmsTheButtonUntilTheRowIsClickedAgain) {
    click(t.g, "main", "members", 1);
    t.no();
    EXPECT_EQ(click(t.g, "main", "Command2"), ClickResult::Done);
    EXPECT_EQ(t.take(), (Lines{yesno("Are you sure you want to sack Bob Axe?", false)}));
    EXPECT_FALSE(f.Command2.enabled);
    EXPECT_EQ(t.r.membername[2], "Bob Axe");
    EXPECT_EQ(click(t.g, "main", "Command2"), ClickResult::Ignored);
}

// Bob (talent 3, charisma 6, looks 5, creativity 2) costs 32 popularity; his friction of 2 lifts
// the others by 2 up to 10 and leaves his own happiness alone. The next applicant is a guitarist.
TEST_F(Roster, SackedMemberWithFrictionLiftsTheOthersAndLeavesTheSlotHalfKept) {
    t.put(2, "Bob Axe", {.talent = 3, .charisma = 6, .attitude = 9, .looks = 5, .creativity = 2});
    t.r.memberage[2] = 22;
    testing::set_happy(t.r, {9, 4, 5, 10});
    t.r.memberfriction[2] = 2;
    t.r.memberill[2] = 2;
    t.r.practice[2] = 3;
    t.r.popularity = 100;
    click(t.g, "main", "members", 1);
    t.yes();
    queue_applicant(t, {.forename = 2, .surname = 4, .talent = 4, .looks = 6});
    testing::spare(t);
    click(t.g, "main", "Command2");
    EXPECT_TRUE(testing::only_spare_left(t));
    EXPECT_EQ(t.r.popularity, 68);
    EXPECT_EQ(t.r.cash, 3000);
    EXPECT_EQ(testing::happiness(t.r), "10 4 7 10");
    // Emptied: name, sex and the five attributes; kept: age, happiness, friction, illness and
    // practice points.
    EXPECT_EQ(testing::slot_of(t.r, 2), "None|0|22|0 0 0 0 0|4 2");
    EXPECT_EQ(t.r.memberill[2], 2);
    EXPECT_EQ(t.r.practice[2], 3);
    EXPECT_EQ(f.members.rows, (Lines{"Ann Vox", "Cy Low", "Di Kit"}));
    EXPECT_EQ(t.r.vacancy, 2);
    EXPECT_EQ(f.txtapplicant.caption,
              "Adam Jones wants to join the band, he is a reasonable Guitar player, and looks "
              "pretty good! ");
    EXPECT_EQ(f.txtinstrument.caption, "Guitar");  // the panel still shows the leaver
}

TEST_F(Roster, LeaverWithoutFrictionCostsEveryoneFourAndPopularityStopsAtZero) {
    testing::set_happy(t.r, {3, 2, 7, 10});
    t.r.popularity = 29;  // below twice 3 + 5 + 5 + 2
    t.g.main.selectedmember = 4;
    queue_applicant(t, {});
    delete_member(t.g);
    EXPECT_EQ(t.g.rnd.queued_left(), 0u);
    EXPECT_EQ(t.r.popularity, 0);  // never negative
    EXPECT_EQ(testing::happiness(t.r), "0 0 3 6");
    EXPECT_EQ(f.txtapplicant.caption,
              "Aaron Johnson wants to join the band, he is a terrible Drums player, and looks very "
              "ugly!");
}

// A walk-out in slot 1 costs the others 4 happiness; Cy drops to 0 and, later in the same
// order, walks out too. The picked slot is then an empty one.
TEST_F(Roster, WalkOutCarriesALaterMemberAndLeavesTheEmptySlotPicked) {
    testing::set_happy(t.r, {0, 10, 3, 10});
    t.r.memberill[3] = 2;
    t.r.popularity = 100;
    click(t.g, "main", "members", 0);  // SACK THIS MEMBER armed
    t.take();
    t.no();                                             // no practice
    t.pick(1, 5);                                       // Ann walks out
    queue_applicant(t, {.forename = 5});                // update in the removal: Brian, for slot 1
    t.pick(1, 5);                                       // Cy walks out
    queue_applicant(t, {.forename = 6});                // Chris, for slot 1
    for (int w : {3, 2}) t.pick(w, 3);                  // wages of Bob and Di
    for (int v : {1, 2, 1, 2, 1}) t.pick(v, 2);         // venues
    for (int s = 0; s < 2; ++s) t.pick(2, 1000);        // nobody falls ill
    queue_applicant(t, {.forename = 7, .surname = 7});  // the turn's update: Carl Richards
    command6(t.g);

    EXPECT_EQ(t.r.membername[1], "None");
    EXPECT_EQ(t.r.membername[3], "None");
    EXPECT_EQ(testing::happiness(t.r), "0 2 0 2");  // 10, less 4 for each leaver
    EXPECT_EQ(t.r.popularity, 39);                  // 100 - 30 - 30, then the decay
    EXPECT_EQ(t.r.cash, 2995);
    EXPECT_EQ(t.r.venueopen[2], 0);
    EXPECT_EQ(t.r.venueopen[5], -1);
    EXPECT_EQ(t.g.main.applicantname, "Carl Richards");
    EXPECT_EQ(t.g.main.selectedmember, 3);
    const std::string shock =
        " has decided to leave the band! The rest of the band is in a "
        "state of shock.";
    EXPECT_EQ(t.memos(), (Lines{memo("Mona", "Ann Vox" + shock), memo("Mona", "Cy Low" + shock)}));
    t.ok_memos();

    t.g.rnd.clear_queue();
    dblclick(t.g, "main", "members");  // on the empty part of the list
    EXPECT_EQ(
        t.memos(),
        (Lines{memo("Dave",
                    "None is unhappy. The other members of the band get on with her very "
                    "well. None is ill at the moment. She should be fit again in 1 weeks.")}));
    t.ok_memos();
    t.no();
    click(t.g, "main", "label13");
    EXPECT_EQ(t.take(),
              (Lines{yesno("It will cost £75 to give None a Guitar lesson. Go ahead?", false)}));

    // SACK THIS MEMBER stayed armed: a Yes removes nobody, only the happiness step runs again.
    ASSERT_TRUE(f.Command2.enabled);
    t.yes();
    testing::any_applicants(t);
    click(t.g, "main", "Command2");
    EXPECT_EQ(t.take().front(), yesno("Are you sure you want to sack None?", true));
    EXPECT_EQ(t.r.popularity, 39);
    EXPECT_EQ(testing::happiness(t.r), "0 0 0 0");
    EXPECT_EQ(t.r.membername[2], "Bob Axe");
}

}  // namespace
}  // namespace tourvane
