#include "platform/framework/datadir.h"

#include "platform/framework/out_of_memory.h"
#include "platform/framework/text.h"

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <dirent.h>
#include <filesystem>
#include <map>
#include <memory>
#include <sys/stat.h>
#include <unordered_map>
#include <vector>

namespace {

/// Returns the folder of the executable, or an empty string if it is unknown.
std::string executableFolder()
{
    std::error_code failure;
    return std::filesystem::read_symlink("/proc/self/exe", failure).parent_path().string();
}

/// Returns the folders to search while no data directory is set.
std::vector<std::string> defaultRoots()
{
    std::vector<std::string> folders{"."};
    if (std::string beside = executableFolder(); !beside.empty())
        folders.push_back(std::move(beside));
    return folders;
}

std::vector<std::string>& roots()
{
    static auto& folders = *new std::vector<std::string>(defaultRoots());
    return folders;
}

bool hasDriveLetter(std::string_view name)
{
    return name.size() >= 2 && name[1] == ':' &&
           ((name[0] >= 'A' && name[0] <= 'Z') || (name[0] >= 'a' && name[0] <= 'z'));
}

/// Splits a name into its components. Returns nothing if the name could lead out of the data directory.
std::optional<std::vector<std::string>> splitSafely(std::string_view name)
{
    if (name.empty() || name.find('\0') != std::string_view::npos || hasDriveLetter(name))
        return std::nullopt;
    if (name.front() == '/' || name.front() == '\\')
        return std::nullopt;
    std::vector<std::string> components;
    while (!name.empty()) {
        const std::size_t slash = name.find_first_of("/\\");
        const std::string_view component = name.substr(0, slash);
        name.remove_prefix(slash == std::string_view::npos ? name.size() : slash + 1);
        if (component == "..")
            return std::nullopt;
        if (!component.empty() && component != ".")
            components.emplace_back(component);
    }
    if (components.empty())
        return std::nullopt;
    return components;
}

/// The names in a folder, by their lower-case form. Of names that differ only in case, it has the first in
/// byte order.
struct Listing {
    dev_t device = 0;
    ino_t inode = 0;
    timespec changed = {};
    std::unordered_map<std::string, std::string> names;

    bool isOf(const struct stat& status) const
    {
        return device == status.st_dev && inode == status.st_ino && changed.tv_sec == status.st_mtim.tv_sec &&
               changed.tv_nsec == status.st_mtim.tv_nsec;
    }
};

/// Returns whether the last change of a folder is old enough to cache its listing. A folder that has just
/// changed can change again with the same time stamp.
bool isSettled(const timespec& changed)
{
    timespec now;
    ::clock_gettime(CLOCK_REALTIME, &now);
    return std::difftime(now.tv_sec, changed.tv_sec) >= 2;
}

/// Returns the listing of a folder. Listings are cached until their folder changes, so that looking up a
/// missing file, or a name in another case, does not read the folder each time.
std::shared_ptr<const Listing> listingOf(const std::string& folder)
{
    static auto& listings = *new std::map<std::string, std::shared_ptr<const Listing>>;
    constexpr std::size_t maxListings = 256; // limited, because a script can name any number of folders

    struct stat status;
    if (::stat(folder.c_str(), &status) != 0 || !S_ISDIR(status.st_mode))
        return nullptr;
    if (const auto found = listings.find(folder); found != listings.end()) {
        if (found->second->isOf(status))
            return found->second;
        listings.erase(found);
    }
    const AllocationWatch memory;
    DIR* directory = ::opendir(folder.c_str());
    memory.check();
    if (!directory)
        return nullptr;
    auto listing = std::make_shared<Listing>();
    listing->device = status.st_dev;
    listing->inode = status.st_ino;
    listing->changed = status.st_mtim;
    while (const dirent* entry = ::readdir(directory)) {
        const auto [known, isNew] = listing->names.try_emplace(tgx::lowercased(entry->d_name), entry->d_name);
        if (!isNew && entry->d_name < known->second)
            known->second = entry->d_name;
    }
    ::closedir(directory);
    if (isSettled(status.st_mtim)) {
        if (listings.size() >= maxListings)
            listings.clear();
        listings.emplace(folder, listing);
    }
    return listing;
}

/// Returns the path with all links resolved, or an empty string if it does not exist.
std::string canonical(const std::string& path)
{
    const AllocationWatch memory;
    const std::unique_ptr<char, decltype(&std::free)> resolved(::realpath(path.c_str(), nullptr), &std::free);
    memory.check();
    return resolved ? resolved.get() : "";
}

bool isBelow(const std::string& path, const std::string& folder)
{
    return folder == "/" || (path.size() > folder.size() && path.compare(0, folder.size(), folder) == 0 &&
                             path[folder.size()] == '/');
}

/// Appends a folder in path to it. Returns false if there is none of that name.
bool enterFolder(std::string& path, const std::string& name)
{
    const std::shared_ptr<const Listing> listing = listingOf(path);
    if (!listing)
        return false;
    const auto match = listing->names.find(tgx::lowercased(name));
    if (match == listing->names.end())
        return false;
    path += '/' + match->second;
    return listingOf(path) != nullptr;
}

/// Returns the full names of the folders that are searched, each once, with below appended.
std::string namesOfRoots(const std::string& below)
{
    std::string names;
    std::string before;
    for (const std::string& root : roots()) {
        std::string folder = canonical(root);
        if (folder.empty())
            folder = std::filesystem::absolute(root).string();
        if (folder != before)
            names += (names.empty() ? "" : " or ") + folder + below;
        before = std::move(folder);
    }
    return names;
}

/// Returns the path of a regular file below root.
std::optional<std::string> findBelow(const std::string& root, const std::vector<std::string>& components)
{
    std::string path = root;
    bool hasLink = false; // without links and "..", the path cannot lead out of root
    struct stat status = {};
    for (const std::string& component : components) {
        std::string next = path + '/' + component;
        if (::lstat(next.c_str(), &status) != 0) {
            const std::shared_ptr<const Listing> listing = listingOf(path);
            if (!listing)
                return std::nullopt;
            const auto match = listing->names.find(tgx::lowercased(component));
            if (match == listing->names.end())
                return std::nullopt;
            next = path + '/' + match->second;
            if (::lstat(next.c_str(), &status) != 0)
                return std::nullopt;
        }
        // A link that leads out of root is rejected here, before its target is listed or opened.
        if (S_ISLNK(status.st_mode)) {
            hasLink = true;
            if (!isBelow(canonical(next), canonical(root)) || ::stat(next.c_str(), &status) != 0)
                return std::nullopt;
        }
        path = std::move(next);
    }
    if (!S_ISREG(status.st_mode))
        return std::nullopt;
    return hasLink ? canonical(path) : path;
}

std::map<std::string, std::shared_ptr<const std::string>>& memoryFiles()
{
    static auto& files = *new std::map<std::string, std::shared_ptr<const std::string>>;
    return files;
}

/// Returns the same key for all names of the same memory file, or "" for a refused name.
std::string memoryKey(std::string_view name)
{
    std::string key;
    if (const std::optional<std::vector<std::string>> components = splitSafely(name))
        for (const std::string& component : *components)
            key += '/' + tgx::lowercased(component);
    return key;
}

} // namespace

