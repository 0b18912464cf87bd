#include "rules/week/turn.h"

#include "core/diary.h"
#include "core/ui.h"
#include "rules/band/applicants.h"
#include "rules/band/roster.h"
#include "rules/band/training.h"
#include "rules/music/chart.h"
#include "rules/music/label.h"
#include "rules/music/singles.h"
#include "rules/music/songs.h"
#include "rules/week/events.h"

namespace tourvane {

namespace {

/// Asks whether the band should practise, with a second question when it is tired.
void practice_prompt(Game& g) {
    if (!band_is_full(g.rec)) return;
    if (MsgBox(g, "Do you want the band to practise?", Buttons::YesNo) != Answer::Yes) return;
    if (g.rec.tiredness <= 0) {
        practise(g);
    } else if (MsgBox(g, "The band is tired, make them practise anyway?", Buttons::YesNo) ==
               Answer::Yes) {
        practise(g);
    }
}

/// Charges the week's promotion. Returns false when the turn ends here (no time passes).
bool charge_promotion(Game& g) {
    // Each level meets short cash in its own way, as the game has it and kept as designed:
    // Small stops the week only below 0 and may take the cash under 0, Medium stops the week
    // with a memo, High says so and lets the week go on unpaid.
    Module1& r = g.rec;
    switch (r.promotion) {
        case 2:
            if (r.cash < 0) return false;
            if (is_true(r.signed_)) promote_singles(g, 3);
            add(r.cash, -kPromotionPrice[2]);
            add(r.popularity, 3);
            break;
        case 3:
            if (r.cash < kPromotionPrice[3]) {
                message(g, "We can't afford any promotion this week.", "Dave");
                return false;
            }
            if (is_true(r.signed_)) promote_singles(g, 5);
            add(r.cash, -kPromotionPrice[3]);
            add(r.popularity, 4);
            break;
        case 4:
            if (r.cash < kPromotionPrice[4]) {
                message(g,
                        "Sorry, Boss. Cash is a bit tight this week so we can't afford any "
                        "promotion.",
                        "Dave");
                break;
            }
            if (is_true(r.signed_)) promote_singles(g, 7);
            add(r.cash, -kPromotionPrice[4]);
            add(r.popularity, 5);
            break;
        default:
            break;
    }
    return true;
}

/// An unhappy member says so; a member with no happiness left may walk out.
void morale(Game& g) {
    Module1& r = g.rec;
    for (int slot = 1; slot <= kMemberSlots; ++slot) {
        if (!is_vacant(r, slot) && r.memberhappy[slot] == 1)
            message(g, r.membername[slot] + " is unhappy.", "Steven");
        if (!is_vacant(r, slot) && r.memberhappy[slot] == 0 && Int(g.rnd() * 5) + 1 == 1) {
            const std::string leaver = r.membername[slot];
            g.main.selectedmember = static_cast<Integer>(slot);
            delete_member(g);
            message(g,
                    leaver +
                        " has decided to leave the band! The rest of the band is in a state of "
                        "shock.",
                    "Mona");
        }
    }
}

/// Pays the week's wages. Returns false when they can't be paid: the game is over.
bool pay_wages(Game& g) {
    Module1& r = g.rec;
    std::int64_t wages = 0;
    for (int slot = 1; slot <= kMemberSlots; ++slot)
        if (!is_vacant(r, slot)) wages += Int(g.rnd() * kTopWage) + 1;
    if (wages > r.cash) {
        // "Bad new, Boss" is the game's own text, kept as it stands.
        final_message(g, "Bad new, Boss. We're out of cash, and that means we're out of a job!",
                      "Dave");
        return false;
    }
    add(r.cash, -wages);
    return true;
}

/// One week's phases in their fixed order; a phase that ends the week early returns.
void play_week(Game& g) {
    Module1& r = g.rec;
    OfficeForm& office = g.forms.main;

    contract_review(g);
    practice_prompt(g);
    // Promotion unpaid: the week ends here and passes no time.
    if (!charge_promotion(g)) return;
    if (is_true(r.signed_)) cap_hype(g);
    // Illness: every ill member is a week nearer well.
    for (int slot = 1; slot <= kMemberSlots; ++slot)
        if (r.memberill[slot] > 0) add(r.memberill[slot], -1);
    morale(g);
    // The song clock: a song in the studio comes out when it runs down.
    if (r.songweeks < 10) add(r.songweeks, -1);
    if (r.songweeks <= 0) {
        makesong(g);
        r.songweeks = 10;
    }
    // A new week: no interview offer, no applicants seen, a little less tired.
    r.interviewkind = 0;
    office.interview.enabled = false;
    g.main.applicantsseen = 0;
    r.tiredness = r.tiredness > 0 ? static_cast<Integer>(r.tiredness - 1) : 0;
    r.gamedate += 7;
    if (!pay_wages(g)) return;  // bankrupt: the game is over
    // The venues open or close for the week.
    for (int v = 1; v <= kVenues; ++v) r.venueopen[v] = to_boolean(Int(g.rnd() * 2) + 1 == 1);
    if (!demo_verdict(g)) return;  // a rejected demo ends the week here
    singles_phase(g);
    hype_step(g);
    office.command4.enabled = true;  // a gig can be booked again
    events(g);
    update(g);
    add(r.popularity, -1);  // fans drift away a little every week
    chart_step(g);
    office.secret.enabled = true;  // the chart has a week to show
}

}  // namespace

void command6(Game& g) {
    const WeekSample before = week_sample(g, 0);
    play_week(g);
    // A week that passed no time (promotion unpaid) is not in the history.
    if (g.rec.gamedate == before.date) return;
    // A new game's first stretch of play starts where its first week did.
    if (g.segments.empty()) g.segments.push_back(before);
    g.history.push_back(week_sample(g, static_cast<int>(g.segments.size()) - 1));
    tally_chart_place(g);
}

}  // namespace tourvane
