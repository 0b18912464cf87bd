// tourvane-soak: plays many weeks of random clicks and checks the game after every one.

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>
#include <string_view>

#include "tests/soak/soak.h"

namespace {

constexpr std::string_view kUsage =
    "Usage: tourvane-soak [--seed N] [--weeks N]\n"
    "Plays N weeks (default 100000) of random clicks, game after game, in a fresh temporary\n"
    "folder, and checks every invariant after every click. The same seed plays the same clicks.\n";

bool read_number(std::string_view text, unsigned long long& out) {
    if (text.empty() || text.find_first_not_of("0123456789") != std::string_view::npos)
        return false;
    try {
        out = std::stoull(std::string(text));
    } catch (...) {
        return false;
    }
    return true;
}

/// A fresh folder that is the working directory while it lives.
class ScratchFolder {
  public:
    ScratchFolder() : old_(std::filesystem::current_path()) {
        std::string pattern =
            (std::filesystem::temp_directory_path() / "tourvane-soak-XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("mkdtemp failed");
        path_ = pattern;
        std::filesystem::current_path(path_);
    }
    ~ScratchFolder() {
        std::error_code ec;
        std::filesystem::current_path(old_, ec);
        std::filesystem::remove_all(path_, ec);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

  private:
    std::filesystem::path old_;
    std::filesystem::path path_;
};

}  // namespace

int main(int argc, char** argv) {
    tourvane::soak::SoakOptions options;
    options.weeks = 100'000;
    for (int i = 1; i < argc; ++i) {
        const std::string_view a = argv[i];
        unsigned long long n = 0;
        if (a == "--help") {
            std::cout << kUsage;
            return 0;
        }
        if ((a == "--seed" || a == "--weeks") && i + 1 < argc && read_number(argv[i + 1], n)) {
            if (a == "--seed")
                options.seed = n;
            else
                options.weeks = static_cast<std::int64_t>(n);
            ++i;
            continue;
        }
        std::cerr << "tourvane-soak: bad argument " << a << "\n" << kUsage;
        return 2;
    }

    ScratchFolder folder;
    const tourvane::soak::SoakReport r = tourvane::soak::run_soak(options);
    std::cout << "soak: seed " << options.seed << ", " << r.weeks << " weeks in " << r.games
              << " games, " << r.clicks << " clicks, " << r.gigs << " gigs (" << r.very_bad_gigs
              << " very bad), " << r.singles << " singles, " << r.saves << " saves, " << r.loads
              << " loads\n";
    for (const std::string& f : r.faults) std::cout << "FAULT " << f << "\n";
    if (!r.faults.empty() || r.weeks < options.weeks) {
        std::cout << "soak failed: " << r.faults.size() << " broken invariants\n";
        return 1;
    }
    std::cout << "soak passed: every invariant held after every click\n";
    return 0;
}
