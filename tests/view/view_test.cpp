// What the front ends show, decided below them: every control wired to its routine, the key
// table and the key help built from it, names and hover texts, why a control is grey in every
// state a game can reach (loads included), the diary's filter, the week graph's points and
// words, and which screen comes to the front.

#include <functional>
#include <set>

#include "core/diary.h"
#include "rules/band/roster.h"
#include "rules/files/save_file.h"
#include "rules/test_game.h"
#include "rules/week/events.h"
#include "rules/week/turn.h"
#include "view/controls.h"
#include "view/diary.h"
#include "view/help.h"
#include "view/keys.h"
#include "view/reasons.h"
#include "view/screens.h"
#include "view/week_graph.h"

namespace tourvane::testing {
namespace {

/// Calls f(form, control) for every control of every form of a new game.
template <class F>
void each_control(Game& g, F&& f) {
    g.forms.each_form([&](auto& form) { form.each([&](Control& c) { f(form, c); }); });
}

TEST(Wiring, EveryControlThatTakesClicksRunsARoutineAndEveryRoutineHasAControl) {
    TestGame t;
    std::set<Routine> named;
    each_control(t.g, [&](FormState& form, Control& c) {
        const std::string where = std::string(form.name) + "." + control_key(c);
        EXPECT_EQ(c.kind == ControlKind::Label, c.on_click == Routine::None) << where;
        EXPECT_EQ(c.kind == ControlKind::ListBox, c.on_dblclick != Routine::None) << where;
        named.insert(c.on_click);
        named.insert(c.on_dblclick);
    });
    // Routines run from None to the last one declared, Chart_command1.
    EXPECT_EQ(named.size(), static_cast<std::size_t>(Routine::Chart_command1) + 1);
}

TEST(Keys, EachKeyClicksAControlThatTakesClicksAndNoPlaceBindsAKeyTwice) {
    TestGame t;
    std::set<std::pair<std::string, std::string>> bound;
    for (const KeyBinding& b : key_bindings()) {
        each_key(b.key, [&](std::string_view key) {
            EXPECT_TRUE(bound.emplace(b.where, key).second) << b.where << " " << key;
        });
        if (b.action != KeyAction::Click) continue;
        const Control* c = find_control(t.g, b.where, b.control, -1);
        ASSERT_TRUE(c) << b.where << "." << b.control;
        EXPECT_NE(c->on_click, Routine::None) << b.control;
    }
    // A key of a place answers there; one bound everywhere answers where the place has none.
    EXPECT_EQ(find_key("main", "N")->control, "command6");
    EXPECT_EQ(find_key("Form1", "N")->control, "New");
    EXPECT_EQ(find_key("Chart", "Ctrl+Q")->action, KeyAction::Quit);
    EXPECT_EQ(find_key(place::kGraph, "Home")->action, KeyAction::FirstWeek);
    EXPECT_EQ(find_key("main", "Tab"), nullptr);  // the widgets' own keys are never bound
    EXPECT_EQ(find_key("main", "Q"), nullptr);
}

TEST(Keys, TheOfficeDrawsEachButtonWithItsKeyAndTheKeyHelpListsEveryKey) {
    TestGame t;
    t.new_game();
    const std::vector<OfficeButton> buttons = office_buttons(t.g.forms.main);
    ASSERT_EQ(buttons.size(), 9u);
    for (const OfficeButton& b : buttons) {
        ASSERT_NE(b.key, '\0') << b.caption;
        EXPECT_NE(fold_case(b.caption).find(fold_case(std::string(1, b.key))), std::string::npos)
            << b.caption;  // the letter is underlined in the caption
    }
    EXPECT_EQ(buttons[0].caption + " " + buttons[3].caption, "Next Week Music Chart");
    EXPECT_TRUE(buttons[0].enabled && !buttons[3].enabled);

    const std::vector<HelpSection> help = key_help(t.g);
    std::size_t rows = 0;
    std::set<std::string> titles;
    for (const HelpSection& s : help) {
        EXPECT_TRUE(titles.insert(s.title).second) << s.title;
        rows += s.rows.size();
        for (const HelpRow& row : s.rows) EXPECT_FALSE(row.keys.empty() || row.what.empty());
    }
    EXPECT_EQ(rows, key_bindings().size());
    EXPECT_EQ(help.front().title, "In the office");
    EXPECT_EQ(help.front().rows.front().keys + ": " + help.front().rows.front().what,
              "N: Next Week");
    const HelpSection& graph = *std::find_if(help.begin(), help.end(), [](const HelpSection& s) {
        return s.title == "In the week graph";
    });
    EXPECT_EQ(graph.rows[2].keys + ": " + graph.rows[2].what, "Page Up: Thirteen weeks back");
    EXPECT_EQ(help.back().title, "In every window");
    EXPECT_EQ(help.back().rows.front().keys, "Ctrl+Q");
    EXPECT_EQ(about_text().substr(0, 9), "Tourvane ");
}

TEST(Names, ControlsThatTakeTheKeysHaveNamesTheirNeighboursDoNotShare) {
    TestGame t;
    t.new_game();
    each_control(t.g, [&](FormState& form, Control& c) {
        EXPECT_FALSE(c.kind != ControlKind::Label && accessible_name(form, c).empty())
            << form.name << "." << control_key(c);
    });
    t.g.forms.each_form([&](auto& form) {
        std::set<std::string> names;
        form.each([&](Control& c) {
            if (c.kind == ControlKind::Label) return;
            EXPECT_TRUE(names.insert(accessible_name(form, c)).second)
                << form.name << "." << control_key(c);
        });
    });
    OfficeForm& office = t.g.forms.main;
    EXPECT_EQ(accessible_name(office, office.txtcash), "Cash");
    EXPECT_TRUE(shows_value(office, office.txtcash) && !shows_value(office, office.Label19));
    EXPECT_EQ(accessible_description(office, office.txtcash, false, "", ""), "£ 3000");
    EXPECT_EQ(accessible_description(office, office.txtcash, false, "More.", ""), "£ 3000. More.");
    EXPECT_EQ(accessible_name(office, office.promote[1]), "Small £100");
    EXPECT_EQ(accessible_name(t.g.forms.Chart, t.g.forms.Chart.track[10]), "Place 10");
    EXPECT_EQ(accessible_name(t.g.forms.Chart, t.g.forms.Chart.track[11]), "2");
    SaveForm& files = t.g.forms.savefrm;
    files.saveslot[0].tooltip = "Keepers, 09/03/2002, £ 263";
    files.saveslot[1].tooltip = kEmptySlot;
    files.saveslot[2].tooltip = kDamagedSlot;
    EXPECT_EQ(accessible_name(files, files.saveslot[0]), "Slot 1, Keepers, 09/03/2002, £ 263");
    EXPECT_EQ(accessible_name(files, files.saveslot[1]), "Slot 2, empty");
    EXPECT_EQ(accessible_name(files, files.saveslot[2]), "Slot 3, damaged");
    EXPECT_EQ(accessible_name(files, files.saveslot[3]), "Slot 4");
}

TEST(Names, AHoverTellsTheWholeCaptionWhereItIsCutAndWhyAControlIsGrey) {
    TestGame t;
    t.new_game();
    OfficeForm& office = t.g.forms.main;
    const std::string why = grey_reason(t.g, office, office.secret);
    ASSERT_FALSE(why.empty());
    EXPECT_EQ(hover_text(office.secret, false, "", why), why);
    EXPECT_EQ(accessible_description(office, office.secret, false, "", why), why);
    // An enabled hot-spot: its tip is its name, so the description adds only a note.
    EXPECT_EQ(hover_text(office.command6, false, "", ""), "Next Week");
    EXPECT_EQ(accessible_description(office, office.command6, false, "", ""), "");
    EXPECT_EQ(hover_text(office.holiday, false, "Costly.", ""), "Band Holiday\nCostly.");
    EXPECT_EQ(accessible_description(office, office.holiday, false, "Costly.", ""), "Costly.");
    office.Command2.caption = "SACK THIS MEMBER AT ONCE";
    const std::string sack = grey_reason(t.g, office, office.Command2);
    EXPECT_EQ(hover_text(office.Command2, true, "", sack), office.Command2.caption + "\n" + sack);
    EXPECT_EQ(hover_text(office.Command2, false, "Note.", sack), "Note.\n" + sack);
    EXPECT_EQ(grey_reason(t.g, office, office.Label19), "");  // labels never explain
}

/// A game in its own folder, to be saved and loaded; a second run is another TestGame there.
struct Reasons : ::testing::Test, TempDir, TestGame {
    Reasons() { new_game(); }
    std::string why(const char* control) {
        const Control* c = find_control(g, "main", control, -1);
        return disabled_reason(g, g.forms.main, *c);
    }
    /// Saves the game in a slot through the save screen.
    void save(int slot) {
        click(g, "main", "command5");
        click(g, "savefrm", "saveslot", slot);
        click(g, "savefrm", "save");
    }
    static void load(TestGame& t, int slot, const char* from) {
        click(t.g, from, from == std::string("Form1") ? "load" : "command5");
        click(t.g, "savefrm", "saveslot", slot);
        click(t.g, "savefrm", "load");
    }
    /// The gig's report, as far as the office's controls know it.
    void gig() {
        note_in_diary(g, kReportSender, "The band played.");
        g.forms.main.command4.enabled = false;
    }
};

const std::string kWhole =
    " once Next Week plays a week to its end (a rejected demo ends a week early).";

TEST_F(Reasons, EachGreyControlTellsTheTruthInEveryStateALoadIncluded) {
    EXPECT_EQ(why("secret"), "The chart comes out" + kWhole);
    EXPECT_EQ(why("interview"),
              "No invitation this week: invitations come only to a full band more popular than "
              "200.");
    EXPECT_EQ(why("Command2"), "Pick a member in the band list first.");
    full_band();
    update(g);
    EXPECT_EQ(why("hire"), "The band is full: there is no place for an applicant.");
    r.popularity = 200;
    EXPECT_EQ(why("interview"),
              "No invitation this week: the band must be more popular than 200 to be invited.");
    r.popularity = 201;
    EXPECT_EQ(why("interview"), "No invitation this week.");
    r.membername[2] = kVacant;
    EXPECT_EQ(why("interview"), "No invitation this week: invitations come only to a full band.");
    g.main.applicantsseen = 3;
    click(g, "main", "dismiss");
    ok_memos();
    EXPECT_EQ(why("dismiss"), "No applicants are left this week. More come" + kWhole);

    // A save made while an invitation stood, loaded from the title of the next run: the
    // invitation is on record but grey, as every hot-spot starts after a load.
    full_band();
    r.interviewkind = 1;
    gig();
    EXPECT_EQ(why("command4"), "The band has played its gig. Gigs open again" + kWhole);
    save(0);
    TestGame next;
    load(next, 0, "Form1");
    ASSERT_TRUE(next.g.forms.main.visible);
    const std::string stale =
        "The invitation in the loaded game came before it was saved and can't be taken up now. "
        "Next Week may bring another.";
    EXPECT_EQ(disabled_reason(next.g, next.g.forms.main, next.g.forms.main.interview), stale);

    // This run played a week and gave its own interview: that is what the grey spot says...
    r.interviewkind = 2;
    g.history.push_back(week_sample(g, 0));
    EXPECT_EQ(why("interview"), "The band has given this week's interview.");
    // ...until a load into the running week puts the saved invitation back, grey as it was.
    load(*this, 0, "main");
    EXPECT_EQ(r.interviewkind, 1);
    EXPECT_EQ(why("interview"), stale);
    // The gig before the load keeps gigs closed, and the loaded game played none.
    EXPECT_EQ(why("command4"),
              "A gig played before this game was loaded closed gigs. They open again" + kWhole);
    gig();
    EXPECT_EQ(why("command4"), "The band has played its gig. Gigs open again" + kWhole);
}

TEST_F(Reasons, AWeekCutShortByARejectedDemoLeavesGigsClosedAndTheReasonSaysSo) {
    full_band();
    songs({10});
    gig();
    click(g, "main", "songlist", 0);
    click(g, "main", "command3");  // a demo of quality 10: the label will reject it
    ok_memos();
    week_start();
    command6(g);
    ok_memos();
    ASSERT_EQ(g.history.size(), 1u);  // the week passed...
    EXPECT_FALSE(g.forms.main.command4.enabled || g.forms.main.secret.enabled);  // ...cut short
    EXPECT_EQ(why("command4"), "The band has played its gig. Gigs open again" + kWhole);
    EXPECT_EQ(why("secret"), "The chart comes out" + kWhole);
    EXPECT_EQ(r.interviewkind, 0);
}

TEST(GigReasons, ClosedVenuesAndTheTracksTellWhatComesFirst) {
    TestGame t;
    t.new_game().full_band();
    t.songs({10, 20, 30});
    t.r.venueopen = {0, -1, 0, -1, -1, -1};
    click(t.g, "main", "command4");
    GigForm& gig = t.g.forms.gig;
    EXPECT_EQ(disabled_reason(t.g, gig, gig.location[1]), "The Queens Head is closed this week.");
    EXPECT_EQ(disabled_reason(t.g, gig, gig.location[0]), "");
    EXPECT_EQ(disabled_reason(t.g, gig, gig.command1), "Choose a venue first.");
    EXPECT_EQ(disabled_reason(t.g, gig, gig.Combo1), "Choose a venue and APPLY first.");
    click(t.g, "gig", "location", 0);
    for (const Control* c : {&gig.Combo1, &gig.command3, &gig.command4})
        EXPECT_EQ(disabled_reason(t.g, gig, *c),
                  "APPLY to the venue first: the tracks open once it takes the band.");
}

TEST(Diary, TheFilterNarrowsBySenderAndByWordsInAnyCase) {
    DiaryFilter f;
    const DiaryEntry shock{kStartDate, "Mona", "Kim has left. The band is in a state of SHOCK."};
    const DiaryEntry cafe{kStartDate + 7, "Dave", "We played the Café Royal."};
    EXPECT_TRUE(f.shows(shock) && f.shows(cafe));
    f.search("  state   of shock ");
    EXPECT_EQ(f.words, "state of shock");
    f.search("a\tb\nc\rd");
    EXPECT_EQ(f.words, "a b c d");
    f.search("state of shock");
    EXPECT_TRUE(f.shows(shock) && !f.shows(cafe));
    f.search("CAFÉ");
    EXPECT_TRUE(f.shows(cafe));
    f.search("08/09/2001");  // the date as shown
    EXPECT_TRUE(f.shows(cafe) && !f.shows(shock));
    f.search("");
    f.sender = "Mona";
    EXPECT_TRUE(f.shows(shock) && !f.shows(cafe));
    EXPECT_EQ(fold_case("ÀÉÎ×Þ Zz"), "àéî×þ zz");

    EXPECT_EQ(diary_count_line(0, 0),
              "Nothing yet: memos and messages will be listed here as they come.");
    EXPECT_EQ(diary_count_line(1, 1), "1 message");
    EXPECT_EQ(diary_count_line(3, 3), "3 messages");
    EXPECT_EQ(diary_count_line(1, 3), "1 of 3 messages");
}

TEST(Diary, SendersComeOnceInOrderAndALoadStartsThemAfresh) {
    TestGame t;
    DiarySenders senders;
    EXPECT_FALSE(senders.take(t.g));
    for (const char* from : {"Mona", "Dave", "Mona", "Accounting"})
        note_in_diary(t.g, from, "text");
    EXPECT_TRUE(senders.take(t.g));
    EXPECT_FALSE(senders.take(t.g));
    EXPECT_EQ(senders.names(), (Rows{"Accounting", "Dave", "Mona"}));
    t.g.diary = {{kStartDate, "Steven", "text"}};
    ++t.g.history_loads;
    EXPECT_TRUE(senders.take(t.g));
    EXPECT_EQ(senders.names(), Rows{"Steven"});
    EXPECT_EQ(newest_first(t.g.diary, 0).from, "Steven");
}

TEST(WeekGraph, StretchesWithoutWeeksAreLeftOutButTheLatest) {
    TestGame t;
    Game& g = t.g;
    EXPECT_TRUE(graph_points(g).empty());
    EXPECT_EQ(graph_readout({}, -1), "No week played yet.");
    g.segments = {{kStartDate, 3000, 0, 0}, {kStartDate + 70, 500, 9, 1}, {kStartDate, 10, 1, 2}};
    g.history = {
        {kStartDate + 7, 2990, 4, 0}, {kStartDate + 14, 2980, 3, 0}, {kStartDate + 7, 20, 2, 2}};
    const std::vector<GraphPoint> p = graph_points(g);
    ASSERT_EQ(p.size(), 5u);  // the second stretch played no week
    EXPECT_TRUE(p[0].start && !p[1].start && p[3].start && p[3].sample.cash == 10);
    EXPECT_EQ(graph_readout(p, 0), "Start, 01/09/2001: cash £ 3000, popularity 0");
    EXPECT_EQ(graph_readout(p, 2), "Week 2 of 3, ending 15/09/2001: cash £ 2980, popularity 3");
    EXPECT_EQ(graph_readout(p, 3), "Game loaded, 01/09/2001: cash £ 10, popularity 1");
    EXPECT_EQ(point_label(p, 4)[0] + "|" + point_label(p, 4)[1] + "|" + point_label(p, 4)[2],
              "Week ending 08/09/2001|Cash £ 20|Popularity 2");
    EXPECT_EQ(point_label(p, 3)[0], "Loaded 01/09/2001");
    EXPECT_EQ(stretch_label(p[3]), "loaded 01/09/2001");
    g.segments.pop_back();  // a latest stretch with no week of its own stays
    g.history.pop_back();
    g.segments.push_back({kStartDate + 21, 5, 5, 2});
    EXPECT_EQ(graph_points(g).size(), 4u);
}

TEST(WeekGraph, AHolidaysTwoWeeksStandWhereTheyFellWithNoFigures) {
    TestGame t;
    Game& g = t.g;
    g.segments = {{kStartDate, 3000, 0, 0}};
    g.history = {{kStartDate + 7, 2990, 4, 0}, {kStartDate + 28, 2600, 9, 0}};
    g.rec.gamedate = kStartDate + 42;  // and another holiday since the latest week
    const std::vector<GraphPoint> p = graph_points(g);
    ASSERT_EQ(p.size(), 7u);
    for (int i : {2, 3, 5, 6}) EXPECT_TRUE(p[i].holiday) << i;
    EXPECT_EQ(p[3].sample.date, kStartDate + 21);
    EXPECT_EQ(p[6].sample.date, kStartDate + 42);
    EXPECT_EQ(graph_readout(p, 4), "Week 2 of 2, ending 29/09/2001: cash £ 2600, popularity 9");
    EXPECT_EQ(graph_readout(p, 2),
              "Holiday, week ending 15/09/2001: the band was away and no week was played");
    EXPECT_EQ(point_label(p, 2)[1], "The band was away");
    g.rec.gamedate = kStartDate + 28 + 7 * 300;  // no run of holidays: a date set by hand
    EXPECT_EQ(graph_points(g).size(), 5u);
}

TEST(WeekGraph, ThePickedPointsLabelStandsClearOfItsMarks) {
    const Rect plot{0, 0, 400, 200};
    Place at = place_label(plot, 100, 150, 180, 120, 50, 10);
    EXPECT_TRUE(at.left == 110 && at.top == 10);  // right of the point, at the top
    at = place_label(plot, 350, 20, 100, 120, 50, 10);
    EXPECT_TRUE(at.left == 220 && at.top == 140);  // no room on the right; a mark at the top
    at = place_label(plot, 350, 20, 160, 120, 50, 10);
    EXPECT_EQ(at.top, 10);  // marks at both ends: it stays at the top, beside them
    EXPECT_EQ(place_label(plot, 264, 150, 150, 120, 50, 10).left, 274);  // just room
    EXPECT_EQ(place_label(plot, 266, 150, 150, 120, 50, 10).left, 136);  // just none
}

TEST(WeekGraph, ScalesStepsMoneyAndKeys) {
    EXPECT_EQ(nice_step(0.3), 1);
    EXPECT_EQ(nice_step(3), 5);
    EXPECT_EQ(nice_step(120), 200);
    EXPECT_EQ(nice_step(1000), 1000);
    std::vector<GraphPoint> p{{{0, -250, 10, 0}, true}, {{7, 3000, 130, 0}, false}};
    const GraphScales s = graph_scales(p);
    EXPECT_EQ(s.cash.step, 1000);
    EXPECT_EQ(s.cash.low, -1000);
    EXPECT_EQ(s.intervals, 4);
    EXPECT_EQ(s.cash.high, 3000);
    EXPECT_EQ(s.fans.low, 0);  // both scales hold 0
    EXPECT_EQ(s.fans.step, 50);
    EXPECT_GE(s.fans.high, 130);
    EXPECT_EQ(date_step(10, 10), 1);
    EXPECT_EQ(date_step(11, 10), 2);
    EXPECT_EQ(date_step(1000, 10), 104);
    EXPECT_EQ(date_step(5, 0), 8);        // no room: one date, the first
    EXPECT_EQ(date_step(2601, 2), 2600);  // fifty years of weeks: every fifty years
    EXPECT_EQ(graph_money(99999), "£ 99999");
    EXPECT_EQ(graph_money(-125000), "£ -125k");
    EXPECT_EQ(graph_money(1250000), "£ 1.25M");
    EXPECT_EQ(graph_move(KeyAction::WeekBack, 0, 5), 0);
    EXPECT_EQ(graph_move(KeyAction::QuarterOn, 1, 5), 4);
    EXPECT_EQ(graph_move(KeyAction::QuarterBack, 20, 30), 7);
    EXPECT_EQ(graph_move(KeyAction::LatestWeek, 0, 30), 29);
    EXPECT_EQ(graph_move(KeyAction::WeekOn, -1, 0), -1);
}

TEST(Screens, TheyOpenInOrderAMemoHoldsTheFrontAndAClosedFrontHandsOver) {
    TestGame t;
    ScreenOrder order;
    ScreenChanges c = order.sync(t.g);
    EXPECT_EQ(c.opened, std::vector<const FormState*>{&t.g.forms.Form1});
    EXPECT_EQ(c.front, &t.g.forms.Form1);
    EXPECT_EQ(quit_control(t.g).control, "Label4");
    t.new_game();
    c = order.sync(t.g);
    EXPECT_EQ(c.closed, std::vector<const FormState*>{&t.g.forms.Form1});
    EXPECT_EQ(c.front, &t.g.forms.main);
    EXPECT_EQ(quit_control(t.g).form, "main");
    EXPECT_EQ(order.sync(t.g).front, nullptr);  // nothing changed
    click(t.g, "main", "command5");
    message(t.g, "Hello", "Dave");
    c = order.sync(t.g);
    EXPECT_EQ(c.opened.size(), 2u);  // the files and the memo open, and the memo is in front
    EXPECT_EQ(c.front, &t.g.forms.messageForm);
    EXPECT_EQ(order.sync(t.g).front, &t.g.forms.messageForm);
    t.ok_memos();
    c = order.sync(t.g);  // the memo in front closed: the latest screen still open comes up
    EXPECT_EQ(c.front, &t.g.forms.savefrm);
    ++t.g.forms.main.forward_requests;
    EXPECT_EQ(order.sync(t.g).front, &t.g.forms.main);
    t.g.ended = true;
    EXPECT_EQ(order.sync(t.g).closed.size(), 2u);
    EXPECT_EQ(screen_face("gig").close_control, "Command2");
    EXPECT_EQ(screen_face("savefrm").focus_control, "saveslot(0)");
}

}  // namespace
}  // namespace tourvane::testing
