// Fuzzes the history file beside a save: arbitrary bytes as "tvsave0.tvh" next to a good save
// are loaded through LOAD GAME. The load always works; the diary, weeks and tally are the
// file's when it is a whole history of that save, else empty; and what the reader takes, the
// writer gives back byte for byte (a history of the first kind as one of the present kind
// with an empty tally).

#include <cstdint>
#include <span>

#include "rules/files/history_file.h"
#include "tests/fuzz/fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tourvane;
    const std::span<const std::uint8_t> bytes(data, size);
    const Game& started = fuzz::load_screen();
    static const std::uint64_t slot_mark =
        save_mark(*fuzz::started_files().read(slot_file(0), kSaveBytes));

    // The reader with the input's own mark, so that the fuzzer gets past it.
    std::uint64_t mark = 0;
    for (std::size_t i = 0; i < 8 && 8 + i < size; ++i)
        mark |= std::uint64_t{data[8 + i]} << (8 * i);
    if (const auto read = parse_history(bytes, mark)) {
        static Game again = started;  // the writer reads only the diary, weeks and tally
        again.diary = read->diary, again.history = read->history, again.segments = read->segments;
        again.tally = read->tally;
        const std::vector<std::uint8_t> written = history_bytes(again, mark);
        if (bytes[7] == 2) {
            FUZZ_CHECK(written == std::vector<std::uint8_t>(bytes.begin(), bytes.end()));
        } else {
            const auto back = parse_history(written, mark);
            FUZZ_CHECK(back && back->diary == read->diary && back->history == read->history &&
                       back->segments == read->segments && back->tally == CareerTally{});
        }
    }

    Game& g = fuzz::copy_of(started);
    fuzz::started_files().files[history_file(0)].assign(bytes.begin(), bytes.end());
    FUZZ_CHECK(click(g, "savefrm", "load") == ClickResult::Done);
    FUZZ_CHECK(!g.forms.savefrm.loaded && g.forms.main.visible);  // never refused
    const auto kept = parse_history(bytes, slot_mark);
    FUZZ_CHECK(g.diary.size() == (kept ? kept->diary.size() : 0) + 1);
    FUZZ_CHECK(g.history.size() == (kept ? kept->history.size() : 0));
    FUZZ_CHECK(g.tally == (kept ? kept->tally : CareerTally{}));
    FUZZ_CHECK(g.diary.back().text == "Game Loaded");
    click(g, "main", "command6");  // a week on top of whatever came back
    return 0;
}
