#pragma once

#include "tgx/export.h"

#include <string_view>

class bmpfont;

/// Breaks a text into the lines of a box, at blanks and at line-break marks (a line feed, or a backslash and
/// an "n"). Works in one pass and only as far as the box's height requires. Only one may be in use at a time,
/// because they share their working storage.
///
///     for (TextWrap wrapped(text, font, width, height); wrapped.next();)
///         use(wrapped.line(), wrapped.topFrom(y));
class TGX_API TextWrap {
public:
    static constexpr int wideFactor = 6553; // raw fixed point, 1.6: spacing of spread lines, in line heights

    /// Does not copy text. width and height are those of the box in pixels; with a null font every character
    /// has a width of 0.
    TextWrap(std::string_view text, const bmpfont* font, int width, int height);

    /// Sets a position in the text, such as a caret's, to report once the scan has reached it. Characters
    /// skipped after a break are not seen; if the scan reaches the position twice, the later time counts.
    void watch(int place) { watched = place; }
    /// Returns the line in which the watched position was seen, or -1.
    int getSeenLine() const { return seenLine; }
    /// Returns the width in pixels of that line before the watched position.
    int getSeenWidth() const { return seenWidth; }

    /// Advances to the next line. Returns false when the text or the box's height is used up.
    bool next();

    std::string_view line() const { return text.substr(lineStart, lineEnd - lineStart); }
    /// Returns the position of the line's first character in the text.
    int getLineStart() const { return static_cast<int>(lineStart); }
    int getLineCount() const { return lineCount; }
    /// Returns the width of the line in pixels.
    int length() const;
    /// Returns the top of the line if the box starts at y, in pixels.
    int topFrom(int y) const;

private:
    long long widthOf(std::size_t from, std::size_t end) const;
    void lookAt(long place, std::size_t end);

    std::string_view text;
    const bmpfont* font;
    int width;
    int height;
    int lineHeight;
    int factor; // raw fixed point: spacing of the lines, wider in longer texts
    long scan = 0;
    long nextStart = 0;
    long lastBreak = -1; // position of the last blank at which a line can end; -1: none yet
    std::size_t lineStart = 0;
    std::size_t lineEnd = 0;
    int lineCount = -1; // index of this line; -1 before the first
    long watched = -1;
    int seenLine = -1;
    int seenWidth = 0;
    bool full = false; // the next line would not fit into the box
};
