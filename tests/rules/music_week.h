#pragma once
// Helpers for the music tests: draws pinned by their whole-number result, songs on the track
// list, a calm chart, and a full band's week with every draw queued.

#include <string>
#include <vector>

#include "music/songs.h"
#include "test_game.h"

namespace tourvane::testing {

/// Queues a draw that makes Int(Rnd()*n) give x.
inline void draw(TestGame& t, int x, int n) {
    t.g.rnd.queue((x + 0.5) / n);
}

/// Songs 1, 2, ... of the given qualities, on the track list.
inline void add_songs(TestGame& t, const std::vector<int>& qualities) {
    int k = 0;
    for (int q : qualities) {
        ++k;
        t.r.songname[k] = "Song " + std::to_string(k);
        t.r.songquality[k] = static_cast<Integer>(q);
    }
    t.r.songcount = t.r.nextsong = static_cast<Integer>(k);
    updatesonglist(t.g);
}

/// Rival rows 20 to 70 with long lives and sales of their row number; pool entry k is
/// "Pool k" with fame k.
inline void calm_chart(TestGame& t) {
    for (int row = 20; row <= 70; ++row) {
        t.r.chartband[row] = "Rival " + std::to_string(row);
        t.r.charttitle[row] = "Hit " + std::to_string(row);
        t.r.chartfame[row] = 10;
        t.r.chartquality[row] = 50;
        t.r.chartdemand[row] = 100;
        t.r.chartlife[row] = 30000;
        t.r.chartsales[row] = row;
        t.r.chartlastsales[row] = 0;
    }
    for (int k = 0; k <= 50; ++k) {
        t.r.rivalname[k] = "Pool " + std::to_string(k);
        t.r.rivalfame[k] = static_cast<Integer>(k);
    }
}

/// A rival row's step that keeps it running: demand +1, fame +1, life -1.
inline void tick(TestGame& t, int rows = 1) {
    for (int i = 0; i < rows; ++i) {
        draw(t, 0, 2);
        draw(t, 0, 5);
        draw(t, 0, 2);
        draw(t, 0, 3);
        draw(t, 0, 100);
    }
}

/// A full band's week up to the label's answer: no practice, wages of 1 each, every venue open.
inline void week_start(TestGame& t) {
    t.no();
    for (int i = 0; i < 4; ++i) draw(t, 0, 3);
    for (int i = 0; i < 5; ++i) draw(t, 0, 2);
}

/// The rest of a full band's week after the singles: no illness, no press item, no
/// invitation (a band above 200 popularity draws for one), and a calm chart step.
inline void week_end(TestGame& t, bool above_200) {
    for (int i = 0; i < (above_200 ? 6 : 5); ++i) t.draws({0.5});
    tick(t, 51);
}

}  // namespace tourvane::testing
