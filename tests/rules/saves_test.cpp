// Saved games: the record-file layout, reading a file field by field, refused loads, failing
// saves, the save and load screen, the names NEW GAME refuses because a save can't hold them,
// and the career's weeks and the stretches a load starts, kept beside each save.

#include <bit>
#include <cstring>
#include <fstream>
#include <functional>
#include <map>
#include <sstream>

#include "core/bit_cast.h"
#include "core/diary.h"
#include "core/fields.h"
#include "flow/save_screen.h"
#include "rules/files/cp1252.h"
#include "rules/files/history_file.h"
#include "rules/files/record_file.h"
#include "rules/files/save_file.h"
#include "test_game.h"

namespace tourvane::testing {
namespace {

/// The byte offset of record n (counted from 1).
const auto at = [](int record) { return static_cast<std::size_t>(record - 1) * 128; };

/// A game started up in a fresh working directory, on the title screen.
struct Saves : ::testing::Test, TempDir, TestGame {};

// Record 1 the band's name, 3 popularity, 4 signed, 44 memberhappy(4), 56 chartlife(1), 132
// chartlife(20) and again 704, 133 cash, 139 songweeks, 141 gamedate, 143 reserved, 703
// chartdemand(70), 754 chartlife(70), 759 venueopen(5); behind each, filler of zeros.
TEST_F(Saves, KnownGameLandsInItsRecords) {
    new_game("Café", "Sam");
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
        for (std::size_t i = at(std::stoi(item)); i < at(std::stoi(item) + 1); ++i)
            dump += {"0123456789ABCDEF"[b[i] >> 4], "0123456789ABCDEF"[b[i] & 15], ' '};
        EXPECT_EQ(dump, want) << item;
    }
    // The longest name fills its record; text the game can't store never spills.
    r.bandname = std::string(125, 'x') + "é", r.playername = "日本";
    const Bytes c = save_bytes(r);
    for (auto [i, byte] :
         {std::pair{0, 126}, {1, 0}, {127, 233}, {128, 2}, {129, 0}, {130, 63}, {131, 63}})
        EXPECT_EQ(c[i], byte) << "byte " << i;
    EXPECT_EQ(parse_save(c, r).value().bandname, r.bandname);  // and it reads back
    r.bandname = std::string(200, 'y');
    EXPECT_EQ(save_bytes(r)[0], 126);
    std::string all, back;
    for (int ch = 1; ch < 256; ++ch) all += static_cast<char>(ch);
    EXPECT_TRUE(utf8_to_cp1252(cp1252_to_utf8(all), back));
    EXPECT_EQ(back, all);
    EXPECT_EQ(cp1252_to_utf8("\x80\x99"), "€™");
    EXPECT_FALSE(utf8_to_cp1252("a\xC3", back));  // cut-off UTF-8
    EXPECT_EQ(back, "a?");
}

TEST_F(Saves, CraftedFileIsTakenFieldByFieldAndDamagedOnesAreRefused) {
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
    const auto loaded = parse_save(b, r);
    ASSERT_TRUE(loaded);
    EXPECT_TRUE(testing::has(
        *loaded, {is("bandname", "Zoë"), is("playername", ""), is("songname(1)", "“Hi”!"),
                  is("signed", 1), is("memberhappy(1)", -1), is("cash", -2147479552),
                  is("gamedate", 37137), is("chartlife(20)", 9), is("venueopen(1)", -1)}));
    // A short file reads empty and 0 from where it ends.
    const Bytes good = b;
    put(5, {1, 0, 'A'});
    b.resize(at(5) + 3);
    const Module1 cut = parse_save(b, r).value();
    EXPECT_TRUE(testing::has(
        cut, {is("membername(1)", "A"), is("cash", 0), is("songweeks", 0), is("gamedate", 0)}));
    b.resize(at(5));  // ending where a text's record would begin: that text is empty too
    EXPECT_TRUE(testing::has(parse_save(b, r).value(), {is("membername(1)", "")}));

    const Date outside[] = {kFirstDay - 1, kLastDay + 1};  // 31 December 99, 1 January 10000
    const std::function<void(Bytes&)> damage[] = {
        [](Bytes& d) { d.clear(); },
        [](Bytes& d) { d[0] = 0; },                                   // no band's name
        [](Bytes& d) { d[at(7)] = 127; },                             // 127 bytes of sex
        [](Bytes& d) { d[at(145)] = d[at(145) + 1] = 0xFF; },         // a huge length
        [](Bytes& d) { d.resize(at(2) + 1); },                        // inside a length
        [](Bytes& d) { d.resize(4); },                                // a name past the end
        [](Bytes& d) { std::fill_n(d.begin() + at(141), 8, 0xFF); },  // NaN
        [&](Bytes& d) { std::memcpy(d.data() + at(141), &outside[0], 8); },
        [&](Bytes& d) { std::memcpy(d.data() + at(141), &outside[1], 8); },
    };
    for (std::size_t k = 0; k < std::size(damage); ++k) {
        b = good;
        damage[k](b);
        EXPECT_FALSE(parse_save(b, r).has_value()) << k;
    }
    // The calendar's leap years across centuries: 2100 has no 29 February, 2000 had one.
    EXPECT_EQ(format_date(73110) + " " + format_date(73109), "01/03/2100 28/02/2100");
    EXPECT_EQ(format_date(36585) + " " + format_date(36584), "29/02/2000 28/02/2000");
    for (const Date day : {kFirstDay, kLastDay}) {  // the first and last days a date can show
        b = good;
        std::memcpy(b.data() + at(141), &day, 8);
        EXPECT_EQ(parse_save(b, r).value().gamedate, day);
    }
}

// Which field each of the 759 records holds: every element of the game is given a number of
// its own (text "#number"), and each record of the save is read back to the element it came
// from. chartlife(20) stands twice; record 143 holds none.
TEST(SaveLayout, EachRecordHoldsItsFieldInFileOrder) {
    ScriptedPort port;
    Game g(port);
    std::map<int, std::string> whose;
    int id = 100;  // above the length word of any "#number"
    for (const Field& f : fields(g))
        for (int i = f.is_array() ? 0 : -1; i <= f.upper; ++i, ++id) {
            whose[id] = f.name + (i < 0 ? "" : "(" + std::to_string(i) + ")");
            if (f.type == FieldType::String) f.at<std::string>(i) = "#" + std::to_string(id);
            if (f.type == FieldType::Long) f.at<Long>(i) = id;
            if (f.type == FieldType::Date) f.at<Date>(i) = id;
            if (f.type == FieldType::Integer || f.type == FieldType::Boolean) f.at<Integer>(i) = id;
        }
    std::vector<std::string> want{"bandname", "playername", "popularity", "signed"};
    const auto each = [&](int first, int last, std::initializer_list<std::string> names) {
        for (int i = first; i <= last; ++i)
            for (const std::string& name : names)
                want.push_back(name + "(" + std::to_string(i) + ")");
    };
    each(1, 4,
         {"membername", "memberage", "membersex", "memberhappy", "memberill", "memberfriction",
          "membertalent", "membercharisma", "memberattitude", "memberlooks", "membercreativity",
          "listslot"});
    each(1, 20, {"songname", "songquality", "released", "chartlife"});
    want.insert(want.end(), {"cash", "vacancy", "tiredness", "nextsong", "songcount", "spareword",
                             "songweeks", "interviewkind", "gamedate", "promotion", "none"});
    each(1, 70,
         {"chartband", "charttitle", "chartsales", "chartlastsales", "chartplace", "chartfame",
          "chartquality", "chartdemand"});
    each(20, 70, {"chartlife"});
    each(1, 5, {"venueopen"});
    const Bytes b = save_bytes(g.rec);
    ASSERT_EQ(want.size() * 128, b.size());
    for (std::size_t n = 0; n < want.size(); ++n) {
        const auto record = std::span<const std::uint8_t>(b).subspan(n * 128, 128);
        int number = record[2] == '#' ? std::stoi(RecordReader(record).get_string().substr(1))
                                      : RecordReader(record).get_integer();
        if (number == 0) number = static_cast<int>(RecordReader(record).get_date());
        ASSERT_EQ(number ? whose[number] : "none", want[n]) << "record " << n + 1;
    }
}

// The seed saves of the save-file fuzzer are saves as the game writes them: each that loads
// saves back to its own bytes, a short one padded with the zeros it reads as.
TEST(SaveLayout, RealSavesLoadAndSaveBackByteForByte) {
    int saves = 0;
    for (const auto& file :
         std::filesystem::directory_iterator(testdata("fuzz/corpus/save_file"))) {
        Bytes bytes = read_file(file.path(), 1 << 20).value();
        Module1 r;
        if (!load_save(bytes, r)) continue;
        bytes.resize(kSaveBytes);
        EXPECT_TRUE(save_bytes(r) == bytes) << file.path();
        ++saves;
    }
    EXPECT_EQ(saves, 4);
}

TEST_F(Saves, FailingSaveKeepsTheOldSaveAndTheGame) {
    new_game();
    std::string why;
    ASSERT_TRUE(write_save(r, slot_file(2), why));
    const auto old_save = read_file("tvsave2.tvs", 1 << 20);
    r.bandname = "New Band";
    click(g, "main", "command5");
    click(g, "savefrm", "saveslot", 2);
    const std::string cannot = "The game could not be saved in slot 3 (tvsave2.tvs): ";
    std::filesystem::create_directory("tvsave2.tvs.new");  // the new file can't be made
    click(g, "savefrm", "save");
    std::filesystem::remove("tvsave2.tvs.new");
    std::filesystem::create_symlink("/dev/full", "tvsave2.tvs.new");  // the disk fills up
    click(g, "savefrm", "save");
    EXPECT_EQ(take(), (Lines{okbox(cannot + "Is a directory.", true),
                             okbox(cannot + "No space left on device.", true)}));
    EXPECT_FALSE(std::filesystem::is_symlink("tvsave2.tvs.new"));
    EXPECT_EQ(read_file("tvsave2.tvs", 1 << 20), old_save);
    EXPECT_TRUE(g.forms.savefrm.visible);  // another slot can be tried
}

// The office's save (the box, and the load, are in the career scenario) and a load from the
// title screen in the next run: captions, what each slot holds, the back button, and what the
// load refreshes (the lists are checked after every click by the soak).
TEST_F(Saves, SaveFromTheOfficeAndALoadFromTheTitleInTheNextRun) {
    new_game().r.cash = 1234;
    std::ofstream(slot_file(1)).flush();            // empty, as a slot's first start leaves it
    std::ofstream(slot_file(3)) << "\xC8\x00oops";  // a name longer than any record holds
    click(g, "main", "command5");
    EXPECT_TRUE(g.forms.savefrm.save.visible && g.forms.savefrm.saveslot[0].value &&
                g.forms.main.visible);
    click(g, "savefrm", "saveslot", 2);
    click(g, "savefrm", "save");
    click(g, "main", "command5");  // captions don't follow saves made in this run...
    EXPECT_TRUE(has({is("savefrm.loaded", g.forms.savefrm.loaded, true),
                     is(g.forms.savefrm.saveslot[2], "GAME SLOT 1")}));
    TestGame t;              // ...and show the band from the next start on
    t.r.singlehype[1] = 55;  // not in a save: the running value stays
    click(t.g, "Form1", "load");
    SaveForm& f = t.g.forms.savefrm;
    click(t.g, "savefrm", "saveslot", 3);
    click(t.g, "savefrm", "back");
    EXPECT_TRUE(f.loaded && !f.visible);
    click(t.g, "Form1", "load");  // the next opening finds it as left
    const std::string empty = "Empty slot: no game saved here yet.";
    EXPECT_TRUE(t.has(
        {is("save.visible", f.save.visible, false), is("load.left", f.load.pos.left, 88),
         is("saveslot(3).value", f.saveslot[3].value, true),
         is("saveslot(0).value", f.saveslot[0].value, false), is(f.saveslot[1], "GAME SLOT 1"),
         is(f.saveslot[2], "The Wasps"), is("saveslot(0).tooltip", f.saveslot[0].tooltip, empty),
         is("saveslot(1).tooltip", f.saveslot[1].tooltip, empty)}));
    EXPECT_EQ(f.saveslot[2].tooltip, "The Wasps, 01/09/2001, £ 1234");
    EXPECT_EQ(f.saveslot[3].tooltip, "This file is damaged and cannot be loaded.");
    EXPECT_EQ(t.r.cash, 3000);  // the running game is untouched
    click(t.g, "savefrm", "saveslot", 2);
    click(t.g, "savefrm", "load");
    EXPECT_TRUE(t.has({is("Form1.loaded", t.g.forms.Form1.loaded, false),
                       is("savefrm.loaded", f.loaded, false),
                       is("main.visible", t.g.forms.main.visible, true), is("singlehype(1)", 55),
                       is(t.g.forms.main.txtcash, "£ 1234")}));
    std::string why;  // the first slot's name is read as the others' are
    ASSERT_TRUE(write_save(t.r, slot_file(0), why));
    EXPECT_EQ(TestGame().r.slotname[0], "The Wasps");
}

TEST_F(Saves, NewGameRefusesNamesASaveCannotHold) {
    port.queue_input(std::string(127, 'a'));
    click(g, "Form1", "New");
    EXPECT_EQ(take().back(), okbox("Names can be at most 126 characters.", true));
    port.queue_input("Bånd");
    port.queue_input("Søren 日本");
    click(g, "Form1", "New");
    EXPECT_EQ(take().back(), okbox("Names can only use Western European letters.", true));
    EXPECT_EQ(r.bandname + "|" + r.playername, "Bånd|");
    EXPECT_TRUE(g.forms.Form1.visible);
    new_game("Bånd", std::string(63, 'a') + "é" + std::string(62, 'b'));  // 126 letters fit
    EXPECT_TRUE(g.forms.main.visible);
}

/// What the samples of `weeks` (g.history or g.segments) should be, each as {days since the
/// start, cash, popularity, stretch}.
std::vector<Want> samples(const char* what, const std::vector<WeekSample>& weeks,
                          const std::vector<std::array<int, 4>>& want) {
    std::vector<Want> out{is(std::string(what) + " size", weeks.size(), want.size())};
    for (std::size_t k = 0; k < std::min(weeks.size(), want.size()); ++k) {
        const std::string at = what + ("[" + std::to_string(k) + "].");
        out.insert(out.end(), {is(at + "days", weeks[k].date - kStartDate, want[k][0]),
                               is(at + "cash", weeks[k].cash, want[k][1]),
                               is(at + "popularity", weeks[k].popularity, want[k][2]),
                               is(at + "segment", weeks[k].segment, want[k][3])});
    }
    return out;
}

TEST_F(Saves, ALoadStartsANewStretchAndADamagedOrForeignHistoryIsLeftOut) {
    new_game();
    auto week_and_save = [&](int slot) {
        ASSERT_EQ(click(g, "main", "command6"), ClickResult::Done);
        ok_memos();
        click(g, "main", "command5");
        click(g, "savefrm", "saveslot", slot);
        click(g, "savefrm", "save");
    };
    week_and_save(0);
    r.cash = 77;
    week_and_save(1);
    EXPECT_TRUE(has(samples("history", g.history, {{7, 3000, -1, 0}, {14, 77, -1, 0}})));
    EXPECT_TRUE(has(samples("segments", g.segments, {{0, 3000, 0, 0}})));
    click(g, "main", "command5");
    click(g, "savefrm", "saveslot", 0);
    click(g, "savefrm", "load");
    EXPECT_TRUE(has(samples("segments", g.segments, {{0, 3000, 0, 0}, {7, 3000, -1, 1}})));
    week_and_save(2);
    EXPECT_TRUE(has(samples("history", g.history, {{7, 3000, -1, 0}, {14, 3000, -1, 1}})));

    // Damaged, cut short, foreign, another save's, or missing: the load works, with no history.
    // The weeks end 48 bytes before the file does, where an empty tally begins.
    const auto good = read_file(history_file(0), 1 << 20).value();
    const std::size_t weeks_end = good.size() - 48;
    std::vector<Bytes> bad{{good.begin(), good.end() - 1},
                           {'M', 'Z', 0, 0},
                           read_file(history_file(1), 1 << 20).value()};
    bad.push_back(good), bad.back()[19] ^= 0x40;             // a diary longer than the file
    bad.push_back(good), bad.back()[weeks_end - 4] = 0x7f;   // a stretch out of order
    bad.push_back(good), bad.back()[weeks_end - 26] = 1;     // a week of a stretch not there
    bad.push_back(good), bad.back()[good.size() - 14] = 71;  // a chart place past the last row
    bad.push_back({});                                       // none
    for (std::size_t k = 0; k < bad.size(); ++k) {
        std::string why;
        ASSERT_TRUE(bad[k].empty() ? std::filesystem::remove(history_file(0))
                                   : replace_file(history_file(0), bad[k], why));
        TestGame u;
        click(u.g, "Form1", "load");
        click(u.g, "savefrm", "load");
        EXPECT_TRUE(
            u.has({is("savefrm.loaded", u.g.forms.savefrm.loaded, false),
                   is("diary size", u.g.diary.size(), 1), is("history size", u.g.history.size(), 0),
                   is("segments size", u.g.segments.size(), 1),
                   is("the diary's last", u.g.diary.back().text, "Game Loaded")}))
            << k;
    }
}

// A history names its save by the save's FNV-1a sum, so that the histories of earlier versions
// still match their saves: the sum of the bytes as they stand, zeros that end a record included.
TEST(SaveMark, IsTheFnv1aSumOfTheSaveBytes) {
    Bytes two{6, 0, 'f', 'o', 'o', 'b', 'a', 'r'};  // a text record, an empty one, a byte
    two.resize(2 * 128 + 1);
    two.back() = 1;
    EXPECT_EQ(save_mark({}), 0xcbf29ce484222325u);
    EXPECT_EQ(save_mark(Bytes{'f', 'o', 'o', 'b', 'a', 'r'}), 0x85944171f73967e8u);
    EXPECT_EQ(save_mark(two), 0xd1c57dbe008a30d1u);
    EXPECT_EQ(save_mark(Bytes(3 * 128)), 0xc86ec345c0ee8125u);
}

// Dates go into the files as the bits of their double, little end first: the library's bit_cast
// and the copy the web build uses instead give the same bits, so both builds write the same save.
TEST(DateBits, AreTheDoublesOwnBitsWhicheverCastMakesThem) {
    EXPECT_EQ(bit_cast<std::uint64_t>(kStartDate), 0x40e221e000000000u);
    for (const Date d : {kStartDate, kFirstDay, kLastDay, -0.0, 0.5, 37135.75}) {
        EXPECT_EQ(copy_bits<std::uint64_t>(d), std::bit_cast<std::uint64_t>(d)) << d;
        EXPECT_EQ(copy_bits<Date>(copy_bits<std::uint64_t>(d)), d) << d;
    }
    RecordWriter out;
    out.put_date(kStartDate);
    const Bytes all = out.take();
    const Bytes record(all.begin(), all.begin() + 8);
    EXPECT_EQ(record, (Bytes{0, 0, 0, 0, 0xe0, 0x21, 0xe2, 0x40}));
}

}  // namespace
}  // namespace tourvane::testing
