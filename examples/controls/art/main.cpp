#include "examples/controls/art/looks.h"

#include <cstdio>

namespace {

const struct {
    const char* name;
    Canvas (*paint)();
} pictures[] = {
    {"page", page},
    {"panel", panelFill},
    {"sheet", sheetFill},
    {"frame", panelFrame},
    {"sheetframe", sheetFrame},
    {"hotframe", hotFrame},
    {"menuframe", menuFrame},
    {"rule", rule},
    {"dim", dim},
    {"button", buttonStrip},
    {"opening", openingStrip},
    {"check", checkStrip},
    {"tick", tick},
    {"radio", radioStrip},
    {"dot", dot},
    {"tab", tabStrip},
    {"combo", [] { return comboStrip(true); }},
    {"steps", [] { return comboStrip(false); }},
    {"prev", [] { return stepStrip(false); }},
    {"next", [] { return stepStrip(true); }},
    {"hbar", [] { return scrollStrip(true); }},
    {"vbar", [] { return scrollStrip(false); }},
    {"titles", titleBand},
    {"chosen", [] { return rowBand(true); }},
    {"hot", [] { return rowBand(false); }},
    {"keys", keyPlates},
    {"keychosen", [] { return keyBand(true); }},
    {"keyhot", [] { return keyBand(false); }},
    {"weather", weatherIcons},
    {"progress", progressStrip},
    {"tank", tankStrip},
    {"tape", tape},
    {"boat", boat},
    {"bay", bay},
    {"windmill", windmillStrip},
    {"waves", waveTile},
    {"stripes", stripes},
    {"glow", glow},
    {"rings", rings},
};

} // namespace

// controls_art DIR: paints the examples' pictures into the data directory DIR. Every run writes the same
// bytes.
int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: controls_art DIR\n");
        return 2;
    }
    const std::string directory = std::string(argv[1]) + '/';
    for (const auto& picture : pictures) {
        const std::string path = directory + "art/" + picture.name + ".png";
        if (!writePng(picture.paint(), path, true, Grain::None)) {
            std::fprintf(stderr, "controls_art: cannot write %s\n", path.c_str());
            return 1;
        }
    }
    // List boxes look for their scroll bar there.
    const std::string bar = directory + "UIG/scroll1.bmp", font = directory + "fonts/plain.bdf";
    if (!writeKeyedBmp(listBarStrip(), bar) || !writeFont(font)) {
        std::fprintf(stderr, "controls_art: cannot write %s or %s\n", bar.c_str(), font.c_str());
        return 1;
    }
    return 0;
}
