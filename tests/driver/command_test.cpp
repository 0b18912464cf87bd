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

std::string error_of(std::string_view line) {
    ParsedLine p = parse_line(line);
    EXPECT_EQ(p.kind, Kind::Error) << line;
    return p.error;
}

TEST(ParseLine, BlanksAndCommentsAreSkipped) {
    for (const char* line : {"", "   ", "\t \r", "# a comment", "   # \"unclosed", "#click x.y"})
        EXPECT_EQ(parse_line(line).kind, Kind::Blank) << line;
    EXPECT_EQ(error_of("get cash # not a comment"), "usage: get NAME [INDEX]");
}

TEST(ParseLine, UnknownCommandsNameTheWord) {
    EXPECT_EQ(error_of("frobnicate"), "unknown command frobnicate");
    EXPECT_EQ(error_of("GET cash"), "unknown command GET");
    EXPECT_EQ(error_of(std::string("ge\0t", 4)), std::string("unknown command ge\0t", 20));
    EXPECT_EQ(parse_line("\"get\" cash").kind, Kind::Error);
}

TEST(ParseLine, WordsAreSplitOnAnyRunOfBlanks) {
    Command c = ok("  click \t main.promote   2  \r");
    EXPECT_EQ(c.verb, Verb::Click);
    EXPECT_EQ(c.form, "main");
    EXPECT_EQ(c.control, "promote");
    EXPECT_EQ(c.index, 2);
    EXPECT_EQ(ok("click main.command6").index, -1);
}

TEST(ParseLine, StringArgumentsKeepTheirBlanks) {
    EXPECT_EQ(ok(R"(input "  The  Wasps ")").text, "  The  Wasps ");
    EXPECT_EQ(ok(R"(input "")").text, "");
    EXPECT_EQ(ok(R"(input "say \"hi\" \\ \u00a3")").text, "say \"hi\" \\ \xC2\xA3");
    Command set = ok(R"(set membername 2 "Ann  Lee")");
    EXPECT_EQ(set.name, "membername");
    EXPECT_EQ(set.index, 2);
    EXPECT_EQ(set.value, R"("Ann  Lee")");
    EXPECT_EQ(ok("set cash -5").value, "-5");
    EXPECT_EQ(ok("set cash -5").index, -1);
}

TEST(ParseLine, MalformedStringsAndMissingQuotesAreErrors) {
    EXPECT_EQ(error_of(R"(input "abc)"), "malformed string literal");
    EXPECT_EQ(error_of(R"(input "abc"def)"), "malformed string literal");
    EXPECT_EQ(error_of(R"(input "\ud800")"), "malformed string literal");
    EXPECT_EQ(error_of("input Sam"), "expected a JSON string literal");
    EXPECT_EQ(error_of(R"(input "a" "b")"), "usage: input TEXT");
    EXPECT_EQ(error_of("input"), "usage: input TEXT");
}

TEST(ParseLine, IndexesAreWholeNumbersFromZero) {
    EXPECT_EQ(ok("get membername 0").index, 0);
    EXPECT_EQ(ok("get membername 007").index, 7);
    // Past int, an index is still a number, only far out of bounds.
    EXPECT_EQ(ok("get membername 99999999999999999999999999").index, INT_MAX);
    EXPECT_EQ(ok("get membername 99999999999999999999999999").index_text,
              "99999999999999999999999999");
    EXPECT_EQ(error_of("get membername -1"), "index -1 out of bounds");
    EXPECT_EQ(error_of("get membername -99999999999999999999999"),
              "index -99999999999999999999999 out of bounds");
    EXPECT_EQ(error_of("get membername x"), "malformed index x");
    EXPECT_EQ(error_of("get membername 1.0"), "malformed index 1.0");
    EXPECT_EQ(error_of("get membername -"), "malformed index -");
    EXPECT_EQ(error_of("click main.promote \"1\""), "expected a word, not the string \"1\"");
}

TEST(ParseLine, TargetsAreFormDotControl) {
    for (const char* bad : {"click main", "click .command6", "click main.", "click a.b.c",
                            "control main", "dblclick"})
        EXPECT_NE(parse_line(bad).kind, Kind::Command) << bad;
    EXPECT_EQ(error_of("click main.songlist 1 2"), "usage: click FORM.CONTROL [INDEX]");
}

TEST(ParseLine, DrawsMustLieInTheUnitInterval) {
    Command c = ok("rnd 0 0.5 0.999999 1e-3 -0");
    EXPECT_EQ(c.draws, (std::vector<double>{0, 0.5, 0.999999, 0.001, 0}));
    EXPECT_FALSE(std::signbit(c.draws.back()));
    EXPECT_EQ(error_of("rnd 0.5 1"), "draw 1 not in 0 <= V < 1");
    EXPECT_EQ(error_of("rnd -0.1"), "draw -0.1 not in 0 <= V < 1");
    EXPECT_EQ(error_of("rnd nan"), "malformed number nan");
    EXPECT_EQ(error_of("rnd 0.5 x"), "malformed number x");
    EXPECT_EQ(error_of("rnd"), "usage: rnd V1 V2 ...");
}

TEST(ParseLine, AnswersAndSwitches) {
    EXPECT_EQ(ok("answer ok yes no").answers,
              (std::vector<Answer>{Answer::Ok, Answer::Yes, Answer::No}));
    EXPECT_EQ(error_of("answer yes maybe"), "answer must be ok, yes or no, not maybe");
    EXPECT_EQ(error_of("answer YES"), "answer must be ok, yes or no, not YES");
    EXPECT_FALSE(ok("automemo off").on);
    EXPECT_TRUE(ok("automemo on").on);
    EXPECT_EQ(error_of("automemo"), "usage: automemo on|off");
    EXPECT_EQ(error_of("automemo maybe"), "usage: automemo on|off");
    EXPECT_EQ(error_of("dump 1"), "usage: dump");
    EXPECT_EQ(error_of("rndleft 0"), "usage: rndleft");
    EXPECT_EQ(error_of("set cash"), "usage: set NAME [INDEX] VALUE");
    EXPECT_EQ(error_of("call"), "usage: call ROUTINE");
    EXPECT_EQ(error_of("form main x"), "usage: form FORM");
}

TEST(ParseLine, OnlyQueueingVerbsRunBeforeTheStartUp) {
    for (const char* v : {"rnd", "answer", "input", "automemo"})
        EXPECT_TRUE(runs_before_startup(v));
    for (const char* v : {"rndleft", "get", "set", "click", "dump", "frobnicate", ""})
        EXPECT_FALSE(runs_before_startup(v)) << v;
}

TEST(ParseLine, SurvivesHugeLines) {
    const std::string long_word(1 << 20, 'x');
    EXPECT_EQ(error_of(long_word), "unknown command " + std::string(40, 'x') + "...");
    std::string long_input = "input \"" + std::string(1 << 20, 'y') + "\"";
    EXPECT_EQ(ok(long_input).text.size(), std::size_t{1} << 20);
    std::string many = "rnd";
    for (int i = 0; i < 100000; ++i) many += " 0.5";
    EXPECT_EQ(ok(many).draws.size(), 100000u);
}

}  // namespace
}  // namespace tourvane::driver
