// make_bands: turns the readable table of rival records (data/bands.txt) into the record file
// bands.dat and into a C++ source holding the same bytes, which the game keeps as its
// built-in copy. The build runs it; a line out of range stops the build.
//
//   make_bands TABLE BANDS_DAT BUILTIN_CPP

#include <charconv>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "rules/files/cp1252.h"
#include "rules/files/record_file.h"

namespace {

using namespace tourvane;

constexpr int kEntries = 51;
constexpr std::size_t kFileBytes = kEntries * 5 * kRecordBytes;

struct Range {
    const char* what;
    int low;
    int high;
};
constexpr Range kFame{"fame", 0, 100};
constexpr Range kQuality{"quality", 30, 74};
constexpr Range kDemand{"demand", 50, 149};

std::string_view trim(std::string_view s) {
    while (!s.empty() && (s.front() == ' ' || s.front() == '\t')) s.remove_prefix(1);
    while (!s.empty() && (s.back() == ' ' || s.back() == '\t' || s.back() == '\r'))
        s.remove_suffix(1);
    return s;
}

bool fail(const std::string& where, const std::string& why) {
    std::cerr << where << ": " << why << "\n";
    return false;
}

bool text_field(std::string_view s, const std::string& where, std::string& out) {
    if (s.empty()) return fail(where, "empty name");
    if (!fits_cp1252(s)) return fail(where, "\"" + std::string(s) + "\" doesn't fit Windows-1252");
    if (cp1252_size(s) > kMaxStringBytes) return fail(where, "longer than 126 bytes");
    out = s;
    return true;
}

bool number_field(std::string_view s, const Range& range, const std::string& where, int& out) {
    const auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), out);
    if (ec != std::errc() || end != s.data() + s.size())
        return fail(where, std::string(range.what) + " \"" + std::string(s) + "\" isn't a number");
    if (out < range.low || out > range.high)
        return fail(where, std::string(range.what) + " " + std::to_string(out) + " is outside " +
                               std::to_string(range.low) + " to " + std::to_string(range.high));
    return true;
}

/// Reads the table into the records of bands.dat.
bool read_table(const char* path, RecordWriter& out) {
    std::ifstream in(path);
    if (!in) return fail(path, "can't be opened");
    std::string line;
    int line_no = 0;
    int entries = 0;
    bool ok = true;
    while (std::getline(in, line)) {
        ++line_no;
        const std::string_view text = trim(line);
        if (text.empty() || text.front() == '#') continue;
        const std::string where = std::string(path) + ":" + std::to_string(line_no);
        std::vector<std::string_view> cells;
        std::string_view rest = text;
        for (std::size_t bar; (bar = rest.find('|')) != std::string_view::npos;) {
            cells.push_back(trim(rest.substr(0, bar)));
            rest.remove_prefix(bar + 1);
        }
        cells.push_back(trim(rest));
        if (cells.size() != 5) {
            ok = fail(where, "expected band | fame | title | quality | demand");
            continue;
        }
        std::string band, title;
        int fame = 0, quality = 0, demand = 0;
        if (!(text_field(cells[0], where, band) && number_field(cells[1], kFame, where, fame) &&
              text_field(cells[2], where, title) &&
              number_field(cells[3], kQuality, where, quality) &&
              number_field(cells[4], kDemand, where, demand))) {
            ok = false;
            continue;
        }
        out.put_string(band);
        out.put_integer(static_cast<Integer>(fame));
        out.put_string(title);
        out.put_integer(static_cast<Integer>(quality));
        out.put_integer(static_cast<Integer>(demand));
        ++entries;
    }
    if (entries != kEntries)
        ok = fail(path,
                  "holds " + std::to_string(entries) + " entries, not " + std::to_string(kEntries));
    return ok;
}

std::string builtin_source(const std::vector<std::uint8_t>& bytes) {
    std::ostringstream src;
    src << "// Made by make_bands from data/bands.txt. Do not edit.\n\n"
        << "namespace tourvane {\n\n"
        << "extern const unsigned char kBuiltinBandsData[" << bytes.size() << "];\n"
        << "const unsigned char kBuiltinBandsData[" << bytes.size() << "] = {";
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        src << (i % 16 == 0 ? "\n    " : " ") << static_cast<int>(bytes[i]) << ",";
    }
    src << "\n};\n\n}  // namespace tourvane\n";
    return src.str();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::cerr << "usage: make_bands TABLE BANDS_DAT BUILTIN_CPP\n";
        return 2;
    }
    RecordWriter records(kEntries * 5);
    if (!read_table(argv[1], records)) return 1;
    const std::vector<std::uint8_t> bytes = records.take();
    if (bytes.size() != kFileBytes) return fail(argv[1], "wrong size"), 1;

    std::string reason;
    if (!replace_file(argv[2], bytes, reason)) return fail(argv[2], reason), 1;
    const std::string src = builtin_source(bytes);
    const std::vector<std::uint8_t> src_bytes(src.begin(), src.end());
    if (!replace_file(argv[3], src_bytes, reason)) return fail(argv[3], reason), 1;
    return 0;
}
