// Parses lines of text into statements: turns words into tokens, and resolves INCLUDE and DEFINE.

#include "language/text/parsed_script.h"

#include "language/text/lexer.h"
#include "language/text/statement_form.h"
#include "platform/media/encoding.h"
#include "tgx/script/reader.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <filesystem>
#include <map>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace tgx::script_text {

namespace {

constexpr std::string_view includeWord = "INCLUDE";
constexpr std::string_view defineWord = "DEFINE";
constexpr const char* includeForm = "expected: INCLUDE \"file\"";
constexpr const char* defineForm = "expected: DEFINE NAME value";

// Without these limits a few files that include each other twice would produce an endless text.
constexpr int maxIncludeDepth = 64;
constexpr std::size_t maxTextBytes = 4u << 20; // bytes
// Searching for suggestions takes time, and a text with more unknown words than this is not a script.
constexpr int maxSuggestions = 200;

struct Definition {
    Token value;
    Place place;
    bool isUsed = false;
};

bool isNameLike(std::string_view word)
{
    return std::isalpha(static_cast<unsigned char>(word[0])) || word[0] == '_';
}

bool isName(std::string_view word)
{
    return isNameLike(word) && std::all_of(word.begin(), word.end(), [](unsigned char c) {
               return c < 0x80 && (std::isalnum(c) || c == '_');
           });
}

bool isKeyword(std::string_view word)
{
    return statementByKeyword(word) || word == includeWord || word == defineWord || word == emptyLine;
}

class Parser {
public:
    Parser(ParsedScript& script, const ReadFile& readFile) : out(script), read(readFile) {}

    void run(const std::string& path, std::string text)
    {
        out.inclusions.push_back({&out.files.emplace_back(path, std::move(text))});
        filesByPath[normal(path)] = &out.files.back();
        totalText = out.files.back().text.size();
        readFileLines(out.inclusions.back());
        if (!isIncludeMissing)
            warnOfUnused();
    }

private:
    static std::string normal(const std::filesystem::path& path)
    {
        return path.lexically_normal().generic_string();
    }

    void report(Diagnostic::Severity severity, const char* code, const Inclusion& inclusion, int number,
                const Span& at, std::string text)
    {
        Diagnostic diagnostic{severity, {&inclusion, number, at}, std::move(text), code};
        // The errors of a file that is included twice are reported once.
        if (!inclusion.from || reported.insert(headline(diagnostic)).second)
            out.diagnostics.push_back(std::move(diagnostic));
    }
    /// Reports an error in the current line, which is then not built.
    void error(const char* code, const Span& at, std::string text)
    {
        isLineValid = false;
        report(Diagnostic::Error, code, *in, lineNumber, at, std::move(text));
    }

    /// Returns why a text cannot be read line by line, or null if it can.
    static const char* whyUnreadable(std::string_view text)
    {
        if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF"))
            return "the text is UTF-16; save it as UTF-8";
        const std::size_t end = text.find('\r');
        if (end != std::string_view::npos && end + 1 < text.size() &&
            text.find('\n') == std::string_view::npos)
            return "the lines end with CR only; save the text with LF or CR LF";
        return nullptr;
    }

    void readFileLines(const Inclusion& inclusion)
    {
        if (const char* const why = whyUnreadable(inclusion.file->text)) {
            in = &inclusion;
            lineNumber = 1;
            error("syntax", {0, 1, 1}, why);
            isIncludeMissing = true; // its DEFINEs are not known
            return;
        }
        const int count = inclusion.file->lineCount();
        for (int number = 1; number <= count; ++number) {
            in = &inclusion; // an INCLUDE in the previous line has changed both
            lineNumber = number;
            readLine(inclusion.file->line(number));
        }
    }

