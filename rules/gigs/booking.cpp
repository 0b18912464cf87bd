#include "rules/gigs/booking.h"

#include <string>

#include "core/forms.h"
#include "core/ui.h"

namespace tourvane {

Integer venue_capacity(const Module1& r, int n) {
    return saturate<Integer>(std::int64_t{r.venuefame[venue_slot_or_none(n)]} * 4);
}

Integer venue_hirecost(const Module1& r, int n) {
    if (n == 1) return 0;
    const int v = venue_slot_or_none(n);
    const double cost =
        static_cast<double>(venue_capacity(r, n)) * static_cast<double>(r.ticketprice[v]) / 3.0;
    return saturate<Integer>(round_half_even(cost));
}

void command4(Game& g) {
    const Module1& r = g.rec;
    for (int i = 1; i <= kMemberSlots; ++i) {
        if (r.memberill[i] > 0) {
            const char* pronoun = r.membersex[i] == "Male" ? "He" : "She";
            message(g,
                    r.membername[i] + " is ill and cannot perform, " + pronoun +
                        " is expected to be fit in " + std::to_string(r.memberill[i]) + " weeks.",
                    "Mona");
            return;
        }
        if (is_vacant(r, i)) {
            message(g, "We need a full band to play a gig.", "Mona");
            return;
        }
    }
    if (r.songcount < kSetListLength) {
        message(g, "The band needs to have at least three songs before we can apply for a gig.",
                "Dave");
        return;
    }
    load_gig(g);
    g.forms.gig.visible = true;
    g.forms.main.visible = false;
}

void load_gig(Game& g) {
    const Module1& r = g.rec;
    GigForm& f = g.forms.gig;
    f.loaded = true;
    // Refilling the list clears it first, and a cleared list has no row selected.
    f.Combo1.rows.clear();
    f.Combo1.selected = -1;
    const int songs = r.songcount < kSongSlots ? r.songcount : kSongSlots;
    for (int i = 1; i <= songs; ++i) f.Combo1.rows.push_back(r.songname[i]);
    for (int i = 1; i <= kVenues; ++i) f.location[i - 1].enabled = is_true(r.venueopen[i]);
}

void gig_location(Game& g, int index) {
    Module1& r = g.rec;
    GigForm& f = g.forms.gig;
    const int n = index + 1;
    f.txtcapacity.caption = std::to_string(venue_capacity(r, n));
    f.txtticket.caption = format_pounds(r.ticketprice[venue_slot_or_none(n)]);
    r.hirecost = venue_hirecost(r, n);
    f.txthire.caption = format_pounds(r.hirecost);
    f.command1.enabled = true;
    store(g.gig.gigvenue, n);
}

void gig_command1(Game& g) {
    const Module1& r = g.rec;
    GigForm& f = g.forms.gig;
    if (r.popularity >= r.venuefame[venue_slot_or_none(g.gig.gigvenue)]) {
        MsgBox(g, "We would be delighted for you to come and play!");
        f.Combo1.enabled = f.command4.enabled = f.command3.enabled = true;
    } else {
        MsgBox(g, "Sorry, but your band is not well known enough to play at our venue.");
    }
}

void gig_Combo1(Game& g) {
    Module1& r = g.rec;
    GigForm& f = g.forms.gig;
    const int s = f.Combo1.selected + 1;
    if (g.gig.tracksadded >= kSetListLength) {
        MsgBox(g, "No more tracks can be added");
        return;
    }
    for (int i = 1; i <= kSetListLength; ++i) {
        if (r.setlist[i] == s) {
            MsgBox(g, "This track is already on the list!");
            return;
        }
    }
    add(g.gig.tracksadded, 1);
    const int n = g.gig.tracksadded;
    if (n >= 1 && n <= kSetListLength) {
        f.tracks[n - 1].caption = std::to_string(n) + ". " + r.songname[song_slot_or_none(s)];
        store(r.setlist[n], s);
    }
}

void gig_command3(Game& g) {
    for (Control& t : g.forms.gig.tracks) t.caption.clear();
    g.gig.tracksadded = 0;
    for (int i = 1; i <= kSetListLength; ++i) g.rec.setlist[i] = 0;
}

void gig_Command2(Game& g) {
    unload(g.forms.gig);
    g.forms.main.visible = true;
}

}  // namespace tourvane
