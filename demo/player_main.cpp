#include "demo/game.h"
#include "player/player.h"

#include <memory>

// Plays the demo like `tgx play`, with the demo's own window classes.
int main(int argc, char** argv)
{
    return tgx::playMain(argc, argv, [](int width, int height, int depth) {
        return std::make_unique<HarbourWindow>(width, height, depth);
    });
}
