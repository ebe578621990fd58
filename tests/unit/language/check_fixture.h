#pragma once

#include "language/check/check.h"
#include "tests/unit/language/sources.h"
#include "tests/unit/support/tgx_test.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

/// Splits a text into files at lines such as "== parts.tgs". A file "== [parts.tgs]" is not reported, only
/// used by the others.
inline Sources divided(std::string text, const std::string& firstName)
{
    Sources out;
    std::string name = firstName;
    while (true) {
        const std::size_t mark = text.starts_with("== ") ? 0 : text.find("\n== ");
        const std::size_t end = mark == 0 ? 0 : mark == std::string::npos ? mark : mark + 1;
        if (end != 0)
            out.files[name] = text.substr(0, end);
        if (mark == std::string::npos)
            return out;
        const std::size_t lineEnd = text.find('\n', end);
        name = text.substr(end + 3, lineEnd - end - 3);
        text.erase(0, lineEnd + 1);
    }
}

/// Provides a data directory with pictures of known sizes: wide.bmp 400 x 300, one.bmp 20 x 10, the strip
/// three.bmp with frames of 20 x 10, and eight.bmp with eight pieces of 8 x 8.
class Check : public TgxTest {
protected:
    Check()
    {
        bitmap("wide.bmp", 400, 300);
        bitmap("one.bmp", 20, 10);
        bitmap("three.bmp", 63, 10); // the last frame is also followed by a pixel
        strip("eight.bmp", 8, 8, 8);
        write("text.png", "no picture");
        options.dataDirectory = data.string();
    }

    tgx::script_check::CheckReport run(const Sources& sources)
    {
        std::vector<tgx::script_check::ScriptFile> files;
        for (const auto& [name, text] : sources.files) {
            const bool isReported = !name.starts_with('[');
            const std::string path = isReported ? name : name.substr(1, name.size() - 2);
            std::string runtimeName = path.substr(0, path.rfind('.')) + ".tgx";
            std::replace(runtimeName.begin(), runtimeName.end(), '/', '\\');
            if (!path.ends_with(".inc"))
                files.push_back({path, text, path.ends_with(".tgx"), isReported, runtimeName});
        }
        return tgx::script_check::check(
            files,
            [&](const std::string& path, std::string& reason) {
                const auto found = sources.files.find(path);
                reason = "no such file";
                return found == sources.files.end() ? std::optional<std::string>() : found->second;
            },
            options);
    }
    std::string found(const std::string& text, const std::string& firstName = "a.tgs")
    {
        const bool isShort = text.find('{') != std::string::npos;
        const tgx::script_check::CheckReport report =
            run(divided(isShort ? scriptLines(text) : text, firstName));
        std::string headlines;
        for (const auto& each : report.findings)
            headlines += headline(each) + " [" + each.code + "]\n";
        return headlines;
    }

    tgx::script_check::CheckOptions options;
};

/// A table row: scripts, and the headlines of their findings, each with its code in brackets. Scripts with a
/// { are in the form of scriptLines; places count BEGIN and END as lines and begin at the keyword.
struct CheckRow {
    const char* name;
    std::string text;
    std::string findings;
};

inline std::string repeated(int times, const std::string& text)
{
    std::string out;
    for (int i = 0; i < times; ++i)
        out += text;
    return out;
}
