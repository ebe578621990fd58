#pragma once

#include "language/text/watch.h"
#include "player/script_lines.h"

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

/// The text form of the scripts in the data directory and the other folders of sources: compiled in memory,
/// where it stands in for the compiled file; and the side maps of those that have no text.
class Sources {
public:
    /// Folders besides UIG of the data directory; one that is not there is a fault. mainScript: its name
    /// below UIG. Builds nothing yet.
    Sources(std::vector<std::string> folders, std::string mainScript);
    ~Sources(); // takes the compiled scripts out of the data directory
    Sources(const Sources&) = delete;
    Sources& operator=(const Sources&) = delete;

    /// Compiles all text. Where one is at fault, what was compiled of it before stays, and getFaults tells
    /// why. Whether any script is another one now.
    bool build();
    /// "menu.tgs:31:5: error: ...", of the last build.
    const std::vector<std::string>& getFaults() const { return faults; }
    /// The same with the lines and marks under the places, for a terminal.
    const std::vector<std::string>& getReports() const { return reports; }
    /// Whether a file of theirs has been written, has come or gone since the last build. Also compiled files
    /// that are used as they are, and their maps.
    bool haveChanged() const;
    /// Whether that script comes from its text.
    bool isFromText(const std::string& script) const;

    struct Script {
        std::string name; // below UIG
        std::shared_ptr<const std::string> bytes;
    };
    /// Returns all scripts: those compiled of text, followed by the compiled files that no text replaces,
    /// which are read for this.
    std::vector<Script> scripts() const;

    /// "menu.tgs:31" for a byte of the compiled script of that name below UIG; without text or map "menu.tgx,
    /// byte 123".
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
    Times compiled;                  // of the files in UIG that no text stands in for
    mutable ScriptLinesOnDisk lines; // of those that no text stands in for
    std::vector<std::string> faults;
    std::vector<std::string> reports;
    std::vector<std::string> knownFiles; // text and compiled, of the last build
    std::optional<script_text::WatchedFiles> watched;
};
