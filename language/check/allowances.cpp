#include "language/check/allowances.h"

#include "language/check/codes.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <tuple>
#include <vector>

namespace tgx::script_check {

namespace {

constexpr std::string_view blanks = " \t";

struct Allowance {
    const script_text::Inclusion* in;
    int line; // of the comment
    script_text::Span at;
    std::string_view code;
    bool isUsed = false;
};

/// A code at a line: file, line, code.
using Target = std::tuple<std::string_view, int, std::string_view>;

std::string_view skipBlanks(std::string_view text)
{
    return text.substr(std::min(text.find_first_not_of(blanks), text.size()));
}

/// Returns the codes after "# tgx: allow", possibly an empty text, or nothing if the line is not an
/// allowance.
std::optional<std::string_view> codesOf(std::string_view line)
{
    std::string_view rest = line;
    for (const std::string_view word : {"#", "tgx:", "allow"}) {
        rest = skipBlanks(rest);
        if (!rest.starts_with(word))
            return std::nullopt;
        rest.remove_prefix(word.size());
    }
    if (!rest.empty() && blanks.find(rest[0]) == std::string_view::npos)
        return std::nullopt;
    return skipBlanks(rest);
}

/// Returns the comment at the end of a line.
std::string_view commentOf(std::string_view line)
{
    bool isInString = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == '\\' && isInString)
            ++i;
        else if (line[i] == '"')
            isInString = !isInString;
        else if (line[i] == '#' && !isInString)
            return line.substr(i);
    }
    return {};
}

class AllowanceReader {
public:
    AllowanceReader(std::vector<Allowance>& list, std::map<Target, std::size_t>& targets, Findings& found)
        : allowances(list), byTarget(targets), findings(found)
    {}

    void read(const script_text::Inclusion& in)
    {
        const script_text::SourceFile& file = *in.file;
        std::vector<std::size_t> waiting; // indices of allowances for the next line with a statement
        for (int number = 1; number <= file.lineCount(); ++number) {
            const std::string_view line = file.line(number);
            const std::string_view rest = skipBlanks(line);
            if (const std::optional<std::string_view> codes = codesOf(line)) {
                if (codes->empty())
                    report(in, number, line, rest, "unknown-code",
                           "expected codes after allow; --explain lists all codes");
                addAllowances(in, number, line, *codes, waiting);
            } else if (!rest.empty() && rest[0] != '#') {
                for (const std::size_t each : waiting)
                    byTarget.try_emplace({file.name, number, allowances[each].code}, each);
                waiting.clear();
                if (const std::string_view comment = commentOf(line); codesOf(comment))
                    report(in, number, line, comment, "unused-allowance",
                           "this allows nothing: an allowance must be on a line of its own, before the line "
                           "that it applies to");
            }
        }
    }

private:
    static script_text::Span spanOf(std::string_view line, std::string_view part)
    {
        const std::string_view before = line.substr(0, static_cast<std::size_t>(part.data() - line.data()));
        const auto characters =
            std::count_if(before.begin(), before.end(), [](char c) { return (c & 0xC0) != 0x80; });
        return {static_cast<int>(before.size()), static_cast<int>(characters) + 1,
                static_cast<int>(part.size())};
    }

    void report(const script_text::Inclusion& in, int number, std::string_view line, std::string_view part,
                const char* code, const char* text)
    {
        findings.add({script_text::Diagnostic::Warning, {&in, number, spanOf(line, part)}, text, code});
    }

    void addAllowances(const script_text::Inclusion& in, int number, std::string_view line,
                       std::string_view codes, std::vector<std::size_t>& waiting)
    {
        while (!(codes = skipBlanks(codes)).empty()) {
            const std::string_view code = codes.substr(0, codes.find_first_of(blanks));
            waiting.push_back(allowances.size());
            allowances.push_back({&in, number, spanOf(line, code), code});
            codes.remove_prefix(code.size());
        }
    }

