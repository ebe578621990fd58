#include "platform/display/canvas.h"

#include "platform/display/ddwin.h"
#include "platform/display/host.h"

Canvas::Canvas(ddwin& owner)
    : backBuffer(&owner), window(owner), screen(makeImage(0, 0)), backdropSurface(&owner)
{
    fonts.push_back({makeBuiltInFont(), {}});
    fonts.back().font->index = 0;
    layer.resize(0, 0);
    beginList();
}

void Canvas::beginList()
{
    static std::uint64_t lastNumber = 0;
    running->list.clear();
    running->heldImages.clear();
    running->number = ++lastNumber;
    running->paintFrom = 0;
    running->painted = {};
}

void Canvas::updateSize()
{
    const int width = std::max<int>(window.screenWidth, 0);
    const int height = width > 0 ? std::max<int>(window.screenHeight, 0) : 0;
    if (screen->height == height && screen->width == (height > 0 ? width : 0))
        return;
    screen = makeImage(width, height);
    damage.resize(screen->width, screen->height);
    layer.resize(screen->width, screen->height);
    nameBackdropSurface();
}

const Image& Canvas::getScreen()
{
    updateSize();
    return *screen;
}

void Canvas::nameBackdropSurface()
{
    backdropSurface.setImage(layer.newImage(), backdropName);
}

void Canvas::setPlainBackdrop(std::uint32_t colour)
{
    updateSize();
    layer.setPlain(colour);
    backdropName.Empty();
    nameBackdropSurface();
}

void Canvas::setBackdropPicture(ImageRef picture, const CString& name)
{
    updateSize();
    if (picture)
        layer.setPicture(std::move(picture));
    else
        layer.setPlain(0);
    backdropName = name;
    nameBackdropSurface();
}

void Canvas::reloadBackdrop()
{
    if (backdropName.IsEmpty())
        return;
    if (ImageRef picture = surfaces.load(backdropName.view())) {
        setBackdropPicture(std::move(picture), CString(backdropName));
        redrawScreen();
    }
}

void Canvas::drawBackdrop()
{
    updateSize();
    running->paintFrom = running->list.commands().size();
    layer.restore(damage);
}

void Canvas::redrawScreen()
{
    layer.markAll();
}

void Canvas::markDirty(const Box& box)
{
    updateSize();
    layer.markDirty(box);
}

backdrop* Canvas::getBackdrop()
{
    updateSize();
    return &backdropSurface;
}

void Canvas::present()
{
    updateSize();
    const PaintedRange toPaint{running->paintFrom, running->list.commands().size()};
    if (isPresented)
        damage.markAll(); // the second time in a frame, the screen no longer shows the last list
    else
        damage.markDifferences(last->list, last->painted, running->list, toPaint);
    rasteriser.paint(running->list, toPaint, layer.shown(), damage, *screen);
    damage.collectRects(changed);
    damage.clear();
    running->painted = toPaint;
    isPresented = true;
    displayhost::current().show(*screen, changed);
}

void Canvas::endFrame()
{
    if (!isPresented)
        present();
    std::swap(running, last);
    isPresented = false;
    surfaces.endFrame();
    beginList();
}
