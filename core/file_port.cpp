#include "core/file_port.h"

#include <fcntl.h>
#include <unistd.h>
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <system_error>

namespace tourvane {

namespace {

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

class DiskFiles : public FilePort {
  public:
    std::optional<std::vector<std::uint8_t>> read(const std::filesystem::path& path,
                                                  std::size_t limit) override {
        return read_file(path, limit);
    }
    bool replace(const std::filesystem::path& path, std::span<const std::uint8_t> bytes,
                 std::string& reason) override {
        return replace_file(path, bytes, reason);
    }
    void remove(const std::filesystem::path& path) override {
        std::error_code ec;
        std::filesystem::remove(path, ec);
    }
};

}  // namespace

FilePort& disk_files() {
    static DiskFiles disk;
    return disk;
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
