#pragma once
// How the files that look back over careers (the history beside a save, the hall of fame)
// write their values: little-endian whole numbers, dates as their 8 bytes, texts as a 32-bit
// length and the bytes, lists as a 32-bit count and the items. The reader checks each count
// against the bytes left and stops at the first value that can't be trusted.

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "core/game.h"

namespace tourvane {

class ByteWriter {
  public:
    /// The low `n` bytes of `v`, lowest first.
    void number(std::uint64_t v, int n);
    void date(Date d);
    void text(const std::string& s);
    void sample(const WeekSample& s);
    /// The diary, then the weeks, then the stretches, each a count and its items.
    void career(const std::vector<DiaryEntry>& diary, const std::vector<WeekSample>& history,
                const std::vector<WeekSample>& segments);
    void tally(const CareerTally& t);

    std::vector<std::uint8_t> out;
};

class ByteReader {
  public:
    explicit ByteReader(std::span<const std::uint8_t> bytes) : in_(bytes) {}

    /// A whole number of `n` bytes; 0 once anything has failed.
    std::uint64_t number(std::size_t n);
    Long long_() { return static_cast<Long>(static_cast<std::uint32_t>(number(4))); }
    Integer integer() { return static_cast<Integer>(static_cast<std::uint16_t>(number(2))); }
    /// A date a save could hold.
    Date date();
    std::string text();
    WeekSample sample();
    /// A count of items of at least `size` bytes each, that the rest of the bytes can hold.
    std::size_t count(std::size_t size);
    /// What ByteWriter::career wrote; false when its stretches and weeks don't fit together.
    bool career(std::vector<DiaryEntry>& diary, std::vector<WeekSample>& history,
                std::vector<WeekSample>& segments);
    CareerTally tally();

    /// Whether every value so far could be read.
    bool ok() const { return ok_; }
    /// Every value could be read, and nothing is left over.
    bool at_end() const { return ok_ && at_ == in_.size(); }
    /// Marks the bytes as not to be trusted.
    void fail() { ok_ = false; }

  private:
    std::span<const std::uint8_t> in_;
    std::size_t at_ = 0;
    bool ok_ = true;
};

}  // namespace tourvane
