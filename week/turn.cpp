#include "week/turn.h"

#include "band/roster.h"
#include "band/training.h"
#include "music/chart.h"
#include "music/label.h"
#include "music/singles.h"
#include "music/songs.h"
#include "screens/ui.h"
#include "week/events.h"

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
    Module1& r = g.rec;
    switch (r.promotion) {
        case 2:
            if (r.cash < 0) return false;
            if (is_true(r.signed_)) promote_singles(g, 3);
            add(r.cash, -100);
            add(r.popularity, 3);
            break;
        case 3:
            if (r.cash < 250) {
                message(g, "We can't afford any promotion this week.", "Dave");
                return false;
            }
            if (is_true(r.signed_)) promote_singles(g, 5);
            add(r.cash, -250);
            add(r.popularity, 4);
            break;
        case 4:
            if (r.cash < 400) {
                message(g,
                        "Sorry, Boss. Cash is a bit tight this week so we can't afford any "
                        "promotion.",
                        "Dave");
                break;
            }
            if (is_true(r.signed_)) promote_singles(g, 7);
            add(r.cash, -400);
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
        if (!is_vacant(r, slot)) wages += Int(g.rnd() * 3) + 1;
    if (wages > r.cash) {
        final_message(g, "Bad new, Boss. We're out of cash, and that means we're out of a job!",
                      "Dave");
        return false;
    }
    add(r.cash, -wages);
    return true;
}

}  // namespace

void command6(Game& g) {
    Module1& r = g.rec;
    OfficeForm& office = g.forms.main;

    contract_review(g);                               // 1
    practice_prompt(g);                               // 2
    if (!charge_promotion(g)) return;                 // 3, early ends A and B
    if (is_true(r.signed_)) cap_hype(g);              // 4
    for (int slot = 1; slot <= kMemberSlots; ++slot)  // 5
        if (r.memberill[slot] > 0) add(r.memberill[slot], -1);
    morale(g);                                   // 6
    if (r.songweeks < 10) add(r.songweeks, -1);  // 7
    if (r.songweeks <= 0) {
        makesong(g);
        r.songweeks = 10;
    }
    r.interviewkind = 0;  // 8
    office.interview.enabled = false;
    g.main.applicantsseen = 0;
    r.tiredness = r.tiredness > 0 ? static_cast<Integer>(r.tiredness - 1) : 0;  // 9
    r.gamedate += 7;                                                            // 10
    if (!pay_wages(g)) return;          // 11, the end of the game
    for (int v = 1; v <= kVenues; ++v)  // 12
        r.venueopen[v] = to_boolean(Int(g.rnd() * 2) + 1 == 1);
    if (!demo_verdict(g)) return;  // 13, early end C
    singles_phase(g);              // 14
    hype_step(g);
    office.command4.enabled = true;  // 15
    events(g);                       // 16
    update(g);                       // 17
    add(r.popularity, -1);           // 18
    chart_step(g);                   // 19
    office.secret.enabled = true;    // 20
}

}  // namespace tourvane
