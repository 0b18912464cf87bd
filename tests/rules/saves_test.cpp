// Saved games: the record-file layout, the round trip, refused loads, failing saves, the save
// and load screen, and the name checks of NEW GAME that keep names inside a record.

#include <cstring>
#include <fstream>
#include <map>
#include <set>

#include "saves/cp1252.h"
#include "saves/save_file.h"
#include "saves/save_screen.h"
#include "state/fields.h"
#include "temp_dir.h"
#include "test_game.h"

namespace tourvane {
namespace {

using testing::TempDir;
using testing::TestGame;

using Bytes = std::vector<std::uint8_t>;

constexpr const char* kNotValid = "This file is not valid or does not exist.";

std::string critical_box(std::string_view text) {
    return "msgbox ok critical " + json_quote(text) + " -> ok";
}

/// The byte offset of record n (counted from 1).
std::size_t at(int record) {
    return static_cast<std::size_t>(record - 1) * 128;
}

Bytes bytes_at(const Bytes& b, int record, std::size_t n) {
    return Bytes(b.begin() + at(record), b.begin() + at(record) + n);
}

Bytes read_all(const std::filesystem::path& p) {
    std::ifstream in(p, std::ios::binary);
    return Bytes(std::istreambuf_iterator<char>(in), {});
}

void write_all(const std::filesystem::path& p, const Bytes& b) {
    std::ofstream out(p, std::ios::binary);
    out.write(reinterpret_cast<const char*>(b.data()), static_cast<std::streamsize>(b.size()));
}

/// Every field of the game, element by element, as text: two games with the same snapshot
/// are the same game.
std::map<std::string, std::string> snapshot(Game& g) {
    std::map<std::string, std::string> out;
    for (const Field& f : fields(g)) {
        for (int i = f.is_array() ? 0 : -1; i <= f.upper; ++i) {
            std::string value;
            switch (f.type) {
                case FieldType::String:
                    value = f.at<std::string>(i);
                    break;
                case FieldType::Integer:
                case FieldType::Boolean:
                    value = std::to_string(f.at<Integer>(i));
                    break;
                case FieldType::Long:
                    value = std::to_string(f.at<Long>(i));
                    break;
                case FieldType::Date:
                    value = std::to_string(f.at<Date>(i));
                    break;
            }
            out[std::string(f.name) + "(" + std::to_string(i) + ")"] = value;
        }
    }
    return out;
}

/// Gives every element of every field its own value, different for each `seed`.
void fill_every_field(Game& g, int seed) {
    int n = seed * 10000;
    for (const Field& f : fields(g)) {
        for (int i = f.is_array() ? 0 : -1; i <= f.upper; ++i, ++n) {
            switch (f.type) {
                case FieldType::String:
                    f.at<std::string>(i) = "é" + std::to_string(n);
                    break;
                case FieldType::Integer:
                case FieldType::Boolean:
                    f.at<Integer>(i) = static_cast<Integer>(n - 20000);
                    break;
                case FieldType::Long:
                    f.at<Long>(i) = n * 70001;
                    break;
                case FieldType::Date:
                    f.at<Date>(i) = 37135.0 + n;
                    break;
            }
        }
    }
}

/// The fields a save holds, with the elements it stores.
struct Saved {
    const char* name;
    int first = -1, last = -1;
};
const Saved kSavedFields[] = {
    {"bandname"},
    {"playername"},
    {"popularity"},
    {"signed"},
    {"membername", 1, 4},
    {"memberage", 1, 4},
    {"membersex", 1, 4},
    {"memberhappy", 1, 4},
    {"memberill", 1, 4},
    {"memberfriction", 1, 4},
    {"membertalent", 1, 4},
    {"membercharisma", 1, 4},
    {"memberattitude", 1, 4},
    {"memberlooks", 1, 4},
    {"membercreativity", 1, 4},
    {"listslot", 1, 4},
    {"songname", 1, 20},
    {"songquality", 1, 20},
    {"released", 1, 20},
    {"chartlife", 1, 70},
    {"cash"},
    {"vacancy"},
    {"tiredness"},
    {"nextsong"},
    {"songcount"},
    {"spareword"},
    {"songweeks"},
    {"interviewkind"},
    {"gamedate"},
    {"promotion"},
    {"chartband", 1, 70},
    {"charttitle", 1, 70},
    {"chartsales", 1, 70},
    {"chartlastsales", 1, 70},
    {"chartplace", 1, 70},
    {"chartfame", 1, 70},
    {"chartquality", 1, 70},
    {"chartdemand", 1, 70},
    {"venueopen", 1, 5},
};

std::set<std::string> saved_keys() {
    std::set<std::string> keys;
    for (const Saved& s : kSavedFields)
        for (int i = s.first; i <= s.last; ++i)
            keys.insert(std::string(s.name) + "(" + std::to_string(i) + ")");
    return keys;
}

/// A game in a temporary working directory, started after the directory is in place.
struct InTempDir : ::testing::Test {
    TempDir dir;
};

// ---------------------------------------------------------------------------------------------
// The byte layout

TEST(SaveLayout, KnownGameLandsInItsRecords) {
    TestGame t;
    t.new_game("Café", "Sam");
    Module1& r = t.r;
    r.popularity = 100;
    r.signed_ = kTrue;
    r.membername[2] = "Bob Axe";
    r.membertalent[2] = 7;
    r.memberhappy[4] = -1;
    r.songname[3] = "Wild Love";
    r.chartlife[1] = 0x0102;
    r.chartlife[20] = 333;
    r.cash = -2;
    r.chartband[70] = "Last Row";
    r.chartdemand[70] = 149;
    r.chartlife[70] = 250;
    r.venueopen[5] = kTrue;

    const Bytes b = save_bytes(r);
    ASSERT_EQ(b.size(), 97152u);
    EXPECT_EQ(bytes_at(b, 1, 7), (Bytes{4, 0, 'C', 'a', 'f', 0xE9, 0}));  // Windows-1252 é
    EXPECT_EQ(bytes_at(b, 2, 5), (Bytes{3, 0, 'S', 'a', 'm'}));
    EXPECT_EQ(bytes_at(b, 3, 2), (Bytes{0x64, 0x00}));
    EXPECT_EQ(bytes_at(b, 4, 2), (Bytes{0xFF, 0xFF}));
    EXPECT_EQ(bytes_at(b, 5, 6), (Bytes{4, 0, 'N', 'o', 'n', 'e'}));  // member 1 vacant
    EXPECT_EQ(bytes_at(b, 17, 9), (Bytes{7, 0, 'B', 'o', 'b', ' ', 'A', 'x', 'e'}));
    EXPECT_EQ(bytes_at(b, 23, 2), (Bytes{7, 0}));        // membertalent(2)
    EXPECT_EQ(bytes_at(b, 44, 2), (Bytes{0xFF, 0xFF}));  // memberhappy(4)
    EXPECT_EQ(bytes_at(b, 61, 11), (Bytes{9, 0, 'W', 'i', 'l', 'd', ' ', 'L', 'o', 'v', 'e'}));
    EXPECT_EQ(bytes_at(b, 56, 2), (Bytes{0x02, 0x01}));   // chartlife(1)
    EXPECT_EQ(bytes_at(b, 132, 2), (Bytes{0x4D, 0x01}));  // chartlife(20)...
    EXPECT_EQ(bytes_at(b, 704, 2), (Bytes{0x4D, 0x01}));  // ...and again
    EXPECT_EQ(bytes_at(b, 133, 4), (Bytes{0xFE, 0xFF, 0xFF, 0xFF}));
    EXPECT_EQ(bytes_at(b, 139, 2), (Bytes{10, 0}));                               // songweeks
    EXPECT_EQ(bytes_at(b, 141, 8), (Bytes{0, 0, 0, 0, 0xE0, 0x21, 0xE2, 0x40}));  // 37135.0
    EXPECT_EQ(bytes_at(b, 143, 2), (Bytes{0, 0}));
    EXPECT_EQ(bytes_at(b, 696, 10), (Bytes{8, 0, 'L', 'a', 's', 't', ' ', 'R', 'o', 'w'}));
    EXPECT_EQ(bytes_at(b, 703, 2), (Bytes{149, 0}));      // chartdemand(70)
    EXPECT_EQ(bytes_at(b, 754, 2), (Bytes{250, 0}));      // chartlife(70)
    EXPECT_EQ(bytes_at(b, 759, 2), (Bytes{0xFF, 0xFF}));  // venueopen(5)

    // Filler is zeros: behind each field its record holds nothing.
    for (auto [rec, used] : {std::pair{1, 6}, {3, 2}, {17, 9}, {133, 4}, {141, 8}, {759, 2}}) {
        const Bytes record = bytes_at(b, rec, 128);
        EXPECT_EQ(std::count(record.begin() + used, record.end(), 0), 128 - used) << rec;
    }
}

TEST(SaveLayout, LongestNameFillsItsRecordToTheLastByte) {
    TestGame t;
    Module1 r = t.r;
    r.bandname = std::string(125, 'x') + "é";  // 126 characters, 127 bytes of UTF-8
    r.playername = "P";
    const Bytes b = save_bytes(r);
    EXPECT_EQ(bytes_at(b, 1, 2), (Bytes{126, 0}));
    EXPECT_EQ(b[127], 0xE9);
    EXPECT_EQ(bytes_at(b, 2, 3), (Bytes{1, 0, 'P'}));

    // Text the game can't store never spills into the next record.
    r.bandname = std::string(200, 'y');
    r.playername = "日本";
    const Bytes cut = save_bytes(r);
    EXPECT_EQ(bytes_at(cut, 1, 2), (Bytes{126, 0}));
    EXPECT_EQ(bytes_at(cut, 2, 4), (Bytes{2, 0, '?', '?'}));
    EXPECT_EQ(cut.size(), 97152u);
}

TEST(SaveLayout, EveryByteOfTheCodePageReadsBackAsWritten) {
    std::string all;
    for (int b = 1; b < 256; ++b) all += static_cast<char>(b);
    std::string back;
    EXPECT_TRUE(utf8_to_cp1252(cp1252_to_utf8(all), back));
    EXPECT_EQ(back, all);
    EXPECT_EQ(cp1252_to_utf8("\x80\x99"), "€™");
    EXPECT_FALSE(utf8_to_cp1252("a\xC3", back));  // cut-off UTF-8
    EXPECT_EQ(back, "a?");
}

// ---------------------------------------------------------------------------------------------
// Reading

TEST(SaveReading, EverySavedFieldComesBackAndNothingElseChanges) {
    TestGame source, running;
    fill_every_field(source.g, 1);
    source.r.chartlife[20] = 4321;  // the one field stored twice
    fill_every_field(running.g, 2);
    const auto before = snapshot(running.g);

    const auto loaded = parse_save(save_bytes(source.r), running.r);
    ASSERT_TRUE(loaded);
    running.r = *loaded;

    const auto saved = saved_keys();
    const auto src = snapshot(source.g);
    int compared = 0;
    for (const auto& [key, value] : snapshot(running.g)) {
        if (saved.count(key)) {
            EXPECT_EQ(value, src.at(key)) << key;
            ++compared;
        } else {
            EXPECT_EQ(value, before.at(key)) << key << " is not in a save";
        }
    }
    // 759 records less the reserved one and the second copy of chartlife(20).
    EXPECT_EQ(compared, 757);
}

TEST(SaveReading, CraftedFileIsTakenFieldByField) {
    TestGame t;
    Bytes b(97152, 0);
    auto put = [&](int record, Bytes v) { std::copy(v.begin(), v.end(), b.begin() + at(record)); };
    // Filler is never looked at, whatever it holds.
    for (int record : {1, 3, 6})
        std::fill(b.begin() + at(record) + 5, b.begin() + at(record + 1), 0xAB);
    put(1, {3, 0, 'Z', 'o', 0xEB});  // "Zoë"
    put(2, {0, 0});                  // no boss's name
    put(3, {0x34, 0x12});
    put(4, {1, 0});                              // 1 is not true
    put(8, {0xFF, 0xFF});                        // memberhappy(1) = -1
    put(53, {5, 0, 0x93, 'H', 'i', 0x94, '!'});  // curly quotes
    put(132, {5, 0});
    put(133, {0x00, 0x10, 0x00, 0x80});
    put(141, {0, 0, 0, 0, 0x20, 0x22, 0xE2, 0x40});  // 37137.0
    put(143, {0xFF, 0xFF});                          // reserved: ignored
    put(704, {9, 0});                                // the second chartlife(20) lasts
    put(755, {0xFF, 0xFF});

    const auto loaded = parse_save(b, t.r);
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->bandname, "Zoë");
    EXPECT_EQ(loaded->playername, "");
    EXPECT_EQ(loaded->popularity, 0x1234);
    EXPECT_EQ(loaded->signed_, 1);
    EXPECT_FALSE(is_true(loaded->signed_));
    EXPECT_EQ(loaded->memberhappy[1], -1);
    EXPECT_EQ(loaded->songname[1], "“Hi”!");
    EXPECT_EQ(loaded->cash, -2147479552);
    EXPECT_EQ(loaded->gamedate, 37137.0);
    EXPECT_EQ(loaded->chartlife[20], 9);
    EXPECT_EQ(loaded->venueopen[1], kTrue);
    EXPECT_EQ(loaded->memberage[1], 0);
}

TEST(SaveReading, ShortFileReadsEmptyAndZeroFromWhereItEnds) {
    TestGame t;
    t.r.bandname = "Band";
    t.r.cash = 999;
    t.r.membername[1] = "Ann";
    Bytes b = save_bytes(t.r);
    b.resize(at(5) + 3);  // ends inside membername(1): ...but its text is all there
    b[at(5)] = 1;
    const auto loaded = parse_save(b, t.r);
    ASSERT_TRUE(loaded);
    EXPECT_EQ(loaded->membername[1], "A");
    EXPECT_EQ(loaded->cash, 0);
    EXPECT_EQ(loaded->songweeks, 0);
    EXPECT_EQ(loaded->gamedate, 0.0);
}

TEST(SaveReading, DamagedFilesAreRefused) {
    TestGame t;
    t.new_game();
    const Bytes good = save_bytes(t.r);
    ASSERT_TRUE(parse_save(good, t.r));

    auto refused = [&](Bytes b) { return !parse_save(b, t.r).has_value(); };
    EXPECT_TRUE(refused({}));  // an empty file
    Bytes no_band = good;
    no_band[0] = 0;
    EXPECT_TRUE(refused(no_band));
    Bytes long_word = good;
    long_word[at(7)] = 127;  // membersex(1) claims 127 bytes
    EXPECT_TRUE(refused(long_word));
    Bytes negative_word = good;
    negative_word[at(145)] = 0xFF, negative_word[at(145) + 1] = 0xFF;
    EXPECT_TRUE(refused(negative_word));
    Bytes cut = good;
    cut.resize(at(2) + 4);  // the boss's name runs past the end
    EXPECT_TRUE(refused(cut));
    Bytes cut_word = good;
    cut_word.resize(at(2) + 1);  // the file ends inside a length word
    EXPECT_TRUE(refused(cut_word));
    Bytes bad_date = good;
    std::fill(bad_date.begin() + at(141), bad_date.begin() + at(141) + 8, 0xFF);  // NaN
    EXPECT_TRUE(refused(bad_date));
    Bytes far_date = good;
    const double year_10000 = 2958466.0;
    std::memcpy(far_date.data() + at(141), &year_10000, 8);
    EXPECT_TRUE(refused(far_date));
}

// ---------------------------------------------------------------------------------------------
// The slot files

TEST_F(InTempDir, MissingSlotsAreEmptyAndReadingCreatesNoFile) {
    TestGame t;
    for (int i = 0; i < 4; ++i) EXPECT_EQ(t.r.slotname[i], "");
    EXPECT_TRUE(std::filesystem::is_empty(dir.path()));
    click(t.g, "Form1", "load");
    click(t.g, "savefrm", "load");
    EXPECT_EQ(t.take().back(), critical_box(kNotValid));
    EXPECT_TRUE(std::filesystem::is_empty(dir.path()));
}

TEST_F(InTempDir, SavingTwiceKeepsTheFileWholeAndLeavesNothingBeside) {
    TestGame t;
    t.new_game("A Band With A Long Name", "Sam");
    std::string reason;
    ASSERT_TRUE(write_save(t.r, slot_file(3), reason));
    t.r.bandname = "Tiny";
    ASSERT_TRUE(write_save(t.r, slot_file(3), reason));
    const Bytes b = read_all("tvsave3.tvs");
    EXPECT_EQ(b.size(), 97152u);
    EXPECT_EQ(bytes_at(b, 1, 6), (Bytes{4, 0, 'T', 'i', 'n', 'y'}));
    EXPECT_EQ(b[6], 0);  // nothing left of the longer name
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.path()), {}), 1);
}

