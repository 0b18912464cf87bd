#pragma once
// A career's history kept beside its save: the diary, the week samples and the tally, written
// with each save into "tvsave0.tvh" to "tvsave3.tvh" and brought back by a load. The file is bound
// to the save it was written with, so a history never joins another game.

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "core/game.h"

namespace tourvane {

/// The diary, the week samples and the tally of one career.
struct CareerHistory {
    std::vector<DiaryEntry> diary;
    std::vector<WeekSample> history;
    std::vector<WeekSample> segments;
    CareerTally tally;  ///< empty in a history written before the tally was kept
};

/// The history file beside a slot's save (0 to 3): "tvsave0.tvh" to "tvsave3.tvh".
std::filesystem::path history_file(int slot);

/// A mark of a save's bytes that its history file carries.
std::uint64_t save_mark(std::span<const std::uint8_t> save);

/// The bytes of a history file for the game of `g`, bound to the save with mark `mark`.
std::vector<std::uint8_t> history_bytes(const Game& g, std::uint64_t mark);

/// The most bytes a history file is read to: far beyond any career's history, the cap keeps a
/// stray huge file out of memory.
inline constexpr std::size_t kMaxHistoryBytes = std::size_t{64} << 20;

/// True when the bytes begin as a history file does (whole or not).
bool looks_like_history(std::span<const std::uint8_t> bytes);

/// The history the bytes hold, if they are a whole history file bound to the save with mark
/// `mark`; nothing for damaged, foreign or another save's bytes.
std::optional<CareerHistory> parse_history(std::span<const std::uint8_t> bytes, std::uint64_t mark);

/// Writes the history of `g` to `path`, beside the save just written (`save` its bytes). When
/// it can't be written, no older history is left behind to join the new save.
void write_history(const Game& g, const std::filesystem::path& path,
                   std::span<const std::uint8_t> save);

/// The same, for the save just written in a slot.
void write_history(const Game& g, int slot, std::span<const std::uint8_t> save);

/// The history kept among `files` at `path` for the save of `saved`; empty when there is none
/// that belongs to it.
CareerHistory read_history(FilePort& files, const std::filesystem::path& path,
                           const Module1& saved);

/// The same, for the save of `saved` in `slot`.
CareerHistory read_history(FilePort& files, int slot, const Module1& saved);

}  // namespace tourvane
