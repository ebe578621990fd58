#pragma once

namespace tgx {

struct Event;

/// Carries out `expect EXPECTATION`: reports a failure if it does not hold.
void expect(const Event& event);
/// Carries out `wait until EXPECTATION [N]`: runs up to N frames until it holds, and reports a failure if it
/// still does not hold after the last.
void waitUntil(const Event& event);

} // namespace tgx
