#pragma once
// A fresh, empty working directory for one test: the game reads and writes its files in the
// working directory, so each test gets its own and the old one comes back afterwards.

#include <cstdlib>
#include <filesystem>
#include <string>

namespace tourvane::testing {

class TempDir {
  public:
    TempDir() : old_(std::filesystem::current_path()) {
        std::string pattern = (std::filesystem::temp_directory_path() / "tourvane-XXXXXX").string();
        path_ = ::mkdtemp(pattern.data());
        std::filesystem::current_path(path_);
    }
    ~TempDir() {
        std::filesystem::current_path(old_);
        std::error_code ec;
        std::filesystem::remove_all(path_, ec);
    }
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path old_;
    std::filesystem::path path_;
};

}  // namespace tourvane::testing
