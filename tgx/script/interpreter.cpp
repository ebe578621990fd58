#include "tgx/script/interpreter.h"

#include "tgx/script/run.h"
#include "tgx/wnd/screenlist.h"

namespace tgx {

LineResult executeLine(const ScriptLine& line)
{
    constexpr LineResult failed{lineFailed};

    if (!line.run.mayExecute())
        return failed;
    if (line.count < 1)
        return {};
    const Statement* statement = statementById(line.tokens[0].id);
    if (!statement)
        return failed;
    if (statement->kind == StatementKind::BlockBegin)
        return {1};
    if (statement->kind == StatementKind::BlockEnd)
        return {-1};

    // A line with too many tokens has a count that no row allows.
    const bool isCommand = statement->kind == StatementKind::Command;
    AWnd* root = line.window.getScreenList();
    if (!statement->counts.allow(line.count) || !statement->handler ||
        line.depth > deepestLevel(statement->kind) || !root)
        return failed;

    AWnd* target = line.current ? line.current : root;
    AWnd* made = nullptr;
    if (isCommand)
        return statement->handler(*target, line, made) ? LineResult{} : failed;
    if (!statement->target.fits(target->getWindowType()))
        return statement->target.otherwise == TargetRule::DoesNothing ? LineResult{0, true, nullptr} : failed;
    if (statement->kind == StatementKind::Window && !line.run.mayGrow(*root, *target))
        return failed;
    if (!statement->handler(*target, line, made))
        return failed;
    return {0, true, made};
}

} // namespace tgx
