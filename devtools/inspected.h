#pragma once

#include "devtools/overlay.h"

#include <string>
#include <vector>

class AMainWin;
class AWnd;

namespace tgx {

// Collects what the inspector shows about the visible windows, as texts and lists. Nothing here paints.

/// Returns the window that is visible at that point: the last one drawn there, in the open popups or else in
/// the active screen. Unlike the target of input it may be disabled or extend beyond its parent. Null if
/// there is none.
AWnd* shownWindowAt(AMainWin& game, int x, int y);

/// Returns the window's id, or "(no id)", and its class.
std::string titleOf(const AWnd& wnd);
/// Describes a window at the point x, y: the path to it with ids and classes, then its properties. place is
/// that of the script line that made it, and may be empty.
std::vector<PanelLine> describeWindow(AMainWin& game, AWnd& wnd, int x, int y, const std::string& place);

/// Kinds of windows, in the order of their lines in the census.
enum class WindowKind { Top, Plain, Button, EditBox, List, Other };
constexpr int windowKindCount = 6;

/// An id that several windows of one screen or popup share, ignoring case. The ids that controls give their
/// parts, such as ComboNext, are only compared among siblings.
struct DuplicateId {
    std::vector<AWnd*> wnds; // at least two, in search order: getWnd finds the first
};

/// The windows of the active screen and of the open popups.
struct Census {
    struct Shown {
        AWnd* wnd;
        WindowKind kind;
    };
    std::vector<Shown> shown;            // in drawing order; visible together with all their parents
    int hidden = 0;                      // number of the other windows
    std::vector<DuplicateId> duplicates; // in the order of their second windows; includes hidden windows
};
/// Returns the census, which is valid until the tree changes.
Census takeCensus(AMainWin& game);
/// Returns lines with the number of windows of each kind, in the colours of their outlines, and the duplicate
/// ids.
std::vector<PanelLine> describeCensus(const Census& census);

std::uint32_t outlineColour(WindowKind kind);
constexpr std::uint32_t duplicateColour = 0xFF4060;
constexpr std::uint32_t hoveredColour = 0xFFE040;

} // namespace tgx
