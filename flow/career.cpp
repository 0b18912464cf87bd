#include "flow/career.h"

#include <vector>

#include "core/ui.h"
#include "flow/save_screen.h"
#include "rules/files/hall_of_fame.h"
#include "rules/files/history_file.h"
#include "rules/files/save_file.h"

namespace tourvane {

namespace {
constexpr const char* kNoAutosave = "There is no automatic save to carry on with.";
}  // namespace

std::filesystem::path autosave_file() {
    return "tvauto.tvs";
}

std::filesystem::path autosave_history_file() {
    return "tvauto.tvh";
}

bool keep_running_career(const Game& g) {
    if (g.game_over) {
        // Kept in the hall even when the front end did not put it there as the memo came up.
        add_to_hall(g);
        g.files->remove(autosave_file());
        g.files->remove(autosave_history_file());
        return false;
    }
    if (!g.career_begun || g.rec.bandname.empty()) return false;
    std::string reason;
    const std::vector<std::uint8_t> bytes = save_bytes(g.rec);
    if (!g.files->replace(autosave_file(), bytes, reason)) return false;
    write_history(g, autosave_history_file(), bytes);
    return true;
}

AutosavedCareer autosaved_career(FilePort& files) {
    const auto bytes = files.read(autosave_file(), kSaveBytes);
    if (!bytes) return {};
    // Read over an empty record, as the slots' details are: only saved fields show.
    const std::optional<Module1> game = parse_save(*bytes, Module1{});
    if (!game) return {AutosavedCareer::State::Damaged, kDamagedAutosave};
    return {AutosavedCareer::State::Ready, save_details(*game)};
}

bool carry_on(Game& g) {
    const AutosavedCareer kept = autosaved_career(*g.files);
    if (kept.state == AutosavedCareer::State::Ready &&
        resume_career(g, autosave_file(), autosave_history_file()))
        return true;
    MsgBox(g, kept.state == AutosavedCareer::State::None ? kNoAutosave : kDamagedAutosave,
           Buttons::Ok, true);
    return false;
}

}  // namespace tourvane