TEST_F(InTempDir, FailingSaveKeepsTheOldSaveAndTheGame) {
    TestGame t;
    t.new_game("Old Band", "Sam");
    std::string reason;
    ASSERT_TRUE(write_save(t.r, slot_file(2), reason));
    const Bytes old_save = read_all("tvsave2.tvs");

    t.r.bandname = "New Band";
    click(t.g, "main", "command5");
    click(t.g, "savefrm", "saveslot", 2);
    t.take();
    const auto before = snapshot(t.g);

    // The new file can't be made: its name is taken by a folder.
    std::filesystem::create_directory("tvsave2.tvs.new");
    click(t.g, "savefrm", "save");
    EXPECT_EQ(t.take(),
              std::vector<std::string>{critical_box(
                  "The game could not be saved in slot 3 (tvsave2.tvs): Is a directory.")});
    std::filesystem::remove("tvsave2.tvs.new");

    // The disk fills up while the new file is written.
    std::filesystem::create_symlink("/dev/full", "tvsave2.tvs.new");
    click(t.g, "savefrm", "save");
    EXPECT_EQ(t.take(), std::vector<std::string>{critical_box(
                            "The game could not be saved in slot 3 (tvsave2.tvs): No space left on "
                            "device.")});
    EXPECT_FALSE(std::filesystem::is_symlink("tvsave2.tvs.new"));

    EXPECT_EQ(read_all("tvsave2.tvs"), old_save);
    EXPECT_EQ(snapshot(t.g), before);
    EXPECT_TRUE(t.g.forms.savefrm.visible);  // another slot can be tried

    // The new file can't take the slot's name.
    click(t.g, "savefrm", "saveslot", 0);
    std::filesystem::create_directories("tvsave0.tvs/inside");
    click(t.g, "savefrm", "save");
    EXPECT_EQ(t.take(),
              std::vector<std::string>{critical_box(
                  "The game could not be saved in slot 1 (tvsave0.tvs): Is a directory.")});
    EXPECT_FALSE(std::filesystem::exists("tvsave0.tvs.new"));
}

