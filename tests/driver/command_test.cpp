// Reading script lines into commands.

#include <gtest/gtest.h>

#include <climits>
#include <cmath>

#include "app/driver/command.h"

namespace tourvane::driver {
namespace {

using Kind = ParsedLine::Kind;

Command ok(std::string_view line) {
    ParsedLine p = parse_line(line);
    EXPECT_EQ(p.kind, Kind::Command) << line << ": " << p.error;
    return p.command;
}

TEST(ParseLine, RefusedLinesSayWhy) {
    const std::pair<std::string, std::string> cases[] = {
        {"get cash # not a comment", "usage: get NAME [INDEX]"},
        {std::string("ge\0t", 4), std::string("unknown command ge\0t", 20)},
        {"\"get\" cash", "unknown command \"get\""},
        {R"(input "abc)", "malformed string literal"},
        {R"(input "\ud800")", "malformed string literal"},
        {"input \"\xC0\xAF\"", "malformed string literal"},  // an overlong form
        {R"(input "\udfb8\ud83c")", "malformed string literal"},
        {"input Sam", "expected a JSON string literal"},
        {R"(input "a" "b")", "usage: input TEXT"},
        {"get membername -1", "index -1 out of bounds"},
        {"get membername x", "malformed index x"},
        {"click main.promote \"1\"", "expected a word, not the string \"1\""},
        {"click main.songlist 1 2", "usage: click FORM.CONTROL [INDEX]"},
        {"click a.b.c", "expected FORM.CONTROL, not a.b.c"},
        {"rnd 0.5 1", "draw 1 not in 0 <= V < 1"},
        {"rnd", "usage: rnd V1 V2 ..."},
        {"answer YES", "answer must be ok, yes or no, not YES"},
        {"automemo maybe", "usage: automemo on|off"},
        {"set cash", "usage: set NAME [INDEX] VALUE"},
        {std::string(1 << 20, 'x'), "unknown command " + std::string(40, 'x') + "..."},
    };
    for (const auto& [line, why] : cases) {
        const ParsedLine p = parse_line(line);
        EXPECT_EQ(p.kind, Kind::Error) << line;
        EXPECT_EQ(p.error, why) << line;
    }
    for (const char* line : {"", "   ", "\t \r", "# a comment", "   # \"unclosed", "#click x.y"})
        EXPECT_EQ(parse_line(line).kind, Kind::Blank) << line;
}

TEST(ParseLine, WordsStringsIndexesDrawsAndAnswers) {
    Command c = ok("  click \t main.promote   2  \r");
    EXPECT_EQ(c.verb, Verb::Click);
    EXPECT_EQ(c.form + "." + c.control + " " + std::to_string(c.index), "main.promote 2");
    EXPECT_EQ(ok(R"(input "  The  Wasps ")").text, "  The  Wasps ");
    EXPECT_EQ(ok(R"(input "say \"hi\" \\ \u00a3")").text, "say \"hi\" \\ \xC2\xA3");
    Command set = ok(R"(set membername 2 "Ann  Lee")");
    EXPECT_EQ(set.name + " " + std::to_string(set.index) + " " + set.value,
              R"(membername 2 "Ann  Lee")");
    EXPECT_EQ(ok("get membername 007").index, 7);
    // Past int, an index is still a number, only far out of bounds.
    Command big = ok("get membername 99999999999999999999999999");
    EXPECT_EQ(big.index, INT_MAX);
    EXPECT_EQ(big.index_text, "99999999999999999999999999");
    c = ok("rnd 0 0.5 0.999999 1e-3 -0");
    EXPECT_EQ(c.draws, (std::vector<double>{0, 0.5, 0.999999, 0.001, 0}));
    EXPECT_FALSE(std::signbit(c.draws.back()));
    EXPECT_EQ(ok("input \"" + std::string(1 << 20, 'y') + "\"").text.size(), 1u << 20);
    std::string many = "rnd";
    for (int i = 0; i < 100000; ++i) many += " 0.5";
    EXPECT_EQ(ok(many).draws.size(), 100000u);
}

}  // namespace
}  // namespace tourvane::driver
