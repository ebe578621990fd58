// Any bytes are a compiled script, and any bytes are scripts in text form: checking them neither crashes nor
// runs without end, and each finding has a code that is known, a place that can be shown, and one line of
// text.
//
// A form feed divides the text into files: the main script, then "1", "2" and so on, which the others may
// include, and call as "1.tgx".

#include "tests/fuzz/data_directory.h"
#include "tools/tgx/check/check.h"
#include "tools/tgx/check/codes.h"
#include "tools/tgx/check/output.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <string_view>

namespace {

using namespace script_check;

/// A crash, so that libFuzzer keeps the input.
[[noreturn]] void fail(const char* what, const std::string& text)
{
    std::fprintf(stderr, "%s:\n%s\n", what, text.c_str());
    std::abort();
}

/// Whether an editor can show it.
bool isIn(const script_text::Place& place)
{
    return place.line >= 1 && place.line <= place.in->file->lineCount() && place.at.column >= 1 &&
           place.at.length >= 0;
}

void demandUsefulFindings(const CheckReport& report)
{
    std::vector<const script_text::Diagnostic*> findings;
    for (const script_text::Diagnostic& each : report.findings) {
        const std::string text = asText(each, script_text::Colour::No);
        if (!codeCalled(each.code))
            fail("a code that the table does not have", text);
        if (each.text.empty() || each.text.find('\n') != std::string::npos)
            fail("a text that is no line", text);
        if (!isIn(each.place))
            fail("a place that is none", text);
        findings.push_back(&each);
    }
    const std::string text = asJson(findings);
    const nlohmann::json json = nlohmann::json::parse(text, nullptr, false); // false: no exceptions
    if (!json.is_array() || json.size() != findings.size())
        fail("no JSON array of the findings", text);
}

CheckOptions optionsFor(const FuzzDataDirectory& directory)
{
    CheckOptions options;
    options.dataDirectory = directory.path.string();
    // A small part of what a game allows: this build is slow.
    options.scriptLines = 3000;
    options.scriptWork = 2'000'000;
    return options;
}

void checkTexts(std::string_view text, const CheckOptions& options)
{
    std::map<std::string, std::string> texts;
    std::vector<ScriptFile> files;
    while (true) {
        const std::size_t end = text.find('\f');
        const std::string name = std::to_string(files.size());
        texts[name] = text.substr(0, end);
        files.push_back({files.empty() ? "script.tgs" : name + ".tgs", texts[name], false});
        if (end == std::string_view::npos)
            break;
        text.remove_prefix(end + 1);
    }
    const auto read = [&](const std::string& path, std::string& reason) {
        const auto found = texts.find(path);
        reason = "there is none";
        return found == texts.end() ? std::optional<std::string>() : found->second;
    };
    demandUsefulFindings(check(files, read, options));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const FuzzDataDirectory directory;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const CheckOptions options = optionsFor(directory);
    const auto nothing = [](const std::string&, std::string&) { return std::nullopt; };
    demandUsefulFindings(check({{"script.tgx", std::string(bytes), true}}, nothing, options));
    checkTexts(bytes, options);
    return 0;
}
