// Fuzzes the history file beside a save: arbitrary bytes as "tvsave0.tvh" next to a good save
// are loaded through LOAD GAME. The load always works; the diary and weeks are the file's
// when it is a whole history of that save, else empty; and what the reader takes, the writer
// gives back byte for byte.

#include <cstdint>
#include <span>

#include "core/scripted_port.h"
#include "flow/clicks.h"
#include "flow/office.h"
#include "rules/files/history_file.h"
#include "rules/files/save_file.h"
#include "tests/fuzz/fuzz_support.h"

namespace tourvane {
namespace {

/// The title screen of a run started beside a save of a new game, the same for every input.
const Game& started_game() {
    static ScriptedPort port;  // OK to every box
    static const Game started = [] {
        Game g(port);
        load_main(g, 1);
        port.queue_input("The Wasps");
        port.queue_input("Sam");
        click(g, "Form1", "New");
        std::string why;
        FUZZ_CHECK(write_save(g.rec, slot_file(0), why));
        Game fresh(port);
        load_main(fresh, 1);
        return fresh;
    }();
    return started;
}

}  // namespace
}  // namespace tourvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tourvane;
    fuzz::enter_scratch_folder();
    const std::span<const std::uint8_t> bytes(data, size);
    const Game& started = started_game();
    const auto save = read_file(slot_file(0), kSaveBytes);
    FUZZ_CHECK(save.has_value());

    // The reader with the input's own mark, so that the fuzzer gets past it.
    std::uint64_t mark = 0;
    for (std::size_t i = 0; i < 8 && 8 + i < size; ++i)
        mark |= std::uint64_t{data[8 + i]} << (8 * i);
    if (const auto read = parse_history(bytes, mark)) {
        Game again = started;
        again.diary = read->diary, again.history = read->history, again.segments = read->segments;
        FUZZ_CHECK(history_bytes(again, mark) ==
                   std::vector<std::uint8_t>(bytes.begin(), bytes.end()));
    }

    Game g = started;
    fuzz::put_file(history_file(0), bytes);
    FUZZ_CHECK(click(g, "Form1", "load") == ClickResult::Done);
    FUZZ_CHECK(click(g, "savefrm", "load") == ClickResult::Done);
    FUZZ_CHECK(!g.forms.savefrm.loaded && g.forms.main.visible);  // never refused
    const auto kept = parse_history(bytes, save_mark(*save));
    FUZZ_CHECK(g.diary.size() == (kept ? kept->diary.size() : 0) + 1);
    FUZZ_CHECK(g.history.size() == (kept ? kept->history.size() : 0));
    FUZZ_CHECK(g.diary.back().text == "Game Loaded");
    click(g, "main", "command6");  // a week on top of whatever came back
    return 0;
}
