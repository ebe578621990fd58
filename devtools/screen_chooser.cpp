#include "devtools/screen_chooser.h"

#include "language/text/text_files.h"
#include "platform/display/keys.h"
#include "tgx/frame/mainwin.h"
#include "tgx/script/reader.h"
#include "tgx/script/vocabulary.h"

#include <algorithm>
#include <string_view>

namespace tgx {

namespace {

constexpr int linesAround = 5; // taken by the panel's edges and margins, and by its heading
constexpr std::uint32_t headingColour = 0x9FB2C6;
constexpr std::uint32_t chosenColour = 0xFFE08A;

/// The first two tokens of a line.
struct LineStart {
    int count = 0;
    unsigned keywordId = 0;
    std::string_view name;

    void number(short) { ++count; }
    void string(std::string_view text)
    {
        if (++count == 2)
            name = text;
    }
    void keyword(unsigned char id)
    {
        if (++count == 1)
            keywordId = id;
    }
};

/// Adds a screen, unless an earlier script defines its id.
void add(NamedScreen screen, std::vector<NamedScreen>& screens)
{
    const auto isSame = [&](const NamedScreen& each) { return each.id == screen.id; };
    if (std::none_of(screens.begin(), screens.end(), isSame))
        screens.push_back(std::move(screen));
}

void addScreensOf(std::string_view bytes, const std::string& script, std::vector<NamedScreen>& screens)
{
    const char* const end = bytes.data() + bytes.size();
    for (const char* at = bytes.data(); at && at != end;) {
        LineStart line;
        at = scanLine(at, end, line);
        const Statement* statement = at && line.keywordId ? statementById(line.keywordId) : nullptr;
        if (statement && statement->kind == StatementKind::Screen && !line.name.empty())
            add({std::string(line.name), script}, screens);
    }
}

} // namespace

std::vector<NamedScreen> screensOf(AMainWin& game, const Sources& sources, const std::string& mainScript)
{
    std::vector<Sources::Script> scripts = sources.scripts();
    std::stable_partition(scripts.begin(), scripts.end(), [&](const Sources::Script& each) {
        return CString::equalNoCase(each.name, mainScript);
    });
    std::vector<NamedScreen> screens;
    for (const Sources::Script& script : scripts)
        addScreensOf(*script.bytes, script.name, screens);
    AScreenList* list = game.getScreenList();
    for (int i = 0; list && i < list->getWindowCount(); ++i) {
        const AWnd* screen = list->getWndFromIndex(i, CString());
        if (screen && screen->getWindowType() == AWnd::WND_SCREEN && !screen->getID().IsEmpty())
            add({screen->getID().str(), mainScript}, screens);
    }
    return screens;
}

bool ScreenChooser::open()
{
    screens = screensOf(game, sources, mainScript);
    chosen = 0;
    for (std::size_t i = 0; i < screens.size(); ++i)
        if (const AScreen* active = game.getActiveScreen();
            active && active->getID() == screens[i].id.c_str())
            chosen = static_cast<int>(i);
    return isOpen();
}

void ScreenChooser::keyPressed(int code)
{
    switch (code) {
    case VK_UP:
        return choose(chosen - 1);
    case VK_DOWN:
        return choose(chosen + 1);
    case VK_HOME:
        return choose(0);
    case VK_END:
        return choose(static_cast<int>(screens.size()) - 1);
    case VK_RETURN:
        return go();
    case VK_ESCAPE:
        return close();
    default:
        if (code >= 'A' && code <= 'Z')
            chooseByLetter(static_cast<char>(code));
    }
}

void ScreenChooser::choose(int index)
{
    chosen = std::clamp(index, 0, static_cast<int>(screens.size()) - 1);
}

void ScreenChooser::chooseByLetter(char letter)
{
    const auto count = static_cast<int>(screens.size());
    for (int step = 1; step <= count; ++step) {
        const int index = (chosen + step) % count;
        const std::string& id = screens[static_cast<std::size_t>(index)].id;
        if (CString::equalNoCase(std::string_view(id).substr(0, 1), std::string_view(&letter, 1)))
            return choose(index);
    }
}

void ScreenChooser::go()
{
    const NamedScreen target = screens[static_cast<std::size_t>(chosen)];
    close();
    const AScreen* active = game.getActiveScreen();
    if (!active || active->getID() != target.id.c_str())
        game.changeScreen(CString(target.id), 1, mainScriptResource, CString(target.script));
}

/// Paints the list, or the part of it around the chosen screen if it does not fit.
void ScreenChooser::paint(Overlay& overlay) const
{
    const auto count = static_cast<int>(screens.size());
    const int rows = std::clamp(overlay.height() / overlay.lineHeight() - linesAround, 1, count);
    const int first = std::clamp(chosen - rows / 2, 0, count - rows);
    std::vector<PanelLine> lines{
        {"screen " + std::to_string(chosen + 1) + " of " + std::to_string(count), headingColour}};
    for (int i = first; i < first + rows; ++i) {
        const NamedScreen& each = screens[static_cast<std::size_t>(i)];
        lines.push_back({each.id + "  " + each.script, i == chosen ? chosenColour : PanelLine().colour});
    }
    lines.push_back({"Return opens it \xB7 Esc closes", headingColour});
    paintPanel(overlay, lines, Corner::TopLeft);
}

} // namespace tgx
