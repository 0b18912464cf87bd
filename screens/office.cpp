#include "screens/office.h"

#include "band/roster.h"
#include "screens/ui.h"
#include "state/world.h"

namespace tourvane {

void load_Form1(Game& g) {
    TitleForm& f = g.forms.Form1;
    f.loaded = f.visible = true;
}

void load_main(Game& g, std::optional<std::uint64_t> seed) {
    OfficeForm& office = g.forms.main;
    office.loaded = true;
    office.visible = false;
    load_Form1(g);
    if (seed)
        g.rnd.reseed(*seed);
    else
        g.rnd.reseed_from_clock();
    newgamesetup(g);
    g.rec.vacancy = 1;
    g.rec.popularity = 0;
    update(g);
}

void Form1_New(Game& g) {
    Module1& r = g.rec;
    r.bandname = InputBox(g, "Please enter the name of the Band:", "NEW BAND");
    if (r.bandname.empty()) {
        MsgBox(g, "Invalid Band Name.", Buttons::Ok, true);
        return;
    }
    r.playername = InputBox(g, "Please enter your name:", "PLAYER NAME");
    if (r.playername.empty()) {
        MsgBox(g, "Invalid Player Name.", Buttons::Ok, true);
        return;
    }
    update(g);
    listupdate(g);
    g.forms.main.visible = true;
    g.forms.Form1.visible = false;
}

void Form1_Label4(Game& g) {
    end_program(g);
}

void exitbtn(Game& g) {
    if (MsgBox(g, "Are you sure you want to quit?", Buttons::YesNo) == Answer::Yes) end_program(g);
}

void promote(Game& g, int index) {
    g.rec.promotion = static_cast<Integer>(index + 1);
}

void end_program(Game& g) {
    g.ended = true;
    g.forms.each_form([](FormState& f) { f.visible = false; });
}

}  // namespace tourvane
