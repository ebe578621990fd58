#pragma once

#include "player/export.h"
#include "tgx/wnd/wndref.h"

#include <string>

class AMainWin;
class AWnd;

namespace tgx {

// Finds where the pointer's input goes, and why it does not go elsewhere. Follows the rules of AMainWin's
// tick, using its public operations.

/// What happens at a point. A click is a press and its release at the same point.
enum class PointerAct { Point, Press, Release, Click };

/// What input at a point reaches.
struct Reach {
    AWnd* target = nullptr; // gets the tick: the captured window, the front popup or the active screen
    AWnd* wnd =
        nullptr; // the deepest visible and enabled window under the point inside the target, or the target
    std::string hindrance; // why wnd gets no input all the same; "" if it does
};
/// Returns what input at the point would reach now.
TGX_PLAYER_INTERNAL Reach reachAt(AMainWin& win, int x, int y, PointerAct act);

/// Finds the window that an events line means by that id: in the popups from front to back, then on the
/// active screen, then in the whole tree. Null if there is none.
TGX_PLAYER_INTERNAL AWnd* findMeantWindow(AMainWin& win, const std::string& id);

/// Returns the window's id in quotes, for messages.
TGX_PLAYER_INTERNAL std::string nameOf(const AWnd& wnd);
/// Returns why wnd is not visible ("is hidden", ...), or "" if it is. Ignores windows that cover it.
std::string whyNotShown(AMainWin& win, AWnd& wnd);
/// Returns why wnd is disabled ("is disabled", ...), or "" if it is enabled.
TGX_PLAYER_INTERNAL std::string whyDisabled(AWnd& wnd);
/// Returns why input at this point does not reach wnd ("is covered by "BOX" at 10, 20", ...), or "" if it
/// does.
TGX_PLAYER_INTERNAL std::string whyNotReached(AMainWin& win, AWnd& wnd, int x, int y, PointerAct act);

/// Returns a line for --log-input: what the transition called name reaches at that point, and why the other
/// windows there do not get it.
std::string describeReach(AMainWin& win, const std::string& name, int x, int y, PointerAct act);
/// Returns a line for --log-input about a key, which goes to the target and not to a single window in it.
std::string describeKeyReach(AMainWin& win, const std::string& name, int x, int y);
/// Returns wnd or the nearest window around it that is still moving. Null if there is none.
TGX_PLAYER_INTERNAL const AWnd* movingFrom(const AWnd& wnd);

} // namespace tgx
