#include "player/expect.h"

#include "player/calls.h"
#include "player/events.h"
#include "player/player.h"
#include "player/reach.h"
#include "player/reference.h"
#include "player/reports.h"
#include "tgx/controls/combobox.h"

#include <algorithm>
#include <limits>

namespace tgx {

namespace {

constexpr int defaultWaitFrames = 240;

/// What was found instead of the expected value; nothing if the expectation holds.
using Found = std::optional<std::string>;

// The words passed to an expectation's function begin with the expectation's name.

Found compareNumbers(std::int64_t expected, std::int64_t found)
{
    return expected == found ? std::nullopt : Found(std::to_string(found));
}

/// Compares a window with the expected "ID|none".
Found compareWindow(const Event& event, const AWnd* found)
{
    if (!found)
        return !event.words[1].quoted && event.text(1) == "none" ? std::nullopt : Found("none");
    return CString::equalNoCase(found->getID().view(), event.text(1)) ? std::nullopt : Found(nameOf(*found));
}

Found active(const Event& event)
{
    return compareWindow(event, event.win.getActiveScreen());
}

Found popup(const Event& event)
{
    return compareWindow(event, event.win.getPopupWnd(0));
}

Found focus(const Event& event)
{
    return compareWindow(event, event.win.getCurFocusWnd());
}

/// Makes a comparison for events whose first argument is a window. A missing window is a failed expectation
/// and not a wrong line: it may still appear while a wait runs.
template<Found (*compare)(const Event& event, AWnd& wnd)>
Found ofWindow(const Event& event)
{
    AWnd* wnd = findMeantWindow(event.win, event.text(1));
    return wnd ? compare(event, *wnd) : Found(describeMissingWindow(event.win, event.text(1)));
}

Found text(const Event& event, AWnd& wnd)
{
    const CString found = wnd.getText();
    return found.view() == event.text(2) ? std::nullopt : Found(quote(found.view()));
}

/// Compares with the expected 0|1. whyNot is the reason why the flag is 0, or "".
Found compareFlag(const Event& event, const AWnd& wnd, const std::string& whyNot)
{
    const bool expected = event.number(2, 0, 1) == 1;
    if (expected == whyNot.empty())
        return std::nullopt;
    return whyNot.empty() ? "1" : "0: " + nameOf(wnd) + ' ' + whyNot;
}

Found visible(const Event& event, AWnd& wnd)
{
    return compareFlag(event, wnd, whyNotShown(event.win, wnd));
}

Found enabled(const Event& event, AWnd& wnd)
{
    return compareFlag(event, wnd, whyDisabled(wnd));
}

Found selected(const Event& event, AWnd& wnd)
{
    constexpr int highest = std::numeric_limits<std::int16_t>::max();
    const std::int64_t expected = event.number(2, -1, highest);
    if (auto* box = dynamic_cast<AComboBox*>(&wnd)) // before AButton: a combo box is a button too
        return compareNumbers(expected, box->getSelectedItem());
    if (auto* list = dynamic_cast<AListBox*>(&wnd))
        return compareNumbers(expected, list->getSelectedItem());
    if (auto* button = dynamic_cast<AButton*>(&wnd))
        return compareNumbers(expected, button->isSelected());
    throw WrongLine(nameOf(wnd) + " is not a button, list box or combo box");
}

Found message(const Event& event)
{
    return event.player.takeMessage(event.text(1));
}

/// Returns the JSON values that a word may mean.
std::vector<std::string> valuesOf(const Word& word)
{
    std::vector<std::string> values{jsonString(word.text)};
    if (!word.quoted)
        values.push_back(word.text == "error" ? invalidArgumentValue : word.text); // null, or [1,20,30]
    if (const auto number = parseNumber(word))
        values.push_back(std::to_string(*number));
    if (const auto fixed = parseFixed(word))
        values.push_back(std::to_string(*fixed));
    return values;
}

/// Returns whether the JSON value matches the words: a single value, or a flat array of several.
bool isValue(std::string_view value, std::span<const Word> words)
{
    if (words.size() > 1) {
        if (!value.starts_with('[') || !value.ends_with(']'))
            return false;
        value = value.substr(1, value.size() - 2);
    }
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (i > 0) {
            if (!value.starts_with(','))
                return false;
            value.remove_prefix(1);
        }
        const std::vector<std::string> values = valuesOf(words[i]);
        // A number must not match the beginning of a longer one.
        const auto found = std::find_if(values.begin(), values.end(), [&](const std::string& each) {
            return value.starts_with(each) && (value.size() == each.size() || value[each.size()] == ',');
        });
        if (found == values.end())
            return false;
        value.remove_prefix(found->size());
    }
    return value.empty();
}

/// Returns the index of the first = without quotes, or the number of words if there is none.
std::size_t equalsSign(std::span<const Word> words)
{
    const auto isSign = [](const Word& word) { return !word.quoted && word.text == "="; };
    return static_cast<std::size_t>(std::find_if(words.begin(), words.end(), isSign) - words.begin());
}

Found call(const Event& event)
{
    const std::string& target = event.text(1);
    if (event.player.hasEnded())
        return "that the program has ended";
    if (target != "main" && !findWindow(event.win, target))
        return describeMissingWindow(event.win, target);
    const std::size_t sign = equalsSign(event.words);
    const std::string value = callOperation(event.win, event.words.subspan(1, sign - 1));
    return isValue(value, event.words.subspan(sign + 1)) ? std::nullopt : Found(value);
}

Found picture(const Event& event)
{
    const Image& screen = event.win.getScreenImage();
    if (screen.width <= 0 || screen.height <= 0)
        throw WrongLine("no frame has been shown yet");
    return compareWithPicture(event.player, event.fileName(1), screen);
}

Found tree(const Event& event)
{
    return compareWithFile(event.player, event.fileName(1), treeReport(event.win));
}

Found trace(const Event& event)
{
    return compareWithFile(event.player, event.fileName(1), traceReport(event.win));
}

enum class Waits { Yes, No };

/// The kinds of expectations, one row each.
const struct Expectation {
    std::string_view name;
    std::string_view form;
    std::size_t words; // after the name; 0: as many as needed up to the value after an =
    Found (*compare)(const Event& event);
    Waits waits = Waits::Yes; // whether `wait until` accepts it
} expectations[] = {
    {"active", "active NAME|none", 1, active},
    {"popup", "popup ID|none", 1, popup},
    {"focus", "focus ID|none", 1, focus},
    {"text", "text ID \"TEXT\"", 2, ofWindow<text>},
    {"visible", "visible ID 0|1", 2, ofWindow<visible>},
    {"enabled", "enabled ID 0|1", 2, ofWindow<enabled>},
    {"selected", "selected ID N", 2, ofWindow<selected>},
    {"message", "message \"TEXT\"", 1, message},
    {"call", "call TARGET OPERATION ARG ... = VALUE", 0, call},
    {"picture", "picture FILE.png", 1, picture, Waits::No},
    {"tree", "tree FILE.json", 1, tree, Waits::No},
    {"trace", "trace FILE.jsonl", 1, trace, Waits::No},
};

const Expectation& findExpectation(const std::string& name)
{
    std::vector<std::string> names;
    for (const Expectation& row : expectations) {
        if (row.name == name)
            return row;
        names.emplace_back(row.name);
    }
    const std::string suggestion = suggest(name, names);
    throw WrongLine(
        "no expectation " + quote(name) +
        (suggestion.empty() ? "; expectations are " + listNames(names, names.size()) : suggestion));
}

std::string joined(std::span<const Word> words)
{
    std::string text;
    for (const Word& word : words)
        text += (text.empty() ? "" : " ") + (word.quoted ? quote(word.text) : word.text);
    return text;
}

/// Returns how many of the words the expectation needs, its name included; more than there are if they do not
/// fit. A call with results by reference may have several values and needs the first.
std::size_t neededWords(const Expectation& row, std::span<const Word> words)
{
    if (row.words > 0)
        return 1 + row.words;
    const std::size_t sign = equalsSign(words);
    return sign < 3 ? words.size() + 1 : sign + 2; // after call TARGET OPERATION
}

[[noreturn]] void failForm(const std::string& form, std::span<const Word> found)
{
    throw WrongLine("expected the form " + form + ", found " + joined(found));
}

} // namespace

