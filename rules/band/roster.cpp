#include "rules/band/roster.h"

#include "core/career.h"
#include "core/ui.h"
#include "rules/band/applicants.h"

namespace tourvane {

void listupdate(Game& g) {
    Module1& r = g.rec;
    Control& list = g.forms.main.members;
    list.rows.clear();
    list.selected = -1;
    int row = 0;
    for (int slot = 1; slot <= kMemberSlots; ++slot) {
        if (is_vacant(r, slot)) continue;
        list.rows.push_back(r.membername[slot]);
        ++row;
        r.listslot[row] = static_cast<Integer>(slot);
    }
}

void members_click(Game& g) {
    const Module1& r = g.rec;
    OfficeForm& f = g.forms.main;
    f.Command2.enabled = true;
    const int row = f.members.selected + 1;
    if (!in_bounds(r.listslot, row)) return;
    const int slot = r.listslot[row];
    g.main.selectedmember = static_cast<Integer>(slot);
    if (!is_member_slot(slot)) return;
    f.txtage.caption = std::to_string(r.memberage[slot]);
    f.txtsex.caption = r.membersex[slot];
    f.txtinstrument.caption = r.instrument[slot];
    f.txttalent.caption = std::to_string(r.membertalent[slot]);
    f.txtcharisma.caption = std::to_string(r.membercharisma[slot]);
    f.txtattitude.caption = std::to_string(r.memberattitude[slot]);
    f.txtlooks.caption = std::to_string(r.memberlooks[slot]);
}

void members_dblclick(Game& g) {
    const Module1& r = g.rec;
    const int s = g.main.selectedmember;
    if (s == 0) {
        MsgBox(g, "Please select a band member");
        return;
    }
    if (!in_bounds(r.membername, s)) return;
    const std::string& name = r.membername[s];
    const int happy = r.memberhappy[s];
    std::string text;
    if (happy < 3)
        text = name + " is unhappy.";
    else if (happy == 3)
        text = "";
    else if (happy <= 6)
        text = name + " is content. ";
    else if (happy <= 8)
        text = name + " is quite happy. ";
    else
        text = name + " is very happy. ";

    const bool male = r.membersex[s] == "Male";
    const char* him = male ? "him" : "her";
    const char* he = male ? "He" : "She";
    const int friction = r.memberfriction[s];
    if (friction <= 2)
        text += std::string(" The other members of the band get on with ") + him + " very well.";
    else if (friction <= 4)
        text += std::string(" The other band members seem to get on OK with ") + him + ".";
    else if (friction <= 6)
        text += std::string(" The other band members just about tolerate ") + him + ".";
    else
        text += std::string(" The rest of the band really don't get on with ") + him + ".";

    if (r.memberill[s] > 0)
        text += " " + name + " is ill at the moment. " + he + " should be fit again in " +
                std::to_string(r.memberill[s]) + " weeks.";
    message(g, text, "Dave");
}

void Command2(Game& g) {
    g.forms.main.Command2.enabled = false;
    const int s = g.main.selectedmember;
    const std::string name = in_bounds(g.rec.membername, s) ? g.rec.membername[s] : "";
    if (MsgBox(g, "Are you sure you want to sack " + name + "?", Buttons::YesNo) == Answer::Yes)
        delete_member(g);
}

void delete_member(Game& g) {
    Module1& r = g.rec;
    const int s = g.main.selectedmember;
    if (in_bounds(r.membername, s)) {
        if (is_member_slot(s) && !is_vacant(r, s)) note_loss(g);
        const std::int64_t sum = std::int64_t{r.memberlooks[s]} + r.membertalent[s] +
                                 r.membercharisma[s] + r.membercreativity[s];
        add(r.popularity, -2 * sum);
        if (r.popularity < 0) r.popularity = 0;

        r.membername[s] = kVacant;
        r.membertalent[s] = r.membercharisma[s] = r.memberattitude[s] = 0;
        r.memberlooks[s] = r.membercreativity[s] = 0;
        r.membersex[s] = "0";

        const Integer friction = r.memberfriction[s];
        for (int i = 1; i <= kMemberSlots; ++i) {
            if (friction > 0) {
                if (i == s) continue;
                add(r.memberhappy[i], friction);
                if (r.memberhappy[i] > 10) r.memberhappy[i] = 10;
            } else {
                add(r.memberhappy[i], -4);
                if (r.memberhappy[i] < 0) r.memberhappy[i] = 0;
            }
        }
    }
    listupdate(g);
    update(g);
}

}  // namespace tourvane
