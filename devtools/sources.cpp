#include "devtools/sources.h"

#include "devtools/script_text/emit.h"
#include "devtools/script_text/parsed_script.h"
#include "devtools/script_text/read_file.h"
#include "platform/framework/cstring.h"
#include "platform/system/datadir.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <sstream>
#include <stdexcept>

namespace fs = std::filesystem;

namespace {

constexpr std::string_view scriptFolder = "UIG\\";

std::string lowered(std::string_view text)
{
    std::string result(text);
    for (char& c : result)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c + ('a' - 'A'));
    return result;
}

/// As short as a message can name it from the working directory.
std::string shortest(const fs::path& path)
{
    std::error_code failure;
    const fs::path near = fs::proximate(path, failure);
    return failure || near.begin() == near.end() || *near.begin() == ".." ? path.string() : near.string();
}

/// The files of that folder with that ending, in the order of their names; none when it cannot be read.
std::vector<std::string> filesIn(const std::string& folder, std::string_view ending)
{
    std::vector<std::string> files;
    std::error_code failure;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, failure))
        if (lowered(entry.path().extension().string()) == ending && entry.is_regular_file(failure))
            files.push_back(shortest(entry.path().lexically_normal()));
    std::sort(files.begin(), files.end());
    return files;
}

/// UIG of the data directory as the machine names it, in whatever case; empty when there is none.
std::string scriptFolderPath()
{
    std::error_code failure;
    for (const fs::directory_entry& entry : fs::directory_iterator(dataDirectory(), failure))
        if (lowered(entry.path().filename().string()) == "uig" && entry.is_directory(failure))
            return entry.path().string();
    return "";
}

std::string compiledName(const std::string& textFile)
{
    return fs::path(textFile).stem().string() + ".tgx";
}

bool isOnDisk(const std::string& script)
{
    return findDataFile(std::string(scriptFolder) + script).has_value();
}

std::string placeIn(const std::string& file, int line)
{
    return file + ':' + std::to_string(line);
}

std::string canonical(const std::string& path)
{
    std::error_code failure;
    const fs::path result = fs::weakly_canonical(path, failure);
    return failure ? path : result.string();
}

} // namespace

Sources::Sources(std::vector<std::string> extraFolders) : folders(std::move(extraFolders))
{
    for (const std::string& folder : folders)
        if (!fs::is_directory(folder))
            throw std::runtime_error("no folder of scripts \"" + folder + '"');
}

Sources::~Sources()
{
    for (const std::string& script : inMemory)
        setMemoryFile(std::string(scriptFolder) + script, nullptr);
}

/// The first of each name: a folder that was named stands in front of UIG.
std::vector<std::string> Sources::textFiles() const
{
    std::vector<std::string> found;
    std::set<std::string> names;
    std::vector<std::string> looked = folders;
    if (std::string below = scriptFolderPath(); !below.empty())
        looked.push_back(std::move(below));
    for (const std::string& folder : looked)
        for (std::string& file : filesIn(folder, ".tgs"))
            if (names.insert(lowered(compiledName(file))).second)
                found.push_back(std::move(file));
    return found;
}

bool Sources::build()
{
    faults.clear();
    reports.clear();
    watched.emplace(std::vector<std::string>());
    knownFiles = textFiles();
    compiledFiles = filesIn(scriptFolderPath(), ".tgx");
    for (const std::string& file : compiledFiles)
        watched->add(file);

    std::vector<std::pair<std::string, script_text::ParsedScript>> parsed; // by text file
    std::set<std::string> included;
    const auto read = [&](const std::string& path, std::string& reason) {
        watched->add(path); // before it is read: a change on the way is not missed
        return readIncluded(path, reason);
    };
    for (const std::string& file : knownFiles) {
        std::string reason;
        std::optional<std::string> text = read(file, reason);
        if (!text) {
            faults.push_back(file + ": error: cannot read: " + reason);
            reports.push_back(faults.back() + '\n');
            continue;
        }
        parsed.emplace_back(file, script_text::parse(file, std::move(*text), read));
        for (const std::string& each : parsed.back().second.included)
            included.insert(canonical(each));
    }

    std::vector<Built> built;
    for (const auto& [file, script] : parsed) {
        std::string name = compiledName(file);
        // What others include is a part of them, unless it was compiled by itself once.
        if (included.contains(canonical(file)) && !isOnDisk(name))
            continue;
        for (const script_text::Diagnostic& each : script.diagnostics)
            if (each.severity == script_text::Diagnostic::Error) {
                faults.push_back(script_text::headline(each));
                reports.push_back(script_text::describe(each));
            }
        if (script.hasErrors())
            continue;
        script_text::Emitted emitted = script_text::emit(script);
        Map map;
        for (std::size_t i = 0; i < script.lines.size(); ++i)
            map.push_back({static_cast<unsigned>(emitted.offsets[i]),
                           placeIn(script.lines[i].in->file->name, script.lines[i].number)});
        built.push_back(
            {std::move(name), std::make_shared<const std::string>(std::move(emitted.bytes)), std::move(map)});
    }
    if (!faults.empty())
        return false;
    replace(std::move(built));
    return true;
}

void Sources::replace(std::vector<Built> built)
{
    for (const std::string& script : inMemory)
        setMemoryFile(std::string(scriptFolder) + script, nullptr);
    inMemory.clear();
    maps.clear();
    for (const std::string& file : compiledFiles)
        readSideMap(file);
    for (Built& each : built) {
        setMemoryFile(std::string(scriptFolder) + each.name, std::move(each.bytes));
        maps[lowered(each.name)] = std::move(each.map);
        inMemory.push_back(std::move(each.name));
    }
}

/// "menu.tgx.map" beside menu.tgx. One that is not as `tgx build --map` writes it is no use, and no fault.
void Sources::readSideMap(const std::string& compiled)
{
    const std::string path = compiled + ".map";
    std::string reason;
    watched->add(path);
    const std::optional<std::string> text = readIncluded(path, reason);
    if (!text)
        return;
    Map map;
    std::istringstream lines(*text);
    for (std::string line; std::getline(lines, line);) {
        std::istringstream fields(line);
        Mapped entry{};
        int number = 0;
        std::string file;
        if (!(fields >> entry.offset >> number) || fields.get() != ' ' || !std::getline(fields, file) ||
            (!map.empty() && entry.offset < map.back().offset))
            return;
        entry.place = placeIn(file, number);
        map.push_back(std::move(entry));
    }
    maps[lowered(fs::path(compiled).filename().string())] = std::move(map);
}

bool Sources::haveChanged() const
{
    return !watched || watched->haveChanged() || textFiles() != knownFiles ||
           filesIn(scriptFolderPath(), ".tgx") != compiledFiles;
}

const Sources::Map* Sources::mapOf(const std::string& script) const
{
    const auto found = maps.find(lowered(script));
    return found == maps.end() || found->second.empty() ? nullptr : &found->second;
}

std::string Sources::placeOf(const std::string& script, unsigned offset) const
{
    const Map* map = mapOf(script);
    if (!map)
        return script + ", byte " + std::to_string(offset);
    const auto behind = std::upper_bound(map->begin(), map->end(), offset,
                                         [](unsigned at, const Mapped& each) { return at < each.offset; });
    return behind == map->begin() ? script : std::prev(behind)->place;
}

std::string Sources::placeOfLine(const std::string& script, int line) const
{
    const Map* map = mapOf(script);
    const auto index = static_cast<std::size_t>(line) - 1;
    return map && index < map->size() ? (*map)[index].place : "";
}
