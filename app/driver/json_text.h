#pragma once
// Texts as JSON string literals, for the two front ends that write JSON: the driver's
// transcript and the web page's state. UTF-8 passes through; the quote, the backslash and the
// control characters are escaped.

#include <string>
#include <string_view>

namespace tourvane {

/// `text` as a JSON string literal, quotes included.
std::string json_quote(std::string_view text);

/// Appends `json_quote(text)` to `out`.
void append_json_quoted(std::string& out, std::string_view text);

}  // namespace tourvane
