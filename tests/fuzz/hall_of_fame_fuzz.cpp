// Fuzzes the hall of fame: arbitrary bytes as "tvfame.tvf". What the reader takes, the writer
// gives back byte for byte; the hall reads best first; and a finished career added to it is
// kept once, among the best, in a hall that reads back whole, or the file is left as it was.

#include <algorithm>
#include <cstdint>
#include <limits>
#include <span>

#include "rules/files/hall_of_fame.h"
#include "tests/fuzz/fuzz_support.h"

namespace {

/// A career that has just ended: a new band with no money left, whose first week can't pay.
const tourvane::Game& finished_game() {
    using namespace tourvane;
    static ScriptedPort port;
    static MemoryFiles files;
    static const Game over = [] {
        Game g(port);
        g.files = &files;
        load_main(g, 1);
        port.queue_input("The Wasps");
        port.queue_input("Sam");
        click(g, "Form1", "New");
        g.rec.cash = -1;
        click(g, "main", "command6");
        FUZZ_CHECK(g.game_over);
        return g;
    }();
    return over;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tourvane;
    const std::vector<std::uint8_t> bytes(data, data + size);
    const auto parsed = parse_hall(bytes);
    if (parsed) FUZZ_CHECK(hall_bytes(*parsed) == bytes);

    static MemoryFiles files;
    files.files[hall_file()] = bytes;
    const std::vector<FameEntry> hall = read_hall(files);
    FUZZ_CHECK(hall.size() == (parsed ? parsed->size() : 0));
    FUZZ_CHECK(std::is_sorted(hall.begin(), hall.end(), [](const auto& a, const auto& b) {
        return better_career(a.summary, b.summary);
    }));

    Game& g = fuzz::copy_of(finished_game());
    g.files = &files;
    const FameEntry career{career_summary(g), g.diary, g.history, g.segments};
    const bool kept = add_to_hall(g);
    const auto now = files.read(hall_file(), std::numeric_limits<std::size_t>::max()).value();
    const auto after = parse_hall(now);
    FUZZ_CHECK(after.has_value() || (!kept && now == bytes));
    if (!after) return 0;
    const auto times = std::count(after->begin(), after->end(), career);
    FUZZ_CHECK(kept ? times >= 1 : times == 0 && now == bytes);
    FUZZ_CHECK(after->size() <= std::max(kHallPlaces, hall.size()));
    // Again: nothing changes.
    FUZZ_CHECK(add_to_hall(g) == kept);
    FUZZ_CHECK(files.read(hall_file(), std::numeric_limits<std::size_t>::max()).value() == now);
    return 0;
}
