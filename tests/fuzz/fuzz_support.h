#pragma once
// What the fuzz targets share: a private working folder for the files the game writes, and
// a check that stops the run with a message when a round trip disagrees.

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <span>
#include <string>

namespace tourvane::fuzz {

/// Makes a fresh folder the working directory for the rest of the run, so that save files
/// and bands.dat written by a target never land beside the sources. The folder goes when the
/// run ends normally; after a crash it stays, with the files of the breaking input.
inline void enter_scratch_folder() {
    static std::filesystem::path folder;
    if (!folder.empty()) return;
    std::string pattern =
        (std::filesystem::temp_directory_path() / "tourvane-fuzz-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) std::abort();
    folder = pattern;
    std::filesystem::current_path(folder);
    std::atexit([] {
        std::error_code ec;
        std::filesystem::current_path(folder.parent_path(), ec);
        std::filesystem::remove_all(folder, ec);
    });
}

/// Writes `bytes` to `path` in the working folder.
inline void put_file(const std::filesystem::path& path, std::span<const std::uint8_t> bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(bytes.data()),
              static_cast<std::streamsize>(bytes.size()));
}

}  // namespace tourvane::fuzz

/// Stops the run when a property of the game does not hold for this input.
#define FUZZ_CHECK(cond)                                                                  \
    do {                                                                                  \
        if (!(cond)) {                                                                    \
            std::fprintf(stderr, "%s:%d: check failed: %s\n", __FILE__, __LINE__, #cond); \
            std::abort();                                                                 \
        }                                                                                 \
    } while (0)
