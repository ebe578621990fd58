// Generates the syntax files with which editors highlight the text form.

#include "language/reference/reference.h"

#include "tgx/script/vocabulary.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>
#include <vector>

namespace tgx::script_text {

namespace {

constexpr const char* madeBy = "Generated from the vocabulary by `tgx reference`. To regenerate: cmake "
                               "--build build/release --target script_reference";

using enum StatementKind;

/// Returns the keywords of statements of these kinds, in alphabetical order, separated by divider.
std::string keywords(std::initializer_list<StatementKind> kinds, std::string_view divider)
{
    std::vector<std::string_view> words;
    for (const Statement& row : vocabulary())
        if (std::find(kinds.begin(), kinds.end(), row.kind) != kinds.end())
            words.emplace_back(row.keyword);
    std::sort(words.begin(), words.end());
    std::string out;
    for (std::string_view word : words)
        out += (out.empty() ? "" : std::string(divider)) + std::string(word);
    return out;
}

} // namespace

std::string vimSyntax()
{
    std::string out = std::string("\" Interface scripts of TGX in text form.\n\" ") + madeBy + R"(

if exists("b:current_syntax")
  finish
endif

setlocal iskeyword=@,48-57,_
setlocal comments=:# commentstring=#\ %s
syntax case match

)";
    out += "syntax keyword tgsBlock " + keywords({BlockBegin, BlockEnd}, " ") + '\n';
    out += "syntax keyword tgsWindow " + keywords({Window, StatementKind::Screen, Reference}, " ") + '\n';
    out += "syntax keyword tgsAttribute " + keywords({Attribute}, " ") + '\n';
    out += "syntax keyword tgsCommand " + keywords({Command, Definition}, " ") + '\n';
    out += "syntax keyword tgsWord " + keywords({ArgumentWord}, " ") + '\n';
    out += R"(syntax keyword tgsPreProc INCLUDE DEFINE EMPTY
syntax match tgsRaw /@\d*/
syntax match tgsNumber /-\?\<\d\+\>/
syntax match tgsNumber /\<0[xX]\x\+\>/
syntax match tgsEscape /\\\(x\x\x\|["\\]\)/ contained
syntax region tgsString start=/"/ skip=/\\["\\]/ end=/"/ oneline contains=tgsEscape
syntax match tgsComment /#.*$/ contains=@Spell
syntax match tgsUnfinished /^\s*#! unfinished:.*$/

highlight default link tgsBlock Structure
highlight default link tgsWindow Type
highlight default link tgsAttribute Statement
highlight default link tgsCommand Function
highlight default link tgsWord Constant
highlight default link tgsPreProc PreProc
highlight default link tgsRaw Special
highlight default link tgsNumber Number
highlight default link tgsEscape SpecialChar
highlight default link tgsString String
highlight default link tgsComment Comment
highlight default link tgsUnfinished Special

let b:current_syntax = "tgs"
)";
    return out;
}

std::string textMateGrammar()
{
    std::string out = R"json({
    "comment": ")json" +
                      std::string(madeBy) +
                      R"json(",
    "name": "TGX interface script",
    "scopeName": "source.tgs",
    "fileTypes": ["tgs"],
    "foldingStartMarker": "^\\s*BEGIN\\b",
    "foldingStopMarker": "^\\s*END\\b",
    "patterns": [
        { "name": "keyword.control.directive.tgs", "match": "^\\s*#! unfinished:.*$" },
        { "name": "comment.line.number-sign.tgs", "match": "#.*$" },
        {
            "name": "string.quoted.double.tgs",
            "begin": "\"",
            "end": "\"|$",
            "patterns": [{ "name": "constant.character.escape.tgs", "match": "\\\\(?:x[0-9A-Fa-f]{2}|[\"\\\\])" }]
        },
        { "name": "constant.numeric.tgs", "match": "(?<![^ \\t\"])(?:0[xX][0-9A-Fa-f]+|-?[0-9]+)(?![^ \\t\"#])" },
        { "name": "constant.other.id.tgs", "match": "(?<![^ \\t\"])@[0-9]*" },
)json";
    const struct {
        const char* scope;
        std::string words;
    } rules[] = {
        {"keyword.control.block.tgs", keywords({BlockBegin, BlockEnd}, "|")},
        {"storage.type.window.tgs", keywords({Window, StatementKind::Screen, Reference}, "|")},
        {"keyword.other.attribute.tgs", keywords({Attribute}, "|")},
        {"keyword.other.command.tgs", keywords({Command, Definition}, "|")},
        {"constant.language.tgs", keywords({ArgumentWord}, "|")},
        {"keyword.control.directive.tgs", "INCLUDE|DEFINE|EMPTY"},
    };
    for (const auto& rule : rules)
        out += std::string("        { \"name\": \"") + rule.scope +
               R"json(", "match": "(?<![^ \\t\"])(?:)json" + rule.words +
               R"json()(?![^ \\t\"#])" },
)json";
    out += R"json(        { "name": "variable.other.constant.tgs", "match": "\\b[A-Za-z_][A-Za-z0-9_]*\\b" }
    ]
}
)json";
    return out;
}

} // namespace tgx::script_text
