#include "language/check/pointers.h"

#include "language/check/rules.h"
#include "platform/framework/text.h"

namespace tgx::script_check {

PointerTargets::PointerTargets(const std::vector<Script*>& scripts, const ScriptSet& set)
{
    for (const Script* script : scripts)
        for (int line = 0; line < script->lineCount(); ++line) {
            if (!script->isKeyword(line, "POINTER"))
                continue;
            const std::string window = lowercased(script->string(line, 1));
            const std::string& name = script->string(line, 2);
            if (name.empty() || isResourceNumber(name))
                anywhere.insert(window);
            else if (const Script* shown = set.find(name))
                named[shown].insert(window);
        }
}

bool PointerTargets::contains(const Script& script, std::string_view window) const
{
    const std::string wanted = lowercased(window);
    const auto found = named.find(&script);
    return anywhere.contains(wanted) || (found != named.end() && found->second.contains(wanted));
}

} // namespace tgx::script_check
