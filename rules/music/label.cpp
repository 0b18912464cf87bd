#include "rules/music/label.h"

#include "core/career.h"
#include "core/ui.h"

namespace tourvane {

namespace {

/// The label's answers, from the worst song to the contract.
constexpr std::string_view kVerdicts[] = {
    "The record label rejected our demo tape.",
    "The record label thought the song was ok but not what they are looking for.",
    "The record label liked your song but felt it didn't meet their needs.",
    "The record label liked the song a lot, they would like to hear some more of your tracks.",
    "The record label loved the track, but think the band as a whole still needs to develop.",
    "Superstar Records loved the demo tape and have signed the band!",
};

}  // namespace

bool is_demo_verdict(std::string_view text) {
    for (std::string_view verdict : kVerdicts)
        if (text == verdict) return true;
    return false;
}

void command3(Game& g) {
    if (is_true(g.main.demosent)) {
        message(g, "We have already sent a Demo Tape, Boss.", "Dave");
        return;
    }
    if (g.main.selectedsong == 0) {
        message(g, "Select a song from the list to send to the record company.", "Mona");
        return;
    }
    g.main.demosent = kTrue;
    note_demo(g);
    message(g, "We have sent a demo to the record company", "Dave");
}

void contract_review(Game& g) {
    Module1& r = g.rec;
    if (is_true(r.signed_) && r.popularity < kKeepPopularity) {
        // "the bands low popularity" is the game's own wording, kept as it stands.
        message(g,
                "Bad news, Boss. Due to the bands low popularity, Superstar records have "
                "terminated our contract!",
                "Dave");
        r.signed_ = kFalse;
    }
}

bool demo_verdict(Game& g) {
    Module1& r = g.rec;
    if (!is_true(g.main.demosent)) return true;
    const int song = g.main.selectedsong;
    const int q = in_bounds(r.songquality, song) ? r.songquality[song] : 0;
    g.main.demosent = kFalse;
    if (q < kRejectQuality) {
        message(g, kVerdicts[0], "Mona");
        return false;
    }
    // A quality of exactly 20, 25, 30 or 40 gives no memo: the game's rule, kept as designed.
    if (q > kRejectQuality && q < 25) {
        message(g, kVerdicts[1], "Mona");
    } else if (q > 25 && q < 30) {
        message(g, kVerdicts[2], "Mona");
    } else if (q > 30 && q < kSignQuality) {
        message(g, kVerdicts[3], "Mona");
    } else if (q > kSignQuality && r.popularity < kSignPopularity) {
        message(g, kVerdicts[4], "Mona");
    } else if (q > kSignQuality) {
        message(g, kVerdicts[5], "Dave");
        r.signed_ = kTrue;
    }
    return true;
}

}  // namespace tourvane
