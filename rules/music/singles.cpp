#include "rules/music/singles.h"

#include "core/ui.h"
#include "rules/band/applicants.h"

namespace tourvane {

namespace {
constexpr int kMaxHype = 100;
}  // namespace

void songlist_dblclick(Game& g) {
    Module1& r = g.rec;
    const int k = g.forms.main.songlist.selected + 1;
    if (k < 1 || k > kSongSlots) return;  // the empty part of the list: no song
    if (!is_true(r.signed_)) return;
    if (is_true(r.released[k])) {
        message(g,
                "There were " + std::to_string(r.singlesales[k]) + " sales of this song last week.",
                "Mona");
        return;
    }
    if (MsgBox(g, "Do you want to release this song as a single?", Buttons::YesNo) != Answer::Yes)
        return;
    if (r.cash < kReleasePrice) {
        message(g, "We don't have enough funds to release a single", "Dave");
        return;
    }
    add(r.cash, -kReleasePrice);
    r.released[k] = kTrue;
    store(r.singledemand[k], std::int64_t{r.songquality[k]} * 4 + r.popularity);
    update(g);
}

void promote_singles(Game& g, int amount) {
    Module1& r = g.rec;
    for (int i = 1; i <= kSongSlots; ++i)
        if (is_true(r.released[i])) add(r.singlehype[i], amount);
}

void cap_hype(Game& g) {
    Module1& r = g.rec;
    for (int i = 1; i <= kSongSlots; ++i)
        if (is_true(r.released[i]) && r.singlehype[i] > kMaxHype) r.singlehype[i] = kMaxHype;
}

void singles_phase(Game& g) {
    Module1& r = g.rec;
    MainFields& m = g.main;
    if (!is_true(r.signed_)) return;
    for (int i = 1; i <= kSongSlots; ++i) {
        if (!is_true(r.released[i])) continue;
        store(m.weeksales, percent_of(r.singlehype[i], r.singledemand[i]));
        store(m.weeksales, m.weeksales + Int(g.rnd() * 20) + 1);
        r.singlesales[i] = m.weeksales;
        r.chartlastsales[i] = r.chartsales[i];
        r.chartsales[i] = m.weeksales;
        r.chartband[i] = r.bandname;
        r.charttitle[i] = r.songname[i];
        store(m.royalty, std::int64_t{m.weeksales} * 4);
        store(m.royalty, percent_of(m.royalty, 10));
        add(r.cash, m.royalty);
        MsgBox(g, format_pounds(m.royalty));
        store(r.singledemand[i], r.singledemand[i] - (Int(g.rnd() * 100) + 1));
        if (r.singledemand[i] < 0) r.singledemand[i] = 0;
    }
}

void hype_step(Game& g) {
    Module1& r = g.rec;
    for (int i = 1; i <= kSongSlots; ++i)
        if (is_true(r.released[i])) store(r.singlehype[i], r.singlehype[i] - Int(g.rnd() * 2) + 1);
}

}  // namespace tourvane
