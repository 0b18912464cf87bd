#pragma once
// The save slots as files to carry between the page and the desktop game: what each slot
// offers to download (its save, and its history where it belongs to that save), and an upload
// of one or both files into a slot, checked whole before anything is replaced.

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/game.h"
#include "rules/files/history_file.h"
#include "view/screens.h"

namespace tourvane {

/// The saves panel's words: its title, what it says of the browser's storage and its Close.
inline constexpr WindowWords kSavesWords{
    "Saves",
    "The four save slots are kept in this browser's storage. Clearing the browser's data for "
    "this site deletes them, unless they have been downloaded.",
    "Close the saves"};
inline constexpr std::string_view kSavesHint =
    "A download gives the very files the desktop game keeps beside it (tvsave0.tvs to "
    "tvsave3.tvh); an upload takes its files, or this page's, into a slot.";
inline constexpr std::string_view kDownloadCaption = "Download";
inline constexpr std::string_view kUploadCaption = "Upload";
inline constexpr std::string_view kUploadHelp =
    "Choose a save file (.tvs) and, if you have it, its history (.tvh)";

/// The most bytes of a picked file the page reads; a longer file is refused unread.
inline constexpr std::size_t kUploadLimit = kMaxHistoryBytes;

/// What a slot offers the player to take away.
struct SlotOffer {
    int slot = 0;
    std::string heading;   ///< "Slot 1"
    std::string holds;     ///< the band, date and cash, or that it is empty or damaged
    std::string download;  ///< the Download button's accessible name
    std::string upload;    ///< the Upload button's accessible name
    std::string grey;      ///< why Download is grey; empty when there is something to take
    std::vector<std::filesystem::path> files;  ///< the save, then its history if it has one
};
SlotOffer slot_offer(FilePort& files, int slot);

/// The bytes of file `part` (0 the save, 1 its history) of the slot's offer; nothing when the
/// offer has no such file.
std::optional<std::vector<std::uint8_t>> offered_file(FilePort& files, int slot, int part);

/// A file the player picked to upload.
struct PickedFile {
    std::string name;                     ///< as the player's system named it, for the messages
    std::size_t size = 0;                 ///< its whole size
    std::span<const std::uint8_t> bytes;  ///< read whole, or nothing when it is over the limit
};

struct UploadResult {
    bool taken = false;
    std::string message;
};

/// Puts the picked files (a save, a save and its history, or a history for the save already
/// in the slot) into the slot, once every one is checked: a save must be exactly a save's size
/// and load, a history must belong to that save. Anything else is refused with a message and
/// changes nothing; nor does a save the storage does not take. An open save screen's slots
/// then tell what they hold.
UploadResult upload_to_slot(Game& g, int slot, std::span<const PickedFile> picked);

}  // namespace tourvane
