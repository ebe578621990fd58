#include "devtools/recorder.h"

#include "platform/display/keys.h"
#include "player/keys.h"
#include "tgx/controls/listbox/listbox.h"
#include "tgx/controls/scrollbar.h"
#include "tgx/frame/mainwin.h"

#include <utility>

namespace tgx {

namespace {

using Kind = RecordedStep::Kind;

constexpr long longestClick = 20; // ticks; controls that repeat while held have not begun to do so
constexpr int openingFrames = 60; // until sliding windows have come to rest

constexpr int settledMoves = 2; // pointer moves after which a list no longer depends on its earlier hot row

std::string idOrNone(const AWnd* wnd)
{
    return wnd ? wordFor(wnd->getID().view()) : "none";
}

/// Returns the lines that bring the playback to the present state.
std::string openingOf(const AMainWin& game)
{
    std::string lines;
    const AScreen* active = game.getActiveScreen();
    if (active && active != game.getScreenList()->getWndOfType(AWnd::WND_SCREEN, 0, 0)) {
        const std::string name = idOrNone(active);
        lines += "change " + name + "\nwait until active " + name + '\n';
    }
    lines += "frame " + std::to_string(openingFrames) + '\n';
    if (game.getPopupWndCount() > 0)
        lines += "# The popup " + idOrNone(game.getPopupWnd(0)) +
                 " was open when the recording began: open it here.\n";
    return lines;
}

} // namespace

Recorder::Recorder(AMainWin& mainWin, std::string heading)
    : game(mainWin), opening(std::move(heading)), pointer{mainWin.mouseX, mainWin.mouseY}
{
    if (!opening.empty() && !opening.ends_with('\n'))
        opening += '\n';
    opening += openingOf(game);
    heldButtons[0] = game.lButtonDown != 0;
    heldButtons[1] = game.rButtonDown != 0;
    heldButtons[2] = game.mButtonDown != 0;
    shownScreen = idOrNone(game.getActiveScreen());
    shownPopup = idOrNone(game.getPopupWnd(0));
}

std::string Recorder::events() const
{
    std::vector<Step> all = steps;
    if (pressed)
        all.insert(all.end(), pressed->stepsIfNoClick.begin(), pressed->stepsIfNoClick.end());
    else if (rest)
        all.push_back(rest->step);
    std::string text = opening;
    for (const std::string& line : writeEvents(all, tick + 1))
        text += line + '\n';
    return text;
}

void Recorder::tickBegins(const InputQueue& next, bool takesInput)
{
    ++tick;
    followScreens();
    followPointer();
    if (takesInput)
        take(next);
    noteRest();
}

void Recorder::readAnew()
{
    giveUpClick();
    steps.push_back({.kind = Kind::Note, .tick = tick, .line = "the interface was reloaded here"});
    rest.reset();
    isRestoring = true;
}

void Recorder::followScreens()
{
    const std::string screen = idOrNone(game.getActiveScreen());
    const std::string popup = idOrNone(game.getPopupWnd(0));
    if (screen == shownScreen && popup == shownPopup)
        return;
    giveUpClick();
    if (isRestoring) {
        shownScreen = screen;
        shownPopup = popup;
        return;
    }
    if (rest) { // the window under the resting pointer may have caused the change
        steps.push_back(rest->step);
        playbackPointer = rest->playbackPointer;
    }
    if (screen != std::exchange(shownScreen, screen))
        steps.push_back({.kind = Kind::Shown, .tick = tick, .line = "active " + screen});
    if (popup != std::exchange(shownPopup, popup))
        steps.push_back({.kind = Kind::Shown, .tick = tick, .line = "popup " + popup});
}

/// Notices that the game has moved the pointer, which it will also do during playback.
void Recorder::followPointer()
{
    const ScreenPoint place{game.mouseX, game.mouseY};
    if (place == pointer)
        return;
    giveUpClick();
    pointer = place;
    playbackPointer = {.point = place, .realPoint = place};
    arrival = tick - 1;
}

void Recorder::take(const InputQueue& next)
{
    const ScreenPoint before = pointer;
    const auto endMoves = [&] {
        if (pointer != before)
            pointerMoved();
    };
    const std::size_t count = next.countForNextTick();
    for (std::size_t i = 0; i < count; ++i) {
        const InputQueue::Event& event = next.getEvents()[i];
        if (event.isPlaced)
            pointer = {event.x, event.y};
        if (InputQueue::isTransition(event)) {
            isRestoring = false;
            endMoves();
        }
        switch (event.kind) {
        case InputQueue::Kind::Move:
            pointer = {event.x, event.y};
            break;
        case InputQueue::Kind::Hold:
            hold(event);
            break;
        case InputQueue::Kind::Press:
            return press(event.button);
        case InputQueue::Kind::Release:
            return release(event.button);
        case InputQueue::Kind::DoubleClick:
            return doubleClick(event.button);
        case InputQueue::Kind::Cancel:
            cancel(event.button);
            break;
        case InputQueue::Kind::WheelUp:
            return wheel(true);
        case InputQueue::Kind::WheelDown:
            return wheel(false);
        case InputQueue::Kind::Key:
            return key(event);
        }
    }
    endMoves();
}

void Recorder::pointerMoved()
{
    arrival = tick;
    if (pressed) {
        if (haveSameEffect(pressed->spot, spotAt(game, pointer, PointerAct::Click)))
            return;
        giveUpClick();
    }
    const bool isLost = lostPresses[0] || lostPresses[1] || lostPresses[2];
    if (heldButtons.none() || isLost)
        return;
    const std::size_t before = steps.size();
    point(PointerAct::Point);
    const auto* bar = dynamic_cast<const AScrollBar*>(game.getMouseCaptureWnd(0));
    if (steps.size() > before)
        steps.back().isPassedThrough = bar && bar->getLeverHeld();
}

void Recorder::press(MouseButton button)
{
    giveUpClick();
    const auto index = static_cast<std::size_t>(button);
    const bool isOnly = heldButtons.none();
    const std::string line = std::string("press ") + buttonName(button);
    const Spot spot =
        spotAt(game, pointer, button == MouseButton::Left ? PointerAct::Click : PointerAct::Press);
    if (!spot.hindrance.empty()) {
        // The press has an effect if its release comes after the screen change.
        lostPresses[index] = steps.size();
        addTransition(line);
        heldButtons.set(index);
        return;
    }
    const std::size_t before = steps.size();
    const std::optional<PlaybackPointer> playbackBefore = playbackPointer;
    point(button == MouseButton::Left ? PointerAct::Click : PointerAct::Press);
    addTransition(line);
    // A press on a list makes the row there hot, unless it goes to an edit box and ends the typing.
    const bool endsTyping = spotAt(game, pointer, PointerAct::Point).isTypedInto;
    playbackPointer = {
        .point = playbackPointer->point, .realPoint = pointer, .movesOnList = endsTyping ? 1 : settledMoves};
    heldButtons.set(index);
    if (button != MouseButton::Left || !isOnly)
        return;
    if (std::optional<PointingLine> click = clickLineFor(game, spot)) {
        pressed = {tick,
                   spot,
                   std::move(*click),
                   {steps.begin() + static_cast<long>(before), steps.end()},
                   playbackPointer};
        steps.erase(steps.begin() + static_cast<long>(before), steps.end());
        playbackPointer = playbackBefore;
    }
}

void Recorder::release(MouseButton button)
{
    const auto index = static_cast<std::size_t>(button);
    if (button == MouseButton::Left && pressed) {
        const Spot spot = spotAt(game, pointer, PointerAct::Click);
        if (spot.hindrance.empty() && haveSameEffect(pressed->spot, spot) &&
            tick - pressed->tick < longestClick) {
            steps.push_back({.kind = Kind::Click,
                             .tick = pressed->tick,
                             .line = pressed->click.text,
                             .releaseTick = tick});
            playbackPointer = pressed->playbackIfNoClick;
            playbackPointer->point = pressed->click.point;
            playbackPointer->realPoint = pointer;
            pressed.reset();
            heldButtons.reset(index);
            return;
        }
    }
    giveUpClick();
    const std::string line = std::string("release ") + buttonName(button);
    const std::optional<std::size_t> lostPress = std::exchange(lostPresses[index], std::nullopt);
    const bool isOfLostPress = !heldButtons[index]; // then the button is not down during playback either
    if (lostPress && noteIfLost(steps[*lostPress].line + ", " + line)) {
        steps[*lostPress] = std::move(steps.back()); // the note covers both
        steps.pop_back();
    } else if (!isOfLostPress || !noteIfLost(line)) {
        point(button == MouseButton::Left ? PointerAct::Release : PointerAct::Point);
        addTransition(line);
    }
    heldButtons.reset(index);
}

void Recorder::doubleClick(MouseButton button)
{
    giveUpClick();
    const std::string line = std::string("doubleclick ") + buttonName(button);
    if (noteIfLost(line))
        return;
    const Spot spot = spotAt(game, pointer, PointerAct::Click);
    const std::optional<PointingLine> click = clickLineFor(game, spot);
    if (spot.cell.item >= 0)
        pointAtHotCell(spot);
    else
        point(PointerAct::Click);
    addTransition(line);
    heldButtons.set(static_cast<std::size_t>(button));
    if (click)
        steps.back().clickLine = click->text;
}

/// Records a cancelled press. Events files cannot express it, but a release outside the screen clicks nothing
/// either.
void Recorder::cancel(MouseButton button)
{
    giveUpClick();
    const auto index = static_cast<std::size_t>(button);
    if (!heldButtons[index])
        return;
    steps.push_back({.kind = Kind::Move, .tick = tick, .line = "move -1 -1"});
    addTransition(std::string("release ") + buttonName(button));
    heldButtons.reset(index);
    playbackPointer.reset();
    point(PointerAct::Point);
}

void Recorder::wheel(bool up)
{
    giveUpClick();
    const std::string line = up ? "wheel up" : "wheel down";
    if (noteIfLost(line))
        return;
    point(PointerAct::Point);
    addTransition(line);
}

void Recorder::key(const InputQueue::Event& event)
{
    giveUpClick();
    if (noteIfLost("key " + keyName(event.code)))
        return;
    if (!isModifier(event.code))
        pointForKeys();
    const bool leaves = event.code == VK_TAB;
    steps.push_back({.kind = Kind::Key,
                     .tick = tick,
                     .code = event.code,
                     .secondCode = event.secondCode,
                     .character = event.character,
                     .isTyped = !leaves && spotAt(game, pointer, PointerAct::Point).isTypedInto});
}

void Recorder::hold(const InputQueue::Event& event)
{
    giveUpClick();
    if (event.held && !isModifier(event.code))
        pointForKeys(); // before the hold, because its key comes next
    steps.push_back({.kind = Kind::Hold, .tick = tick, .code = event.code, .held = event.held});
}

/// Writes a note instead of input that the main window drops, and returns true. The playback may change
/// screens sooner, and the input would reach the new screen.
bool Recorder::noteIfLost(const std::string& what)
{
    const Spot spot = spotAt(game, pointer, PointerAct::Press);
    if (spot.hindrance.empty())
        return false;
    steps.push_back({.kind = Kind::Note,
                     .tick = tick,
                     .line = "lost at " + std::to_string(pointer.x) + ", " + std::to_string(pointer.y) +
                             ": " + what + "; " + spot.hindrance});
    return true;
}

RecordedStep Recorder::pointingStep(const PointingLine& line) const
{
    return {.kind = line.runsFrames ? Kind::Hover : Kind::Move, .tick = arrival, .line = line.text};
}

/// Moves the playback's pointer to where input has the same effect, if it is not there yet.
void Recorder::point(PointerAct act)
{
    const Spot spot = spotAt(game, pointer, act);
    if (!playbackPointer || !haveSameEffect(spotAt(game, playbackPointer->point, act), spot))
        addPointing(spot);
}

void Recorder::addPointing(const Spot& spot)
{
    const int moves = spot.cell.item >= 0 && isPlaybackOn(spot) ? playbackPointer->movesOnList + 1 : 1;
    const PointingLine line = pointLineFor(game, spot, heldButtons.none());
    steps.push_back(pointingStep(line));
    playbackPointer = {.point = line.point, .realPoint = pointer, .movesOnList = moves};
}

bool Recorder::isPlaybackOn(const Spot& spot) const
{
    return playbackPointer &&
           spotAt(game, playbackPointer->point, PointerAct::Point).wnd.get() == spot.wnd.get();
}

void Recorder::pointForKeys()
{
    const Spot spot = spotAt(game, pointer, PointerAct::Point);
    if (spot.cell.item >= 0)
        pointAtHotCell(spot);
    else if (!playbackPointer ||
             !haveSameEffectForKeys(spotAt(game, playbackPointer->point, PointerAct::Point), spot))
        addPointing(spot);
    if (playbackPointer)
        playbackPointer->keysFollowed = true;
}

/// Makes the same row of a list hot during playback: keys start from the hot row, and a double click selects
/// it. The hot row follows the pointer from its second move on the list; the first move restores the row that
/// was hot when the pointer left the list.
void Recorder::pointAtHotCell(const Spot& spot)
{
    const std::optional<CellPlace> hot = hotCellOf(spot.wnd);
    if (isPlaybackOn(spot)) {
        const bool isInSync = playbackPointer->realPoint == pointer;
        const bool wasMovedByGame = isInSync && playbackPointer->movesOnList == 0;
        const bool isKnown = wasMovedByGame || playbackPointer->movesOnList >= settledMoves;
        const bool isOnCell = haveSameEffect(spotAt(game, playbackPointer->point, PointerAct::Point), spot);
        const bool isHotCellUnderPointer = isOnCell && (!hot || *hot == spot.cell);
        if (isKnown && (playbackPointer->keysFollowed ? isInSync : isHotCellUnderPointer))
            return;
    }
    const auto& list = static_cast<const AListBox&>(*spot.wnd);
    const bool isOnPage = hot && cellAt(list, middleOfCell(list, *hot)) == *hot;
    const ScreenPoint end = isOnPage && *hot != spot.cell ? middleOfCell(list, *hot) : pointer;
    const ScreenPoint beside{end.x + 1, end.y};
    const PointingLine line = pointLineFor(game, spotAt(game, beside, PointerAct::Point), false);
    steps.push_back({.kind = Kind::Approach, .tick = arrival - 1, .line = line.text});
    addPointing(spotAt(game, end, PointerAct::Point));
    steps.back().kind = Kind::Approach; // either move needs a tick without input
    playbackPointer->movesOnList = settledMoves;
    if (arrival == tick) // the row under the real pointer becomes hot only after this input
        playbackPointer->realPoint.reset();
}

void Recorder::noteRest()
{
    rest.reset();
    if (pressed || heldButtons.any() || (playbackPointer && playbackPointer->point == pointer))
        return;
    const Spot spot = spotAt(game, pointer, PointerAct::Point);
    if (!spot.hindrance.empty() ||
        (playbackPointer &&
         haveSameEffectForKeys(spotAt(game, playbackPointer->point, PointerAct::Point), spot)))
        return;
    const PointingLine line = pointLineFor(game, spot, true);
    rest = {pointingStep(line), {.point = line.point, .realPoint = pointer, .movesOnList = 1}};
}

void Recorder::giveUpClick()
{
    if (!pressed)
        return;
    steps.insert(steps.end(), pressed->stepsIfNoClick.begin(), pressed->stepsIfNoClick.end());
    playbackPointer = pressed->playbackIfNoClick;
    pressed.reset();
}

} // namespace tgx
