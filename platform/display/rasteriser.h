#pragma once

#include "platform/display/damage.h"
#include "platform/display/painters.h"

/// What lies under all windows: a picture of the screen's size, or one colour where picture is null.
struct BackdropPixels {
    const Image* picture = nullptr;
    std::uint32_t colour = 0; // 0xRRGGBB
};

/// Turns the commands of a list into pixels, damaged tiles only. Side by side, tiles that begin with the same
/// command are drawn together as a run; within a run nothing is drawn that a later command hides whole.
class Rasteriser {
public:
    void paint(const DisplayList& list, PaintedRange range, const BackdropPixels& backdrop,
               const Damage& damage, Image& screen);

private:
    struct Item {
        const DrawCommand* command;
        Box box;
        std::uint32_t glyphFirst, glyphEnd; // of a text, in placed
    };
    struct Run {
        Box box;
        std::int32_t start; // item to begin with, -1 for the backdrop
        std::int32_t lastColumn;
        std::uint32_t first; // into binned
        std::uint32_t end;
    };

    void gather(const DisplayList& list, PaintedRange range, const Damage& damage);
    void findStarts(const Damage& damage);
    void formRuns(const Damage& damage);
    void fillBins(const Damage& damage);
    template<class Action>
    void forEachRun(const Item& item, int index, int columns, Action action);
    void paintRun(const Run& run, const BackdropPixels& backdrop, Image& screen);

    // Kept from frame to frame for their storage.
    std::vector<Item> items;
    std::vector<tgx::PlacedGlyph> placed;
    std::vector<std::int32_t> starts; // by tile: the last item that covers it whole, or -1
    std::vector<std::int32_t> runOf;  // by tile, -1 for an undamaged one
    std::vector<Run> runs;
    std::vector<std::uint32_t> binned; // items of the runs, run by run
    StretchBuffers buffers;
};
