// The picture of a message in the game's own window.

#include "platform/display/message_picture.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

ImageRef plainScreen(int width, int height)
{
    ImageRef screen = makeImage(width, height);
    for (int y = 0; y < height; ++y)
        std::fill_n(screen->row(y), width, 0xFF8040C0);
    return screen;
}

/// The first and last row of a picture that contain text, and the number of text pixels.
struct Text {
    int top = -1, bottom = -1, pixels = 0;
};

Text textOf(const Image& picture)
{
    Text text;
    for (int y = 0; y < picture.height; ++y) {
        const auto inRow = std::count(picture.row(y), picture.row(y) + picture.width, 0xFFE8EDF2u);
        text.pixels += static_cast<int>(inRow);
        if (inRow > 0)
            text = {text.top < 0 ? y : text.top, y, text.pixels};
    }
    return text;
}

TEST(MessagePicture, showsLinesOverADimmedScreen)
{
    const ImageRef screen = plainScreen(320, 200);
    const ImageRef one = messagePicture(*screen, "cannot load x.bmp");
    EXPECT_EQ(one->row(0)[0], 0xFF201030u) << "a quarter as bright";
    EXPECT_EQ(screen->row(0)[0], 0xFF8040C0u);
    EXPECT_GT(textOf(*one).pixels, 50);

    const ImageRef two = messagePicture(*screen, "cannot load x.bmp\ncannot load x.bmp");
    EXPECT_EQ(textOf(*two).pixels, 2 * textOf(*one).pixels);
    const ImageRef longer = messagePicture(*screen, std::string(10, 'a') + ' ' + std::string(50, 'b'));
    EXPECT_GT(textOf(*longer).bottom - textOf(*longer).top, textOf(*one).bottom - textOf(*one).top)
        << "a word that does not fit is moved to the next line";
}

TEST(MessagePicture, worksOnAScreenOfAnySize)
{
    std::string many;
    for (int i = 0; i < 100; ++i)
        many += "a message\n";
    for (const auto& [width, height] :
         {std::pair(320, 60), std::pair(20, 20), std::pair(1, 1), std::pair(0, 0)}) {
        const ImageRef picture = messagePicture(*plainScreen(width, height), many);
        EXPECT_EQ(picture->width, width);
        EXPECT_EQ(picture->height, height);
    }
}

} // namespace