// ---------------------------------------------------------------------------------------------
// The save and load screen

TEST_F(InTempDir, SaveFromTheOfficeEndsOnTheOfficeWithGameSaved) {
    TestGame t;
    t.new_game();
    click(t.g, "main", "command5");
    SaveForm& f = t.g.forms.savefrm;
    EXPECT_TRUE(f.visible);
    EXPECT_TRUE(f.save.visible);
    EXPECT_TRUE(f.saveslot[0].value);
    EXPECT_TRUE(t.g.forms.main.visible);  // the office stays up and takes clicks
    EXPECT_EQ(click(t.g, "savefrm", "saveslot", 1), ClickResult::Done);
    EXPECT_EQ(click(t.g, "savefrm", "save"), ClickResult::Done);
    EXPECT_EQ(t.take().back(), testing::okbox("Game Saved"));
    EXPECT_FALSE(f.loaded);
    EXPECT_TRUE(t.g.forms.main.visible);
    EXPECT_EQ(read_all("tvsave1.tvs").size(), 97152u);
    EXPECT_FALSE(std::filesystem::exists("tvsave0.tvs"));

    // Captions don't follow saves made in this run...
    click(t.g, "main", "command5");
    EXPECT_EQ(f.saveslot[1].caption, "GAME SLOT 1");
    // ...and show the band from the next start on.
    TestGame next;
    EXPECT_EQ(next.r.slotname[1], "The Wasps");
    // Before it opens, the screen already reads as its load will show it.
    EXPECT_FALSE(next.g.forms.savefrm.loaded);
    EXPECT_EQ(next.g.forms.savefrm.saveslot[1].caption, "The Wasps");
    click(next.g, "Form1", "load");
    EXPECT_EQ(next.g.forms.savefrm.saveslot[1].caption, "The Wasps");
    for (int i : {0, 2, 3}) EXPECT_EQ(next.g.forms.savefrm.saveslot[i].caption, "GAME SLOT 1");
}

