// The command line of tourvane-script.

#include <gtest/gtest.h>

#include "app/driver/invocation.h"

namespace tourvane::driver {
namespace {

Invocation parse(std::vector<std::string_view> args) {
    return parse_invocation(args);
}

TEST(Invocation, ReadsSeedAndFile) {
    Invocation inv = parse({"--seed", "18446744073709551615", "game.tvs"});
    EXPECT_EQ(inv.error, "");
    EXPECT_EQ(inv.seed, UINT64_MAX);
    EXPECT_EQ(inv.file, "game.tvs");
    inv = parse({});
    EXPECT_EQ(inv.error, "");
    EXPECT_FALSE(inv.seed);
    EXPECT_EQ(inv.file, "");
    EXPECT_TRUE(parse({"--help"}).help);
    EXPECT_EQ(parse({"-"}).file, "-");  // standard input
}

TEST(Invocation, BadCommandLinesSayWhy) {
    for (std::vector<std::string_view> bad : {
             std::vector<std::string_view>{"--seed"},
             {"--seed", "-1"},
             {"--seed", "x"},
             {"--seed", "18446744073709551616"},
             {"--seed", "1", "--seed", "2"},
             {"--bogus"},
             {"a.tvs", "b.tvs"},
         })
        EXPECT_NE(parse(bad).error, "") << bad.size();
}

TEST(Invocation, UsageNamesEveryCommand) {
    for (const char* verb : {"rnd ", "rndleft", "answer ", "input ", "automemo ", "click ",
                             "dblclick ", "call ", "get ", "set ", "dump", "control ", "form "})
        EXPECT_NE(usage().find(std::string("\n  ") + verb), std::string_view::npos) << verb;
}

}  // namespace
}  // namespace tourvane::driver
