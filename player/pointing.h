#pragma once

struct Event;

// Events that name a window, where a person would point at it.

/// "to ID [X Y]": queues a move to its middle, or to a point counted from its left and top edge, whether or
/// not it can be reached there.
void moveTo(const Event& event);

// These see that it can be reached, and end when their input has been handled.

void hover(const Event& event);
void click(const Event& event);
/// words[1]: an id; the form with a button's name is the caller's.
void doubleClickOn(const Event& event);
void clickRow(const Event& event);