TEST_F(InTempDir, LoadFromTheTitleScreenResumesTheGame) {
    {
        TestGame first;
        first.new_game("The Wasps", "Sam");
        first.full_band();
        first.r.membername[3] = "None";
        first.r.songcount = first.r.nextsong = 2;
        first.r.songname[1] = "Wild Love";
        first.r.songname[2] = "Blue Metal";
        first.r.cash = 1234;
        std::string reason;
        ASSERT_TRUE(write_save(first.r, slot_file(2), reason));
    }
    TestGame t;
    t.r.singlehype[1] = 55;  // not in a save: the running value stays
    click(t.g, "Form1", "load");
    SaveForm& f = t.g.forms.savefrm;
    EXPECT_FALSE(f.save.visible);
    EXPECT_EQ(f.load.pos.left, 88);
    EXPECT_EQ(click(t.g, "savefrm", "save"), ClickResult::Ignored);

    click(t.g, "savefrm", "load");  // slot 0 is chosen and empty
    EXPECT_EQ(t.take().back(), critical_box(kNotValid));
    EXPECT_TRUE(f.visible);
    EXPECT_TRUE(t.g.forms.Form1.visible);

    click(t.g, "savefrm", "saveslot", 2);
    click(t.g, "savefrm", "load");
    EXPECT_EQ(t.take().back(), testing::okbox("Game Loaded"));
    EXPECT_FALSE(t.g.forms.Form1.loaded);
    EXPECT_FALSE(f.loaded);
    EXPECT_TRUE(t.g.forms.main.visible);
    EXPECT_EQ(t.r.bandname, "The Wasps");
    EXPECT_EQ(t.r.cash, 1234);
    EXPECT_EQ(t.r.singlehype[1], 55);
    EXPECT_EQ(t.g.forms.main.txtcash.caption, "£ 1234");  // update
    EXPECT_EQ(t.g.forms.main.members.rows,
              (std::vector<std::string>{"Ann Vox", "Bob Axe", "Di Kit"}));  // listupdate
    EXPECT_EQ(t.r.listslot[3], 4);
    EXPECT_EQ(t.r.vacancy, 3);
    EXPECT_EQ(t.g.forms.main.songlist.rows,
              (std::vector<std::string>{"Wild Love", "Blue Metal"}));  // updatesonglist
}

