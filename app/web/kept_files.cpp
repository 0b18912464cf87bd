#include "app/web/kept_files.h"

#include <limits>

namespace tourvane {

std::optional<std::vector<std::uint8_t>> KeptFiles::read(const std::filesystem::path& path,
                                                         std::size_t limit) {
    return folder_.read(path, limit);
}

bool KeptFiles::replace(const std::filesystem::path& path, std::span<const std::uint8_t> bytes,
                        std::string& reason) {
    const auto old = folder_.read(path, std::numeric_limits<std::size_t>::max());
    if (!folder_.replace(path, bytes, reason)) return false;
    const std::string refused = keep_();
    if (refused.empty()) return true;
    // The storage still holds the old file: so does the folder again.
    std::string ignored;
    if (old)
        folder_.replace(path, *old, ignored);
    else
        folder_.remove(path);
    reason = "this browser's storage did not take it (" + refused + ")";
    return false;
}

void KeptFiles::remove(const std::filesystem::path& path) {
    folder_.remove(path);
    keep_();  // a history left behind names another save, and a load leaves it out
}

}  // namespace tourvane
