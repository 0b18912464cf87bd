#include "core/rnd.h"

#include <chrono>

namespace tourvane {

namespace {
std::uint64_t splitmix64(std::uint64_t& x) {
    std::uint64_t z = (x += 0x9E3779B97F4A7C15ull);
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
    return z ^ (z >> 31);
}
}  // namespace

void Rnd::reseed(std::uint64_t seed) {
    for (auto& word : s_) word = splitmix64(seed);
}

void Rnd::reseed_from_clock() {
    reseed(static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count()));
}

}  // namespace tourvane
