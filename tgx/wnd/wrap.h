#pragma once

#include "tgx/export.h"

#include <string_view>

class bmpfont;

/// Breaks a text into the lines of a box, at blanks and at line-break marks (a line feed, or a backslash and
/// an "n"). One pass, and no further than the box's height asks for. While one of these is in use no other
/// may be: they share their working storage.
///
///     for (TextWrap wrapped(text, font, width, height); wrapped.next();)
///         use(wrapped.line(), wrapped.topFrom(y));
class TGX_API TextWrap {
public:
    static constexpr int wideFactor = 6553; // raw fixed point, 1.6: distance of spread lines, in line heights

    /// text is not copied. width and height of the box in pixels; a null font gives all characters a width of
    /// 0.
    TextWrap(std::string_view text, const bmpfont* font, int width, int height);

    /// A place in the text that the scan is to look out for, such as a caret's. What it passes over, behind a
    /// break, it does not see; where it comes by twice the later time counts.
    void watch(int place) { watched = place; }
    /// Line at which the watched place was seen, or -1, and the width in pixels of that line in front of it.
    int getSeenLine() const { return seenLine; }
    int getSeenWidth() const { return seenWidth; }

    /// Goes on to the next line. False when the text or the box's height is used up.
    bool next();

    std::string_view line() const { return text.substr(lineStart, lineEnd - lineStart); }
    /// Place of the line's first character in the text.
    int getLineStart() const { return static_cast<int>(lineStart); }
    int getLineCount() const { return lineCount; }
    /// Width of the line in pixels.
    int length() const;
    /// Top of the line when the box starts at y.
    int topFrom(int y) const;

private:
    long long widthOf(std::size_t from, std::size_t end) const;
    void lookAt(long place, std::size_t end);

    std::string_view text;
    const bmpfont* font;
    int width;
    int height;
    int lineHeight;
    int factor; // raw fixed point: longer texts have wider spaced lines
    long scan = 0;
    long nextStart = 0;
    long lastBreak = -1; // place of the last blank that a line can end at; -1: none yet
    std::size_t lineStart = 0;
    std::size_t lineEnd = 0;
    int lineCount = -1; // of the lines in front of this one
    long watched = -1;
    int seenLine = -1;
    int seenWidth = 0;
    bool full = false; // the next line would stand out of the box
};
