// The command line of tourvane-script.

#include <gtest/gtest.h>

#include "app/driver/invocation.h"

namespace tourvane::driver {
namespace {

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

}  // namespace
}  // namespace tourvane::driver
