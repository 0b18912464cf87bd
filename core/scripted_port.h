#pragma once
// A port that answers boxes from queues instead of a person, and reports each box, prompt and
// memo as data. The script driver prints what it reports; tests compare it.

#include <deque>
#include <functional>
#include <string>
#include <string_view>

#include "core/ui_port.h"

namespace tourvane {

/// One thing the port showed, with the answer it gave.
struct Shown {
    enum class Kind {
        Box,          ///< a box: `text`, `buttons`, `critical`, and the `answer` given
        Prompt,       ///< a prompt: `title`, `text` (the question), and the `typed` answer
        Memo,         ///< a memo: `title` (its sender) and `text`
        MisfitAnswer  ///< the queued `answer` did not fit the box with these `buttons`
    };
    Kind kind = Kind::Box;
    std::string text{};
    std::string title{};
    Buttons buttons = Buttons::Ok;
    bool critical = false;
    Answer answer = Answer::Ok;
    std::string typed{};

    bool operator==(const Shown&) const = default;
};

class ScriptedPort : public UiPort {
  public:
    /// Receives each box, prompt, memo and mismatched answer as it happens.
    using Sink = std::function<void(const Shown&)>;

    explicit ScriptedPort(Sink sink = {}) : sink_(std::move(sink)) {}

    void queue_answer(Answer a) { answers_.push_back(a); }
    void queue_input(std::string text) { inputs_.push_back(std::move(text)); }
    std::size_t answers_left() const { return answers_.size(); }

    /// How many queued answers did not fit the box they met.
    int mismatches() const { return mismatches_; }

    /// Drops every queued answer and input and the count of mismatches.
    void clear() {
        answers_.clear();
        inputs_.clear();
        mismatches_ = 0;
    }

    Answer msgbox(std::string_view text, Buttons buttons, bool critical) override;
    std::string inputbox(std::string_view prompt, std::string_view title) override;
    void memo_raised(std::string_view from, std::string_view text) override;

  private:
    Sink sink_;  // with none, nothing shown is copied
    std::deque<Answer> answers_;
    std::deque<std::string> inputs_;
    int mismatches_ = 0;
};

}  // namespace tourvane
