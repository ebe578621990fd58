#include "language/check/collect.h"

#include "tgx/script/reader.h"

#include <algorithm>
#include <deque>
#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <utility>

namespace fs = std::filesystem;

namespace script_check {

namespace {

constexpr const char* sourceEnding = ".tgs";
constexpr const char* compiledEnding = ".tgx";
constexpr const char* scriptDirectory = "uig"; // in any case

std::string endingOf(const fs::path& path)
{
    return folded(path.extension().string());
}

bool isScript(const fs::path& path)
{
    const std::string ending = endingOf(path);
    return ending == sourceEnding || ending == compiledEnding;
}

/// The one way to write a path, links as they are: a script that two folders share is one of each.
fs::path whole(const fs::path& path)
{
    std::error_code error;
    const fs::path out = fs::absolute(path, error).lexically_normal();
    return out.has_filename() ? out : out.parent_path();
}

/// The file itself, behind links.
std::string fileOf(const fs::path& path)
{
    std::error_code error;
    return fs::weakly_canonical(path, error).generic_string();
}

fs::path folderOf(const fs::path& file)
{
    const fs::path folder = file.parent_path();
    return folder.empty() ? "." : folder;
}

/// The script directory that the folder lies in or is, else the folder.
fs::path rootOf(const fs::path& folder)
{
    fs::path root = folder;
    for (fs::path each = whole(folder); each.has_relative_path(); each = each.parent_path(), root /= "..")
        if (folded(each.filename().string()) == scriptDirectory)
            return root.lexically_normal().has_filename() ? root.lexically_normal()
                                                          : root.lexically_normal().parent_path();
    return folder;
}

bool isScriptDirectory(const fs::path& folder)
{
    return folded(whole(folder).filename().string()) == scriptDirectory;
}

std::string dataDirectoryOf(const fs::path& root)
{
    if (!isScriptDirectory(root))
        return "";
    const fs::path above = root.lexically_normal().parent_path();
    return above.empty() || root.filename() == "." || root.filename() == ".."
               ? whole(root).parent_path().string()
               : above.string();
}

/// By which the scripts of root ask for it: "sub\\menu.tgx".
std::string nameBelow(const fs::path& root, const fs::path& file)
{
    std::string name =
        whole(file).lexically_relative(whole(root)).replace_extension(compiledEnding).generic_string();
    std::replace(name.begin(), name.end(), '/', '\\');
    return name;
}

struct Found {
    fs::path path; // as messages give it
    bool isReported = false;
    bool isNamed = false; // in the call, as a file
    bool isStdin = false;
    bool isUnreadable = false;
    std::optional<std::string> contents = {}; // once it has been read
};
using FoundFiles = std::map<fs::path, Found>; // by the whole path

class Collector {
public:
    Collector(const script_text::ReadFile& readFile, std::vector<std::string>& unread)
        : read(readFile), problems(unread)
    {}

    void addArgument(const std::string& argument)
    {
        std::error_code error;
        if (argument == "-") {
            Found& found = note("stdin", true);
            found.isNamed = found.isStdin = true;
        } else if (fs::is_directory(argument, error)) {
            addBelow(argument, true);
        } else {
            note(argument, true).isNamed = true;
        }
    }

    /// What the scripts that are there may use.
    void addUsed()
    {
        std::set<fs::path> ofFiles; // folders
        std::set<fs::path> roots;
        for (const auto& [path, each] : files) {
            roots.insert(rootOf(folderOf(each.path)));
            if (each.isNamed)
                ofFiles.insert(folderOf(each.path));
        }
        for (const fs::path& folder : ofFiles)
            addBeside(folder);
        for (const fs::path& root : roots)
            if (isScriptDirectory(root))
                addBelow(root, false);
            else
                addNamedFolders(root);
    }

