// Generates scripts from the grammar: bytes choose statements from the vocabulary, with plausible arguments,
// including 0, -1 and the extremes of 16 bits. So nearly every line does something, whereas mutating the
// bytes of a script mostly breaks lines. Each script is built, checked, and played with a few events.

#include "language/text/emit.h"
#include "tests/fuzz/findings.h"
#include "tests/fuzz/play_script.h"
#include "tgx/script/vocabulary.h"

#include <algorithm>
#include <bit>
#include <iterator>
#include <string_view>

using namespace tgx;

namespace {

/// Writes a script in text form until the bytes are used up.
class ScriptWriter {
public:
    explicit ScriptWriter(std::span<const std::uint8_t> choices) : bytes(choices) {}

    std::string write()
    {
        while (!bytes.empty()) {
            if (choose(8) == 0)
                writeSubroutine();
            else if (choose(4) == 0)
                writeLine(*statementByKeyword("SCREEN"), AWnd::WND_SCREEN);
            else
                writeStatement(AWnd::WND_PLAIN);
        }
        return text;
    }

private:
    static constexpr int maxDepth = 6;          // nesting of blocks, less than the interpreter's stack holds
    static constexpr int alwaysNestedDepth = 3; // nesting up to which every window gets a block

    unsigned next()
    {
        if (bytes.empty())
            return 0;
        const unsigned byte = bytes.front();
        bytes = bytes.subspan(1);
        return byte;
    }
    unsigned choose(std::size_t count) { return next() % static_cast<unsigned>(count); }
    template<std::size_t N>
    std::string_view choose(const std::string_view (&from)[N])
    {
        return from[choose(N)];
    }

    void writeSubroutine()
    {
        text += "SUBROUTINE \"" + std::string(choose(subroutines)) + "\"\n";
        writeBlock(AWnd::WND_PLAIN);
    }

    void writeBlock(int type)
    {
        text += "BEGIN\n";
        ++depth;
        for (unsigned count = choose(8); count > 0; --count)
            writeStatement(type);
        --depth;
        text += "END\n";
    }

    /// Writes a statement that usually fits a window of that type.
    void writeStatement(int type)
    {
        const std::span<const Statement> all = vocabulary();
        std::size_t row = choose(all.size());
        while (!isLine(all[row]) || (!all[row].target.fits(type) && choose(16) != 1))
            row = (row + 1) % all.size();
        writeLine(all[row], typeOf(all[row].keyword));
    }

    static bool isLine(const Statement& statement)
    {
        return statement.handler && statement.kind != StatementKind::BlockBegin &&
               statement.kind != StatementKind::BlockEnd;
    }

    /// Returns the type of the window that the statement makes, if attributes depend on it.
    static int typeOf(std::string_view keyword)
    {
        constexpr std::pair<std::string_view, int> types[] = {
            {"BARGRAPH", AWnd::WND_GRAPH},          {"GRAPH", AWnd::WND_GRAPH},
            {"LINEGRAPH", AWnd::WND_GRAPH},         {"BUTTON", AWnd::WND_BUTTON},
            {"CHECKBOX", AWnd::WND_BUTTON},         {"COMBOBOX", AWnd::WND_COMBOBOX},
            {"RADIOBUTTON", AWnd::WND_RADIOBUTTON}, {"LISTBOX", AWnd::WND_LISTBOX},
        };
        for (const auto& [each, type] : types)
            if (each == keyword)
                return type;
        return AWnd::WND_PLAIN;
    }

    void writeLine(const Statement& statement, int type)
    {
        text += statement.keyword;
        const int count = chooseCount(statement);
        for (int token = 1; token < count; ++token)
            text += ' ' + argument(statement, token, token == 1);
        text += '\n';
        const bool opens = statement.kind == StatementKind::Window ||
                           statement.kind == StatementKind::Screen ||
                           statement.kind == StatementKind::Reference;
        if (opens && depth < maxDepth && !bytes.empty() && (depth < alwaysNestedDepth || choose(2) == 0))
            writeBlock(type);
    }

