#pragma once

#include "language/text/diagnostics.h"

#include <string>
#include <string_view>
#include <vector>

namespace script_text {

/// A piece of a line: what can be told without knowing any keyword.
struct Lexeme {
    enum Kind { Word, Number, String, Faulty };

    Kind kind;
    std::string text; // a word as it stands, the characters of a string in code page 1252
    short value = 0;  // of a number
    Span at;
};

struct Fault {
    Span at;
    std::string text;
};

/// A line, cut up to its comment.
struct LexedLine {
    std::vector<Lexeme> lexemes;
    std::vector<Fault> faults;
};

LexedLine lex(std::string_view line);

/// The unfinished line's bytes, written as two hexadecimal digits each, from offset to the line's end. Faults
/// are appended.
std::string lexBytes(std::string_view line, std::size_t offset, std::vector<Fault>& faults);

} // namespace script_text
