#pragma once

#include "platform/framework/znfixed.h"
#include "tgx/wnd/wnd.h"

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class AMainWin;
class AWnd;

namespace tgx {

class Origins;

/// The values of a window that the user can change. Only values that were changed are kept, so that the
/// others come from the changed script.
struct KeptValues {
    std::optional<int> selected; // of a button
    std::optional<std::string> text;
    std::optional<int> item; // of a list box or combo box
    std::optional<int> column;
    std::optional<ZnFixed> percentage; // of a scroll bar

    bool operator==(const KeptValues&) const = default;
};

/// Carries the state of an interface over a reload: open screens, popups, and the values that were changed in
/// their windows since they opened. Windows are identified by their place: the ids from the screen down.
class InterfaceState {
public:
    /// Owns neither.
    InterfaceState(AMainWin& game, const Origins& origins);
    /// Called between frames: records the values of screens and popups that have opened, and continues
    /// restoring.
    void follow();
    /// Stores what is open and changed now. Called before the interface is deleted.
    void keep();
    /// Begins to restore the stored state. Called after the scripts have been read.
    void restore();
    /// Returns whether restoring is still going on: screens and popups open one after the other, over several
    /// frames.
    bool isRestoring() const { return restoring; }
    /// Returns messages about what could not be restored since the last call.
    std::vector<std::string> takeLost() { return std::exchange(lost, {}); }

private:
    using Values = std::map<std::string, KeptValues>; // by place
    struct InitialState {
        WndRef wnd; // a screen or popup
        Values values;
    };
    struct OpenWindow {
        std::string id;
        std::string script;
        std::string parent; // id of a popup's parent; empty for none
    };
    static Values valuesBelow(AWnd& root);
    std::vector<AWnd*> openWindows() const;
    void setValuesOfOpenWindows();
    void continueRestoring();

    AMainWin& game;
    const Origins& origins;
    std::vector<InitialState> initialStates; // of the screens and popups that are open

    // The stored state.
    Values kept;
    std::vector<OpenWindow> screens; // from the first to the active one
    std::vector<OpenWindow> popups;  // in the order in which they are opened
    short pointerX = 0;
    short pointerY = 0;

    bool restoring = false;
    std::size_t screensRequested = 0;
    std::size_t popupsRequested = 0;
    std::vector<WndRef> alreadySet; // screens and popups whose values are restored
    int framesLeft = 0;             // until waiting for the next one is given up
    std::vector<std::string> lost;
};

} // namespace tgx
