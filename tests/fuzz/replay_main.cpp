// Replays fuzz inputs through a target without libFuzzer: each argument is a file, or a
// folder whose files are replayed in name order. A folder that doesn't exist holds nothing.
// The target stops the program on the first input that breaks it.

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

void replay(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(in), {}};
    std::cout << "replaying " << file.filename().string() << " (" << bytes.size() << " bytes)"
              << std::endl;
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

}  // namespace

int main(int argc, char** argv) {
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        const std::filesystem::path place(argv[i]);
        if (std::filesystem::is_directory(place)) {
            std::vector<std::filesystem::path> files;
            for (const auto& entry : std::filesystem::directory_iterator(place))
                if (entry.is_regular_file() && entry.path().filename().string()[0] != '.')
                    files.push_back(entry.path());
            std::sort(files.begin(), files.end());
            for (const auto& f : files) replay(f), ++count;
        } else if (std::filesystem::is_regular_file(place)) {
            replay(place), ++count;
        }
    }
    std::cout << "replayed " << count << " inputs, all passed" << std::endl;
    return count > 0 ? 0 : 1;
}
