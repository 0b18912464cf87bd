#include "core/scripted_port.h"

namespace tourvane {

Answer ScriptedPort::msgbox(std::string_view text, Buttons buttons, bool critical) {
    Answer answer = buttons == Buttons::Ok ? Answer::Ok : Answer::No;
    if (!answers_.empty()) {
        const Answer queued = answers_.front();
        answers_.pop_front();
        if ((buttons == Buttons::Ok) == (queued == Answer::Ok)) {
            answer = queued;
        } else {
            ++mismatches_;
            if (sink_)
                sink_({.kind = Shown::Kind::MisfitAnswer, .buttons = buttons, .answer = queued});
        }
    }
    if (sink_)
        sink_({.kind = Shown::Kind::Box,
               .text = std::string(text),
               .buttons = buttons,
               .critical = critical,
               .answer = answer});
    return answer;
}

std::string ScriptedPort::inputbox(std::string_view prompt, std::string_view title) {
    std::string answer;
    if (!inputs_.empty()) {
        answer = std::move(inputs_.front());
        inputs_.pop_front();
    }
    if (sink_)
        sink_({.kind = Shown::Kind::Prompt,
               .text = std::string(prompt),
               .title = std::string(title),
               .typed = answer});
    return answer;
}

void ScriptedPort::memo_raised(std::string_view from, std::string_view text) {
    if (sink_)
        sink_({.kind = Shown::Kind::Memo, .text = std::string(text), .title = std::string(from)});
}

}  // namespace tourvane
