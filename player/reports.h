#pragma once

#include "player/export.h"

#include <string>

class AMainWin;
class AWnd;

/// The window tree, as one line of JSON. Without a screen list, behind the exit, its root is null.
TGX_PLAYER_API std::string treeReport(AMainWin& win);
/// What the last frame drew: a line of JSON for each drawing operation, in order.
TGX_PLAYER_API std::string traceReport(const AMainWin& win);
/// The font table, as one line of JSON.
TGX_PLAYER_API std::string fontsReport(AMainWin& win);
/// The name of its class, without namespaces.
TGX_PLAYER_INTERNAL std::string classNameOf(const AWnd& wnd);
