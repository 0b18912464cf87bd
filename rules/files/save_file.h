#pragma once
// Saved games: the layout of a save file and the four slot files in the working directory.

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/game.h"
#include "rules/files/record_file.h"

namespace tourvane {

inline constexpr int kSaveRecords = 759;
inline constexpr std::size_t kSaveBytes = kSaveRecords * kRecordBytes;

/// The file of a save slot (0 to 3): "tvsave0.tvs" to "tvsave3.tvs", in the working directory.
std::filesystem::path slot_file(int slot);

/// The 759 records of a save of `r`, in the order the file keeps them.
std::vector<std::uint8_t> save_bytes(const Module1& r);

/// Reads a save file's bytes over `rec`: every saved field replaced from the file, the rest
/// untouched. False, with `rec` unchanged, when the bytes are no save: no band name, or a
/// record that can't be trusted.
bool load_save(std::span<const std::uint8_t> bytes, Module1& rec);

/// The game a save file's bytes hold: `running` read over as load_save does. Nothing when the
/// bytes are no save.
std::optional<Module1> parse_save(std::span<const std::uint8_t> bytes, const Module1& running);

/// Writes the save of `r` to `path`, replacing any save there only once the new one is
/// whole. On failure the old file is kept and `reason` says why.
bool write_save(const Module1& r, const std::filesystem::path& path, std::string& reason);

/// Reads the save at `path` in `files` over `rec` (see load_save). False, with `rec`
/// unchanged, when the file is missing, unreadable or no save.
bool read_save(const std::filesystem::path& path, Module1& rec, FilePort& files = disk_files());

/// What slot_details says of a slot with no save, and of one whose file can't be loaded.
inline constexpr std::string_view kEmptySlot = "Empty slot: no game saved here yet.";
inline constexpr std::string_view kDamagedSlot = "This file is damaged and cannot be loaded.";

/// What a slot among `files` holds, for telling the slots apart: the band, the game
/// date and the cash of its save ("The Wasps, 08/09/2001, £ 3000"), read as a load reads it;
/// or that the slot is empty, or that its file can't be loaded. Changes nothing.
std::string slot_details(FilePort& files, int slot);

/// The band, game date and cash of a saved game, as the slots tell them apart.
std::string save_details(const Module1& game);

/// The band name in the first record of a save file; empty for a missing or damaged file.
std::string read_slot_name(FilePort& files, const std::filesystem::path& path);

/// Reads the band name of each of the four slots into `slotname`, as the title screen loads.
void read_slot_names(Game& g);

}  // namespace tourvane