    void readLine(std::string_view line)
    {
        isLineValid = true;
        const std::size_t start = std::min(line.find_first_not_of(" \t"), line.size());
        if (line.substr(start).starts_with(unfinishedMark)) {
            readUnfinished(line, start);
            return;
        }
        LexedLine lexed = lex(line);
        for (Fault& each : lexed.faults)
            error("syntax", each.at, std::move(each.text));
        const std::vector<Lexeme>& lexemes = lexed.lexemes;
        if (lexemes.empty())
            return;
        if (isUnfinished)
            error("syntax", lexemes[0].at, "a line after the unfinished one, which must be the last");

        const std::string_view first = lexemes[0].kind == Lexeme::Word ? lexemes[0].text : std::string_view();
        if (first == includeWord)
            include(lexemes);
        else if (first == defineWord)
            define(lexemes);
        else
            readStatement(lexemes, first);
    }

    void readStatement(const std::vector<Lexeme>& lexemes, std::string_view first)
    {
        StatementLine line{in, lineNumber, first.starts_with(verbatimMark), {}};
        const bool isMarked = first.size() == 1 && line.isVerbatim;
        if (isMarked && lexemes.size() == 1)
            error("syntax", lexemes[0].at, "expected a line after the @, which builds it unchecked");
        const bool isEmptyLine = first == emptyLine;
        if (isEmptyLine && lexemes.size() > 1)
            error("syntax", lexemes[0].at, "EMPTY is a line without a token and takes no arguments");
        const Statement* statement = statementByKeyword(first);
        const std::size_t begin = isMarked || isEmptyLine ? 1 : 0;
        for (std::size_t i = begin; i < lexemes.size(); ++i)
            if (std::optional<Token> token = resolve(lexemes[i], i - begin, statement))
                line.tokens.push_back(std::move(*token));
        if (isLineValid && !line.isVerbatim)
            for (LineFault& each : lineFaults(line.tokens))
                error(each.code, line.tokens[each.token].at, std::move(each.text));
        if (isLineValid)
            out.lines.push_back(std::move(line));
    }

    /// Returns the token for a lexeme, or nothing after reporting why there is none. position is the lexeme's
    /// index in the line, 0 for the keyword; statement is that of the line, or null if unknown.
    std::optional<Token> resolve(const Lexeme& lexeme, std::size_t position, const Statement* statement)
    {
        switch (lexeme.kind) {
        case Lexeme::Number:
            return Token{numberToken, lexeme.value, {}, lexeme.at};
        case Lexeme::String:
            return Token{stringToken, 0, lexeme.text, lexeme.at};
        case Lexeme::Faulty: // already reported; the following arguments keep their positions
            return Token{numberToken, 0, {}, lexeme.at};
        default:
            break;
        }
        if (lexeme.text[0] == verbatimMark)
            return resolveId(lexeme);
        if (const Statement* keyword = statementByKeyword(lexeme.text))
            return Token{static_cast<unsigned char>(keyword->id), 0, {}, lexeme.at};
        const auto definition = definitions.find(lexeme.text);
        if (definition != definitions.end() && position > 0) {
            definition->second.isUsed = true;
            Token value = definition->second.value;
            value.at = lexeme.at;
            return value;
        }
        reportUnknown(lexeme, position, statement);
        return std::nullopt;
    }

    std::optional<Token> resolveId(const Lexeme& lexeme)
    {
        unsigned char id = 0;
        const char* const wordEnd = lexeme.text.data() + lexeme.text.size();
        const auto [end, fault] = std::from_chars(lexeme.text.data() + 1, wordEnd, id);
        if (fault == std::errc() && end == wordEnd && id != numberToken && id != stringToken &&
            id != endOfLineToken)
            return Token{id, 0, {}, lexeme.at};
        error("syntax", lexeme.at,
              "expected @ and a keyword's number, 0 to 255 but not 3, 4 or 7, found " + shown(lexeme.text));
        return std::nullopt;
    }

