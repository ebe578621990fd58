#include "tgx/wnd/wrap.h"

#include "platform/framework/znfixed.h"
#include "platform/media/bmpfont.h"

#include <algorithm>
#include <climits>
#include <vector>

namespace {

// Width of the text before each character, computed as far as needed, so that the width of any part is one
// subtraction.
std::vector<long long> widthBefore;

constexpr std::size_t shortText = 20; // characters; the lines of longer texts are spaced wider

} // namespace

TextWrap::TextWrap(std::string_view wrapped, const bmpfont* with, int boxWidth, int boxHeight)
    : text(wrapped), font(with), width(boxWidth), height(boxHeight), lineHeight(with ? with->lineHeight : 0),
      factor(wrapped.size() > shortText ? wideFactor : ZnFixed::one)
{
    widthBefore.assign(1, 0);
}

long long TextWrap::widthOf(std::size_t from, std::size_t end) const
{
    if (end <= from)
        return 0;
    while (widthBefore.size() <= end) {
        const auto next = static_cast<unsigned char>(text[widthBefore.size() - 1]);
        widthBefore.push_back(widthBefore.back() + (font ? font->advance(next) : 0));
    }
    return widthBefore[end] - widthBefore[from];
}

int TextWrap::length() const
{
    return static_cast<int>(std::min<long long>(widthOf(lineStart, lineEnd), INT_MAX));
}

int TextWrap::topFrom(int y) const
{
    return static_cast<int>((y * 4096LL + static_cast<long long>(lineHeight) * factor * lineCount) / 4096);
}

void TextWrap::lookAt(long place, std::size_t end)
{
    if (place != watched)
        return;
    seenLine = lineCount + 1;
    seenWidth = static_cast<int>(widthOf(lineStart, end));
}

bool TextWrap::next()
{
    const long count = static_cast<long>(text.size());
    if (full || scan >= count)
        return false;
    const long start = nextStart;
    lineStart = static_cast<std::size_t>(start);

    while (true) {
        bool breakHere = false;
        bool twoCharacters = false;
        const char here = text[static_cast<std::size_t>(scan)];
        if (scan > 0 && here == ' ' && text[static_cast<std::size_t>(scan - 1)] != ' ') {
            lastBreak = scan;
        } else if (here == '\n') {
            breakHere = true;
        } else if (here == '\\' && scan + 1 < count && text[static_cast<std::size_t>(scan + 1)] == 'n') {
            breakHere = true;
            twoCharacters = true;
        }
        const auto measured = static_cast<std::size_t>(std::max(scan, start));
        if (widthOf(lineStart, measured) <= width && scan < count - 1 && !breakHere) {
            lookAt(scan, measured);
            ++scan;
            continue;
        }

        if (scan < count - 1) {
            if (breakHere)
                lastBreak = scan;
            else if (lastBreak < start) // no blank: the word is cut, and the character at the cut is dropped
                lastBreak = --scan;
            lineEnd = static_cast<std::size_t>(std::max(lastBreak, start));
            nextStart = lastBreak + 1;
            scan = lastBreak + 2;
            if (breakHere && twoCharacters)
                ++nextStart;
        } else {
            lookAt(scan, measured);
            lineEnd = text.size();
            scan = count;
        }
        lookAt(scan, lineEnd);
        nextStart = std::min(nextStart, count);
        ++lineCount;
        full = lineHeight * (lineCount + 2) > height;
        return true;
    }
}
