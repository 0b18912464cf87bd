#include "app/web/state_json.h"

namespace tourvane {

namespace {

void append_bool(std::string& out, const char* key, bool value) {
    out += '"';
    out += key;
    out += value ? "\":true," : "\":false,";
}

void append_int(std::string& out, const char* key, long long value) {
    out += '"';
    out += key;
    out += "\":";
    out += std::to_string(value);
    out += ',';
}

void append_text(std::string& out, const char* key, std::string_view value) {
    out += '"';
    out += key;
    out += "\":";
    append_json_string(out, value);
    out += ',';
}

/// Drops the comma after an object's last member.
void close(std::string& out, char bracket) {
    if (out.back() == ',') out.pop_back();
    out += bracket;
}

void append_control(std::string& out, const Control& c) {
    out += '{';
    append_text(out, "name", c.name);
    append_int(out, "index", c.index);
    append_text(out, "kind", kind_name(c.kind));
    out += "\"rect\":{";
    append_int(out, "left", c.pos.left);
    append_int(out, "top", c.pos.top);
    append_int(out, "width", c.pos.width);
    append_int(out, "height", c.pos.height);
    close(out, '}');
    out += ',';
    append_text(out, "caption", c.caption);
    append_text(out, "tooltip", c.tooltip);
    append_bool(out, "enabled", c.enabled);
    append_bool(out, "visible", c.visible);
    append_bool(out, "value", c.value);
    out += "\"rows\":[";
    for (const std::string& row : c.rows) {
        append_json_string(out, row);
        out += ',';
    }
    close(out, ']');
    out += ',';
    append_int(out, "selected", c.selected);
    append_int(out, "color", c.color);
    append_bool(out, "rule_colour", c.rule_colour);
    close(out, '}');
}

}  // namespace

void append_json_string(std::string& out, std::string_view text) {
    static constexpr char kHex[] = "0123456789abcdef";
    out += '"';
    for (char ch : text) {
        const auto byte = static_cast<unsigned char>(ch);
        switch (ch) {
            case '"':
                out += "\\\"";
                break;
            case '\\':
                out += "\\\\";
                break;
            case '\n':
                out += "\\n";
                break;
            case '\r':
                out += "\\r";
                break;
            case '\t':
                out += "\\t";
                break;
            default:
                if (byte < 0x20) {
                    out += "\\u00";
                    out += kHex[byte >> 4];
                    out += kHex[byte & 0xF];
                } else {
                    out += ch;
                }
        }
    }
    out += '"';
}

const char* kind_name(ControlKind kind) {
    switch (kind) {
        case ControlKind::Label:
            return "Label";
        case ControlKind::ClickLabel:
            return "ClickLabel";
        case ControlKind::HotSpot:
            return "HotSpot";
        case ControlKind::Option:
            return "Option";
        case ControlKind::Button:
            return "Button";
        case ControlKind::ListBox:
            return "ListBox";
        case ControlKind::ComboBox:
            return "ComboBox";
    }
    return "Label";
}

std::string state_json(Game& g) {
    std::string out;
    out.reserve(32 * 1024);
    out += '{';
    append_bool(out, "ended", g.ended);
    append_bool(out, "game_over", g.game_over);
    append_int(out, "memos", static_cast<long long>(g.memos.size()));
    out += "\"forms\":[";
    g.forms.each_form([&](FormState& f) {
        out += '{';
        append_text(out, "name", f.name);
        append_int(out, "width", f.width);
        append_int(out, "height", f.height);
        append_bool(out, "loaded", f.loaded);
        append_bool(out, "visible", f.visible);
        append_bool(out, "enabled", f.enabled);
        append_int(out, "forward_requests", f.forward_requests);
        out += "\"controls\":[";
        f.each([&](const Control& c) {
            append_control(out, c);
            out += ',';
        });
        close(out, ']');
        close(out, '}');
        out += ',';
    });
    close(out, ']');
    close(out, '}');
    return out;
}

}  // namespace tourvane