    void reportUnknown(const Lexeme& lexeme, std::size_t position, const Statement* statement)
    {
        const std::string word = shown(lexeme.text);
        if (isKeyword(lexeme.text)) { // INCLUDE, DEFINE or EMPTY
            error("syntax", lexeme.at, word + " must be the first word of a line");
        } else if (!isNameLike(lexeme.text)) {
            error("syntax", lexeme.at, "expected a keyword, a \"string\" or a number, found " + word);
        } else if (position == 0) {
            error("unknown-keyword", lexeme.at,
                  definitions.contains(lexeme.text)
                      ? word + " is a DEFINE, which is only valid as an argument; expected a keyword"
                      : "unknown keyword " + word + didYouMean(lexeme.text, keywords()));
        } else if (isIncludeMissing) { // the missing file may define it; one error is enough
            isLineValid = false;
        } else {
            const std::string suggestion = didYouMean(lexeme.text, argumentNames());
            std::string text = "unknown name " + word + suggestion;
            const char* divider = suggestion.empty() ? "; " : " "; // it ends with a question mark
            if (statement && argumentKind(*statement, static_cast<int>(position)) == ArgumentKind::String) {
                text += std::string(divider) + "a string needs quotes";
                divider = "; ";
            }
            error("unknown-name", lexeme.at,
                  statement ? text + divider + "expected: " + expectedForm(*statement) : text);
        }
    }

    static std::vector<std::string_view> keywords()
    {
        std::vector<std::string_view> names;
        for (const Statement& row : vocabulary())
            if (row.kind != StatementKind::ArgumentWord)
                names.emplace_back(row.keyword);
        names.insert(names.end(), {includeWord, defineWord});
        return names;
    }
    std::vector<std::string_view> argumentNames() const
    {
        std::vector<std::string_view> names;
        for (const auto& [name, definition] : definitions)
            names.emplace_back(name);
        for (const Statement& row : vocabulary())
            if (row.kind == StatementKind::ArgumentWord)
                names.emplace_back(row.keyword);
        return names;
    }

    std::string didYouMean(std::string_view word, const std::vector<std::string_view>& names)
    {
        if (suggestions == maxSuggestions)
            return "";
        ++suggestions;
        const std::string_view near = nearest(word, names);
        return near.empty() ? "" : "; did you mean " + std::string(near) + "?";
    }

    void define(const std::vector<Lexeme>& lexemes)
    {
        if (lexemes.size() != 3) {
            error("define", lexemes.size() < 3 ? lexemes[0].at : lexemes[3].at, defineForm);
            return;
        }
        const Lexeme& name = lexemes[1];
        const std::optional<Token> value = resolve(lexemes[2], 2, nullptr);
        if (name.kind != Lexeme::Word || !isName(name.text)) {
            error("define", name.at, "expected a name of letters, digits and _; " + std::string(defineForm));
            return;
        }
        if (isKeyword(name.text)) {
            error("define", name.at, shown(name.text) + " is a keyword and cannot be a name");
            return;
        }
        const auto known = definitions.find(name.text);
        if (known != definitions.end()) {
            const Place& place = known->second.place;
            // Not an error if it is the same line, in a file that is included again.
            if (place.in->file != in->file || place.line != lineNumber)
                error("define", name.at,
                      shown(name.text) + " is already defined at " + shown(place.in->file->name) + ':' +
                          std::to_string(place.line));
            return;
        }
        if (value && value->id != numberToken && value->id != stringToken)
            error("define", value->at, std::string("the value is a number or a string; ") + defineForm);
        // A name with an invalid value counts as defined, so that its uses are not reported too.
        definitions[name.text] = {
            value.value_or(Token{numberToken, 0, {}, {}}), {in, lineNumber, name.at}, !isLineValid};
    }

    void include(const std::vector<Lexeme>& lexemes)
    {
        std::optional<Token> name;
        if (lexemes.size() == 2)
            name = resolve(lexemes[1], 1, nullptr);
        if (!name || name->id != stringToken) {
            error("include", lexemes.size() > 1 ? lexemes[1].at : lexemes[0].at, includeForm);
            isIncludeMissing = true;
            return;
        }
        if (!isLineValid)
            return;
        std::replace(name->text.begin(), name->text.end(), '\\', '/');
        const std::filesystem::path folder = std::filesystem::path(in->file->name).parent_path();
        const SourceFile* file = open(normal(folder / utf8From1252(name->text)), name->at);
        if (!file || !canInclude(*file, name->at)) {
            isIncludeMissing = true;
            return;
        }
        totalText += file->text.size();
        out.inclusions.push_back({file, in, lineNumber, name->at});
        readFileLines(out.inclusions.back());
    }

