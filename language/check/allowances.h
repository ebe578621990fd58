#pragma once

#include "language/check/check.h"
#include "language/check/findings.h"

#include <deque>

namespace tgx::script_check {

/// Removes the findings whose codes are allowed, by options or by a comment "# tgx: allow CODE ..." before
/// the line, and reports allowances that silence nothing or name no code. Build errors cannot be allowed.
void applyAllowances(const std::deque<Script>& scripts, const CheckOptions& options, Findings& findings);

} // namespace tgx::script_check
