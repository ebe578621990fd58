// Lets the toolkit read the scripts, and explains the lines that fail.

#include "language/check/run.h"

#include "language/check/pictures.h"
#include "language/check/rules.h"
#include "language/check/words.h"
#include "platform/framework/datadir.h"
#include "platform/framework/text.h"
#include "platform/host/headless/headless_host.h"
#include "platform/limits.h"
#include "platform/system/clock.h"
#include "tgx/base/swapped.h"
#include "tgx/controls/listbox/listbox.h"

#include <algorithm>

namespace tgx::script_check {

namespace {

constexpr int pixelBits = 32;
/// The number of windows that are read one by one from a library, and the minimum work allowed for each.
constexpr std::size_t maxReads = 2000;
constexpr long long minWork = 4'000'000;
constexpr std::size_t maxMessages = 100; // kept between two lines

std::string memoryName(const Script& script)
{
    return "UIG\\" + script.name;
}

/// Collects up to most ids of the windows below a window, for suggestions.
void collectIds(AWnd& below, std::vector<std::string_view>& ids, std::size_t most)
{
    for (int i = 0; i < below.getWindowCount() && ids.size() < most; ++i) {
        AWnd* child = below.getWndFromIndex(i, "");
        if (!child)
            continue;
        if (!child->getID().IsEmpty())
            ids.push_back(child->getID().view());
        collectIds(*child, ids, most);
    }
}

} // namespace

/// A main window that makes a plain window for each class of the game and records these windows.
class Reading::Window : public AMainWin, public ScriptObserver {
public:
    explicit Window(Reading& owner)
        : AMainWin(owner.options.width, owner.options.height, pixelBits), reading(owner)
    {
        addScriptObserver(*this);
    }
    ~Window() override { removeScriptObserver(*this); }

