#include "rules/band/interviews.h"

#include "core/ui.h"

namespace tourvane {

void interview(Game& g) {
    Module1& r = g.rec;
    const bool radio = r.interviewkind == 1;
    std::int64_t score = 0;
    for (int i = 1; i <= kMemberSlots; ++i) {
        score += Int(g.rnd() * r.membercharisma[i]) + 1;
        if (!radio) score += Int(g.rnd() * r.memberlooks[i]) + 1;
        score -= r.memberattitude[i] - 10;
    }
    if (radio) score += Int(g.rnd() * 20) + 5;

    // A score of exactly 20 or exactly 60 gives no memo: the game's rule, kept as designed.
    // The texts keep the game's own spelling.
    const char* text = nullptr;
    if (score < 20)
        text = radio ? "The band interview went less well than expected"
                     : "The bands appearance on a cable music show was quite poor.";
    else if (score > 20 && score < 60)
        text = radio ? "The band interview went OK, but i think we could do better next time."
                     : "The band interview on a cable T.V show went o.k";
    else if (score > 60)
        text = radio ? "The Interview went really well, the band seem very pleased!"
                     : "The bands appearance on a cable T.V show was fantastic!";
    if (text) message(g, text, "Mona");

    add(r.popularity, Int(static_cast<double>(score) / 4.0));
    g.forms.main.interview.enabled = false;
}

}  // namespace tourvane
