// The JSON the web page draws from (app/web/state_json.h): whole, valid JSON in every state,
// and carrying what the presentation layer says of each control, screen, key, the diary and
// the week graph, as the page reads it.

#include "app/web/state_json.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "core/diary.h"
#include "rules/test_game.h"
#include "view/keys.h"
#include "web/json_reader.h"

namespace tourvane::testing {
namespace {

std::string as_json(std::string_view text) {
    std::string out;
    append_json_string(out, text);
    return out;
}

/// The state as the page gets it after a click: the screen order synced first.
JsonValue state(Game& g, ScreenOrder& order) {
    const ScreenChanges changes = order.sync(g);
    return JsonReader::read(state_json(g, changes, order.open()));
}

const JsonValue& form(const JsonValue& s, const std::string& name) {
    for (const JsonValue& f : s["forms"].items)
        if (f["name"].text == name) return f;
    throw std::runtime_error("no form " + name);
}

const JsonValue& control(const JsonValue& s, const std::string& form_name, const std::string& id) {
    for (const JsonValue& c : form(s, form_name)["controls"].items)
        if (c["id"].text == id) return c;
    throw std::runtime_error("no control " + id);
}

TEST(Json, StringsEscapeWhatJsonForbidsAndPassUtf8Through) {
    EXPECT_EQ(as_json(""), "\"\"");
    EXPECT_EQ(as_json("Grey & \"Co\" <band>"), R"("Grey & \"Co\" <band>")");
    EXPECT_EQ(as_json("C:\\saves"), R"("C:\\saves")");
    EXPECT_EQ(as_json("one\ntwo\r\tthree"), R"("one\ntwo\r\tthree")");
    EXPECT_EQ(as_json(std::string("\x01\x1f\x00", 3)), R"("\u0001\u001f\u0000")");
    // Past the control characters nothing is escaped: DEL, the pound sign, any letter.
    EXPECT_EQ(as_json("\x7f£ 3000 Zoë 東"), "\"\x7f£ 3000 Zoë 東\"");
}

TEST(Json, CommasAndBracketsFollowTheNesting) {
    Json j;
    j.object().member("a", 1).key("b").array().value(true).null().object().end().array().end();
    j.value(-2.5).value(std::numeric_limits<double>::infinity()).end();
    j.member("c", std::string("x")).list("d", std::vector<std::string>{}).end();
    EXPECT_EQ(j.text(), R"({"a":1,"b":[true,null,{},[],-2.5,null],"c":"x","d":[]})");
    EXPECT_NO_THROW(JsonReader::read(j.text()));
    // Whole numbers as doubles, as the scales are, print without a fraction.
    Json k;
    k.array().value(2000.0).value(1e6).value(0.1).value(std::size_t{7}).end();
    EXPECT_EQ(k.text(), "[2000,1000000,0.1,7]");
    EXPECT_THROW(JsonReader::read("[1,]"), std::runtime_error);  // the reader is strict
}

TEST(StateJson, EveryFormAndControlInOrderWithTheModelAndWhatTheViewSays) {
    TestGame t;
    Game& g = t.g;
    ScreenOrder order;
    JsonValue s = state(g, order);
    EXPECT_FALSE(s["ended"].boolean);
    EXPECT_EQ(s["screens"]["open"].strings(), Rows{"Form1"});
    EXPECT_EQ(s["screens"]["opened"].strings(), Rows{"Form1"});
    EXPECT_EQ(s["screens"]["front"].text, "Form1");
    EXPECT_EQ(s["quit"]["form"].text + "." + s["quit"]["control"].text, "Form1.Label4");
    EXPECT_EQ(s["memo"].type, JsonValue::Type::Null);
    EXPECT_FALSE(s["office_usable"].boolean);

    // The seven forms in their fixed order; the one on show with each control once, in
    // declaration order, the others with none to draw.
    std::vector<std::string> names;
    g.forms.each_form([&](FormState& f) {
        names.push_back(f.name);
        const JsonValue& written = form(s, f.name)["controls"];
        if (!wanted_open(g, f)) {
            EXPECT_EQ(written.size(), 0u) << f.name;
            return;
        }
        ASSERT_EQ(written.size(), f.controls.size()) << f.name;
        std::size_t i = 0;
        f.each([&](Control& c) { EXPECT_EQ(written[i++]["name"].text, c.name) << f.name; });
    });
    std::vector<std::string> written;
    for (const JsonValue& f : s["forms"].items) written.push_back(f["name"].text);
    EXPECT_EQ(written, names);

    const JsonValue& title = form(s, "Form1");
    EXPECT_EQ(title["title"].text + "|" + title["close"].text + "|" + title["focus"].text,
              "Tourvane|Label4|New");
    EXPECT_TRUE(title["usable"].boolean);
    const JsonValue& gig = form(s, "gig");
    EXPECT_EQ(gig["title"].text + "|" + gig["focus"].text, "Play a Gig|location(0)");
    EXPECT_FALSE(gig["loaded"].boolean);

    t.new_game("Grey & \"Co\"", "Zoë");
    s = state(g, order);
    EXPECT_EQ(s["screens"]["closed"].strings(), Rows{"Form1"});
    EXPECT_EQ(s["screens"]["front"].text, "main");
    EXPECT_TRUE(s["office_usable"].boolean);
    EXPECT_EQ(s["quit"]["control"].text, "exitbtn");

    // A hot-spot: named by its tool tip, with its key.
    const JsonValue& next = control(s, "main", "command6");
    EXPECT_EQ(next["kind"].text, "HotSpot");
    EXPECT_EQ(next["tooltip"].text, "Next Week");
    EXPECT_EQ(next["view"]["name"].text, "Next Week");
    EXPECT_EQ(next["view"]["key"].text, "N");
    EXPECT_EQ(next["view"]["hover"].text, "Next Week");
    EXPECT_EQ(next["view"]["description"].text, "");
    // Grey, it says why in its hover and to a screen reader, and not its tool tip.
    const JsonValue& chart = control(s, "main", "secret");
    EXPECT_FALSE(chart["enabled"].boolean);
    EXPECT_NE(chart["view"]["reason"].text, "");
    EXPECT_EQ(chart["view"]["hover"].text, chart["view"]["reason"].text);
    EXPECT_EQ(chart["view"]["description"].text, chart["view"]["reason"].text);
    // A price told beside a tool tip.
    EXPECT_EQ(
        control(s, "main", "holiday")["view"]["hover"].text.rfind("Band Holiday\nTwo weeks", 0),
        0u);
    // A value under a name of its own: the value and its note are its description.
    const JsonValue& cash = control(s, "main", "txtcash");
    EXPECT_EQ(cash["caption"].text, "£ 3000");
    EXPECT_EQ(cash["view"]["name"].text, "Cash");
    EXPECT_TRUE(cash["view"]["shows_value"].boolean);
    EXPECT_EQ(cash["view"]["description"].text,
              "£ 3000. Nothing goes out this week: nobody is hired and no promotion is bought.");
    EXPECT_FALSE(control(s, "main", "Label19")["view"]["shows_value"].boolean);
    EXPECT_EQ(control(s, "main", "txtname")["caption"].text, "Zoë's Office");
    EXPECT_EQ(control(s, "main", "promote(1)")["view"]["name"].text, "Small £100");

    // Lists: the model's rows, and the rows as shown, songs with their quality.
    t.songs({7, 12});
    g.forms.main.songlist.selected = 1;
    s = state(g, order);
    const JsonValue& songs = control(s, "main", "songlist");
    EXPECT_EQ(songs["rows"].strings(), (Rows{"Song 1", "Song 2"}));
    EXPECT_EQ(songs["view"]["rows"].strings(), (Rows{"7 · Song 1", "12 · Song 2"}));
    EXPECT_EQ(songs["selected"].integer(), 1);
    EXPECT_EQ(songs["view"]["name"].text, "Track list");
    EXPECT_FALSE(control(s, "main", "txtcash")["view"].has("rows"));
    EXPECT_EQ(s["screens"]["front"].text, "");  // nothing to bring forward

    // A memo: announced, in front, and the office not free for the windows beside it.
    message(g, "The van broke down.", "Dave");
    s = state(g, order);
    EXPECT_EQ(s["memos"].integer(), 1);
    EXPECT_EQ(s["memo"]["name"].text, "Message from Dave");
    EXPECT_EQ(s["memo"]["text"].text, "The van broke down.");
    EXPECT_EQ(s["screens"]["front"].text, "messageForm");
    EXPECT_EQ(s["screens"]["open"].strings(), (Rows{"main", "messageForm"}));
    EXPECT_FALSE(s["office_usable"].boolean);
    EXPECT_FALSE(form(s, "main")["usable"].boolean);
    // Keys the table names with other words reach the page in its own.
    EXPECT_EQ(control(s, "messageForm", "command1")["view"]["shortcut"].text, "Escape");
    EXPECT_EQ(control(s, "messageForm", "txtFrom")["caption"].text, "Dave");
    t.ok_memos();
    s = state(g, order);
    EXPECT_EQ(s["screens"]["closed"].strings(), Rows{"messageForm"});
    EXPECT_EQ(s["memo"].type, JsonValue::Type::Null);

    // The end: nothing stays open.
    end_program(g);
    s = state(g, order);
    EXPECT_TRUE(s["ended"].boolean);
    EXPECT_EQ(s["screens"]["open"].size(), 0u);
    EXPECT_EQ(s["screens"]["closed"].strings(), Rows{"main"});
}

TEST(StateJson, TheChartsColoursAndAnOptionsValueComeAsTheModelHasThem) {
    TestGame t;
    Game& g = t.g;
    t.new_game();
    g.forms.Chart.loaded = g.forms.Chart.visible = true;  // as the chart is opened
    g.forms.Chart.Label1.rule_colour = true;
    g.forms.main.promote[2].value = true;
    ScreenOrder order;
    const JsonValue s = state(g, order);
    const JsonValue& white = control(s, "Chart", "Label1");
    EXPECT_EQ(white["color"].integer(), 0xFFFFFF);
    EXPECT_TRUE(white["rule_colour"].boolean);
    EXPECT_TRUE(control(s, "main", "promote(2)")["value"].boolean);
    EXPECT_FALSE(control(s, "main", "promote(1)")["value"].boolean);
    EXPECT_EQ(control(s, "Chart", "track(3)")["view"]["name"].text, "Place 3");
}

TEST(Keys, ThePageNamesEachKeyAsTheBrowserDoes) {
    EXPECT_EQ(page_key("N"), "N");
    EXPECT_EQ(page_key("F1"), "F1");
    EXPECT_EQ(page_key("Ctrl+Q"), "Control+Q");
    EXPECT_EQ(page_key("Alt+S"), "Alt+S");
    EXPECT_EQ(page_key("Esc"), "Escape");
    EXPECT_EQ(page_key("PgUp"), "PageUp");
    EXPECT_EQ(page_key("PgDown"), "PageDown");
    EXPECT_EQ(page_key("Shift+Tab"), "Shift+Tab");
    EXPECT_EQ(page_key("Left"), "ArrowLeft");
    EXPECT_EQ(page_key("Return"), "Enter");
    EXPECT_EQ(page_key("Ctrl++"), "Control++");

    // The whole table, in its order, every action by a name that reads back.
    const JsonValue keys = JsonReader::read(keys_json());
    ASSERT_EQ(keys.size(), key_bindings().size());
    std::size_t i = 0;
    for (const KeyBinding& b : key_bindings()) {
        const JsonValue& row = keys[i++];
        EXPECT_EQ(row["where"].text, b.where);
        EXPECT_EQ(action_named(row["action"].text), b.action) << row["action"].text;
        EXPECT_EQ(row["control"].text, b.control);
        EXPECT_EQ(row["keys"].size(), row["page"].size());
    }
    EXPECT_FALSE(action_named("Jump"));
    const JsonValue* search = nullptr;
    for (const JsonValue& row : keys.items)
        if (row["action"].text == "Search") search = &row;
    ASSERT_TRUE(search);
    EXPECT_EQ((*search)["keys"].strings(), (Rows{"Alt+S", "Ctrl+F"}));
    EXPECT_EQ((*search)["page"].strings(), (Rows{"Alt+S", "Control+F"}));
}

TEST(HelpAndWords, TheKeyHelpAndTheWindowsWordsComeWhole) {
    TestGame t;
    const JsonValue help = JsonReader::read(help_json(t.g));
    EXPECT_EQ(help["sections"][0]["title"].text, "In the office");
    EXPECT_EQ(help["sections"][0]["rows"][0]["keys"].text, "N");
    EXPECT_EQ(help["sections"][0]["rows"][0]["what"].text, "Next Week");
    EXPECT_EQ(help["how"][0]["heading"].text, "The band");
    EXPECT_EQ(help["about"].text.rfind("Tourvane ", 0), 0u);

    const JsonValue words = JsonReader::read(words_json());
    EXPECT_EQ(words["box_title"].text, "Tourvane");
    EXPECT_EQ(words["diary"]["title"].text, "Diary");
    EXPECT_EQ(words["diary"]["columns"].strings(), (Rows{"Date", "From", "Message"}));
    EXPECT_EQ(words["graph"]["close"].text, "Close the week graph");
    EXPECT_EQ(words["help"]["how_to_play"].text, "How to play");
    EXPECT_NE(words["saves"]["about"].text.find("deletes them"), std::string::npos);
    EXPECT_EQ(words["saves"]["upload_limit"].number, 64.0 * 1024 * 1024);
}

TEST(DiaryJson, NewestFirstNarrowedInAnyCaseWithItsSendersAndCount) {
    TestGame t;
    Game& g = t.g;
    note_in_diary(g, "Mona", "Kim has left. The band is in a state of SHOCK.");
    g.rec.gamedate += 7;
    note_in_diary(g, "Tourvane", "Game Saved");
    note_in_diary(g, "Mona", "The record label rejected our demo tape.");
    DiarySenders senders;
    DiaryFilter filter;
    JsonValue d = JsonReader::read(diary_json(g, senders, filter));
    EXPECT_EQ(d["senders"].strings(), (Rows{"Mona", "Tourvane"}));
    ASSERT_EQ(d["entries"].size(), 3u);
    EXPECT_EQ(d["entries"][0]["text"].text, "The record label rejected our demo tape.");
    EXPECT_EQ(d["entries"][0]["date"].text, "08/09/2001");
    EXPECT_NE(d["entries"][0]["note"].text, "");  // what the label looks for
    EXPECT_TRUE(d["entries"][1]["box"].boolean);
    EXPECT_FALSE(d["entries"][2]["box"].boolean);
    EXPECT_EQ(d["count"].text, "3 messages");

    filter.search("  shock ");
    d = JsonReader::read(diary_json(g, senders, filter));
    EXPECT_EQ(d["entries"].size(), 1u);
    EXPECT_EQ(d["count"].text, "1 of 3 messages");
    filter.search("");
    filter.sender = "Tourvane";
    d = JsonReader::read(diary_json(g, senders, filter));
    EXPECT_EQ(d["entries"][0]["text"].text, "Game Saved");
    EXPECT_EQ(d["sender"].text, "Tourvane");

    // A load puts another career's diary in place: a sender it lacks shows everyone again.
    g.diary = {{kStartDate, "Dave", "Hello"}};
    ++g.history_loads;
    d = JsonReader::read(diary_json(g, senders, filter));
    EXPECT_EQ(d["sender"].text, "");
    EXPECT_EQ(d["senders"].strings(), Rows{"Dave"});
    EXPECT_EQ(d["entries"].size(), 1u);
}

TEST(GraphJson, PointsScalesGridAndThePickedWeek) {
    TestGame t;
    Game& g = t.g;
    JsonValue w = JsonReader::read(graph_json(g, 10, -1));
    EXPECT_EQ(w["points"].size(), 0u);
    EXPECT_EQ(w["picked"].integer(), -1);
    EXPECT_EQ(w["readout"].text, "No week played yet.");
    EXPECT_EQ(w["label"].size(), 0u);

    g.segments = {{kStartDate, 3000, 0, 0}, {kStartDate + 7, 500, 9, 1}};
    g.history = {{kStartDate + 7, 2990, 4, 0},
                 {kStartDate + 14, 480, 8, 1},
                 {kStartDate + 35, 470, 7, 1}};  // a holiday between the last two
    g.rec.gamedate = kStartDate + 35;
    w = JsonReader::read(graph_json(g, 3, -1));
    const JsonValue& p = w["points"];
    ASSERT_EQ(p.size(), 7u);
    EXPECT_TRUE(p[0]["start"].boolean && p[2]["start"].boolean);
    EXPECT_TRUE(p[4]["holiday"].boolean && p[5]["holiday"].boolean);
    EXPECT_EQ(p[3]["date"].text, "15/09/2001");
    EXPECT_EQ(p[3]["cash"].integer(), 480);
    EXPECT_EQ(p[3]["popularity"].integer(), 8);
    EXPECT_EQ(w["picked"].integer(), 6);  // the latest
    EXPECT_EQ(w["readout"].text, "Week 3 of 3, ending 06/10/2001: cash £ 470, popularity 7");
    EXPECT_EQ(w["label"].strings(), (Rows{"Week ending 06/10/2001", "Cash £ 470", "Popularity 7"}));
    EXPECT_EQ(w["date_step"].integer(), 4);  // 7 points, room for 3 dates
    ASSERT_EQ(w["stretches"].size(), 1u);
    EXPECT_EQ(w["stretches"][0]["index"].integer(), 2);
    EXPECT_EQ(w["stretches"][0]["label"].text, "loaded 08/09/2001");
    const JsonValue& sc = w["scales"];
    const int intervals = sc["intervals"].integer();
    ASSERT_EQ(w["grid"].size(), static_cast<std::size_t>(intervals + 1));
    EXPECT_EQ(w["grid"][0]["cash"].text, "£ 0");
    EXPECT_EQ(sc["cash"]["high"].number,
              sc["cash"]["low"].number + sc["cash"]["step"].number * intervals);
    EXPECT_EQ(w["grid"][intervals]["fans"].text,
              std::to_string(static_cast<int>(sc["fans"]["high"].number)));

    w = JsonReader::read(graph_json(g, 3, 1));
    EXPECT_EQ(w["picked"].integer(), 1);
    EXPECT_EQ(w["readout"].text, "Week 1 of 3, ending 08/09/2001: cash £ 2990, popularity 4");
    EXPECT_EQ(JsonReader::read(graph_json(g, 3, 99))["picked"].integer(), 6);
    const JsonValue pick = JsonReader::read(graph_pick_json(g, 4));
    EXPECT_EQ(pick["picked"].integer(), 4);
    EXPECT_EQ(pick["label"][1].text, "The band was away");
    EXPECT_FALSE(pick.has("points"));
}

}  // namespace
}  // namespace tourvane::testing
