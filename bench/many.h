#pragma once

/// S2: three levels of windows: g1 strips, g2 cells in each strip, and g3 leaves in each cell.
struct ManyWindows {
    int g1;
    int g2;
    int g3;

    int count() const { return g1 + g1 * g2 + g1 * g2 * g3; }
};

constexpr ManyWindows many1k{10, 10, 10};
constexpr ManyWindows many10k{25, 20, 20};
constexpr int manyWidth = 1024;
constexpr int manyHeight = 768;

enum class Level { Strip, Cell, Leaf };

/// Calls open for each window in tree order, with its box, and close after everything inside it.
template<class Open, class Close>
void walk(const ManyWindows& many, Open open, Close close)
{
    const int stripHeight = manyHeight / many.g1;
    const int cellWidth = manyWidth / many.g2;
    for (int strip = 0; strip < many.g1; ++strip) {
        open(Level::Strip, 0, strip * stripHeight, manyWidth, stripHeight);
        for (int cell = 0; cell < many.g2; ++cell) {
            open(Level::Cell, cell * cellWidth, 0, cellWidth, stripHeight);
            for (int leaf = 0; leaf < many.g3; ++leaf) {
                open(Level::Leaf, (leaf % 5) * ((cellWidth - 20) / 4),
                     (leaf / 5) * ((stripHeight - 12) / (many.g3 / 5 - 1)), 20, 12);
                close(Level::Leaf);
            }
            close(Level::Cell);
        }
        close(Level::Strip);
    }
}
