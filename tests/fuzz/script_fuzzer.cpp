// Reads the input as a compiled script, draws its windows, sends events and deletes the windows. There must
// be no memory fault, undefined behaviour, leak or hang, and after each tick the invariants of the tree must
// hold.
//
// Each of the last bytes of the input is also an event. They may be part of the script too.

#include "tests/fuzz/data_directory.h"
#include "tests/fuzz/play_script.h"

#include <algorithm>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const FuzzDataDirectory directory;
    constexpr std::size_t eventBytes = 24;
    const std::span bytes(data, size);
    playScript(bytes, bytes.last(std::min(size, eventBytes)));
    return 0;
}
