// Fuzzes the save-file reader: arbitrary bytes in a save slot are loaded through LOAD GAME,
// a week is played on whatever was accepted, and the game is saved and loaded again. A
// refused file must leave the running game as it was, and the round trip must agree.

#include <cstdint>
#include <span>

#include "rules/files/record_file.h"
#include "tests/fuzz/fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tourvane;
    const std::span<const std::uint8_t> bytes(data, size);
    const Game& started = fuzz::load_screen();
    Game& g = fuzz::copy_of(started);
    const auto acknowledge_memos = [&g] {
        while (!g.memos.empty() && !g.ended) click(g, "messageForm", "command1");
    };

    fuzz::started_files().files[slot_file(0)].assign(bytes.begin(), bytes.end());
    FUZZ_CHECK(click(g, "savefrm", "load") == ClickResult::Done);
    const bool accepted = !g.forms.savefrm.loaded;  // a load that works closes the screen
    auto parsed = parse_save(bytes.first(std::min(size, kSaveBytes)), started.rec);
    FUZZ_CHECK(accepted == parsed.has_value());
    if (!accepted) {
        FUZZ_CHECK(g.rec == started.rec);
        return 0;
    }
    // The load refreshes the office and the band list, which work out `vacancy` and
    // `listslot` afresh; every other saved field is as the file has it.
    Module1& expected = *parsed;
    expected.vacancy = g.rec.vacancy;
    expected.listslot = g.rec.listslot;
    FUZZ_CHECK(g.rec == expected);

    // A week on the loaded game, and a look at the chart.
    acknowledge_memos();
    click(g, "main", "command6");
    acknowledge_memos();
    if (click(g, "main", "secret") == ClickResult::Done) click(g, "Chart", "command1");
    click(g, "main", "members", 0);
    acknowledge_memos();

    // Saved and loaded again, the game comes back the same, unless the week has taken the
    // date past the last day a save can hold.
    const std::vector<std::uint8_t> saved = save_bytes(g.rec);
    FUZZ_CHECK(saved.size() == kSaveBytes);
    const auto again = parse_save(saved, g.rec);
    if (!(g.rec.gamedate >= kFirstDay && g.rec.gamedate <= kLastDay)) {
        FUZZ_CHECK(!again.has_value());
        return 0;
    }
    FUZZ_CHECK(again.has_value() && *again == g.rec);
    return 0;
}
