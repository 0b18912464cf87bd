#include "rules/music/label.h"

#include "core/career.h"
#include "core/ui.h"

namespace tourvane {

namespace {
constexpr int kKeepContract = 900;
constexpr int kSignContract = 1000;
}  // namespace

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
    if (is_true(r.signed_) && r.popularity < kKeepContract) {
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
    if (q < 20) {
        message(g, "The record label rejected our demo tape.", "Mona");
        return false;
    }
    if (q > 20 && q < 25) {
        message(g, "The record label thought the song was ok but not what they are looking for.",
                "Mona");
    } else if (q > 25 && q < 30) {
        message(g, "The record label liked your song but felt it didn't meet their needs.", "Mona");
    } else if (q > 30 && q < 40) {
        message(g,
                "The record label liked the song a lot, they would like to hear some more of "
                "your tracks.",
                "Mona");
    } else if (q > 40 && r.popularity < kSignContract) {
        message(g,
                "The record label loved the track, but think the band as a whole still needs to "
                "develop.",
                "Mona");
    } else if (q > 40) {
        message(g, "Superstar Records loved the demo tape and have signed the band!", "Dave");
        r.signed_ = kTrue;
    }
    return true;
}

}  // namespace tourvane
