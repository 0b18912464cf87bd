#include "rules/band/training.h"

#include "core/ui.h"
#include "rules/band/applicants.h"

namespace tourvane {

namespace {
constexpr int kTalentStep = 4;  // practice points that make one step of talent
constexpr int kHolidayDays = 14;
}  // namespace

void practise(Game& g) {
    Module1& r = g.rec;
    const auto m = Int(g.rnd() * 4) + 1;
    add(r.practice[m], Int(g.rnd() * 2) + 1);
    if (r.practice[m] >= kTalentStep) {
        add(r.membertalent[m], 1);
        message(g,
                "Good news, Boss. Thanks to practising, " + r.membername[m] +
                    " has become more talented!",
                "Dave");
        r.practice[m] = 0;
    }
    add(r.tiredness, 2);
}

void label13(Game& g) {
    Module1& r = g.rec;
    const int m = g.main.selectedmember;
    if (m == 0) {
        MsgBox(g, "Please select a band member");
        return;
    }
    if (!is_member_slot(m)) return;
    static const char* const kSubjects[5] = {"", "Singing", "Guitar", "Guitar", "Drums"};
    if (MsgBox(g,
               "It will cost £75 to give " + r.membername[m] + " a " + kSubjects[m] +
                   " lesson. Go ahead?",
               Buttons::YesNo) != Answer::Yes)
        return;
    if (r.cash < kLessonPrice) {
        message(g, "You don't have enough money for this lesson!", "Accounting");
        return;
    }
    add(r.cash, -kLessonPrice);
    add(r.practice[m], 1);
    if (r.practice[m] >= kTalentStep) {
        add(r.membertalent[m], 1);
        r.practice[m] = 0;
        message(g, "Thanks to the lesson, " + r.membername[m] + " has become more talented!",
                "Mona");
    }
    update(g);
}

void holiday(Game& g) {
    Module1& r = g.rec;
    if (!band_is_full(r)) {
        message(g, "We need a full band before we can book a holiday, boss!", "Dave");
        return;
    }
    if (r.cash < kHolidayPrice) {
        message(g, "We can't afford to book a holiday at this time.", "Dave");
        return;
    }
    if (MsgBox(g, "Go ahead and book a 2 week holiday?", Buttons::YesNo) != Answer::Yes) return;
    for (int slot = 1; slot <= kMemberSlots; ++slot) {
        add(r.memberhappy[slot], kHolidayCheer);
        if (r.memberhappy[slot] > kHappiest) r.memberhappy[slot] = kHappiest;
    }
    r.gamedate += kHolidayDays;
    add(r.cash, -kHolidayPrice);
    update(g);
}

}  // namespace tourvane
