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
class Origins;

/// What a person can set in a window. Of these only what has been set is kept, so that a changed script shows
/// where nobody has touched it.
struct KeptValues {
    std::optional<int> selected; // of a button
    std::optional<std::string> text;
    std::optional<int> item; // of a list box or combo box
    std::optional<int> column;
    std::optional<ZnFixed> percentage; // of a scroll bar

    bool operator==(const KeptValues&) const = default;
};

/// Carries the state of an interface over into the one that is read anew: open screens, popups, and what has
/// been set in their windows since they opened. Windows are known by their place: the ids from the screen
/// down.
class InterfaceState {
public:
    /// Neither is owned.
    InterfaceState(AMainWin& game, const Origins& origins);
    /// Between the frames: takes note of what has opened, and goes on with what restore has begun.
    void follow();
    /// What is open and set now. Before the interface is taken down.
    void keep();
    /// Begins to bring it back. Behind the read.
    void restore();
    /// Screens and popups open one after the other, which takes some frames.
    bool isRestoring() const { return isComingBack; }
    /// What did not come back, since the last call.
    std::vector<std::string> takeLost() { return std::exchange(lost, {}); }

private:
    using Values = std::map<std::string, KeptValues>; // by place
    struct First {
        WndRef wnd; // a screen or popup
        Values values;
    };
    struct Opened {
        std::string id;
        std::string script;
        std::string parent; // id, of a popup; empty for none
    };
    static Values valuesBelow(AWnd& root);
    std::vector<AWnd*> opened() const;
    void setValuesOfOpened();
    void goOnRestoring();

    AMainWin& game;
    const Origins& origins;
    std::vector<First> atFirst; // what is open, as it opened

    // As it was kept, until all of it is back.
    Values kept;
    std::vector<Opened> screens; // the first one first
    std::vector<Opened> popups;  // in the order in which they open
    short pointerX = 0;
    short pointerY = 0;

    bool isComingBack = false;
    std::size_t screensAsked = 0;
    std::size_t popupsAsked = 0;
    std::vector<WndRef> alreadySet; // screens and popups that have their values
    int framesLeft = 0;             // until the wait for the next one is given up
    std::vector<std::string> lost;
};
