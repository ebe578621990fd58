// Any bytes are a script: they are read into windows, drawn, clicked about in and taken down again. What must
// hold: no memory fault, no undefined behaviour, no leak, no run without end, and after each tick a tree that
// agrees with itself.
//
// The last bytes of the input are also the player's hand: each is one event. They may well be part of the
// script too.

#include "tests/fuzz/data_directory.h"
#include "tests/fuzz/play_script.h"

#include <algorithm>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const FuzzDataDirectory directory;
    constexpr std::size_t handBytes = 24;
    const std::span bytes(data, size);
    playScript(bytes, bytes.last(std::min(size, handBytes)));
    return 0;
}
