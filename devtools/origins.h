#pragma once

#include "tgx/script/observer.h"
#include "tgx/wnd/wnd.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace tgx {

class Sources;

/// Records which line of a script made each window, and which lines failed. Observes the scripts that a main
/// window reads.
class Origins : public ScriptObserver {
public:
    /// sources maps the bytes of a compiled script to lines. Not owned.
    explicit Origins(const Sources& scriptSources) : sources(scriptSources) {}
    void lineExecuted(const ExecutedLine& line) override;

    /// Returns the place of a byte of a script, such as "menu.tgs:31". script: its name below UIG, or "" for
    /// an embedded one.
    std::string placeIn(const std::string& script, unsigned offset) const;
    /// Returns the place of the line that made wnd, such as "menu.tgs:31"; empty if no script made it.
    std::string placeOf(const AWnd& wnd) const;
    /// Returns the name of the script that defines wnd under its present id, as readScriptFile expects it;
    /// empty if there is none or the id has changed.
    std::string scriptOf(const AWnd& wnd) const;
    /// Returns the lines that failed since the last clear, such as "menu.tgs:31: expected: BUTTON "name"
    /// ...": each once, and at most the first 50.
    const std::vector<std::string>& getFailures() const { return failures; }
    void clear();

private:
    struct Made {
        WndRef wnd;         // becomes null when the window dies, because another window may get its address
        std::string script; // below UIG
        unsigned offset;
        std::string id; // when it was made
    };
    const Made* find(const AWnd& wnd) const;

    const Sources& sources;
    std::unordered_map<const AWnd*, Made> made;
    std::vector<std::string> failures;
};

} // namespace tgx
