// Rules for strips: whether the picture is large enough for its frames.

#include "language/check/tree.h"
#include "language/check/words.h"
#include "tgx/controls/button.h"
#include "tgx/wnd/border.h"

#include <algorithm>
#include <numeric>

namespace tgx::script_check {

namespace {

/// Reads protected fields of buttons.
struct ButtonAccess : AButton {
    static long long framesOf(const AButton& button)
    {
        const auto& frames = button.*(&ButtonAccess::stateFrames);
        return std::accumulate(std::begin(frames), std::end(frames), 0LL,
                               [](long long sum, int each) { return sum + std::max(each, 0); });
    }
};

// 64 bits wide, because a script may set any 16-bit size, and a button any number of frames.
struct Frames {
    long long width, height;
    long long count; // number of frames shown, from the first one on
};

/// The far edges of the last frame in a picture that is large enough.
struct Reach {
    long long right, bottom;
};

/// Returns where the last frame ends. In a picture more than two frames wide, frames continue in further
/// rows; otherwise they form one row.
Reach reachOf(const Frames& frames, const Picture& picture)
{
    const long long step = frames.width + 1;
    const long long perRow = picture.width > 2 * frames.width ? picture.width / step : 0;
    if (perRow == 0)
        return {step * (frames.count - 1) + frames.width, frames.height};
    const long long rows = (frames.count - 1) / perRow;
    return {0, rows * (frames.height + 1) + frames.height};
}

class StripRules {
public:
    explicit StripRules(TreeCheck& treeCheck) : check(treeCheck) {}

    void checkWindow(AWnd& wnd)
    {
        const WndLines* lines = check.reading.linesOf(&wnd);
        if (!lines || check.reading.isGameWindow(&wnd))
            return;
        if (!wnd.getBmpFilename().IsEmpty() && lines->bitmap)
            checkBitmap(wnd, lines->bitmap);
        if (wnd.getBorder() && lines->border)
            checkBorder(wnd, lines->border);
    }

private:
    void checkBitmap(AWnd& wnd, LineRef at)
    {
        const Picture* picture = check.pictures.find(wnd.getBmpFilename().str());
        if (!picture)
            return;
        // Calculated as the toolkit does when it loads the picture.
        Frames frames{wnd.getFrameWidth(), wnd.getFrameHeight(), wnd.getFirstFrame() + wnd.getFrameCount()};
        if (frames.width <= 0)
            frames.width = std::min(wnd.getWndWidth(), picture->width);
        if (frames.height <= 0)
            frames.height = std::min(wnd.getWndHeight(), picture->height);

        if (wnd.getWindowType() == AWnd::WND_SCROLLBAR) {
            constexpr int scrollBarFrames = 6;
            if (wnd.getFrameWidth() > 0 && wnd.getFrameHeight() > 0) // otherwise already reported
                compare(wnd, at, *picture, {frames.width, frames.height, scrollBarFrames}, OneRow);
        } else if (wnd.getWindowType() == AWnd::WND_PROGRESSBAR) {
            // The second frame, the empty bar, is optional.
            compare(wnd, at, *picture, {frames.width, frames.height, 1}, OneRow);
        } else {
            if (AButton::isButton(&wnd))
                frames.count = ButtonAccess::framesOf(static_cast<AButton&>(wnd));
            else if (frames.count > 1) // a BMPFRAME may start after the last one
                frames.count = std::max(frames.count, wnd.getCurrentFrame() + 1LL);
            if (frames.count > 1) // a single frame may be larger than the picture
                compare(wnd, at, *picture, frames, Rows);
        }
    }

    enum Arrangement { OneRow, Rows };
    void compare(AWnd& wnd, LineRef at, const Picture& picture, const Frames& frames, Arrangement arrangement)
    {
        if (frames.width <= 0 || frames.height <= 0)
            return; // the toolkit does not draw such frames
        const long long step = frames.width + 1;
        const Reach reach = arrangement == Rows
                                ? reachOf(frames, picture)
                                : Reach{step * (frames.count - 1) + frames.width, frames.height};
        if (reach.right <= picture.width && reach.bottom <= picture.height)
            return;
        const std::string count = frames.count == 1 ? "the frame" : std::to_string(frames.count) + " frames";
        check.findings.add("strip-too-small", *at.script, at.line, bitmapToken(at),
                           inQuotes(nameIn(at)) + " is " + size(picture.width, picture.height) +
                               " pixels, too small for " + count + " of " +
                               size(frames.width, frames.height) + " that " + describe(wnd) +
                               " uses; a row of them is " + size(step * frames.count, frames.height));
    }

    void checkBorder(AWnd& wnd, LineRef at)
    {
        constexpr int pieces = 8;
        const int piece = wnd.getBorder()->getPieceSize();
        if (const Picture* picture = check.pictures.find(nameIn(at)))
            compare(wnd, at, *picture, {piece, piece, pieces}, OneRow);
    }

    /// Returns the token of the line that names the bitmap.
    static int bitmapToken(LineRef at)
    {
        int token = 1;
        while (token < at.script->tokenCount(at.line) &&
               argumentName(*at.script->statement(at.line), token) != "\"bitmap\"")
            ++token;
        return token;
    }
    /// Returns the bitmap that the line names.
    static const std::string& nameIn(LineRef at) { return at.script->string(at.line, bitmapToken(at)); }

    TreeCheck& check;
};

} // namespace

void checkStrips(TreeCheck& check, AWnd& root)
{
    StripRules rules(check);
    forEachBelow(root, [&](AWnd& wnd) { rules.checkWindow(wnd); });
}

} // namespace tgx::script_check
