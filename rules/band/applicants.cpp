#include "rules/band/applicants.h"

#include "core/career.h"
#include "core/ui.h"
#include "rules/band/roster.h"

namespace tourvane {

const char* talent_word(int talent) {
    if (talent < 2) return "terrible ";
    if (talent < 4) return "poor ";
    if (talent < 6) return "reasonable ";
    if (talent < 8) return "good ";
    return "excellent ";
}

namespace {

const char* looks_phrase(int looks) {
    if (looks < 2) return "looks very ugly!";
    if (looks < 4) return "looks quite ugly. ";
    if (looks < 6) return "looks o.k. ";
    if (looks < 8) return "looks pretty good! ";
    return "is gorgeous!! ";
}

/// Adds what the member of `slot` plays to `text`.
void add_instrument(std::string& text, const Module1& r, int slot) {
    if (slot == 1) {
        text += "Vocalist, and ";
        return;
    }
    if (in_bounds(r.instrument, slot)) text += r.instrument[slot];
    text += " player, and ";
}

}  // namespace

void newapplicant(Game& g) {
    MainFields& a = g.main;
    const Module1& r = g.rec;
    if (a.applicantsseen > 5) return;
    a.applicantage = static_cast<Integer>(Int(g.rnd() * 6) + 17);
    a.applicantsex = Int(g.rnd() * 2) + 1 == 1 ? "Male" : "Female";
    const auto forename = Int(g.rnd() * 30) + 1;
    const auto surname = Int(g.rnd() * 30) + 1;
    // Written in place, as the sentence below is: an applicant a week makes no new text.
    a.applicantname = a.applicantsex == "Male" ? r.malename[forename] : r.femalename[forename];
    a.applicantname += r.surname[surname];
    a.applicanttalent = static_cast<Integer>(Int(g.rnd() * 5) + 1);
    a.applicantcharisma = static_cast<Integer>(Int(g.rnd() * 10) + 1);
    a.applicantattitude = static_cast<Integer>(Int(g.rnd() * 10) + 1);
    a.applicantlooks = static_cast<Integer>(Int(g.rnd() * 10) + 1);
    a.applicantcreativity = static_cast<Integer>(Int(g.rnd() * 3) + 1);

    std::string& text = g.forms.main.txtapplicant.caption;
    text = a.applicantname;
    text += " wants to join the band, ";
    text += a.applicantsex == "Male" ? "he is a " : "she is a ";
    text += talent_word(a.applicanttalent);
    add_instrument(text, r, r.vacancy);
    text += looks_phrase(a.applicantlooks);
}

void dismiss(Game& g) {
    OfficeForm& f = g.forms.main;
    if (g.main.applicantsseen == 3) {
        f.txtapplicant.caption.clear();
        message(g, "There are no more applicants this week, Boss.", "Dave");
        f.hire.enabled = f.dismiss.enabled = false;
        return;
    }
    add(g.main.applicantsseen, 1);
    update(g);
}

void hire(Game& g) {
    Module1& r = g.rec;
    const MainFields& a = g.main;
    g.forms.main.txtapplicant.caption.clear();
    const int slot = r.vacancy;
    if (is_member_slot(slot)) {
        r.membername[slot] = a.applicantname;
        r.membertalent[slot] = a.applicanttalent;
        r.membercharisma[slot] = a.applicantcharisma;
        r.memberattitude[slot] = a.applicantattitude;
        r.memberlooks[slot] = a.applicantlooks;
        r.membercreativity[slot] = a.applicantcreativity;
        r.membersex[slot] = a.applicantsex;
        r.memberage[slot] = a.applicantage;
        r.memberhappy[slot] = 10;
        r.memberfriction[slot] = 0;
        note_hire(g);
    }
    add(g.main.applicantsseen, 1);
    listupdate(g);
    update(g);
    if (g.main.applicantsseen == 5) message(g, "Sorry Boss, no more applicants this week", "Dave");
}

void update(Game& g) {
    Module1& r = g.rec;
    OfficeForm& f = g.forms.main;
    f.txtname.caption.assign(r.playername).append("'s Office");  // in place: no new text a week
    f.txtdate.caption = format_date(r.gamedate);
    f.txtcash.caption = format_cash(r.cash);
    for (int slot = 1; slot <= kMemberSlots; ++slot) {
        if (is_vacant(r, slot)) {
            f.hire.enabled = f.dismiss.enabled = true;
            r.vacancy = static_cast<Integer>(slot);
            newapplicant(g);
            break;
        }
        f.txtapplicant.caption = "No Applicants";
        f.hire.enabled = f.dismiss.enabled = false;
    }
}

}  // namespace tourvane
