#include "tests/soak/invariants.h"

#include <limits>
#include <sstream>

namespace tourvane::soak {

namespace {

class Faults {
  public:
    explicit Faults(std::vector<std::string>& out) : out_(out) {}

    /// Records a fault when `ok` is false; the words are streamed together.
    template <class... Words>
    void expect(bool ok, const Words&... words) {
        if (ok) return;
        std::ostringstream line;
        (line << ... << words);
        out_.push_back(line.str());
    }

  private:
    std::vector<std::string>& out_;
};

bool within(long long v, long long lo, long long hi) {
    return v >= lo && v <= hi;
}

bool is_boolean(Boolean b) {
    return b == kTrue || b == kFalse;
}

void check_members(Game& g, std::int64_t very_bad_gigs, Faults& f) {
    const Module1& r = g.rec;
    f.expect(r.membername[0].empty(), "membername(0) is \"", r.membername[0], "\"");
    int first_vacant = 0;
    std::vector<std::string> filled;
    std::vector<int> filled_slots;
    for (int s = 1; s <= kMemberSlots; ++s) {
        const std::string& name = r.membername[s];
        f.expect(!name.empty(), "membername(", s, ") is empty instead of a name or \"None\"");
        if (is_vacant(r, s)) {
            if (first_vacant == 0) first_vacant = s;
            // Lessons may still be bought for an emptied slot, so only talent may be above 0.
            f.expect(r.membertalent[s] >= 0, "vacant slot ", s, " has talent ", r.membertalent[s]);
            f.expect(r.membercharisma[s] == 0 && r.memberattitude[s] == 0 &&
                         r.memberlooks[s] == 0 && r.membercreativity[s] == 0,
                     "vacant slot ", s, " keeps the qualities of a member");
            f.expect(r.membersex[s].empty() || r.membersex[s] == "0", "vacant slot ", s,
                     " has membersex \"", r.membersex[s], "\"");
        } else {
            filled.push_back(name);
            filled_slots.push_back(s);
            f.expect(r.membersex[s] == "Male" || r.membersex[s] == "Female", "member ", s,
                     " has membersex \"", r.membersex[s], "\"");
            f.expect(within(r.memberage[s], 17, 22), "member ", s, " is aged ", r.memberage[s]);
            f.expect(r.membertalent[s] >= 1, "member ", s, " has talent ", r.membertalent[s]);
            f.expect(within(r.membercharisma[s], 1, 10), "member ", s, " has charisma ",
                     r.membercharisma[s]);
            f.expect(within(r.memberattitude[s], 1, 10), "member ", s, " has attitude ",
                     r.memberattitude[s]);
            f.expect(within(r.memberlooks[s], 1, 10), "member ", s, " has looks ",
                     r.memberlooks[s]);
            f.expect(within(r.membercreativity[s], 1, 3), "member ", s, " has creativity ",
                     r.membercreativity[s]);
        }
        f.expect(within(r.memberhappy[s], -very_bad_gigs, 10), "memberhappy(", s, ") is ",
                 r.memberhappy[s], " after ", very_bad_gigs, " very bad gigs");
        f.expect(within(r.memberill[s], 0, 10), "memberill(", s, ") is ", r.memberill[s]);
        f.expect(r.memberfriction[s] >= 0, "memberfriction(", s, ") is ", r.memberfriction[s]);
        f.expect(within(r.practice[s], 0, 3), "practice(", s, ") is ", r.practice[s]);
    }
    f.expect(within(r.vacancy, 1, kMemberSlots), "vacancy is ", r.vacancy);
    if (first_vacant != 0)
        f.expect(r.vacancy == first_vacant, "vacancy is ", r.vacancy,
                 " but the first empty slot is ", first_vacant);

    const Control& list = g.forms.main.members;
    f.expect(list.rows == filled, "the band list does not show the members in slot order");
    for (std::size_t row = 0; row < filled_slots.size(); ++row)
        f.expect(r.listslot[row + 1] == filled_slots[row], "listslot(", row + 1, ") is ",
                 r.listslot[row + 1], " instead of ", filled_slots[row]);
    f.expect(within(g.main.selectedmember, 0, kMemberSlots), "selectedmember is ",
             g.main.selectedmember);
}

void check_songs(Game& g, Faults& f) {
    const Module1& r = g.rec;
    f.expect(within(r.songcount, 0, kSongSlots), "songcount is ", r.songcount);
    f.expect(r.nextsong == r.songcount, "nextsong is ", r.nextsong, " but songcount is ",
             r.songcount);
    f.expect(r.songweeks == 10 || within(r.songweeks, 1, 7), "songweeks is ", r.songweeks);
    f.expect(r.tiredness >= 0, "tiredness is ", r.tiredness);
    std::vector<std::string> titles;
    for (int k = 1; k <= kSongSlots; ++k) {
        const bool written = k <= r.songcount;
        if (written) titles.push_back(r.songname[k]);
        f.expect(r.songname[k].empty() != written, "song slot ", k, " is named \"", r.songname[k],
                 "\" with songcount ", r.songcount);
        if (written) f.expect(r.songquality[k] >= 8, "song ", k, " has quality ", r.songquality[k]);
        f.expect(is_boolean(r.released[k]), "released(", k, ") is ", r.released[k]);
        f.expect(written || r.released[k] == kFalse, "unwritten song slot ", k,
                 " is out as a single");
    }
    f.expect(g.forms.main.songlist.rows == titles, "the track list does not show the songs");
    f.expect(within(g.main.selectedsong, 0, kSongSlots), "selectedsong is ", g.main.selectedsong);
    f.expect(within(r.bestsong, 0, kSongSlots), "bestsong is ", r.bestsong);
}

void check_chart(Game& g, Faults& f) {
    const Module1& r = g.rec;
    for (int row = kFirstRivalRow; row <= kChartRows; ++row) {
        f.expect(!r.chartband[row].empty() && !r.charttitle[row].empty(), "chart row ", row,
                 " has no band or no title");
        f.expect(r.chartdemand[row] >= 0, "chartdemand(", row, ") is ", r.chartdemand[row]);
        f.expect(r.chartfame[row] >= 0, "chartfame(", row, ") is ", r.chartfame[row]);
        f.expect(r.chartlife[row] > 0, "chartlife(", row, ") is ", r.chartlife[row]);
    }
    for (int row = 0; row <= kChartRows; ++row)
        f.expect(within(r.chartplace[row], 0, kChartRows), "chartplace(", row, ") is ",
                 r.chartplace[row]);
    for (int i = 0; i < static_cast<int>(r.rivalname.size()); ++i)
        f.expect(r.rivalname[i].empty() == (i > kChartRows - kFirstRivalRow), "rivalname(", i,
                 ") is \"", r.rivalname[i], "\"");
}

void check_week(Game& g, Faults& f) {
    const Module1& r = g.rec;
    const MainFields& m = g.main;
    f.expect(r.popularity >= -1, "popularity is ", r.popularity);
    f.expect(within(r.promotion, 0, 4), "promotion is ", r.promotion);
    f.expect(within(r.interviewkind, 0, 2), "interviewkind is ", r.interviewkind);
    f.expect(is_boolean(r.signed_), "signed is ", r.signed_);
    f.expect(is_boolean(m.demosent), "demosent is ", m.demosent);
    for (int v = 0; v <= kVenues; ++v)
        f.expect(is_boolean(r.venueopen[v]), "venueopen(", v, ") is ", r.venueopen[v]);
    f.expect(r.venueopen[0] == kFalse, "venueopen(0) is set");
    f.expect(m.applicantsseen >= 0, "applicantsseen is ", m.applicantsseen);
    for (int i = 0; i < static_cast<int>(r.setlist.size()); ++i) {
        const bool position = i >= 1 && i <= 3;
        f.expect(position ? within(r.setlist[i], 0, kSongSlots) : r.setlist[i] == 0, "setlist(", i,
                 ") is ", r.setlist[i]);
    }
    f.expect(within(g.gig.tracksadded, 0, 3), "tracksadded is ", g.gig.tracksadded);
    f.expect(within(g.gig.gigvenue, 0, kVenues), "gigvenue is ", g.gig.gigvenue);
    const double days = r.gamedate - kStartDate;
    f.expect(days >= 0 && static_cast<long long>(days) % 7 == 0 &&
                 days == static_cast<double>(static_cast<long long>(days)),
             "gamedate ", r.gamedate, " is not a whole number of weeks from the start");
}

void check_screens(Game& g, Faults& f) {
    if (g.ended) return;
    Forms& fs = g.forms;
    f.expect(fs.messageForm.visible == !g.memos.empty(), "the memo screen is ",
             fs.messageForm.visible ? "up with no memo" : "down with memos waiting");
    if (g.game_over) {
        f.expect(!g.memos.empty() && g.memos.back().ends_game,
                 "the game is over but its last memo is not the one that ends it");
        fs.each_form([&](FormState& form) {
            f.expect(&form == &fs.messageForm || !form.enabled, "form ", form.name,
                     " takes clicks after the game has ended");
        });
    } else {
        f.expect(fs.main.enabled == g.memos.empty(), "the office is ",
                 fs.main.enabled ? "enabled under a memo" : "disabled with no memo");
    }
    auto selection_fits = [&](const Control& c) {
        f.expect(within(c.selected, -1, static_cast<long long>(c.rows.size()) - 1), c.name,
                 " has row ", c.selected, " selected of ", c.rows.size());
    };
    selection_fits(fs.main.members);
    selection_fits(fs.main.songlist);
    selection_fits(fs.gig.Combo1);
}

}  // namespace

void check_state(Game& g, std::int64_t very_bad_gigs, std::vector<std::string>& faults) {
    Faults f(faults);
    check_members(g, very_bad_gigs, f);
    check_songs(g, f);
    check_chart(g, f);
    check_week(g, f);
    check_screens(g, f);
}

void Watch::start(Game& g) {
    g_ = &g;
    numbers_.clear();
    for (const Field& field : fields(g))
        if (field.type == FieldType::Integer || field.type == FieldType::Long ||
            field.type == FieldType::Boolean)
            numbers_.push_back(field);
    snapshot();
}

void Watch::snapshot() {
    before_.clear();
    for (const Field& field : numbers_) {
        for (int i = field.is_array() ? 0 : -1; i <= field.upper; ++i)
            before_.push_back(field.type == FieldType::Long ? field.at<Long>(i)
                                                            : field.at<Integer>(i));
    }
    happy_before_ = g_->rec.memberhappy;
    date_before_ = g_->rec.gamedate;
}

std::vector<std::string> Watch::after_click(const ClickFacts& facts) {
    Game& g = *g_;
    std::vector<std::string> faults;
    Faults f(faults);
    if (facts.gig_played && g.gig.gigscore < 20) ++very_bad_gigs_;

    if (!facts.loaded) {
        // A wrap shows as a field leaping from near one end of its width to near the other;
        // saturating arithmetic stops at the end instead.
        std::size_t k = 0;
        for (const Field& field : numbers_) {
            const std::int64_t half = field.type == FieldType::Long
                                          ? std::int64_t{std::numeric_limits<Long>::max()} / 2
                                          : std::int64_t{std::numeric_limits<Integer>::max()} / 2;
            for (int i = field.is_array() ? 0 : -1; i <= field.upper; ++i, ++k) {
                const std::int64_t now =
                    field.type == FieldType::Long ? field.at<Long>(i) : field.at<Integer>(i);
                const std::int64_t was = before_[k];
                f.expect(!((was > half && now < -half) || (was < -half && now > half)), field.name,
                         field.is_array() ? "(" + std::to_string(i) + ")" : std::string(),
                         " wrapped from ", was, " to ", now);
            }
        }
        for (int s = 1; s <= kMemberSlots; ++s) {
            const bool fell_below_zero = happy_before_[s] >= 0 && g.rec.memberhappy[s] < 0;
            f.expect(!fell_below_zero || facts.gig_played, "memberhappy(", s, ") fell from ",
                     happy_before_[s], " to ", g.rec.memberhappy[s], " without a gig");
        }
        f.expect(g.rec.gamedate >= date_before_, "gamedate went back from ", date_before_, " to ",
                 g.rec.gamedate);
    }
    check_state(g, very_bad_gigs_, faults);
    snapshot();
    return faults;
}

}  // namespace tourvane::soak
