#include "demo/art/pictures.h"

#include <cstdio>

namespace {

enum Form { Solid, Alpha, Keyed };
const struct {
    const char* name;
    Canvas (*paint)();
    Form form;
} pictures[] = {
    {"art/harbour.png", harbourBackdrop, Solid},
    {"art/quay.png", quayBackdrop, Solid},
    {"art/desk.png", deskBackdrop, Solid},
    {"art/coast.png", chartCoast, Alpha},
    {"art/rose.png", compassRose, Alpha},
    {"art/emblem.png", emblem, Alpha},
    {"art/alma.png", [] { return shipPicture(0); }, Solid},
    {"art/kestrel.png", [] { return shipPicture(1); }, Solid},
    {"art/biddy.png", [] { return shipPicture(2); }, Solid},
    {"art/beam.png", beamStrip, Solid},
    {"art/flag.png", flagStrip, Alpha},
    {"art/steamer.png", steamerStrip, Alpha},
    {"art/button.png", [] { return buttonStrip(0); }, Alpha},
    {"art/opening.png", [] { return buttonStrip(10); }, Alpha},
    {"art/check.png", checkStrip, Alpha},
    {"art/tick.png", tick, Alpha},
    {"art/radio.png", radioStrip, Alpha},
    {"art/dot.png", dot, Alpha},
    {"art/tab.png", tabStrip, Alpha},
    {"art/hbar.png", [] { return scrollStrip(true); }, Alpha},
    {"art/vbar.png", [] { return scrollStrip(false); }, Alpha},
    {"art/field.png", fieldFill, Solid},
    {"art/port.bmp", portStrip, Keyed},
    {"art/brass.png", brassBorder, Alpha},
    {"art/cord.png", cordBorder, Alpha},
    {"art/scale.png", paperBorder, Solid},
    {"art/panel.png", panelFill, Alpha},
    {"art/shade.png", headerShade, Alpha},
    {"art/dim.png", dimming, Alpha},
    {"art/rule.png", rule, Alpha},
    {"art/dash.png", routeSample, Alpha},
    {"art/shoal.png", shoalSample, Alpha},
    {"art/planks.png", plankTile, Solid},
    {"art/sea.png", seaTile, Solid},
    {"UIG/scroll1.bmp", listBarStrip, Keyed}, // where list boxes look for it
    {"art/list.png", listFill, Alpha},
    {"art/titles.png", titleBand, Alpha},
    {"art/chosen.png", [] { return rowBand(true); }, Alpha},
    {"art/hot.png", [] { return rowBand(false); }, Alpha},
    {"art/reading.png", readingLine, Alpha},
    {"art/cellchosen.png", [] { return cellFrame(true); }, Alpha},
    {"art/cellhot.png", [] { return cellFrame(false); }, Alpha},
    {"art/hotcord.png", hotCordBorder, Alpha},
    {"art/short.png", [] { return buttonStrip(0, 128); }, Alpha},
    {"art/combo.png", [] { return comboStrip(Drop::None, true); }, Alpha},
    {"art/combobelow.png", [] { return comboStrip(Drop::Below, true); }, Alpha},
    {"art/comboabove.png", [] { return comboStrip(Drop::Above, false); }, Alpha},
    {"art/prev.png", [] { return stepStrip(false); }, Alpha},
    {"art/next.png", [] { return stepStrip(true); }, Alpha},
    {"art/menu.png", menuFill, Solid},
    {"art/menuedge.png", menuBorder, Solid},
    {"art/notice.png", noticeFill, Solid},
    {"art/bell.png", bell, Alpha},
    {"art/helm.png", helm, Alpha},
    {"art/kinds.png", vesselKinds, Alpha},
    {"art/signals.png", signalFlags, Alpha},
    {"art/condition.png", [] { return gauge(false); }, Alpha},
    {"art/coal.png", [] { return gauge(true); }, Alpha},
    {"art/ada.png", [] { return fleetPicture(0); }, Solid},
    {"art/bess.png", [] { return fleetPicture(1); }, Solid},
    {"art/clara.png", [] { return fleetPicture(2); }, Solid},
    {"art/dora.png", [] { return fleetPicture(3); }, Solid},
    {"art/effie.png", [] { return fleetPicture(4); }, Solid},
    {"art/petrel.png", [] { return fleetPicture(5); }, Solid},
    {"art/wren.png", [] { return fleetPicture(6); }, Solid},
    {"art/marigold.png", [] { return fleetPicture(7); }, Solid},
    {"art/sprat.png", [] { return fleetPicture(8); }, Solid},
    {"art/temperance.png", [] { return fleetPicture(9); }, Solid},
    {"art/goodintent.png", [] { return fleetPicture(10); }, Solid},
    {"art/halcyon.png", [] { return fleetPicture(11); }, Solid},
    {"art/fulmar.png", [] { return fleetPicture(12); }, Solid},
    {"art/goods.png", goodsIcons, Alpha},
    {"art/stowed.png", goodsStowed, Alpha},
    {"art/section.png", holdSection, Alpha},
    {"art/crane.png", quayCrane, Solid},
    {"art/coalmark.png", [] { return marketMark(0); }, Alpha},
    {"art/slatemark.png", [] { return marketMark(1); }, Alpha},
    {"art/woolmark.png", [] { return marketMark(2); }, Alpha},
    {"art/herringmark.png", [] { return marketMark(3); }, Alpha},
    {"art/icemark.png", [] { return marketMark(4); }, Alpha},
    {"art/auctionmark.png", [] { return marketMark(5); }, Alpha},
    {"art/coalbar.png", [] { return stockBar(0); }, Alpha},
    {"art/slatebar.png", [] { return stockBar(1); }, Alpha},
    {"art/woolbar.png", [] { return stockBar(2); }, Alpha},
    {"art/herringbar.png", [] { return stockBar(3); }, Alpha},
    {"art/tank.png", oilTank, Alpha},
    {"art/pipe.png", oilPipe, Alpha},
    {"art/tape.png", tickerTape, Alpha},
    {"art/ticker.png", tickerMachine, Alpha},
    {"art/stern.png", newShipStern, Solid},
    {"art/keys.png", keyCaps, Alpha},
    {"art/keypressed.png", [] { return keyFrame(true); }, Alpha},
    {"art/keyhot.png", [] { return keyFrame(false); }, Alpha},
};

} // namespace

// demo_art DIR: paints the demo's pictures into the data directory DIR. Every run writes the same bytes.
int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: demo_art DIR\n");
        return 2;
    }
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
