// tourvane-script: plays the game from a script and prints the transcript.

#include <filesystem>
#include <fstream>
#include <iostream>
#include <string_view>
#include <vector>

#include "app/driver/invocation.h"
#include "app/driver/session.h"
#include "core/about.h"

int main(int argc, char** argv) {
    using namespace tourvane::driver;
    std::ios::sync_with_stdio(false);
    const std::vector<std::string_view> args(argv + 1, argv + argc);
    const Invocation inv = parse_invocation(args);
    if (!inv.error.empty()) {
        std::cerr << "tourvane-script: " << inv.error << "\nTry 'tourvane-script --help'.\n";
        return 2;
    }
    if (inv.help) {
        std::cout << usage();
        return 0;
    }
    if (inv.version) {
        std::cout << tourvane::version_text("tourvane-script");
        return 0;
    }
    if (inv.file.empty() || inv.file == "-") return run_script(std::cin, std::cout, inv.seed);

    std::error_code ec;
    std::ifstream in;
    if (!std::filesystem::is_directory(inv.file, ec)) in.open(inv.file, std::ios::binary);
    if (!in) {
        std::cerr << "tourvane-script: cannot read " << inv.file << "\n";
        return 2;
    }
    return run_script(in, std::cout, inv.seed);
}
