#include "rules/files/record_file.h"

#include <fcntl.h>
#include <unistd.h>
#include <algorithm>
#include <bit>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <cstring>

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

std::string describe_errno(int err) {
    return err ? std::strerror(err) : "Unknown error";
}

/// RAII for a C stream.
struct File {
    std::FILE* f = nullptr;
    ~File() {
        if (f) std::fclose(f);
    }
    /// Closes the file; false (with errno set) when the last writes failed.
    bool close() {
        std::FILE* closing = f;
        f = nullptr;
        return std::fclose(closing) == 0;
    }
};

}  // namespace

std::uint8_t* RecordWriter::next_record() {
    const std::size_t at = buf_.size();
    buf_.resize(at + kRecordBytes, 0);
    return buf_.data() + at;
}

void RecordWriter::put_string(std::string_view utf8) {
    std::string text;
    utf8_to_cp1252(utf8, text);
    if (text.size() > kMaxStringBytes) text.resize(kMaxStringBytes);
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
    put_le(next_record(), std::bit_cast<std::uint64_t>(v), 8);
}

void RecordReader::take(std::uint8_t* out, std::size_t n) {
    const std::size_t start = record_ * kRecordBytes;
    for (std::size_t i = 0; i < n; ++i) out[i] = start + i < bytes_.size() ? bytes_[start + i] : 0;
    ++record_;
}

std::string RecordReader::get_string() {
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
    return cp1252_to_utf8(
        std::string_view(reinterpret_cast<const char*>(bytes_.data() + start + 2), length));
}

Integer RecordReader::get_integer() {
    std::uint8_t b[2];
    take(b, 2);
    return static_cast<Integer>(static_cast<std::uint16_t>(get_le(b, 2)));
}

Long RecordReader::get_long() {
    std::uint8_t b[4];
    take(b, 4);
    return static_cast<Long>(static_cast<std::uint32_t>(get_le(b, 4)));
}

Date RecordReader::get_date() {
    std::uint8_t b[8];
    take(b, 8);
    const Date d = std::bit_cast<Date>(get_le(b, 8));
    if (!(d >= kFirstDay && d <= kLastDay)) {
        damaged_ = true;
        return 0.0;
    }
    return d;
}

std::optional<std::vector<std::uint8_t>> read_file(const std::filesystem::path& path,
                                                   std::size_t limit) {
    File file{std::fopen(path.c_str(), "rb")};
    if (!file.f) return std::nullopt;
    std::setvbuf(file.f, nullptr, _IONBF, 0);
    // Sized from the file's length so that the whole file comes in one read.
    std::size_t want = 4096;
    if (std::fseek(file.f, 0, SEEK_END) == 0) {
        const long size = std::ftell(file.f);
        if (size >= 0) want = static_cast<std::size_t>(size) + 1;  // +1 sees the end at once
        std::rewind(file.f);
    }
    std::vector<std::uint8_t> bytes;
    while (bytes.size() < limit) {
        const std::size_t at = bytes.size();
        const std::size_t chunk = std::min(want, limit - at);
        bytes.resize(at + chunk);
        const std::size_t got = std::fread(bytes.data() + at, 1, chunk, file.f);
        bytes.resize(at + got);
        if (got < chunk) break;
        want = 65536;
    }
    if (std::ferror(file.f)) return std::nullopt;  // a folder, or a failing disk
    return bytes;
}

bool replace_file(const std::filesystem::path& path, std::span<const std::uint8_t> bytes,
                  std::string& reason) {
    std::filesystem::path fresh = path;
    fresh += ".new";
    File file{std::fopen(fresh.c_str(), "wb")};
    if (!file.f) {
        reason = describe_errno(errno);
        return false;
    }
    std::setvbuf(file.f, nullptr, _IONBF, 0);  // the whole buffer in one write
    errno = 0;
    // The new file is on the disk before it takes the old one's name, so that a power cut
    // leaves the old save or the new one, never a torn or empty file.
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.f) == bytes.size() &&
                         std::fflush(file.f) == 0 && ::fsync(fileno(file.f)) == 0;
    const int write_error = errno;
    const bool closed = file.close();
    if (!written || !closed) {
        reason = describe_errno(!written ? write_error : errno);
        std::remove(fresh.c_str());
        return false;
    }
    if (std::rename(fresh.c_str(), path.c_str()) != 0) {
        reason = describe_errno(errno);
        std::remove(fresh.c_str());
        return false;
    }
    // And the rename itself is on the disk: the folder is flushed too. A folder that cannot be
    // read, or a file system that cannot flush one (EINVAL), gives no such promise to keep.
    std::filesystem::path folder = path.parent_path();
    if (folder.empty()) folder = ".";
    const int dir = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (dir < 0) return true;
    const bool synced = ::fsync(dir) == 0 || errno == EINVAL;
    const int sync_error = errno;
    ::close(dir);
    if (!synced) reason = describe_errno(sync_error);
    return synced;
}

}  // namespace tourvane
