#pragma once

#include "player/export.h"

#include <string>

class AMainWin;
class AWnd;

namespace tgx {

/// Returns the window tree as one line of JSON. After the exit there is no screen list, and the root is null.
TGX_PLAYER_API std::string treeReport(AMainWin& win);
/// Returns what the last frame drew: a line of JSON for each drawing operation, in order.
TGX_PLAYER_API std::string traceReport(const AMainWin& win);
/// Returns the font table as one line of JSON.
TGX_PLAYER_API std::string fontsReport(AMainWin& win);
/// Returns the name of the window's class, without namespaces.
TGX_PLAYER_INTERNAL std::string classNameOf(const AWnd& wnd);

} // namespace tgx
