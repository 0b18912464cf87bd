// Fuzzes the tourvane-script command parser and runner: each line of the input is read as
// a command and run on one game, as the driver runs a script.

#include <cstdint>
#include <ostream>
#include <string_view>

#include "app/driver/command.h"
#include "app/driver/session.h"
#include "tests/fuzz/fuzz_support.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tourvane;
    // One session for every input, begun again after each: a new one would build its whole
    // game anew. The files go too, so that no input loads what an earlier one saved.
    static MemoryFiles files;
    static std::ostream out(nullptr);  // swallows the transcript
    static driver::Session session(out, 1, files);

    std::string_view text(reinterpret_cast<const char*>(data), size);
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        const std::string_view line = text.substr(0, end);
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);

        const driver::ParsedLine parsed = driver::parse_line(line);
        FUZZ_CHECK(parsed.kind != driver::ParsedLine::Kind::Error || !parsed.error.empty());
        if (!session.run(parsed)) break;
    }
    session.finish();
    // Done before returning, so that what this input allocated is freed within it, and
    // libFuzzer sees no reason to look for a leak.
    session.begin_again();
    files.files.clear();
    return 0;
}
