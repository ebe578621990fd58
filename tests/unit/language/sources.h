#pragma once

#include "language/text/emit.h"
#include "language/text/parsed_script.h"

#include <map>
#include <string>

/// Scripts in text form, by file name.
struct Sources {
    std::map<std::string, std::string> files;

    tgx::script_text::ParsedScript parse(const std::string& name) const
    {
        return tgx::script_text::parse(
            name, files.at(name), [this](const std::string& path, std::string& reason) {
                const auto found = files.find(path);
                reason = "no such file";
                return found == files.end() ? std::optional<std::string>() : found->second;
            });
    }
};

/// Parses text as the file a.tgs.
inline tgx::script_text::ParsedScript parse(const std::string& text)
{
    return Sources{{{"a.tgs", text}}}.parse("a.tgs");
}

/// Returns the first lines of all messages.
inline std::string headlines(const tgx::script_text::ParsedScript& script)
{
    std::string out;
    for (const auto& each : script.diagnostics)
        out += headline(each) + '\n';
    return out;
}

/// Returns the compiled script, or the headlines of its errors.
inline std::string build(const tgx::script_text::ParsedScript& script)
{
    return script.hasErrors() ? headlines(script) : emit(script).bytes;
}
