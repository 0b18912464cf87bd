#include "app/driver/invocation.h"

#include <charconv>

#include "app/driver/values.h"

namespace tourvane::driver {

std::string_view usage() {
    return R"(Usage: tourvane-script [--seed N] [FILE]
       tourvane-script --help | --version

Plays Tourvane from a script of commands, read from FILE or from standard input, and
prints what the player would see, one line per event. The working directory is the game's:
bands.dat and the save files are read and written there.

Options:
  --seed N   seed the fallback random draws with the whole number N (default: the clock);
             the same seed and the same script give the same game and the same transcript
  --help     print this text and exit
  --version  print the version and the licence, and exit

Commands, one per line (# starts a comment; TEXT is a JSON string literal):
  rnd V1 V2 ...                   queue exact draws, each 0 <= V < 1
  rndleft                         print how many queued draws are left
  answer A1 A2 ...                queue answers for message boxes: ok, yes or no
  input TEXT                      queue one answer for an input box
  automemo on|off                 acknowledge open memos after each command (default on)
  click FORM.CONTROL [INDEX]      click a control (INDEX: array index or list row)
  dblclick FORM.CONTROL [ROW]     double-click a list box
  call ROUTINE                    run one of the game's routines directly
  get NAME [INDEX]                print a field of the game state
  set NAME [INDEX] VALUE          change a field, with no other effect
  dump                            print every field
  control FORM.CONTROL [INDEX]    print the state of a control
  form FORM                       print whether a screen is loaded, visible and enabled
  diary                           print every memo, box and gig report of the career (a load
                                  brings back the saved one), oldest first:
                                    diary DD/MM/YYYY "FROM" "TEXT"  (boxes are from "Tourvane")
  history                         print cash and popularity at the end of every week played:
                                    week DD/MM/YYYY CASH POPULARITY

Exit status: 0 when the script ran out or the program ended, 1 when any command printed an
error line, 2 for a bad command line.
)";
}

std::optional<std::uint64_t> parse_seed(std::string_view text) {
    if (text.empty()) return std::nullopt;
    for (char c : text)
        if (c < '0' || c > '9') return std::nullopt;
    std::uint64_t v = 0;
    auto [ptr, ec] = std::from_chars(text.data(), text.data() + text.size(), v);
    if (ec != std::errc() || ptr != text.data() + text.size()) return std::nullopt;
    return v;
}

Invocation parse_invocation(const std::vector<std::string_view>& args) {
    Invocation inv;
    bool have_file = false;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string_view a = args[i];
        if (a == "--help" || a == "-h") {
            inv.help = true;
        } else if (a == "--version" || a == "-v") {
            inv.version = true;
        } else if (a == "--seed") {
            if (inv.seed) {
                inv.error = "--seed given twice";
                return inv;
            }
            inv.seed = i + 1 < args.size() ? parse_seed(args[i + 1]) : std::nullopt;
            if (!inv.seed) {
                inv.error = kSeedError;
                return inv;
            }
            ++i;
        } else if (a.size() > 1 && a[0] == '-') {
            inv.error = "unknown option " + shown_word(a);
            return inv;
        } else if (have_file) {
            inv.error = "more than one script file";
            return inv;
        } else {
            have_file = true;
            inv.file = std::string(a);
        }
    }
    return inv;
}

}  // namespace tourvane::driver
