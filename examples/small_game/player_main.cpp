#include "bay.h"
#include "game.h"

#include "player/operation.h"
#include "player/player.h"

// The operations that events files may call in addition to the toolkit's.
constexpr tgx::Operation ownOperations[] = {
    tgx::operation<&BayMap::getPots>("getPots"),
    tgx::operation<&BayScreen::getSortColumn>("getSortColumn"),
    tgx::operation<&LobsterWindow::getBestPence>("getBestPence"),
};

int main(int argc, char** argv)
{
    tgx::addOperations(ownOperations);
    return tgx::playMain(argc, argv, [](int width, int height, int depth) {
        return std::make_unique<LobsterWindow>(width, height, depth);
    });
}
