// Fuzzes the save-file reader: arbitrary bytes in a save slot are loaded through LOAD GAME,
// a week is played on whatever was accepted, and the game is saved and loaded again. A
// refused file must leave the running game as it was, and the round trip must agree. (Which
// field lands where is pinned by the save tests.)

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
    if (g.forms.savefrm.loaded) {  // refused: a load that works closes the screen
        FUZZ_CHECK(g.rec == started.rec);
        return 0;
    }

    // A week on the loaded game, and a look at its first member. (The chart's ranking, which
    // reads only numbers, is fuzzed with the rival bands.)
    acknowledge_memos();
    click(g, "main", "command6");
    acknowledge_memos();
    click(g, "main", "members", 0);
    acknowledge_memos();

    // Saved and loaded again, the game comes back the same, unless the week has taken the
    // date past the last day a save can hold.
    const std::vector<std::uint8_t> saved = save_bytes(g.rec);
    FUZZ_CHECK(saved.size() == kSaveBytes);
    static Module1 again;  // kept from input to input, its strings' room used again
    again = g.rec;
    const bool loaded = load_save(saved, again);
    if (!(g.rec.gamedate >= kFirstDay && g.rec.gamedate <= kLastDay)) {
        FUZZ_CHECK(!loaded);
        return 0;
    }
    FUZZ_CHECK(loaded && again == g.rec);
    return 0;
}
