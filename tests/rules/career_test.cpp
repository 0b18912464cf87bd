// A career seen whole: the tally kept as it is played, the summary of a career that ends, the
// hall of fame that keeps finished careers, and the automatic save that keeps a running one
// from one run to the next.

#include "core/career.h"
#include "flow/career.h"
#include "rules/band/roster.h"
#include "rules/band/training.h"
#include "rules/files/hall_of_fame.h"
#include "rules/files/history_file.h"
#include "rules/files/save_file.h"
#include "rules/music/chart.h"
#include "rules/week/turn.h"
#include "test_game.h"

namespace tourvane::testing {
namespace {

/// A date as the days since the first day of a new game; "-" for none.
std::string day(Date d) {
    return d == 0 ? "-" : str(d - kStartDate);
}

/// The tally as "hired lost demos gigs | best gig | best place song date".
std::string tally(const CareerTally& t) {
    const GigNote& b = t.best_gig;
    return str(t.hired, t.lost, t.demos, t.gigs, "|", day(b.date), b.venue, b.attendance, b.profit,
               b.score, "|", t.best_place, t.best_song, day(t.best_place_date));
}

/// A game whose files are kept in memory.
struct Career : ::testing::Test, TestGame {
    MemoryFiles files;
    Career() { g.files = &files; }
    /// Plays a gig of songs 1 to 3 at venue option `location` from the office.
    void gig(int location) {
        g.forms.main.command4.enabled = true;
        ASSERT_EQ(click(g, "main", "command4"), ClickResult::Done);
        ASSERT_EQ(click(g, "gig", "location", location), ClickResult::Done);
        ASSERT_EQ(click(g, "gig", "command1"), ClickResult::Done);
        for (int row : {0, 1, 2}) ASSERT_EQ(click(g, "gig", "Combo1", row), ClickResult::Done);
        ASSERT_EQ(click(g, "gig", "command4"), ClickResult::Done);
        ASSERT_EQ(click(g, "thenewspaper", "Label2"), ClickResult::Done);
    }
    /// Bankruptcy: a week whose wages the cash can't pay.
    void go_bankrupt() {
        r.cash = -1;
        ok_memos();
        command6(g);
        ASSERT_TRUE(g.game_over);
    }
};

// Hires, sackings, walk-outs, demos and gigs are counted by the clicks and the week that make
// them; what only looks like one is not.
TEST_F(Career, TallyCountsWhatTheCareerDid) {
    new_game();
    for (int k = 0; k < 4; ++k) ASSERT_EQ(click(g, "main", "hire"), ClickResult::Done);
    full_band();
    click(g, "main", "members", 3);
    yes();
    click(g, "main", "Command2");  // sacked
    g.main.selectedmember = 4;
    delete_member(g);  // an empty slot: nobody lost
    click(g, "main", "hire");
    full_band(), r.memberhappy[4] = 0;
    ok_memos();
    no(), pick(1, 5);  // no practice, and Di Kit walks out
    office("command6");
    EXPECT_EQ(r.membername[4], "None");
    click(g, "main", "hire");
    full_band();
    EXPECT_EQ(tally(g.tally), "6 2 0 0 | -  0 0 0 | 0  -");

    songs({45, 30, 20});
    click(g, "main", "songlist", 0);
    office("command3");
    office("command3");  // already with the label
    // Scores 131 (songs 95, talents -4, happiness 40), then equal, then 138: the first of
    // equals stays best until a higher score.
    r.popularity = 100, r.venueopen = {0, -1, -1, -1, -1, -1};
    gig(0);
    const std::string first = str(r.attendance, r.gigprofit);
    EXPECT_EQ(first, "33 66");
    gig(1);
    EXPECT_EQ(tally(g.tally), "6 2 1 2 | 7 The Rose and Crown " + first + " 131 | 0  -");
    r.membertalent[1] = 6;
    gig(1);
    EXPECT_EQ(tally(g.tally),
              str("6 2 1 3 | 7 The Queens Head", r.attendance, r.gigprofit, "138 | 0  -"));
}

// The best place is the one the chart screen would give, ties and their +1 included, but on a
// copy: the record keeps its sales and places. Only the band's own singles that are out, on
// the chart and sold count; a better place replaces the best, an equal or worse one doesn't.
TEST_F(Career, BestChartPlaceIsTheChartScreensRankingOfTheBandsSingles) {
    new_game();
    for (int row = 20; row <= kChartRows; ++row) r.chartsales[row] = row - 20;  // 0 to 50
    auto single = [&](int row, Long sales, const char* title, bool out = true) {
        r.released[row] = to_boolean(out), r.charttitle[row] = title, r.chartsales[row] = sales;
    };
    single(4, 60, "Four"), single(5, 60, "Five"), single(6, 61, "Six");
    single(7, 90, ""), single(8, 95, "Unreleased", false), single(20, 99, "Twenty");
    single(9, 0, "Nothing sold");
    const Module1 before = r;
    tally_chart_place(g);
    EXPECT_EQ(r, before);
    // Row 4 ties with 5 and then with 6, and so passes both: it outsells everyone but rows 7,
    // 8 and 20.
    EXPECT_EQ(tally(g.tally), "0 0 0 0 | -  0 0 0 | 4 Four 0");
    rank_chart(g);
    EXPECT_EQ(r.chartplace[4], 4);

    r = before, r.gamedate += 7, r.chartsales[6] = 200;
    tally_chart_place(g);
    EXPECT_EQ(tally(g.tally), "0 0 0 0 | -  0 0 0 | 1 Six 7");
    r.gamedate += 7;
    tally_chart_place(g);  // an equal place: the first week of it stays
    r.chartsales[6] = 0, r.chartsales[4] = 10;
    tally_chart_place(g);
    EXPECT_EQ(tally(g.tally), "0 0 0 0 | -  0 0 0 | 1 Six 7");

    // Kept at the end of a played week, not of one that passed no time.
    TestGame t;
    t.new_game();
    t.r.released[1] = kTrue, t.r.charttitle[1] = "Hit", t.r.chartsales[1] = 5;
    t.r.cash = -1, t.r.promotion = 2;
    command6(t.g);
    EXPECT_EQ(t.g.tally.best_place, 0);
    t.r.promotion = 1, t.r.cash = 100;
    command6(t.g);
    EXPECT_GT(t.g.tally.best_place, 0);
}

// The figures of a career that ends: the first and last day and the whole weeks between, the
// peaks with the first day they were reached (a stretch's start and today count), the singles
// out, the tally and how it ended.
TEST_F(Career, SummaryOfACareerThatEndsInBankruptcy) {
    new_game("The Wasps", "Sam");
    r.popularity = 40;
    command6(g);  // 8 September: 3000, 39
    r.cash = 9000;
    command6(g);  // 15 September: 9000, 38
    click(g, "main", "command5");
    click(g, "savefrm", "save");
    r.cash = 100;
    click(g, "main", "command5");
    click(g, "savefrm", "load");  // a stretch from 15 September at 9000 again
    g.tally.demos = 3, g.tally.best_place = 12, g.tally.best_song = "Song 2";
    r.released[2] = r.released[5] = kTrue, r.released[3] = 1;
    full_band();
    yes();
    holiday(g);  // 29 September
    CareerSummary running = career_summary(g);
    EXPECT_FALSE(running.bankrupt);
    go_bankrupt();  // 6 October
    const CareerSummary s = career_summary(g);
    EXPECT_EQ(str(s.band, s.boss, s.first_day - kStartDate, s.last_day - kStartDate, s.weeks),
              "The Wasps Sam 0 35 5");
    EXPECT_EQ(str(s.peak_cash, s.peak_cash_date - kStartDate, s.peak_popularity,
                  s.peak_popularity_date - kStartDate, s.singles, s.bankrupt),
              "9000 14 39 7 2 1");
    EXPECT_EQ(s.tally, g.tally);
    // Today counts too: the peak of a career that has only just begun is where it stands.
    TestGame t;
    t.new_game().r.cash = 5000;
    const CareerSummary fresh = career_summary(t.g);
    EXPECT_EQ(str(fresh.first_day, fresh.weeks, fresh.peak_cash, fresh.peak_cash_date),
              str(kStartDate, 0, 5000, kStartDate));
}

/// A finished career's summary with only the figures that rank it.
FameEntry ranked(const char* band, Long weeks, int place, Long cash) {
    FameEntry e;
    e.summary.band = band, e.summary.weeks = weeks, e.summary.peak_cash = cash;
    e.summary.tally.best_place = static_cast<Integer>(place);
    return e;
}

std::string bands(const std::vector<FameEntry>& hall) {
    std::string out;
    for (const FameEntry& e : hall) out += e.summary.band + ";";
    return out;
}

// Longest first; then the best chart place, never charting last; then the most cash; equals
// in the order they came in. What is written reads back the same, and anything damaged, cut
// short or foreign reads as an empty hall.
TEST_F(Career, HallReadsBestFirstAndDamagedOrMissingIsEmpty) {
    EXPECT_TRUE(read_hall(files).empty());
    std::vector<FameEntry> hall{ranked("A", 10, 0, 900), ranked("B", 10, 5, 100),
                                ranked("C", 12, 0, 0),   ranked("D", 10, 5, 200),
                                ranked("E", 10, 70, 0),  ranked("F", 10, 5, 200)};
    hall[1].diary = {{kStartDate, "Dave", "Hello"}};
    hall[1].segments = {{kStartDate, 3000, 0, 0}};
    hall[1].history = {{kStartDate + 7, 2990, 5, 0}};
    hall[1].summary.tally.best_gig.venue = "Town Hall";
    hall[1].summary.bankrupt = true;
    const Bytes bytes = hall_bytes(hall);
    EXPECT_EQ(parse_hall(bytes), hall);
    EXPECT_EQ(hall_bytes({}).size(), 12u);
    const std::vector<FameEntry> least(1);  // no text, no list: the fewest bytes an entry takes
    EXPECT_EQ(hall_bytes(least).size(), 12u + 115u);
    EXPECT_EQ(parse_hall(hall_bytes(least)), least);
    files.files[hall_file()] = bytes;
    EXPECT_EQ(bands(read_hall(files)), "C;D;F;B;E;A;");

    std::vector<Bytes> bad{{bytes.begin(), bytes.end() - 1}, bytes, bytes, bytes, bytes};
    bad[1].push_back(0);  // a byte too many
    bad[2][7] = 2;        // a kind of file not known
    bad[3][8] = 7;        // more careers than written
    bad[4][12 + 55] = 2;  // "A" went bankrupt: neither yes nor no

    for (std::size_t k = 0; k < bad.size(); ++k) {
        EXPECT_FALSE(parse_hall(bad[k])) << k;
        files.files[hall_file()] = bad[k];
        EXPECT_TRUE(read_hall(files).empty()) << k;
    }
}

// The career goes in once however often the end is reported, only once the game has ended,
// among the best fifty; a damaged hall gives way to one holding this career.
TEST_F(Career, FinishedCareerEntersTheHallOnceAmongTheBest) {
    new_game();
    command6(g);
    EXPECT_FALSE(add_to_hall(g));
    EXPECT_FALSE(files.files.count(hall_file()));
    go_bankrupt();
    const FameEntry mine{career_summary(g), g.diary, g.history, g.segments};
    EXPECT_EQ(mine.summary.weeks, 2);
    files.files[hall_file()] = {'T', 'V', 'F', 'A', 'M', 'E'};
    EXPECT_TRUE(add_to_hall(g));
    EXPECT_TRUE(add_to_hall(g));
    EXPECT_EQ(read_hall(files), std::vector<FameEntry>{mine});

    // Fifty better careers keep it out and the file as it was; one worse than it makes room.
    std::vector<FameEntry> full(kHallPlaces, ranked("Better", 3, 0, 0));
    files.files[hall_file()] = hall_bytes(full);
    EXPECT_FALSE(add_to_hall(g));
    EXPECT_EQ(files.files[hall_file()], hall_bytes(full));
    full.back() = ranked("Worse", 1, 0, 0);
    files.files[hall_file()] = hall_bytes(full);
    EXPECT_TRUE(add_to_hall(g));
    const std::vector<FameEntry> now = read_hall(files);
    EXPECT_EQ(str(now.size(), now.back() == mine), "50 1");
    EXPECT_EQ(bands(now).find("Worse"), std::string::npos);
}

// The history beside a save keeps the tally and brings it back; a history of the first kind,
// written before there was a tally, still loads, with an empty one.
TEST_F(Career, HistoryKeepsTheTallyAndReadsTheFirstKind) {
    new_game();
    g.tally = {3, 1, 2, 1, {kStartDate, "Town Hall", 120, -40, 88}, 9, "Hit", kStartDate + 7};
    const Bytes save = save_bytes(r);
    const Bytes bytes = history_bytes(g, save_mark(save));
    const auto back = parse_history(bytes, save_mark(save));
    ASSERT_TRUE(back);
    EXPECT_EQ(back->tally, g.tally);

    Bytes first = bytes;
    first[7] = 1;
    first.resize(bytes.size() - (48 + 9 + 3));  // the tally, its venue and its song
    const auto old = parse_history(first, save_mark(save));
    ASSERT_TRUE(old);
    EXPECT_EQ(str(old->diary == g.diary, old->tally == CareerTally{}), "1 1");
    first[7] = 2;  // the same bytes as the present kind lack the tally
    EXPECT_FALSE(parse_history(first, save_mark(save)));
}

// Quitting the office keeps the running career in the automatic save, the same bytes a slot
// would hold; the next start offers it and carries on with it as a load does. EXIT with no
// career leaves it alone; the end of the game puts the career in the hall and removes it.
TEST_F(Career, AutomaticSaveKeptOnQuitOfferedAndCarriedOn) {
    files.files[autosave_file()] = {1, 2, 3};
    port.queue_input("The Wasps");  // a band name, but no boss: no career begun
    click(g, "Form1", "New");
    click(g, "Form1", "Label4");
    EXPECT_FALSE(keep_running_career(g));
    EXPECT_EQ(files.files[autosave_file()], (Bytes{1, 2, 3}));
    EXPECT_EQ(autosaved_career(files).state, AutosavedCareer::State::Damaged);

    TestGame t;
    t.g.files = &files;
    t.new_game();
    t.full_band();
    listupdate(t.g);  // as hiring them would
    t.week_start(), t.week_end(false);
    command6(t.g);
    t.ok_memos();
    t.g.tally.demos = 2;
    t.yes();
    click(t.g, "main", "exitbtn");
    ASSERT_TRUE(t.g.ended);
    EXPECT_TRUE(keep_running_career(t.g));
    const Bytes save = save_bytes(t.r);
    EXPECT_EQ(files.files[autosave_file()], save);
    EXPECT_EQ(files.files[autosave_history_file()], history_bytes(t.g, save_mark(save)));
    const AutosavedCareer offer = autosaved_career(files);
    EXPECT_EQ(str(int(offer.state), offer.text), "1 The Wasps, 08/09/2001, £ 2996");

    TestGame u;
    u.g.files = &files;
    ASSERT_TRUE(carry_on(u.g));
    EXPECT_EQ(save_bytes(u.r), save);
    EXPECT_EQ(
        str(u.g.forms.Form1.loaded, u.g.forms.main.visible, u.g.diary.back().text, u.g.diary.size(),
            u.g.history == t.g.history, u.g.segments.size(), u.g.tally == t.g.tally),
        str(0, 1, "Game Loaded", t.g.diary.size() + 1, 1, 2, 1));
    EXPECT_EQ(files.files[autosave_file()], save);  // kept until the program next ends

    // The end of the game: into the hall, and no automatic save left to carry on with.
    u.full_band();
    u.r.cash = -1;
    u.no();
    command6(u.g);
    ASSERT_TRUE(u.g.game_over);
    u.ok_memos();
    EXPECT_FALSE(keep_running_career(u.g));
    EXPECT_EQ(str(files.files.count(autosave_file()), files.files.count(autosave_history_file()),
                  read_hall(files).size()),
              "0 0 1");
    EXPECT_EQ(autosaved_career(files).state, AutosavedCareer::State::None);
}

// A damaged automatic save is refused with a critical box: the title stays, the running game
// is as it was and the file is left alone.
TEST_F(Career, DamagedAutomaticSaveIsRefusedAndLeftAlone) {
    for (const Bytes& damaged : {Bytes{}, Bytes(300, 0xff), Bytes(kSaveBytes, 0)}) {
        TestGame t;
        t.g.files = &files;
        files.files[autosave_file()] = damaged;
        const Module1 before = t.r;
        EXPECT_FALSE(carry_on(t.g));
        EXPECT_EQ(t.take(), Lines{okbox(kDamagedAutosave, true)});
        EXPECT_EQ(str(t.r == before, t.g.forms.Form1.visible, t.g.forms.main.visible,
                      files.files[autosave_file()] == damaged),
                  "1 1 0 1");
    }
    files.files.clear();
    EXPECT_FALSE(carry_on(g));
    EXPECT_EQ(take(), Lines{okbox("There is no automatic save to carry on with.", true)});
}

}  // namespace
}  // namespace tourvane::testing
