#include "rules/gigs/performance.h"

#include "core/career.h"
#include "core/forms.h"
#include "core/ui.h"
#include "rules/gigs/booking.h"
#include "rules/gigs/report.h"

namespace tourvane {

namespace {

/// A weak value costs the band the distance from 4, whatever the quality measured.
std::int64_t penalty(std::int64_t value) {
    return -(4 - value);
}

/// Floors a division by 4, also for a negative popularity.
std::int64_t quarter(std::int64_t v) {
    return Int(static_cast<double>(v) / 4.0);
}

/// What one member's talent adds to the score (negative for a weak player).
std::int64_t talent_points(std::int64_t talent) {
    if (talent <= 3) return penalty(talent);
    if (talent >= 6) return talent;
    return 0;
}

/// What one member's looks or happiness adds to the score.
std::int64_t looks_points(std::int64_t value) {
    if (value <= 3) return penalty(value);
    if (value >= 7) return value;
    return 0;
}

}  // namespace

void gig_command4(Game& g) {
    Module1& r = g.rec;
    GigFields& gf = g.gig;
    gf.gigscore = 0;
    if (gf.tracksadded < kSetListLength) {
        MsgBox(g, "You must have a full list of songs!");
        return;
    }

    // The running score may dip below 0 on the way; only the total is floored.
    std::int64_t score = 0;
    for (int i = 1; i <= kSetListLength; ++i) {
        const std::int64_t q = r.songquality[song_slot_or_none(r.setlist[i])];
        score += q;
        // A song under 80 loses its worth again for each other time it stands on the list, so
        // twice it earns nothing; a song of 80 or more pays in full every time.
        for (int j = 1; j <= kSetListLength; ++j)
            if (j != i && r.setlist[j] == r.setlist[i] && q < 80) score -= q;
    }
    for (int i = 1; i <= kMemberSlots; ++i) {
        score += talent_points(r.membertalent[i]);
        score += looks_points(r.memberlooks[i]);
    }
    for (int i = 1; i <= kMemberSlots; ++i) {
        score += looks_points(r.memberhappy[i]);
        score -= r.memberfriction[i];
    }
    if (score < 0) score = 0;
    store(gf.gigscore, score);

    add(r.popularity, gf.gigscore / 4);

    Integer best_quality = 0;
    for (int i = 1; i <= kSetListLength; ++i) {
        const Integer q = r.songquality[song_slot_or_none(r.setlist[i])];
        if (q > best_quality) {
            best_quality = q;
            r.bestsong = r.setlist[i];
        }
    }

    // The crowd follows the popularity this gig has just earned, up to what the venue holds.
    const int venue = venue_slot_or_none(gf.gigvenue);
    const std::int64_t capacity = venue_capacity(r, venue);
    const std::int64_t fans = quarter(r.popularity);
    store(r.attendance, fans > capacity ? capacity : fans);

    const std::int64_t takings = std::int64_t{r.ticketprice[venue]} * r.attendance;
    add(r.cash, takings);
    store(r.gigprofit, takings);
    add(r.cash, -std::int64_t{r.hirecost});
    add(r.gigprofit, -std::int64_t{r.hirecost});
    note_gig(g, venue);

    gig_command3(g);  // the set list is emptied just as CLEAR LIST empties it

    newspaper(g);
}

}  // namespace tourvane