    /// Chooses the number of tokens of the line from those that the statement allows.
    int chooseCount(const Statement& statement)
    {
        constexpr std::uint32_t usual = (1u << 19) - 1; // up to 18 tokens, the longest fixed form
        std::uint32_t allowed = statement.counts.mask & usual;
        const auto skipped = choose(static_cast<std::size_t>(std::popcount(allowed)));
        for (unsigned i = 0; i < skipped; ++i)
            allowed &= allowed - 1;
        const int needed =
            statement.keyword == std::string_view("GOTO") ? 2 : 1; // the name is required by build
        return std::max(std::countr_zero(allowed), needed);
    }

    std::string argument(const Statement& statement, int token, bool isFirst)
    {
        const std::string_view name = argumentName(statement, token);
        switch (argumentKind(statement, token)) {
        case ArgumentKind::String:
            return '"' + std::string(string(name)) + '"';
        case ArgumentKind::Word:
            return std::string(choose(words));
        case ArgumentKind::NumberOrWord:
            // A word follows the number that it belongs to.
            return isFirst || choose(4) != 0 ? number() : std::string(choose(words));
        case ArgumentKind::Number:
            break;
        }
        return number();
    }

    std::string number()
    {
        constexpr int values[] = {0, 1, -1, 2, 3, 5, 8, 10, 20, 40, 60, 100, 160, 32767, -32768, -2};
        constexpr unsigned literal = 16;
        const unsigned which = choose(literal + 4);
        return std::to_string(which < literal ? values[which] : static_cast<int>(next()));
    }

    std::string_view string(std::string_view argumentName)
    {
        if (argumentName.ends_with("itmap\"") || argumentName == "\"backdrop\"")
            return choose(pictures);
        if (argumentName == "\"name\"" || argumentName == "\"window\"")
            return choose(names);
        if (argumentName == "\"subroutine\"")
            return choose(subroutines);
        if (argumentName == "\"script\"")
            return choose(scripts);
        if (argumentName == "\"style\"")
            return choose(styles);
        return choose(texts);
    }

    static constexpr std::string_view words[] = {"LEFT", "CENTRE", "RIGHT"};
    static constexpr std::string_view names[] = {
        "A",      "B", "C",        "D",      "E",         "F",          "G",         "H",
        "static", "",  "TGX_BACK", "TGX_OK", "ComboMenu", "RadioState", "ComboNext", "CheckboxState"};
    static constexpr std::string_view pictures[] = {"a.bmp", "s.bmp", "s.bmp", "", "none.bmp"};
    static constexpr std::string_view subroutines[] = {"S", "T", "U"};
    static constexpr std::string_view scripts[] = {"script.tgx", "141", "none.tgx", ""};
    static constexpr std::string_view styles[] = {"", "bold #ff0000", "italic shadow", "#12"};
    static constexpr std::string_view texts[] = {
        "",      "a",    "some words that go on", "two\\\\nlines", "ICON0", "ICON1F2", "ICON", "-5",
        "a.bmp", "\\xE9"};

    std::span<const std::uint8_t> bytes;
    std::string text;
    int depth = 0;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const FuzzDataDirectory directory;
    constexpr std::size_t eventBytes = 24;
    const std::span bytes(data, size);
    const auto events = bytes.last(std::min(size, eventBytes));
    const std::string text = ScriptWriter(bytes).write();

    const auto noFile = [](const std::string&, std::string&) { return std::nullopt; };
    const tgx::script_text::ParsedScript parsed = tgx::script_text::parse("script.tgs", text, noFile);
    if (parsed.hasErrors())
        fail("a generated script does not build", tgx::script_text::describe(parsed.diagnostics[0]) + text);
    // A script with another name is not a main script, where subroutines would be an error.
    const char* const name = size % 2 == 0 ? "script.tgs" : "panels.tgs";
    requireUsefulFindings(tgx::script_check::check({{name, text, false}}, noFile, optionsFor(directory)));
    setDataDirectory(directory.path.string());
    const std::string compiled = tgx::script_text::emit(parsed).bytes;
    playScript({reinterpret_cast<const std::uint8_t*>(compiled.data()), compiled.size()}, events);
    return 0;
}
