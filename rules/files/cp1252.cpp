#include "rules/files/cp1252.h"

#include <cstdint>
#include <cstring>

namespace tourvane {

namespace {

/// The characters of bytes 0x80 to 0x9F. The five bytes the code page leaves open stand for
/// the control characters of the same number, so any byte reads back as it was written.
constexpr char32_t kHighControls[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char32_t kBad = 0xFFFFFFFF;

/// The byte of a character, or -1 when the code page has none.
int byte_of(char32_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<int>(c);
    for (int i = 0; i < 32; ++i)
        if (kHighControls[i] == c) return 0x80 + i;
    return -1;
}

/// Decodes one UTF-8 character at `pos` and moves past it; kBad (one byte consumed) for a
/// malformed sequence.
char32_t next_char(std::string_view s, std::size_t& pos) {
    const auto b0 = static_cast<unsigned char>(s[pos]);
    int extra = 0;
    char32_t c = 0;
    char32_t least = 0;
    if (b0 < 0x80) {
        ++pos;
        return b0;
    } else if ((b0 & 0xE0) == 0xC0) {
        extra = 1, c = b0 & 0x1F, least = 0x80;
    } else if ((b0 & 0xF0) == 0xE0) {
        extra = 2, c = b0 & 0x0F, least = 0x800;
    } else if ((b0 & 0xF8) == 0xF0) {
        extra = 3, c = b0 & 0x07, least = 0x10000;
    } else {
        ++pos;
        return kBad;
    }
    if (pos + extra >= s.size()) {
        ++pos;
        return kBad;
    }
    for (int i = 1; i <= extra; ++i) {
        const auto b = static_cast<unsigned char>(s[pos + i]);
        if ((b & 0xC0) != 0x80) {
            ++pos;
            return kBad;
        }
        c = (c << 6) | (b & 0x3F);
    }
    if (c < least || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) {
        ++pos;
        return kBad;
    }
    pos += 1 + extra;
    return c;
}

void append_utf8(std::string& out, char32_t c) {
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

}  // namespace

bool is_ascii(std::string_view text) {
    // Eight bytes at a time: the top bit of any byte marks a character beyond ASCII.
    std::uint64_t bits = 0;
    std::size_t i = 0;
    for (; i + 8 <= text.size(); i += 8) {
        std::uint64_t word;
        std::memcpy(&word, text.data() + i, 8);
        bits |= word;
    }
    for (; i < text.size(); ++i) bits |= static_cast<unsigned char>(text[i]);
    return (bits & 0x8080808080808080ull) == 0;
}

bool utf8_to_cp1252(std::string_view utf8, std::string& out) {
    if (is_ascii(utf8)) {
        out.assign(utf8);
        return true;
    }
    out.clear();
    out.reserve(utf8.size());
    bool all_held = true;
    for (std::size_t pos = 0; pos < utf8.size();) {
        const char32_t c = next_char(utf8, pos);
        const int b = c == kBad ? -1 : byte_of(c);
        if (b < 0) {
            all_held = false;
            out += '?';
        } else {
            out += static_cast<char>(b);
        }
    }
    return all_held;
}

std::string cp1252_to_utf8(std::string_view bytes) {
    std::string out;
    cp1252_to_utf8(bytes, out);
    return out;
}

void cp1252_to_utf8(std::string_view bytes, std::string& out) {
    if (is_ascii(bytes)) {
        out.assign(bytes);
        return;
    }
    out.clear();
    out.reserve(bytes.size() + bytes.size() / 4);
    for (char ch : bytes) {
        const auto b = static_cast<unsigned char>(ch);
        append_utf8(out, b >= 0x80 && b < 0xA0 ? kHighControls[b - 0x80] : char32_t{b});
    }
}

bool fits_cp1252(std::string_view utf8) {
    for (std::size_t pos = 0; pos < utf8.size();) {
        const char32_t c = next_char(utf8, pos);
        if (c == kBad || byte_of(c) < 0) return false;
    }
    return true;
}

std::size_t cp1252_size(std::string_view utf8) {
    std::size_t n = 0;
    for (std::size_t pos = 0; pos < utf8.size(); ++n) next_char(utf8, pos);
    return n;
}

}  // namespace tourvane
