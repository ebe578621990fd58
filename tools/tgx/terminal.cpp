#include "tools/tgx/terminal.h"

#include <cstdlib>
#include <string_view>
#include <unistd.h>

namespace tgx {

script_text::Colour colourFor(std::FILE* stream)
{
    const char* noColour = std::getenv("NO_COLOR");
    const char* terminal = std::getenv("TERM");
    const bool isWanted = !noColour || !*noColour;
    const bool isAble = isatty(fileno(stream)) && terminal && std::string_view(terminal) != "dumb";
    return isWanted && isAble ? script_text::Colour::Yes : script_text::Colour::No;
}

std::string counted(std::ptrdiff_t count, const char* what)
{
    return std::to_string(count) + ' ' + what + (count == 1 ? "" : "s");
}

} // namespace tgx