    /// Returns null after reporting an error if the file cannot be read.
    const SourceFile* open(const std::string& path, const Span& at)
    {
        const auto [known, isNew] = filesByPath.emplace(path, nullptr);
        if (isNew)
            out.included.push_back(path);
        if (known->second)
            return known->second;
        std::string reason;
        if (std::optional<std::string> text = read(path, reason))
            return known->second = &out.files.emplace_back(path, std::move(*text));
        error("include", at, "cannot read " + shown(path) + ": " + reason);
        return nullptr;
    }

    bool canInclude(const SourceFile& file, const Span& at)
    {
        std::string ring = shown(file.name);
        int depth = 1;
        for (const Inclusion* each = in; each; each = each->from, ++depth) {
            ring = shown(each->file->name) + " -> " + ring;
            if (each->file == &file) {
                error("include", at, "files include each other: " + ring);
                return false;
            }
        }
        if (depth > maxIncludeDepth)
            error("include", at,
                  "INCLUDE lines are nested more than " + std::to_string(maxIncludeDepth) + " deep");
        else if (totalText + file.text.size() > maxTextBytes)
            error("include", at,
                  "the script and its included files are larger than " + std::to_string(maxTextBytes >> 20) +
                      " MiB");
        return isLineValid;
    }

    void readUnfinished(std::string_view line, std::size_t start)
    {
        std::vector<Fault> faults;
        const Span at{static_cast<int>(start), static_cast<int>(start) + 1,
                      static_cast<int>(unfinishedMark.size())};
        if (isUnfinished)
            error("syntax", at, "a second unfinished line; there can be only one, at the end");
        isUnfinished = true;
        out.unfinished += lexBytes(line, start + unfinishedMark.size(), faults);
        for (Fault& each : faults)
            error("syntax", each.at, std::move(each.text));
        if (isLineValid && out.unfinished.empty())
            error("syntax", at,
                  "expected bytes after the mark, as two hexadecimal digits each, such as 71 04");
    }

    void warnOfUnused()
    {
        std::vector<std::pair<std::string_view, const Definition*>> unused;
        for (const auto& [name, definition] : definitions)
            if (!definition.isUsed && !definition.place.in->from)
                unused.emplace_back(name, &definition);
        std::sort(unused.begin(), unused.end(),
                  [](const auto& a, const auto& b) { return a.second->place.line < b.second->place.line; });
        for (const auto& [name, definition] : unused)
            report(Diagnostic::Warning, "unused-define", *definition->place.in, definition->place.line,
                   definition->place.at, "nothing uses " + shown(name));
    }

    ParsedScript& out;
    const ReadFile& read;
    std::unordered_map<std::string, const SourceFile*> filesByPath; // null if it could not be read
    std::map<std::string, Definition, std::less<>> definitions;
    std::unordered_set<std::string> reported; // headlines, in included files
    std::size_t totalText = 0;                // bytes; each file counts as often as it is included
    int suggestions = 0;
    bool isUnfinished = false;
    bool isIncludeMissing = false; // its contents, and which names it uses, are unknown

    // The current line.
    const Inclusion* in = nullptr;
    int lineNumber = 0;
    bool isLineValid = true; // so far
};

} // namespace

const Statement* StatementLine::statement() const
{
    return tokens.empty() ? nullptr : statementById(tokens[0].id);
}

bool ParsedScript::hasErrors() const
{
    return std::any_of(diagnostics.begin(), diagnostics.end(),
                       [](const Diagnostic& each) { return each.severity == Diagnostic::Error; });
}

ParsedScript parse(const std::string& path, std::string text, const ReadFile& read)
{
    ParsedScript script;
    Parser(script, read).run(path, std::move(text));
    return script;
}

} // namespace tgx::script_text
