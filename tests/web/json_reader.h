#pragma once
// A strict reader of the JSON the page is handed, for the tests: it fails on anything a
// browser's JSON.parse would refuse (a stray comma, a raw control character, text after the
// end), and gives the value as a tree to look into.

#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tourvane::testing {

struct JsonValue {
    enum class Type { Null, Bool, Number, String, Array, Object } type = Type::Null;
    bool boolean = false;
    double number = 0;
    std::string text;
    std::vector<JsonValue> items;
    std::map<std::string, JsonValue> members;

    /// The member of an object; throws when there is none, so a test fails loudly.
    const JsonValue& operator[](const std::string& name) const {
        const auto it = members.find(name);
        if (type != Type::Object || it == members.end())
            throw std::runtime_error("no member " + name);
        return it->second;
    }
    const JsonValue& operator[](std::size_t i) const { return items.at(i); }
    bool has(const std::string& name) const { return members.count(name) != 0; }
    std::size_t size() const { return type == Type::Object ? members.size() : items.size(); }
    int integer() const { return static_cast<int>(number); }

    /// The strings of an array of strings.
    std::vector<std::string> strings() const {
        std::vector<std::string> out;
        for (const JsonValue& v : items) out.push_back(v.text);
        return out;
    }
};

class JsonReader {
  public:
    /// The value `text` holds; throws std::runtime_error on anything that is not JSON.
    static JsonValue read(std::string_view text) {
        JsonReader r(text);
        JsonValue v = r.value();
        r.blanks();
        if (r.at_ != text.size()) r.fail("text after the value");
        return v;
    }

  private:
    explicit JsonReader(std::string_view text) : in_(text) {}

    [[noreturn]] void fail(const std::string& why) const {
        throw std::runtime_error(why + " at byte " + std::to_string(at_));
    }
    void blanks() {
        while (at_ < in_.size() && std::string_view(" \t\r\n").find(in_[at_]) != std::string::npos)
            ++at_;
    }
    char peek() {
        blanks();
        if (at_ >= in_.size()) fail("end of text");
        return in_[at_];
    }
    void expect(char c) {
        if (peek() != c) fail(std::string("expected ") + c);
        ++at_;
    }
    bool word(std::string_view w) {
        if (in_.substr(at_, w.size()) != w) return false;
        at_ += w.size();
        return true;
    }

    JsonValue value() {
        JsonValue v;
        const char c = peek();
        if (c == '{') {
            v.type = JsonValue::Type::Object;
            ++at_;
            if (peek() == '}') return ++at_, v;
            do {
                std::string name = string();
                expect(':');
                if (!v.members.emplace(std::move(name), value()).second) fail("a member twice");
            } while (peek() == ',' && ++at_);
            expect('}');
        } else if (c == '[') {
            v.type = JsonValue::Type::Array;
            ++at_;
            if (peek() == ']') return ++at_, v;
            do v.items.push_back(value());
            while (peek() == ',' && ++at_);
            expect(']');
        } else if (c == '"') {
            v.type = JsonValue::Type::String;
            v.text = string();
        } else if (word("true")) {
            v.type = JsonValue::Type::Bool;
            v.boolean = true;
        } else if (word("false")) {
            v.type = JsonValue::Type::Bool;
        } else if (word("null")) {
        } else {
            v.type = JsonValue::Type::Number;
            std::size_t used = 0;
            const std::string rest(in_.substr(at_, 40));
            if (rest.empty() || !(rest[0] == '-' || (rest[0] >= '0' && rest[0] <= '9')))
                fail("not a value");
            v.number = std::stod(rest, &used);
            at_ += used;
        }
        return v;
    }

    std::string string() {
        expect('"');
        std::string out;
        while (true) {
            if (at_ >= in_.size()) fail("unended string");
            const char c = in_[at_++];
            if (c == '"') return out;
            if (static_cast<unsigned char>(c) < 0x20) fail("raw control character");
            if (c != '\\') {
                out += c;
                continue;
            }
            const char e = in_.at(at_++);
            switch (e) {
                case 'n':
                    out += '\n';
                    break;
                case 't':
                    out += '\t';
                    break;
                case 'r':
                    out += '\r';
                    break;
                case 'u': {
                    const unsigned code = std::stoul(std::string(in_.substr(at_, 4)), nullptr, 16);
                    at_ += 4;
                    if (code >= 0x80) fail("only ASCII escapes are written");
                    out += static_cast<char>(code);
                    break;
                }
                case '"':
                case '\\':
                case '/':
                    out += e;
                    break;
                default:
                    fail("bad escape");
            }
        }
    }

    std::string_view in_;
    std::size_t at_ = 0;
};

}  // namespace tourvane::testing
