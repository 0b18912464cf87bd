// Fuzzes the rival bands reader: arbitrary bytes as bands.dat fill the chart, or the
// game's own copy does when the file is refused; then the chart moves for some weeks and is
// ranked.

#include <cstdint>
#include <span>

#include "rules/music/bands.h"
#include "rules/music/chart.h"
#include "tests/fuzz/fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tourvane;
    const std::span<const std::uint8_t> bytes(data, size);
    fuzz::started_files().files["bands.dat"].assign(bytes.begin(), bytes.end());

    Game& g = fuzz::copy_of(fuzz::started_game());
    const auto table = parse_bands(bytes);
    const auto used = loadbands_from(g, {"bands.dat"});
    FUZZ_CHECK(used.has_value() == table.has_value());
    static const RivalTable builtin = *parse_bands(builtin_bands());
    const RivalTable& expected = table ? *table : builtin;
    for (int row = kFirstRivalRow; row <= kChartRows; ++row) {
        const RivalEntry& e = expected[row - kFirstRivalRow];
        FUZZ_CHECK(g.rec.chartband[row] == e.band && g.rec.charttitle[row] == e.title);
        FUZZ_CHECK(g.rec.chartfame[row] == e.fame && g.rec.chartquality[row] == e.quality);
        FUZZ_CHECK(g.rec.chartdemand[row] == e.demand);
        FUZZ_CHECK(g.rec.rivalname[row - kFirstRivalRow] == e.band);
    }

    for (int week = 0; week < 2; ++week) chart_step(g);
    rank_chart(g);
    for (int row = 1; row <= kChartRows; ++row)
        FUZZ_CHECK(g.rec.chartplace[row] >= 1 && g.rec.chartplace[row] <= kChartRows);
    return 0;
}
