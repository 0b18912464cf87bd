#include "flow/office.h"

#include "core/diary.h"
#include "core/ui.h"
#include "core/world.h"
#include "flow/save_screen.h"
#include "rules/band/applicants.h"
#include "rules/band/roster.h"
#include "rules/files/cp1252.h"
#include "rules/files/record_file.h"
#include "rules/files/save_file.h"
#include "rules/music/bands.h"

namespace tourvane {

namespace {

/// A typed name must fit a save file's record: Windows-1252 letters, at most 126 of them.
/// A refused name is cleared, as an empty one would be.
bool name_fits_save(Game& g, std::string& name) {
    const char* refusal = nullptr;
    if (!fits_cp1252(name))
        refusal = "Names can only use Western European letters.";
    else if (cp1252_size(name) > kMaxStringBytes)
        refusal = "Names can be at most 126 characters.";
    if (!refusal) return true;
    name.clear();
    MsgBox(g, refusal, Buttons::Ok, true);
    return false;
}

}  // namespace

void load_Form1(Game& g) {
    TitleForm& f = g.forms.Form1;
    f.loaded = f.visible = true;
    read_slot_names(g);
    reset_savefrm(g);
}

void newgamesetup(Game& g) {
    Module1& r = g.rec;
    loadsongwords(g);
    loadvenues(g);
    loadbands(g);
    r.cash = 3000;
    r.gamedate = kStartDate;
    for (int slot = 1; slot <= kMemberSlots; ++slot) r.membername[slot] = kVacant;
    loadnames(g);
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
    if (!name_fits_save(g, r.bandname)) return;
    r.playername = InputBox(g, "Please enter your name:", "PLAYER NAME");
    if (r.playername.empty()) {
        MsgBox(g, "Invalid Player Name.", Buttons::Ok, true);
        return;
    }
    if (!name_fits_save(g, r.playername)) return;
    update(g);
    listupdate(g);
    g.forms.main.visible = true;
    g.forms.Form1.visible = false;
    // The career's first stretch of play begins here, on its first day, whatever comes before
    // its first week (a holiday, a lesson).
    if (g.segments.empty()) begin_segment(g);
    g.career_begun = true;
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

}  // namespace tourvane
