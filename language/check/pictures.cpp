#include "language/check/pictures.h"

#include "language/check/run.h"
#include "platform/display/surface.h"
#include "platform/framework/datadir.h"
#include "platform/framework/text.h"

#include <algorithm>
#include <filesystem>

namespace fs = std::filesystem;

namespace tgx::script_check {

namespace {

bool namesBitmap(const Statement& statement, int token)
{
    const std::string name = lowercased(argumentName(statement, token));
    return name.ends_with("bitmap\"") || name == "\"backdrop\"";
}

std::string withSlashes(std::string name)
{
    std::replace(name.begin(), name.end(), '\\', '/');
    return name;
}

/// Calls visit(line, token, name) for each picture that the script names, and with fontsToo for each font.
template<class Visit>
void forEachFile(const Script& script, bool fontsToo, Visit visit)
{
    for (int line = 0; line < script.lineCount(); ++line) {
        const Statement* statement = script.statement(line);
        if (!statement)
            continue;
        for (int token = 1; token < script.tokenCount(line); ++token)
            if (const std::string& name = script.string(line, token);
                !name.empty() && (namesBitmap(*statement, token) ||
                                  (fontsToo && argumentName(*statement, token) == "\"file\"")))
                visit(line, token, name);
    }
}

} // namespace

const std::string& Pictures::pathOf(const std::string& name)
{
    const auto [entry, isNew] = paths.try_emplace(lowercased(withSlashes(name)));
    if (isNew)
        entry->second = findDataFile(name).value_or("");
    return entry->second;
}

bool Pictures::exists(const std::string& name)
{
    return !pathOf(name).empty();
}

const Picture* Pictures::find(const std::string& name)
{
    const std::string& path = pathOf(name);
    if (path.empty())
        return nullptr;
    const auto [entry, isNew] = pictures.try_emplace(path);
    AMainWin& window = reading.window();
    if (isNew)
        if (surface* loaded = window.createsprite(name.c_str(), -1, -1, -1)) {
            const ImageRef& image = loaded->getImage();
            entry->second = {loaded->width, loaded->height, image && image->coverage == Coverage::Opaque};
            window.deleteSurface(loaded);
        }
    return entry->second ? &*entry->second : nullptr;
}

std::string fileHint(const std::string& name, Findings& findings)
{
    std::string hint;
    if (std::any_of(name.begin(), name.end(), [](unsigned char c) { return c < 0x20 || c >= 0x7F; }))
        hint = "; in a string \\xNN is one character, and a folder called x... is written \\\\x";
    const std::string path = withSlashes(name);
    const std::size_t slash = path.rfind('/');
    const std::string folder = slash == path.npos ? "" : path.substr(0, slash);
    std::vector<std::string> files;
    std::error_code error;
    for (const fs::directory_entry& each : fs::directory_iterator(fs::path(dataDirectory()) / folder, error))
        if (each.is_regular_file(error))
            files.push_back(name.substr(0, slash == path.npos ? 0 : slash + 1) +
                            each.path().filename().string());
    return hint + findings.didYouMean(name, {files.begin(), files.end()});
}

void checkPictures(const Script& script, Pictures& pictures, Findings& findings)
{
    forEachFile(script, false, [&](int line, int token, const std::string& name) {
        if (pictures.find(name))
            return;
        findings.add("missing-bitmap", script, line, token,
                     pictures.exists(name) ? inQuotes(name) + " cannot be read as a picture"
                                           : "no picture " + inQuotes(name) + " in the data directory" +
                                                 fileHint(name, findings));
    });
}

void checkUnusedFiles(const std::string& dataDirectory, const std::vector<Script*>& scripts,
                      Findings& findings)
{
    std::set<std::string> named;
    for (const Script* script : scripts)
        forEachFile(*script, true, [&](int, int, const std::string& name) {
            if (const std::optional<std::string> path = findDataFile(name))
                named.insert(fs::path(*path).lexically_normal().string());
        });
    const auto first = std::find_if(scripts.begin(), scripts.end(), [](const Script* script) {
        return script->isReported && script->lineCount() > 0;
    });
    if (first == scripts.end())
        return;
    constexpr std::string_view endings[] = {".bmp", ".png", ".jpg", ".jpeg", ".gif", ".pcx", ".ttf", ".otf"};
    std::vector<std::string> unused;
    std::error_code error;
    for (fs::recursive_directory_iterator each(dataDirectory, error), end; !error && each != end;
         each.increment(error)) {
        const fs::path path = each->path().lexically_normal();
        const std::string ending = lowercased(path.extension().string());
        if (each->is_regular_file(error) &&
            std::find(std::begin(endings), std::end(endings), ending) != std::end(endings) &&
            !named.contains(path.string()))
            unused.push_back(path.lexically_relative(fs::path(dataDirectory).lexically_normal()).string());
    }
    std::sort(unused.begin(), unused.end());
    const script_text::StatementLine& top = (*first)->line(0); // a comment before it can allow them
    for (const std::string& name :
         unused) // not with findings.add, which would drop findings of the same code at one place
        findings.all.push_back({script_text::Diagnostic::Warning,
                                {top.in, top.number, {}},
                                "no script uses the file " + script_text::shown(name),
                                "unused-file"});
}

} // namespace tgx::script_check
