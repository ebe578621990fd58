#include "bay.h"
#include "game.h"

#include "player/operation.h"
#include "player/player.h"

// The operations that events files may call in addition to the toolkit's.
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
