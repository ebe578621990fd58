#pragma once

#include "language/check/check.h"
#include "language/check/findings.h"

#include <deque>

namespace script_check {

/// Takes findings away whose codes options allows, or that a comment in the line before allows, "# tgx: allow
/// CODE ...", and finds allowances that silence nothing or name no code. What keeps a script from being built
/// stays.
void applyAllowances(const std::deque<Script>& scripts, const CheckOptions& options, Findings& findings);

} // namespace script_check
