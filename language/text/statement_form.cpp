#include "language/text/statement_form.h"

#include "tgx/script/reader.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <numeric>
#include <utility>

namespace tgx::script_text {

namespace {

std::string upper(std::string_view word)
{
    std::string out(word);
    std::transform(out.begin(), out.end(), out.begin(), [](unsigned char c) { return std::toupper(c); });
    return out;
}

constexpr std::size_t maxCompared = 40; // letters of a word; no keyword is longer

/// Returns how many letters must be changed, inserted, removed or swapped with a neighbour to turn a into b.
/// Both have at most maxCompared letters.
std::size_t editDistance(std::string_view a, std::string_view b)
{
    using Row = std::array<std::size_t, maxCompared + 1>;
    Row before{}, above{}, row{};
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 1; i <= a.size(); ++i) {
        before = std::exchange(above, row);
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            row[j] = std::min({above[j - 1] + (a[i - 1] != b[j - 1]), above[j] + 1, row[j - 1] + 1});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                row[j] = std::min(row[j], before[j - 2] + 1);
        }
    }
    return row[b.size()];
}

const char* nameOf(ArgumentKind kind)
{
    switch (kind) {
    case ArgumentKind::String:
        return "a string";
    case ArgumentKind::Word:
        return "a word";
    case ArgumentKind::NumberOrWord:
        return "a number or a word";
    default:
        return "a number";
    }
}

bool fits(ArgumentKind kind, int id)
{
    const Statement* word = statementById(id);
    const bool isWord = word && word->kind == StatementKind::ArgumentWord;
    switch (kind) {
    case ArgumentKind::String:
        return id == stringToken;
    case ArgumentKind::Word:
        return isWord;
    case ArgumentKind::NumberOrWord:
        return isWord || id == numberToken;
    default:
        return id == numberToken;
    }
}

/// Returns whether a line may have this many tokens. Unlike the toolkit, rejects a GOTO without a name, which
/// does nothing.
bool allows(const Statement& statement, int tokens)
{
    return statement.counts.allow(tokens) && (tokens > 1 || std::string_view(statement.keyword) != "GOTO");
}

/// Returns the form's word for that argument, or an empty text after the last one.
std::string_view formWord(std::string_view form, int argument)
{
    for (; argument > 1 && !form.empty(); --argument)
        form.remove_prefix(std::min(form.find(' '), form.size() - 1) + 1);
    return form.substr(0, form.find(' '));
}

} // namespace

std::string expectedForm(const Statement& statement)
{
    std::string out = statement.keyword;
    std::string_view form = statement.form;
    int open = 0;
    for (int argument = 1; !form.empty(); ++argument) {
        const std::string_view word = form.substr(0, form.find(' '));
        form.remove_prefix(std::min(word.size() + 1, form.size()));
        // If the line may end before this argument, it and those after it are optional.
        const bool isOptional = word != "..." && allows(statement, argument);
        out += isOptional ? " [" : " ";
        open += isOptional;
        out += word;
    }
    return out.append(static_cast<std::size_t>(open), ']');
}

std::string allowedArguments(const TokenCounts& counts)
{
    std::vector<int> each;
    for (int tokens = 1; tokens <= maxLineTokens; ++tokens)
        if (counts.allow(tokens))
            each.push_back(tokens - 1);
    if (each.size() > 1 && each.back() == maxLineTokens - 1)
        return std::to_string(each.front()) + " or more";
    std::string out;
    for (std::size_t i = 0; i < each.size(); ++i)
        out += (i == 0 ? "" : i + 1 == each.size() ? " or " : ", ") + std::to_string(each[i]);
    return out == "0" ? "no" : out;
}

std::vector<LineFault> lineFaults(const std::vector<Token>& tokens)
{
    if (tokens.empty())
        return {};
    const Statement* statement = statementById(tokens[0].id);
    if (!statement || statement->kind == StatementKind::ArgumentWord)
        return {{0, "no statement begins like this; expected a keyword", "unknown-keyword"}};
    const int count = static_cast<int>(tokens.size());
    if (count > maxLineTokens)
        return {{static_cast<std::size_t>(maxLineTokens),
                 "a line has at most " + std::to_string(maxLineTokens - 1) + " arguments, this one has " +
                     std::to_string(count - 1),
                 "too-many-arguments"}};
    if (!statement->counts.allow(count)) {
        const std::string allowed = allowedArguments(statement->counts);
        return {{0,
                 std::string(statement->keyword) + " takes " + allowed +
                     (allowed == "1" ? " argument" : " arguments") + ", this line has " +
                     std::to_string(count - 1) + "; expected: " + expectedForm(*statement),
                 "argument-count"}};
    }
    if (!allows(*statement, count))
        return {{0, std::string(statement->keyword) + " needs a name; expected: " + expectedForm(*statement),
                 "argument-count"}};
    std::vector<LineFault> faults;
    for (int i = 1; i < count; ++i) {
        const ArgumentKind kind = argumentKind(*statement, i);
        if (!fits(kind, tokens[static_cast<std::size_t>(i)].id))
            faults.push_back({static_cast<std::size_t>(i),
                              std::string("expected ") +
                                  (formWord(statement->form, i) == "flag" ? "0 or 1" : nameOf(kind)) +
                                  " here: " + expectedForm(*statement),
                              "argument-kind"});
    }
    return faults;
}

std::string_view nearest(std::string_view word, const std::vector<std::string_view>& names)
{
    const std::string wanted = upper(word.substr(0, maxCompared));
    std::size_t least = std::max<std::size_t>(2, wanted.size() / 3) + 1;
    std::string_view best;
    for (std::string_view name : names) {
        const std::string other = upper(name.substr(0, maxCompared));
        if (std::max(wanted.size(), other.size()) - std::min(wanted.size(), other.size()) >= least)
            continue; // the lengths differ too much
        const std::size_t distance = editDistance(wanted, other);
        if (distance < least) {
            least = distance;
            best = name;
        }
    }
    return best;
}

} // namespace tgx::script_text
