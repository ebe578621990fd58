#pragma once

#include "language/check/script.h"

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace tgx::script_check {

/// The top-level windows that a POINTER in any of the scripts shows inside another window.
class PointerTargets {
public:
    PointerTargets(const std::vector<Script*>& scripts, const ScriptSet& set);

    bool contains(const Script& script, std::string_view window) const;

private:
    std::map<const Script*, std::set<std::string>> named; // where the POINTER names the script
    std::set<std::string> anywhere;                       // where it does not, or names an embedded script
};

} // namespace tgx::script_check