    std::vector<ScriptFolder> folders()
    {
        std::map<fs::path, ScriptFolder> byRoot;
        for (auto& [path, each] : files) {
            if (isOtherForm(path, each) || !load(each))
                continue;
            const fs::path folder = folderOf(each.path);
            const auto joined = rootsOfNamed.find(whole(folder));
            const fs::path root = joined != rootsOfNamed.end() ? joined->second : rootOf(folder);
            ScriptFolder& out = byRoot[whole(root)];
            if (out.files.empty())
                out.path = root.string();
            out.files.push_back({each.path.string(), *each.contents, isCompiled(each), each.isReported,
                                 nameBelow(root, each.path)});
        }
        std::vector<ScriptFolder> list;
        for (auto& [root, folder] : byRoot)
            list.push_back(std::move(folder));
        return list;
    }

    bool isNamed(const std::string& path) const
    {
        const auto found = files.find(whole(path));
        return found != files.end() && found->second.isNamed;
    }

private:
    Found& note(const fs::path& path, bool isReported)
    {
        Found& found = files.try_emplace(whole(path), Found{path}).first->second;
        found.isReported = found.isReported || isReported;
        return found;
    }

    void addBelow(const fs::path& folder, bool isReported)
    {
        std::vector<fs::path> waiting{folder};
        while (!waiting.empty()) {
            const fs::path at = std::move(waiting.back());
            waiting.pop_back();
            std::error_code error, ignored;
            fs::directory_iterator each(at, error);
            for (const fs::directory_iterator end; !error && each != end; each.increment(error)) {
                const fs::path path = at == "." ? each->path().filename() : each->path();
                if (path.filename().string().starts_with('.'))
                    continue;
                if (each->is_directory(ignored) && !each->is_symlink(ignored))
                    waiting.push_back(path);
                else if (isScript(path) && each->is_regular_file(ignored))
                    note(path, isReported);
            }
            if (error && isReported)
                problems.push_back(at.string() + ": error: cannot read: " + error.message());
        }
    }

    void addBeside(const fs::path& folder)
    {
        std::error_code error, ignored;
        fs::directory_iterator each(folder, error);
        for (const fs::directory_iterator end; !error && each != end; each.increment(error)) {
            // The same name as on the command line: "menu.tgs", not "./menu.tgs".
            const fs::path path = folder == "." ? each->path().filename() : each->path();
            if (isScript(path) && each->is_regular_file(ignored))
                note(path, false);
        }
    }

    /// Folders in root that its scripts name: "sub\\parts.tgx" lies in sub.
    void addNamedFolders(const fs::path& root)
    {
        std::deque<fs::path> waiting{root};
        std::string texts; // of all that belong together so far
        for (; !waiting.empty(); waiting.pop_front()) {
            const fs::path& folder = waiting.front();
            for (auto& [path, each] : files)
                if (path.parent_path() == whole(folder) && load(each))
                    texts += folded(*each.contents);
            std::error_code error, ignored;
            fs::directory_iterator each(folder, error);
            for (const fs::directory_iterator end; !error && each != end; each.increment(error)) {
                if (!each->is_directory(ignored) ||
                    !names(texts, whole(each->path()).lexically_relative(whole(root))))
                    continue;
                const fs::path named = folder == "." ? each->path().filename() : each->path();
                if (rootsOfNamed.try_emplace(whole(named), root).second) {
                    addBeside(named);
                    waiting.push_back(named);
                }
            }
        }
    }

    /// Whether a string in one of the texts begins with that folder.
    static bool names(const std::string& texts, const fs::path& folder)
    {
        std::string name = folded(folder.generic_string());
        for (const char slash : {'/', '\\'}) {
            std::replace(name.begin(), name.end(), '/', slash);
            const std::string sought = name + slash;
            for (std::size_t at = texts.find(sought); at != std::string::npos;
                 at = texts.find(sought, at + 1))
                if (at > 0 && (texts[at - 1] == '"' || texts[at - 1] == static_cast<char>(stringToken)))
                    return true;
        }
        return false;
    }

