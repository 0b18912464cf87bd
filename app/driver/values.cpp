#include "app/driver/values.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>

#include "core/numeric.h"
#include "core/scripted_port.h"
#include "rules/files/record_file.h"

namespace tourvane::driver {

namespace {

int hex_digit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

/// Reads the four hex digits of a \u escape at text[pos].
std::optional<std::uint32_t> hex4(std::string_view text, std::size_t pos) {
    if (pos + 4 > text.size()) return std::nullopt;
    std::uint32_t v = 0;
    for (std::size_t i = pos; i < pos + 4; ++i) {
        int d = hex_digit(text[i]);
        if (d < 0) return std::nullopt;
        v = v * 16 + static_cast<std::uint32_t>(d);
    }
    return v;
}

void append_utf8(std::string& out, std::uint32_t cp) {
    if (cp < 0x80) {
        out += static_cast<char>(cp);
    } else if (cp < 0x800) {
        out += static_cast<char>(0xC0 | (cp >> 6));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else if (cp < 0x10000) {
        out += static_cast<char>(0xE0 | (cp >> 12));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (cp >> 18));
        out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    }
}

/// The length of the well-formed UTF-8 sequence at text[pos], or 0 if there is none.
std::size_t utf8_length(std::string_view text, std::size_t pos) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char b0 = byte(pos);
    if (b0 < 0x80) return 1;
    std::size_t len;
    unsigned char lo = 0x80, hi = 0xBF;  // allowed range of the second byte
    if (b0 >= 0xC2 && b0 <= 0xDF) {
        len = 2;
    } else if (b0 >= 0xE0 && b0 <= 0xEF) {
        len = 3;
        if (b0 == 0xE0) lo = 0xA0;  // no overlong forms
        if (b0 == 0xED) hi = 0x9F;  // no surrogates
    } else if (b0 >= 0xF0 && b0 <= 0xF4) {
        len = 4;
        if (b0 == 0xF0) lo = 0x90;
        if (b0 == 0xF4) hi = 0x8F;  // nothing past U+10FFFF
    } else {
        return 0;
    }
    if (pos + len > text.size()) return 0;
    if (byte(pos + 1) < lo || byte(pos + 1) > hi) return 0;
    for (std::size_t i = pos + 2; i < pos + len; ++i)
        if (byte(i) < 0x80 || byte(i) > 0xBF) return 0;
    return len;
}

}  // namespace

std::optional<std::string> parse_json_string(std::string_view text, std::size_t pos,
                                             std::size_t& end) {
    if (pos >= text.size() || text[pos] != '"') return std::nullopt;
    std::string out;
    std::size_t i = pos + 1;
    while (i < text.size()) {
        const char c = text[i];
        if (c == '"') {
            end = i + 1;
            return out;
        }
        if (static_cast<unsigned char>(c) < 0x20) return std::nullopt;
        if (c != '\\') {
            const std::size_t len = utf8_length(text, i);
            if (len == 0) return std::nullopt;
            out.append(text.substr(i, len));
            i += len;
            continue;
        }
        if (i + 1 >= text.size()) return std::nullopt;
        const char e = text[i + 1];
        i += 2;
        switch (e) {
            case '"':
                out += '"';
                break;
            case '\\':
                out += '\\';
                break;
            case '/':
                out += '/';
                break;
            case 'b':
                out += '\b';
                break;
            case 'f':
                out += '\f';
                break;
            case 'n':
                out += '\n';
                break;
            case 'r':
                out += '\r';
                break;
            case 't':
                out += '\t';
                break;
            case 'u': {
                auto cp = hex4(text, i);
                if (!cp) return std::nullopt;
                i += 4;
                if (*cp >= 0xDC00 && *cp <= 0xDFFF) return std::nullopt;  // a lone low half
                if (*cp >= 0xD800 && *cp <= 0xDBFF) {
                    // A high half must be followed at once by the escape of a low half.
                    if (i + 1 >= text.size() || text[i] != '\\' || text[i + 1] != 'u')
                        return std::nullopt;
                    auto low = hex4(text, i + 2);
                    if (!low || *low < 0xDC00 || *low > 0xDFFF) return std::nullopt;
                    i += 6;
                    *cp = 0x10000 + ((*cp - 0xD800) << 10) + (*low - 0xDC00);
                }
                append_utf8(out, *cp);
                break;
            }
            default:
                return std::nullopt;
        }
    }
    return std::nullopt;  // no closing quote
}

std::optional<std::string> parse_json_string(std::string_view text) {
    std::size_t end = 0;
    auto s = parse_json_string(text, 0, end);
    if (!s || end != text.size()) return std::nullopt;
    return s;
}

std::optional<std::int64_t> parse_whole(std::string_view text) {
    std::size_t digits = text.size();
    if (!text.empty() && text[0] == '-') --digits;
    if (digits == 0) return std::nullopt;
    for (std::size_t i = text.size() - digits; i < text.size(); ++i)
        if (text[i] < '0' || text[i] > '9') return std::nullopt;
    std::int64_t v = 0;
    auto [ptr, ec] = std::from_chars(text.data(), text.data() + text.size(), v);
    if (ec != std::errc() || ptr != text.data() + text.size()) return std::nullopt;
    return v;
}

