#include "flow/save_screen.h"

#include <string>

#include "core/diary.h"
#include "core/ui.h"
#include "rules/band/applicants.h"
#include "rules/band/roster.h"
#include "rules/files/history_file.h"
#include "rules/files/save_file.h"
#include "rules/music/songs.h"

namespace tourvane {

namespace {

/// Shows the screen, loading it first if it isn't loaded, with a slot chosen.
void show_savefrm(Game& g) {
    SaveForm& f = g.forms.savefrm;
    if (!f.loaded) load_savefrm(g);
    f.visible = true;
    tell_slots(g);
    // Something must always be chosen while the screen is up: the top slot comes first.
    bool chosen = false;
    for (const Control& c : f.saveslot) chosen = chosen || c.value;
    if (!chosen) f.saveslot[0].value = true;
}

/// The slot whose option is chosen, or -1.
int chosen_slot(const SaveForm& f) {
    for (int i = 0; i < kSaveSlots; ++i)
        if (f.saveslot[i].value) return i;
    return -1;
}

}  // namespace

void tell_slots(Game& g) {
    SaveForm& f = g.forms.savefrm;
    for (int i = 0; i < kSaveSlots; ++i) f.saveslot[i].tooltip = slot_details(*g.files, i);
}

void command5(Game& g) {
    show_savefrm(g);
    g.forms.savefrm.save.visible = true;
}

void Form1_load(Game& g) {
    SaveForm& f = g.forms.savefrm;
    show_savefrm(g);
    f.save.visible = false;
    f.load.pos.left = 88;
}

void reset_savefrm(Game& g) {
    SaveForm& f = g.forms.savefrm;
    unload(f);
    for (int i = 0; i < kSaveSlots; ++i)
        if (!g.rec.slotname[i].empty()) f.saveslot[i].caption = g.rec.slotname[i];
    f.saveslot[0].value = true;
}

void load_savefrm(Game& g) {
    reset_savefrm(g);
    g.forms.savefrm.loaded = true;
}

void unload_savefrm(Game& g) {
    reset_savefrm(g);
    g.forms.main.visible = true;
}

void savefrm_save(Game& g) {
    const int slot = chosen_slot(g.forms.savefrm);
    if (slot < 0) return;
    std::string reason;
    const std::vector<std::uint8_t> bytes = save_bytes(g.rec);
    if (!g.files->replace(slot_file(slot), bytes, reason)) {
        MsgBox(g,
               "The game could not be saved in slot " + std::to_string(slot + 1) + " (" +
                   slot_file(slot).string() + "): " + reason + ".",
               Buttons::Ok, true);
        return;
    }
    write_history(g, slot, bytes);
    update(g);
    listupdate(g);
    g.forms.main.visible = true;
    unload_savefrm(g);
    MsgBox(g, "Game Saved");
}

bool resume_career(Game& g, const std::filesystem::path& save,
                   const std::filesystem::path& history) {
    if (!read_save(save, g.rec, *g.files)) return false;
    // The career's diary, weeks and tally come back with it; a game saved with none starts
    // afresh.
    CareerHistory career = read_history(*g.files, history, g.rec);
    g.diary = std::move(career.diary);
    g.history = std::move(career.history);
    g.segments = std::move(career.segments);
    g.diary_at_load = g.diary.size();
    g.tally = std::move(career.tally);
    ++g.history_loads;
    g.career_begun = true;
    begin_segment(g);
    unload(g.forms.Form1);
    update(g);
    listupdate(g);
    g.forms.main.visible = true;
    unload_savefrm(g);
    updatesonglist(g);
    MsgBox(g, "Game Loaded");
    return true;
}

void savefrm_load(Game& g) {
    const int slot = chosen_slot(g.forms.savefrm);
    if (slot < 0) return;
    if (!resume_career(g, slot_file(slot), history_file(slot)))
        MsgBox(g, "This file is not valid or does not exist.", Buttons::Ok, true);
}

void savefrm_back(Game& g) {
    g.forms.savefrm.visible = false;
}

}  // namespace tourvane
