#include "language/text/text_files.h"

#include "platform/framework/datadir.h"
#include "platform/framework/text.h"

#include <algorithm>
#include <filesystem>

namespace fs = std::filesystem;

namespace tgx::script_text {

namespace {

/// Returns the path relative to the working directory if it is below it, else unchanged.
std::string shortest(const fs::path& path)
{
    std::error_code failure;
    const fs::path near = fs::proximate(path, failure);
    return failure || near.begin() == near.end() || *near.begin() == ".." ? path.string() : near.string();
}

} // namespace

std::vector<std::string> filesIn(const std::string& folder, std::string_view ending)
{
    std::vector<std::string> files;
    std::error_code failure;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, failure))
        if (lowercased(entry.path().extension().string()) == ending && entry.is_regular_file(failure))
            files.push_back(shortest(entry.path().lexically_normal()));
    std::sort(files.begin(), files.end());
    return files;
}

std::string scriptFolder()
{
    std::error_code failure;
    for (const std::string& folder : dataDirectories())
        for (const fs::directory_entry& entry : fs::directory_iterator(folder, failure))
            if (lowercased(entry.path().filename().string()) == "uig" && entry.is_directory(failure))
                return entry.path().string();
    return "";
}

std::string compiledName(const std::string& textFile)
{
    return fs::path(textFile).stem().string() + ".tgx";
}

} // namespace tgx::script_text
