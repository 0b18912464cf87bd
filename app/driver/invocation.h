#pragma once
// The command line of tourvane-script.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tourvane::driver {

/// What the command line asks for.
struct Invocation {
    bool help = false;                  ///< --help: print the usage and stop
    bool version = false;               ///< --version: print the version and licence, and stop
    std::optional<std::uint64_t> seed;  ///< --seed N
    std::string file;                   ///< the script; empty for standard input
    std::string error;                  ///< why the command line is bad, empty when it is fine
};

/// The usage text printed by --help and after a bad command line.
std::string_view usage();

/// What `--seed` takes: a plain whole number from 0 to 2^64 - 1.
std::optional<std::uint64_t> parse_seed(std::string_view text);
inline constexpr const char* kSeedError =
    "--seed needs a whole number from 0 to 18446744073709551615";

/// Reads the arguments after the program name.
Invocation parse_invocation(const std::vector<std::string_view>& args);

}  // namespace tourvane::driver
