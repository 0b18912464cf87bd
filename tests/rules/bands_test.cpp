// The rival bands file: its contents, where it is found, and the rows and pool it sets up.

#include <fstream>

#include "music/bands.h"
#include "saves/record_file.h"
#include "temp_dir.h"
#include "test_game.h"

namespace tourvane {
namespace {

using Bytes = std::vector<std::uint8_t>;

/// A bands file whose entry i is "Band i", fame i, "Song i", quality 30 + i, demand 100 + i.
Bytes numbered_bands() {
    RecordWriter w;
    for (int i = 0; i < kBandEntries; ++i) {
        w.put_string("Band " + std::to_string(i));
        w.put_integer(static_cast<Integer>(i));
        w.put_string("Song " + std::to_string(i));
        w.put_integer(static_cast<Integer>(30 + i));
        w.put_integer(static_cast<Integer>(100 + i));
    }
    return w.take();
}

void write_all(const std::filesystem::path& p, const Bytes& b) {
    std::ofstream(p, std::ios::binary)
        .write(reinterpret_cast<const char*>(b.data()), static_cast<std::streamsize>(b.size()));
}

Bytes read_all(const std::filesystem::path& p) {
    std::ifstream in(p, std::ios::binary);
    return Bytes(std::istreambuf_iterator<char>(in), {});
}

/// True when rows 20 to 70 hold the built-in records.
bool rows_are_builtin(const Module1& r) {
    const auto table = parse_bands(builtin_bands());
    for (int row = kFirstRivalRow; row <= kChartRows; ++row) {
        const RivalEntry& e = (*table)[row - kFirstRivalRow];
        if (r.chartband[row] != e.band || r.chartdemand[row] != e.demand) return false;
    }
    return true;
}

TEST(BandsFile, OurRivalsBehaveLikeTheChartsOwnRecordsAndShipBesideTheProgram) {
    const auto table = parse_bands(builtin_bands());
    ASSERT_TRUE(table);
    for (const RivalEntry& e : *table) {
        EXPECT_FALSE(e.band.empty() || e.title.empty());
        EXPECT_TRUE(e.fame >= 0 && e.fame <= 100 && e.quality >= 30 && e.quality <= 74 &&
                    e.demand >= 50 && e.demand <= 149)
            << e.band;
    }
    EXPECT_EQ((*table)[42].band, "Señor Cassette");  // Windows-1252 letters read back
    const auto exe = std::filesystem::read_symlink("/proc/self/exe");
    const auto builtin = builtin_bands();
    EXPECT_EQ(read_all(exe.parent_path() / "bands.dat"), Bytes(builtin.begin(), builtin.end()));
    EXPECT_EQ(builtin.size(), 32640u);
    const auto places = bands_search_path();  // here, beside the program, the data folder
    ASSERT_GE(places.size(), 3u);
    EXPECT_EQ(places[0], std::filesystem::path("bands.dat"));
    EXPECT_EQ(places[1], exe.parent_path() / "bands.dat");
    EXPECT_EQ(places[2].parent_path().filename(), "tourvane");
}

TEST(LoadBands, FillsRowsPoolAndLifeFromTheWorkingDirectory) {
    testing::TempDir dir;
    write_all("bands.dat", numbered_bands());
    testing::TestGame t;  // start-up runs loadbands
    const Module1& r = t.r;
    for (int row = 20; row <= 70; ++row) {
        const int i = row - 20;
        EXPECT_EQ(r.chartband[row] + "/" + r.charttitle[row],
                  "Band " + std::to_string(i) + "/Song " + std::to_string(i));
        EXPECT_EQ(r.chartfame[row] + r.chartquality[row] + r.chartdemand[row], 130 + 3 * i);
        EXPECT_EQ(r.chartlife[row], (30 + i) * 4 + i);
    }
    EXPECT_EQ(r.rivalname[0] + r.rivalname[50], "Band 0Band 50");
    EXPECT_EQ(r.rivalfame[50], 50);
    for (int i = 51; i <= 60; ++i) EXPECT_EQ(r.rivalname[i] + std::to_string(r.rivalfame[i]), "0");
    for (int row = 0; row < 20; ++row)
        EXPECT_EQ(r.chartband[row] + std::to_string(r.chartlife[row]), "0");
}

TEST(LoadBands, MissingShortOrDamagedFilesFallBackToTheBuiltInCopy) {
    testing::TempDir dir;
    ScriptedPort port;
    Game g(port);
    const std::vector<std::filesystem::path> here{"bands.dat"};
    EXPECT_FALSE(loadbands_from(g, here));
    EXPECT_TRUE(rows_are_builtin(g.rec));
    EXPECT_FALSE(std::filesystem::exists("bands.dat"));  // nothing is created
    Bytes short_file = numbered_bands();
    short_file.pop_back();
    write_all("bands.dat", short_file);
    EXPECT_FALSE(loadbands_from(g, here));
    EXPECT_TRUE(rows_are_builtin(g.rec));
    Bytes damaged = numbered_bands();
    damaged[128 * 5 * 30] = 127;  // the band of entry 30 claims 127 bytes
    write_all("bands.dat", damaged);
    EXPECT_FALSE(loadbands_from(g, here));
    EXPECT_TRUE(rows_are_builtin(g.rec));
    EXPECT_EQ(read_all("bands.dat"), damaged);  // only read, never written
    // A whole file further along the search path is taken before the built-in copy.
    std::filesystem::create_directory("share");
    write_all("share/bands.dat", numbered_bands());
    EXPECT_EQ(loadbands_from(g, {"bands.dat", "missing/bands.dat", "share/bands.dat"}),
              std::filesystem::path("share/bands.dat"));
    EXPECT_EQ(g.rec.chartband[70], "Band 50");
}

}  // namespace
}  // namespace tourvane
