#include "tools/tgx/check/allowances.h"

#include "tools/tgx/check/codes.h"

#include <algorithm>
#include <map>

namespace script_check {

namespace {

constexpr std::string_view blanks = " \t";

struct Allowance {
    const script_text::Inclusion* in;
    int line; // of the comment
    script_text::Span at;
    std::string_view code;
    bool isUsed = false;
};

/// Where a code is allowed: file, line, code.
using Target = std::tuple<std::string_view, int, std::string_view>;

std::string_view skipBlanks(std::string_view text)
{
    return text.substr(std::min(text.find_first_not_of(blanks), text.size()));
}

/// The codes behind "# tgx: allow"; empty for any other line.
std::string_view codesOf(std::string_view line)
{
    std::string_view rest = skipBlanks(line);
    for (const std::string_view word : {"#", "tgx:", "allow"}) {
        rest = skipBlanks(rest);
        if (!rest.starts_with(word))
            return {};
        rest.remove_prefix(word.size());
    }
    return rest.empty() || blanks.find(rest[0]) == std::string_view::npos ? std::string_view() : rest;
}

class AllowanceReader {
public:
    AllowanceReader(std::vector<Allowance>& list, std::map<Target, std::size_t>& targets)
        : allowances(list), byTarget(targets)
    {}

    void read(const script_text::Inclusion& in)
    {
        const script_text::SourceFile& file = *in.file;
        std::vector<std::size_t> waiting; // for the next line that says something
        for (int number = 1; number <= file.lineCount(); ++number) {
            const std::string_view line = file.line(number);
            const std::string_view rest = skipBlanks(line);
            if (const std::string_view codes = codesOf(line); !codes.empty()) {
                take(in, number, line, codes, waiting);
            } else if (!rest.empty() && rest[0] != '#') {
                for (const std::size_t each : waiting)
                    byTarget.try_emplace({file.name, number, allowances[each].code}, each);
                waiting.clear();
            }
        }
    }

private:
    void take(const script_text::Inclusion& in, int number, std::string_view line, std::string_view codes,
              std::vector<std::size_t>& waiting)
    {
        while (!(codes = skipBlanks(codes)).empty()) {
            const std::string_view code = codes.substr(0, codes.find_first_of(blanks));
            const int offset = static_cast<int>(code.data() - line.data());
            waiting.push_back(allowances.size());
            allowances.push_back({&in, number, {offset, offset + 1, static_cast<int>(code.size())}, code});
            codes.remove_prefix(code.size());
        }
    }

    std::vector<Allowance>& allowances;
    std::map<Target, std::size_t>& byTarget;
};

} // namespace

void applyAllowances(const std::deque<Script>& scripts, Findings& findings)
{
    std::vector<Allowance> allowances;
    std::map<Target, std::size_t> byTarget;
    std::set<std::string_view> seen; // a file that several scripts include is looked at once
    for (const Script& script : scripts)
        if (script.isReported && !script.isCompiled)
            for (const script_text::Inclusion& in : script.text.inclusions)
                if (seen.insert(in.file->name).second)
                    AllowanceReader(allowances, byTarget).read(in);

    std::erase_if(findings.all, [&](const script_text::Diagnostic& found) {
        const auto allowed = byTarget.find({found.place.in->file->name, found.place.line, found.code});
        if (allowed == byTarget.end())
            return false;
        allowances[allowed->second].isUsed = true;
        return true;
    });
    const bool isBroken =
        std::any_of(scripts.begin(), scripts.end(), [](const Script& script) { return script.isBroken; });
    for (const Allowance& each : allowances) {
        const script_text::Place place{each.in, each.line, each.at};
        const std::string shown = script_text::shown(each.code);
        if (!codeCalled(each.code)) {
            std::vector<std::string_view> names;
            for (const Code& code : codes())
                names.emplace_back(code.name);
            findings.add({script_text::Diagnostic::Warning, place,
                          "there is no code " + shown + findings.didYouMean(each.code, names),
                          "unknown-code"});
        } else if (!each.isUsed && !isBroken) { // what a broken script would have shows later
            findings.add({script_text::Diagnostic::Warning, place,
                          "nothing to allow: the line behind has no finding " + shown, "unused-allowance"});
        }
    }
}

} // namespace script_check
