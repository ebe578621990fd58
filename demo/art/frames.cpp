#include "demo/art/frames.h"

Canvas stripOf(int count, int width, int height)
{
    return Canvas(count * (width + 1), height);
}

void putFrame(Canvas& strip, const Canvas& frame, int n)
{
    for (int y = 0; y < frame.height; ++y)
        for (int x = 0; x < frame.width; ++x)
            strip.at(n * (frame.width + 1) + x, y) = frame.at(x, y);
}

Canvas frameGrid(const std::vector<Canvas>& frames, int columns)
{
    int rows = (static_cast<int>(frames.size()) + columns - 1) / columns;
    int stepX = frames[0].width + 1, stepY = frames[0].height + 1;
    Canvas whole(columns * stepX, rows * stepY);
    for (int n = 0; n < static_cast<int>(frames.size()); ++n)
        whole.draw(frames[static_cast<std::size_t>(n)], n % columns * stepX, n / columns * stepY);
    return whole;
}

Canvas cutBorder(const Canvas& frame)
{
    int side = frame.width / 3;
    const struct {
        int column, row;
    } pieces[] = {{0, 0}, {1, 0}, {2, 0}, {2, 1}, {2, 2}, {1, 2}, {0, 2}, {0, 1}};
    Canvas strip(8 * (side + 1), side);
    for (int piece = 0; piece < 8; ++piece)
        for (int y = 0; y < side; ++y)
            for (int x = 0; x < side; ++x)
                strip.at(piece * (side + 1) + x, y) =
                    frame.at(pieces[piece].column * side + x, pieces[piece].row * side + y);
    return strip;
}
