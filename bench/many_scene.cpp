#include "bench/many_scene.h"

#include "tgx/controls/button.h"

#include <vector>

namespace {

AWnd* makeLeaf(int x, int y, int w, int h)
{
    AWnd* leaf = new AWnd(AWnd::WND_PLAIN, "static", x, y, w, h);
    leaf->setBmpFilename("leaf.bmp", -1, -1);
    leaf->setBmpInfo(w, h, 1, 1);
    return leaf;
}

AWnd* makeButton(int x, int y, int w, int h)
{
    auto* button = new AButton("static", x, y, w, h);
    button->setBmpFilename("strip.bmp", -1, -1);
    button->setBmpInfo(w, h, 1, 1);
    button->setButtonAnimFrames(0, 1, 1, 1, 0);
    return button;
}

} // namespace

ManyScene::ManyScene(const ManyWindows& many, Leaves leaves) : stage(manyWidth, manyHeight)
{
    const auto colour = [](int x, int y) {
        return static_cast<unsigned>((x * 12 & 255) << 16 | (y * 20) << 8 | 0x80);
    };
    stage.files.picture("leaf.bmp", 20, 12, colour);
    stage.files.picture("strip.bmp", 3 * 21, 12, colour);
    screen = stage.addScreen("");
    std::vector<AWnd*> path{screen};
    walk(
        many,
        [&](Level level, int x, int y, int w, int h) {
            AWnd* wnd = level != Level::Leaf        ? new AWnd(AWnd::WND_PLAIN, "static", x, y, w, h)
                        : leaves == Leaves::Buttons ? makeButton(x, y, w, h)
                                                    : makeLeaf(x, y, w, h);
            path.push_back(path.back()->addChildWindow(wnd));
        },
        [&](Level) { path.pop_back(); });
    stage.show();
}
