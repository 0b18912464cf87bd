#include "rules/week/events.h"

#include "core/ui.h"

namespace tourvane {

namespace {

/// At most one member misbehaves a week; only attitudes 1 to 3 ever do.
void misbehaviour(Game& g) {
    Module1& r = g.rec;
    for (int i = 1; i <= kMemberSlots; ++i) {
        const int attitude = r.memberattitude[i];
        if (attitude <= 0 || attitude >= 4) continue;
        if (Int(g.rnd() * (attitude + 5)) + 1 != 1) continue;
        const std::string& name = r.membername[i];
        switch (Int(g.rnd() * 5) + 1) {
            case 1:
                message(g, name + " was arrested for drink driving this week.", "Mona");
                // The game's rule, kept as designed: the draw is taken off and 1 added back.
                store(r.popularity, r.popularity - Int(g.rnd() * 10) + 1);
                break;
            case 2:
                // "critiscising" is the game's own spelling, kept as it stands.
                message(g, name + " has been heard critiscising another member of the band!",
                        "Mona");
                add(r.memberfriction[i], 1);
                break;
            case 3:
                message(g, name + " got into a fight with a member of the press last night.",
                        "Mona");
                // The game's rule, kept as designed: the draw is taken off and 1 added back.
                store(r.popularity, r.popularity - Int(g.rnd() * 5) + 1);
                add(r.memberfriction[i], 1);
                break;
            case 4:
                message(g, name + " refused to turn up for a band practise the other night.",
                        "Mona");
                add(r.memberfriction[i], 1);
                break;
            default:
                // "viscious" is the game's own spelling; the draw is taken off and 1 added back
                // by the game's rule. Both are kept as designed.
                message(g, name + " has been spreading viscious rumours about the band.", "Mona");
                store(r.popularity, r.popularity - Int(g.rnd() * 10) + 1);
                add(r.memberfriction[i], 1);
                break;
        }
        return;
    }
}

/// One member in a thousand falls ill, at most one a week.
void illness(Game& g) {
    Module1& r = g.rec;
    for (int i = 1; i <= kMemberSlots; ++i) {
        if (is_vacant(r, i)) continue;
        if (Int(g.rnd() * 1000) + 1 != 1) continue;
        store(r.memberill[i], Int(g.rnd() * 10) + 1);
        message(g,
                r.membername[i] + " has fallen ill and will be out for about " +
                    std::to_string(r.memberill[i]) + " weeks.",
                "Mona");
        return;
    }
}

void press(Game& g) {
    Module1& r = g.rec;
    switch (Int(g.rnd() * 100) + 1) {
        case 1:
            message(g, "A newspaper columnist wrote a very good piece about the band!", "Dave");
            store(r.popularity, r.popularity + Int(g.rnd() * 5) + 1);
            break;
        case 2:
            message(g, "A recent newspaper article questioned the talent of the band!", "Dave");
            // The game's rule, kept as designed: the draw is taken off and 1 added back.
            store(r.popularity, r.popularity - Int(g.rnd() * 5) + 1);
            break;
        case 3:
            message(g, "A few members of the band were invited to do a charity event this week.",
                    "Dave");
            store(r.popularity, r.popularity + Int(g.rnd() * 3) + 1);
            break;
        default:
            break;
    }
}

void invitation(Game& g) {
    Module1& r = g.rec;
    if (r.popularity <= kInvitationPopularity) return;
    switch (Int(g.rnd() * 10) + 1) {
        case 1:
            r.interviewkind = 1;
            message(g, "Great news, Boss. The Band has been invited for a Radio interview!",
                    "Dave");
            g.forms.main.interview.enabled = true;
            break;
        case 2:
            r.interviewkind = 2;
            message(g, "The group has been invited onto a cable T.V music show!", "Dave");
            g.forms.main.interview.enabled = true;
            break;
        default:
            break;
    }
}

}  // namespace

void events(Game& g) {
    misbehaviour(g);
    illness(g);
    if (band_is_full(g.rec)) {
        press(g);
        invitation(g);
    }
    if (g.rec.popularity < 0) g.rec.popularity = 0;
}

}  // namespace tourvane
