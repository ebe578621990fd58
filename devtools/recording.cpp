#include "devtools/recording.h"

#include "platform/display/keys.h"
#include "player/keys.h"
#include "player/words.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace tgx {

namespace {

using Step = RecordedStep;
using Kind = RecordedStep::Kind;

constexpr std::string_view clickWord = "click ";

// Times in ticks.
constexpr long pauseInText = 60;    // a longer pause separates two lines of text
constexpr long pauseInWheel = 20;   // a longer pause separates two runs of notches
constexpr long leverRest = 10;      // a held lever that stays that long is there on purpose
constexpr long longHold = 20;       // a game may react to a key that is held that long
constexpr long longWait = 200;      // longer waits are written with a limit; the default limit is 240
constexpr long waitAllowance = 240; // added to the recorded time for the limit

bool hasCharacter(const Step& key)
{
    const auto character = static_cast<unsigned char>(key.character);
    return character >= 0x20 && character != 0x7F;
}

/// Returns whether an edit box only uses the key's character.
bool isText(const Step& step)
{
    return step.kind == Kind::Key && step.isTyped && hasCharacter(step);
}

bool isInput(const Step& step)
{
    return step.kind == Kind::Transition || step.kind == Kind::Click || step.kind == Kind::Key;
}

bool isWheel(const Step& step)
{
    return step.kind == Kind::Transition && step.line.starts_with("wheel");
}

/// Returns the index of the step that releases the key held by the step at index, or steps.size().
std::size_t endOfHold(std::span<const Step> steps, std::size_t index)
{
    std::size_t end = index + 1;
    while (end < steps.size() &&
           !(steps[end].kind == Kind::Hold && steps[end].code == steps[index].code && !steps[end].held))
        ++end;
    return end;
}

/// Returns whether holding the key matters beyond its own events. An edit box only looks at characters.
bool isRelevantHold(std::span<const Step> steps, std::size_t index, std::size_t end)
{
    bool hasText = false;
    for (const Step& step : steps.subspan(index + 1, end - index - 1)) {
        const bool isOwn = step.kind == Kind::Key && step.code == steps[index].code;
        if (isInput(step) && !isOwn && !step.isTyped)
            return true;
        hasText = hasText || step.isTyped;
    }
    return !hasText && end < steps.size() && steps[end].tick - steps[index].tick >= longHold;
}

/// Returns whether the step is a release, a modifier that only forms a character, or a move on the way to
/// another one.
bool hasNoEffect(std::span<const Step> steps, std::size_t index)
{
    const Step& step = steps[index];
    switch (step.kind) {
    case Kind::Hold:
        return !step.held;
    case Kind::Key:
        return step.isTyped && isModifier(step.code);
    case Kind::Move:
        return step.isPassedThrough && index + 1 < steps.size() && steps[index + 1].kind == Kind::Move &&
               steps[index + 1].tick - step.tick < leverRest;
    default:
        return false;
    }
}

/// Writes a hold with its release if it is relevant, and leaves it out otherwise.
void selectHold(std::span<const Step> steps, std::size_t index, std::vector<bool>& isLeftOut)
{
    const std::size_t end = endOfHold(steps, index);
    isLeftOut[index] = !isRelevantHold(steps, index, end);
    if (isLeftOut[index])
        return;
    if (end < steps.size())
        isLeftOut[end] = false;
    const int code = steps[index].code;
    for (std::size_t i = index + 1; i < end; ++i) // the hold includes the modifier's own key
        if (steps[i].kind == Kind::Key && steps[i].code == code && isModifier(code))
            isLeftOut[i] = true;
}

/// Leaves out holds and other steps without an effect.
std::vector<Step> relevantSteps(std::span<const Step> steps)
{
    std::vector<bool> isLeftOut(steps.size());
    for (std::size_t i = 0; i < steps.size(); ++i)
        isLeftOut[i] = hasNoEffect(steps, i);
    for (std::size_t i = 0; i < steps.size(); ++i)
        if (steps[i].kind == Kind::Hold && steps[i].held)
            selectHold(steps, i, isLeftOut);
    std::vector<Step> kept;
    for (std::size_t i = 0; i < steps.size(); ++i)
        if (!isLeftOut[i])
            kept.push_back(steps[i]);
    return kept;
}

class EventsWriter {
public:
    explicit EventsWriter(std::span<const Step> recorded) : steps(relevantSteps(recorded)) {}
    std::vector<std::string> write(long endTick)
    {
        for (std::size_t i = 0; i < steps.size();)
            i += writeFrom(i);
        runUntilTaken(endTick);
        return std::move(lines);
    }

private:
    /// Writes the step at index, with those that belong to it. Returns how many steps it has written.
    std::size_t writeFrom(std::size_t index);
    std::size_t writeClick(std::size_t index);
    std::size_t writeText(std::size_t index);
    void writeKey(const Step& key);
    void writeHold(const Step& hold);
    void writeShown(const Step& shown);

