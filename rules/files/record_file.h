#pragma once
// Record files: a plain run of 128-byte records, one value a record, transferred in order.
// Save games and the rival bands file are both record files.
//
// Encoding, all little-endian: a String is a 16-bit length and that many Windows-1252 bytes,
// an Integer 16 bits, a Long 32 bits, a Boolean an Integer holding -1 or 0, and a Date an
// IEEE double counting days from 30 December 1899. A field starts at byte 0 of its record and
// the rest of the record is filler, written as zeros and never read.

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/file_port.h"
#include "core/numeric.h"

namespace tourvane {

inline constexpr std::size_t kRecordBytes = 128;

/// The longest text a record can hold, in Windows-1252 bytes.
inline constexpr std::size_t kMaxStringBytes = kRecordBytes - 2;

/// Lays records one after another into one buffer, to be written to disk in one go.
class RecordWriter {
  public:
    /// Makes the room for `expected_records` at once; more still fit.
    explicit RecordWriter(std::size_t expected_records = 0)
        : buf_(expected_records * kRecordBytes) {}

    /// Text in UTF-8, stored in Windows-1252. A character the code page lacks is stored as
    /// '?', and text beyond 126 bytes is cut.
    void put_string(std::string_view utf8);
    void put_integer(Integer v);
    void put_long(Long v);
    void put_boolean(Boolean v) { put_integer(v); }
    void put_date(Date v);
    /// A record holding the two bytes 00 00.
    void put_blank() { put_integer(0); }

    /// The records laid so far.
    std::vector<std::uint8_t> take() {
        buf_.resize(used_);
        return std::move(buf_);
    }

  private:
    std::uint8_t* next_record();
    std::vector<std::uint8_t> buf_;  ///< the records, then zeros for those still to come
    std::size_t used_ = 0;
};

/// Reads records in order from bytes in memory. Reading past the end gives empty text and
/// zeros. A record that can't be trusted (a length word above 126, text running past the end
/// of the file, a date no calendar holds) marks the whole file as damaged.
class RecordReader {
  public:
    explicit RecordReader(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    /// Text converted to UTF-8.
    std::string get_string() {
        std::string text;
        get_string(text);
        return text;
    }
    /// The same into `out`, using the room it already has.
    void get_string(std::string& out);
    /// Moves past a text record, checking it as get_string does.
    void skip_string() { text_bytes(); }
    Integer get_integer();
    Long get_long();
    Boolean get_boolean() { return get_integer(); }
    Date get_date();
    /// Moves past a record unread.
    void skip() { ++record_; }

    bool damaged() const { return damaged_; }
    /// How many records have been transferred.
    std::size_t records_read() const { return record_; }

  private:
    /// The bytes of the text in the current record, and moves on to the next record. Empty
    /// past the end of the file and in a record that can't be trusted.
    std::string_view text_bytes();
    /// The first `n` bytes of the current record as a little-endian number (zeros past the
    /// end of the file), and moves on to the next record.
    template <std::size_t N>
    std::uint64_t take();

    std::span<const std::uint8_t> bytes_;
    std::size_t record_ = 0;
    bool damaged_ = false;
};

/// The earliest and latest days a Date can show: 1 January 100 and 31 December 9999.
inline constexpr Date kFirstDay = -657434.0;
inline constexpr Date kLastDay = 2958465.0;

}  // namespace tourvane
