// Saved games: the record-file layout, the round trip, refused loads, failing saves, the save
// and load screen, and the name checks of NEW GAME that keep names inside a record.

#include <algorithm>
#include <cstring>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "core/fields.h"
#include "flow/save_screen.h"
#include "rules/files/cp1252.h"
#include "rules/files/save_file.h"
#include "temp_dir.h"
#include "test_game.h"

namespace tourvane {
namespace {

using testing::Lines;
using testing::Rows;
using testing::str;
using testing::TestGame;
using Bytes = std::vector<std::uint8_t>;

Shown critical(std::string_view text) {
    return testing::okbox(text, true);
}
const Shown kNotValid = critical("This file is not valid or does not exist.");

/// The byte offset of record n (counted from 1), and n bytes from there.
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

/// Every element of every field of the game as "name(i)" -> text; with `seed`, first gives
/// each element its own value, different for each seed.
std::map<std::string, std::string> snapshot(Game& g, int seed = 0) {
    std::map<std::string, std::string> out;
    int n = seed * 10000;
    for (const Field& f : fields(g)) {
        for (int i = f.is_array() ? 0 : -1; i <= f.upper; ++i, ++n) {
            std::string& text = out[std::string(f.name) + "(" + std::to_string(i) + ")"];
            if (f.type == FieldType::String) {
                if (seed) f.at<std::string>(i) = "é" + std::to_string(n);
                text = f.at<std::string>(i);
            } else if (f.type == FieldType::Long) {
                if (seed) f.at<Long>(i) = n * 70001;
                text = std::to_string(f.at<Long>(i));
            } else if (f.type == FieldType::Date) {
                if (seed) f.at<Date>(i) = 37135.0 + n;
                text = std::to_string(f.at<Date>(i));
            } else {
                if (seed) f.at<Integer>(i) = static_cast<Integer>(n - 20000);
                text = std::to_string(f.at<Integer>(i));
            }
        }
    }
    return out;
}

/// The elements a save holds: "name" for a plain field, "name:N" for elements 1 to N.
std::set<std::string> saved_keys() {
    std::istringstream in(
        "bandname playername popularity signed cash vacancy tiredness nextsong songcount "
        "spareword songweeks interviewkind gamedate promotion membername:4 memberage:4 "
        "membersex:4 memberhappy:4 memberill:4 memberfriction:4 membertalent:4 "
        "membercharisma:4 memberattitude:4 memberlooks:4 membercreativity:4 listslot:4 "
        "songname:20 songquality:20 released:20 chartlife:70 chartband:70 charttitle:70 "
        "chartsales:70 chartlastsales:70 chartplace:70 chartfame:70 chartquality:70 "
        "chartdemand:70 venueopen:5");
    std::set<std::string> keys;
    for (std::string word; in >> word;) {
        const auto colon = word.find(':');
        if (colon == std::string::npos) keys.insert(word + "(-1)");
        for (int i = 1; colon != std::string::npos && i <= std::stoi(word.substr(colon + 1)); ++i)
            keys.insert(word.substr(0, colon) + "(" + std::to_string(i) + ")");
    }
    return keys;
}

// Record 1 the band's name, 3 popularity, 4 signed, 44 memberhappy(4), 56 chartlife(1), 132
// chartlife(20) and again 704, 133 cash, 139 songweeks, 141 gamedate, 143 reserved, 703
// chartdemand(70), 754 chartlife(70), 759 venueopen(5); behind each, filler of zeros.
TEST(SaveLayout, KnownGameLandsInItsRecords) {
    TestGame t;
    t.new_game("Café", "Sam");
    Module1& r = t.r;
    r.popularity = 100, r.signed_ = r.venueopen[5] = r.memberhappy[4] = -1, r.chartlife[1] = 0x0102;
    r.chartlife[20] = 333, r.cash = -2, r.chartdemand[70] = 149, r.chartlife[70] = 250;
    const Bytes b = save_bytes(r);
    ASSERT_EQ(b.size(), 97152u);
    std::istringstream records(  // record: its bytes in hex; the rest of each record is zeros
        "1:04 00 43 61 66 E9|3:64 00|4:FF FF|44:FF FF|56:02 01|132:4D 01|704:4D 01|"
        "133:FE FF FF FF|139:0A 00|141:00 00 00 00 E0 21 E2 40|143:00 00|703:95 00|754:FA 00|"
        "759:FF FF");
    for (std::string item; std::getline(records, item, '|');) {
        std::string dump, want = item.substr(item.find(':') + 1) + " ";
        while (want.size() < 128 * 3) want += "00 ";
        for (std::uint8_t byte : bytes_at(b, std::stoi(item), 128))
            dump += {"0123456789ABCDEF"[byte >> 4], "0123456789ABCDEF"[byte & 15], ' '};
        EXPECT_EQ(dump, want) << item;
    }
}

TEST(SaveLayout, LongestNameFillsItsRecordAndTheCodePageReadsBack) {
    TestGame t;
    Module1 r = t.r;
    r.bandname = std::string(125, 'x') + "é";  // 126 characters, 127 bytes of UTF-8
    r.playername = "日本";                     // text the game can't store never spills
    const Bytes b = save_bytes(r);
    EXPECT_EQ(str(+b[0], +b[1], +b[127], +b[128], +b[129], +b[130], +b[131]),
              "126 0 233 2 0 63 63");
    r.bandname = std::string(200, 'y');
    EXPECT_EQ(save_bytes(r)[0], 126);
    std::string all, back;
    for (int c = 1; c < 256; ++c) all += static_cast<char>(c);
    EXPECT_TRUE(utf8_to_cp1252(cp1252_to_utf8(all), back));
    EXPECT_EQ(back, all);
    EXPECT_EQ(cp1252_to_utf8("\x80\x99"), "€™");
    EXPECT_FALSE(utf8_to_cp1252("a\xC3", back));  // cut-off UTF-8
    EXPECT_EQ(back, "a?");
}

TEST(SaveReading, EverySavedFieldComesBackAndNothingElseChanges) {
    TestGame source, running;
    snapshot(source.g, 1);
    source.r.chartlife[20] = 4321;  // the one field stored twice
    const auto before = snapshot(running.g, 2);
    const auto loaded = parse_save(save_bytes(source.r), running.r);
    ASSERT_TRUE(loaded);
    running.r = *loaded;
    const auto saved = saved_keys();
    const auto src = snapshot(source.g);
    int compared = 0;
    for (const auto& [key, value] : snapshot(running.g)) {
        EXPECT_EQ(value, saved.count(key) ? src.at(key) : before.at(key)) << key;
        compared += static_cast<int>(saved.count(key));
    }
    EXPECT_EQ(compared, 757);  // 759 records less the reserved one and chartlife(20) again
}

TEST(SaveReading, CraftedFileIsTakenFieldByField) {
    TestGame t;
    Bytes b(97152, 0);
    auto put = [&](int record, Bytes v) { std::copy(v.begin(), v.end(), b.begin() + at(record)); };
    for (int record : {1, 3, 6})  // filler is never looked at, whatever it holds
        std::fill(b.begin() + at(record) + 5, b.begin() + at(record + 1), 0xAB);
    put(1, {3, 0, 'Z', 'o', 0xEB});              // "Zoë"
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
    EXPECT_EQ(loaded->bandname + "|" + loaded->playername + "|" + loaded->songname[1],
              "Zoë||“Hi”!");
    EXPECT_EQ(str(loaded->signed_, loaded->memberhappy[1], loaded->cash, loaded->gamedate,
                  loaded->chartlife[20], loaded->venueopen[1]),
              "1 -1 -2147479552 37137 9 -1");
    // A short file reads empty and 0 from where it ends.
    put(5, {1, 0, 'A'});
    b.resize(at(5) + 3);
    const auto cut = parse_save(b, t.r);
    ASSERT_TRUE(cut);
    EXPECT_EQ(str(cut->membername[1], cut->cash, cut->songweeks, cut->gamedate), "A 0 0 0");
}

TEST(SaveReading, DamagedFilesAreRefused) {
    TestGame t;
    t.new_game();
    const Bytes good = save_bytes(t.r);
    ASSERT_TRUE(parse_save(good, t.r));
    auto damaged = [&](auto change) {
        Bytes b = good;
        change(b);
        return !parse_save(b, t.r).has_value();
    };
    EXPECT_TRUE(damaged([](Bytes& b) { b.clear(); }));
    EXPECT_TRUE(damaged([](Bytes& b) { b[0] = 0; }));        // no band's name
    EXPECT_TRUE(damaged([](Bytes& b) { b[at(7)] = 127; }));  // membersex(1) claims 127 bytes
    EXPECT_TRUE(damaged([](Bytes& b) { b[at(145)] = b[at(145) + 1] = 0xFF; }));
    EXPECT_TRUE(damaged([](Bytes& b) { b.resize(at(2) + 4); }));  // a name past the end
    EXPECT_TRUE(damaged([](Bytes& b) { b.resize(at(2) + 1); }));  // the end inside a length word
    EXPECT_TRUE(damaged([](Bytes& b) { std::fill_n(b.begin() + at(141), 8, 0xFF); }));  // NaN
    EXPECT_TRUE(damaged([](Bytes& b) {
        const double year_10000 = 2958466.0;
        std::memcpy(b.data() + at(141), &year_10000, 8);
    }));
}

struct InTempDir : ::testing::Test {
    testing::TempDir dir;
};

TEST_F(InTempDir, FailingSaveKeepsTheOldSaveAndTheGame) {
    TestGame t;
    t.new_game("A Band With A Long Name", "Sam");
    std::string why;
    ASSERT_TRUE(write_save(t.r, slot_file(2), why));
    t.r.bandname = "Tiny";
    ASSERT_TRUE(write_save(t.r, slot_file(2), why));  // a shorter name leaves no trace
    const Bytes old_save = read_all("tvsave2.tvs");
    EXPECT_EQ(bytes_at(old_save, 1, 7), (Bytes{4, 0, 'T', 'i', 'n', 'y', 0}));
    t.r.bandname = "New Band";
    click(t.g, "main", "command5");
    click(t.g, "savefrm", "saveslot", 2);
    const auto before = snapshot(t.g);
    const std::string cannot = "The game could not be saved in slot 3 (tvsave2.tvs): ";
    std::filesystem::create_directory("tvsave2.tvs.new");  // the new file can't be made
    click(t.g, "savefrm", "save");
    std::filesystem::remove("tvsave2.tvs.new");
    std::filesystem::create_symlink("/dev/full", "tvsave2.tvs.new");  // the disk fills up
    click(t.g, "savefrm", "save");
    EXPECT_EQ(t.take(), (Lines{critical(cannot + "Is a directory."),
                               critical(cannot + "No space left on device.")}));
    EXPECT_FALSE(std::filesystem::is_symlink("tvsave2.tvs.new"));
    EXPECT_EQ(read_all("tvsave2.tvs"), old_save);
    EXPECT_EQ(snapshot(t.g), before);
    EXPECT_TRUE(t.g.forms.savefrm.visible);  // another slot can be tried
    click(t.g, "savefrm", "saveslot", 0);
    std::filesystem::create_directories("tvsave0.tvs/inside");  // the name can't be taken
    click(t.g, "savefrm", "save");
    EXPECT_EQ(t.take(), Lines{critical("The game could not be saved in slot 1 (tvsave0.tvs): Is "
                                       "a directory.")});
    EXPECT_FALSE(std::filesystem::exists("tvsave0.tvs.new"));
}

TEST_F(InTempDir, SaveFromTheOfficeAndCaptionsFromTheNextStart) {
    TestGame t;
    t.new_game();
    click(t.g, "main", "command5");
    SaveForm& f = t.g.forms.savefrm;
    EXPECT_TRUE(f.visible && f.save.visible && f.saveslot[0].value && t.g.forms.main.visible);
    click(t.g, "savefrm", "saveslot", 1);
    click(t.g, "savefrm", "save");
    EXPECT_EQ(t.take().back(), testing::okbox("Game Saved"));
    EXPECT_EQ(str(f.loaded, std::filesystem::exists("tvsave1.tvs")), "0 1");
    click(t.g, "main", "command5");  // captions don't follow saves made in this run...
    EXPECT_EQ(f.saveslot[1].caption, "GAME SLOT 1");
    TestGame next;  // ...and show the band from the next start on, before the screen opens
    const SaveForm& n = next.g.forms.savefrm;
    EXPECT_EQ(str(n.saveslot[1].caption, n.saveslot[2].caption), "The Wasps GAME SLOT 1");
}

TEST_F(InTempDir, LoadFromTheTitleScreenResumesTheGame) {
    {
        TestGame first;
        first.new_game().full_band();
        first.r.membername[3] = "None";
        first.songs({20, 30});
        first.r.cash = 1234;
        std::string why;
        ASSERT_TRUE(write_save(first.r, slot_file(2), why));
    }
    TestGame t;
    t.r.singlehype[1] = 55;  // not in a save: the running value stays
    click(t.g, "Form1", "load");
    SaveForm& f = t.g.forms.savefrm;
    EXPECT_EQ(str(f.save.visible, f.load.pos.left, t.r.slotname[0] + "|" + t.r.slotname[2]),
              "0 88 |The Wasps");
    click(t.g, "savefrm", "load");  // slot 0 is chosen and empty
    EXPECT_EQ(t.take().back(), kNotValid);
    EXPECT_TRUE(f.visible && t.g.forms.Form1.visible && !std::filesystem::exists("tvsave0.tvs"));
    click(t.g, "savefrm", "saveslot", 2);
    click(t.g, "savefrm", "load");
    EXPECT_EQ(t.take().back(), testing::okbox("Game Loaded"));
    const OfficeForm& office = t.g.forms.main;
    EXPECT_EQ(str(t.g.forms.Form1.loaded, f.loaded, office.visible, t.r.singlehype[1],
                  office.txtcash.caption),
              "0 0 1 55 £ 1234");                                            // update
    EXPECT_EQ(office.members.rows, (Rows{"Ann Vox", "Bob Axe", "Di Kit"}));  // listupdate
    EXPECT_EQ(office.songlist.rows, (Rows{"Song 1", "Song 2"}));             // updatesonglist
}

TEST_F(InTempDir, RefusedLoadLeavesTheRunningGameExactlyAsItWasAndBackHidesTheScreen) {
    TestGame t;
    t.new_game();
    Bytes b = save_bytes(t.r);
    b[at(600)] = 200;  // a length word far down the file
    std::ofstream("tvsave0.tvs", std::ios::binary)
        .write(reinterpret_cast<const char*>(b.data()), static_cast<std::streamsize>(b.size()));
    t.r.cash = 5;
    click(t.g, "main", "command5");
    const auto before = snapshot(t.g);
    click(t.g, "savefrm", "load");
    EXPECT_EQ(t.take().back(), kNotValid);
    EXPECT_EQ(snapshot(t.g), before);
    click(t.g, "savefrm", "saveslot", 3);
    click(t.g, "savefrm", "back");
    SaveForm& f = t.g.forms.savefrm;
    EXPECT_TRUE(f.loaded && !f.visible);
    click(t.g, "main", "command5");  // the next opening finds it as left
    EXPECT_TRUE(f.saveslot[3].value && !f.saveslot[0].value);
    savefrm_back(t.g);
    EXPECT_TRUE(f.loaded && !f.visible);
}

TEST(NewGameNames, RefusesNamesASaveCannotHold) {
    TestGame t;
    t.port.queue_input(std::string(127, 'a'));
    click(t.g, "Form1", "New");
    EXPECT_EQ(t.take().back(), critical("Names can be at most 126 characters."));
    EXPECT_EQ(t.r.bandname, "");
    t.port.queue_input("Bånd");
    t.port.queue_input("Søren 日本");
    click(t.g, "Form1", "New");
    EXPECT_EQ(t.take().back(), critical("Names can only use Western European letters."));
    EXPECT_EQ(t.r.bandname + "|" + t.r.playername, "Bånd|");
    EXPECT_TRUE(t.g.forms.Form1.visible);
    // 126 letters fit, though they take more bytes in memory.
    t.new_game("Bånd", std::string(63, 'a') + "é" + std::string(62, 'b'));
    EXPECT_TRUE(t.g.forms.main.visible);
    EXPECT_EQ(cp1252_size(t.r.playername), 126u);
}

}  // namespace
}  // namespace tourvane
