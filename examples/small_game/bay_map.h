#pragma once

#include "catch.h"

#include "tgx/tgx.h"

#include <optional>
#include <random>

/// The bay from above, in squares: the game's own control. A click on a square lowers a pot there, and the
/// screen hears of it by update(), as it does of the toolkit's controls.
class BayMap : public AWnd {
public:
    static constexpr int columns = 8;
    static constexpr int rows = 7;

    BayMap(const CString& id, int x, int y, int width, int height);

    void draw(int frameStep) override;
    int handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;

    /// A day's water: the same number gives the same catches.
    void fill(unsigned day);
    /// Pots that can still be lowered.
    int getPots() const { return pots; }
    void setPots(int count) { pots = count; }
    /// What the last pot has brought up, once; nothing when there is no news.
    std::optional<Catch> takeCatch();

private:
    struct Square {
        Catch held;
        bool searched;
    };
    Square* squareAt(int x, int y);
    void drawSquare(int column, int row, const Square& square, bool hot);
    int squareWidth() const { return width() / columns; }
    int squareHeight() const { return height() / rows; }

    Square squares[rows][columns] = {};
    std::optional<Catch> news;
    int pots = 0;
};