    AWnd* createNewWindow(const CString& id, int x, int y, int w, int h, const CString&) override
    {
        if (isAddingScreen)
            return nullptr; // a screen of a game's class is checked as a plain screen
        auto* wnd = new AWnd(AWnd::WND_PLAIN, id, x, y, w, h);
        reading.gameWindows.insert(wnd);
        return wnd;
    }
    AScreen* addScreen(const CString& id, int x, int y, int w, int h) override
    {
        const Swapped adding(isAddingScreen, true);
        return AMainWin::addScreen(id, x, y, w, h);
    }
    void lineExecuted(const ExecutedLine& line) override { reading.handleLine(line); }
    void allow(long maxLines, long long work)
    {
        scriptLines = maxLines;
        scriptWork = work;
    }

private:
    Reading& reading;
    bool isAddingScreen = false;
};

Reading::Reading(const std::vector<Script*>& all, const ScriptSet& names, const Options& readingOptions,
                 Findings& found)
    : scripts(all), set(names), options(readingOptions), findings(found), main(names.find(mainScriptFile)),
      hostBefore(displayhost::use(nullptr))
{
    for (const Script* script : scripts) {
        hasAllScripts = hasAllScripts && !script->isBroken;
        knowsAllFonts = knowsAllFonts && !script->isBroken && !script->mayAddMoreFonts;
    }
    auto host = std::make_unique<HeadlessHost>();
    host->onMessage = [this](const CString& text) { handleMessage(text); };
    displayhost::use(std::move(host));
    for (const Script* script : scripts)
        setMemoryFile(memoryName(*script), script->bytes);
    if (main)
        mainResource = std::make_unique<EmbeddedResource>(
            "TGXScript", mainScriptResource, reinterpret_cast<const unsigned char*>(main->bytes->data()),
            main->bytes->size());
    app = std::make_unique<AControlsApp>(); // without a program name: no settings are read or written
    openWindow();
}

void Reading::openWindow()
{
    win.reset();
    app->mainWin = nullptr; // windows ask for it while they are made
    win = std::make_unique<Window>(*this);
    app->mainWin = win.get();
    unknownFonts = {nullptr};
    for (int i = 0; i < options.fonts; ++i) {
        const int index = win->addNewFont("", "", 1, 0); // the game's font is unknown; the call fails
        unknownFonts.insert(win->getFont(index));
    }
    fontCount = win->getFontCount();
    messages.clear();
}

Reading::~Reading()
{
    win.reset();
    app.reset();
    for (const Script* script : scripts)
        setMemoryFile(memoryName(*script), nullptr);
    displayhost::use(std::move(hostBefore));
}

AMainWin& Reading::window()
{
    return *win;
}

const WndLines* Reading::linesOf(const AWnd* wnd) const
{
    const auto found = lines.find(wnd);
    return found == lines.end() ? nullptr : &found->second;
}

bool Reading::isNamedStop(const AWnd& wnd) const
{
    return endedEarly || namedStops.contains(&wnd) || laterStops.contains(lowercased(wnd.getID().view()));
}

bool Reading::isKnownFont(const bmpfont* font) const
{
    return !unknownFonts.contains(font);
}

void Reading::read(Script& script)
{
    if (actsAsMain(script))
        openWindow();
    else
        win->recreateScreenList();
    lines.clear();
    top = nullptr;
    gameWindows.clear();
    pointedTo.clear();
    namedStops.clear();
    laterStops.clear();
    endedEarly = false;
    // Reading a script from top to bottom fails at each SUBROUTINE. A script with subroutines is a library,
    // from which windows are read one at a time.
    if (script.subroutines.empty())
        readWhole(script);
    else
        readWindows(script);
}

/// Returns whether the script is read with its own fonts only. If the main script has no fonts, this applies
/// to each script that adds some.
bool Reading::actsAsMain(const Script& script) const
{
    return script.fontCount() > 0 && &script != main && !(main && main->fontCount() > 0);
}

void Reading::readWhole(Script& script)
{
    readOnce(script, "", options.work);
}

void Reading::readWindows(Script& script)
{
    if (&script == main || actsAsMain(script))
        for (const LineRef& at : script.fontLines) {
            win->addNewFont(CString(at.script->string(at.line, 1)), CString(at.script->string(at.line, 2)),
                            at.script->number(at.line, 3), at.script->number(at.line, 4));
            checkMessages(at, false);
        }
    std::unordered_set<std::string_view> names;
    for (const int line : script.topWindows)
        if (const std::string& name = script.string(line, 1);
            !name.empty() && name != "static" && names.size() < maxReads)
            names.insert(name);
    const long long work = std::min(
        options.work,
        std::max(minWork, options.work / static_cast<long long>(std::max<std::size_t>(names.size(), 1))));
    for (const int line : script.topWindows)
        if (names.erase(script.string(line, 1)) > 0 && !ranTooLong)
            readOnce(script, script.string(line, 1), work);
}

void Reading::readOnce(Script& script, const std::string& toWindow, long long work)
{
    win->allow(options.lines, work);
    messages.clear();
    lastLine = {};
    ranTooLong = false;
    win->readScriptFile(CString(script.name), GetModuleHandleA(nullptr), noResource, CString(toWindow), 0);
    if (ranTooLong && lastLine)
        findings.add("limit-exceeded", *lastLine.script, lastLine.line,
                     "reading " + (toWindow.empty() ? script.name : inQuotes(toWindow)) +
                         " takes too long and is stopped here");
}

void Reading::handleMessage(const CString& message)
{
    if (message.view().ends_with(" runs too long"))
        ranTooLong = true;
    else if (messages.size() < maxMessages)
        messages.push_back(message);
}

/// Returns the script line that was executed, or nothing if it is not in a checked script. The toolkit does
/// not report the folder; among scripts of the same name, the first with a matching line at that offset is
/// chosen.
LineRef Reading::lineOf(const ExecutedLine& executed) const
{
    const auto find = [&](const Script* script) {
        const int line = script->lineAt(executed.offset);
        const Statement* statement = line < 0 ? nullptr : script->statement(line);
        return statement && statement->id == executed.tokens[0].id &&
                       script->tokenCount(line) == executed.count &&
                       script->string(line, 1) == executed.tokens[1].text.view()
                   ? LineRef{script, line}
                   : LineRef{};
    };
    if (executed.script.IsEmpty())
        return main ? find(main) : LineRef{};
    for (const Script* script : set.ofFile(executed.script.view()))
        if (const LineRef found = find(script))
            return found;
    return {};
}

void Reading::handleLine(const ExecutedLine& executed)
{
    const LineRef at = lineOf(executed);
    const Statement* statement = statementById(executed.tokens[0].id);
    if (!at || !statement || executed.count < 1) {
        messages.clear();
        return;
    }
    lastLine = at;
    const bool hasFailed = executed.depthChange <= lineFailed;
    checkMessages(at, hasFailed);
    AWnd* target = executed.current ? executed.current : win->getScreenList();
    if (target && statement->kind == StatementKind::Attribute)
        lines[target].attributes.push_back(at);
    if (hasFailed) {
        explainFailure(executed, target, at, *statement);
        lines[top].failed = at;
    } else {
        recordLine(executed, target, at, *statement);
    }
}

void Reading::recordLine(const ExecutedLine& executed, AWnd* target, LineRef at, const Statement& statement)
{
    const std::string_view keyword = statement.keyword;
    if (executed.made) {
        WndLines& entry = lines[executed.made];
        if (statement.kind == StatementKind::Reference) {
            pointedTo.insert(executed.made);
            if (!entry.made)
                entry.made = at;
        } else {
            entry = {at, at, at, {}, {}};
            if (executed.made->getParent() == win->getScreenList())
                top = executed.made;
        }
        return;
    }
    const bool isKnown = target && !isGameWindow(target);
    if (statement.kind != StatementKind::Attribute && statement.kind != StatementKind::Window)
        return;
    if (isKnown && !statement.target.fits(target->getWindowType())) {
        findings.add("no-effect", *at.script, at.line,
                     std::string(keyword) + " has no effect on " + describe(*target));
        return;
    }
    if (!target)
        return;
    WndLines& entry = lines[target];
    if (keyword == "TEXT") {
        entry.text = at;
    } else if (keyword == "BMPFILE") {
        entry.bitmap = at;
    } else if (keyword == "BORDER") {
        entry.border = at;
        if (isKnown && executed.count == 5 && target->getWindowType() != AWnd::WND_LISTBOX)
            findings.add("no-effect", *at.script, at.line, 4,
                         "the second bitmap of a BORDER is only for list boxes; " + describe(*target) +
                             " ignores it");
    } else if (keyword == "COLUMNS" && isKnown && executed.count > 1 &&
               static_cast<AListBox*>(target)->getItemCount() > 0) {
        findings.add("late-columns", *at.script, at.line,
                     describe(*target) + " already has rows; COLUMNS must come before them");
    }
}

void Reading::explainFailure(const ExecutedLine& executed, AWnd* target, LineRef at,
                             const Statement& statement)
{
    const std::string_view keyword = statement.keyword;
    if (!statement.counts.allow(executed.count) || !statement.handler ||
        executed.depth > deepestLevel(statement.kind) || !target)
        return; // reported by the rules for lines and blocks
    const auto add = [&](const char* code, int token, std::string text) {
        findings.add(code, *at.script, at.line, token, std::move(text));
    };
    if (statement.kind != StatementKind::Command && !statement.target.fits(target->getWindowType())) {
        explainWrongWindow(executed, *target, at, statement);
    } else if (keyword == "FONT" || keyword == "LISTFONTS") {
        for (int i = 1; i < executed.count && knowsAllFonts; ++i)
            if (!win->getFont(executed.tokens[i].value))
                add("no-font", i, noFont(executed.tokens[i].value, *win));
    } else if (keyword == "TABORDER" || keyword == "TABLIST1" || keyword == "TABLIST2") {
        explainMissingWindow(executed, *target, at);
    } else if (keyword == "POINTER") {
        explainPointer(at);
    } else if (keyword == "GOTO") {
        explainGoto(executed, at);
    } else if (keyword == "RADIOBUTTON") {
        add("limit-exceeded", 0, "the radio group has too many members, or windows are nested too deeply");
    } else if (makesWindow(statement)) {
        add("limit-exceeded", 0, "windows are nested too deeply, or are shown in too many places");
    } else if (keyword == "ITEM") {
        const int columns = static_cast<AListBox*>(target)->getColumnCount();
        add("missing-column", std::min(executed.count - 1, columns + 1),
            "this row has more cells than " + describe(*target) +
                " had columns before its first row: " + std::to_string(columns));
    } else {
        add("line-fails", 0, std::string(keyword) + " fails when the toolkit reads it");
    }
}

void Reading::explainWrongWindow(const ExecutedLine& executed, AWnd& target, LineRef at,
                                 const Statement& statement)
{
    if (isGameWindow(&target)) {
        endedEarly = endedEarly || at.script->place(at.line).subroutine != LinePlace::none;
        return;
    }
    const std::string name = target.getID().IsEmpty() ? "this" : describe(target);
    findings.add("wrong-window", *at.script, at.line,
                 std::string(statement.keyword) + " acts on " + typesOf(statement.target) +
                     (executed.current ? ", but " + name + " is " + typeOf(target)
                                       : ", but it is not in a window's block"));
}

void Reading::explainGoto(const ExecutedLine& executed, LineRef at)
{
    const Script* called = set.calledBy(*at.script, at.line);
    const Subroutine* body = called ? called->subroutine(executed.tokens[1].text.view()) : nullptr;
    // A missing or recursive subroutine is reported by the rules for calls.
    if (body && !body->reachesRing)
        findings.add("limit-exceeded", *at.script, at.line, 1,
                     "calls of subroutines are nested more than " + std::to_string(limits::subroutineDepth) +
                         " deep here");
}

void Reading::explainMissingWindow(const ExecutedLine& executed, AWnd& target, LineRef at)
{
    const LinePlace& place = at.script->place(at.line);
    // Returns the later line of the same block that makes the window, or -1.
    const auto comesLater = [&](std::string_view name) {
        for (int line = at.line + 1;
             place.block >= 0 && line < at.script->lineCount() && at.script->place(line).depth >= place.depth;
             ++line)
            if (CString::equalNoCase(at.script->string(line, 1), name) && at.script->statement(line) &&
                namesItsWindow(*at.script->statement(line)))
                return line;
        return -1;
    };
    std::vector<std::string_view> ids;
    constexpr std::size_t maxIds = 2001;
    collectIds(target, ids, maxIds);
    const bool mayBeMade = containsGameWindow(target) || !hasAllScripts || endedEarly;
    for (int i = 1; i < executed.count; ++i) {
        // The line has failed, but the windows that it names count as listed, to avoid further findings.
        if (const AWnd* named = target.getWnd(executed.tokens[i].text, 1)) {
            namedStops.insert(named);
            continue;
        }
        const std::string_view name = executed.tokens[i].text.view();
        std::string text = "no window " + inQuotes(name) + " in " + describe(target) + " at this point";
        if (const int later = comesLater(name); later >= 0) {
            laterStops.insert(lowercased(name));
            text += "; it is defined later, in line " + std::to_string(at.script->numberOf(later));
        } else if (mayBeMade) {
            continue;
        } else if (const std::string_view near = findings.nearest(name, ids); !near.empty()) {
            text += didYouMean(near);
            if (const AWnd* meant = target.getWnd(CString(std::string(near)), 1))
                namedStops.insert(meant);
        }
        findings.add("missing-window", *at.script, at.line, i, text, lines[top].failed);
    }
}

void Reading::explainPointer(LineRef at)
{
    const std::string& name = at.script->string(at.line, 1);
    if (win->getWnd(CString(name), 1)) {
        findings.add("pointer-inside", *at.script, at.line, 1,
                     inQuotes(name) +
                         " cannot be shown here: it would be inside itself, or nested too deeply");
        return;
    }
    if (endedEarly)
        return;
    const bool namesScript = at.script->tokenCount(at.line) > 2;
    const std::string& file = at.script->string(at.line, 2);
    const Script* script = namesScript ? set.find(file) : main;
    if (namesScript && (!script || script->isBroken))
        return; // already reported, or unknown
    if (!namesScript && !main)
        return; // the window may be in an embedded script
    std::string text =
        "no window " + inQuotes(name) + " exists at this point, nor at the top level of " + script->name;
    for (const Script* each : scripts)
        if (each != script)
            for (const int line : each->topWindows)
                if (each->string(line, 1) == name) {
                    findings.add("missing-pointer", *at.script, at.line, 1,
                                 text + "; " + each->name + " defines it: name that script");
                    return;
                }
    findings.add("missing-pointer", *at.script, at.line, 1, std::move(text), lines[top].failed);
}

/// Reports problems with fonts, from the messages of the toolkit while it executed the line.
void Reading::checkMessages(LineRef at, bool hasFailed)
{
    const int count = win->getFontCount();
    if (at.script->isKeyword(at.line, "ADDFONT") && !hasFailed) {
        if (count == fontCount) {
            findings.add("limit-exceeded", *at.script, at.line,
                         "the font table is full: it has " + std::to_string(limits::fonts) + " entries");
        } else if (!messages.empty()) {
            unknownFonts.insert(win->getFont(count - 1));
            const int size = at.script->number(at.line, 3);
            if (options.hasData)
                findings.add("missing-font", *at.script, at.line, 1,
                             "the font " + inQuotes(at.script->string(at.line, 1)) + " cannot be loaded" +
                                 (size < 1 || size > limits::fontPixels
                                      ? " at this size; expected 1 to " + std::to_string(limits::fontPixels)
                                      : "") +
                                 "; the built-in font is used instead" +
                                 fileHint(at.script->string(at.line, 1), findings));
        }
    }
    fontCount = count;
    messages.clear();
}

/// Returns whether the window is, or contains, a window of the game's own class, which may make further
/// windows.
bool Reading::containsGameWindow(AWnd& wnd) const
{
    if (isGameWindow(&wnd))
        return true;
    for (int i = 0; i < wnd.getWindowCount(); ++i)
        if (AWnd* child = wnd.getWndFromIndex(i, ""); child && containsGameWindow(*child))
            return true;
    return false;
}

} // namespace tgx::script_check
