#include "player/events.h"

#include "platform/framework/exceptions.h"
#include "platform/host/headless/headless_host.h"
#include "platform/media/encoding.h"
#include "platform/media/image_file.h"
#include "player/calls.h"
#include "player/expect.h"
#include "player/keys.h"
#include "player/player.h"
#include "player/pointing.h"
#include "player/reports.h"

#include <limits>
#include <ostream>

namespace tgx {

namespace {

/// Returns the optional count [N] of an event, 1 by default.
int countOf(const Event& event)
{
    return event.has(1) ? static_cast<int>(event.number(1, 0, std::numeric_limits<int>::max())) : 1;
}

void frame(const Event& event)
{
    for (int i = countOf(event); i > 0 && !event.player.hasEnded(); --i)
        event.player.frame();
}

void tick(const Event& event)
{
    event.player.tick(countOf(event));
}

void draw(const Event& event)
{
    event.player.draw(countOf(event));
}

void move(const Event& event)
{
    if (event.text(1) == "to")
        return moveTo(event);
    if (event.has(3))
        throw WrongLine("expected move X Y or move to ID [X Y]");
    event.input.move(event.coordinate(1), event.coordinate(2));
}

std::optional<MouseButton> findButton(const std::string& name)
{
    if (name == "left")
        return MouseButton::Left;
    if (name == "right")
        return MouseButton::Right;
    if (name == "middle")
        return MouseButton::Middle;
    return std::nullopt;
}

MouseButton button(const Event& event)
{
    if (const auto named = findButton(event.text(1)))
        return *named;
    throw WrongLine("no button " + quote(event.text(1)) + "; buttons are left, right and middle");
}

void press(const Event& event)
{
    event.input.press(button(event));
}

void release(const Event& event)
{
    event.input.release(button(event));
}

void doubleClick(const Event& event)
{
    if (const auto named = findButton(event.text(1)))
        event.input.doubleClick(*named);
    else
        doubleClickOn(event);
}

void wheel(const Event& event)
{
    if (event.text(1) != "up" && event.text(1) != "down")
        throw WrongLine("expected up or down, found " + quote(event.text(1)));
    event.input.wheel(event.text(1) == "up");
}

void key(const Event& event)
{
    std::uint8_t code = parseKey(event.words[1]);
    event.input.key(code, characterOf(code, event.win.keyDown[VK_SHIFT] != 0));
}

void type(const Event& event)
{
    for (char character : event.text(1))
        event.input.key(keyThatTypes(character), character);
}

void hold(const Event& event)
{
    event.player.getHost().input().hold(event.win, parseKey(event.words[1]), true);
}

void lift(const Event& event)
{
    event.player.getHost().input().hold(event.win, parseKey(event.words[1]), false);
}

void change(const Event& event)
{
    if (event.has(2) && event.text(2) != "close")
        throw WrongLine("expected close or nothing, found " + quote(event.text(2)));
    AScreen* screen = event.win.changeScreen(CString(event.text(1)), event.has(2), mainScriptResource,
                                             CString(event.player.getOptions().script));
    if (screen && !screen->isOpen())
        screen->initialise(); // changeScreen leaves this to its caller when it changes at once
}

void exit(const Event& event)
{
    event.win.exitProgram();
}

void call(const Event& event)
{
    std::string value = callOperation(event.win, event.words.subspan(1));
    event.player.getOut() << event.line << ": " << value << '\n' << std::flush;
}

void shot(const Event& event)
{
    const Image& screen = event.win.getScreenImage();
    if (screen.width <= 0 || screen.height <= 0)
        throw WrongLine("no frame has been shown yet");
    if (!writePng(screen, event.player.outputPath(event.fileName(1))))
        throw WrongLine("cannot write " + quoteName(event.fileName(1)));
}

void tree(const Event& event)
{
    event.player.writeFile(event.fileName(1), treeReport(event.win));
}

void trace(const Event& event)
{
    event.player.writeFile(event.fileName(1), traceReport(event.win));
}

void fonts(const Event& event)
{
    event.player.writeFile(event.fileName(1), fontsReport(event.win));
}

void include(const Event& event)
{
    event.player.include(event.fileName(1));
}

void test(const Event& event)
{
    event.player.beginTest();
}

constexpr std::size_t anyNumber = std::numeric_limits<std::size_t>::max();

/// The events language, one row for each event.
const struct EventRow {
    std::string_view name;
    std::size_t fewest, most; // words after the name
    void (*run)(const Event& event);
    std::string_view form;
    std::string_view place = "the event"; // where an invalid argument occurs, for the message
} eventRows[] = {
    {"frame", 0, 1, frame, "frame [N]", "a tick"},
    {"tick", 0, 1, tick, "tick [N]", "a tick"},
    {"draw", 0, 1, draw, "draw [N]"},
    {"move", 2, 4, move, "move X Y or move to ID [X Y]"},
    {"press", 1, 1, press, "press left|right|middle"},
    {"release", 1, 1, release, "release left|right|middle"},
    {"doubleclick", 1, 1, doubleClick, "doubleclick left|right|middle|ID", "a tick"},
    {"wheel", 1, 1, wheel, "wheel up|down"},
    {"key", 1, 1, key, "key NAME"},
    {"type", 1, 1, type, "type \"TEXT\""},
    {"hold", 1, 1, hold, "hold NAME"},
    {"lift", 1, 1, lift, "lift NAME"},
    {"change", 1, 2, change, "change NAME [close]", "the screen change"},
    {"exit", 0, 0, exit, "exit", "the exit"},
    {"click", 1, 1, click, "click ID", "a tick"},
    {"hover", 1, 1, hover, "hover ID", "a tick"},
    {"row", 2, 3, clickRow, "row ID N [COLUMN]", "a tick"},
    {"wait", 2, anyNumber, waitUntil, "wait until EXPECTATION [N]", "a tick"},
    {"expect", 1, anyNumber, expect, "expect EXPECTATION"},
    {"include", 1, 1, include, "include FILE"},
    {"test", 1, 1, test, "test \"NAME\"", "the start"},
    {"call", 2, anyNumber, call, "call TARGET OPERATION ARG ..."},
    {"shot", 1, 1, shot, "shot FILE.png"},
    {"tree", 1, 1, tree, "tree FILE.json"},
    {"trace", 1, 1, trace, "trace FILE.jsonl"},
    {"fonts", 1, 1, fonts, "fonts FILE.json"},
};

} // namespace

std::string Event::fileName(std::size_t index) const
{
    std::string name;
    for (const char c : text(index)) // a zero byte is kept, so that it is refused
        name += c ? utf8From1252({&c, 1}) : std::string(1, c);
    return name;
}

std::int64_t Event::number(std::size_t index, std::int64_t lowest, std::int64_t highest) const
{
    const auto value = parseNumber(words[index]);
    if (!value || *value < lowest || *value > highest)
        throw WrongLine("expected a number from " + std::to_string(lowest) + " to " +
                        std::to_string(highest) + ", found " + quote(text(index)));
    return *value;
}

int Event::coordinate(std::size_t index) const
{
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<int>(number(index, Limits::min(), Limits::max()));
}

void runEvent(Player& player, std::span<const Word> words, int line)
{
    const std::string& name = words[0].text;
    std::vector<std::string> names;
    for (const EventRow& row : eventRows) {
        names.emplace_back(row.name);
        if (row.name != name)
            continue;
        std::size_t arguments = words.size() - 1;
        if (arguments < row.fewest || arguments > row.most)
            throw WrongLine("expected " + std::string(row.form) + ", found " + std::to_string(arguments) +
                            (arguments == 1 ? " word after " : " words after ") + name);
        try {
            row.run({player, *player.getMainWin(), player.getInput(), words, line});
        } catch (const CInvalidArgException&) {
            throw WrongLine("invalid argument in " + std::string(row.place));
        }
        return;
    }
    std::string suggestion = suggest(name, names);
    throw WrongLine("no event " + quote(name) +
                    (suggestion.empty() ? "; events are " + listNames(names, names.size()) : suggestion));
}

} // namespace tgx
