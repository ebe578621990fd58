#include "language/check/collect.h"

#include "platform/framework/text.h"
#include "tgx/script/reader.h"

#include <algorithm>
#include <deque>
#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <utility>

namespace fs = std::filesystem;

namespace tgx::script_check {

namespace {

constexpr const char* sourceEnding = ".tgs";
constexpr const char* compiledEnding = ".tgx";
constexpr const char* scriptDirectory = "uig"; // compared without case

std::string endingOf(const fs::path& path)
{
    return lowercased(path.extension().string());
}

bool isScript(const fs::path& path)
{
    const std::string ending = endingOf(path);
    return ending == sourceEnding || ending == compiledEnding;
}

/// Returns the absolute, normalized path. Does not resolve links: a script that is linked into two folders
/// belongs to both.
fs::path normalized(const fs::path& path)
{
    std::error_code error;
    const fs::path out = fs::absolute(path, error).lexically_normal();
    return out.has_filename() ? out : out.parent_path();
}

/// Returns the path of the file itself, with links resolved.
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

/// Returns the script directory (UIG) that is or contains the folder, or else the folder.
fs::path rootOf(const fs::path& folder)
{
    fs::path root = folder;
    for (fs::path each = normalized(folder); each.has_relative_path();
         each = each.parent_path(), root /= "..")
        if (lowercased(each.filename().string()) == scriptDirectory)
            return root.lexically_normal().has_filename() ? root.lexically_normal()
                                                          : root.lexically_normal().parent_path();
    return folder;
}

bool isScriptDirectory(const fs::path& folder)
{
    return lowercased(normalized(folder).filename().string()) == scriptDirectory;
}

std::string dataDirectoryOf(const fs::path& root)
{
    if (!isScriptDirectory(root))
        return "";
    const fs::path above = root.lexically_normal().parent_path();
    return above.empty() || root.filename() == "." || root.filename() == ".."
               ? normalized(root).parent_path().string()
               : above.string();
}

/// Returns the name by which scripts of root refer to the file, such as "sub\\menu.tgx".
std::string nameBelow(const fs::path& root, const fs::path& file)
{
    std::string name = normalized(file)
                           .lexically_relative(normalized(root))
                           .replace_extension(compiledEnding)
                           .generic_string();
    std::replace(name.begin(), name.end(), '/', '\\');
    return name;
}

struct Found {
    fs::path path; // as in messages
    bool isReported = false;
    bool isNamed = false; // in the arguments, as a file
    bool isStdin = false;
    bool isUnreadable = false;
    std::optional<std::string> contents = {}; // empty until it has been read
};
using FoundFiles = std::map<fs::path, Found>; // by normalized path

class Collector {
public:
    Collector(const script_text::ReadFile& readFile, std::vector<std::string>& unread)
        : read(readFile), problems(unread)
    {}

    void addArgument(const std::string& argument)
    {
        std::error_code error;
        if (argument == "-") {
            Found& found = addFile("stdin", true);
            found.isNamed = found.isStdin = true;
        } else if (fs::is_directory(argument, error)) {
            addFolder(argument, true);
        } else {
            addFile(argument, true).isNamed = true;
        }
    }

    /// Adds the scripts that those found so far may use.
    void addUsed()
    {
        std::set<fs::path> ofFiles; // folders of files named in the arguments
        std::set<fs::path> roots;
        for (const auto& [path, each] : files) {
            roots.insert(rootOf(folderOf(each.path)));
            if (each.isNamed)
                ofFiles.insert(folderOf(each.path));
        }
        for (const fs::path& folder : ofFiles)
            addSiblings(folder);
        for (const fs::path& root : roots)
            if (isScriptDirectory(root))
                addFolder(root, false);
            else
                addNamedFolders(root);
    }

