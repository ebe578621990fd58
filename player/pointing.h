#pragma once

namespace tgx {

struct Event;

// Events that point at a window by its id.

/// Carries out "move to ID [X Y]": queues a move to the window's middle, or to a point relative to its top
/// left corner. Does not check that input reaches the window there.
void moveTo(const Event& event);

// The following check that input reaches the window, and return when their input has been handled.

void hover(const Event& event);
void click(const Event& event);
/// Double-clicks the window whose id is words[1]. The caller handles the form with a button's name.
void doubleClickOn(const Event& event);
void clickRow(const Event& event);

} // namespace tgx