void expect(const Event& event)
{
    const Event inner = event.withoutFirst(1);
    const Expectation& row = findExpectation(inner.text(0));
    const std::size_t needed = neededWords(row, inner.words);
    const bool hasMore = row.words > 0 && inner.words.size() > needed;
    if (inner.words.size() < needed || hasMore)
        failForm("expect " + std::string(row.form), event.words);
    if (const Found found = row.compare(inner))
        event.player.fail("expected " + joined(inner.words) + ", found " + *found);
}

void waitUntil(const Event& event)
{
    if (event.text(1) != "until")
        failForm("wait until EXPECTATION [N]", event.words);
    Event inner = event.withoutFirst(2);
    const Expectation& row = findExpectation(inner.text(0));
    if (row.waits == Waits::No)
        throw WrongLine("cannot wait for a " + std::string(row.name) +
                        "; wait until something else holds, then expect it");
    const std::size_t words = neededWords(row, inner.words);
    const bool hasNumber = inner.words.size() == words + 1;
    if (inner.words.size() != words && !hasNumber)
        failForm("wait until " + std::string(row.form) + " [N]", event.words);
    const auto frames =
        hasNumber ? inner.number(words, 0, std::numeric_limits<std::int32_t>::max()) : defaultWaitFrames;
    inner.words = inner.words.first(words);

    std::int64_t waited = 0;
    Found found = row.compare(inner);
    for (; found && waited < frames && !event.player.hasEnded(); ++waited) {
        event.player.frame();
        found = row.compare(inner);
    }
    if (found)
        event.player.fail("waited " + std::to_string(waited) + " frames for " + joined(inner.words) +
                          ", found " + *found);
}

} // namespace tgx
