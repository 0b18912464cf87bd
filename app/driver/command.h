#pragma once
// One line of a script, read into a command. Reading checks only the line itself (the verb,
// the number and form of the words); names of forms, controls, routines and fields and the
// bounds of indexes are checked against the game when the command runs.

#include <string>
#include <string_view>
#include <vector>

#include "core/ui_port.h"

namespace tourvane::driver {

enum class Verb {
    Rnd,
    RndLeft,
    Answer,
    Input,
    AutoMemo,
    Click,
    DblClick,
    Call,
    Get,
    Set,
    Dump,
    Control,
    Form,
    Diary,
    History,
};

/// A word of a line as written, or a JSON string literal (with its quotes): a view into the
/// line, valid while the line is.
struct Word {
    std::string_view text;
    bool quoted = false;
};

struct Command {
    Verb verb = Verb::Dump;
    std::vector<double> draws;    ///< rnd
    std::vector<Answer> answers;  ///< answer
    std::string text;             ///< input: the decoded text
    bool on = true;               ///< automemo
    std::string form;             ///< click, dblclick, control, form
    std::string control;          ///< click, dblclick, control
    std::string name;             ///< call: the routine; get, set: the field
    int index = -1;               ///< array index or list row; -1 when none was written
    std::string index_text;       ///< the index as written, for messages
    std::string value;            ///< set: the value as written (checked against the field)
};

struct ParsedLine {
    enum class Kind { Blank, Command, Error };
    Kind kind = Kind::Blank;
    Command command;
    std::string error;  ///< why the line can't be understood (Kind::Error)
    std::string verb;   ///< the first word as written, empty for a blank line
};

/// Splits a line into words: runs of non-blanks, or JSON string literals that may hold blanks.
/// Returns false (with `why`) on a malformed string literal.
bool split_words(std::string_view line, std::vector<Word>& words, std::string& why);

/// Reads one line of a script: blank, comment, a command, or an error saying why not.
ParsedLine parse_line(std::string_view line);

/// True for the verbs that only queue input for later and run before the start-up.
bool runs_before_startup(std::string_view verb);

}  // namespace tourvane::driver
