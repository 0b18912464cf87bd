#include "rules/files/hall_of_fame.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>

#include "rules/files/career_bytes.h"

namespace tourvane {

namespace {

constexpr std::string_view kMagic{"TVFAME\x1a\x01", 8};

/// Far beyond fifty careers' diaries; the cap keeps a stray huge file out of memory.
constexpr std::size_t kMaxHallBytes = std::size_t{512} << 20;

/// The fewest bytes an entry takes, its texts empty and its lists without items: 55 of the
/// summary, 48 of the tally and 12 of the three counts.
constexpr std::size_t kEntryBytes = 115;

void write_summary(ByteWriter& w, const CareerSummary& s) {
    w.text(s.band);
    w.text(s.boss);
    w.date(s.first_day);
    w.date(s.last_day);
    w.number(static_cast<std::uint32_t>(s.weeks), 4);
    w.number(static_cast<std::uint32_t>(s.peak_cash), 4);
    w.date(s.peak_cash_date);
    w.number(static_cast<std::uint16_t>(s.peak_popularity), 2);
    w.date(s.peak_popularity_date);
    w.number(static_cast<std::uint32_t>(s.singles), 4);
    w.number(s.bankrupt ? 1 : 0, 1);
    w.tally(s.tally);
}

CareerSummary read_summary(ByteReader& in) {
    CareerSummary s;
    s.band = in.text();
    s.boss = in.text();
    s.first_day = in.date();
    s.last_day = in.date();
    s.weeks = in.long_();
    s.peak_cash = in.long_();
    s.peak_cash_date = in.date();
    s.peak_popularity = in.integer();
    s.peak_popularity_date = in.date();
    s.singles = in.long_();
    const std::uint64_t bankrupt = in.number(1);
    if (bankrupt > 1) in.fail();
    s.bankrupt = bankrupt == 1;
    s.tally = in.tally();
    return s;
}

/// Best first; equals keep their order.
void rank(std::vector<FameEntry>& entries) {
    std::stable_sort(entries.begin(), entries.end(), [](const FameEntry& a, const FameEntry& b) {
        return better_career(a.summary, b.summary);
    });
}

}  // namespace

std::filesystem::path hall_file() {
    return "tvfame.tvf";
}

std::vector<std::uint8_t> hall_bytes(const std::vector<FameEntry>& entries) {
    ByteWriter w;
    w.out.assign(kMagic.begin(), kMagic.end());
    w.number(entries.size(), 4);
    for (const FameEntry& e : entries) {
        write_summary(w, e.summary);
        w.career(e.diary, e.history, e.segments);
    }
    return std::move(w.out);
}

std::optional<std::vector<FameEntry>> parse_hall(std::span<const std::uint8_t> bytes) {
    if (bytes.size() < kMagic.size() ||
        std::memcmp(bytes.data(), kMagic.data(), kMagic.size()) != 0)
        return std::nullopt;
    ByteReader in(bytes.subspan(kMagic.size()));
    std::vector<FameEntry> entries(in.count(kEntryBytes));
    for (FameEntry& e : entries) {
        e.summary = read_summary(in);
        if (!in.career(e.diary, e.history, e.segments)) return std::nullopt;
    }
    if (!in.at_end()) return std::nullopt;
    return entries;
}

std::vector<FameEntry> read_hall(FilePort& files) {
    const auto bytes = files.read(hall_file(), kMaxHallBytes);
    std::vector<FameEntry> entries;
    if (bytes) entries = parse_hall(*bytes).value_or(std::vector<FameEntry>{});
    rank(entries);
    return entries;
}

bool add_to_hall(const Game& g) {
    if (!g.game_over) return false;
    const FameEntry career{career_summary(g), g.diary, g.history, g.segments};
    std::vector<FameEntry> entries = read_hall(*g.files);
    if (std::find(entries.begin(), entries.end(), career) != entries.end()) return true;
    entries.push_back(career);
    rank(entries);
    // Only the best are kept; when this career is not among them, nothing changes.
    const auto at = std::find(entries.begin(), entries.end(), career);
    if (at - entries.begin() >= static_cast<std::ptrdiff_t>(kHallPlaces)) return false;
    if (entries.size() > kHallPlaces) entries.resize(kHallPlaces);
    std::string reason;
    return g.files->replace(hall_file(), hall_bytes(entries), reason);
}

}  // namespace tourvane
