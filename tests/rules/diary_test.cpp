// The diary of what the office said and the week-by-week samples of cash and popularity: what
// they hold, in which order, and what a load does to them.

#include <gtest/gtest.h>

#include "core/diary.h"
#include "temp_dir.h"
#include "test_game.h"

namespace tourvane::testing {
namespace {

void expect_entry(const DiaryEntry& e, Date date, const char* from, const std::string& text) {
    EXPECT_EQ(e.date, date) << text;
    EXPECT_EQ(e.from, from) << text;
    EXPECT_EQ(e.text, text);
}

TEST(Diary, ATurnsBoxAndMemosInTheOrderShownEachWithItsDay) {
    TestGame t;
    t.new_game();
    EXPECT_TRUE(t.g.diary.empty());  // the two names asked for are questions, not news
    t.full_band();
    t.r.memberhappy[2] = 1;
    t.r.promotion = 4;  // High, which five pounds can't pay
    t.r.cash = 5;
    t.no();
    for (int slot = 1; slot <= 4; ++slot) t.pick(2, 3);  // wages of 8: the band is broke
    click(t.g, "main", "command6");

    const Date today = kStartDate, next = kStartDate + 7;
    ASSERT_EQ(t.g.diary.size(), 4u);
    expect_entry(t.g.diary[0], today, "Tourvane", "Do you want the band to practise?");
    expect_entry(t.g.diary[1], today, "Dave",
                 "Sorry, Boss. Cash is a bit tight this week so we can't afford any promotion.");
    expect_entry(t.g.diary[2], today, "Steven", "Bob Axe is unhappy.");
    expect_entry(t.g.diary[3], next, "Dave",
                 "Bad new, Boss. We're out of cash, and that means we're out of a job!");

    // The driver's transcript saw the same boxes and memos in the same order.
    std::vector<Shown> seen;
    for (const Shown& s : t.take())
        if (s.kind == Shown::Kind::Memo || s.kind == Shown::Kind::Box) seen.push_back(s);
    ASSERT_EQ(seen.size(), t.g.diary.size());
    for (std::size_t i = 0; i < seen.size(); ++i) {
        const DiaryEntry& e = t.g.diary[i];
        if (e.from == kBoxSender)
            EXPECT_EQ(seen[i], yesno(e.text, false));
        else
            EXPECT_EQ(seen[i], memo(e.from, e.text));
    }

    // The week that ended the game was played: the graph ends on it, wages unpaid.
    ASSERT_EQ(t.g.history.size(), 1u);
    EXPECT_EQ(t.g.history[0].date, next);
    EXPECT_EQ(t.g.history[0].cash, 5);
    ASSERT_EQ(t.g.segments.size(), 1u);
    EXPECT_EQ(t.g.segments[0].date, today);
    EXPECT_EQ(t.g.segments[0].cash, 5);
}

TEST(Diary, WeeksAreSampledAndALoadStartsANewStretchOfTheSavedCareer) {
    TempDir dir;
    TestGame t;
    t.new_game();
    auto week = [&] {
        ASSERT_EQ(click(t.g, "main", "command6"), ClickResult::Done);
        t.ok_memos();
    };
    week();
    const std::vector<DiaryEntry> saved = t.g.diary;
    click(t.g, "main", "command5");
    click(t.g, "savefrm", "save");
    const Long saved_cash = t.r.cash;
    const Integer saved_popularity = t.r.popularity;
    week();
    week();

    ASSERT_EQ(t.g.history.size(), 3u);
    for (int k = 0; k < 3; ++k) {
        EXPECT_EQ(t.g.history[k].date, kStartDate + 7 * (k + 1));
        EXPECT_EQ(t.g.history[k].segment, 0);
    }
    EXPECT_EQ(t.g.history[2].cash, t.r.cash);
    EXPECT_EQ(t.g.history[2].popularity, t.r.popularity);
    EXPECT_EQ(t.g.history[0].cash, saved_cash);
    ASSERT_EQ(t.g.segments.size(), 1u);
    EXPECT_EQ(t.g.segments[0].date, kStartDate);
    EXPECT_EQ(t.g.segments[0].cash, 3000);

    // Loading goes back to the first week, with the diary and weeks saved with it.
    click(t.g, "main", "command5");
    click(t.g, "savefrm", "load");
    ASSERT_EQ(t.g.diary.size(), saved.size() + 1);
    for (std::size_t i = 0; i < saved.size(); ++i) EXPECT_EQ(t.g.diary[i].text, saved[i].text);
    expect_entry(t.g.diary.back(), kStartDate + 7, "Tourvane", "Game Loaded");
    EXPECT_EQ(t.g.history.size(), 1u);
    ASSERT_EQ(t.g.segments.size(), 2u);
    EXPECT_EQ(t.g.segments[1].date, kStartDate + 7);
    EXPECT_EQ(t.g.segments[1].cash, saved_cash);
    EXPECT_EQ(t.g.segments[1].popularity, saved_popularity);
    EXPECT_EQ(t.g.segments[1].segment, 1);

    week();
    ASSERT_EQ(t.g.history.size(), 2u);
    EXPECT_EQ(t.g.history[1].date, kStartDate + 14);
    EXPECT_EQ(t.g.history[1].segment, 1);

    // An unpaid Medium promotion passes no time: a memo, and no week to sample.
    t.r.promotion = 3;
    t.r.cash = 100;
    week();
    EXPECT_EQ(t.g.history.size(), 2u);
    EXPECT_EQ(t.g.diary.back().text, "We can't afford any promotion this week.");
    EXPECT_EQ(t.g.diary.back().date, kStartDate + 14);
}

}  // namespace
}  // namespace tourvane::testing
