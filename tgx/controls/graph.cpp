#include "tgx/controls/graph.h"

#include "tgx/base/fixed.h"
#include "tgx/base/numtext.h"
#include "tgx/wnd/stage.h"

#include <algorithm>
#include <cstdint>

namespace {

enum Style { Bars = 0, Lines = 1 };

constexpr short leastRange = 10;
constexpr ZnFixed grown = ZnFixed::fromInt(1);
constexpr int growthPerTick = 204; // raw fixed point, just under a twentieth

constexpr unsigned lineColourUnset = 0xFFFF;
constexpr int lineWidth = 2;
constexpr unsigned long barMarkColour = 0x80FF;
constexpr unsigned long arrowMarkColour = 0xA200;

// Pixels.
constexpr int labelGap = 5; // from an axis to its numbers
constexpr int leastLabelWidth = 20;
constexpr int markWidth = 4;

/// Converts a raw value to pixels, truncated towards zero. Values far outside any screen are limited, so that
/// sums with them fit into an int.
int toPixels(std::int64_t raw)
{
    constexpr std::int64_t farOff = 1 << 30;
    return static_cast<int>(std::clamp<std::int64_t>(raw / ZnFixed::one, -farOff, farOff));
}

std::int64_t toRaw(int pixels)
{
    return std::int64_t{pixels} * ZnFixed::one;
}

/// Returns range, extended to contain value within the limits of 16 bits.
short extended(short range, int value)
{
    return static_cast<short>(std::clamp<int>(value, range, INT16_MAX));
}

bool isMultiple(int value, int every)
{
    return every > 0 && value % every == 0;
}

bool isSeries(int series)
{
    return series >= 0 && series < AGraph::seriesCount;
}

} // namespace

/// The places of values and positions in one frame, in screen pixels.
struct AGraph::Plot {
    int left, top, right, bottom;
    ZnFixed xStep; // pixels per position
    ZnFixed yStep; // pixels per value
    int charHeight, lineHeight;

    int x(int position) const { return toPixels(toRaw(left) + std::int64_t{position} * xStep.raw); }
    int y(int value) const { return toPixels(toRaw(bottom) - std::int64_t{value} * yStep.raw); }
    /// Returns the right end of the position that begins at from.
    int nextX(int from) const { return toPixels(toRaw(from) + xStep.raw); }
    int labelWidth() const { return std::max(xStep.toInt(), leastLabelWidth); }
};

AGraph::AGraph(const CString& name, int x, int y, int width, int height)
    : AWnd(WND_GRAPH, name, x, y, width, height)
{
    removeAll(1);
}

void AGraph::addData(int value, const CString& label, unsigned long colour, int series)
{
    if (!isSeries(series))
        return;
    seriesValues[series].Add(value);
    seriesLabels[series].Add(label);
    itemColours.Add(static_cast<unsigned>(colour));
    xRange = extended(xRange, seriesValues[series].GetSize());
    yRange = extended(yRange, value);
}

void AGraph::removeAll(int restartGrowth)
{
    for (auto& values : seriesValues)
        values.RemoveAll();
    for (auto& labels : seriesLabels)
        labels.RemoveAll();
    itemColours.RemoveAll();
    if (restartGrowth)
        growth = ZnFixed();
    xRange = leastRange;
    yRange = leastRange;
}

int AGraph::getItemCount(int series) const
{
    return isSeries(series) ? seriesValues[series].GetSize() : 0;
}

unsigned AGraph::getLineColour(int series) const
{
    return series >= 0 && series < lineColours.GetSize() ? lineColours[series] : lineColourUnset;
}

void AGraph::setLineColour(int series, unsigned colour)
{
    if (!isSeries(series))
        return;
    while (lineColours.GetSize() <= series)
        lineColours.Add(lineColourUnset);
    lineColours.SetAt(series, colour);
}

AGraph::Plot AGraph::getPlot() const
{
    const int positions = std::max<int>(xRange, seriesValues[0].GetSize());
    return {left(),
            top(),
            right(),
            bottom(),
            ZnFixed::fromInt(right() - left()) / ZnFixed::fromInt(positions),
            ZnFixed::fromInt(bottom() - top()) / ZnFixed::fromInt(yRange),
            font ? font->charHeight : 0,
            font ? font->lineHeight : 0};
}

void AGraph::draw(int frameStep)
{
    // Computed before the base advances the window's movement, so that border and plot are drawn in the same
    // place.
    const Plot plot = getPlot();
    AWnd::draw(frameStep);
    tgx::Stage* stage = tgx::stage();
    RECT box{plot.left, plot.top, plot.right, plot.bottom};
    stage->adddirtyrect(box);
    if (!isVisible(1))
        return;

    drawValueAxis(plot);
    drawPositionAxis(plot);
    for (int series = 0; series < seriesCount; ++series) {
        for (int index = 0; index < seriesValues[series].GetSize(); ++index) {
            if (style == Bars)
                drawBar(plot, series, index);
            else if (style == Lines)
                drawLine(plot, series, index);
        }
    }
    grow(frameStep);

    const unsigned long axes = stage->getcol(axisColour);
    stage->rectangle(plot.left - 1, plot.top, plot.left, plot.bottom, axes);
    stage->rectangle(plot.left - 1, plot.bottom, plot.right, plot.bottom + 1, axes);
}

void AGraph::grow(int frameStep)
{
    if (frameStep != 0 && growth < grown) {
        const std::int64_t next = growth.raw + std::int64_t{frameStep} * growthPerTick;
        growth = ZnFixed::fromRaw(static_cast<std::int32_t>(std::clamp<std::int64_t>(next, 0, grown.raw)));
    }
}

