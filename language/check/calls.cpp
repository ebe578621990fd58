// Rules for GOTO: which subroutine calls which, in all scripts.

#include "language/check/rules.h"
#include "platform/limits.h"
#include "tgx/script/token.h"

#include <algorithm>
#include <cctype>

namespace tgx::script_check {

namespace {

struct Call {
    Script* script; // that contains the GOTO
    int line;
    std::size_t callee;
};

struct Node {
    Script* script;
    Subroutine* subroutine;
    std::vector<Call> calls = {};
    enum { Fresh, Entered, Done } state = Fresh;
};

class CallGraph {
public:
    CallGraph(const std::vector<Script*>& all, const ScriptSet& names, Findings& found)
        : scripts(all), set(names), findings(found)
    {
        for (Script* script : scripts) {
            firstNode[script] = nodes.size();
            for (Subroutine& each : script->subroutines)
                nodes.push_back({script, &each});
        }
    }

    void run()
    {
        for (Script* script : scripts) {
            // Only the lines of its body belong to a subroutine.
            int current = -1;
            std::size_t next = 0;
            for (int line = 0; line < script->lineCount(); ++line) {
                if (next < script->subroutines.size() && script->subroutines[next].line == line) {
                    current = static_cast<int>(firstNode[script] + next);
                    ++next;
                }
                const bool isInBody = script->place(line).subroutine != LinePlace::none;
                if (script->isKeyword(line, "GOTO"))
                    follow(*script, line, isInBody ? current : -1);
                else if (script->isKeyword(line, "POINTER") && script->tokenCount(line) > 2)
                    useScript(*script, line);
            }
        }
        for (std::size_t node = 0; node < nodes.size(); ++node)
            findRings(node);
    }

private:
    /// Returns the script that the second argument names, or null after reporting that there is none.
    Script* useScript(Script& script, int line)
    {
        const std::string& name = script.string(line, 2);
        if (Script* found = set.find(name))
            return found;
        if (!isResourceNumber(name)) {
            std::vector<std::string_view> names;
            for (const Script* each : scripts)
                names.emplace_back(each->name);
            findings.add("missing-script", script, line, 2,
                         "no script " + inQuotes(name) + findings.didYouMean(name, names));
        }
        return nullptr;
    }

    void follow(Script& script, int line, int caller)
    {
        const std::string& name = script.string(line, 1);
        Script* target = script.tokenCount(line) > 2 ? useScript(script, line) : &script;
        if (!target) {
            // An embedded script, which may be any of these.
            if (isResourceNumber(script.string(line, 2)))
                for (Script* each : scripts)
                    if (Subroutine* body = each->subroutine(name))
                        body->isUsed = true;
            return;
        }
        Subroutine* called = target->subroutine(name);
        if (!called) {
            if (!target->isBroken)
                reportMissing(script, line, *target);
            return;
        }
        called->isUsed = true;
        if (caller >= 0)
            nodes[static_cast<std::size_t>(caller)].calls.push_back(
                {&script, line,
                 firstNode[target] + static_cast<std::size_t>(called - target->subroutines.data())});
    }

    void reportMissing(const Script& script, int line, const Script& target)
    {
        const std::string& name = script.string(line, 1);
        std::string text = "no SUBROUTINE " + inQuotes(name) + " in " + target.name;
        std::vector<std::string_view> names;
        for (const Subroutine& each : target.subroutines)
            names.emplace_back(each.name);
        text += findings.didYouMean(name, names);
        for (Script* other : scripts)
            if (other != &target && other->subroutine(name)) {
                text += "; " + other->name + " has one";
                break;
            }
        findings.add("missing-subroutine", script, line, 1, std::move(text));
    }

    /// Searches depth first, without recursion, because chains of calls may be long.
    void findRings(std::size_t start)
    {
        struct Step {
            std::size_t node;
            std::size_t nextCall = 0;
        };
        if (nodes[start].state != Node::Fresh)
            return;
        std::vector<Step> path{{start}};
        nodes[start].state = Node::Entered;
        while (!path.empty()) {
            Node& node = nodes[path.back().node];
            if (path.back().nextCall == node.calls.size()) {
                node.state = Node::Done;
                path.pop_back();
                continue;
            }
            const Call& call = node.calls[path.back().nextCall++];
            Node& callee = nodes[call.callee];
            if (callee.state == Node::Entered || callee.subroutine->reachesRing)
                for (auto step = path.rbegin();
                     step != path.rend() && !nodes[step->node].subroutine->reachesRing; ++step)
                    nodes[step->node].subroutine->reachesRing = true;
            if (callee.state == Node::Fresh) {
                callee.state = Node::Entered;
                path.push_back({call.callee});
            } else if (callee.state == Node::Entered) {
                std::string ring;
                const auto first = std::find_if(path.begin(), path.end(),
                                                [&](const Step& step) { return step.node == call.callee; });
                constexpr std::ptrdiff_t maxShown = 8;
                for (auto step = first; step != path.end() && step - first < maxShown; ++step)
                    ring += inQuotes(nodes[step->node].subroutine->name) + " -> ";
                if (path.end() - first > maxShown)
                    ring += "... -> ";
                findings.add("recursive-subroutine", *call.script, call.line, 1,
                             "the subroutine calls itself: " + ring + inQuotes(callee.subroutine->name));
            }
        }
    }

    const std::vector<Script*>& scripts;
    const ScriptSet& set;
    Findings& findings;
    std::vector<Node> nodes;
    std::map<const Script*, std::size_t> firstNode;
};

void checkSubroutines(Script& script, Findings& findings)
{
    const bool isUnused = !script.subroutines.empty() && script.topWindows.empty() && !isMain(script) &&
                          std::none_of(script.subroutines.begin(), script.subroutines.end(),
                                       [](const Subroutine& each) { return each.isUsed; });
    for (std::size_t i = 0; i < script.subroutines.size(); ++i) {
        const Subroutine& each = script.subroutines[i];
        const int body = each.line + 1;
        const bool isEmpty = body >= script.lineCount() ||
                             (i + 1 < script.subroutines.size() && script.subroutines[i + 1].line == body);
        const bool isSecond = script.subroutine(each.name) != &each;
        if (isMain(script))
            findings.add("subroutine-in-main", script, each.line,
                         "the game reads this script from top to bottom, which fails here; move subroutines "
                         "to a script of their own");
        if (isEmpty)
            findings.add("empty-subroutine", script, each.line, 1,
                         inQuotes(each.name) + " has no body; expected a statement or a block after it");
        if (isSecond)
            findings.add("duplicate-subroutine", script, each.line, 1,
                         "SUBROUTINE " + inQuotes(each.name) + " is already defined in line " +
                             std::to_string(script.numberOf(script.subroutine(each.name)->line)) +
                             "; GOTO always uses that one");
        else if (!each.isUsed && !isUnused)
            findings.add("unused-subroutine", script, each.line, 1, "no GOTO names " + inQuotes(each.name));
    }
    if (isUnused)
        findings.add("unused-script", script, script.subroutines[0].line,
                     "no GOTO names a subroutine of this script, which contains nothing else");
}

} // namespace

bool isResourceNumber(const std::string& script)
{
    return !script.empty() &&
           std::all_of(script.begin(), script.end(), [](unsigned char c) { return std::isdigit(c); });
}

void checkCalls(std::vector<Script*>& scripts, const ScriptSet& set, Findings& findings)
{
    CallGraph(scripts, set, findings).run();
    for (Script* script : scripts)
        if (!script->isBroken)
            checkSubroutines(*script, findings);
}

} // namespace tgx::script_check