TEST_F(InTempDir, RefusedLoadLeavesTheRunningGameExactlyAsItWas) {
    TestGame t;
    t.new_game();
    t.full_band();
    t.r.cash = 777;
    Bytes b = save_bytes(t.r);
    b[at(600)] = 200;  // a length word far down the file
    write_all("tvsave0.tvs", b);
    t.r.cash = 5;
    click(t.g, "main", "command5");
    const auto before = snapshot(t.g);
    click(t.g, "savefrm", "load");
    EXPECT_EQ(t.take().back(), critical_box(kNotValid));
    EXPECT_EQ(snapshot(t.g), before);
    EXPECT_TRUE(t.g.forms.savefrm.visible);
}

TEST_F(InTempDir, BackHidesTheScreenAndTheNextOpeningFindsItAsLeft) {
    TestGame t;
    click(t.g, "Form1", "load");
    click(t.g, "savefrm", "saveslot", 3);
    click(t.g, "savefrm", "back");
    SaveForm& f = t.g.forms.savefrm;
    EXPECT_TRUE(f.loaded);
    EXPECT_FALSE(f.visible);
    EXPECT_TRUE(t.g.forms.Form1.visible);

    t.new_game();
    click(t.g, "main", "command5");
    EXPECT_TRUE(f.save.visible);
    EXPECT_EQ(f.load.pos.left, 88);  // still where the title screen put it
    EXPECT_TRUE(f.saveslot[3].value);
    EXPECT_FALSE(f.saveslot[0].value);

    savefrm_close(t.g);  // the frame's close box
    EXPECT_TRUE(f.loaded);
    EXPECT_FALSE(f.visible);
}

