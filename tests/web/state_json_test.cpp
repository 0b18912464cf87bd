// The JSON the web page draws from: escaping, and the shape the page reads (app/web/page).

#include "app/web/state_json.h"

#include <gtest/gtest.h>

#include <string>

#include "core/scripted_port.h"

namespace tourvane {
namespace {

std::string as_json(std::string_view text) {
    std::string out;
    append_json_string(out, text);
    return out;
}

TEST(StateJson, StringsEscapeWhatJsonForbidsAndPassUtf8Through) {
    EXPECT_EQ(as_json(""), "\"\"");
    EXPECT_EQ(as_json("Grey & \"Co\" <band>"), R"("Grey & \"Co\" <band>")");
    EXPECT_EQ(as_json("C:\\saves"), R"("C:\\saves")");
    EXPECT_EQ(as_json("one\ntwo\r\tthree"), R"("one\ntwo\r\tthree")");
    EXPECT_EQ(as_json(std::string("\x01\x1f\x00", 3)), R"("\u0001\u001f\u0000")");
    // Past the control characters nothing is escaped: DEL, the pound sign, any letter.
    EXPECT_EQ(as_json("\x7f£ 3000 Zoë 東"), "\"\x7f£ 3000 Zoë 東\"");
}

TEST(StateJson, HoldsEveryFormAndControlInOrderWithTheFieldsThePageReads) {
    ScriptedPort port;
    Game g(port);
    TitleForm& title = g.forms.Form1;
    title.loaded = title.visible = true;
    g.forms.main.forward_requests = 3;
    OfficeForm& office = g.forms.main;
    office.promote[2].value = true;
    office.members.rows = {"Ann \"Axe\" Lee", "Bo"};
    office.members.selected = 1;
    office.txtcash.caption = "£ -5";
    g.forms.Chart.Label1.rule_colour = true;
    g.memos.push_back({"Dave", "Hello", false});
    g.game_over = true;

    const std::string json = state_json(g);
    EXPECT_EQ(json.rfind(R"({"ended":false,"game_over":true,"memos":1,"forms":[)", 0), 0u);
    EXPECT_NE(json.find(R"({"name":"Form1","width":636,"height":500,"loaded":true,)"
                        R"("visible":true,"enabled":true,"forward_requests":0,"controls":[)"
                        R"({"name":"Label2","index":-1,"kind":"Label",)"
                        R"("rect":{"left":0,"top":10,"width":641,"height":41},)"
                        R"("caption":"TOURVANE","tooltip":"","enabled":true,"visible":true,)"
                        R"("value":false,"rows":[],"selected":-1,"color":0,"rule_colour":false},)"),
              std::string::npos);
    EXPECT_NE(json.find(R"("name":"main","width":591,"height":486,"loaded":false,)"
                        R"("visible":false,"enabled":true,"forward_requests":3,)"),
              std::string::npos);
    EXPECT_NE(json.find(R"({"name":"command6","index":-1,"kind":"HotSpot",)"
                        R"("rect":{"left":30,"top":105,"width":99,"height":26},)"
                        R"("caption":"","tooltip":"Next Week","enabled":true,)"),
              std::string::npos);
    EXPECT_NE(json.find(R"({"name":"promote","index":2,"kind":"Option",)"), std::string::npos);
    EXPECT_NE(json.find(R"("caption":"Medium   £250","tooltip":"","enabled":true,)"
                        R"("visible":true,"value":true,)"),
              std::string::npos);
    EXPECT_NE(json.find(R"("kind":"ListBox",)"), std::string::npos);
    EXPECT_NE(json.find(R"("rows":["Ann \"Axe\" Lee","Bo"],"selected":1,)"), std::string::npos);
    EXPECT_NE(json.find(R"("caption":"£ -5")"), std::string::npos);
    EXPECT_NE(json.find(R"("color":16777215,"rule_colour":true})"), std::string::npos);
    EXPECT_NE(json.find(R"("kind":"ComboBox",)"), std::string::npos);
    EXPECT_NE(json.find(R"("kind":"Button",)"), std::string::npos);
    EXPECT_NE(json.find(R"("kind":"ClickLabel",)"), std::string::npos);
    EXPECT_EQ(json.substr(json.size() - 3), "}]}");

    // Every control once, the forms in their fixed order.
    std::size_t controls = 0, at = 0;
    g.forms.each_form([&](FormState& f) { controls += f.controls.size(); });
    std::size_t kinds = 0;
    while ((at = json.find("\"kind\":", at)) != std::string::npos) ++kinds, ++at;
    EXPECT_EQ(kinds, controls);
    std::size_t last = 0;
    g.forms.each_form([&](FormState& f) {
        const std::size_t here = json.find(std::string(R"({"name":")") + f.name + R"(","width")");
        ASSERT_NE(here, std::string::npos) << f.name;
        EXPECT_GE(here, last) << f.name;
        last = here;
    });
}

}  // namespace
}  // namespace tourvane
