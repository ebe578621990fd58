#pragma once

#include "platform/display/damage.h"
#include "platform/display/painters.h"

/// The backdrop: a picture of the screen's size, or a plain colour if picture is null.
struct BackdropPixels {
    const Image* picture = nullptr;
    std::uint32_t colour = 0; // 0xRRGGBB
};

/// Draws the commands of a list on the damaged tiles of the screen. Adjacent tiles that start with the same
/// command are drawn together as a run. A command that a later one hides completely in a run is skipped.
class Rasteriser {
public:
    void paint(const DisplayList& list, PaintedRange range, const BackdropPixels& backdrop,
               const Damage& damage, Image& screen);

private:
    struct Item {
        const DrawCommand* command;
        Box box;
        std::uint32_t glyphFirst, glyphEnd; // range in placed, for a text
    };
    struct Run {
        Box box;
        std::int32_t start; // index of the first item to draw, -1 for the backdrop
        std::int32_t lastColumn;
        std::uint32_t first; // range in binned
        std::uint32_t end;
    };

    void gather(const DisplayList& list, PaintedRange range, const Damage& damage);
    void findStarts(const Damage& damage);
    void formRuns(const Damage& damage);
    void fillBins(const Damage& damage);
    template<class Action>
    void forEachRun(const Item& item, int index, int columns, Action action);
    void paintRun(const Run& run, const BackdropPixels& backdrop, Image& screen);

    // Members only so that their storage is reused in the next frame.
    std::vector<Item> items;
    std::vector<tgx::PlacedGlyph> placed;
    std::vector<std::int32_t> starts; // for each tile, the last item that covers all of it, or -1
    std::vector<std::int32_t> runOf;  // for each tile, the index of its run, or -1 if it is not damaged
    std::vector<Run> runs;
    std::vector<std::uint32_t> binned; // items of the runs, run by run
    StretchBuffers buffers;
};