    /// False when it cannot be read, which is told.
    bool load(Found& found)
    {
        if (found.contents || found.isUnreadable)
            return !found.isUnreadable;
        std::string why;
        found.contents = read(found.isStdin ? "-" : found.path.string(), why);
        found.isUnreadable = !found.contents;
        if (found.isUnreadable && found.isReported)
            problems.push_back(found.path.string() + ": error: cannot read: " + why);
        return !found.isUnreadable;
    }

    /// What bears neither ending is compiled if it holds what no text has.
    static bool isCompiled(const Found& found)
    {
        const std::string ending = endingOf(found.path);
        return ending == compiledEnding ||
               (ending != sourceEnding &&
                found.contents->find(static_cast<char>(endOfLineToken)) != std::string::npos);
    }

    /// Whether the script lies there in its other form too, and that one is to be taken: the text, unless the
    /// compiled form alone is named on the command line.
    bool isOtherForm(const fs::path& path, const Found& found) const
    {
        const bool isText = endingOf(path) != compiledEnding;
        return std::any_of(files.begin(), files.end(), [&](const auto& other) {
            if (other.first.parent_path() != path.parent_path() || other.first.stem() != path.stem() ||
                !isScript(other.first) || !isScript(path) || endingOf(other.first) == endingOf(path))
                return false;
            return !found.isNamed && (!isText || other.second.isNamed);
        });
    }

    const script_text::ReadFile& read;
    std::vector<std::string>& problems;
    FoundFiles files;
    std::map<fs::path, fs::path> rootsOfNamed; // by the whole path of a folder that scripts above it name
};

/// Compiled scripts of the data directory that the folder does not have.
void addFromData(ScriptFolder& folder, const script_text::ReadFile& read)
{
    std::set<std::string> names;
    for (const ScriptFile& each : folder.files)
        names.insert(folded(each.name));
    std::error_code error, ignored;
    fs::directory_iterator each(folder.dataDirectory, error);
    for (const fs::directory_iterator end; !error && each != end; each.increment(error)) {
        if (!isScriptDirectory(each->path()))
            continue;
        fs::recursive_directory_iterator script(each->path(), fs::directory_options::skip_permission_denied,
                                                error);
        for (const fs::recursive_directory_iterator last; !error && script != last; script.increment(error)) {
            const fs::path& path = script->path();
            std::string name = nameBelow(each->path(), path);
            if (endingOf(path) != compiledEnding || !script->is_regular_file(ignored) ||
                !names.insert(folded(name)).second)
                continue;
            std::string why;
            if (std::optional<std::string> bytes = read(path.string(), why))
                folder.files.push_back({path.string(), std::move(*bytes), true, false, std::move(name)});
        }
        return;
    }
}

/// Takes out what another one includes: it is checked there, with the names that it finds there.
void dropIncluded(std::vector<ScriptFolder>& folders, const Collector& collector,
                  const script_text::ReadFile& read)
{
    std::set<std::string> included;
    for (const ScriptFolder& folder : folders)
        for (const ScriptFile& file : folder.files)
            if (!file.isCompiled && file.contents.find("INCLUDE") != std::string::npos)
                for (const std::string& each : script_text::parse(file.path, file.contents, read).included)
                    included.insert(fileOf(each));
    for (ScriptFolder& folder : folders)
        std::erase_if(folder.files, [&](const ScriptFile& file) {
            return included.contains(fileOf(file.path)) && !collector.isNamed(file.path);
        });
}

} // namespace

std::vector<ScriptFolder> collect(const std::vector<std::string>& arguments, const std::string& dataDirectory,
                                  const script_text::ReadFile& read, std::vector<std::string>& problems)
{
    Collector collector(read, problems);
    for (const std::string& argument : arguments)
        collector.addArgument(argument);
    collector.addUsed();
    std::vector<ScriptFolder> folders = collector.folders();
    for (ScriptFolder& folder : folders) {
        folder.dataDirectory = dataDirectory.empty() ? dataDirectoryOf(folder.path) : dataDirectory;
        if (!folder.dataDirectory.empty())
            addFromData(folder, read);
    }
    dropIncluded(folders, collector, read);
    return folders;
}

} // namespace script_check
