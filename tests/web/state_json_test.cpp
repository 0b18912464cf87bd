// The JSON the web page draws from (app/web/state_json.h): texts quoted as JSON wants them,
// commas and brackets as the nesting says, and the key table named as the browser names keys.
// What the page draws from it is tested in the browser (tests/web/*.test.mjs).

#include "app/web/state_json.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "app/driver/json_text.h"
#include "view/keys.h"

namespace tourvane {
namespace {

TEST(Json, StringsEscapeWhatJsonForbidsAndPassUtf8Through) {
    EXPECT_EQ(json_quote(""), "\"\"");
    EXPECT_EQ(json_quote("Grey & \"Co\" <band>"), R"("Grey & \"Co\" <band>")");
    EXPECT_EQ(json_quote("C:\\saves"), R"("C:\\saves")");
    EXPECT_EQ(json_quote("one\ntwo\r\tthree\b\f"), R"("one\ntwo\r\tthree\b\f")");
    EXPECT_EQ(json_quote(std::string("\x01\x1f\x00", 3)), R"("\u0001\u001f\u0000")");
    // Past the control characters nothing is escaped: DEL, the pound sign, any letter.
    EXPECT_EQ(json_quote("\x7f£ 3000 Zoë 東"), "\"\x7f£ 3000 Zoë 東\"");
}

TEST(Json, CommasAndBracketsFollowTheNesting) {
    Json j;
    j.object().member("a", 1).key("b").array().value(true).null().object().end().array().end();
    j.value(-2.5).value(std::numeric_limits<double>::infinity()).end();
    j.member("c", std::string("x")).list("d", std::vector<std::string>{}).end();
    EXPECT_EQ(j.text(), R"({"a":1,"b":[true,null,{},[],-2.5,null],"c":"x","d":[]})");
    // Whole numbers as doubles, as the scales are, print without a fraction.
    Json k;
    k.array().value(2000.0).value(1e6).value(0.1).value(std::size_t{7}).end();
    EXPECT_EQ(k.text(), "[2000,1000000,0.1,7]");
}

TEST(Keys, ThePageNamesEachKeyAsTheBrowserDoesAndEachActionByANameThatReadsBack) {
    const std::pair<const char*, const char*> named[] = {
        {"N", "N"},
        {"F1", "F1"},
        {"Ctrl+Q", "Control+Q"},
        {"Alt+S", "Alt+S"},
        {"Esc", "Escape"},
        {"PgUp", "PageUp"},
        {"PgDown", "PageDown"},
        {"Left", "ArrowLeft"},
        {"Return", "Enter"},
        {"Shift+Tab", "Shift+Tab"},
        {"Ctrl++", "Control++"},
    };
    for (const auto& [table, page] : named) EXPECT_EQ(page_key(table), page) << table;
    for (const KeyBinding& b : key_bindings())
        EXPECT_EQ(action_named(action_name(b.action)), b.action) << action_name(b.action);
    EXPECT_FALSE(action_named("Jump"));
}

}  // namespace
}  // namespace tourvane
