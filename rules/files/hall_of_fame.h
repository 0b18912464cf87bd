#pragma once
// The hall of fame: the careers that have ended, best first, each with its summary, diary and
// weeks, kept in "tvfame.tvf" beside the saves. A missing or damaged file is an empty hall.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <vector>

#include "core/career.h"
#include "core/game.h"

namespace tourvane {

/// One finished career as the hall keeps it.
struct FameEntry {
    CareerSummary summary;
    std::vector<DiaryEntry> diary;
    std::vector<WeekSample> history;
    std::vector<WeekSample> segments;
    bool operator==(const FameEntry&) const = default;
};

/// How many careers the hall keeps: the best ones.
inline constexpr std::size_t kHallPlaces = 50;

/// The hall's file, beside the saves: "tvfame.tvf".
std::filesystem::path hall_file();

/// The bytes of a hall file holding `entries` in their order.
std::vector<std::uint8_t> hall_bytes(const std::vector<FameEntry>& entries);

/// The careers the bytes hold, in the file's order, if they are a whole hall file; nothing
/// for damaged or foreign bytes.
std::optional<std::vector<FameEntry>> parse_hall(std::span<const std::uint8_t> bytes);

/// The hall among `files`, best careers first (equals in the order they came in); empty when
/// the file is missing or damaged.
std::vector<FameEntry> read_hall(FilePort& files);

/// The memo that ends the game is up: puts the finished career of `g` in the hall, once however
/// often it is called, among the best kHallPlaces. A damaged hall gives way to a new one. False
/// when the game has not ended, the career is not among the best, or the file can't be
/// written (the old hall is then kept).
bool add_to_hall(const Game& g);

}  // namespace tourvane
