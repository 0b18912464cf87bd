#include "core/ui.h"

#include <charconv>
#include <cmath>
#include <iterator>

#include "core/diary.h"

namespace tourvane {

Answer MsgBox(Game& g, std::string_view text, Buttons buttons, bool critical) {
    note_in_diary(g, kBoxSender, text);
    return g.ui->msgbox(text, buttons, critical);
}

std::string InputBox(Game& g, std::string_view prompt, std::string_view title) {
    return g.ui->inputbox(prompt, title);
}

namespace {

void show_front_memo(Game& g) {
    MemoForm& f = g.forms.messageForm;
    const Memo& memo = g.memos.front();
    f.loaded = f.visible = true;
    f.thetxt.caption = memo.text;
    f.txtFrom.caption = memo.from;
    f.txtTo.caption = g.rec.playername;
}

void raise(Game& g, std::string_view text, std::string_view from, bool ends_game) {
    if (g.game_over) return;  // the memo that ends the game stays the last one
    g.rec.messagetext = text;
    g.rec.messagefrom = from;
    g.memos.push_back({std::string(from), std::string(text), ends_game});
    note_in_diary(g, from, text);
    g.ui->memo_raised(from, text);
    if (g.memos.size() == 1) show_front_memo(g);
    g.forms.main.enabled = false;
    if (ends_game) {
        // Nothing but this memo's OK may be clicked from now on.
        g.game_over = true;
        g.forms.each_form([&](FormState& f) {
            if (&f != &g.forms.messageForm) f.enabled = false;
        });
    }
}

}  // namespace

void message(Game& g, std::string_view text, std::string_view from) {
    raise(g, text, from, false);
}

void final_message(Game& g, std::string_view text, std::string_view from) {
    raise(g, text, from, true);
}

void memo_ok(Game& g) {
    if (g.memos.empty()) return;
    const bool ends_game = g.memos.front().ends_game;
    g.memos.pop_front();
    if (ends_game) {
        end_program(g);
        return;
    }
    if (!g.memos.empty()) {
        show_front_memo(g);
        return;
    }
    unload(g.forms.messageForm);
    g.forms.main.enabled = true;
}

std::string format_date(double day_count) {
    // Day counts start on 30 December 1899; 25569 is 1 January 1970.
    long long z = static_cast<long long>(std::floor(day_count)) - 25569 + 719468;
    const long long era = (z >= 0 ? z : z - 146096) / 146097;
    const long long doe = z - era * 146097;
    const long long yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
    const long long doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
    const long long mp = (5 * doy + 2) / 153;
    const long long day = doy - (153 * mp + 2) / 5 + 1;
    const long long month = mp < 10 ? mp + 3 : mp - 9;
    const long long year = yoe + era * 400 + (month <= 2);
    std::string text = "00/00/0000";
    auto put = [&](std::size_t at, long long value, int digits) {
        for (int i = digits - 1; i >= 0; --i, value /= 10)
            text[at + static_cast<std::size_t>(i)] = static_cast<char>('0' + value % 10);
    };
    put(0, day, 2);
    put(3, month, 2);
    if (year < 0 || year > 9999) return text.substr(0, 6) + std::to_string(year);
    put(6, year, 4);
    return text;
}

namespace {
/// `sign` and the digits of `pounds`, made in one piece.
std::string money(std::string_view sign, long long pounds) {
    char text[32];
    sign.copy(text, sign.size());
    const char* end = std::to_chars(text + sign.size(), std::end(text), pounds).ptr;
    return std::string(text, static_cast<std::size_t>(end - text));
}
}  // namespace

std::string format_pounds(long long pounds) {
    return money("£", pounds);
}

std::string format_cash(long long pounds) {
    return money("£ ", pounds);
}

void end_program(Game& g) {
    g.ended = true;
    g.forms.each_form([](FormState& f) { f.visible = false; });
}

}  // namespace tourvane
