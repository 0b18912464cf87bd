// How fast the rules run: one random draw, full and plain weeks, the chart, and saving and
// loading a game.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "bench/measure.h"
#include "core/scripted_port.h"
#include "flow/clicks.h"
#include "flow/office.h"
#include "rules/files/save_file.h"
#include "rules/music/chart.h"
#include "rules/week/turn.h"

namespace tourvane {
namespace {

/// A band of four with a full chart and money that never runs out; `Kind` says the rest.
struct Band {
    ScriptedPort port;  // answers every box at once: OK, and No to the practice question
    Game g{port};

    explicit Band(Integer attitude) {
        load_main(g, 7);
        Module1& r = g.rec;
        r.bandname = "The Wasps";
        r.playername = "Samantha Hartley";  // long enough for the office heading to need the heap
        const char* names[] = {"", "Ann Vox", "Bob Axe", "Cy Low", "Di Kit"};
        for (int s = 1; s <= 4; ++s) {
            r.membername[s] = names[s];
            r.membertalent[s] = 5;
            r.membercreativity[s] = 3;
            r.memberattitude[s] = attitude;
            r.memberhappy[s] = 7;
            r.membercharisma[s] = r.memberlooks[s] = 6;
        }
        for (int row = kFirstRivalRow; row <= kChartRows; ++row) {
            r.chartband[row] = r.rivalname[row - kFirstRivalRow] = "Rival " + std::to_string(row);
            r.charttitle[row] = "Hit " + std::to_string(row);
            r.chartquality[row] = 50;
            r.chartdemand[row] = 100;
            r.chartlife[row] = 250;
        }
    }

    /// What every week needs done before it, as the player's clicks between weeks would.
    void clear_desk() {
        g.memos.clear();
        g.forms.main.enabled = true;
        // Millions of weeks would pile millions of boxes into the diary and weeks into the
        // history; a real game's stay small, so each week starts them afresh.
        g.diary.clear();
        g.history.clear();
    }
};

/// A signed band with ten singles on sale, whose members misbehave now and then.
struct SignedBand : Band {
    SignedBand() : Band(2) {
        Module1& r = g.rec;
        for (int k = 1; k <= 10; ++k) {
            r.songname[k] = "Song " + std::to_string(k);
            r.songquality[k] = 40;
            r.released[k] = kTrue;
            r.singledemand[k] = 1200;
        }
        r.songcount = r.nextsong = 10;
        r.signed_ = kTrue;
        r.promotion = 4;
    }

    /// Keeps the band in business between weeks, as a player's gigs and releases would.
    void refill() {
        Module1& r = g.rec;
        r.cash = 1'000'000;
        r.popularity = 2000;
        r.signed_ = kTrue;
        for (int k = 1; k <= 10; ++k)
            if (r.singledemand[k] < 100) r.singledemand[k] = 1200;
        clear_desk();
    }
};

/// An unsigned band that behaves, with three songs written and a fourth in the studio, and
/// no promotion: a week where nothing happens to the band but the practice question.
struct PlainBand : Band {
    PlainBand() : Band(4) {
        Module1& r = g.rec;
        for (int k = 1; k <= 3; ++k) {
            r.songname[k] = "Song " + std::to_string(k);
            r.songquality[k] = 30;
        }
        r.songcount = r.nextsong = 3;
    }

