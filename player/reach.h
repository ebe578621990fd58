#pragma once

#include "player/export.h"
#include "tgx/wnd/wndref.h"

#include <string>

class AMainWin;
class AWnd;

// Where the pointer's input goes, and why it does not go elsewhere: the rules of AMainWin's tick, told from
// its public operations.

/// What happens at a point. A click is a press and its release there.
enum class PointerAct { Point, Press, Release, Click };

struct Reach {
    AWnd* target = nullptr; // where the tick goes: the captured window, the front popup or the active screen
    AWnd* wnd = nullptr;    // the deepest usable window under the point inside the target, or the target
    std::string hindrance;  // why even that one gets nothing; "" when it does
};
TGX_PLAYER_INTERNAL Reach reachAt(AMainWin& win, int x, int y, PointerAct act);

/// What a person means by that id: looked for in the popups, front first, then on the active screen, then in
/// the whole tree. Null if there is none.
TGX_PLAYER_INTERNAL AWnd* findMeantWindow(AMainWin& win, const std::string& id);

/// Its id in quotes, for messages.
TGX_PLAYER_INTERNAL std::string nameOf(const AWnd& wnd);
/// "is hidden", ...: why wnd is not to be seen; "" when it is, if nothing lies over it.
std::string whyNotShown(AMainWin& win, AWnd& wnd);
/// "is disabled", ...; "" when it is not.
TGX_PLAYER_INTERNAL std::string whyDisabled(AWnd& wnd);
/// "is covered by "BOX" at 10, 20", ...: why wnd is not what input at this point reaches; "" when it is.
TGX_PLAYER_INTERNAL std::string whyNotReached(AMainWin& win, AWnd& wnd, int x, int y, PointerAct act);

/// One line for --log-input: what the transition called name reaches at that point, and why the other windows
/// that lie there do not get it.
std::string describeReach(AMainWin& win, const std::string& name, int x, int y, PointerAct act);
/// The same for a key, which goes to the target as a whole.
std::string describeKeyReach(AMainWin& win, const std::string& name, int x, int y);
/// It, or the nearest that it lies in, that is still moving; null for none.
TGX_PLAYER_INTERNAL const AWnd* movingFrom(const AWnd& wnd);
