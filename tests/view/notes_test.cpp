// What a manager needs to know, from prepared games: the outgoings and how long the cash lasts,
// the promotion the cash can't pay, popularity and its change, what a venue asks, the prices of
// lessons and holidays, each song's quality and what the label looks for.

#include "view/notes.h"
#include "rules/test_game.h"
#include "rules/week/turn.h"
#include "view/career.h"

namespace tourvane::testing {
namespace {

struct Notes : NewGame {
    std::string note(const char* form, const char* control, int index = -1) {
        const Control* c = find_control(g, form, control, index);
        return control_note(g, *find_form(g, form), *c);
    }
};

TEST_F(Notes, TheCashLastsAsManyWholeWeeksAsItPaysAtTheHighestWages) {
    EXPECT_EQ(outgoings(g).weeks, -1);
    EXPECT_EQ(cash_note(g),
              "Nothing goes out this week: nobody is hired and no promotion is bought.");
    full_band();
    click(g, "main", "promote", 1);  // Small, £100: £104 to £112 with four wages of £1 to £3
    const struct {
        Long cash;
        long long weeks;
        std::string ends;
    } cases[] = {
        {111, 0, "At that rate the cash doesn't last the week."},
        {112, 1, "At that rate the cash lasts at least 1 week."},
        {223, 1, "At that rate the cash lasts at least 1 week."},
        {3000, 26, "At that rate the cash lasts at least 26 weeks."},
        {-5, 0,
         "At that rate the cash doesn't last the week. With the cash below £0, Small promotion "
         "can't be paid: Next Week passes no time until you choose another level."},
    };
    for (const auto& c : cases) {
        r.cash = c.cash;
        const Outgoings out = outgoings(g);
        EXPECT_EQ(out.low, 104);
        EXPECT_EQ(out.high, 112);
        EXPECT_EQ(out.weeks, c.weeks) << c.cash;
        EXPECT_EQ(cash_note(g),
                  "This week's outgoings: wages of £1 to £3 for each of the 4 members "
                  "and £100 for Small promotion: £104 to £112 in all. " +
                      c.ends)
            << c.cash;
        EXPECT_EQ(note("main", "txtcash"), cash_note(g));
    }
}

TEST_F(Notes, EachLevelOfPromotionTellsWhatShortCashDoesToIt) {
    put(1, "Ann Vox");
    r.cash = 249;
    click(g, "main", "promote", 2);
    EXPECT_EQ(cash_note(g),
              "This week's outgoings: wages of £1 to £3 for the one member and £250 for Medium "
              "promotion: £251 to £253 in all. At that rate the cash doesn't last the "
              "week. With less than £250, Medium promotion can't be paid: Next Week passes no "
              "time until you choose another level.");
    click(g, "main", "promote", 3);
    r.cash = 4000;
    EXPECT_EQ(outgoings(g).weeks, 9);  // £403 a week at most
    r.cash = 399;
    EXPECT_NE(cash_note(g).find("High promotion can't be paid and is skipped this week."),
              std::string::npos);
    click(g, "main", "promote", 0);
    r.membername[1] = kVacant;
    EXPECT_EQ(outgoings(g).high, 0);
    put(2, "Bob Axe");
    EXPECT_EQ(cash_note(g),
              "This week's outgoings: wages of £1 to £3 for the one member: £1 to £3 in all. "
              "At that rate the cash lasts at least 133 weeks.");
}

TEST_F(Notes, PopularityTellsItsChangeOverTheLastWeeksAndWhatItOpens) {
    const std::string opens =
        " Venues ask for 10 to 310, invitations come above 200, and the record label signs a "
        "band of 1000 or more.";
    EXPECT_EQ(popularity_note(g), "Popularity 0: no week played yet." + opens);
    g.history = {{0, 0, 50, 0}};
    r.popularity = 47;
    EXPECT_EQ(note("main", "txtname"), "Popularity 47, down 3 since the last week played." + opens);
    for (Integer p : {60, 70, 80, 90}) g.history.push_back({0, 0, p, 0});
    r.popularity = 96;
    EXPECT_EQ(popularity_note(g), "Popularity 96, up 36 over the last 4 weeks." + opens);
    r.popularity = 60;
    EXPECT_EQ(popularity_note(g), "Popularity 60, unchanged over the last 4 weeks." + opens);
}

TEST_F(Notes, VenuesTellTheirAskAgainstTheBandsPopularityAndPricesComeBeforeTheClick) {
    full_band();
    songs({34, 8, 41});
    r.venueopen = {0, -1, -1, -1, -1, -1};
    r.popularity = 120;
    click(g, "main", "command4");
    EXPECT_EQ(note("gig", "location", 0),
              "The Rose and Crown asks for a popularity of 10; the band's is 120.");
    EXPECT_EQ(note("gig", "location", 2),
              "Town Hall asks for a popularity of 200; the band's is 120.");
    EXPECT_EQ(note("main", "label13"), "£75 a lesson for the member picked in the band list.");
    EXPECT_EQ(note("main", "holiday"),
              "Two weeks off for £300: every member's happiness rises by 4.");
    EXPECT_EQ(note("main", "command6"), "");
    EXPECT_EQ(shown_rows(g, g.forms.gig, g.forms.gig.Combo1),
              (Rows{"34 · Song 1", "8 · Song 2", "41 · Song 3"}));
    OfficeForm& office = g.forms.main;
    EXPECT_EQ(shown_rows(g, office, office.songlist)[2], "41 · Song 3");
    office.members.rows = {"Ann Vox"};
    EXPECT_EQ(shown_rows(g, office, office.members), Rows{"Ann Vox"});
    office.songlist.rows.push_back("Not a song of this game");
    EXPECT_EQ(shown_rows(g, office, office.songlist).back(), "Not a song of this game");
    EXPECT_NE(note("main", "songlist").find("quality"), std::string::npos);
}

TEST(DiaryNotes, EveryAnswerOfTheLabelTellsWhatItLooksForAndNothingElseDoes) {
    const std::string looks_for =
        "The label rejects a song of quality below 20 and signs a band only for a song above 40 "
        "with a popularity of 1000 or more.";
    for (int q : {5, 22, 27, 35, 45}) {
        TestGame t;
        t.new_game().full_band();
        t.songs({q});
        click(t.g, "main", "songlist", 0);
        click(t.g, "main", "command3");
        t.ok_memos();
        t.week_start();
        t.week_end(false);
        command6(t.g);
        const auto verdict = std::find_if(t.g.diary.begin(), t.g.diary.end(), [](const auto& e) {
            return e.text.find("label") != std::string::npos ||
                   e.text.find("Records") != std::string::npos;
        });
        ASSERT_NE(verdict, t.g.diary.end()) << q;
        EXPECT_EQ(diary_note(*verdict), looks_for) << q;
        EXPECT_EQ(diary_note(t.g.diary.front()), "") << q;  // the demo sent
    }
}

TEST(CareerWords, TheSummaryTellsEveryFigureAndTheHallAndTitleSayWhatTheyHold) {
    CareerSummary s;
    s.band = "The Wasps", s.boss = "Sam", s.first_day = kStartDate, s.last_day = kStartDate + 70;
    s.weeks = 10, s.peak_cash = 4100, s.peak_cash_date = kStartDate + 14;
    s.peak_popularity = 250, s.peak_popularity_date = kStartDate + 63, s.singles = 2;
    s.bankrupt = true;
    std::vector<SummaryLine> lines = summary_lines(s);
    const auto value = [&](const char* label) {
        for (const SummaryLine& l : summary_lines(s))
            if (l.label == label) return l.value;
        return std::string("(none)");
    };
    EXPECT_EQ(value("Band") + "|" + value("Boss") + "|" + value("Weeks lasted"),
              "The Wasps|Sam|10");
    EXPECT_EQ(value("Peak cash"), "£ 4100 on 15/09/2001");
    EXPECT_EQ(value("Peak popularity"), "250 on 03/11/2001");
    EXPECT_EQ(value("Best chart place"), "never in the chart");
    EXPECT_EQ(value("Best gig"), "(none)");  // no gig played
    EXPECT_EQ(value("The end"), "out of cash: the wages could not be paid");
    EXPECT_EQ(hall_line(s), "The Wasps (Sam), 10 weeks");
    s.tally.gigs = 3, s.tally.best_gig = {kStartDate + 21, "Town Hall", 1, -5, 150};
    s.tally.best_place = 4, s.tally.best_song = "Wild Vibes", s.tally.best_place_date = kStartDate;
    s.tally.demos = 2, s.tally.hired = 6, s.tally.lost = 2, s.weeks = 1;
    EXPECT_EQ(value("Best chart place"), "4 with Wild Vibes on 01/09/2001");
    EXPECT_EQ(value("Best gig"), "Town Hall on 22/09/2001: 1 person, £-5 profit");
    EXPECT_EQ(value("Demos sent") + value("Members hired") + value("Members lost"), "262");
    EXPECT_EQ(hall_line(s), "The Wasps (Sam), 1 week, best chart place 4");
    EXPECT_EQ(lines.size() + 1, summary_lines(s).size());  // the best gig's line came in

    EXPECT_EQ(carry_on_offer({}), "");
    EXPECT_EQ(carry_on_offer({AutosavedCareer::State::Damaged, "It is damaged."}),
              "It is damaged.");
    EXPECT_EQ(carry_on_offer({AutosavedCareer::State::Ready, "The Wasps, 08/09/2001, £ 3000"}),
              "Your last career was kept when Tourvane closed: The Wasps, 08/09/2001, £ 3000. "
              "Press C to carry on with it.");
    EXPECT_EQ(hall_hint(), "Press H for the hall of fame of careers that have ended.");
}

}  // namespace
}  // namespace tourvane::testing
