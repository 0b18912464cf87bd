// What the game tells beside its rules: why a control is grey, what each save slot holds, and
// the career's diary and weeks that a save keeps and a load brings back.

#include <fstream>
#include <functional>

#include "flow/reasons.h"
#include "rules/files/history_file.h"
#include "rules/files/save_file.h"
#include "temp_dir.h"
#include "test_game.h"

namespace tourvane {
namespace {

using testing::str;
using testing::TempDir;
using testing::TestGame;

TEST(Reasons, EachDisabledControlSaysWhyFromTheGame) {
    // One game, prepared step by step; each row's step runs before its control is asked.
    TestGame t;
    t.new_game();
    const std::string none_left = "No applicants are left this week. More come after Next Week.";
    const std::string apply = "APPLY to the venue first: the tracks open once it takes the band.";
    const struct {
        std::function<void()> step;
        const char *form, *control;
        int index;
        std::string reason;
    } rows[] = {
        {{}, "main", "command6", -1, ""},
        {{},
         "main",
         "secret",
         -1,
         "The chart comes out once a week has been played with Next Week."},
        {{},
         "main",
         "interview",
         -1,
         "No invitation this week: the band must be better known to be invited."},
        {{}, "main", "Command2", -1, "Pick a member in the band list first."},
        {[&] { t.r.popularity = 201; }, "main", "interview", -1, "No invitation this week."},
        {[&] { t.r.interviewkind = 2; }, "main", "interview", -1,
         "The band has given this week's interview."},
        {[&] { t.g.main.applicantsseen = 3, click(t.g, "main", "dismiss"); }, "main", "hire", -1,
         none_left},
        {{}, "main", "dismiss", -1, none_left},
        {[&] { t.full_band(), update(t.g); }, "main", "hire", -1,
         "The band is full: there is no place for an applicant."},
        {[&] {
             t.ok_memos(), t.songs({10, 20, 30}), t.r.venueopen = {0, -1, 0, -1, -1, -1};
             click(t.g, "main", "command4");
         },
         "gig", "location", 1, "The Queens Head is closed this week."},
        {{}, "gig", "location", 0, ""},
        {{}, "gig", "command1", -1, "Choose a venue first."},
        {{}, "gig", "Combo1", -1, "Choose a venue and APPLY first."},
        {[&] { click(t.g, "gig", "location", 0); }, "gig", "command4", -1, apply},
        {{}, "gig", "command3", -1, apply},
    };
    for (const auto& row : rows) {
        if (row.step) row.step();
        const Control* c = find_control(t.g, row.form, row.control, row.index);
        ASSERT_TRUE(c);
        EXPECT_EQ(disabled_reason(t.g, *find_form(t.g, row.form), *c), row.reason)
            << row.form << "." << row.control << " " << row.index;
    }
}

TEST(SlotDetails, AValidAnEmptyAndADamagedFileAsTheScreenOpens) {
    TempDir dir;
    TestGame t;
    t.new_game("The Wasps", "Sam");
    t.r.cash = 1234;
    std::string why;
    ASSERT_TRUE(write_save(t.r, slot_file(1), why));
    std::ofstream(slot_file(2)).flush();            // empty, as every slot's first start leaves it
    std::ofstream(slot_file(3)) << "\xC8\x00oops";  // a name longer than any record holds
    t.r.cash = 99;
    click(t.g, "main", "command5");
    const SaveForm& f = t.g.forms.savefrm;
    const std::string empty = "Empty slot: no game saved here yet.";
    EXPECT_EQ(f.saveslot[0].tooltip, empty);
    EXPECT_EQ(f.saveslot[1].tooltip, "The Wasps, 01/09/2001, £ 1234");
    EXPECT_EQ(f.saveslot[2].tooltip, empty);
    EXPECT_EQ(f.saveslot[3].tooltip, "This file is damaged and cannot be loaded.");
    EXPECT_EQ(f.saveslot[1].caption, "GAME SLOT 1");
    EXPECT_EQ(t.r.cash, 99);  // the running game is untouched
}

TEST(CareerHistory, ComesBackWithItsSaveAndNotWithAnotherOrADamagedFile) {
    TempDir dir;
    TestGame first;
    first.new_game("The Wasps", "Sam");
    for (int slot : {0, 1}) {
        ASSERT_EQ(click(first.g, "main", "command6"), ClickResult::Done);
        first.ok_memos();
        click(first.g, "main", "command5");
        click(first.g, "savefrm", "saveslot", slot);
        click(first.g, "savefrm", "save");
    }
    // The diary less the last entry (the box of the save, or of the load), then the weeks.
    auto story = [](const Game& g) {
        std::string s;
        for (std::size_t i = 0; i + 1 < g.diary.size(); ++i)
            s += str(g.diary[i].date, g.diary[i].from, g.diary[i].text) + "\n";
        for (const WeekSample& w : g.history) s += str(w.date, w.cash, w.popularity, w.segment);
        return s + "\n" + std::to_string(g.segments.size());
    };
    const std::string saved = story(first.g);
    ASSERT_EQ(first.g.history.size(), 2u);
    auto load = [](int slot) {
        auto t = std::make_unique<TestGame>();
        click(t->g, "Form1", "load");
        click(t->g, "savefrm", "saveslot", slot);
        click(t->g, "savefrm", "load");
        EXPECT_FALSE(t->g.forms.savefrm.loaded) << "the load was refused";
        EXPECT_EQ(t->g.diary.back().text, "Game Loaded");
        return t;
    };
    EXPECT_EQ(story(load(1)->g), saved.substr(0, saved.size() - 1) + "2");  // and a new stretch

    // Damaged, cut short, foreign, another save's, or missing: the load works, with no history.
    const auto good = read_file(history_file(0), 1 << 20).value();
    std::vector<std::vector<std::uint8_t>> bad{{good.begin(), good.end() - 1},
                                               {'M', 'Z', 0, 0},
                                               read_file(history_file(1), 1 << 20).value()};
    bad.push_back(good), bad.back()[19] ^= 0x40;              // a diary longer than the file
    bad.push_back(good), bad.back()[good.size() - 4] = 0x7f;  // a stretch out of order
    for (const auto& bytes : bad) {
        std::string why;
        ASSERT_TRUE(replace_file(history_file(0), bytes, why));
        auto t = load(0);
        EXPECT_EQ(str(t->g.diary.size(), t->g.history.size(), t->g.segments.size()), "1 0 1");
    }
    std::filesystem::remove(history_file(0));
    EXPECT_EQ(load(0)->g.history.size(), 0u);
}

}  // namespace
}  // namespace tourvane
