#include "core/scripted_port.h"

#include <cstdio>

namespace tourvane {

std::string json_quote(std::string_view text) {
    std::string out;
    out.reserve(text.size() + 2);
    out += '"';
    for (unsigned char c : text) {
        switch (c) {
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
            case '\b':
                out += "\\b";
                break;
            case '\f':
                out += "\\f";
                break;
            default:
                if (c < 0x20) {
                    char buf[8];
                    std::snprintf(buf, sizeof buf, "\\u%04x", c);
                    out += buf;
                } else {
                    out += static_cast<char>(c);
                }
        }
    }
    out += '"';
    return out;
}

namespace {
const char* answer_word(Answer a) {
    switch (a) {
        case Answer::Ok:
            return "ok";
        case Answer::Yes:
            return "yes";
        case Answer::No:
            return "no";
    }
    return "ok";
}
}  // namespace

Answer ScriptedPort::msgbox(std::string_view text, Buttons buttons, bool critical) {
    const Answer fallback = buttons == Buttons::Ok ? Answer::Ok : Answer::No;
    Answer answer = fallback;
    if (!answers_.empty()) {
        Answer queued = answers_.front();
        answers_.pop_front();
        const bool fits = (buttons == Buttons::Ok) == (queued == Answer::Ok);
        if (fits) {
            answer = queued;
        } else {
            ++mismatches_;
            emit(std::string("error \"answer ") + answer_word(queued) + " does not fit " +
                 (buttons == Buttons::Ok ? "an ok" : "a yesno") + " box\"");
        }
    }
    if (!sink_) return answer;
    std::string line = buttons == Buttons::Ok ? "msgbox ok " : "msgbox yesno ";
    if (critical) line += "critical ";
    line += json_quote(text);
    line += " -> ";
    line += answer_word(answer);
    emit(line);
    return answer;
}

std::string ScriptedPort::inputbox(std::string_view prompt, std::string_view title) {
    std::string answer;
    if (!inputs_.empty()) {
        answer = std::move(inputs_.front());
        inputs_.pop_front();
    }
    if (sink_)
        emit("inputbox " + json_quote(title) + " " + json_quote(prompt) + " -> " +
             json_quote(answer));
    return answer;
}

void ScriptedPort::memo_raised(std::string_view from, std::string_view text) {
    if (sink_) emit("memo " + json_quote(from) + " " + json_quote(text));
}

}  // namespace tourvane
