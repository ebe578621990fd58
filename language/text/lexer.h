#pragma once

#include "language/text/diagnostics.h"

#include <string>
#include <string_view>
#include <vector>

namespace tgx::script_text {

/// A piece of a line, recognised without knowing any keyword.
struct Lexeme {
    enum Kind { Word, Number, String, Faulty };

    Kind kind;
    std::string text; // a word as written, or a string's characters in code page 1252
    short value = 0;  // if it is a number
    Span at;
};

struct Fault {
    Span at;
    std::string text;
};

/// The pieces of a line, without its comment.
struct LexedLine {
    std::vector<Lexeme> lexemes;
    std::vector<Fault> faults;
};

/// Splits a line into lexemes.
LexedLine lex(std::string_view line);

/// Reads bytes, written as two hexadecimal digits each, from offset to the end of the line. Appends to
/// faults.
std::string lexBytes(std::string_view line, std::size_t offset, std::vector<Fault>& faults);

} // namespace tgx::script_text
