#pragma once
// What the benchmark program measures beside time.

#include <cstddef>

namespace tourvane::bench {

/// How many allocations the program has made since it started.
std::size_t allocations();

/// The counter in which a week benchmark reports the random draws of its average week.
inline constexpr const char* kDrawsPerWeek = "draws/week";

}  // namespace tourvane::bench
