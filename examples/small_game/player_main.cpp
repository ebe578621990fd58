#include "bay.h"
#include "game.h"

#include "player/operation.h"
#include "player/player.h"

// What events files may call beyond the toolkit's operations.
constexpr Operation ownOperations[] = {
    operation<&BayMap::getPots>("getPots"),
    operation<&BayScreen::getSortColumn>("getSortColumn"),
    operation<&LobsterWindow::getBestPence>("getBestPence"),
};

int main(int argc, char** argv)
{
    addOperations(ownOperations);
    return playMain(argc, argv, [](int width, int height, int depth) {
        return std::make_unique<LobsterWindow>(width, height, depth);
    });
}
