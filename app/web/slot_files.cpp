#include "app/web/slot_files.h"

#include "flow/save_screen.h"
#include "rules/files/save_file.h"

namespace tourvane {

namespace {

std::string slot_name(int slot) {
    return "slot " + std::to_string(slot + 1);
}

/// The game a save file's bytes hold, read as a load reads them; nothing for no save.
std::optional<Module1> saved_game(std::span<const std::uint8_t> bytes) {
    if (bytes.size() != kSaveBytes) return std::nullopt;
    return parse_save(bytes, Module1{});
}

/// The mark a history must carry to be brought back with this save (as a load reads it).
std::uint64_t mark_of(const Module1& saved) {
    return save_mark(save_bytes(saved));
}

/// The history file of the slot, when it belongs to the slot's save.
std::optional<std::vector<std::uint8_t>> belonging_history(FilePort& files, int slot,
                                                           const Module1& saved) {
    auto bytes = files.read(history_file(slot), kMaxHistoryBytes);
    if (!bytes || !parse_history(*bytes, mark_of(saved))) return std::nullopt;
    return bytes;
}

std::string refused(int slot, const std::string& why) {
    return why + " Nothing was changed: " + slot_name(slot) + " is as it was.";
}

/// Why a picked file can't be the save of an upload, or empty when it is one.
std::string save_fault(const PickedFile& f) {
    if (f.size != kSaveBytes)
        return f.name + " is not a Tourvane save: a save has exactly " +
               std::to_string(kSaveBytes) + " bytes, and this file has " + std::to_string(f.size) +
               ".";
    if (!saved_game(f.bytes)) return f.name + " is damaged: the game cannot load it.";
    return {};
}

}  // namespace

SlotOffer slot_offer(FilePort& files, int slot) {
    SlotOffer offer;
    offer.slot = slot;
    offer.heading = "Slot " + std::to_string(slot + 1);
    offer.holds = slot_details(files, slot);
    offer.download = "Download " + slot_name(slot);
    offer.upload = "Upload into " + slot_name(slot);
    const auto save = files.read(slot_file(slot), kSaveBytes + 1);
    if (!save || save->empty()) {
        offer.grey = offer.heading + " holds no save to download.";
        return offer;
    }
    offer.files.push_back(slot_file(slot));
    if (const auto saved = saved_game(*save); saved && belonging_history(files, slot, *saved))
        offer.files.push_back(history_file(slot));
    return offer;
}

std::optional<std::vector<std::uint8_t>> offered_file(FilePort& files, int slot, int part) {
    const SlotOffer offer = slot_offer(files, slot);
    if (part < 0 || part >= static_cast<int>(offer.files.size())) return std::nullopt;
    return files.read(offer.files[part], part == 0 ? kSaveBytes + 1 : kMaxHistoryBytes);
}

UploadResult upload_to_slot(Game& g, int slot, std::span<const PickedFile> picked) {
    FilePort& files = *g.files;
    if (slot < 0 || slot >= kSaveSlots) return {false, "There is no such slot."};
    if (picked.empty() || picked.size() > 2)
        return {false, refused(slot,
                               "Choose a save file (.tvs) and, if you have it, its "
                               "history (.tvh): one file or two.")};

    // Each file is a history if it begins as one does, else it must be a save.
    const PickedFile* save = nullptr;
    const PickedFile* history = nullptr;
    for (const PickedFile& f : picked) {
        if (f.size > kUploadLimit || f.bytes.size() != f.size)
            return {false, refused(slot, f.name + " is too large to be a Tourvane save or "
                                                  "history.")};
        const bool is_history = looks_like_history(f.bytes);
        const PickedFile*& place = is_history ? history : save;
        if (place)
            return {false, refused(slot, std::string("Both files are ") +
                                             (is_history ? "histories" : "saves") +
                                             ": choose one save and, if you have it, its "
                                             "history.")};
        place = &f;
    }
    if (save) {
        const std::string fault = save_fault(*save);
        if (!fault.empty()) return {false, refused(slot, fault)};
    }

    // The save the history must belong to: the one picked, else the one in the slot.
    std::vector<std::uint8_t> kept;
    if (!save) {
        kept = files.read(slot_file(slot), kSaveBytes + 1).value_or(std::vector<std::uint8_t>{});
        if (!saved_game(kept))
            return {false, refused(slot, history->name + " is a history, and " + slot_name(slot) +
                                             " holds no save for it to join: upload it with "
                                             "its save.")};
    }
    const Module1 game = *saved_game(save ? save->bytes : std::span<const std::uint8_t>(kept));
    if (history && !parse_history(history->bytes, mark_of(game)))
        return {false, refused(slot, history->name + " is not the history of " +
                                         (save ? save->name : "the save in " + slot_name(slot)) +
                                         ": it is damaged, or was written with another save." +
                                         (save ? " Upload the save alone to take it without "
                                                 "its diary and week graph."
                                               : ""))};

    std::string reason;
    if (save && !files.replace(slot_file(slot), save->bytes, reason))
        return {false, refused(slot, "The save could not be kept: " + reason + ".")};
    std::string lost;  // why the history that came with the save could not be kept
    if (history && !files.replace(history_file(slot), history->bytes, reason)) {
        if (!save) return {false, refused(slot, "The history could not be kept: " + reason + ".")};
        lost = reason;
        files.remove(history_file(slot));  // no older history is left to join the new save
    } else if (!history) {
        files.remove(history_file(slot));  // the old save's history belongs to no save now
    }

    const std::string slot_text = "Slot " + std::to_string(slot + 1);
    const std::string holds = slot_details(files, slot);
    std::string message;
    if (!save)
        message =
            slot_text + " keeps its save (" + holds + ") and now has its diary and week graph.";
    else if (!lost.empty())
        message = slot_text + " now holds " + holds + ", but its history could not be kept (" +
                  lost + "): its diary and week graph start empty.";
    else if (history)
        message = slot_text + " now holds " + holds + ", with its diary and week graph.";
    else
        message = slot_text + " now holds " + holds +
                  ". No history came with it: its diary and week graph start empty.";
    if (g.forms.savefrm.loaded) tell_slots(g);
    return {true, message};
}

}  // namespace tourvane
