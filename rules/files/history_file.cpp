#include "rules/files/history_file.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <string_view>

#include "core/bit_cast.h"
#include "rules/files/record_file.h"
#include "rules/files/save_file.h"

namespace tourvane {

namespace {

constexpr std::string_view kMagic{"TVHIST\x1a\x01", 8};

/// No diary entry is anywhere near this long; a longer one is a damaged file.
constexpr std::uint32_t kMaxText = 1 << 16;

class Writer {
  public:
    void u64(std::uint64_t v, int n = 8) {
        for (int i = 0; i < n; ++i) out.push_back(static_cast<std::uint8_t>(v >> (8 * i)));
    }
    void date(Date d) { u64(bit_cast<std::uint64_t>(d)); }
    void text(const std::string& s) {
        u64(s.size(), 4);
        out.insert(out.end(), s.begin(), s.end());
    }
    void sample(const WeekSample& s) {
        date(s.date);
        u64(static_cast<std::uint32_t>(s.cash), 4);
        u64(static_cast<std::uint16_t>(s.popularity), 2);
        u64(static_cast<std::uint32_t>(s.segment), 4);
    }
    std::vector<std::uint8_t> out;
};

class Reader {
  public:
    explicit Reader(std::span<const std::uint8_t> bytes) : in_(bytes) {}
    bool ok = true;

    std::uint64_t u64(std::size_t n = 8) {
        if (!ok || in_.size() - at_ < n) return fail();
        std::uint64_t v = 0;
        for (std::size_t i = 0; i < n; ++i) v |= std::uint64_t{in_[at_ + i]} << (8 * i);
        at_ += n;
        return v;
    }
    Date date() {
        const Date d = bit_cast<Date>(u64());
        if (!(d >= kFirstDay && d <= kLastDay)) fail();
        return ok ? d : 0;
    }
    std::string text() {
        const std::uint64_t n = u64(4);
        if (n > kMaxText || in_.size() - at_ < n) return fail(), std::string();
        std::string s(reinterpret_cast<const char*>(in_.data() + at_), n);
        at_ += n;
        return s;
    }
    WeekSample sample() {
        WeekSample s;
        s.date = date();
        s.cash = static_cast<Long>(static_cast<std::uint32_t>(u64(4)));
        s.popularity = static_cast<Integer>(static_cast<std::uint16_t>(u64(2)));
        s.segment = static_cast<int>(static_cast<std::uint32_t>(u64(4)));
        return s;
    }
    /// A count of items of at least `size` bytes each, that the rest of the bytes can hold.
    std::size_t count(std::size_t size) {
        const std::uint64_t n = u64(4);
        if (n > (in_.size() - at_) / size) return fail(), 0;
        return n;
    }
    bool at_end() const { return ok && at_ == in_.size(); }

  private:
    std::uint64_t fail() {
        ok = false;
        return 0;
    }
    std::span<const std::uint8_t> in_;
    std::size_t at_ = 0;
};

constexpr std::size_t kSampleBytes = 18;

}  // namespace

std::filesystem::path history_file(int slot) {
    return "tvsave" + std::to_string(slot) + ".tvh";
}

std::uint64_t save_mark(std::span<const std::uint8_t> save) {
    constexpr std::uint64_t kPrime = 1099511628211ull;
    // A zero byte only multiplies by the prime, so the zeros that end a record are one
    // multiplication by a power of the prime: the same FNV-1a sum, taking only the bytes up to
    // the last non-zero one of each record.
    static constexpr auto kPowers = [] {
        std::array<std::uint64_t, kRecordBytes + 1> p{};
        p[0] = 1;
        for (std::size_t i = 1; i < p.size(); ++i) p[i] = p[i - 1] * kPrime;
        return p;
    }();
    std::uint64_t h = 14695981039346656037ull;
    for (std::size_t at = 0; at < save.size(); at += kRecordBytes) {
        const std::uint8_t* record = save.data() + at;
        const std::size_t size = std::min(kRecordBytes, save.size() - at);
        std::size_t used = size;
        if (size == kRecordBytes) {  // whole words of zeros first
            std::uint64_t words[kRecordBytes / 8];
            std::memcpy(words, record, kRecordBytes);
            while (used > 0 && words[used / 8 - 1] == 0) used -= 8;
        }
        while (used > 0 && record[used - 1] == 0) --used;
        for (std::size_t i = 0; i < used; ++i) h = (h ^ record[i]) * kPrime;
        h *= kPowers[size - used];
    }
    return h;
}

std::vector<std::uint8_t> history_bytes(const Game& g, std::uint64_t mark) {
    Writer w;
    w.out.assign(kMagic.begin(), kMagic.end());
    w.u64(mark);
    w.u64(g.diary.size(), 4);
    for (const DiaryEntry& e : g.diary) {
        w.date(e.date);
        w.text(e.from);
        w.text(e.text);
    }
    for (const auto* samples : {&g.history, &g.segments}) {
        w.u64(samples->size(), 4);
        for (const WeekSample& s : *samples) w.sample(s);
    }
    return std::move(w.out);
}

std::optional<CareerHistory> parse_history(std::span<const std::uint8_t> bytes,
                                           std::uint64_t mark) {
    if (!looks_like_history(bytes)) return std::nullopt;
    Reader in(bytes.subspan(kMagic.size()));
    if (in.u64() != mark) return std::nullopt;
    CareerHistory h;
    h.diary.resize(in.count(16));
    for (DiaryEntry& e : h.diary) {
        e.date = in.date();
        e.from = in.text();
        e.text = in.text();
    }
    for (auto* samples : {&h.history, &h.segments}) {
        samples->resize(in.count(kSampleBytes));
        for (WeekSample& s : *samples) s = in.sample();
    }
    // Each stretch of play is numbered from 0 in order, and each week belongs to one of them.
    for (std::size_t k = 0; k < h.segments.size(); ++k)
        if (h.segments[k].segment != static_cast<int>(k)) return std::nullopt;
    int last = 0;
    for (const WeekSample& s : h.history) {
        if (s.segment < last || s.segment >= static_cast<int>(h.segments.size()))
            return std::nullopt;
        last = s.segment;
    }
    if (!in.at_end()) return std::nullopt;
    return h;
}

bool looks_like_history(std::span<const std::uint8_t> bytes) {
    return bytes.size() >= kMagic.size() &&
           std::memcmp(bytes.data(), kMagic.data(), kMagic.size()) == 0;
}

void write_history(const Game& g, int slot, std::span<const std::uint8_t> save) {
    std::string reason;
    if (!g.files->replace(history_file(slot), history_bytes(g, save_mark(save)), reason))
        g.files->remove(history_file(slot));
}

CareerHistory read_history(FilePort& files, int slot, const Module1& saved) {
    const auto bytes = files.read(history_file(slot), kMaxHistoryBytes);
    if (!bytes) return {};
    return parse_history(*bytes, save_mark(save_bytes(saved))).value_or(CareerHistory{});
}

}  // namespace tourvane
