#pragma once
// The game's one source of random draws.
//
// Each draw takes the first value of a queue of exact values if there is one (tests and the
// script driver put them there), and otherwise the next value of a seeded generator.

#include <cstdint>
#include <vector>

namespace tourvane {

class Rnd {
  public:
    explicit Rnd(std::uint64_t seed = 1) { reseed(seed); }

    /// Restarts the fallback generator from `seed`. The queue is kept.
    void reseed(std::uint64_t seed);

    /// Seeds the fallback generator from the system clock, as the game does at start-up.
    void reseed_from_clock();

    /// A draw from 0 up to but not including 1.
    double operator()() {
        // The queue is emptied as its last value is drawn: a queue that is there has values.
        if (!queued_.empty()) [[unlikely]]
            return take_queued();
        return fallback();
    }

    /// Appends exact values (each 0 <= v < 1) to the queue.
    void queue(double v) { queued_.push_back(v); }

    /// How many queued values have not been drawn yet.
    std::size_t queued_left() const { return queued_.size() - next_queued_; }

    /// Drops every queued value.
    void clear_queue() {
        queued_.clear();
        next_queued_ = 0;
    }

  private:
    // Written out here, so that a draw calls no function of its own.
    double take_queued() {
        const double v = queued_[next_queued_++];
        if (next_queued_ == queued_.size()) clear_queue();
        return v;
    }
    double fallback() {
        // xoshiro256+: the top 53 bits make a uniform double in [0, 1).
        const std::uint64_t result = s_[0] + s_[3];
        const std::uint64_t t = s_[1] << 17;
        s_[2] ^= s_[0];
        s_[3] ^= s_[1];
        s_[1] ^= s_[2];
        s_[0] ^= s_[3];
        s_[2] ^= t;
        s_[3] = (s_[3] << 45) | (s_[3] >> 19);
        return static_cast<double>(result >> 11) * 0x1.0p-53;
    }

    std::uint64_t s_[4]{};
    std::vector<double> queued_;
    std::size_t next_queued_ = 0;
};

}  // namespace tourvane
