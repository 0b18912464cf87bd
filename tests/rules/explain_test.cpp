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
    struct Row {
        const char* form;
        const char* control;
        int index;
        std::function<void(TestGame&)> prepare;
        std::string reason;
    };
    auto to_gig = [](TestGame& t) {
        t.full_band();
        t.songs({10, 20, 30});
        t.r.venueopen = {0, -1, 0, -1, -1, -1};
        click(t.g, "main", "command4");
    };
    const std::string no_applicants =
        "No applicants are left this week. More come after Next Week.";
    const std::vector<Row> rows{
        {"main", "command6", -1, [](TestGame&) {}, ""},
        {"main", "secret", -1, [](TestGame&) {},
         "The chart comes out once a week has been played with Next Week."},
        {"main", "interview", -1, [](TestGame&) {},
         "No invitation this week: the band must be better known to be invited."},
        {"main", "interview", -1, [](TestGame& t) { t.r.popularity = 201; },
         "No invitation this week."},
        {"main", "interview", -1, [](TestGame& t) { t.r.interviewkind = 2; },
         "The band has given this week's interview."},
        {"main", "Command2", -1, [](TestGame&) {}, "Pick a member in the band list first."},
        {"main", "hire", -1, [](TestGame& t) { t.full_band(), update(t.g); },
         "The band is full: there is no place for an applicant."},
        {"main", "dismiss", -1,
         [](TestGame& t) { t.g.main.applicantsseen = 3, click(t.g, "main", "dismiss"); },
         no_applicants},
        {"main", "hire", -1,
         [](TestGame& t) { t.g.main.applicantsseen = 3, click(t.g, "main", "dismiss"); },
         no_applicants},
        {"gig", "location", 1, to_gig, "The Queens Head is closed this week."},
        {"gig", "location", 0, to_gig, ""},
        {"gig", "command1", -1, to_gig, "Choose a venue first."},
        {"gig", "Combo1", -1, to_gig, "Choose a venue and APPLY first."},
        {"gig", "command4", -1, [&](TestGame& t) { to_gig(t), click(t.g, "gig", "location", 0); },
         "APPLY to the venue first: the tracks open once it takes the band."},
        {"gig", "command3", -1, [&](TestGame& t) { to_gig(t), click(t.g, "gig", "location", 0); },
         "APPLY to the venue first: the tracks open once it takes the band."},
    };
    for (const Row& row : rows) {
        TestGame t;
        t.new_game();
        row.prepare(t);
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
    const std::vector<DiaryEntry> saved_diary(first.g.diary.begin(), first.g.diary.end() - 1);
    const std::vector<WeekSample> saved_weeks = first.g.history;
    ASSERT_EQ(saved_weeks.size(), 2u);

    auto load = [](int slot) {
        auto t = std::make_unique<TestGame>();
        click(t->g, "Form1", "load");
        click(t->g, "savefrm", "saveslot", slot);
        click(t->g, "savefrm", "load");
        EXPECT_FALSE(t->g.forms.savefrm.loaded) << "the load was refused";
        EXPECT_EQ(t->g.diary.back().text, "Game Loaded");
        return t;
    };
    auto next = load(1);
    ASSERT_EQ(next->g.diary.size(), saved_diary.size() + 1);
    for (std::size_t i = 0; i < saved_diary.size(); ++i)
        EXPECT_EQ(str(next->g.diary[i].date, next->g.diary[i].from, next->g.diary[i].text),
                  str(saved_diary[i].date, saved_diary[i].from, saved_diary[i].text));
    ASSERT_EQ(next->g.history.size(), 2u);
    EXPECT_EQ(str(next->g.history[1].date, next->g.history[1].cash, next->g.segments.size()),
              str(saved_weeks[1].date, saved_weeks[1].cash, 2));

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
