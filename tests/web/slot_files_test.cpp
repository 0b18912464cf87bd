// Save slots carried between the page and the desktop game (app/web/slot_files.h): what a
// slot offers to download, uploads checked whole before anything is replaced, and a storage
// that refuses a write keeping the old save (app/web/kept_files.h).

#include "app/web/slot_files.h"

#include <gtest/gtest.h>

#include "app/web/kept_files.h"
#include "core/diary.h"
#include "rules/files/save_file.h"
#include "rules/test_game.h"

namespace tourvane::testing {
namespace {

/// A game in the office with its files in memory, kept through a storage that can refuse.
struct SlotGame {
    MemoryFiles folder;
    std::string storage_says;  ///< what the storage answers: empty takes the write
    int kept = 0;              ///< writes to the storage tried
    KeptFiles files{folder, [this] {
                        ++kept;
                        return storage_says;
                    }};
    TestGame t;
    Game& g = t.g;

    SlotGame() {
        g.files = &files;
        t.new_game();
    }

    /// A save of a game of that band and cash, and its history with one diary line.
    std::pair<Bytes, Bytes> career(const std::string& band, Long cash) {
        TestGame other;
        other.new_game(band);
        other.r.cash = cash;
        note_in_diary(other.g, "Dave", "Hello from " + band);
        Bytes save = save_bytes(other.r);
        Bytes history = history_bytes(other.g, save_mark(save));
        return {save, history};
    }

