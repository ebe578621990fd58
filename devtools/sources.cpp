#include "devtools/sources.h"

#include "language/text/emit.h"
#include "language/text/parsed_script.h"
#include "language/text/read_file.h"
#include "language/text/text_files.h"
#include "platform/framework/cfile.h"
#include "platform/framework/cstring.h"
#include "platform/framework/datadir.h"
#include "platform/framework/text.h"

#include <algorithm>
#include <deque>
#include <filesystem>
#include <set>

namespace fs = std::filesystem;

namespace tgx {

namespace {

constexpr std::string_view scriptFolder = "UIG\\";

bool isOnDisk(const std::string& script)
{
    return findDataFile(std::string(scriptFolder) + script).has_value();
}

std::string canonical(const std::string& path)
{
    std::error_code failure;
    const fs::path result = fs::weakly_canonical(path, failure);
    return failure ? path : result.string();
}

} // namespace

Sources::Sources(std::vector<std::string> extraFolders, std::string main)
    : folders(std::move(extraFolders)), mainScript(std::move(main))
{}

Sources::~Sources()
{
    for (const auto& [key, script] : built)
        setMemoryFile(std::string(scriptFolder) + script.name, nullptr);
}

/// Returns the text files, the first one of each name: the named folders take precedence over UIG.
std::vector<std::string> Sources::textFiles() const
{
    std::vector<std::string> found;
    std::set<std::string> names;
    std::vector<std::string> looked = folders;
    if (std::string below = script_text::scriptFolder(); !below.empty())
        looked.push_back(std::move(below));
    for (const std::string& folder : looked)
        for (std::string& file : script_text::filesIn(folder, ".tgs"))
            if (names.insert(lowercased(script_text::compiledName(file))).second)
                found.push_back(std::move(file));
    return found;
}

void Sources::fault(std::string headline, std::string report)
{
    reports.push_back(report.empty() ? headline + '\n' : std::move(report));
    faults.push_back(std::move(headline));
}

bool Sources::build()
{
    faults.clear();
    reports.clear();
    watched.emplace(std::vector<std::string>());
    for (const std::string& folder : folders) {
        std::error_code failure;
        if (!fs::is_directory(folder, failure))
            fault("no folder of scripts " + folder);
    }
    knownFiles = allFiles();
    const bool hasNewTexts = replace(compileTexts());
    const bool hasNewCompiled = lookAtCompiled();
    return hasNewTexts || hasNewCompiled;
}

Sources::Scripts Sources::compileTexts()
{
    std::deque<std::pair<std::string, script_text::ParsedScript>> parsed; // by text file
    std::set<std::string> included;
    Scripts fresh;
    const auto keepLast = [&](const std::string& name) {
        if (const auto last = built.find(lowercased(name)); last != built.end())
            fresh.insert(*last);
    };
    const auto read = [&](const std::string& path, std::string& reason) {
        watched->add(path); // before it is read, so that no change is missed
        return readIncluded(path, reason);
    };
    for (const std::string& file : textFiles()) {
        std::string reason;
        std::optional<std::string> text = read(file, reason);
        if (!text) {
            fault(file + ": error: cannot read: " + reason);
            keepLast(script_text::compiledName(file));
            continue;
        }
        parsed.emplace_back(file, script_text::parse(file, std::move(*text), read));
        for (const std::string& each : parsed.back().second.included)
            included.insert(canonical(each));
    }
    for (const auto& [file, script] : parsed) {
        std::string name = script_text::compiledName(file);
        // A file that others include is a part of them, unless it has also been compiled by itself.
        if (included.contains(canonical(file)) && !isOnDisk(name))
            continue;
        for (const script_text::Diagnostic& each : script.diagnostics)
            if (each.severity == script_text::Diagnostic::Error)
                fault(script_text::headline(each), script_text::describe(each));
        // An editor may empty a file before it writes it.
        if (!script.hasErrors() && script.lines.empty() && built.contains(lowercased(name)))
            fault(file + ": error: there is no statement in it any more");
        else if (!script.hasErrors()) {
            script_text::Emitted emitted = script_text::emit(script);
            ScriptLines places(script_text::sideMap(script, emitted));
            std::string key = lowercased(name);
            fresh[std::move(key)] = {std::move(name),
                                     std::make_shared<const std::string>(std::move(emitted.bytes)),
                                     std::move(places)};
            continue;
        }
        keepLast(name);
    }
    const std::string mainKey = lowercased(mainScript);
    if (built.contains(mainKey) && !fresh.contains(mainKey) && !isOnDisk(mainScript)) {
        fault("the text of " + mainScript + " is gone; the interface stays until it is back");
        keepLast(mainScript);
    }
    return fresh;
}

std::vector<Sources::Script> Sources::scripts() const
{
    std::vector<Script> all;
    for (const auto& [key, script] : built)
        all.push_back({script.name, script.bytes});
    for (const std::string& file : script_text::filesIn(script_text::scriptFolder(), ".tgx")) {
        std::string name = fs::path(file).filename().string();
        CFile compiledFile;
        if (!isFromText(name) && compiledFile.Open((std::string(scriptFolder) + name).c_str()))
            all.push_back({std::move(name), std::make_shared<const std::string>(compiledFile.bytes())});
    }
    return all;
}

/// Replaces the compiled scripts. Returns whether their bytes differ; maps alone may differ when comments
/// have moved.
bool Sources::replace(Scripts fresh)
{
    bool isChanged = fresh.size() != built.size();
    for (const auto& [key, script] : fresh) {
        const auto last = built.find(key);
        isChanged = isChanged || last == built.end() || *last->second.bytes != *script.bytes;
    }
    for (const auto& [key, script] : built)
        setMemoryFile(std::string(scriptFolder) + script.name, nullptr);
    built = std::move(fresh);
    for (const auto& [key, script] : built)
        setMemoryFile(std::string(scriptFolder) + script.name, script.bytes);
    return isChanged;
}

/// Returns whether a compiled file has changed that no text replaces.
bool Sources::lookAtCompiled()
{
    Times fresh;
    for (const std::string& file : script_text::filesIn(script_text::scriptFolder(), ".tgx")) {
        watched->add(file);
        watched->add(file + ".map");
        std::error_code failure;
        const fs::file_time_type time = fs::last_write_time(file, failure);
        std::string key = lowercased(fs::path(file).filename().string());
        if (!failure && !built.contains(key))
            fresh[std::move(key)] = time;
    }
    lines.clear();
    const bool isChanged = fresh != compiled;
    compiled = std::move(fresh);
    return isChanged;
}

std::vector<std::string> Sources::allFiles() const
{
    std::vector<std::string> files = textFiles();
    for (std::string& file : script_text::filesIn(script_text::scriptFolder(), ".tgx"))
        files.push_back(std::move(file));
    return files;
}

bool Sources::haveChanged() const
{
    return !watched || watched->haveChanged() || allFiles() != knownFiles;
}

bool Sources::isFromText(const std::string& script) const
{
    return built.contains(lowercased(script));
}

std::string Sources::placeOf(const std::string& script, unsigned offset) const
{
    const auto text = built.find(lowercased(script));
    const ScriptLines& found = text == built.end() ? lines.of(script) : text->second.lines;
    const std::string place = found.placeOf(offset);
    return place.empty() ? script + ", byte " + std::to_string(offset) : place;
}

} // namespace tgx
