#include "core/career.h"

#include <initializer_list>

namespace tourvane {

void note_hire(Game& g) {
    add(g.tally.hired, 1);
}

void note_loss(Game& g) {
    add(g.tally.lost, 1);
}

void note_demo(Game& g) {
    add(g.tally.demos, 1);
}

void note_gig(Game& g, int venue) {
    const Module1& r = g.rec;
    CareerTally& t = g.tally;
    add(t.gigs, 1);
    if (t.gigs > 1 && g.gig.gigscore <= t.best_gig.score) return;
    const bool known = venue >= 1 && venue <= kVenues;
    t.best_gig = GigNote{r.gamedate, known ? r.venuename[venue] : std::string(), r.attendance,
                         r.gigprofit, g.gig.gigscore};
}

void note_chart_place(Game& g, int place, std::string_view song) {
    CareerTally& t = g.tally;
    if (t.best_place != 0 && place >= t.best_place) return;
    t.best_place = static_cast<Integer>(place);
    t.best_song = song;
    t.best_place_date = g.rec.gamedate;
}

CareerSummary career_summary(const Game& g) {
    const Module1& r = g.rec;
    CareerSummary s;
    s.band = r.bandname;
    s.boss = r.playername;
    s.first_day = g.segments.empty() ? r.gamedate : g.segments.front().date;
    s.last_day = r.gamedate;
    store(s.weeks, Int((s.last_day - s.first_day) / 7));
    const WeekSample now = WeekSample{r.gamedate, r.cash, r.popularity, 0};
    s.peak_cash = now.cash, s.peak_cash_date = now.date;
    s.peak_popularity = now.popularity, s.peak_popularity_date = now.date;
    auto consider = [&s](const WeekSample& w) {
        if (w.cash > s.peak_cash || (w.cash == s.peak_cash && w.date < s.peak_cash_date))
            s.peak_cash = w.cash, s.peak_cash_date = w.date;
        if (w.popularity > s.peak_popularity ||
            (w.popularity == s.peak_popularity && w.date < s.peak_popularity_date))
            s.peak_popularity = w.popularity, s.peak_popularity_date = w.date;
    };
    for (const auto* samples : {&g.segments, &g.history})
        for (const WeekSample& w : *samples) consider(w);
    for (int k = 1; k <= kSongSlots; ++k) s.singles += is_true(r.released[k]);
    s.bankrupt = g.game_over;
    s.tally = g.tally;
    return s;
}

bool better_career(const CareerSummary& a, const CareerSummary& b) {
    if (a.weeks != b.weeks) return a.weeks > b.weeks;
    // Never charting (0) ranks below every place.
    const int place_a = a.tally.best_place > 0 ? a.tally.best_place : kChartRows + 1;
    const int place_b = b.tally.best_place > 0 ? b.tally.best_place : kChartRows + 1;
    if (place_a != place_b) return place_a < place_b;
    return a.peak_cash > b.peak_cash;
}

}  // namespace tourvane
