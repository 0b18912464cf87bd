// The written forms of values: JSON string literals, whole numbers, decimals, field widths.

#include <gtest/gtest.h>

#include "app/driver/values.h"
#include "screens/scripted_port.h"

namespace tourvane::driver {
namespace {

TEST(JsonString, DecodesEscapesAndUnicodeAndRejectsMalformedLiterals) {
    EXPECT_EQ(parse_json_string(R"("  a\"b\\c\/d\n\t\r\b\f \u00a3\u20AC \ud83c\udfb8\u0000")"),
              std::string("  a\"b\\c/d\n\t\r\b\f \xC2\xA3\xE2\x82\xAC \xF0\x9F\x8E\xB8") + '\0');
    for (const char* bad :
         {R"(")", R"("a\")", R"("\x41")", R"("\u12")", R"("\u12g4")", R"("\ud83c")", R"("\ud83cx")",
          R"("\ud83c\u0041")", R"("\udfb8")", "\"a\tb\"", "\"\xC3\"", "\"\xC0\xAF\"",
          "\"\xED\xA0\x80\"", "\"\xFF\"", R"("a" )", "abc", ""})
        EXPECT_FALSE(parse_json_string(bad)) << bad;
    std::string all;  // what the transcript writes reads back
    for (int c = 0; c < 128; ++c) all += static_cast<char>(c);
    all += "\xC2\xA3\xF0\x9F\x8E\xB8";
    EXPECT_EQ(parse_json_string(json_quote(all)), all);
}

TEST(Numbers, WholeNumbersDecimalsDayCountsAndFieldWidths) {
    EXPECT_EQ(parse_whole("-007"), -7);
    EXPECT_EQ(parse_whole("9223372036854775807"), INT64_MAX);
    for (const char* bad : {"", "-", "+1", "1.0", "1e3", " 1", "0x10", "9223372036854775808"})
        EXPECT_FALSE(parse_whole(bad)) << bad;
    EXPECT_EQ(parse_decimal("1e-3"), 0.001);
    for (const char* bad : {"", "inf", "nan", "-inf", "1e999", "0x1p-2", "+0.5", "0.5.", "1,5"})
        EXPECT_FALSE(parse_decimal(bad)) << bad;
    EXPECT_EQ(format_decimal(37135.0) + " " + format_decimal(37135.5), "37135 37135.5");
    for (double v : {37135.0 + 1.0 / 3, 1e20, -2.5e-7, 0.1})
        EXPECT_EQ(parse_decimal(format_decimal(v)), v) << format_decimal(v);
    using T = FieldType;
    for (auto [type, text] : {std::pair{T::Integer, "32767"},
                              {T::Integer, "-32768"},
                              {T::Boolean, "-1"},
                              {T::Long, "-2147483648"},
                              {T::Date, "37135.5"},
                              {T::String, "\"x\""}})
        EXPECT_EQ(check_field_value(type, text), "") << text;
    for (auto [type, text] : {std::pair{T::Integer, "32768"},
                              {T::Integer, "-32769"},
                              {T::Boolean, "40000"},
                              {T::Long, "2147483648"},
                              {T::Integer, "1.5"},
                              {T::Integer, "\"1\""},
                              {T::Date, "nan"},
                              {T::String, "x"}})
        EXPECT_NE(check_field_value(type, text), "") << text;
    EXPECT_EQ(shown_word("a\xFF" + std::string(1000, 'x')), "a?" + std::string(38, 'x') + "...");
}

}  // namespace
}  // namespace tourvane::driver
