#include "tgx/script/line_loop.h"

#include "platform/display/host.h"
#include "tgx/script/interpreter.h"
#include "tgx/script/observer.h"
#include "tgx/script/reader.h"

#include <algorithm>

namespace tgx {

ScriptObserver::~ScriptObserver() = default;

namespace {

void reportLine(int number, const CString& script, const CString& firstText, const std::string& cause)
{
    std::string text = "Encountered an error on line " + std::to_string(number) + " in ";
    text += static_cast<const char*>(script);
    text += "\nThe line is :\n\t";
    text += static_cast<const char*>(firstText);
    displayhost::current().showFailure(CString(text), cause);
}

/// Moves to the line that defines a window. Returns the number of the line before it: skipped lines are
/// counted as if they had been read.
int skipTo(LineLoop& loop, const CString& window)
{
    const auto start = loop.run.indexOf(*loop.stream).window(window.view());
    loop.stream->Seek(static_cast<long>(start ? start->position : loop.stream->GetLength()));
    return start ? start->line - 1 : 0;
}

} // namespace

bool LineLoop::next()
{
    start = stream->GetPosition();
    if (!readScriptLine(stream, tokens, maxLineTokens, &count))
        return false;
    run.countBytes(stream->GetPosition() - start);
    return true;
}

AWnd* LineLoop::current() const
{
    if (depth == 0)
        return outside;
    // No statement is executed at a greater depth.
    return depth <= wndStackSize ? open[depth - 1].get() : nullptr;
}

int LineLoop::execute()
{
    const LineResult result = executeLine({window, run, stream, tokens, count, current(), depth, gotoFiles});
    if (result.stores)
        open[depth] = result.made;
    if (!run.isOver())
        for (ScriptObserver* observer : observers)
            observer->lineExecuted({stream->GetFileName(), stream->GetFilePath(), start, tokens, count, depth,
                                    current(), result.depthChange, result.made});
    return result.depthChange;
}

void readLines(LineLoop& loop, const CString& toWindow, const CString& name)
{
    const bool wholeScript = toWindow.IsEmpty();
    int lineNumber = wholeScript ? 0 : skipTo(loop, toWindow);
    while (loop.next()) {
        ++lineNumber;
        // The window's own line, and any other line whose token 1 is its name, never ends the definition.
        const bool hasName =
            !wholeScript && loop.tokens[1].id == stringToken && loop.tokens[1].text == toWindow;
        const int change = loop.execute();
        if (change > lineFailed)
            loop.depth = std::max(loop.depth + change, 0);
        else if (loop.run.isOver())
            break; // a line refused because the run is over is not faulty
        else
            reportLine(lineNumber, name, loop.tokens[0].text, loop.run.takeFailureCause());
        loop.run.forgetFailureCause();
        if (!wholeScript && !hasName && loop.depth == 0)
            break;
    }
}

void runSubroutine(LineLoop& loop)
{
    while (loop.next()) {
        // The start of another subroutine does not end this one.
        if (loop.tokens[0].id == keyword::subroutine)
            continue;
        const int change = loop.execute();
        loop.depth += change;
        if (change == lineFailed || loop.depth <= 0)
            break;
    }
}

} // namespace tgx
