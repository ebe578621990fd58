#include "language/check/words.h"

#include "language/check/script.h"

namespace tgx::script_check {

namespace {

const char* nameOf(int type)
{
    switch (type) {
    case AWnd::WND_SCREEN:
        return "a screen";
    case AWnd::WND_BUTTON:
        return "a button";
    case AWnd::WND_EDITBOX:
        return "an edit box";
    case AWnd::WND_LISTBOX:
        return "a list box";
    case AWnd::WND_SCROLLBAR:
        return "a scroll bar";
    case AWnd::WND_COMBOBOX:
        return "a combo box";
    case AWnd::WND_PROGRESSBAR:
        return "a progress bar";
    case AWnd::WND_RADIOBUTTON:
        return "a radio button";
    case AWnd::WND_TABCONTROL:
        return "a tab control";
    case AWnd::WND_GRAPH:
        return "a graph";
    default:
        return "a plain window";
    }
}

} // namespace

std::string typeOf(const AWnd& wnd)
{
    return nameOf(wnd.getWindowType());
}

std::string typesOf(const TargetRule& rule)
{
    std::vector<std::string> names;
    for (int type = AWnd::WND_PLAIN; type <= AWnd::WND_GRAPH; ++type)
        if (rule.fits(type) && type != AWnd::WND_RESERVED)
            names.emplace_back(nameOf(type));
    std::string out;
    for (std::size_t i = 0; i < names.size(); ++i)
        out += (i == 0 ? "" : i + 1 == names.size() ? " or " : ", ") + names[i];
    return out;
}

std::string describe(AWnd& wnd)
{
    if (&wnd == getMainWin()->getScreenList())
        return "the root of all windows";
    if (!wnd.getID().IsEmpty())
        return inQuotes(wnd.getID().view());
    return "the" + typeOf(wnd).substr(typeOf(wnd).find(' '));
}

std::string noFont(int number, AMainWin& window)
{
    const int added = window.getFontCount() - 1;
    return "no ADDFONT defines font " + std::to_string(number) + "; " +
           (added > 0 ? "there are fonts 0 to " + std::to_string(added)
                      : "there is only font 0, the built-in one");
}

std::string size(long long width, long long height)
{
    return std::to_string(width) + " x " + std::to_string(height);
}

} // namespace tgx::script_check