    std::vector<ScriptFolder> folders()
    {
        std::map<fs::path, ScriptFolder> byRoot;
        for (auto& [path, each] : files) {
            if (isReplacedByOtherForm(path, each) || !load(each))
                continue;
            const fs::path folder = folderOf(each.path);
            const auto joined = rootsOfNamedFolders.find(normalized(folder));
            const fs::path root = joined != rootsOfNamedFolders.end() ? joined->second : rootOf(folder);
            ScriptFolder& out = byRoot[normalized(root)];
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
        const auto found = files.find(normalized(path));
        return found != files.end() && found->second.isNamed;
    }

private:
    Found& addFile(const fs::path& path, bool isReported)
    {
        Found& found = files.try_emplace(normalized(path), Found{path}).first->second;
        found.isReported = found.isReported || isReported;
        return found;
    }

    void addFolder(const fs::path& folder, bool isReported)
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
                    addFile(path, isReported);
            }
            if (error && isReported)
                problems.push_back(at.string() + ": error: cannot read: " + error.message());
        }
    }

    void addSiblings(const fs::path& folder)
    {
        std::error_code error, ignored;
        fs::directory_iterator each(folder, error);
        for (const fs::directory_iterator end; !error && each != end; each.increment(error)) {
            // As on the command line: "menu.tgs", not "./menu.tgs".
            const fs::path path = folder == "." ? each->path().filename() : each->path();
            if (isScript(path) && each->is_regular_file(ignored))
                addFile(path, false);
        }
    }

    /// Adds the subfolders of root that its scripts name, such as sub in "sub\\parts.tgx".
    void addNamedFolders(const fs::path& root)
    {
        std::deque<fs::path> waiting{root};
        std::string texts; // contents of all scripts that belong together so far
        for (; !waiting.empty(); waiting.pop_front()) {
            const fs::path& folder = waiting.front();
            for (auto& [path, each] : files)
                if (path.parent_path() == normalized(folder) && load(each))
                    texts += lowercased(*each.contents);
            std::error_code error, ignored;
            fs::directory_iterator each(folder, error);
            for (const fs::directory_iterator end; !error && each != end; each.increment(error)) {
                if (!each->is_directory(ignored) ||
                    !mentionsFolder(texts, normalized(each->path()).lexically_relative(normalized(root))))
                    continue;
                const fs::path named = folder == "." ? each->path().filename() : each->path();
                if (rootsOfNamedFolders.try_emplace(normalized(named), root).second) {
                    addSiblings(named);
                    waiting.push_back(named);
                }
            }
        }
    }

    /// Returns whether a string in the texts begins with that folder.
    static bool mentionsFolder(const std::string& texts, const fs::path& folder)
    {
        std::string name = lowercased(folder.generic_string());
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

    /// Reads the file once. Returns false if it cannot be read, which is added to the problems.
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

    /// Returns whether the script is compiled. A file with neither extension is compiled if it contains a
    /// byte that no text contains.
    static bool isCompiled(const Found& found)
    {
        const std::string ending = endingOf(found.path);
        return ending == compiledEnding ||
               (ending != sourceEnding &&
                found.contents->find(static_cast<char>(endOfLineToken)) != std::string::npos);
    }

    /// Returns whether the script's other form is in the same folder and is used instead. The text form is
    /// preferred, unless only the compiled form is named on the command line.
    bool isReplacedByOtherForm(const fs::path& path, const Found& found) const
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
    std::map<fs::path, fs::path> rootsOfNamedFolders; // by normalized path of the named folder
};

/// Adds compiled scripts of the data directory that the folder does not have.
void addFromData(ScriptFolder& folder, const script_text::ReadFile& read)
{
    std::set<std::string> names;
    for (const ScriptFile& each : folder.files)
        names.insert(lowercased(each.name));
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
                !names.insert(lowercased(name)).second)
                continue;
            std::string why;
            if (std::optional<std::string> bytes = read(path.string(), why))
                folder.files.push_back({path.string(), std::move(*bytes), true, false, std::move(name)});
        }
        return;
    }
}

/// Removes texts that other scripts include: they are checked as part of those, with the names defined there.
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

} // namespace tgx::script_check
