#include "rules/music/songs.h"

#include "core/ui.h"

namespace tourvane {

namespace {
constexpr int kNoSongInProgress = 10;
}

void command1(Game& g) {
    Module1& r = g.rec;
    if (r.songcount >= kSongSlots) {
        MsgBox(g, "You have reached the limit of 20 songs!");
        return;
    }
    if (r.songweeks < kNoSongInProgress) {
        message(g, "The band is currently working on a song.", "Dave");
        return;
    }
    for (int slot = 1; slot <= kMemberSlots; ++slot) {
        if (is_vacant(r, slot)) {
            message(g, "You need a full band to write a song, Boss", "Dave");
            return;
        }
    }
    if (r.tiredness > 0) {
        if (MsgBox(g,
                   "The band wants a rest before starting on a new song. Make them record "
                   "anyway?",
                   Buttons::YesNo) != Answer::Yes)
            return;
        for (int slot = 1; slot <= kMemberSlots; ++slot) {
            add(r.memberhappy[slot], -1);
            if (r.memberhappy[slot] < 0) r.memberhappy[slot] = 0;
        }
    }
    store(r.songweeks, Int(g.rnd() * 4) + 4);
    message(g, "Good news, Boss. The band has started writing a new song!", "Dave");
}

void makesong(Game& g) {
    Module1& r = g.rec;
    std::int64_t quality = 0;
    for (int slot = 1; slot <= kMemberSlots; ++slot) {
        quality += Int(g.rnd() * r.membertalent[slot]) + 1;
        quality += Int(g.rnd() * r.membercreativity[slot]) + 1;
    }
    store(r.tiredness, Int(g.rnd() * 3) + 2);
    add(r.nextsong, 1);
    const auto a = Int(g.rnd() * 20) + 1;
    const auto b = Int(g.rnd() * 20) + 1;
    const int song = r.nextsong;
    if (in_bounds(r.songname, song)) {
        r.songname[song] = r.titlefirst[a] + r.titlesecond[b];
        store(r.songquality[song], quality);
        g.forms.main.songlist.rows.push_back(r.songname[song]);
    }
    add(r.songcount, 1);
    message(g, "The band has finished writing a new song!", "Dave");
}

void updatesonglist(Game& g) {
    const Module1& r = g.rec;
    Control& list = g.forms.main.songlist;
    list.rows.clear();
    list.selected = -1;
    for (int i = 1; i <= r.songcount && i <= kSongSlots; ++i) list.rows.push_back(r.songname[i]);
}

void songlist_click(Game& g) {
    g.main.selectedsong = static_cast<Integer>(g.forms.main.songlist.selected + 1);
}

}  // namespace tourvane
