// The benchmark program's own main: it counts every allocation the program makes, and after
// the benchmarks prints each week's time against the cost of the random draws it made.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <new>
#include <string>
#include <vector>

#include "bench/measure.h"

namespace {
std::size_t allocations_made = 0;

void* allocate(std::size_t size) {
    ++allocations_made;
    if (void* p = std::malloc(size == 0 ? 1 : size)) return p;
    throw std::bad_alloc();
}
}  // namespace

// Every allocation of the program goes through here, so a benchmark can count its own.
void* operator new(std::size_t size) {
    return allocate(size);
}
void* operator new[](std::size_t size) {
    return allocate(size);
}
void operator delete(void* p) noexcept {
    std::free(p);
}
void operator delete[](void* p) noexcept {
    std::free(p);
}
void operator delete(void* p, std::size_t) noexcept {
    std::free(p);
}
void operator delete[](void* p, std::size_t) noexcept {
    std::free(p);
}

namespace tourvane::bench {

std::size_t allocations() {
    return allocations_made;
}

namespace {

/// Shows the runs as the console reporter does and keeps each benchmark's CPU time per
/// iteration and its draws per week, for the ratios printed at the end.
class RatioReporter : public benchmark::ConsoleReporter {
  public:
    RatioReporter() : ConsoleReporter(OO_None) {}

    void ReportRuns(const std::vector<Run>& runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            if (run.error_occurred) continue;
            // Repetitions shown only as aggregates still give their median.
            const bool median_of_repetitions =
                run.run_type == Run::RT_Aggregate && run.aggregate_name == "median";
            if (run.run_type != Run::RT_Iteration && !median_of_repetitions) continue;
            Figures& f = figures_[run.run_name.function_name];
            const double ns = run.GetAdjustedCPUTime() * to_ns(run.time_unit);
            (median_of_repetitions ? f.median_ns : f.ns).push_back(ns);
            const auto draws = run.counters.find(kDrawsPerWeek);
            if (draws != run.counters.end()) f.draws = draws->second.value;
        }
    }

    /// One line per week benchmark: its time against its draws' cost, all from this run; and
    /// the chart's ranking against a full week.
    void print_ratios() const {
        const auto draw = figures_.find("BM_Draw");
        if (draw == figures_.end()) {
            std::printf("\nNo ratios: BM_Draw did not run (a filter must let it through).\n");
            return;
        }
        const double draw_ns = draw->second.time();
        std::printf(
            "\nWeeks against their draws (CPU time, medians of this run; one draw %.2f ns):\n",
            draw_ns);
        for (const auto& [name, f] : figures_) {
            if (f.draws <= 0) continue;
            const double week_ns = f.time();
            std::printf("%-16s %8.0f ns a week, %6.1f draws: %5.2f times their cost (limit 4)\n",
                        name.c_str(), week_ns, f.draws, week_ns / (f.draws * draw_ns));
        }
        const auto ranking = figures_.find("BM_ChartRanking");
        const auto week = figures_.find("BM_FullWeek");
        if (ranking != figures_.end() && week != figures_.end())
            std::printf(
                "BM_ChartRanking  %8.0f ns a ranking: %5.2f full weeks (no limit of its own)\n",
                ranking->second.time(), ranking->second.time() / week->second.time());
    }

  private:
    struct Figures {
        std::vector<double> ns;         // each run's time
        std::vector<double> median_ns;  // the median of its repetitions, when only that is shown
        double draws = 0;

        double time() const { return median(ns.empty() ? median_ns : ns); }
    };

    static double to_ns(benchmark::TimeUnit unit) {
        switch (unit) {
            case benchmark::kSecond:
                return 1e9;
            case benchmark::kMillisecond:
                return 1e6;
            case benchmark::kMicrosecond:
                return 1e3;
            default:
                return 1;
        }
    }

    static double median(std::vector<double> v) {
        std::sort(v.begin(), v.end());
        const std::size_t n = v.size();
        return n % 2 ? v[n / 2] : (v[n / 2 - 1] + v[n / 2]) / 2;
    }

    std::map<std::string, Figures> figures_;
};

}  // namespace
}  // namespace tourvane::bench

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    tourvane::bench::RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.print_ratios();
    benchmark::Shutdown();
    return 0;
}
