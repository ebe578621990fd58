#include "bay_map.h"

#include <iterator>
#include <utility>

namespace {

/// Returns a colour with red in the low byte, as the toolkit expects.
unsigned long colour(unsigned red, unsigned green, unsigned blue)
{
    return getMainWin()->getcol(red | green << 8 | blue << 16);
}

} // namespace

BayMap::BayMap(const CString& id, int x, int y, int width, int height)
    : AWnd(WND_PLAIN, id, x, y, width, height)
{}

void BayMap::fill(unsigned day)
{
    constexpr Catch kinds[] = {{"Lobster", 900, 260}, {"Crab", 600, 90}, {"Cod", 2200, 110},
                               {"Eel", 350, 60},      {"Boot", 1400, 1}, {"Nothing", 0, 0}};
    std::minstd_rand dice(day + 1);
    for (auto& row : squares)
        for (Square& square : row) {
            const Catch& kind = kinds[dice() % std::size(kinds)];
            const int share = 50 + static_cast<int>(dice() % 101); // percent of the usual weight
            square = {{kind.what, kind.grams * share / 100, kind.pence * share / 100}, false};
        }
}

std::optional<Catch> BayMap::takeCatch()
{
    return std::exchange(news, std::nullopt);
}

BayMap::Square* BayMap::squareAt(int x, int y)
{
    const int column = getWndX(x) / squareWidth();
    const int row = getWndY(y) / squareHeight();
    const bool isInside = getWndX(x) >= 0 && getWndY(y) >= 0 && column < columns && row < rows;
    return isInside ? &squares[row][column] : nullptr;
}

int BayMap::handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action)
{
    AWnd::handleMouseAction(subject, wnd, x, y, action);
    // Actions pass through every window on the way to their target.
    if (wnd != this || action != MA_LBUTTONUP || !isVisible(1))
        return 0;
    Square* square = squareAt(x, y);
    if (!square || square->searched || pots == 0)
        return 1;
    square->searched = true;
    --pots;
    news = square->held;
    if (AScreen* screen = getMainWin()->getActiveScreen())
        screen->update(); // last, because it may delete this window
    return 1;
}

void BayMap::draw(int frameStep)
{
    AWnd::draw(frameStep); // bitmap, border and text, if the script gives it any
    if (!isVisible(1))
        return;
    const AMainWin* main = getMainWin();
    const Square* hot = main->getCurFocusWnd() == this ? squareAt(main->mouseX, main->mouseY) : nullptr;
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column)
            drawSquare(column, row, squares[row][column], &squares[row][column] == hot);
}

void BayMap::drawSquare(int column, int row, const Square& square, bool hot)
{
    const int x = left() + column * squareWidth();
    const int y = top() + row * squareHeight();
    const int right = x + squareWidth() - 1;
    const int bottom = y + squareHeight() - 1;
    const unsigned long water = square.searched ? colour(0xD6, 0xE6, 0xEC)
                                : hot           ? colour(0x6F, 0xA8, 0xC0)
                                                : colour(0x4E, 0x8A, 0xA6);
    getMainWin()->fillrect(x, y, right, bottom, water);
    if (square.searched && square.held.grams > 0)
        textOut(x, y + (bottom - y - 14) / 2, right - x, 14, CString(square.held.what), TJ_CENTRE, 0,
                ZnFixed::fromInt(1), 0, nullptr);
}
