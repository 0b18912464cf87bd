#include "rules/files/record_file.h"

#include <cmath>
#include <cstring>

#include "core/bit_cast.h"
#include "rules/files/cp1252.h"

namespace tourvane {

namespace {

void put_le(std::uint8_t* out, std::uint64_t v, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) out[i] = static_cast<std::uint8_t>(v >> (8 * i));
}

std::uint64_t get_le(const std::uint8_t* in, std::size_t n) {
    std::uint64_t v = 0;
    for (std::size_t i = 0; i < n; ++i) v |= static_cast<std::uint64_t>(in[i]) << (8 * i);
    return v;
}

}  // namespace

std::uint8_t* RecordWriter::next_record() {
    const std::size_t at = used_;
    used_ += kRecordBytes;
    if (used_ > buf_.size()) buf_.resize(used_);
    return buf_.data() + at;
}

void RecordWriter::put_string(std::string_view utf8) {
    std::string converted;
    std::string_view text = utf8;  // plain ASCII is the same bytes in both
    if (!is_ascii(utf8)) {
        utf8_to_cp1252(utf8, converted);
        text = converted;
    }
    text = text.substr(0, kMaxStringBytes);
    std::uint8_t* rec = next_record();
    put_le(rec, text.size(), 2);
    std::memcpy(rec + 2, text.data(), text.size());
}

void RecordWriter::put_integer(Integer v) {
    put_le(next_record(), static_cast<std::uint16_t>(v), 2);
}

void RecordWriter::put_long(Long v) {
    put_le(next_record(), static_cast<std::uint32_t>(v), 4);
}

void RecordWriter::put_date(Date v) {
    put_le(next_record(), bit_cast<std::uint64_t>(v), 8);
}

template <std::size_t N>
std::uint64_t RecordReader::take() {
    const std::size_t start = record_ * kRecordBytes;
    ++record_;
    std::uint8_t b[N] = {};
    if (start + N <= bytes_.size())
        std::memcpy(b, bytes_.data() + start, N);
    else
        for (std::size_t i = 0; start + i < bytes_.size(); ++i) b[i] = bytes_[start + i];
    return get_le(b, N);
}

std::string_view RecordReader::text_bytes() {
    const std::size_t start = record_ * kRecordBytes;
    ++record_;
    if (start >= bytes_.size()) return {};
    if (start + 2 > bytes_.size()) {
        damaged_ = true;  // the file ends inside the length word
        return {};
    }
    const std::size_t length = get_le(bytes_.data() + start, 2);
    if (length > kMaxStringBytes || start + 2 + length > bytes_.size()) {
        damaged_ = true;
        return {};
    }
    return {reinterpret_cast<const char*>(bytes_.data() + start + 2), length};
}

void RecordReader::get_string(std::string& out) {
    cp1252_to_utf8(text_bytes(), out);
}

Integer RecordReader::get_integer() {
    return static_cast<Integer>(static_cast<std::uint16_t>(take<2>()));
}

Long RecordReader::get_long() {
    return static_cast<Long>(static_cast<std::uint32_t>(take<4>()));
}

Date RecordReader::get_date() {
    const Date d = bit_cast<Date>(take<8>());
    if (!(d >= kFirstDay && d <= kLastDay)) {
        damaged_ = true;
        return 0.0;
    }
    return d;
}

}  // namespace tourvane