/// Draws the grid lines and numbers of the values. 0 has a number; the axis serves as its line.
void AGraph::drawValueAxis(const Plot& plot)
{
    tgx::Stage* stage = tgx::stage();
    const unsigned long grid = stage->getcol(gridColour);
    for (int value = 0; value <= yRange; ++value) {
        const int y = plot.y(value);
        if (value > 0 && isMultiple(value, yGridEvery))
            stage->rectangle(plot.left, y, plot.right, y + 1, grid);
        if (isMultiple(value, yLabelEvery)) {
            const CString number = intToString(value, 0, 0);
            const int length = stage->getStringLength(number, font);
            stage->textout(plot.left - length - labelGap, y - plot.charHeight / 2, number, font, nullptr, 0,
                           ZnFixed::fromInt(1), 1);
        }
    }
}

void AGraph::drawPositionAxis(const Plot& plot)
{
    tgx::Stage* stage = tgx::stage();
    const unsigned long grid = stage->getcol(gridColour);
    for (int position = 0; position <= xRange; ++position) {
        const int x = plot.x(position);
        if (position > 0 && isMultiple(position, xGridEvery))
            stage->rectangle(x, plot.top, x + 1, plot.bottom, grid);
        if (isMultiple(position, xLabelEvery))
            drawPositionNumber(plot, position);
    }
}

/// Draws a number below the point of a line or below a bar's right edge, so that with bars position 0 has no
/// number.
void AGraph::drawPositionNumber(const Plot& plot, int position)
{
    tgx::Stage* stage = tgx::stage();
    const CString number = intToString(firstXLabel + position, 0, 0);
    const int length = stage->getStringLength(number, font);
    const int x = plot.x(position);
    const int y = plot.bottom + labelGap;
    if (style == Bars && position > 0)
        textOut(x - length, y, length, plot.lineHeight, number, TJ_CENTRE, 0, ZnFixed::fromInt(1), 0,
                nullptr);
    else if (style == Lines)
        stage->textout(x - length / 2, y, number, font, nullptr, 0, ZnFixed::fromInt(1), 1);
}

void AGraph::drawBar(const Plot& plot, int series, int index)
{
    const int value = seriesValues[series][index];
    const unsigned colour = itemColours[index]; // from call index of addData, whatever its series
    const int x = plot.x(index);
    const int x2 = plot.nextX(x);
    const std::int64_t grownValue =
        std::clamp<std::int64_t>(std::int64_t{growth.raw} * value, INT32_MIN, INT32_MAX);
    const ZnFixed height = ZnFixed::fromRaw(static_cast<std::int32_t>(grownValue)) * plot.yStep;
    const int barTop = toPixels(toRaw(plot.bottom) - height.raw);

    // A bar leaves a gap of one pixel at its left. A negative value has no bar, not even an empty one while
    // the graph grows.
    if (barTop < plot.bottom)
        tgx::stage()->fillrect(x + 1, barTop, x2, plot.bottom, colour);
    else if (barTop == plot.bottom && value >= 0 && showEmptyBars)
        tgx::stage()->fillrect(x, plot.bottom - 1, x2, plot.bottom, colour);
    if (index < seriesLabels[series].GetSize())
        drawLabel(plot, seriesLabels[series][index], x, barTop);
}

/// Draws the line to value index, which ends at the position after its own; the first begins where the axes
/// meet.
void AGraph::drawLine(const Plot& plot, int series, int index)
{
    const CArray<int, int>& values = seriesValues[series];
    if (toRaw(index) >= std::int64_t{growth.raw} * values.GetSize())
        return;
    const int x = plot.x(index);
    const int x2 = plot.nextX(x);
    const int y = plot.y(values[index]);
    if (index == 0)
        drawSegment(plot.left, plot.bottom, x2, y, getLineColour(series));
    else
        drawSegment(x, plot.y(values[index - 1]), x2, y, getLineColour(series));

    if (index >= seriesLabels[series].GetSize())
        return;
    tgx::Stage* stage = tgx::stage();
    const CString& label = seriesLabels[series][index];
    const int half = plot.charHeight / 2;
    if (label == "|")
        stage->fillrect(x2, y - half, x2 + markWidth, y + half, stage->getcol(barMarkColour));
    else if (label == "^")
        stage->fillrect(x2, y - half, x2 + markWidth, y + half, stage->getcol(arrowMarkColour));
    else
        drawLabel(plot, label, x, y);
}

/// Draws a segment of a line, or nothing if the back buffer provides no device context.
void AGraph::drawSegment(int fromX, int fromY, int toX, int toY, unsigned colour)
{
    IDirectDrawSurface* buffer = tgx::stage()->getBackBuffer();
    HDC context = nullptr;
    if (buffer->GetDC(&context) != 0)
        return;
    HPEN pen = CreatePen(PS_SOLID, lineWidth, colour);
    HGDIOBJ before = SelectObject(context, pen);
    SetBkMode(context, TRANSPARENT);
    MoveToEx(context, fromX, fromY, nullptr);
    LineTo(context, toX, toY);
    SelectObject(context, before);
    DeleteObject(pen);
    buffer->ReleaseDC(context);
}

/// Draws label above foot, centred in the position that begins at x.
void AGraph::drawLabel(const Plot& plot, const CString& label, int x, int foot)
{
    textOut(x, foot - plot.charHeight, plot.labelWidth(), plot.charHeight, label, TJ_CENTRE, 0,
            ZnFixed::fromInt(1), 0, nullptr);
}
