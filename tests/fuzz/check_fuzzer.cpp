// Checks the input both as a compiled script and as scripts in text form. Checking must neither crash nor
// hang, and each finding must have a known code, a valid place and one line of text.
//
// Form feeds split the text into files: the main script, then "1", "2" and so on, which the others may
// include or call as "1.tgx".

#include "tests/fuzz/findings.h"

#include <cstdint>
#include <map>
#include <string_view>

namespace {

using namespace tgx::script_check;

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
        reason = "no such file";
        return found == texts.end() ? std::optional<std::string>() : found->second;
    };
    requireUsefulFindings(check(files, read, options));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const FuzzDataDirectory directory;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const CheckOptions options = optionsFor(directory);
    const auto noFile = [](const std::string&, std::string&) { return std::nullopt; };
    requireUsefulFindings(check({{"script.tgx", std::string(bytes), true}}, noFile, options));
    checkTexts(bytes, options);
    return 0;
}
