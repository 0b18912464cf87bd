#include "rules/music/bands.h"

#include <system_error>

#include "rules/files/record_file.h"

namespace tourvane {

// Made from data/bands.txt by the build, the same bytes as the bands.dat beside the program.
extern const unsigned char kBuiltinBandsData[kBandsBytes];

namespace {

/// Rows and pool from the table, as a new game starts them.
void apply_bands(Game& g, const RivalTable& table) {
    Module1& r = g.rec;
    for (int row = kFirstRivalRow; row <= kChartRows; ++row) {
        const RivalEntry& e = table[row - kFirstRivalRow];
        r.chartband[row] = e.band;
        r.chartfame[row] = e.fame;
        r.charttitle[row] = e.title;
        r.chartquality[row] = e.quality;
        r.chartdemand[row] = e.demand;
    }
    for (int i = 0; i < static_cast<int>(r.rivalname.size()); ++i) {
        const int row = i + kFirstRivalRow;
        r.rivalname[i] = row <= kChartRows ? r.chartband[row] : std::string();
        r.rivalfame[i] = row <= kChartRows ? r.chartfame[row] : Integer{0};
    }
    for (int row = kFirstRivalRow; row <= kChartRows; ++row)
        store(r.chartlife[row], r.chartquality[row] * 4 + r.chartfame[row]);
}

}  // namespace

std::optional<RivalTable> parse_bands(std::span<const std::uint8_t> bytes) {
    if (bytes.size() < kBandsBytes) return std::nullopt;
    RecordReader in(bytes);
    RivalTable table;
    for (RivalEntry& e : table) {
        e.band = in.get_string();
        e.fame = in.get_integer();
        e.title = in.get_string();
        e.quality = in.get_integer();
        e.demand = in.get_integer();
    }
    if (in.damaged()) return std::nullopt;
    return table;
}

std::span<const std::uint8_t> builtin_bands() {
    return {reinterpret_cast<const std::uint8_t*>(kBuiltinBandsData), kBandsBytes};
}

const std::vector<std::filesystem::path>& bands_search_path() {
    static const std::vector<std::filesystem::path> places = [] {
        std::vector<std::filesystem::path> paths{"bands.dat"};
        std::error_code ec;
        const std::filesystem::path exe = std::filesystem::read_symlink("/proc/self/exe", ec);
        if (!ec) paths.push_back(exe.parent_path() / "bands.dat");
#ifdef TOURVANE_DATADIR_FROM_BIN
        if (!ec)
            paths.push_back(
                (exe.parent_path() / TOURVANE_DATADIR_FROM_BIN / "bands.dat").lexically_normal());
#endif
#ifdef TOURVANE_DATADIR
        paths.push_back(std::filesystem::path(TOURVANE_DATADIR) / "bands.dat");
#endif
        return paths;
    }();
    return places;
}

std::optional<std::filesystem::path> loadbands_from(
    Game& g, const std::vector<std::filesystem::path>& candidates) {
    for (const std::filesystem::path& place : candidates) {
        const auto bytes = g.files->read(place, kBandsBytes);
        if (!bytes) continue;
        if (const auto table = parse_bands(*bytes)) {
            apply_bands(g, *table);
            return place;
        }
    }
    static const std::optional<RivalTable> builtin = parse_bands(builtin_bands());  // never changes
    if (builtin) apply_bands(g, *builtin);
    return std::nullopt;
}

void loadbands(Game& g) {
    loadbands_from(g, bands_search_path());
}

}  // namespace tourvane
