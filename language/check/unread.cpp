// Rules for arguments and lines that the toolkit does not read.

#include "language/check/rules.h"

#include <algorithm>

namespace tgx::script_check {

namespace {

/// Returns how many arguments the form names, or -1 if the last one may be repeated.
int argumentsRead(const Statement& statement)
{
    const std::string_view form = statement.form;
    if (form.ends_with("..."))
        return -1;
    return form.empty() ? 0 : static_cast<int>(std::count(form.begin(), form.end(), ' ')) + 1;
}

/// Checks statements that accept any number of arguments but only read the first ones.
void checkRest(const Script& script, int line, const Statement& statement, Findings& findings)
{
    const int read = argumentsRead(statement);
    if (read >= 0 && statement.counts.allow(script.tokenCount(line)) && script.tokenCount(line) > read + 1)
        findings.add("no-effect", script, line, read + 1,
                     std::string(statement.keyword) + " reads " + std::to_string(read) +
                         (read == 1 ? " argument" : " arguments") + "; it ignores the rest");
}

} // namespace

void checkUnread(const Script& script, Findings& findings)
{
    constexpr int usualMode = -1;
    constexpr int lastMode = 3;
    const bool isLibrary = !script.subroutines.empty() && !isMain(script);
    for (int line = 0; line < script.lineCount(); ++line) {
        const Statement* statement = script.statement(line);
        if (!statement || script.line(line).isVerbatim)
            continue;
        checkRest(script, line, *statement, findings);
        const std::string_view keyword = statement->keyword;
        const LinePlace& place = script.place(line);
        if (keyword == "BMPBLITMODE" &&
            (script.number(line, 1) < usualMode || script.number(line, 1) > lastMode))
            findings.add("no-effect", script, line, 1,
                         "there is no mode " + std::to_string(script.number(line, 1)) +
                             "; 0 is normal, 1 opaque, 2 half, 3 additive");
        else if (keyword == "BORDER" && script.tokenCount(line) > 1 && script.string(line, 1).empty())
            findings.add("missing-bitmap", script, line, 1,
                         "a border needs a picture, but this name is empty");
        else if (keyword == "FONT" && isLibrary && place.depth == 0 && place.subroutine == LinePlace::none)
            findings.add("no-effect", script, line,
                         "windows are read one by one from a script with subroutines, and this line is not "
                         "part of any; move the FONT into a window's block");
    }
}

} // namespace tgx::script_check