    void refill() {
        Module1& r = g.rec;
        r.cash = 1'000'000;
        r.popularity = 100;  // too few fans for the radio or the television to call
        r.songweeks = 5;     // the song never comes out of the studio
        clear_desk();
    }
};

/// The plain band without its drummer: nobody asks a band short of a member to practise, so
/// its weeks raise no box and no memo at all.
struct QuietBand : PlainBand {
    QuietBand() {
        Module1& r = g.rec;
        r.membername[4] = "None";
        r.membersex[4].clear();
        r.membertalent[4] = r.membercharisma[4] = r.memberattitude[4] = 0;
        r.memberlooks[4] = r.membercreativity[4] = 0;
        r.vacancy = 4;
    }
};

/// Plays `weeks` weeks of a fresh `B` as its benchmark does and counts their random draws.
/// After each week, a copy of the generator as it stood before the week is moved on draw by
/// draw until its next two values are the two the game's generator will give next.
template <class B>
double draws_per_week(benchmark::IterationCount weeks) {
    constexpr std::size_t kMostDraws = 1 << 16;  // far more than a week can draw
    B band;
    double draws = 0;
    for (benchmark::IterationCount w = 0; w < weeks; ++w) {
        band.refill();
        Rnd probe = band.g.rnd;
        command6(band.g);
        Rnd after = band.g.rnd;
        const double first = after();
        const double second = after();
        std::size_t taken = 0;
        for (double value = probe(), next = probe(); value != first || next != second;
             value = next, next = probe())
            if (++taken == kMostDraws) return -1;
        draws += static_cast<double>(taken);
    }
    return draws / static_cast<double>(weeks);
}

/// Weeks of `B` one after another, with the allocations, the boxes and memos (the diary's
/// lines) and the random draws of the average week beside the time.
template <class B>
void run_weeks(benchmark::State& state) {
    B band;
    // The first weeks give the texts of the game the room they keep from then on.
    for (int w = 0; w < 2000; ++w) band.refill(), command6(band.g);
    std::size_t notes = 0, quiet_weeks = 0, quiet_allocations = 0;
    const std::size_t allocations_before = bench::allocations();
    for (auto _ : state) {
        band.refill();
        const std::size_t week_start = bench::allocations();
        command6(band.g);
        notes += band.g.diary.size();
        if (band.g.diary.empty()) {
            ++quiet_weeks;
            quiet_allocations += bench::allocations() - week_start;
        }
        benchmark::DoNotOptimize(band.g.rec.cash);
    }
    const auto per_week = benchmark::Counter::kAvgIterations;
    state.counters["allocs/week"] = benchmark::Counter(
        static_cast<double>(bench::allocations() - allocations_before), per_week);
    state.counters["notes/week"] = benchmark::Counter(static_cast<double>(notes), per_week);
    // A week that raised no box and no memo must have made no allocation at all.
    if (quiet_weeks > 0)
        state.counters["allocs/quiet week"] =
            static_cast<double>(quiet_allocations) / static_cast<double>(quiet_weeks);
    const double draws = draws_per_week<B>(state.iterations());
    if (draws < 0) state.SkipWithError("the draws of a week were not found");
    state.counters[bench::kDrawsPerWeek] = draws;
    state.SetItemsProcessed(state.iterations());
}

/// One draw as the rules make one, `Int(Rnd()*N)+1` stored into an Integer of the record,
/// through the game's own random source.
void BM_Draw(benchmark::State& state) {
    ScriptedPort port;
    Game g{port};
    g.rnd.reseed(7);
    Integer& field = g.rec.songweeks;
    for (auto _ : state) {
        store(field, Int(g.rnd() * 6) + 1);
        benchmark::DoNotOptimize(field);  // stored, and the generator with it, before the next
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_Draw);

/// One Next Week (`command6`), start to end, of the signed band: ten sales boxes, the whole
/// chart moving.
void BM_FullWeek(benchmark::State& state) {
    run_weeks<SignedBand>(state);
}
BENCHMARK(BM_FullWeek);

/// One Next Week of the plain band: only the practice question, the chart still moving.
void BM_PlainWeek(benchmark::State& state) {
    run_weeks<PlainBand>(state);
}
BENCHMARK(BM_PlainWeek);

/// One Next Week of the quiet band: no box, no memo.
void BM_QuietWeek(benchmark::State& state) {
    run_weeks<QuietBand>(state);
}
BENCHMARK(BM_QuietWeek);

/// The weeks bench/web.mjs times in the web page, played natively through the same clicks: a
/// game of the seed 20010901 started, a band of four hired in the office, 150 weeks untimed
/// and the next 150 Next Week clicks timed, each with its boxes answered at once (No to the
/// practice question) and its memos read afterwards, untimed. The time is a week's.
void BM_PageWeek(benchmark::State& state) {
    constexpr int kWeeks = 150;
    for (auto _ : state) {
        ScriptedPort port;
        Game g{port};
        load_main(g, 20010901);
        port.queue_input("Bench");
        port.queue_input("Bench");
        click(g, "Form1", "New");
        for (int i = 0; i < 4; ++i) click(g, "main", "hire");
        const auto read_memos = [&] {
            while (!g.memos.empty() && click(g, "messageForm", "command1") == ClickResult::Done) {
            }
        };
        for (int week = 0; week < kWeeks; ++week) {
            click(g, "main", "command6");
            read_memos();
        }
        std::chrono::duration<double> took{};
        for (int week = 0; week < kWeeks; ++week) {
            const auto start = std::chrono::steady_clock::now();
            click(g, "main", "command6");
            took += std::chrono::steady_clock::now() - start;
            read_memos();
        }
        if (g.ended) state.SkipWithError("the game ended before its weeks were played");
        state.SetIterationTime(took.count() / kWeeks);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_PageWeek)->UseManualTime()->Iterations(30)->Unit(benchmark::kMicrosecond);

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

/// Load Game as the save screen does it: the file read, checked and read over the running
/// record.
void BM_Load(benchmark::State& state) {
    SignedBand band;
    ScratchFolder folder;
    const std::filesystem::path file = folder.path / slot_file(0);
    std::string reason;
    if (!write_save(band.g.rec, file, reason)) state.SkipWithError(reason.c_str());
    for (auto _ : state) {
        if (!read_save(file, band.g.rec)) state.SkipWithError("the save did not load");
        benchmark::DoNotOptimize(band.g.rec);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_Load)->UseRealTime();

/// The save's records laid in memory and read back over the running record, with no file:
/// the part of a save and of a load that walks the fields.
void BM_SaveBytes(benchmark::State& state) {
    SignedBand band;
    for (auto _ : state) benchmark::DoNotOptimize(save_bytes(band.g.rec));
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_SaveBytes);

void BM_LoadBytes(benchmark::State& state) {
    SignedBand band;
    const std::vector<std::uint8_t> bytes = save_bytes(band.g.rec);
    for (auto _ : state) {
        if (!load_save(bytes, band.g.rec)) state.SkipWithError("the save did not load");
        benchmark::DoNotOptimize(band.g.rec);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_LoadBytes);

}  // namespace
}  // namespace tourvane
