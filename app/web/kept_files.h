#pragma once
// Files in a folder that lasts only as long as the page, each change then written on to the
// browser's storage. A change the storage does not take is undone in the folder too, so that
// the game never reads a save that would be gone after a reload: a failed save keeps the old.

#include <functional>
#include <string>

#include "core/file_port.h"

namespace tourvane {

class KeptFiles : public FilePort {
  public:
    /// Files in `folder`, written on by `keep`, which returns empty on success, else why not.
    KeptFiles(FilePort& folder, std::function<std::string()> keep)
        : folder_(folder), keep_(std::move(keep)) {}

    std::optional<std::vector<std::uint8_t>> read(const std::filesystem::path& path,
                                                  std::size_t limit) override;
    /// Replaces the file, then keeps it. When the storage refuses, the old file (or none) is
    /// put back and `reason` says what the storage said.
    bool replace(const std::filesystem::path& path, std::span<const std::uint8_t> bytes,
                 std::string& reason) override;
    /// Removes the file and keeps its absence, as far as the storage will.
    void remove(const std::filesystem::path& path) override;

  private:
    FilePort& folder_;
    std::function<std::string()> keep_;
};

}  // namespace tourvane
