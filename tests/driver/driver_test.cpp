// The script driver: its command line, reading script lines into commands, and the runner
// (start-up timing, errors that change nothing, the end, and the exit status).

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <sstream>

#include "app/driver/command.h"
#include "app/driver/invocation.h"
#include "app/driver/session.h"

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

using Args = std::vector<std::string_view>;

TEST(Invocation, ReadsSeedAndFileAndSaysWhyABadLineIsBad) {
    Invocation inv = parse_invocation(Args{"--seed", "18446744073709551615", "game.tvs"});
    EXPECT_EQ(inv.error, "");
    EXPECT_EQ(inv.seed, UINT64_MAX);
    EXPECT_EQ(inv.file, "game.tvs");
    inv = parse_invocation(Args{});
    EXPECT_TRUE(inv.error.empty() && !inv.seed && inv.file.empty());
    EXPECT_TRUE(parse_invocation(Args{"--help"}).help);
    EXPECT_EQ(parse_invocation(Args{"-"}).file, "-");  // standard input
    for (Args bad : {Args{"--seed"}, Args{"--seed", "-1"}, Args{"--seed", "x"},
                     Args{"--seed", "18446744073709551616"}, Args{"--seed", "1", "--seed", "2"},
                     Args{"--bogus"}, Args{"a.tvs", "b.tvs"}})
        EXPECT_NE(parse_invocation(bad).error, "") << bad.size();
    for (const char* verb : {"rnd ", "rndleft", "answer ", "input ", "automemo ", "click ",
                             "dblclick ", "call ", "get ", "set ", "dump", "control ", "form "})
        EXPECT_NE(usage().find(std::string("\n  ") + verb), std::string_view::npos) << verb;
}

/// A session that keeps its transcript for the test to read.
struct Script {
    std::ostringstream out;
    Session s{out, 1};
    /// Runs the lines of `script` and returns what they printed.
    std::string lines(const std::string& script) {
        out.str("");
        std::istringstream in(script);
        for (std::string line; std::getline(in, line);) s.run_line(line);
        return out.str();
    }
};

TEST(Session, StartUpRunsBeforeTheFirstCommandThatIsNotQueueingOrAtTheEnd) {
    Script r;
    EXPECT_EQ(r.lines("rnd 0.5 0.5\nanswer yes\ninput \"x\"\nautomemo on\n# note\n"), "");
    EXPECT_FALSE(r.s.started());
    // The start-up offers an applicant, whose draws take the two queued values first.
    EXPECT_EQ(r.lines("rndleft\nget gamedate\nform Form1"),
              "rndleft = 0\ngamedate = 37135\nform Form1 loaded=1 visible=1 enabled=1\n");
    Script q;
    q.lines("rnd 0.5");
    q.s.finish();
    EXPECT_TRUE(q.s.started());
    EXPECT_EQ(q.s.game().rnd.queued_left(), 0u);
}

TEST(Session, BegunAgainItPlaysAsANewSession) {
    Script used;
    used.lines(
        "automemo off\ninput \"The Wasps\"\ninput \"Sam\"\nclick Form1.New\n"
        "click main.command6\nclick main.command6\nnosuch\n"
        "rnd 0.1 0.2 0.3\nanswer yes no\ninput \"left over\"");
    ASSERT_TRUE(used.s.had_error());
    used.s.begin_again();
    EXPECT_FALSE(used.s.started());
    EXPECT_FALSE(used.s.had_error());
    // Nothing queued, typed or seen before is left: the name is asked for again and refused
    // as empty, the draws come from the seed, and the memo that ends the game is answered.
    const std::string script =
        "rndleft\nget bandname\nclick Form1.New\ninput \"Ann\"\ninput \"Bo\"\n"
        "click Form1.New\nclick main.hire\ndump\nset cash -1\nclick main.command6";
    Script fresh;
    EXPECT_EQ(used.lines(script), fresh.lines(script));
    EXPECT_EQ(used.s.had_error(), fresh.s.had_error());
}

TEST(Session, RejectedCommandsChangeNothing) {
    Script r;
    r.lines("input \"The Wasps\"\ninput \"Sam\"\nclick Form1.New");
    const std::string before = r.lines("dump");
    const std::string errors = r.lines(
        "set cash 2147483648\nset bandname \"unclosed\nset membername 5 \"x\"\nset cash 1 5\n"
        "set gamedate inf\nrnd 0.5 0.25 1.5\nanswer yes yes maybe\nclick main.promote 4\n"
        "click main.members 0\ncall nosuchroutine\ncontrol Chart.track 20");
    EXPECT_EQ(r.lines("dump"), before);
    std::istringstream said(errors);
    int n = 0;
    for (std::string line; std::getline(said, line); ++n)
        EXPECT_EQ(line.rfind("error \"", 0), 0u) << line;
    EXPECT_EQ(n, 11) << errors;
    // Neither the good draws before the bad one nor the good answers were queued.
    EXPECT_EQ(r.lines("rndleft\nclick main.exitbtn"),
              "rndleft = 0\nmsgbox yesno \"Are you sure you want to quit?\" -> no\n");
    EXPECT_TRUE(r.s.had_error());
}

TEST(Session, EveryControlOfEveryFormAnswersTheControlCommand) {
    Script r;
    r.lines("rndleft");
    int walked = 0;
    r.s.game().forms.each_form([&](FormState& form) {
        form.each([&](Control& c) {
            std::string line = std::string("control ") + form.name + "." + std::string(c.name);
            if (c.index >= 0) line += " " + std::to_string(c.index);
            EXPECT_EQ(r.lines(line).rfind(line.substr(0, line.find(' ', 8)), 0), 0u) << line;
            ++walked;
        });
    });
    EXPECT_EQ(walked,
              4 + 44 + 7 + 22 + 7 + 8 + 23);  // title, office, memo, gig, report, save, chart
}

}  // namespace
}  // namespace tourvane::driver
