#include "player/reference.h"

#include "platform/media/image_file.h"
#include "player/files.h"
#include "player/picture.h"
#include "player/player.h"
#include "player/words.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>

namespace fs = std::filesystem;

namespace tgx {

namespace {

/// Inserts variant before the extension: "a/menu.png" and "actual" give "a/menu.actual.png".
std::string variantName(const std::string& name, const std::string& variant)
{
    fs::path path(name);
    const std::string extension = path.extension().string();
    return path.replace_extension(variant + extension).string();
}

std::string referencePath(const Player& player, const std::string& name)
{
    if (!staysBelow(name))
        throw WrongLine(quoteName(name) + " is not a file name below the folder of the events file");
    return player.pathBesideEvents(name);
}

void noteUpdate(Player& player, const std::string& name, bool isWritten)
{
    if (!isWritten)
        throw WrongLine("cannot write " + quoteName(name));
    player.note("wrote " + name);
}

/// Describes a missing expected file, and names the file that was written instead.
std::string describeMissing(const char* what, const std::string& actual)
{
    return std::string("no such ") + what + "; the result is in " + actual + ", and --update accepts it";
}

std::string hex(std::uint32_t colour)
{
    char text[8];
    std::snprintf(text, sizeof text, "#%06x", colour);
    return text;
}

std::string sizeOf(const Image& image)
{
    return std::to_string(image.width) + 'x' + std::to_string(image.height);
}

std::string describe(const PictureDifference& difference)
{
    const auto point = [](int x, int y) { return std::to_string(x) + ", " + std::to_string(y); };
    const std::string first = point(difference.x, difference.y) + " is " + hex(difference.found) +
                              " instead of " + hex(difference.expected);
    if (difference.pixels == 1)
        return "1 different pixel: " + first;
    return std::to_string(difference.pixels) + " different pixels, from " +
           point(difference.left, difference.top) + " to " + point(difference.right, difference.bottom) +
           ": " + first;
}

/// Returns the line of text around place, or as much of it as fits in a message.
std::string excerpt(const std::string& text, std::size_t place)
{
    constexpr std::size_t before = 30;
    constexpr std::size_t after = 50;
    if (place >= text.size())
        return "its end";
    const std::size_t lineStart = place == 0 ? 0 : text.rfind('\n', place - 1) + 1; // npos + 1 is 0
    const std::size_t lineEnd = std::min(text.find('\n', place), text.size());
    const std::size_t start = std::max(lineStart, place > before ? place - before : 0);
    const std::size_t end = std::min(lineEnd, place + after);
    return (start > lineStart ? "..." : "") + text.substr(start, end - start) + (end < lineEnd ? "..." : "");
}

/// Returns the id of the window of a tree that the text at place belongs to, or "".
std::string windowAt(const std::string& tree, std::size_t place)
{
    constexpr std::string_view idKey = "{\"id\":";
    std::vector<std::size_t> open; // starts of the objects around place
    bool inString = false;
    for (std::size_t i = 0; i < std::min(place, tree.size()); ++i) {
        if (inString && tree[i] == '\\')
            ++i;
        else if (tree[i] == '"')
            inString = !inString;
        else if (!inString && tree[i] == '{')
            open.push_back(i);
        else if (!inString && tree[i] == '}' && !open.empty())
            open.pop_back();
    }
    if (open.empty() || tree.compare(open.back(), idKey.size(), idKey) != 0)
        return "";
    const std::size_t start = open.back() + idKey.size();
    return tree.substr(start, tree.find(',', start) - start);
}

std::string describeDifference(const std::string& expected, const std::string& found)
{
    const auto places = std::mismatch(expected.begin(), expected.end(), found.begin(), found.end());
    const auto place = static_cast<std::size_t>(places.first - expected.begin());
    const auto line = 1 + std::count(expected.begin(), places.first, '\n');
    std::string where = "in line " + std::to_string(line);
    if (const std::string window = windowAt(expected, place); !window.empty())
        where = "in the window " + window;
    return excerpt(found, place) + " instead of " + excerpt(expected, place) + ' ' + where;
}

} // namespace

std::optional<std::string> compareWithFile(Player& player, const std::string& name, const std::string& found)
{
    const std::string path = referencePath(player, name);
    const std::optional<std::string> expected = readWhole(path);
    if (expected == found)
        return std::nullopt;
    if (player.getOptions().update) {
        makeFoldersOf(path);
        noteUpdate(player, name, writeWhole(path, found));
        return std::nullopt;
    }
    const std::string actual = player.outputPath(variantName(name, "actual"));
    if (!writeWhole(actual, found))
        throw WrongLine("cannot write " + quoteName(actual));
    return expected ? describeDifference(*expected, found) + "; the whole result is in " + actual
                    : describeMissing("file", actual);
}

std::optional<std::string> compareWithPicture(Player& player, const std::string& name, const Image& found)
{
    const std::string path = referencePath(player, name);
    const ImageRef expected = readPicture(path);
    const bool sameSize = expected && expected->width == found.width && expected->height == found.height;
    const auto difference = sameSize ? findDifference(*expected, found) : std::nullopt;
    if (sameSize && !difference)
        return std::nullopt;
    if (player.getOptions().update) {
        makeFoldersOf(path);
        noteUpdate(player, name, writePng(found, path));
        return std::nullopt;
    }
    const auto write = [&](const Image& image, const char* variant) {
        const std::string written = player.outputPath(variantName(name, variant));
        if (!writePng(image, written))
            throw WrongLine("cannot write " + quoteName(written));
        return written;
    };
    const std::string actual = write(found, "actual");
    if (!expected)
        return fs::exists(path) ? "a file that is not a picture; the result is in " + actual
                                : describeMissing("picture", actual);
    if (!sameSize)
        return "a screen of " + sizeOf(found) + ", but " + name + " is " + sizeOf(*expected) + "; see " +
               actual;
    const std::string shown = write(*showDifference(*expected, found), "difference");
    return describe(*difference) + "; see " + actual + " and " + shown;
}

} // namespace tgx
