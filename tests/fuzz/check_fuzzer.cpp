// Any bytes are a compiled script, and any bytes are scripts in text form: checking them neither crashes nor
// runs without end, and each finding has a code that is known, a place that can be shown, and one line of
// text.
//
// A form feed divides the text into files: the main script, then "1", "2" and so on, which the others may
// include, and call as "1.tgx".

#include "tests/fuzz/findings.h"

#include <cstdint>
#include <map>
#include <string_view>

namespace {

using namespace script_check;

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
