#include "player/calls.h"

#include "platform/framework/exceptions.h"

namespace tgx {

namespace {

std::vector<std::span<const Operation>>& gameOperations()
{
    static std::vector<std::span<const Operation>> added;
    return added;
}

std::vector<std::span<const Operation>> allOperations()
{
    std::vector<std::span<const Operation>> families = gameOperations();
    families.insert(families.end(), {mainWinOperations, ddwinOperations, screenOperations, controlOperations,
                                     displayOperations, listOperations, wndOperations});
    return families;
}

/// Lists the windows that a caller could have meant: "the screen "MENU" has OK and CANCEL".
std::string describeWindows(AMainWin& win)
{
    AScreen* screen = win.getActiveScreen();
    if (!screen)
        return "no screen is active";
    std::vector<std::string> ids;
    auto collect = [&](auto& self, AWnd& wnd) -> void {
        for (int i = 0; i < wnd.getWindowCount(); ++i) {
            AWnd* child = wnd.getWndFromIndex(i, "");
            if (!child)
                continue;
            if (!child->getID().IsEmpty())
                ids.push_back(child->getID().str());
            self(self, *child);
        }
    };
    collect(collect, *screen);
    std::string name = "the screen " + quote(screen->getID().view());
    return ids.empty() ? name + " has no windows with an id" : name + " has " + listNames(ids);
}

CallTarget findTarget(AMainWin& win, const std::string& name)
{
    if (name == "main")
        return {&win, nullptr};
    AWnd* wnd = findWindow(win, name);
    if (!wnd)
        throw WrongLine(describeMissingWindow(win, name));
    return {nullptr, wnd};
}

CallArgument readArgument(AMainWin& win, const Word& word)
{
    CallArgument argument{word, parseNumber(word), parseFixed(word), nullptr, false};
    argument.isNull = !word.quoted && word.text == "null";
    if (!argument.isNull)
        argument.wnd = findWindow(win, word.text);
    return argument;
}

/// Returns the rows called name of the target's class; others gets the names of its other rows.
std::vector<const Operation*> findOperations(const CallTarget& target, const std::string& name,
                                             std::vector<std::string>& others)
{
    std::vector<const Operation*> rows;
    for (std::span<const Operation> family : allOperations()) {
        for (const Operation& row : family) {
            if (!row.isOperationOf(target))
                continue;
            if (row.name == name)
                rows.push_back(&row);
            else
                others.push_back(row.name);
        }
    }
    return rows;
}

} // namespace

void addOperations(std::span<const Operation> rows)
{
    gameOperations().push_back(rows);
}

AWnd* findWindow(AMainWin& win, const std::string& id)
{
    AScreenList* root = win.getScreenList();
    if (!root)
        return nullptr;
    if (AWnd* wnd = root->getWnd(CString(id), 1))
        return wnd;
    return CString::equalNoCase(root->getID().view(), id) ? root : nullptr;
}

std::string describeMissingWindow(AMainWin& win, const std::string& id)
{
    return "no window " + quote(id) + "; " + describeWindows(win);
}

std::string callOperation(AMainWin& win, std::span<const Word> words)
{
    CallTarget target = findTarget(win, words[0].text);
    const std::string& name = words[1].text;
    std::vector<std::string> others;
    std::vector<const Operation*> rows = findOperations(target, name, others);
    if (rows.empty())
        throw WrongLine(quote(words[0].text) + " has no operation " + quote(name) + suggest(name, others));

    std::vector<CallArgument> arguments;
    for (const Word& word : words.subspan(2))
        arguments.push_back(readArgument(win, word));
    const Operation* best = nullptr;
    int bestDistance = 0;
    for (const Operation* row : rows) {
        int distance = row->distance(arguments);
        if (distance != callable::doesNotFit && (!best || distance < bestDistance)) {
            best = row;
            bestDistance = distance;
        }
    }
    if (!best) {
        std::vector<std::string> forms;
        for (const Operation* row : rows)
            forms.push_back(row->describe());
        std::string found;
        for (const CallArgument& argument : arguments)
            found += (found.empty() ? "" : " ") +
                     (argument.word.quoted ? quote(argument.word.text) : argument.word.text);
        throw WrongLine("arguments do not fit: " + name + " takes " + listNames(forms) + ", found " +
                        (found.empty() ? "none" : found));
    }
    try {
        return best->call(target, arguments);
    } catch (const CInvalidArgException&) {
        return invalidArgumentValue;
    }
}

} // namespace tgx
