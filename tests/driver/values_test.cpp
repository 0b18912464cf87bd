// The written forms of values: JSON string literals, whole numbers, decimals, field widths.

#include <gtest/gtest.h>

#include "app/driver/values.h"
#include "screens/scripted_port.h"

namespace tourvane::driver {
namespace {

TEST(JsonString, DecodesEscapesAndUnicode) {
    EXPECT_EQ(parse_json_string(R"("")"), "");
    EXPECT_EQ(parse_json_string(R"("  two  blanks ")"), "  two  blanks ");
    EXPECT_EQ(parse_json_string(R"("a\"b\\c\/d\n\t\r\b\f")"), "a\"b\\c/d\n\t\r\b\f");
    EXPECT_EQ(parse_json_string(R"("\u00a3 3000")"), "\xC2\xA3 3000");  // the pound sign
    EXPECT_EQ(parse_json_string("\"\xC2\xA3\""), "\xC2\xA3");           // written as is
    EXPECT_EQ(parse_json_string(R"("\u20AC")"), "\xE2\x82\xAC");
    EXPECT_EQ(parse_json_string(R"("\ud83c\udfb8")"), "\xF0\x9F\x8E\xB8");  // a surrogate pair
    EXPECT_EQ(parse_json_string(R"("\u0000")"), std::string(1, '\0'));
}

TEST(JsonString, RejectsMalformedLiterals) {
    for (const char* bad : {
             R"(")",               // no closing quote
             R"("abc)",            // no closing quote
             R"("a\")",            // the escaped quote doesn't close
             R"("\x41")",          // no such escape
             R"("\u12")",          // short hex
             R"("\u12g4")",        // not hex
             R"("\ud83c")",        // a high half alone
             R"("\ud83cx")",       // a high half not followed by an escape
             R"("\ud83c\u0041")",  // a high half followed by no low half
             R"("\udfb8")",        // a low half alone
             "\"a\tb\"",           // a raw control character
             "\"\xC3\"",           // a truncated UTF-8 sequence
             "\"\xC0\xAF\"",       // an overlong form
             "\"\xED\xA0\x80\"",   // a surrogate written in UTF-8
             "\"\xFF\"",
             R"("a" )",  // something after the literal
             "abc",
             "",
         }) {
        EXPECT_FALSE(parse_json_string(bad)) << bad;
    }
}

TEST(JsonString, ReadsBackWhatTheTranscriptWrites) {
    std::string all;
    for (int c = 1; c < 128; ++c) all += static_cast<char>(c);
    all += "\xC2\xA3\xF0\x9F\x8E\xB8";
    all += '\0';
    EXPECT_EQ(parse_json_string(json_quote(all)), all);
}

TEST(Numbers, WholeNumbersArePlainDecimal) {
    EXPECT_EQ(parse_whole("0"), 0);
    EXPECT_EQ(parse_whole("-12"), -12);
    EXPECT_EQ(parse_whole("007"), 7);
    EXPECT_EQ(parse_whole("9223372036854775807"), INT64_MAX);
    for (const char* bad : {"", "-", "+1", "1.0", "1e3", " 1", "1 ", "0x10", "12a",
                            "9223372036854775808", "99999999999999999999999"})
        EXPECT_FALSE(parse_whole(bad)) << bad;
}

TEST(Numbers, DecimalsRejectWordsAndInfinities) {
    EXPECT_EQ(parse_decimal("0.25"), 0.25);
    EXPECT_EQ(parse_decimal("37135"), 37135.0);
    EXPECT_EQ(parse_decimal("1e-3"), 0.001);
    for (const char* bad :
         {"", "inf", "nan", "-inf", "1e999", "0x1p-2", "+0.5", "0.5.", "1,5", "0.5 "})
        EXPECT_FALSE(parse_decimal(bad)) << bad;
}

TEST(Numbers, DayCountsPrintShortestExact) {
    EXPECT_EQ(format_decimal(37135.0), "37135");
    EXPECT_EQ(format_decimal(37135.5), "37135.5");
    EXPECT_EQ(format_decimal(0.1), "0.1");
    EXPECT_EQ(format_decimal(0.0), "0");
    for (double v : {37135.0 + 1.0 / 3, 1e20, -2.5e-7, 123456789.125})
        EXPECT_EQ(parse_decimal(format_decimal(v)), v) << format_decimal(v);
}

TEST(FieldValues, WholeNumbersMustFitTheFieldsWidth) {
    EXPECT_EQ(check_field_value(FieldType::Integer, "32767"), "");
    EXPECT_EQ(check_field_value(FieldType::Integer, "-32768"), "");
    EXPECT_NE(check_field_value(FieldType::Integer, "32768"), "");
    EXPECT_NE(check_field_value(FieldType::Integer, "-32769"), "");
    EXPECT_EQ(check_field_value(FieldType::Boolean, "-1"), "");
    EXPECT_NE(check_field_value(FieldType::Boolean, "40000"), "");
    EXPECT_EQ(check_field_value(FieldType::Long, "2147483647"), "");
    EXPECT_EQ(check_field_value(FieldType::Long, "-2147483648"), "");
    EXPECT_NE(check_field_value(FieldType::Long, "2147483648"), "");
    EXPECT_NE(check_field_value(FieldType::Long, "99999999999999999999999"), "");
    EXPECT_NE(check_field_value(FieldType::Integer, "1.5"), "");
    EXPECT_NE(check_field_value(FieldType::Integer, "\"1\""), "");
    EXPECT_EQ(check_field_value(FieldType::Date, "37135.5"), "");
    EXPECT_NE(check_field_value(FieldType::Date, "nan"), "");
    EXPECT_EQ(check_field_value(FieldType::String, "\"x\""), "");
    EXPECT_NE(check_field_value(FieldType::String, "x"), "");
    EXPECT_NE(check_field_value(FieldType::String, "\"x"), "");
}

TEST(FieldValues, ErrorMessagesShowAShortValidWord) {
    EXPECT_EQ(shown_word("abc"), "abc");
    EXPECT_EQ(shown_word("a\xFF"), "a?");
    EXPECT_EQ(shown_word(std::string(1000, 'x')), std::string(40, 'x') + "...");
}

}  // namespace
}  // namespace tourvane::driver
