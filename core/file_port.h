#pragma once
// The files the game reads and writes, as the rules see them: the save slots, their history
// files and bands.dat. The game and the script driver keep them on the disk; a fuzz target
// can keep them in memory.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tourvane {

class FilePort {
  public:
    virtual ~FilePort() = default;

    /// The first `limit` bytes of the file (all of a shorter one); nothing when it is missing
    /// or can't be read. Never creates a file.
    virtual std::optional<std::vector<std::uint8_t>> read(const std::filesystem::path& path,
                                                          std::size_t limit) = 0;

    /// Puts `bytes` in place of the file, never leaving it half written. On failure `reason`
    /// says what went wrong and the old file is kept.
    virtual bool replace(const std::filesystem::path& path, std::span<const std::uint8_t> bytes,
                         std::string& reason) = 0;

    /// Removes the file, if there is one.
    virtual void remove(const std::filesystem::path& path) = 0;
};

/// The files held in memory instead of on the disk, for the fuzz targets and the tests.
class MemoryFiles : public FilePort {
  public:
    std::map<std::filesystem::path, std::vector<std::uint8_t>> files;

    std::optional<std::vector<std::uint8_t>> read(const std::filesystem::path& path,
                                                  std::size_t limit) override {
        const auto it = files.find(path);
        if (it == files.end()) return std::nullopt;
        const std::size_t n = std::min(limit, it->second.size());
        return std::vector<std::uint8_t>(it->second.begin(), it->second.begin() + n);
    }
    bool replace(const std::filesystem::path& path, std::span<const std::uint8_t> bytes,
                 std::string&) override {
        files[path].assign(bytes.begin(), bytes.end());
        return true;
    }
    void remove(const std::filesystem::path& path) override { files.erase(path); }
};

/// The disk, paths taken from the working directory: read_file, replace_file and remove.
FilePort& disk_files();

/// Reads the first `limit` bytes of a file (all of a shorter one), in one read. Nothing when
/// the file is missing or can't be read. Never creates a file.
std::optional<std::vector<std::uint8_t>> read_file(const std::filesystem::path& path,
                                                   std::size_t limit);

/// Puts `bytes` in place of the file at `path` without ever leaving it half written: the
/// bytes go to a new file beside it, flushed to the disk, which is then renamed over the old
/// one, and the folder is flushed so that the new name lasts through a power cut. On failure
/// `reason` says what went wrong; the old file is as it was unless only that last flush of
/// the folder failed.
bool replace_file(const std::filesystem::path& path, std::span<const std::uint8_t> bytes,
                  std::string& reason);

}  // namespace tourvane
