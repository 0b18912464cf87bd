#pragma once
// JSON written by hand for the web page: a text, member by member, with the commas and
// brackets put in as objects and arrays open and close.

#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace tourvane {

class Json {
  public:
    /// Opens an object or an array as the next value.
    Json& object();
    Json& array();
    /// Closes the object or array opened last.
    Json& end();

    /// Names the next value, inside an object.
    Json& key(std::string_view name);

    Json& value(std::string_view text);
    Json& value(const char* text) { return value(std::string_view(text)); }
    Json& value(const std::string& text) { return value(std::string_view(text)); }
    Json& value(bool b);
    Json& null();
    Json& value(double number);  ///< null when it is not finite
    template <class Int, std::enable_if_t<std::is_integral_v<Int>, int> = 0>
    Json& value(Int number) {
        next();
        out_ += std::to_string(number);
        return *this;
    }

    /// key(name).value(v).
    template <class T>
    Json& member(std::string_view name, const T& v) {
        return key(name).value(v);
    }

    /// Each of `values` in an array named `name`.
    template <class Values>
    Json& list(std::string_view name, const Values& values) {
        key(name).array();
        for (const auto& v : values) value(v);
        return end();
    }

    /// The text written so far; whole once every object and array is closed.
    const std::string& text() const { return out_; }
    std::string take() { return std::move(out_); }

    /// Room for `bytes` of text, so that a large reply grows once.
    void reserve(std::size_t bytes) { out_.reserve(bytes); }

  private:
    /// Puts the comma before a value or a key where one is due.
    void next();
    Json& open(char bracket, char closer);

    std::string out_;
    std::vector<char> closers_;
    bool first_ = true;       ///< nothing yet in the object or array open now
    bool after_key_ = false;  ///< a key has been written and waits for its value
};

}  // namespace tourvane
