// How a run proceeds: files, lines and parts, and the reports about them.

#include "platform/display/message_text.h"
#include "player/events.h"
#include "player/player.h"
#include "player/words.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <new>
#include <utility>

namespace fs = std::filesystem;

namespace tgx {

namespace {

constexpr int framesWithoutEvents = 60;
constexpr std::size_t deepestInclude = 16;

/// Returns the name of the event in a line; "" for a blank line or a comment.
std::string_view eventOf(std::string_view line)
{
    const std::size_t start = line.find_first_not_of(" \t\r");
    if (start == std::string_view::npos || line[start] == '#')
        return "";
    return line.substr(start, line.find_first_of(" \t\r", start) - start);
}

std::ifstream openEvents(const std::string& path)
{
    std::error_code error;
    return fs::is_directory(path, error) ? std::ifstream() : std::ifstream(path, std::ios::binary);
}

} // namespace

void Player::carryOut(std::string_view line, int number)
{
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    const std::string_view event = eventOf(line);
    if (event.empty())
        return;
    input.setPlace(place());
    isFresh = isFresh && event == "test";
    runEvent(*this, splitWords(line), number);
}

std::optional<std::string> Player::runLine(std::string_view line, int number)
{
    lastFailure.clear();
    try {
        carryOut(line, number);
    } catch (const WrongLine& wrong) {
        return wrong.what();
    }
    return lastFailure.empty() ? std::nullopt : std::optional(lastFailure);
}

/// Returns whether an event is skipped. After a wrong line the rest of its part is skipped. After the exit
/// everything but expectations is skipped: an expectation must not pass because nobody checked it.
bool Player::isPassedOver(std::string_view event, bool abandoned) const
{
    if (event == "test")
        return false;
    return abandoned || (hasEnded() && event != "expect" && event != "wait");
}

void Player::playLines(std::istream& events, const std::string& name, bool isInteractive)
{
    const bool isIncluded = !sources.empty();
    struct Entered {
        std::vector<Source>& sources;
        ~Entered() { sources.pop_back(); }
    };
    sources.push_back({name, 0});
    const Entered entered{sources};

    bool abandoned = false;
    std::string line;
    while (std::getline(events, line)) {
        const int number = ++sources.back().line;
        const std::string_view event = eventOf(line);
        abandoned = abandoned && event != "test";
        if (isPassedOver(event, abandoned))
            continue;
        try {
            carryOut(line, number);
        } catch (const WrongLine& wrong) {
            if (isIncluded)
                throw WrongLine(name + ':' + std::to_string(number) + ": " + wrong.what());
            fail(wrong.what());
            abandoned = true;
        }
        // A program that writes line by line waits for the end of the run, not for another part.
        if (isInteractive && (abandoned || hasEnded()))
            break;
    }
    // A failed read, or no memory for a line, is not the end of the file. cin does not notice it by itself.
    if (events.bad() || (&events == &std::cin && std::ferror(stdin))) {
        const std::string reason = "cannot read on after this line: " + std::string(std::strerror(errno));
        if (isIncluded)
            throw WrongLine(place() + reason);
        fail(reason);
    }
    if (!isIncluded)
        endPart();
}

std::string Player::pathBesideEvents(const std::string& name) const
{
    const std::string& events = sources.empty() ? options.eventsFile : sources.back().name;
    return (fs::path(events).parent_path() / name).lexically_normal().string();
}

void Player::include(const std::string& name)
{
    if (sources.size() > deepestInclude)
        throw WrongLine("files include one another more than " + std::to_string(deepestInclude) + " deep");
    if (name.empty() || name.find('\0') != std::string::npos || fs::path(name).is_absolute())
        throw WrongLine("expected a file named from the folder of the events file, found " + quoteName(name));
    const std::string path = pathBesideEvents(name);
    std::error_code error;
    std::ifstream file = openEvents(path);
    if (!file || !fs::is_regular_file(path, error))
        throw WrongLine("cannot read the events file " + quoteName(path));
    playLines(file, path, false);
}

void Player::beginTest()
{
    if (sources.size() > 1)
        throw WrongLine("test opens a part of the file that is played, not of one that it includes");
    if (isFresh)
        return;
    endPart();
    shut();
    open();
}

/// Ends a part: reports the messages that no line has expected, if options.messagesFail is set.
void Player::endPart()
{
    for (const Message& message : std::exchange(messages, {}))
        if (options.messagesFail) {
            report(message.place.empty() ? options.eventsFile + ": " : message.place,
                   "the message \"" + oneLine(message.text) + "\" was not expected" +
                       (message.scriptPlace.empty() ? "" : "; it comes from " + message.scriptPlace));
            explain(message);
        }
}

std::string Player::place() const
{
    std::string text;
    for (const Source& source : sources)
        text += source.name + ':' + std::to_string(source.line) + ": ";
    return text;
}

void Player::report(const std::string& where, const std::string& reason)
{
    ++failures;
    lastFailure = reason;
    if (!sources.empty()) // else runLine returns it
        err << where << reason << '\n' << std::flush;
}

void Player::fail(const std::string& reason)
{
    report(place(), reason);
}

void Player::note(const std::string& text) const
{
    err << place() << text << '\n' << std::flush;
}

std::optional<std::string> Player::takeMessage(const std::string& text)
{
    const auto found = std::find_if(messages.begin(), messages.end(),
                                    [&](const Message& message) { return message.text == text; });
    if (found != messages.end()) {
        messages.erase(found);
        return std::nullopt;
    }
    std::vector<std::string> texts;
    for (const Message& message : messages)
        texts.push_back('"' + oneLine(message.text) + '"');
    return texts.empty() ? "none" : listNames(texts);
}

PlayStatus Player::runWithoutEvents()
{
    for (int i = 0; i < framesWithoutEvents; ++i) {
        auto reason = runLine("frame");
        if (!reason && i + 1 == framesWithoutEvents && !hasEnded())
            reason = runLine("shot screen.png");
        if (reason) {
            err << options.script << ": " << *reason << '\n' << std::flush;
            return PlayStatus::WrongLine;
        }
    }
    return PlayStatus::Done;
}

PlayStatus Player::run()
{
    try {
        std::ifstream file; // opened before the start, so that a wrong call runs nothing
        const bool fromStdin = options.eventsFile == "-";
        if (!options.eventsFile.empty() && !fromStdin) {
            file = openEvents(options.eventsFile);
            if (!file)
                throw std::runtime_error("cannot read the events file " + quoteName(options.eventsFile));
        }
        start();
        if (options.eventsFile.empty())
            return runWithoutEvents();
        std::error_code error; // set for stdin, whose name "-" is not a file
        const bool isInteractive = !fs::is_regular_file(options.eventsFile, error);
        playLines(fromStdin ? std::cin : file, options.eventsFile, isInteractive);
        return failures > 0 ? PlayStatus::WrongLine : PlayStatus::Done;
    } catch (const std::runtime_error& wrongCall) {
        err << "play: " << wrongCall.what() << '\n' << std::flush;
        return PlayStatus::WrongCall;
    }
}

int play(const PlayOptions& options, const MainWinFactory& factory)
try {
    return static_cast<int>(Player(options, factory, std::cout, std::cerr).run());
} catch (const std::bad_alloc&) {
    std::cerr << "play: out of memory\n";
    return static_cast<int>(PlayStatus::WrongCall);
}

} // namespace tgx
