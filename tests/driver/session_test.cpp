// The runner: start-up timing, errors that change nothing, the end, and the exit status.

#include <gtest/gtest.h>

#include <regex>
#include <sstream>

#include "app/driver/session.h"

namespace tourvane::driver {
namespace {

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

TEST(Session, RejectedCommandsChangeNothing) {
    Script r;
    r.lines("input \"The Wasps\"\ninput \"Sam\"\nclick Form1.New");
    const std::string before = r.lines("dump");
    const std::string errors = r.lines(
        "set cash 2147483648\nset bandname \"unclosed\nset membername 5 \"x\"\nset cash 1 5\n"
        "set gamedate inf\nrnd 0.5 0.25 1.5\nanswer yes yes maybe\nclick main.promote 4\n"
        "click main.members 0\ncall nosuchroutine\ncontrol Chart.track 20");
    EXPECT_EQ(r.lines("dump"), before);
    const std::regex eleven_errors("(error \"[^\n]*\n){11}");
    EXPECT_TRUE(std::regex_match(errors, eleven_errors)) << errors;
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
            std::string line = std::string("control ") + form.name + "." + c.name;
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
