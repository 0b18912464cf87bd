// The runner: start-up timing, errors that change nothing, the end, and the exit status.

#include <gtest/gtest.h>

#include <sstream>

#include "app/driver/session.h"

namespace tourvane::driver {
namespace {

/// A session that keeps its transcript for the test to read.
struct Script {
    std::ostringstream out;
    Session s{out, 1};

    /// Runs the lines and returns what they printed.
    std::string lines(std::initializer_list<std::string_view> script) {
        out.str("");
        for (std::string_view line : script) s.run_line(line);
        return out.str();
    }
    std::string dump() { return lines({"dump"}); }
};

TEST(Session, StartUpRunsBeforeTheFirstCommandThatIsNotQueueing) {
    Script r;
    EXPECT_EQ(r.lines({"rnd 0.5 0.5", "answer yes", "input \"x\"", "automemo on", "# note", ""}),
              "");
    EXPECT_FALSE(r.s.started());
    // The start-up offers an applicant, whose draws take the two queued values first.
    EXPECT_EQ(r.lines({"rndleft"}), "rndleft = 0\n");
    EXPECT_TRUE(r.s.started());
    EXPECT_EQ(r.lines({"get cash", "get gamedate", "form Form1"}),
              "cash = 3000\ngamedate = 37135\nform Form1 loaded=1 visible=1 enabled=1\n");
}

TEST(Session, StartUpRunsAtTheEndOfAScriptWithoutCommands) {
    Script r;
    r.lines({"rnd 0.5"});
    r.s.finish();
    EXPECT_TRUE(r.s.started());
    EXPECT_EQ(r.s.game().rec.cash, 3000);
    EXPECT_EQ(r.s.game().rnd.queued_left(), 0u);
}

TEST(Session, RejectedCommandsChangeNothing) {
    Script r;
    r.lines({"input \"The Wasps\"", "input \"Sam\"", "click Form1.New"});
    const std::string before = r.dump();
    const std::string errors = r.lines({
        "set cash 1e3",
        "set cash 2147483648",
        "set popularity 32768",
        "set bandname Wasps",
        "set bandname \"unclosed",
        "set membername \"x\"",
        "set membername 5 \"x\"",
        "set cash 1 5",
        "set nosuchfield 1",
        "set gamedate inf",
        "rnd 0.5 0.25 1.5",
        "answer yes yes maybe",
        "click main.promote",
        "click main.promote 4",
        "click main.command6 0",
        "click main.members 0",
        "click nosuch.form",
        "click main.nosuch",
        "dblclick main.command6",
        "call nosuchroutine",
        "control main.promote",
        "control main.txtcash 0",
        "control Chart.track 20",
    });
    EXPECT_EQ(r.dump(), before);
    std::istringstream lines(errors);
    std::string line;
    int n = 0;
    while (std::getline(lines, line)) {
        EXPECT_EQ(line.rfind("error \"", 0), 0u) << line;
        ++n;
    }
    EXPECT_EQ(n, 23);
    // Neither the good draws before the bad one nor the good answers were queued.
    EXPECT_EQ(r.lines({"rndleft"}), "rndleft = 0\n");
    EXPECT_EQ(r.lines({"click main.exitbtn"}),
              "msgbox yesno \"Are you sure you want to quit?\" -> no\n");
    EXPECT_TRUE(r.s.had_error());
}

TEST(Session, SetAndGetKeepTheWrittenForms) {
    Script r;
    EXPECT_EQ(
        r.lines({"set gamedate 37135.5", "get gamedate", "set membername 4 \"\\u00a3 \\\"x\\\"\"",
                 "get membername 4", "set signed -1", "get signed", "set cash -2147483648",
                 "get cash", "get titlefirst 20"}),
        "gamedate = 37135.5\nmembername(4) = \"\xC2\xA3 \\\"x\\\"\"\nsigned = -1\n"
        "cash = -2147483648\ntitlefirst(20) = \"Shocked\"\n");
    // set touches no control: the cash label keeps the last figure update wrote.
    EXPECT_EQ(r.lines({"control main.txtcash"}),
              "control main.txtcash enabled=1 visible=1 caption=\"\xC2\xA3 3000\"\n");
    EXPECT_FALSE(r.s.had_error());
}

TEST(Session, EndStopsTheScript) {
    Script r;
    r.lines({"input \"B\"", "input \"P\"", "click Form1.New", "answer yes"});
    r.out.str("");
    EXPECT_FALSE(r.s.run_line("click main.exitbtn"));
    EXPECT_TRUE(r.s.ended());
    EXPECT_EQ(r.out.str(), "msgbox yesno \"Are you sure you want to quit?\" -> yes\nend\n");
    EXPECT_FALSE(r.s.run_line("get cash"));
    EXPECT_EQ(r.out.str(), "msgbox yesno \"Are you sure you want to quit?\" -> yes\nend\n");
}

TEST(Session, AnAnswerThatDoesNotFitTheBoxCountsAsAnError) {
    Script r;
    r.lines({"answer yes"});
    EXPECT_EQ(r.lines({"click Form1.New"}),
              "inputbox \"NEW BAND\" \"Please enter the name of the Band:\" -> \"\"\n"
              "error \"answer yes does not fit an ok box\"\n"
              "msgbox ok critical \"Invalid Band Name.\" -> ok\n");
    EXPECT_TRUE(r.s.had_error());
}

TEST(Session, ControlsPrintTheKeysOfTheirKind) {
    Script r;
    EXPECT_EQ(r.lines({"control main.promote 2", "control main.secret", "control main.songlist",
                       "control Chart.track 0", "control savefrm.save", "control gig.Combo1"}),
              "control main.promote(2) enabled=1 visible=1 caption=\"Medium   \xC2\xA3"
              "250\" value=0\n"
              "control main.secret enabled=0 visible=1 tooltip=\"Music Chart\"\n"
              "control main.songlist enabled=1 visible=1 rows=[] selected=-1\n"
              "control Chart.track(0) enabled=1 visible=1 caption=\"1\" color=FFFF00\n"
              "control savefrm.save enabled=1 visible=1 caption=\"Save\"\n"
              "control gig.Combo1 enabled=0 visible=1 rows=[] selected=-1\n");
}

TEST(Session, RunScriptReportsTheExitStatus) {
    std::ostringstream out;
    std::istringstream good("get cash\n");
    EXPECT_EQ(run_script(good, out, 1), 0);
    std::istringstream bad(std::string("get cash\nget\0cash\n\xFF\xFE\n", 22));
    EXPECT_EQ(run_script(bad, out, 1), 1);
}

}  // namespace
}  // namespace tourvane::driver
