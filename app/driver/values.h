#pragma once
// The written forms of values in a script and a transcript: JSON string literals, plain
// decimal whole numbers, the day count, and a field's value as `get` prints it and `set`
// reads it.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "app/driver/json_text.h"
#include "core/fields.h"
#include "core/scripted_port.h"

namespace tourvane::driver {

/// Reads a JSON string literal that starts at text[pos] (which must be '"'). On success returns
/// the decoded text (UTF-8) and sets `end` just past the closing quote. Malformed escapes,
/// lone surrogates, raw control characters and invalid UTF-8 give nullopt.
std::optional<std::string> parse_json_string(std::string_view text, std::size_t pos,
                                             std::size_t& end);

/// A whole literal: the entire `text` must be one JSON string.
std::optional<std::string> parse_json_string(std::string_view text);

/// A plain decimal whole number with an optional minus sign ("-12", "007"). Numbers beyond
/// 64 bits give nullopt, as does anything else.
std::optional<std::int64_t> parse_whole(std::string_view text);

/// A decimal number as `rnd` and the day count take it ("0.25", "37135", "1e-3").
/// Infinities and NaN give nullopt.
std::optional<double> parse_decimal(std::string_view text);

/// The shortest decimal that reads back as exactly `v` ("37135", "37135.5").
std::string format_decimal(double v);

/// Appends to `out` the value of one element of a field (index -1 for a plain field) as `get`
/// prints it.
void append_field(std::string& out, const Field& f, int index);

/// Why `text` can't be stored in a field of this type, or empty when it can.
std::string check_field_value(FieldType type, std::string_view text);

/// Stores `text` (already accepted by check_field_value) into one element of a field.
void store_field(const Field& f, int index, std::string_view text);

/// A script word as an error message shows it: valid UTF-8, at most a few dozen characters.
std::string shown_word(std::string_view word);

/// The transcript line of a box, prompt, memo or misfit answer.
std::string transcript_line(const Shown& shown);

}  // namespace tourvane::driver
