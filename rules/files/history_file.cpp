#include "rules/files/history_file.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

#include "rules/files/career_bytes.h"
#include "rules/files/record_file.h"
#include "rules/files/save_file.h"

namespace tourvane {

namespace {

/// The marks of the two kinds of history file: the first kept the diary and the weeks, this
/// one keeps the career's tally behind them.
constexpr std::string_view kFirstMagic{"TVHIST\x1a\x01", 8};
constexpr std::string_view kMagic{"TVHIST\x1a\x02", 8};

bool starts_with(std::span<const std::uint8_t> bytes, std::string_view magic) {
    return bytes.size() >= magic.size() &&
           std::memcmp(bytes.data(), magic.data(), magic.size()) == 0;
}

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
    ByteWriter w;
    w.out.assign(kMagic.begin(), kMagic.end());
    w.number(mark, 8);
    w.career(g.diary, g.history, g.segments);
    w.tally(g.tally);
    return std::move(w.out);
}

std::optional<CareerHistory> parse_history(std::span<const std::uint8_t> bytes,
                                           std::uint64_t mark) {
    if (!looks_like_history(bytes)) return std::nullopt;
    const bool first = starts_with(bytes, kFirstMagic);
    ByteReader in(bytes.subspan(kMagic.size()));
    if (in.number(8) != mark) return std::nullopt;
    CareerHistory h;
    if (!in.career(h.diary, h.history, h.segments)) return std::nullopt;
    if (!first) h.tally = in.tally();  // a history of the first kind has no tally: it is empty
    if (!in.at_end()) return std::nullopt;
    return h;
}

bool looks_like_history(std::span<const std::uint8_t> bytes) {
    return starts_with(bytes, kFirstMagic) || starts_with(bytes, kMagic);
}

void write_history(const Game& g, const std::filesystem::path& path,
                   std::span<const std::uint8_t> save) {
    std::string reason;
    if (!g.files->replace(path, history_bytes(g, save_mark(save)), reason)) g.files->remove(path);
}

void write_history(const Game& g, int slot, std::span<const std::uint8_t> save) {
    write_history(g, history_file(slot), save);
}

CareerHistory read_history(FilePort& files, const std::filesystem::path& path,
                           const Module1& saved) {
    const auto bytes = files.read(path, kMaxHistoryBytes);
    if (!bytes) return {};
    return parse_history(*bytes, save_mark(save_bytes(saved))).value_or(CareerHistory{});
}

CareerHistory read_history(FilePort& files, int slot, const Module1& saved) {
    return read_history(files, history_file(slot), saved);
}

}  // namespace tourvane
