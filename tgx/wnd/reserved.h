#pragma once

#include "tgx/export.h"

#include <string_view>

// Ids with a meaning of their own, which a script gives to its buttons. They are compared exactly unless
// stated otherwise.

/// Returns true for "TGX_EXIT", "TGX_CANCEL", "TGX_BACK" and "TGX_CLOSE": a click leaves the screen.
TGX_API bool leavesScreen(std::string_view id);
/// Returns true for "TGX_CLOSE", "TGX_YES", "TGX_NO", "TGX_OK" and "TGX_CANCEL": a click closes the popup.
TGX_API bool closesPopup(std::string_view id);
/// Returns true for "TGX_BACK", "TGX_OK", "TGX_YES", "TGX_CLOSE" and "continue", ignoring case: Esc moves the
/// pointer to the first one that exists and is enabled.
TGX_API bool escPointsAt(std::string_view id);

namespace tgx::part {

// Ids by which a control finds its parts, ignoring case.
inline constexpr char checkboxState[] = "CheckboxState";
inline constexpr char radioState[] = "RadioState";
inline constexpr char comboMenu[] = "ComboMenu";
inline constexpr char comboNext[] = "ComboNext";
inline constexpr char comboPrev[] = "ComboPrev";
inline constexpr char scrollBar[] = "ScrollBar"; // made by the list box itself

/// Returns whether the id is that of a part that a script makes.
TGX_API bool isOfScript(std::string_view id);

} // namespace tgx::part