    std::vector<Allowance>& allowances;
    std::map<Target, std::size_t>& byTarget;
    Findings& findings;
};

/// Decides whether an allowance that silenced nothing can be called useless. It cannot if rules have not run,
/// or if scripts that use the line have not been checked.
class Usefulness {
public:
    Usefulness(const std::deque<Script>& scripts, const CheckOptions& given) : options(given)
    {
        for (const Script& script : scripts) {
            isAllChecked = isAllChecked && !script.isBroken && !script.isUnbalanced;
            hasUnreported = hasUnreported || !script.isReported;
            for (const script_text::Inclusion& in : script.text.inclusions) {
                if (!script.isReported)
                    filesOfUnreported.insert(in.file->name);
                if (!script.subroutines.empty())
                    filesWithSubroutines.insert(in.file->name);
            }
        }
    }

    bool canBeJudged(const Allowance& allowance) const
    {
        constexpr std::string_view needsData[] = {"missing-bitmap", "missing-font", "strip-too-small",
                                                  "text-clipped", "covered"};
        if (allowance.code == "unused-file"
                ? !options.unusedFiles
                : options.dataDirectory.empty() && std::find(std::begin(needsData), std::end(needsData),
                                                             allowance.code) != std::end(needsData))
            return false;
        const std::string_view file = allowance.in->file->name;
        return isAllChecked && !filesOfUnreported.contains(file) &&
               !(hasUnreported && filesWithSubroutines.contains(file));
    }

private:
    const CheckOptions& options;
    bool isAllChecked = true;
    bool hasUnreported = false;
    std::set<std::string_view> filesOfUnreported;
    std::set<std::string_view> filesWithSubroutines; // files with subroutines, which other scripts may run
};

} // namespace

void applyAllowances(const std::deque<Script>& scripts, const CheckOptions& options, Findings& findings)
{
    std::vector<Allowance> allowances;
    std::map<Target, std::size_t> byTarget;
    std::set<std::string_view> seen; // a file that several scripts include is read once
    std::set<Target> buildErrors;
    for (const Script& script : scripts) {
        if (!script.isReported || script.isCompiled)
            continue;
        for (const script_text::Inclusion& in : script.text.inclusions)
            if (seen.insert(in.file->name).second)
                AllowanceReader(allowances, byTarget, findings).read(in);
        for (const script_text::Diagnostic& each : script.text.diagnostics)
            if (each.severity == script_text::Diagnostic::Error)
                buildErrors.insert({each.place.in->file->name, each.place.line, each.code});
    }

    std::erase_if(findings.all, [&](const script_text::Diagnostic& found) {
        const Target target{found.place.in->file->name, found.place.line, found.code};
        return std::find(options.allowed.begin(), options.allowed.end(), found.code) !=
                   options.allowed.end() &&
               !buildErrors.contains(target);
    });
    std::vector<script_text::Diagnostic> refused;
    std::erase_if(findings.all, [&](const script_text::Diagnostic& found) {
        const Target target{found.place.in->file->name, found.place.line, found.code};
        const auto allowed = byTarget.find(target);
        if (allowed == byTarget.end())
            return false;
        Allowance& by = allowances[allowed->second];
        by.isUsed = true;
        if (!buildErrors.contains(target))
            return true;
        refused.push_back(
            {script_text::Diagnostic::Warning,
             {by.in, by.line, by.at},
             script_text::shown(by.code) + " cannot be allowed: the script does not build with this error",
             "unused-allowance"});
        return false;
    });
    for (script_text::Diagnostic& each : refused)
        findings.add(std::move(each));
    const Usefulness usefulness(scripts, options);
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
        } else if (!each.isUsed && usefulness.canBeJudged(each)) {
            findings.add({script_text::Diagnostic::Warning, place,
                          "nothing to allow: the next line has no finding " + shown, "unused-allowance"});
        }
    }
}

} // namespace tgx::script_check
