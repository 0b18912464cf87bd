// How fast the rules run: full weeks of a signed band with ten singles on sale, the chart,
// and saving and loading a game.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "core/scripted_port.h"
#include "flow/office.h"
#include "rules/files/save_file.h"
#include "rules/music/chart.h"
#include "rules/week/turn.h"

namespace tourvane {
namespace {

/// A signed band of four with ten singles on sale, a full chart and money that never runs out.
struct SignedBand {
    ScriptedPort port;  // answers every box at once: OK, and No to the practice question
    Game g{port};

    SignedBand() {
        load_main(g, 7);
        Module1& r = g.rec;
        r.bandname = "The Wasps";
        r.playername = "Sam";
        const char* names[] = {"", "Ann Vox", "Bob Axe", "Cy Low", "Di Kit"};
        for (int s = 1; s <= 4; ++s) {
            r.membername[s] = names[s];
            r.membertalent[s] = 5;
            r.membercreativity[s] = 3;
            r.memberattitude[s] = 2;  // misbehaves now and then
            r.memberhappy[s] = 7;
            r.membercharisma[s] = r.memberlooks[s] = 6;
        }
        for (int k = 1; k <= 10; ++k) {
            r.songname[k] = "Song " + std::to_string(k);
            r.songquality[k] = 40;
            r.released[k] = kTrue;
            r.singledemand[k] = 1200;
        }
        r.songcount = r.nextsong = 10;
        r.signed_ = kTrue;
        r.promotion = 4;
        for (int row = kFirstRivalRow; row <= kChartRows; ++row) {
            r.chartband[row] = r.rivalname[row - kFirstRivalRow] = "Rival " + std::to_string(row);
            r.charttitle[row] = "Hit " + std::to_string(row);
            r.chartquality[row] = 50;
            r.chartdemand[row] = 100;
            r.chartlife[row] = 250;
        }
    }

    /// Keeps the band in business between weeks, as a player's gigs and releases would.
    void refill() {
        Module1& r = g.rec;
        r.cash = 1'000'000;
        r.popularity = 2000;
        r.signed_ = kTrue;
        for (int k = 1; k <= 10; ++k)
            if (r.singledemand[k] < 100) r.singledemand[k] = 1200;
        g.memos.clear();
        g.forms.main.enabled = true;
        // Millions of weeks would pile millions of boxes into the diary; a real game's diary
        // stays small, so each week notes its boxes into a short one.
        g.diary.clear();
    }
};

void BM_FullWeek(benchmark::State& state) {
    SignedBand band;
    for (auto _ : state) {
        band.refill();
        command6(band.g);
        benchmark::DoNotOptimize(band.g.rec.cash);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_FullWeek);

void BM_ChartRanking(benchmark::State& state) {
    SignedBand band;
    for (int i = 0; i < 4; ++i) chart_step(band.g);
    for (auto _ : state) {
        rank_chart(band.g);
        benchmark::DoNotOptimize(band.g.rec.chartplace[1]);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_ChartRanking);

/// A folder of its own for the save files, removed afterwards.
struct ScratchFolder {
    std::filesystem::path path =
        std::filesystem::temp_directory_path() / ("tourvane-bench-" + std::to_string(::getpid()));
    ScratchFolder() { std::filesystem::create_directories(path); }
    ~ScratchFolder() {
        std::error_code ec;
        std::filesystem::remove_all(path, ec);
    }
};

/// Save Game as the save screen does it: the whole file written beside the old one and
/// renamed over it.
void BM_Save(benchmark::State& state) {
    SignedBand band;
    ScratchFolder folder;
    const std::filesystem::path file = folder.path / slot_file(0);
    std::string reason;
    for (auto _ : state) {
        if (!write_save(band.g.rec, file, reason)) state.SkipWithError(reason.c_str());
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_Save)->UseRealTime();

/// The same file written and renamed without flushing it or the folder to the disk: what
/// BM_Save would cost without its promise to survive a power cut, for the ratio of the two.
void BM_SaveUnflushed(benchmark::State& state) {
    SignedBand band;
    ScratchFolder folder;
    const std::filesystem::path file = folder.path / slot_file(0);
    const std::filesystem::path fresh = folder.path / "tvsave0.tvs.new";
    for (auto _ : state) {
        const std::vector<std::uint8_t> bytes = save_bytes(band.g.rec);
        std::FILE* f = std::fopen(fresh.c_str(), "wb");
        const bool ok = f && std::fwrite(bytes.data(), 1, bytes.size(), f) == bytes.size();
        if (f) std::fclose(f);
        if (!ok || std::rename(fresh.c_str(), file.c_str()) != 0)
            state.SkipWithError("the file was not written");
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_SaveUnflushed)->UseRealTime();

/// Load Game as the save screen does it: the file read and checked into a fresh record.
void BM_Load(benchmark::State& state) {
    SignedBand band;
    ScratchFolder folder;
    const std::filesystem::path file = folder.path / slot_file(0);
    std::string reason;
    if (!write_save(band.g.rec, file, reason)) state.SkipWithError(reason.c_str());
    for (auto _ : state) {
        auto loaded = read_save(file, band.g.rec);
        if (!loaded) state.SkipWithError("the save did not load");
        benchmark::DoNotOptimize(loaded);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_Load)->UseRealTime();

}  // namespace
}  // namespace tourvane

BENCHMARK_MAIN();
