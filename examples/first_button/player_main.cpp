#include "quay.h"

#include "player/player.h"

// The player reads the script itself, so it uses the window without the game's startup.
int main(int argc, char** argv)
{
    return tgx::playMain(argc, argv, [](int width, int height, int depth) {
        return std::make_unique<QuayWindow>(width, height, depth);
    });
}
