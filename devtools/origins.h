#pragma once

#include "tgx/script/observer.h"
#include "tgx/wnd/wnd.h"

#include <string>
#include <unordered_map>
#include <vector>

class Sources;

/// Which line of a script made a window, and which lines failed. Listens to the reads of a main window.
class Origins : public ScriptObserver {
public:
    /// sources knows where the bytes of a compiled script come from. Not owned.
    explicit Origins(const Sources& scriptSources) : sources(scriptSources) {}
    void lineExecuted(const ExecutedLine& line) override;

    /// "menu.tgs:31" for a byte of a script, by its name below UIG; "" is an embedded one.
    std::string placeIn(const std::string& script, unsigned offset) const;
    /// "menu.tgs:31" of the line that made wnd; empty for a window that no script made.
    std::string placeOf(const AWnd& wnd) const;
    /// The script that defines wnd under the id that it bears, as readScriptFile wants it; empty when there
    /// is none, or when it has got another id since.
    std::string scriptOf(const AWnd& wnd) const;
    /// "menu.tgs:31: expected: BUTTON "name" ...", each once, of the reads since the last clear, at most the
    /// first 50.
    const std::vector<std::string>& getFailures() const { return failures; }
    void clear();

private:
    struct Made {
        WndRef wnd;         // empties when the window dies: its address may be another one's then
        std::string script; // below UIG
        unsigned offset;
        std::string id; // at that time
    };
    const Made* find(const AWnd& wnd) const;

    const Sources& sources;
    std::unordered_map<const AWnd*, Made> made;
    std::vector<std::string> failures;
};
