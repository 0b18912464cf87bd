#include "app/driver/json_text.h"

#include <cstdio>

namespace tourvane {

std::string json_quote(std::string_view text) {
    std::string out;
    append_json_quoted(out, text);
    return out;
}

void append_json_quoted(std::string& out, std::string_view text) {
    out += '"';
    std::size_t plain = 0;  // start of the characters not yet written, none escaped
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto c = static_cast<unsigned char>(text[i]);
        if (c >= 0x20 && c != '"' && c != '\\') continue;
        out.append(text, plain, i - plain);
        plain = i + 1;
        switch (c) {
            case '"':
                out += "\\\"";
                break;
            case '\\':
                out += "\\\\";
                break;
            case '\n':
                out += "\\n";
                break;
            case '\r':
                out += "\\r";
                break;
            case '\t':
                out += "\\t";
                break;
            case '\b':
                out += "\\b";
                break;
            case '\f':
                out += "\\f";
                break;
            default: {
                char buf[8];
                std::snprintf(buf, sizeof buf, "\\u%04x", c);
                out += buf;
            }
        }
    }
    out.append(text, plain);
    out += '"';
}

}  // namespace tourvane
