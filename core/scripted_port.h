#pragma once
// A port that answers boxes from queues instead of a person, and reports each box and memo as
// a transcript line. The script driver prints those lines; tests read them.

#include <deque>
#include <functional>
#include <string>
#include <string_view>

#include "core/ui_port.h"

namespace tourvane {

/// Writes `text` as a JSON string literal.
std::string json_quote(std::string_view text);

class ScriptedPort : public UiPort {
  public:
    /// Receives one transcript line per box, memo or mismatched answer (no newline).
    using Sink = std::function<void(const std::string&)>;

    explicit ScriptedPort(Sink sink = {}) : sink_(std::move(sink)) {}

    void queue_answer(Answer a) { answers_.push_back(a); }
    void queue_input(std::string text) { inputs_.push_back(std::move(text)); }
    std::size_t answers_left() const { return answers_.size(); }
    std::size_t inputs_left() const { return inputs_.size(); }

    /// How many queued answers did not fit the box they met.
    int mismatches() const { return mismatches_; }

    Answer msgbox(std::string_view text, Buttons buttons, bool critical) override;
    std::string inputbox(std::string_view prompt, std::string_view title) override;
    void memo_raised(std::string_view from, std::string_view text) override;

  private:
    void emit(const std::string& line) {
        if (sink_) sink_(line);
    }

    Sink sink_;
    std::deque<Answer> answers_;
    std::deque<std::string> inputs_;
    int mismatches_ = 0;
};

}  // namespace tourvane
