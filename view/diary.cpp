#include "view/diary.h"

#include <algorithm>

#include "core/ui.h"

namespace tourvane {

std::string fold_case(std::string_view text) {
    std::string out(text);
    for (std::size_t i = 0; i < out.size(); ++i) {
        const auto c = static_cast<unsigned char>(out[i]);
        if (c >= 'A' && c <= 'Z') {
            out[i] = static_cast<char>(c + 32);
        } else if (c == 0xC3 && i + 1 < out.size()) {
            // U+00C0 to U+00DE are capitals, but for U+00D7, the multiplication sign.
            const auto next = static_cast<unsigned char>(out[i + 1]);
            if (next >= 0x80 && next <= 0x9E && next != 0x97)
                out[i + 1] = static_cast<char>(next + 32);
            ++i;
        }
    }
    return out;
}

void DiaryFilter::search(std::string_view text) {
    words.clear();
    for (char ch : text) {
        const bool blank = ch == ' ' || ch == '\t' || ch == '\n' || ch == '\r';
        if (blank && (words.empty() || words.back() == ' ')) continue;
        words += blank ? ' ' : ch;
    }
    if (!words.empty() && words.back() == ' ') words.pop_back();
}

bool DiaryFilter::shows(const DiaryEntry& e) const {
    if (!sender.empty() && e.from != sender) return false;
    if (words.empty()) return true;
    const std::string wanted = fold_case(words);
    for (const std::string& field : {format_date(e.date), e.from, e.text})
        if (fold_case(field).find(wanted) != std::string::npos) return true;
    return false;
}

bool DiarySenders::take(const Game& g) {
    bool changed = false;
    if (loads_ != g.history_loads || read_ > g.diary.size()) {
        changed = !names_.empty();
        names_.clear();
        read_ = 0;
        loads_ = g.history_loads;
    }
    for (; read_ < g.diary.size(); ++read_) {
        const std::string& from = g.diary[read_].from;
        const auto at = std::lower_bound(names_.begin(), names_.end(), from);
        if (at != names_.end() && *at == from) continue;
        names_.insert(at, from);
        changed = true;
    }
    return changed;
}

std::string diary_count_line(std::size_t shown, std::size_t all) {
    if (all == 0) return "Nothing yet: memos and messages will be listed here as they come.";
    if (shown == all) return all == 1 ? "1 message" : std::to_string(all) + " messages";
    return std::to_string(shown) + " of " + std::to_string(all) + " messages";
}

}  // namespace tourvane
