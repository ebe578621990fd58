#include "demo/art/pictures.h"

#include <cstdio>

// demo_art DIR: paints the demo's pictures into DIR. The same bytes on every run.
int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: demo_art DIR\n");
        return 2;
    }
    enum Form { Solid, Alpha, Keyed };
    const struct {
        const char* name;
        Canvas (*paint)();
        Form form;
    } pictures[] = {
        {"harbour.png", harbourBackdrop, Solid},
        {"quay.png", quayBackdrop, Solid},
        {"desk.png", deskBackdrop, Solid},
        {"coast.png", chartCoast, Alpha},
        {"rose.png", compassRose, Alpha},
        {"emblem.png", emblem, Alpha},
        {"alma.png", [] { return shipPicture(0); }, Solid},
        {"kestrel.png", [] { return shipPicture(1); }, Solid},
        {"biddy.png", [] { return shipPicture(2); }, Solid},
        {"beam.png", beamStrip, Solid},
        {"flag.png", flagStrip, Alpha},
        {"steamer.png", steamerStrip, Alpha},
        {"button.png", [] { return buttonStrip(0); }, Alpha},
        {"opening.png", [] { return buttonStrip(10); }, Alpha},
        {"check.png", checkStrip, Alpha},
        {"tick.png", tick, Alpha},
        {"radio.png", radioStrip, Alpha},
        {"dot.png", dot, Alpha},
        {"tab.png", tabStrip, Alpha},
        {"hbar.png", [] { return scrollStrip(true); }, Alpha},
        {"vbar.png", [] { return scrollStrip(false); }, Alpha},
        {"field.png", fieldFill, Solid},
        {"port.bmp", portStrip, Keyed},
        {"brass.png", brassBorder, Alpha},
        {"cord.png", cordBorder, Alpha},
        {"scale.png", paperBorder, Solid},
        {"panel.png", panelFill, Alpha},
        {"shade.png", headerShade, Alpha},
        {"dim.png", dimming, Alpha},
        {"rule.png", rule, Alpha},
        {"dash.png", routeSample, Alpha},
        {"shoal.png", shoalSample, Alpha},
        {"planks.png", plankTile, Solid},
        {"sea.png", seaTile, Solid},
    };
    for (const auto& picture : pictures) {
        Canvas canvas = picture.paint();
        std::string path = std::string(argv[1]) + "/" + picture.name;
        bool written = picture.form == Keyed ? writeKeyedBmp(canvas, path)
                                             : writePng(canvas, path, picture.form == Alpha);
        if (!written) {
            std::fprintf(stderr, "demo_art: cannot write %s\n", path.c_str());
            return 1;
        }
    }
    return 0;
}
