#pragma once

#include "catch.h"

#include "tgx/tgx.h"

#include <optional>
#include <random>

/// The bay from above, in squares: a control of the game. A click on a square lowers a pot there and calls
/// the screen's update(), as the toolkit's controls do.
class BayMap : public AWnd {
public:
    static constexpr int columns = 8;
    static constexpr int rows = 7;

    BayMap(const CString& id, int x, int y, int width, int height);

    void draw(int frameStep) override;
    int handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;

    /// Fills the bay for a day. The same day gives the same catches.
    void fill(unsigned day);
    /// Returns how many pots can still be lowered.
    int getPots() const { return pots; }
    void setPots(int count) { pots = count; }
    /// Returns what the last pot brought up, and nothing when asked again.
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
