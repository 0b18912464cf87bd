// The career's weeks and the stretches a load starts, kept beside each save: which stretch each
// week belongs to, where each stretch begins, and the history files a load leaves out.

#include "core/diary.h"
#include "rules/files/history_file.h"
#include "rules/files/record_file.h"
#include "temp_dir.h"
#include "test_game.h"

namespace tourvane::testing {
namespace {

/// Each sample as "days-since-start cash popularity stretch;".
std::string samples(const std::vector<WeekSample>& weeks) {
    std::string out;
    for (const WeekSample& w : weeks)
        out += str(w.date - kStartDate, w.cash, w.popularity, w.segment) + ";";
    return out;
}

TEST(Diary, ALoadStartsANewStretchAndADamagedOrForeignHistoryIsLeftOut) {
    TempDir dir;
    TestGame t;
    t.new_game();
    auto week_and_save = [&](int slot) {
        ASSERT_EQ(click(t.g, "main", "command6"), ClickResult::Done);
        t.ok_memos();
        click(t.g, "main", "command5");
        click(t.g, "savefrm", "saveslot", slot);
        click(t.g, "savefrm", "save");
    };
    week_and_save(0);
    t.r.cash = 77;
    week_and_save(1);
    EXPECT_EQ(samples(t.g.history), "7 3000 -1 0;14 77 -1 0;");
    EXPECT_EQ(samples(t.g.segments), "0 3000 0 0;");
    click(t.g, "main", "command5");
    click(t.g, "savefrm", "saveslot", 0);
    click(t.g, "savefrm", "load");
    EXPECT_EQ(samples(t.g.segments), "0 3000 0 0;7 3000 -1 1;");
    week_and_save(2);
    EXPECT_EQ(samples(t.g.history), "7 3000 -1 0;14 3000 -1 1;");

    // Damaged, cut short, foreign, another save's, or missing: the load works, with no history.
    const auto good = read_file(history_file(0), 1 << 20).value();
    std::vector<std::vector<std::uint8_t>> bad{{good.begin(), good.end() - 1},
                                               {'M', 'Z', 0, 0},
                                               read_file(history_file(1), 1 << 20).value()};
    bad.push_back(good), bad.back()[19] ^= 0x40;              // a diary longer than the file
    bad.push_back(good), bad.back()[good.size() - 4] = 0x7f;  // a stretch out of order
    bad.push_back({});                                        // none
    for (std::size_t k = 0; k < bad.size(); ++k) {
        std::string why;
        ASSERT_TRUE(bad[k].empty() ? std::filesystem::remove(history_file(0))
                                   : replace_file(history_file(0), bad[k], why));
        TestGame u;
        click(u.g, "Form1", "load");
        click(u.g, "savefrm", "load");
        EXPECT_EQ(str(u.g.forms.savefrm.loaded, u.g.diary.size(), u.g.history.size(),
                      u.g.segments.size(), u.g.diary.back().text),
                  "0 1 0 1 Game Loaded")
            << k;
    }
}

}  // namespace
}  // namespace tourvane::testing
