#include "player/player.h"

// first_screen_player DIR --script script.tgx: the player makes a plain main window and reads the script
// itself.
int main(int argc, char** argv)
{
    return tgx::playMain(argc, argv, nullptr);
}
