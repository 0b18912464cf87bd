#include "rules/files/career_bytes.h"

#include <initializer_list>

#include "core/bit_cast.h"
#include "rules/files/record_file.h"

namespace tourvane {

namespace {
/// No text the game keeps is anywhere near this long; a longer one is a damaged file.
constexpr std::uint64_t kMaxText = 1 << 16;
/// A diary entry: its date and the lengths of its two texts.
constexpr std::size_t kEntryBytes = 16;
constexpr std::size_t kSampleBytes = 18;
}  // namespace

void ByteWriter::number(std::uint64_t v, int n) {
    for (int i = 0; i < n; ++i) out.push_back(static_cast<std::uint8_t>(v >> (8 * i)));
}

void ByteWriter::date(Date d) {
    number(bit_cast<std::uint64_t>(d), 8);
}

void ByteWriter::text(const std::string& s) {
    number(s.size(), 4);
    out.insert(out.end(), s.begin(), s.end());
}

void ByteWriter::sample(const WeekSample& s) {
    date(s.date);
    number(static_cast<std::uint32_t>(s.cash), 4);
    number(static_cast<std::uint16_t>(s.popularity), 2);
    number(static_cast<std::uint32_t>(s.segment), 4);
}

void ByteWriter::career(const std::vector<DiaryEntry>& diary,
                        const std::vector<WeekSample>& history,
                        const std::vector<WeekSample>& segments) {
    number(diary.size(), 4);
    for (const DiaryEntry& e : diary) {
        date(e.date);
        text(e.from);
        text(e.text);
    }
    for (const auto* samples : {&history, &segments}) {
        number(samples->size(), 4);
        for (const WeekSample& s : *samples) sample(s);
    }
}

void ByteWriter::tally(const CareerTally& t) {
    for (Long n : {t.hired, t.lost, t.demos, t.gigs}) number(static_cast<std::uint32_t>(n), 4);
    date(t.best_gig.date);
    text(t.best_gig.venue);
    for (Integer n : {t.best_gig.attendance, t.best_gig.profit, t.best_gig.score})
        number(static_cast<std::uint16_t>(n), 2);
    number(static_cast<std::uint16_t>(t.best_place), 2);
    text(t.best_song);
    date(t.best_place_date);
}

std::uint64_t ByteReader::number(std::size_t n) {
    if (!ok_ || in_.size() - at_ < n) return fail(), 0;
    std::uint64_t v = 0;
    for (std::size_t i = 0; i < n; ++i) v |= std::uint64_t{in_[at_ + i]} << (8 * i);
    at_ += n;
    return v;
}

Date ByteReader::date() {
    const Date d = bit_cast<Date>(number(8));
    if (!(d >= kFirstDay && d <= kLastDay)) fail();
    return ok_ ? d : 0;
}

std::string ByteReader::text() {
    const std::uint64_t n = number(4);
    if (n > kMaxText || in_.size() - at_ < n) return fail(), std::string();
    std::string s(reinterpret_cast<const char*>(in_.data() + at_), n);
    at_ += n;
    return s;
}

WeekSample ByteReader::sample() {
    WeekSample s;
    s.date = date();
    s.cash = long_();
    s.popularity = integer();
    s.segment = static_cast<int>(static_cast<std::uint32_t>(number(4)));
    return s;
}

std::size_t ByteReader::count(std::size_t size) {
    const std::uint64_t n = number(4);
    if (n > (in_.size() - at_) / size) return fail(), 0;
    return n;
}

bool ByteReader::career(std::vector<DiaryEntry>& diary, std::vector<WeekSample>& history,
                        std::vector<WeekSample>& segments) {
    diary.resize(count(kEntryBytes));
    for (DiaryEntry& e : diary) {
        e.date = date();
        e.from = text();
        e.text = text();
    }
    for (auto* samples : {&history, &segments}) {
        samples->resize(count(kSampleBytes));
        for (WeekSample& s : *samples) s = sample();
    }
    // Each stretch of play is numbered from 0 in order, and each week belongs to one of them.
    for (std::size_t k = 0; k < segments.size(); ++k)
        if (segments[k].segment != static_cast<int>(k)) return false;
    int last = 0;
    for (const WeekSample& s : history) {
        if (s.segment < last || s.segment >= static_cast<int>(segments.size())) return false;
        last = s.segment;
    }
    return ok_;
}

CareerTally ByteReader::tally() {
    CareerTally t;
    for (Long* n : {&t.hired, &t.lost, &t.demos, &t.gigs}) *n = long_();
    t.best_gig.date = date();
    t.best_gig.venue = text();
    for (Integer* n : {&t.best_gig.attendance, &t.best_gig.profit, &t.best_gig.score})
        *n = integer();
    t.best_place = integer();
    if (t.best_place < 0 || t.best_place > kChartRows) fail();
    t.best_song = text();
    t.best_place_date = date();
    return t;
}

}  // namespace tourvane
