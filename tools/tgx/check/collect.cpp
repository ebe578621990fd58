#include "tools/tgx/check/collect.h"

#include <algorithm>
#include <filesystem>
#include <set>

namespace fs = std::filesystem;

namespace script_check {

namespace {

constexpr const char* sourceEnding = ".tgs";
constexpr const char* compiledEnding = ".tgx";

std::string endingOf(const fs::path& path)
{
    return folded(path.extension().string());
}

bool isScript(const fs::path& path)
{
    const std::string ending = endingOf(path);
    return ending == sourceEnding || ending == compiledEnding;
}

std::string normal(const fs::path& path)
{
    std::error_code error;
    return fs::weakly_canonical(path, error).generic_string();
}

fs::path folderOf(const fs::path& file)
{
    const fs::path folder = file.parent_path();
    return folder.empty() ? "." : folder;
}

/// By folder, then by file: whether its faults are told.
using Found = std::map<fs::path, std::map<fs::path, bool>>;

void addBelow(const fs::path& folder, Found& found)
{
    std::error_code error;
    fs::recursive_directory_iterator each(folder, fs::directory_options::skip_permission_denied, error);
    for (const fs::recursive_directory_iterator end; !error && each != end; each.increment(error)) {
        const fs::path& path = each->path();
        const bool isHidden = path.filename().string().starts_with('.');
        if (isHidden && each->is_directory(error))
            each.disable_recursion_pending();
        else if (!isHidden && isScript(path) && each->is_regular_file(error))
            found[folderOf(path)][path] = true;
    }
}

/// The other scripts of a folder, which those that are asked for may use.
void addBeside(const fs::path& folder, std::map<fs::path, bool>& files)
{
    std::error_code error;
    fs::directory_iterator each(folder, error);
    for (const fs::directory_iterator end; !error && each != end; each.increment(error)) {
        // The same name as on the command line: "menu.tgs", not "./menu.tgs".
        const fs::path path = folder == "." ? each->path().filename() : each->path();
        if (isScript(path) && each->is_regular_file(error))
            files.try_emplace(path, false);
    }
}

std::string dataDirectoryOf(const fs::path& folder)
{
    std::error_code error;
    const fs::path whole = fs::weakly_canonical(folder, error);
    if (folded(whole.filename().string()) != "uig")
        return "";
    const fs::path above = folder.lexically_normal().parent_path();
    return above.empty() || folder == "." ? whole.parent_path().string() : above.string();
}

/// Whether the script lies there in its other form too, and that one is to be taken: the text, unless the
/// compiled form alone is named on the command line.
bool isOtherForm(const std::map<fs::path, bool>& files, const fs::path& script,
                 const std::set<std::string>& named)
{
    const bool isCompiled = endingOf(script) == compiledEnding;
    return std::any_of(files.begin(), files.end(), [&](const auto& other) {
        if (other.first.stem() != script.stem() || endingOf(other.first) == endingOf(script))
            return false;
        return isCompiled ? !named.contains(normal(script))
                          : named.contains(normal(other.first)) && !named.contains(normal(script));
    });
}

/// Compiled scripts of the data directory that the folder does not have.
void addFromData(ScriptFolder& folder, const script_text::ReadFile& read)
{
    std::set<std::string> names;
    for (const ScriptFile& each : folder.files)
        names.insert(folded(fs::path(each.path).stem().string()));
    std::error_code error;
    fs::directory_iterator each(folder.dataDirectory, error);
    for (const fs::directory_iterator end; !error && each != end; each.increment(error)) {
        if (folded(each->path().filename().string()) != "uig")
            continue;
        fs::directory_iterator script(each->path(), error);
        for (; !error && script != end; script.increment(error)) {
            std::string ignored;
            const fs::path& path = script->path();
            if (endingOf(path) != compiledEnding || !names.insert(folded(path.stem().string())).second)
                continue;
            if (std::optional<std::string> bytes = read(path.string(), ignored))
                folder.files.push_back({path.string(), std::move(*bytes), true, false});
        }
        return;
    }
}

/// Takes out what another one includes: it is checked there, with the names that it finds there.
void dropIncluded(std::vector<ScriptFolder>& folders, const std::set<std::string>& named,
                  const script_text::ReadFile& read)
{
    std::set<std::string> included;
    for (const ScriptFolder& folder : folders)
        for (const ScriptFile& file : folder.files)
            if (!file.isCompiled && file.contents.find("INCLUDE") != std::string::npos)
                for (const std::string& each : script_text::parse(file.path, file.contents, read).included)
                    included.insert(normal(each));
    for (ScriptFolder& folder : folders)
        std::erase_if(folder.files, [&](const ScriptFile& file) {
            const std::string path = normal(file.path);
            return included.contains(path) && !named.contains(path);
        });
}

} // namespace

std::vector<ScriptFolder> collect(const std::vector<std::string>& arguments, const std::string& dataDirectory,
                                  const script_text::ReadFile& read, std::string& reason)
{
    Found found;
    std::set<std::string> named; // on the command line, as files
    std::set<fs::path> ofFiles;
    for (const std::string& argument : arguments) {
        std::error_code error;
        if (fs::is_directory(argument, error)) {
            addBelow(argument, found);
        } else {
            found[folderOf(argument)][argument] = true;
            ofFiles.insert(folderOf(argument));
            named.insert(normal(argument));
        }
    }
    for (const fs::path& folder : ofFiles)
        addBeside(folder, found[folder]);

    std::vector<ScriptFolder> folders;
    for (const auto& [path, files] : found) {
        ScriptFolder& folder = folders.emplace_back();
        folder.path = path.string();
        folder.dataDirectory = dataDirectory.empty() ? dataDirectoryOf(path) : dataDirectory;
        for (const auto& [file, isReported] : files) {
            const bool isCompiled = endingOf(file) == compiledEnding;
            if (isOtherForm(files, file, named))
                continue;
            std::string why;
            std::optional<std::string> contents = read(file.string(), why);
            if (contents) {
                folder.files.push_back({file.string(), std::move(*contents), isCompiled, isReported});
            } else if (isReported) {
                reason = file.string() + ": error: cannot read: " + why;
                return {};
            }
        }
        if (!folder.dataDirectory.empty())
            addFromData(folder, read);
    }
    dropIncluded(folders, named, read);
    return folders;
}

} // namespace script_check
