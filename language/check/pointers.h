#pragma once

#include "language/check/script.h"

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace script_check {

/// Windows of the top level that a POINTER shows inside others, in any of the scripts.
class PointerTargets {
public:
    PointerTargets(const std::vector<Script*>& scripts, const ScriptSet& set);

    bool contains(const Script& script, std::string_view window) const;

private:
    std::map<const Script*, std::set<std::string>> named; // by a POINTER that names the script as well
    std::set<std::string> anywhere;                       // by one that does not, or by an embedded script
};

} // namespace script_check