    void runUntil(long tick)
    {
        if (tick <= now)
            return;
        const long frames = tick - now;
        waiting = std::max(0L, waiting - frames);
        now = tick;
        if (framesInLine > 0)
            lines.pop_back();
        framesInLine += frames;
        lines.push_back(framesInLine == 1 ? "frame" : "frame " + std::to_string(framesInLine));
    }
    /// Runs until the tick, and until the queue is empty.
    void runUntilTaken(long tick) { runUntil(std::max(tick, now + waiting)); }
    void add(std::string line)
    {
        lines.push_back(std::move(line));
        framesInLine = 0;
    }
    void queue(std::string line, long transitions = 1)
    {
        add(std::move(line));
        waiting += transitions;
    }

    const std::vector<Step> steps;
    std::vector<std::string> lines;
    long framesInLine = 0; // in the last line
    long now = 0;          // ticks that the lines have run so far
    long waiting = 0;      // transitions that no tick has taken yet
    bool shiftIsHeld = false;
    bool hasNotedSecondCode = false;
};

std::size_t EventsWriter::writeFrom(std::size_t index)
{
    const Step& step = steps[index];
    switch (step.kind) {
    case Kind::Transition: {
        const bool continuesRun = index > 0 && isWheel(step) && isWheel(steps[index - 1]) &&
                                  step.tick - steps[index - 1].tick <= pauseInWheel;
        if (!continuesRun)
            runUntil(step.tick);
        queue(step.line);
        break;
    }
    case Kind::Move:
        runUntil(step.tick);
        add(step.line);
        break;
    case Kind::Approach:
        runUntil(step.tick);
        add(step.line);
        runUntil(now + 1 + waiting);
        break;
    case Kind::Hover:
        runUntil(step.tick);
        add(step.line);
        now += 1;
        waiting = 0;
        break;
    case Kind::Click:
        return writeClick(index);
    case Kind::Key:
        if (isText(step))
            return writeText(index);
        runUntil(step.tick);
        writeKey(step);
        break;
    case Kind::Hold:
        writeHold(step);
        break;
    case Kind::Shown:
        writeShown(step);
        break;
    case Kind::Note:
        add("# " + step.line);
        break;
    }
    return 1;
}

std::size_t EventsWriter::writeClick(std::size_t index)
{
    const Step& click = steps[index];
    const auto isNext = [&](std::size_t distance, std::string_view line) {
        return index + distance < steps.size() && steps[index + distance].kind == Kind::Transition &&
               steps[index + distance].line == line;
    };
    const std::string id = click.line.starts_with(clickWord) ? click.line.substr(clickWord.size()) : "";
    const bool isButtonsName =
        id == "left" || id == "right" || id == "middle"; // doubleclick would take it for a button
    const bool isDouble = !id.empty() && !isButtonsName && isNext(1, "doubleclick left") &&
                          steps[index + 1].clickLine == click.line && isNext(2, "release left");

    runUntil(click.tick - 1); // the line itself spends a frame on moving the pointer
    add(isDouble ? "double" + click.line : click.line);
    now = std::max(now, (isDouble ? steps[index + 2].tick : click.releaseTick) + 1);
    waiting = 0;
    return isDouble ? 3 : 1;
}

std::size_t EventsWriter::writeText(std::size_t index)
{
    std::string text;
    std::size_t end = index;
    do
        text += steps[end++].character;
    while (end < steps.size() && isText(steps[end]) && steps[end].tick - steps[end - 1].tick <= pauseInText);
    runUntil(steps[index].tick);
    queue("type " + quoteWord(text), static_cast<long>(text.size()));
    return end - index;
}

void EventsWriter::writeKey(const Step& key)
{
    if (key.secondCode != 0 && !std::exchange(hasNotedSecondCode, true))
        add("# controller keys: their second code cannot be played back, keyCode2 stays 0");
    if (characterOf(key.code, shiftIsHeld) == key.character) {
        queue("key " + keyName(key.code));
    } else if (key.character != 0 && keyThatTypes(key.character) == key.code) {
        queue("type " + quoteWord({&key.character, 1}));
    } else {
        add("# this key typed the character " + quoteWord({&key.character, 1}) +
            ", which cannot be played back");
        queue("key " + keyName(key.code));
    }
}

/// Writes a hold or its end. It takes effect when the line is read, so earlier input must be taken first.
void EventsWriter::writeHold(const Step& hold)
{
    runUntilTaken(hold.tick);
    add((hold.held ? "hold " : "lift ") + keyName(hold.code));
    if (hold.code == VK_SHIFT)
        shiftIsHeld = hold.held;
}

void EventsWriter::writeShown(const Step& shown)
{
    const long frames = std::max(0L, shown.tick - now);
    add("wait until " + shown.line + (frames > longWait ? ' ' + std::to_string(frames + waitAllowance) : ""));
    waiting = std::max(0L, waiting - frames);
    now += frames;
}

} // namespace

bool isModifier(std::uint8_t code)
{
    constexpr std::uint8_t control = 0x11;
    constexpr std::uint8_t alt = 0x12;
    return code == VK_SHIFT || code == control || code == alt;
}

std::vector<std::string> writeEvents(std::span<const RecordedStep> steps, long endTick)
{
    return EventsWriter(steps).write(endTick);
}

} // namespace tgx
