#include "platform/display/pen.h"

#include "platform/display/ddwin.h"
#include "platform/display/device_context.h"

#include <algorithm>
#include <utility>

namespace {

// Limited because a display list stores the width in 16 bits.
constexpr int maxPenWidth = 32767;

// Returns the initial pen of every context, which is black and one pixel wide.
GdiObject& stockPen()
{
    static GdiObject pen;
    return pen;
}

} // namespace

DeviceContext::DeviceContext(ddwin& window) : owner(window), pen(&stockPen())
{
    pen->selections++;
}

DeviceContext::~DeviceContext()
{
    pen->selections--;
}

GdiObject* DeviceContext::select(GdiObject* newPen)
{
    newPen->selections++;
    pen->selections--;
    return std::exchange(pen, newPen);
}

HPEN CreatePen(int, int width, std::uint32_t colour)
{
    return new GdiObject{std::clamp(width, 1, maxPenWidth), colour & 0xFFFFFF};
}

HGDIOBJ SelectObject(HDC context, HGDIOBJ object)
{
    return context && object ? context->select(object) : nullptr;
}

int SetBkMode(HDC context, int mode)
{
    return context ? std::exchange(context->backgroundMode, mode) : 0;
}

int MoveToEx(HDC context, int x, int y, POINT* previous)
{
    if (!context)
        return 0;
    if (previous)
        *previous = context->at;
    context->at = {x, y};
    return 1;
}

int LineTo(HDC context, int x, int y)
{
    if (!context)
        return 0;
    ddwin& window = context->owner;
    const auto pixel = static_cast<std::uint32_t>(window.getcol(context->pen->colour));
    window.drawLine(context->at.x, context->at.y, x, y, context->pen->width, pixel);
    context->at = {x, y};
    return 1;
}

int DeleteObject(HGDIOBJ object)
{
    if (!object || object == &stockPen() || object->selections > 0)
        return 0;
    delete object;
    return 1;
}
