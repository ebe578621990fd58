#pragma once

#include "devtools/overlay.h"

#include <string>
#include <vector>

class AMainWin;
class AWnd;

// What the inspector finds out about the windows that are shown, as texts and lists: nothing here paints.

/// The window that an author sees at that point: the one that is drawn last there, of the open popups or else
/// of the active screen. Unlike for input it may be disabled, or stick out of its parent. Null if there is
/// none.
AWnd* shownWindowAt(AMainWin& game, int x, int y);

/// Its id, or "(no id)", and its class.
std::string titleOf(const AWnd& wnd);
/// The path to a window with the ids and classes on it, and what there is to know about it, the point x, y
/// being on it. place: of the script line that made it; may be empty.
std::vector<PanelLine> describeWindow(AMainWin& game, AWnd& wnd, int x, int y, const std::string& place);

/// The order of their names in the census.
enum class WindowKind { Top, Plain, Button, EditBox, List, Other };
constexpr int windowKindCount = 6;

/// An id that several windows of one screen or popup have, without regard to case. Those that a control gives
/// its parts, such as ComboNext, count among brothers only.
struct DuplicateId {
    std::vector<AWnd*> wnds; // at least two, in the order of a search: getWnd finds the first
};

/// The windows of the active screen and of the open popups.
struct Census {
    struct Shown {
        AWnd* wnd;
        WindowKind kind;
    };
    std::vector<Shown> shown; // in drawing order; those that are visible with all above them
    int hidden = 0;
    std::vector<DuplicateId> duplicates; // in the order of their second windows; of the hidden ones too
};
/// Good until the tree changes.
Census takeCensus(AMainWin& game);
/// How many of each kind there are, in the colours of their outlines, and the duplicate ids.
std::vector<PanelLine> describeCensus(const Census& census);

std::uint32_t outlineColour(WindowKind kind);
constexpr std::uint32_t duplicateColour = 0xFF4060;
constexpr std::uint32_t pointedColour = 0xFFE040;
