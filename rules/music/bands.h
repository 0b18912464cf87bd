#pragma once
// The rival bands: `bands.dat` fills chart rows 20 to 70 and the rival pool at start-up.

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "core/game.h"

namespace tourvane {

/// Entries in bands.dat, one for each chart row from 20 to 70.
inline constexpr int kBandEntries = kChartRows - kFirstRivalRow + 1;
/// Records of one entry: band, fame, title, quality, demand.
inline constexpr int kRecordsPerBand = 5;
inline constexpr std::size_t kBandsBytes = 32640;

/// One rival record as bands.dat holds it.
struct RivalEntry {
    std::string band;
    Integer fame = 0;
    std::string title;
    Integer quality = 0;
    Integer demand = 0;
};
using RivalTable = std::array<RivalEntry, kBandEntries>;

/// The 51 entries in a bands file's bytes; nothing when the file is short or damaged.
std::optional<RivalTable> parse_bands(std::span<const std::uint8_t> bytes);

/// The game's own copy of bands.dat, built into the program.
std::span<const std::uint8_t> builtin_bands();

/// Where bands.dat is looked for, in order: the working directory, beside the program, and
/// the installed data folder, first as it lies from the program and then by its full path.
/// Worked out once: where the program lies does not change while it runs.
const std::vector<std::filesystem::path>& bands_search_path();

/// Sets up the rival rows and the pool from the first whole file among `candidates`, read
/// through the game's files, or from the built-in copy when there is none. Gives the file
/// used, or nothing for the built-in.
std::optional<std::filesystem::path> loadbands_from(
    Game& g, const std::vector<std::filesystem::path>& candidates);

/// Part of the new game's set-up: fills chart rows 20 to 70 with the rival records, each
/// with its full life, and fills the rival pool with their bands. Never creates a file.
void loadbands(Game& g);

}  // namespace tourvane