std::optional<double> parse_decimal(std::string_view text) {
    // Digits, one point, an optional exponent: no words such as "inf" or "nan", no hex.
    for (char c : text) {
        const bool ok =
            (c >= '0' && c <= '9') || c == '.' || c == '-' || c == '+' || c == 'e' || c == 'E';
        if (!ok) return std::nullopt;
    }
    if (text.empty() || text[0] == '+') return std::nullopt;
    double v = 0;
    auto [ptr, ec] = std::from_chars(text.data(), text.data() + text.size(), v);
    if (ec != std::errc() || ptr != text.data() + text.size() || !std::isfinite(v))
        return std::nullopt;
    return v;
}

std::string format_decimal(double v) {
    char buf[64];
    auto [ptr, ec] = std::to_chars(buf, buf + sizeof buf, v);
    if (ec != std::errc()) return "0";
    return std::string(buf, ptr);
}

void append_field(std::string& out, const Field& f, int index) {
    char buf[24];
    std::to_chars_result end{buf, {}};
    switch (f.type) {
        case FieldType::String:
            append_json_quoted(out, f.at<std::string>(index));
            return;
        case FieldType::Integer:
        case FieldType::Boolean:
            end = std::to_chars(buf, buf + sizeof buf, f.at<Integer>(index));
            break;
        case FieldType::Long:
            end = std::to_chars(buf, buf + sizeof buf, f.at<Long>(index));
            break;
        case FieldType::Date:
            out += format_decimal(f.at<Date>(index));
            return;
    }
    out.append(buf, end.ptr);
}

namespace {

/// Says that the value `text` lies outside the range from `lo` to `hi`.
std::string out_of_range(std::string_view text, const std::string& lo, const std::string& hi) {
    return "value " + shown_word(text) + " out of range " + lo + ".." + hi;
}

}  // namespace

std::string check_field_value(FieldType type, std::string_view text) {
    switch (type) {
        case FieldType::String:
            if (text.empty() || text[0] != '"') return "expected a JSON string literal";
            if (!parse_json_string(text)) return "malformed string literal";
            return {};
        case FieldType::Integer:
        case FieldType::Boolean:
        case FieldType::Long: {
            auto v = parse_whole(text);
            if (!v) return "malformed whole number " + shown_word(text);
            const bool is_long = type == FieldType::Long;
            const std::int64_t lo =
                is_long ? std::numeric_limits<Long>::min() : std::numeric_limits<Integer>::min();
            const std::int64_t hi =
                is_long ? std::numeric_limits<Long>::max() : std::numeric_limits<Integer>::max();
            if (*v < lo || *v > hi)
                return out_of_range(text, std::to_string(lo), std::to_string(hi));
            return {};
        }
        case FieldType::Date: {
            auto v = parse_decimal(text);
            if (!v) return "malformed number " + shown_word(text);
            // The days a save file can hold: 1 January 100 to 31 December 9999.
            if (*v < kFirstDay || *v > kLastDay)
                return out_of_range(text, format_decimal(kFirstDay), format_decimal(kLastDay));
            return {};
        }
    }
    return "unknown field type";
}

void store_field(const Field& f, int index, std::string_view text) {
    switch (f.type) {
        case FieldType::String:
            f.at<std::string>(index) = *parse_json_string(text);
            break;
        case FieldType::Integer:
        case FieldType::Boolean:
            f.at<Integer>(index) = static_cast<Integer>(*parse_whole(text));
            break;
        case FieldType::Long:
            f.at<Long>(index) = static_cast<Long>(*parse_whole(text));
            break;
        case FieldType::Date:
            f.at<Date>(index) = *parse_decimal(text);
            break;
    }
}

std::string shown_word(std::string_view word) {
    constexpr std::size_t kMaxShown = 40;
    std::string out;
    std::size_t i = 0;
    while (i < word.size() && out.size() < kMaxShown) {
        const std::size_t len = utf8_length(word, i);
        if (len == 0) {
            out += '?';
            ++i;
        } else {
            out.append(word.substr(i, len));
            i += len;
        }
    }
    if (i < word.size()) out += "...";
    return out;
}

namespace {

const char* answer_word(Answer a) {
    switch (a) {
        case Answer::Yes:
            return "yes";
        case Answer::No:
            return "no";
        case Answer::Ok:
            break;
    }
    return "ok";
}

}  // namespace

std::string transcript_line(const Shown& s) {
    const char* box = s.buttons == Buttons::Ok ? "ok" : "yesno";
    switch (s.kind) {
        case Shown::Kind::Box:
            return std::string("msgbox ") + box + (s.critical ? " critical " : " ") +
                   json_quote(s.text) + " -> " + answer_word(s.answer);
        case Shown::Kind::Prompt:
            return "inputbox " + json_quote(s.title) + " " + json_quote(s.text) + " -> " +
                   json_quote(s.typed);
        case Shown::Kind::Memo:
            return "memo " + json_quote(s.title) + " " + json_quote(s.text);
        case Shown::Kind::MisfitAnswer:
            return std::string("error \"answer ") + answer_word(s.answer) + " does not fit " +
                   (s.buttons == Buttons::Ok ? "an ok" : "a yesno") + " box\"";
    }
    return {};
}

}  // namespace tourvane::driver
