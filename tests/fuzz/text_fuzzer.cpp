// Reads the input as a compiled script: the text printed by dump must build to the same bytes without
// diagnostics. And as a script in text form: build must neither crash nor hang, and dumping and building its
// result must give the same bytes again.
//
// Form feeds split the text into files: the script itself, then "1", "2" and so on for INCLUDE.

#include "language/text/emit.h"
#include "language/text/parsed_script.h"
#include "language/text/print.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <string_view>

namespace {

using namespace tgx::script_text;

/// Prints the fault and aborts, so that libFuzzer keeps the input.
[[noreturn]] void fail(const char* what, const std::string& text)
{
    std::fprintf(stderr, "%s:\n%s\n", what, text.c_str());
    std::abort();
}

void requireRoundTrip(std::string_view bytes)
{
    const std::string text = print(bytes);
    const ParsedScript script =
        parse("dump.tgs", text, [](const std::string&, std::string&) { return std::nullopt; });
    if (!script.diagnostics.empty())
        fail(describe(script.diagnostics[0]).c_str(), text);
    if (emit(script).bytes != bytes)
        fail("the dump builds to other bytes", text);
}

void buildText(std::string_view text)
{
    std::map<std::string, std::string> files;
    while (true) {
        const std::size_t end = text.find('\f');
        files[std::to_string(files.size())] = text.substr(0, end);
        if (end == std::string_view::npos)
            break;
        text.remove_prefix(end + 1);
    }
    const auto read = [&](const std::string& path, std::string& reason) {
        const auto found = files.find(path);
        reason = "no such file";
        return found == files.end() ? std::optional<std::string>() : found->second;
    };
    const ParsedScript script = parse("0", files["0"], read);
    for (const Diagnostic& each : script.diagnostics)
        if (describe(each).compare(0, headline(each).size(), headline(each)) != 0)
            fail("a message does not begin with its headline", describe(each, Colour::Yes));
    if (script.hasErrors())
        return;
    const Emitted emitted = emit(script);
    if (emitted.offsets.size() != script.lines.size())
        fail("a line has no offset", sideMap(script, emitted));
    requireRoundTrip(emitted.bytes);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    requireRoundTrip(bytes);
    buildText(bytes);
    return 0;
}
