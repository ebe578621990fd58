#include "platform/display/ddwin.h"

#include "platform/display/canvas.h"
#include "platform/display/host.h"

#include <utility>

struct Cursor {};

namespace {

constexpr Cursor arrow;
constexpr Cursor hourglass;

} // namespace

ddwin::ddwin()
    : normalCursor(&arrow), waitCursor(&hourglass), primarySurface(nullptr),
      canvas(std::make_unique<Canvas>(*this))
{
    primarySurface = &canvas->primarySurface;
}

ddwin::~ddwin() = default;

const AFX_MSGMAP* ddwin::GetMessageMap() const
{
    static const AFX_MSGMAP map{CWnd::GetMessageMap()};
    return &map;
}

int ddwin::startup()
{
    return 1;
}

void ddwin::drawscreen()
{
    canvas->record(DrawOp::DrawScreen);
    canvas->present();
}

void ddwin::restoresurfaces() {} // pixels are in main memory and are never lost

void ddwin::reloadsurfaces()
{
    canvas->surfaces.reloadAll();
    canvas->reloadBackdrop();
}

void ddwin::OnMouseAction()
{
    tickEnded = true;
}

void ddwin::OnKeyInput() {}

void ddwin::setCursor(HICON cursor)
{
    displayhost::current().setCursor(cursor == waitCursor ? CursorShape::Wait : CursorShape::Normal);
}

void ddwin::flushMessages()
{
    displayhost::current().pump(*this);
}

unsigned char ddwin::key()
{
    return std::exchange(keyCode, 0);
}

int ddwin::getAppactive()
{
    return appActive;
}

void ddwin::followPointer()
{
    if (mouseX == canvas->knownMouseX && mouseY == canvas->knownMouseY)
        return;
    canvas->knownMouseX = mouseX;
    canvas->knownMouseY = mouseY;
    displayhost::current().movePointer(mouseX, mouseY);
}

void ddwin::runTick()
{
    InputQueue& input = displayhost::current().input();
    followPointer(); // the game may have written it between the ticks
    displayhost::current().tickBegins(*this, tickEnded);
    if (tickEnded) {
        input.beginTick(*this);
        canvas->knownMouseX = mouseX;
        canvas->knownMouseY = mouseY;
    }
    tickEnded = false;
    mouseDownCount = lButtonDown ? mouseDownCount + 1 : 0;
    const bool hasKey = keyCode != 0 || keyCode2 != 0;
    try {
        OnMouseAction();
    } catch (...) {
        // Ends the failed tick, because its input must not be taken again and fail again.
        tickEnded = true;
        input.endTick(*this);
        throw;
    }
    followPointer();
    if (!tickEnded)
        return;
    input.endTick(*this);
    if (hasKey)
        OnKeyInput();
}

void ddwin::runFrame()
{
    displayhost::current().frameBegins(*this);
    try {
        drawscreen();
    } catch (...) {
        canvas->endFrame(); // shows what was drawn so far
        throw;
    }
    canvas->endFrame();
    followPointer();
}

const DisplayList& ddwin::getLastFrame() const
{
    return canvas->lastList();
}

const Image& ddwin::getScreenImage() const
{
    return canvas->getScreen();
}

IDirectDraw* ddwin::getDD()
{
    return &canvas->directDraw;
}

IDirectDraw2* ddwin::getDD2()
{
    return &canvas->directDraw2;
}

IDirectDrawSurface* ddwin::getBackBuffer()
{
    return &canvas->backBuffer;
}

IDirectDrawClipper* ddwin::getBackClipper()
{
    return &canvas->clipper;
}

IDirectDrawPalette* ddwin::getDDPal()
{
    return &canvas->palette;
}

backdrop* ddwin::getBackdrop()
{
    return canvas->getBackdrop();
}

long ddwin::setpalette(IDirectDrawPalette* palette)
{
    return primarySurface ? primarySurface->SetPalette(palette) : -1;
}

long ddwin::restorepalette()
{
    return setpalette(getDDPal());
}
