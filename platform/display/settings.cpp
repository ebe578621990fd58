#include "platform/display/settings.h"

#include "platform/display/settings_internal.h"
#include "platform/system/whole_file.h"

#include <charconv>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace {

namespace fs = std::filesystem;
using Settings = std::map<std::string, unsigned long, std::less<>>;

constexpr std::size_t fileBytes =
    1 << 20; // far more than a game's settings need; the rest of a larger file is ignored

std::string company;
std::string program;

bool isKept(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == ' ' ||
           c == '-' || c == '_' || c == '.';
}

/// Converts a name to a folder name. It has no dots or blanks at either end, so it is neither hidden nor
/// "..".
std::string folderName(const std::string& name)
{
    std::string result;
    for (char c : name) {
        if (isKept(c))
            result += c;
    }
    const std::size_t first = result.find_first_not_of(". ");
    if (first == std::string::npos)
        return "";
    return result.substr(first, result.find_last_not_of(". ") - first + 1);
}

std::optional<fs::path> settingsFile()
{
    const std::string programFolder = folderName(program);
    if (programFolder.empty())
        return std::nullopt;
    fs::path folder;
    if (const char* configured = std::getenv("XDG_CONFIG_HOME"); configured && *configured == '/')
        folder = configured;
    else if (const char* home = std::getenv("HOME"); home && *home == '/')
        folder = fs::path(home) / ".config";
    else
        return std::nullopt;
    return folder / folderName(company) / programFolder / "settings.txt";
}

bool isSettingName(std::string_view name)
{
    return !name.empty() && name.find_first_of("=\r\n") == name.npos;
}

/// Reads a line of the form Name=value into settings. Ignores any other line.
void readLine(std::string_view line, Settings& settings)
{
    if (!line.empty() && line.back() == '\r')
        line.remove_suffix(1);
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos || !isSettingName(line.substr(0, equals)))
        return;
    const std::string_view number = line.substr(equals + 1);
    unsigned long value = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error == std::errc() && end == number.data() + number.size())
        settings.insert_or_assign(std::string(line.substr(0, equals)), value);
}

Settings readSettings(const fs::path& file)
{
    Settings settings;
    std::error_code error;
    if (!fs::is_regular_file(file, error))
        return settings;
    std::ifstream in(file, std::ios::binary);
    std::string text(fileBytes, '\0');
    in.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(in.gcount()));
    std::string_view rest = text;
    while (!rest.empty()) {
        const std::size_t end = rest.find('\n');
        readLine(rest.substr(0, end), settings);
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    }
    return settings;
}

bool replaceFile(const fs::path& file, const Settings& settings)
{
    std::error_code error;
    fs::create_directories(file.parent_path(), error);
    std::string text;
    for (const auto& [name, value] : settings)
        text += name + '=' + std::to_string(value) + '\n';
    std::string reason;
    return !error && tgx::writeWholeFile(file.string(), text, reason, tgx::NewFile::Care::OnDisk);
}

} // namespace

const std::string& settingsProgramName()
{
    return program;
}

void setSettingsOwner(const char* companyName, const char* programName)
{
    company = companyName ? companyName : "";
    program = programName ? programName : "";
}

int getregistry(const char* name, unsigned long* value)
{
    const std::optional<fs::path> file = settingsFile();
    if (!file || !name || !value)
        return 0;
    const Settings settings = readSettings(*file);
    const auto found = settings.find(std::string_view(name));
    if (found == settings.end())
        return 0;
    *value = found->second;
    return 1;
}

int setregistry(const char* name, unsigned long* value)
{
    const std::optional<fs::path> file = settingsFile();
    if (!file || !name || !value || !isSettingName(name))
        return 0;
    Settings settings = readSettings(*file);
    settings.insert_or_assign(name, *value);
    return replaceFile(*file, settings) ? 1 : 0;
}
