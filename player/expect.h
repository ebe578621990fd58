#pragma once

struct Event;

/// `expect EXPECTATION`: compares, and reports a failure when it does not hold.
void expect(const Event& event);
/// `wait until EXPECTATION [N]`: runs frames until it holds; a failure when it does not behind the last.
void waitUntil(const Event& event);
