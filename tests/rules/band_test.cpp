// The band: applicants and the week's limits on them, the band list and member panel, the
// status memo, sacking and walking out, practice, lessons, holidays and interviews.
#include "rules/band/applicants.h"
#include "rules/band/interviews.h"
#include "rules/band/roster.h"
#include "rules/band/training.h"
#include "rules/week/turn.h"
#include "test_game.h"

namespace tourvane::testing {
namespace {

struct Applicants : NewGame {
    OfficeForm& f = g.forms.main;
    const std::string& panel() { return f.txtapplicant.caption; }
    /// Clicks (or updates, with no control) taking exactly the draws queued before.
    void press(const char* control = nullptr) {
        exactly([&] { control ? (void)click(g, "main", control) : update(g); });
    }
    /// The applicant on show: name, sex, then age, talent, charisma, attitude, looks and
    /// creativity.
    std::vector<Want> shown(const char* name, const char* sex, std::array<int, 6> values) {
        std::vector<Want> out{is("applicantname", name), is("applicantsex", sex)};
        const char* names[] = {"applicantage",      "applicanttalent", "applicantcharisma",
                               "applicantattitude", "applicantlooks",  "applicantcreativity"};
        for (int k = 0; k < 6; ++k) out.push_back(is(names[k], values[k]));
        return out;
    }
};

TEST_F(Applicants, NineDrawsInOrderAndTheSentenceWordForWord) {
    applicant({19, 2, 3, 5, 2, 7, 4, 9, 3});
    press();
    EXPECT_TRUE(has(shown("Joanne Del Ray", "Female", {19, 2, 7, 4, 9, 3})));
    EXPECT_EQ(panel(),
              "Joanne Del Ray wants to join the band, she is a poor Vocalist, and is gorgeous!! ");
    put(1, "Ann Vox"), put(2, "Bob Axe");  // the lowest empty slot names the instrument
    draws({0, 0, 0, 0, 0, 0, 0, 0, 0});    // the ends of the ranges
    press();
    EXPECT_TRUE(has(shown("Aaron Johnson", "Male", {17, 1, 1, 1, 1, 1})));
    EXPECT_EQ(panel(),
              "Aaron Johnson wants to join the band, he is a terrible Bass player, and "
              "looks very ugly!");
    put(3, "Cy Low");
    for (int i = 0; i < 9; ++i) draws({0.99999});
    press();
    EXPECT_TRUE(has(shown("Nicole Lee", "Female", {22, 5, 10, 10, 10, 3})));
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
    for (auto [talent, word] :
         {std::pair{6, "good "}, {7, "good "}, {8, "excellent "}, {12, "excellent "}})
        EXPECT_STREQ(talent_word(talent), word) << talent;
}

TEST_F(Applicants, ThreeDismissalsThenTheFourthIsRefusedForTheWeek) {
    for (int n = 1; n <= 3; ++n) applicant({.forename = n}), press("dismiss");
    EXPECT_EQ(panel().rfind("Ben Johnson wants", 0), 0u);
    press("dismiss");
    said({memo("Dave", "There are no more applicants this week, Boss.")});
    EXPECT_TRUE(has({is(f.txtapplicant, ""), enabled(f.hire, false), enabled(f.dismiss, false)}));
    applicant();
    press();  // any update reopens the panel, but the count stays at 3
    EXPECT_TRUE(f.dismiss.enabled);
    press("dismiss");
    EXPECT_TRUE(has({is(f.txtapplicant, ""), is("applicantsseen", 3)}));
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
    EXPECT_TRUE(
        has({is("applicantsseen", 6), is(f.txtapplicant, "No Applicants"), enabled(f.hire, true)}));
    // Run dry: a hire copies the last applicant into each next empty slot, which keeps its
    // illness and practice.
    r.memberill[2] = 4, r.practice[2] = 3, r.memberfriction[2] = 6, r.memberhappy[2] = 1;
    press("hire");
    press("hire");
    for (int s : {2, 3})
        EXPECT_TRUE(has(member(s, "Beth Smith", "Female", {21, 4, 8, 2, 6, 2, 10, 0})));
    EXPECT_EQ(f.members.rows, (Rows{"Aaron Johnson", "Beth Smith", "Beth Smith"}));
    EXPECT_TRUE(has({is("memberill(2)", 4), is("practice(2)", 3)}));
    press("dismiss");
    EXPECT_TRUE(has({is("applicantsseen", 9), is(f.txtapplicant, "No Applicants")}));
    EXPECT_TRUE(memos().empty());
    r.membername[1] = "None";  // with slot 1 empty the old sentence stays
    f.txtapplicant.caption = "yesterday's";
    press();
    EXPECT_EQ(panel(), "yesterday's");
}

TEST_F(Applicants, MemoAtExactlyFiveComesAfterTheNextApplicantIsDrawn) {
    g.main.applicantsseen = 4;
    applicant({.forename = 4, .surname = 4});
    press("hire");
    EXPECT_EQ(panel().rfind("Bryan Jones wants", 0), 0u);
    said({memo("Dave", "Sorry Boss, no more applicants this week")});
    press("hire");  // the one on show can still be hired
    EXPECT_TRUE(has({is("membername(2)", "Bryan Jones"), is(f.txtapplicant, "No Applicants")}));
    EXPECT_TRUE(memos().empty());
}

struct Roster : Office {
    OfficeForm& f = g.forms.main;
    void SetUp() override { listupdate(g), update(g); }
    /// A lesson for the member of row `row`, answered Yes or No; the lines it raised.
    Lines lesson(int row, bool go) {
        click(g, "main", "members", row);
        go ? yes() : no();
        click(g, "main", "label13");
        return take();
    }
};

TEST_F(Roster, ListClosesGapsAndARowFillsThePanel) {
    dblclick(g, "main", "members");  // nobody picked yet
    EXPECT_EQ(take(), Lines{okbox("Please select a band member")});
    r.membername[2] = "None";
    put(3, "Cy Low", {.talent = 4, .charisma = 6, .attitude = 7, .looks = 8, .sex = "Female"});
    listupdate(g);
    EXPECT_EQ(f.members.rows, (Rows{"Ann Vox", "Cy Low", "Di Kit"}));
    EXPECT_FALSE(f.Command2.enabled);
    click(g, "main", "members", 1);
    EXPECT_TRUE(has({is("selectedmember", 3), enabled(f.Command2, true), is(f.txtage, 20),
                     is(f.txtsex, "Female"), is(f.txtinstrument, "Bass"), is(f.txttalent, 4),
                     is(f.txtcharisma, 6), is(f.txtattitude, 7), is(f.txtlooks, 8)}));
}

TEST_F(Roster, StatusMemoHasHappinessFrictionAndIllness) {
    const std::string content = "Bob Axe is content.  The other band members seem to get on OK ";
    const std::string quite = "Bob Axe is quite happy.  The other band members just about tolerate";
    const struct {
        Integer happy, friction, ill;
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
        r.memberhappy[2] = c.happy, r.memberfriction[2] = c.friction, r.memberill[2] = c.ill;
        r.membersex[2] = c.sex;
        dblclick(g, "main", "members", 1);
        said({memo("Dave", c.text)});
    }
}

// Bob (talent 3, charisma 6, looks 5, creativity 2) costs 32 popularity; his friction of 2 lifts
// the others by 2 up to 10 and leaves his own happiness alone. No disarms the button first.
TEST_F(Roster, SackedMemberWithFrictionLiftsTheOthersAndLeavesTheSlotHalfKept) {
    put(2, "Bob Axe", {.talent = 3, .charisma = 6, .attitude = 9, .looks = 5, .creativity = 2});
    set_happy(9, 4, 5, 10);
    r.memberfriction[2] = r.memberill[2] = 2, r.practice[2] = 3, r.popularity = 100;
    click(g, "main", "members", 1);
    no();
    click(g, "main", "Command2");
    EXPECT_EQ(take(), Lines{yesno("Are you sure you want to sack Bob Axe?", false)});
    EXPECT_EQ(click(g, "main", "Command2"), ClickResult::NotUsableNow);
    click(g, "main", "members", 1);
    yes();
    applicant({.forename = 2, .surname = 4, .talent = 4, .looks = 6});
    exactly([&] { click(g, "main", "Command2"); });
    EXPECT_TRUE(has({is("popularity", 68), is("memberhappy(1..4)", "10 4 7 10")}));
    // Emptied: name, sex and the five attributes; kept: age, happiness, friction, illness and
    // practice points. The next applicant is for the guitar.
    EXPECT_TRUE(has(member(2, "None", "0", {20, 0, 0, 0, 0, 0, 4, 2})));
    EXPECT_TRUE(has({is("memberill(2)", 2), is("practice(2)", 3), is("vacancy", 2)}));
    EXPECT_EQ(f.members.rows, (Rows{"Ann Vox", "Cy Low", "Di Kit"}));
    EXPECT_EQ(f.txtapplicant.caption.substr(0, 60),
              "Adam Jones wants to join the band, he is a reasonable Guitar");
}

TEST_F(Roster, LeaverWithoutFrictionCostsEveryoneFourAndPopularityStopsAtZero) {
    set_happy(3, 2, 7, 10);
    r.popularity = 29;  // below twice 3 + 5 + 5 + 2
    g.main.selectedmember = 4;
    applicant();
    exactly([&] { delete_member(g); });
    EXPECT_TRUE(has({is("popularity", 0), is("memberhappy(1..4)", "0 0 3 6")}));
}

// A walk-out in slot 1 costs the others 4 happiness; Cy drops to 0 and, later in the same
// order, walks out too. The picked slot is then an empty one.
TEST_F(Roster, WalkOutCarriesALaterMemberAndLeavesTheEmptySlotPicked) {
    set_happy(0, 10, 3, 10);
    r.memberill[3] = 2, r.popularity = 100;
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
    EXPECT_TRUE(has({is("membername(1)", "None"), is("membername(3)", "None"), is("popularity", 39),
                     is("memberhappy(1..4)", "0 2 0 2"), is("cash", 2995),
                     is("applicantname", "Carl Richards"), is("selectedmember", 3)}));
    const std::string shock =
        " has decided to leave the band! The rest of the band is in a state of shock.";
    EXPECT_EQ(memos(), (Lines{memo("Mona", "Ann Vox" + shock), memo("Mona", "Cy Low" + shock)}));
    // Shown one at a time in turn, holding the office till the last is read.
    const FormState& office = g.forms.main;
    const Control& shown = g.forms.messageForm.thetxt;
    for (const char* name : {"Ann Vox", "Cy Low"}) {
        EXPECT_TRUE(has({is(shown, name + shock), is("main.enabled", office.enabled, false)}));
        memo_ok(g);
    }
    EXPECT_TRUE(has({is("messageForm.loaded", g.forms.messageForm.loaded, false),
                     is("main.enabled", office.enabled, true)}));
}

using Training = Roster;

TEST_F(Training, PracticeStepsUpAtFourPointsTheTurnAsksAndTheUnhappyMember) {
    const Shown better =
        memo("Dave", "Good news, Boss. Thanks to practising, Bob Axe has become more talented!");
    const int cases[][4] = {
        {3, 2, 0, 4}, {3, 1, 0, 4}, {2, 1, 3, 3}};  // points, drawn, after, talent
    for (const auto& [before, drawn, after, talent] : cases) {
        r.practice[2] = before, r.membertalent[2] = 3, r.tiredness = 0;
        picks({{2, 4}, {drawn, 2}});  // the guitarist
        exactly([&] { practise(g); });
        EXPECT_TRUE(
            has({is("practice(2)", after), is("membertalent(2)", talent), is("tiredness", 2)}));
        said(talent == 4 ? Lines{better} : Lines{});
    }
    // The turn asks; Yes draws a member and a point, a tired band is asked again.
    r.practice[2] = r.tiredness = 0, r.memberhappy[3] = 1;
    yes();
    picks({{2, 4}, {1, 2}});  // the guitarist gains one point
    command6(g);
    EXPECT_TRUE(has({is("practice(2)", 1), is("tiredness", 1)}));  // 2 from practice, 1 off at once
    EXPECT_EQ(memos().front(), memo("Steven", "Cy Low is unhappy."));
    ok_memos();
    yes();
    no();  // tired: not this week
    command6(g);
    EXPECT_EQ(take()[1], yesno("The band is tired, make them practise anyway?", false));
    EXPECT_TRUE(has({is("practice(2) + tiredness", r.practice[2] + r.tiredness, 1),
                     is("membername(3)", "Cy Low")}));
    ok_memos();
    r.membername[3] = "None";  // no practice offered to a band with an empty slot
    command6(g);
    for (const Shown& s : take()) EXPECT_NE(s.kind, Shown::Kind::Box) << s.text;
}

TEST_F(Training, LessonsNeedAPickNameTheSubjectOfTheSlotAndCost75) {
    click(g, "main", "label13");
    EXPECT_EQ(take(), Lines{okbox("Please select a band member")});
    const std::string offer[] = {"Ann Vox a Singing", "Bob Axe a Guitar", "Cy Low a Guitar",
                                 "Di Kit a Drums"};
    for (int row = 0; row < 4; ++row)
        EXPECT_EQ(
            lesson(row, false),
            Lines{yesno("It will cost £75 to give " + offer[row] + " lesson. Go ahead?", false)});
    r.practice[3] = 2, r.cash = 150;
    lesson(2, true);
    EXPECT_EQ(lesson(2, true).back(),  // the last 75 pounds
              memo("Mona", "Thanks to the lesson, Cy Low has become more talented!"));
    EXPECT_TRUE(has({is("membertalent(3)", 4), is("practice(3)", 0), is(f.txtcash, "£ 0")}));
    ok_memos();
    r.cash = 74;  // asked first, refused after
    EXPECT_EQ(lesson(2, true).back(),
              memo("Accounting", "You don't have enough money for this lesson!"));
    EXPECT_TRUE(has({is("cash", 74), is("practice(3)", 0)}));
}

TEST_F(Training, HolidayRefusalsAndTheHolidayThatOnlyMovesTheDate) {
    r.cash = 299;
    click(g, "main", "holiday");
    said({memo("Dave", "We can't afford to book a holiday at this time.")});
    r.cash = 300;
    no();
    click(g, "main", "holiday");
    EXPECT_EQ(take(), Lines{yesno("Go ahead and book a 2 week holiday?", false)});
    set_happy(8, 3, 10, 0);
    r.memberill[2] = r.tiredness = 3, r.songweeks = 5, g.main.applicantsseen = 2;
    yes();
    exactly([&] { click(g, "main", "holiday"); });
    EXPECT_TRUE(memos().empty());
    EXPECT_TRUE(has(
        {is("memberhappy(1..4)", "10 7 10 4"), is(f.txtdate, "15/09/2001"), is(f.txtcash, "£ 0")}));
    EXPECT_TRUE(has(
        {is("memberill(2)", 3), is("tiredness", 3), is("songweeks", 5), is("applicantsseen", 2)}));
    r.membername[4] = "None", r.cash = 5000;
    exactly([&] { click(g, "main", "holiday"); });  // no update, so no applicant either
    EXPECT_EQ(take(),
              Lines{memo("Dave", "We need a full band before we can book a holiday, boss!")});
    EXPECT_EQ(r.gamedate, 37149.0);
}

// Interviews from popularity 100: each member draws charisma (and, on cable, looks: one pick of
// 2 a slot) in slot order; radio adds a last draw of 5 to 24. Exactly 20 and 60 say nothing.
using Interviews = Office;

TEST_F(Interviews, RadioAndCableScoresAndTheSilentTwentyAndSixty) {
    const char* radio[] = {"The band interview went less well than expected",
                           "The band interview went OK, but i think we could do better next time.",
                           "The Interview went really well, the band seem very pleased!"};
    const char* cable[] = {"The bands appearance on a cable music show was quite poor.",
                           "The band interview on a cable T.V show went o.k",
                           "The bands appearance on a cable T.V show was fantastic!"};
    const struct {
        int kind, charisma, attitude, ann_attitude, pick, bonus, gain;
        const char *looks, *text;
    } cases[] = {
        {1, 6, 4, 4, 4, 10, 13, "", radio[1]},       // 4 * (3 + 1 + 6) + 10 + 5 = 55
        {1, 1, 10, 10, 1, 0, 2, "", radio[0]},       // 9, the least a radio interview can score
        {1, 1, 10, 10, 1, 11, 5, "", nullptr},       // 20
        {1, 1, 10, 10, 1, 12, 5, "", radio[1]},      // 21
        {1, 4, 1, 1, 4, 3, 15, "", nullptr},         // 36 + 16 + 8 = 60
        {1, 4, 1, 1, 4, 4, 15, "", radio[2]},        // 61
        {2, 10, 7, 7, 1, 0, 5, "1111", nullptr},     // 4 * (1 + 1 + 3) = 20
        {2, 10, 7, 7, 7, 0, 12, "2222", cable[1]},   // 4 * (7 + 2 + 3) = 48
        {0, 10, 7, 7, 1, 0, 5, "2111", cable[1]},    // any kind but radio: 21
        {3, 10, 7, 8, 1, 0, 4, "1111", cable[0]},    // 19
        {2, 10, 7, 6, 10, 0, 15, "2222", cable[2]},  // 16 + 3 * 15 = 61
    };
    EXPECT_EQ(click(g, "main", "interview"), ClickResult::NotUsableNow);  // no invitation yet
    for (const auto& c : cases) {
        full_band({.charisma = c.charisma, .attitude = c.attitude, .looks = 2});
        r.memberattitude[1] = c.ann_attitude;
        for (int s = 0; s < 4; ++s) {
            pick(c.pick, c.charisma);
            if (c.kind != 1) pick(c.looks[s] - '0', 2);
        }
        if (c.kind == 1) pick(c.bonus + 1, 20);
        r.interviewkind = c.kind, r.popularity = 100, g.forms.main.interview.enabled = true;
        exactly([&] { EXPECT_EQ(click(g, "main", "interview"), ClickResult::Done); });
        said(c.text ? Lines{memo("Mona", c.text)} : Lines{});
        EXPECT_EQ(r.popularity, 100 + c.gain) << c.kind << " " << c.gain;
        EXPECT_EQ(click(g, "main", "interview"), ClickResult::NotUsableNow);
    }
}

}  // namespace
}  // namespace tourvane::testing
