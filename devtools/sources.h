#pragma once

#include "language/text/watch.h"
#include "player/script_lines.h"

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tgx {

/// The text form of scripts, from the data directory and the other folders of sources. It is compiled in
/// memory and replaces the compiled file. For compiled files without text it reads their maps.
class Sources {
public:
    /// folders are those in addition to the data directory's UIG; a missing one is a fault. mainScript is its
    /// name below UIG. Builds nothing yet.
    Sources(std::vector<std::string> folders, std::string mainScript);
    ~Sources(); // removes the compiled scripts from the data directory
    Sources(const Sources&) = delete;
    Sources& operator=(const Sources&) = delete;

    /// Compiles all text. A script with an error keeps its last compiled form, and getFaults returns the
    /// error. Returns whether any script has changed.
    bool build();
    /// Returns the errors of the last build: "menu.tgs:31:5: error: ...".
    const std::vector<std::string>& getFaults() const { return faults; }
    /// Returns the errors with the source lines and marks under the places, for a terminal.
    const std::vector<std::string>& getReports() const { return reports; }
    /// Returns whether a file has been written, created or deleted since the last build. Includes compiled
    /// files without text, and their maps.
    bool haveChanged() const;
    /// Returns whether that script is compiled from its text.
    bool isFromText(const std::string& script) const;

    struct Script {
        std::string name; // below UIG
        std::shared_ptr<const std::string> bytes;
    };
    /// Returns all scripts: those compiled from text, followed by the compiled files that no text replaces,
    /// which this reads.
    std::vector<Script> scripts() const;

    /// Returns "menu.tgs:31" for a byte of the compiled script of that name below UIG, or "menu.tgx, byte
    /// 123" if it has neither text nor map.
    std::string placeOf(const std::string& script, unsigned offset) const;

private:
    struct Built {
        std::string name; // below UIG
        std::shared_ptr<const std::string> bytes;
        ScriptLines lines;
    };
    using Scripts = std::map<std::string, Built>;                         // by name in lower case
    using Times = std::map<std::string, std::filesystem::file_time_type>; // by name in lower case
    std::vector<std::string> textFiles() const;
    std::vector<std::string> allFiles() const;
    void fault(std::string headline, std::string report = {});
    Scripts compileTexts();
    bool replace(Scripts fresh);
    bool lookAtCompiled();

    std::vector<std::string> folders;
    std::string mainScript;
    Scripts built;
    Times compiled;                  // of the files in UIG that no text replaces
    mutable ScriptLinesOnDisk lines; // of the same files
    std::vector<std::string> faults;
    std::vector<std::string> reports;
    std::vector<std::string> knownFiles; // text and compiled files at the last build
    std::optional<script_text::WatchedFiles> watched;
};

} // namespace tgx
