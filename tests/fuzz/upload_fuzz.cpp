// Fuzzes the web page's upload of a slot (app/web/slot_files.h): arbitrary bytes picked as the
// player's files, the first 97152 (a save's size) and the rest as a second file when there is
// more, are put into slot 1 of a running game. A refused upload changes neither the files nor
// the game; a taken one leaves exactly the picked save, its history or none, and loads.

#include <cstdint>
#include <span>

#include "app/web/slot_files.h"
#include "rules/files/save_file.h"
#include "tests/fuzz/fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tourvane;
    const std::span<const std::uint8_t> bytes(data, size);
    const Game& started = fuzz::started_game();
    Game& g = fuzz::copy_of(started);
    auto& files = fuzz::started_files().files;
    static const auto before = files;  // slot 1 holds a new game's save, with no history
    files = before;

    std::vector<PickedFile> picked;
    const std::size_t first = std::min(size, kSaveBytes);
    picked.push_back({"first", first, bytes.first(first)});
    if (size > kSaveBytes)
        picked.push_back({"second", size - kSaveBytes, bytes.subspan(kSaveBytes)});

    const UploadResult r = upload_to_slot(g, 0, picked);
    FUZZ_CHECK(!r.message.empty());
    FUZZ_CHECK(g.rec == started.rec);  // the running game is never touched
    if (!r.taken) {
        FUZZ_CHECK(files == before);
        return 0;
    }
    // Taken: the save picked is in the slot byte for byte, and a history only if one came.
    const PickedFile* save = nullptr;
    const PickedFile* history = nullptr;
    for (const PickedFile& f : picked) (looks_like_history(f.bytes) ? history : save) = &f;
    const auto kept = files.find(slot_file(0));
    FUZZ_CHECK(kept != files.end());
    if (save)
        FUZZ_CHECK(std::equal(kept->second.begin(), kept->second.end(), save->bytes.begin(),
                              save->bytes.end()));
    else
        FUZZ_CHECK(kept->second == before.at(slot_file(0)));
    const auto beside = files.find(history_file(0));
    FUZZ_CHECK((beside != files.end()) == (history != nullptr));

    // And the slot loads, with the history's diary when one came. (The history is bound to
    // the save as it was read: the office's refresh after a load moves saved fields on.)
    const std::optional<Module1> in_slot = parse_save(kept->second, Module1{});
    FUZZ_CHECK(in_slot.has_value());
    const std::size_t came = history
                                 ? parse_history(history->bytes, save_mark(save_bytes(*in_slot)))
                                       .value_or(CareerHistory{})
                                       .diary.size()
                                 : 0;
    FUZZ_CHECK(click(g, "Form1", "load") == ClickResult::Done);
    FUZZ_CHECK(click(g, "savefrm", "load") == ClickResult::Done);
    FUZZ_CHECK(!g.forms.savefrm.loaded && g.forms.main.visible);
    FUZZ_CHECK(g.diary.size() == came + 1);  // and "Game Loaded"
    return 0;
}