// ---------------------------------------------------------------------------------------------
// NEW GAME keeps names inside a record

TEST(NewGameNames, RefusesNamesASaveCannotHold) {
    TestGame t;
    t.port.queue_input(std::string(127, 'a'));
    click(t.g, "Form1", "New");
    EXPECT_EQ(t.take(), (std::vector<std::string>{
                            "inputbox \"NEW BAND\" \"Please enter the name of the Band:\" -> \"" +
                                std::string(127, 'a') + "\"",
                            critical_box("Names can be at most 126 characters.")}));
    EXPECT_EQ(t.r.bandname, "");

    t.port.queue_input("Bånd");
    t.port.queue_input("Søren 日本");
    click(t.g, "Form1", "New");
    EXPECT_EQ(t.take().back(), critical_box("Names can only use Western European letters."));
    EXPECT_EQ(t.r.bandname, "Bånd");
    EXPECT_EQ(t.r.playername, "");
    EXPECT_TRUE(t.g.forms.Form1.visible);
    EXPECT_FALSE(t.g.forms.main.visible);

    // 126 letters fit, though they take more bytes in memory.
    const std::string longest(63, 'a');
    t.new_game("Bånd", longest + std::string("é") + std::string(62, 'b'));
    EXPECT_TRUE(t.g.forms.main.visible);
    EXPECT_EQ(cp1252_size(t.r.playername), 126u);
}

}  // namespace
}  // namespace tourvane