    UploadResult upload(int slot, std::vector<std::pair<std::string, Bytes>> picked) {
        std::vector<PickedFile> files_picked;
        for (const auto& [name, bytes] : picked)
            files_picked.push_back({name, bytes.size(), bytes});
        return upload_to_slot(g, slot, files_picked);
    }
};

TEST(SlotOffer, ASlotOffersItsSaveAndTheHistoryThatBelongsToIt) {
    SlotGame s;
    auto [save, history] = s.career("The Wasps", 1234);
    auto [other_save, other_history] = s.career("The Bees", 99);
    s.folder.files[slot_file(1)] = save;
    s.folder.files[slot_file(2)] = save;
    s.folder.files[history_file(2)] = history;
    s.folder.files[slot_file(3)] = save;
    s.folder.files[history_file(3)] = other_history;  // written with another save

    SlotOffer empty = slot_offer(s.files, 0);
    EXPECT_EQ(empty.heading, "Slot 1");
    EXPECT_EQ(empty.holds, kEmptySlot);
    EXPECT_TRUE(empty.files.empty());
    EXPECT_EQ(empty.grey, "Slot 1 holds no save to download.");
    EXPECT_EQ(empty.download, "Download slot 1");
    EXPECT_EQ(empty.upload, "Upload into slot 1");

    const SlotOffer alone = slot_offer(s.files, 1);
    EXPECT_EQ(alone.holds, "The Wasps, 01/09/2001, £ 1234");
    EXPECT_EQ(alone.grey, "");
    EXPECT_EQ(alone.files, std::vector<std::filesystem::path>{"tvsave1.tvs"});
    EXPECT_EQ(slot_offer(s.files, 2).files,
              (std::vector<std::filesystem::path>{"tvsave2.tvs", "tvsave2.tvh"}));
    EXPECT_EQ(slot_offer(s.files, 3).files.size(), 1u);  // the foreign history stays behind

    EXPECT_EQ(offered_file(s.files, 2, 0), save);
    EXPECT_EQ(offered_file(s.files, 2, 1), history);
    EXPECT_FALSE(offered_file(s.files, 1, 1));
    EXPECT_FALSE(offered_file(s.files, 0, 0));

    // A damaged save can still be taken away, as the file it is.
    Bytes damaged = save;
    damaged[0] = 200;  // a text's length beyond any record
    s.folder.files[slot_file(1)] = damaged;
    EXPECT_EQ(slot_offer(s.files, 1).holds, kDamagedSlot);
    EXPECT_EQ(offered_file(s.files, 1, 0), damaged);
}

TEST(Upload, ASaveAndItsHistoryGoIntoTheSlotAndLoadBack) {
    SlotGame s;
    auto [save, history] = s.career("The Wasps", 1234);
    const Bytes running = save_bytes(s.g.rec);
    click(s.g, "main", "command5");  // the save screen is open behind the saves panel
    ASSERT_EQ(s.g.forms.savefrm.saveslot[2].tooltip, kEmptySlot);

    const UploadResult r = s.upload(2, {{"tvsave0.tvh", history}, {"tvsave0.tvs", save}});
    EXPECT_TRUE(r.taken) << r.message;
    EXPECT_EQ(r.message,
              "Slot 3 now holds The Wasps, 01/09/2001, £ 1234, with its diary and week graph.");
    EXPECT_EQ(s.folder.files[slot_file(2)], save);
    EXPECT_EQ(s.folder.files[history_file(2)], history);
    EXPECT_EQ(s.kept, 2);
    EXPECT_EQ(save_bytes(s.g.rec), running) << "the running game is as it was";
    EXPECT_EQ(s.g.forms.savefrm.saveslot[2].tooltip, "The Wasps, 01/09/2001, £ 1234");

    // Loaded, the slot brings the career's diary back.
    click(s.g, "savefrm", "saveslot", 2);
    click(s.g, "savefrm", "load");
    EXPECT_EQ(s.g.rec.bandname, "The Wasps");
    ASSERT_FALSE(s.g.diary.empty());
    EXPECT_EQ(s.g.diary.front().text, "Hello from The Wasps");
}

TEST(Upload, ASaveAloneDropsTheOldHistoryAndAHistoryAloneJoinsItsSave) {
    SlotGame s;
    auto [old_save, old_history] = s.career("The Bees", 50);
    auto [save, history] = s.career("The Wasps", 1234);
    s.folder.files[slot_file(0)] = old_save;
    s.folder.files[history_file(0)] = old_history;

    UploadResult r = s.upload(0, {{"any name.bin", save}});
    EXPECT_TRUE(r.taken);
    EXPECT_EQ(r.message,
              "Slot 1 now holds The Wasps, 01/09/2001, £ 1234. No history came with "
              "it: its diary and week graph start empty.");
    EXPECT_EQ(s.folder.files.count(history_file(0)), 0u);

    r = s.upload(0, {{"tvsave0.tvh", history}});
    EXPECT_TRUE(r.taken) << r.message;
    EXPECT_EQ(r.message,
              "Slot 1 keeps its save (The Wasps, 01/09/2001, £ 1234) and now has its "
              "diary and week graph.");
    EXPECT_EQ(s.folder.files[history_file(0)], history);

    // Another save's history, or one for a slot with no save, changes nothing.
    const auto before = s.folder.files;
    r = s.upload(0, {{"bees.tvh", old_history}});
    EXPECT_FALSE(r.taken);
    EXPECT_EQ(r.message,
              "bees.tvh is not the history of the save in slot 1: it is damaged, or "
              "was written with another save. Nothing was changed: slot 1 is as it "
              "was.");
    r = s.upload(1, {{"bees.tvh", old_history}});
    EXPECT_EQ(r.message,
              "bees.tvh is a history, and slot 2 holds no save for it to join: upload "
              "it with its save. Nothing was changed: slot 2 is as it was.");
    EXPECT_EQ(s.folder.files, before);
}

TEST(Upload, ForeignDamagedOversizedOrMismatchedFilesAreRefusedAndChangeNothing) {
    SlotGame s;
    auto [save, history] = s.career("The Wasps", 1234);
    auto [other_save, other_history] = s.career("The Bees", 50);
    s.folder.files[slot_file(1)] = other_save;
    s.folder.files[history_file(1)] = other_history;
    const auto before = s.folder.files;
    const Bytes running = save_bytes(s.g.rec);
    const std::size_t diary = s.g.diary.size();

    const Bytes png{0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n', 0, 0, 0, 13};
    Bytes damaged = save;
    damaged[0] = 200;
    Bytes longer = save;
    longer.push_back(0);
    Bytes cut_history(history.begin(), history.end() - 3);
    const std::pair<std::vector<std::pair<std::string, Bytes>>, std::string> cases[] = {
        {{{"photo.png", png}},
         "photo.png is not a Tourvane save: a save has exactly 97152 bytes, and this file has 12."},
        {{{"tvsave0.tvs", longer}},
         "tvsave0.tvs is not a Tourvane save: a save has exactly 97152 bytes, and this file has "
         "97153."},
        {{{"tvsave0.tvs", damaged}}, "tvsave0.tvs is damaged: the game cannot load it."},
        {{{"a.tvs", save}, {"b.tvs", save}},
         "Both files are saves: choose one save and, if you have it, its history."},
        {{{"a.tvh", history}, {"b.tvh", history}},
         "Both files are histories: choose one save and, if you have it, its history."},
        {{{"a.tvs", save}, {"b.tvh", history}, {"c.tvh", history}},
         "Choose a save file (.tvs) and, if you have it, its history (.tvh): one file or two."},
        {{}, "Choose a save file (.tvs) and, if you have it, its history (.tvh): one file or two."},
        {{{"tvsave0.tvs", save}, {"bees.tvh", other_history}},
         "bees.tvh is not the history of tvsave0.tvs: it is damaged, or was written with another "
         "save. Upload the save alone to take it without its diary and week graph."},
        {{{"tvsave0.tvs", save}, {"cut.tvh", cut_history}},
         "cut.tvh is not the history of tvsave0.tvs: it is damaged, or was written with another "
         "save. Upload the save alone to take it without its diary and week graph."},
    };
    for (const auto& [picked, why] : cases) {
        const UploadResult r = s.upload(1, picked);
        EXPECT_FALSE(r.taken) << why;
        EXPECT_EQ(r.message, why + " Nothing was changed: slot 2 is as it was.");
    }
    // Over the limit the page does not read the file at all.
    const PickedFile huge{"film.mkv", kUploadLimit + 1, {}};
    UploadResult r = upload_to_slot(s.g, 1, std::span(&huge, 1));
    EXPECT_EQ(r.message,
              "film.mkv is too large to be a Tourvane save or history. Nothing was "
              "changed: slot 2 is as it was.");
    EXPECT_FALSE(upload_to_slot(s.g, 4, {}).taken);

    EXPECT_EQ(s.folder.files, before);
    EXPECT_EQ(s.kept, 0) << "nothing was written";
    EXPECT_EQ(save_bytes(s.g.rec), running);
    EXPECT_EQ(s.g.diary.size(), diary);
}

TEST(Upload, AStorageThatRefusesKeepsTheOldSave) {
    SlotGame s;
    auto [save, history] = s.career("The Wasps", 1234);
    auto [old_save, old_history] = s.career("The Bees", 50);
    s.folder.files[slot_file(0)] = old_save;
    s.folder.files[history_file(0)] = old_history;
    s.storage_says = "QuotaExceededError";

    UploadResult r = s.upload(0, {{"tvsave0.tvs", save}, {"tvsave0.tvh", history}});
    EXPECT_FALSE(r.taken);
    EXPECT_EQ(r.message,
              "The save could not be kept: this browser's storage did not take it "
              "(QuotaExceededError). Nothing was changed: slot 1 is as it was.");
    EXPECT_EQ(s.folder.files[slot_file(0)], old_save);
    EXPECT_EQ(s.folder.files[history_file(0)], old_history);

    // Into an empty slot, the new file does not stay behind either.
    r = s.upload(3, {{"tvsave0.tvs", save}});
    EXPECT_FALSE(r.taken);
    EXPECT_EQ(s.folder.files.count(slot_file(3)), 0u);

    // The game's own save says why and keeps the old one too.
    click(s.g, "main", "command5");
    click(s.g, "savefrm", "save");
    ASSERT_FALSE(s.t.lines.empty());
    EXPECT_TRUE(s.t.lines.back().critical);
    EXPECT_NE(s.t.lines.back().text.find("QuotaExceededError"), std::string::npos);
    EXPECT_EQ(s.folder.files[slot_file(0)], old_save);
}

TEST(KeptFiles, AWriteTheStorageTakesStaysAndARemovalIsKeptToo) {
    MemoryFiles folder;
    int kept = 0;
    KeptFiles files(folder, [&] {
        ++kept;
        return std::string();
    });
    std::string reason;
    const Bytes bytes{1, 2, 3};
    EXPECT_TRUE(files.replace("a", bytes, reason));
    EXPECT_EQ(files.read("a", 2), (Bytes{1, 2}));
    files.remove("a");
    EXPECT_FALSE(files.read("a", 10));
    EXPECT_EQ(kept, 2);
}

}  // namespace
}  // namespace tourvane::testing
