#pragma once
// Text in files is stored one byte a character in the Windows-1252 code page; the game keeps
// its strings in UTF-8. These convert between the two.

#include <string>
#include <string_view>

namespace tourvane {

/// True when the text is plain ASCII, which both encodings store as the same bytes.
bool is_ascii(std::string_view text);

/// Converts UTF-8 text to Windows-1252 into `out`. A character the code page can't hold (or a
/// byte that isn't UTF-8) becomes '?'; the result is false when that happened.
bool utf8_to_cp1252(std::string_view utf8, std::string& out);

/// Converts Windows-1252 bytes to UTF-8. Every byte has a character, so nothing is lost.
std::string cp1252_to_utf8(std::string_view bytes);
/// The same into `out`, using the room it already has.
void cp1252_to_utf8(std::string_view bytes, std::string& out);

/// True when every character of the UTF-8 text has a place in Windows-1252.
bool fits_cp1252(std::string_view utf8);

/// The number of bytes the text takes in Windows-1252 (one per character).
std::size_t cp1252_size(std::string_view utf8);

}  // namespace tourvane
