#include "app/web/json.h"

#include <cmath>
#include <cstdio>

#include "app/driver/json_text.h"

namespace tourvane {

void Json::next() {
    if (after_key_) {
        after_key_ = false;
        return;
    }
    if (!first_) out_ += ',';
    first_ = false;
}

Json& Json::open(char bracket, char closer) {
    next();
    out_ += bracket;
    closers_.push_back(closer);
    first_ = true;
    return *this;
}

Json& Json::object() {
    return open('{', '}');
}

Json& Json::array() {
    return open('[', ']');
}

Json& Json::end() {
    if (closers_.empty()) return *this;
    out_ += closers_.back();
    closers_.pop_back();
    first_ = false;
    return *this;
}

Json& Json::key(std::string_view name) {
    next();
    append_json_quoted(out_, name);
    out_ += ':';
    after_key_ = true;
    return *this;
}

Json& Json::value(std::string_view text) {
    next();
    append_json_quoted(out_, text);
    return *this;
}

Json& Json::value(bool b) {
    next();
    out_ += b ? "true" : "false";
    return *this;
}

Json& Json::null() {
    next();
    out_ += "null";
    return *this;
}

Json& Json::value(double number) {
    next();
    if (!std::isfinite(number)) {
        out_ += "null";
        return *this;
    }
    char text[32];
    std::snprintf(text, sizeof text, "%.15g", number);
    out_ += text;
    return *this;
}

}  // namespace tourvane