void setDataDirectory(const std::string& path)
{
    roots() = path.empty() ? defaultRoots() : std::vector<std::string>{path};
}

const std::string& dataDirectory()
{
    return roots().front();
}

const std::vector<std::string>& dataDirectories()
{
    return roots();
}

std::string missingDataFolder(std::string_view name)
{
    const std::optional<std::vector<std::string>> components = splitSafely(name);
    if (!components || findMemoryFile(name))
        return "";
    std::string folder; // as deep as the first missing one of the root that has most of them
    std::size_t most = 0;
    for (const std::string& root : roots()) {
        std::string path = root;
        std::size_t present = 0;
        while (present + 1 < components->size() && enterFolder(path, (*components)[present]))
            ++present;
        most = std::max(most, present);
    }
    if (most + 1 >= components->size())
        return "";
    for (std::size_t i = 0; i <= most; ++i)
        folder += (i == 0 ? "" : "/") + (*components)[i];
    return "no folder " + folder + " in " + namesOfRoots("");
}

std::string whyNoDataFile(std::string_view name)
{
    const std::optional<std::vector<std::string>> components = splitSafely(name);
    if (!components || findMemoryFile(name) || findDataFile(name))
        return "";
    if (std::string missing = missingDataFolder(name); !missing.empty())
        return missing;
    std::string folder;
    for (std::size_t i = 0; i + 1 < components->size(); ++i)
        folder += '/' + (*components)[i];
    return "no file " + components->back() + " in " + namesOfRoots(folder);
}

OtherDataDirectory::OtherDataDirectory(const std::string& path) : before(roots())
{
    setDataDirectory(path);
}

OtherDataDirectory::~OtherDataDirectory()
{
    roots() = std::move(before);
}

std::optional<std::string> findDataFile(std::string_view name)
{
    if (const std::optional<std::vector<std::string>> components = splitSafely(name))
        for (const std::string& root : roots())
            if (std::optional<std::string> found = findBelow(root, *components))
                return found;
    return std::nullopt;
}

bool setMemoryFile(std::string_view name, std::shared_ptr<const std::string> bytes)
{
    std::string key = memoryKey(name);
    if (key.empty())
        return false;
    if (bytes)
        memoryFiles()[std::move(key)] = std::move(bytes);
    else
        memoryFiles().erase(key);
    return true;
}

std::shared_ptr<const std::string> findMemoryFile(std::string_view name)
{
    if (memoryFiles().empty())
        return nullptr;
    const auto found = memoryFiles().find(memoryKey(name));
    return found == memoryFiles().end() ? nullptr : found->second;
}
