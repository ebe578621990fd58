#pragma once

#include "tgx/base/fixed.h"
#include "tgx/wnd/wnd.h"

/// Up to four series of values as bars or lines, on a grid with numbered axes; values of 0 and more are
/// expected. It grows when it appears: bars rise and lines extend over about 21 ticks from the first drawn
/// frame. Numbers and labels may be outside the window's box. Takes no input.
class TGX_API AGraph : public AWnd {
public:
    static constexpr int seriesCount = 4;

    AGraph(const CString& id, int x, int y, int width, int height);

    /// Marks its box dirty even while it is invisible; growth only continues while it is visible.
    void draw(int frameStep) override;

    /// Appends a value to series 0 to 3; does nothing for any other. colour, from ddwin::getcol, is appended
    /// to one table for all series: bar n of every series has the colour of call n. A label is drawn above
    /// its bar; at a point of a line "|" and "^" are markers.
    void addData(int value, const CString& label, unsigned long colour, int series);
    /// Removes all values, labels and bar colours and resets both ranges to 10. If restartGrowth is not 0,
    /// the graph grows again from the start.
    void removeAll(int restartGrowth);
    /// Returns the number of values in the series; 0 for a series outside 0 to 3.
    int getItemCount(int series) const;

    /// Returns how far the graph has grown, from 0 to 1.0.
    ZnFixed getGrowth() const { return growth; }
    /// Returns the number of positions on the x axis: 10, or more if the data require it.
    int getXRange() const { return xRange; }
    /// Returns the top value of the y axis: 10, or more if the data require it.
    int getYRange() const { return yRange; }

    /// Returns the colour of a series' line in the format of CreatePen, with red in the low byte. Yellow if
    /// none was set, and for a series outside 0 to 3.
    unsigned getLineColour(int series) const;
    /// Sets the colour of a series' line, which removeAll keeps. Does nothing for a series outside 0 to 3.
    void setLineColour(int series, unsigned colour);
    /// Returns the grid's colour in the format of ddwin::getcol.
    unsigned getGridColour() const { return gridColour; }
    void setGridColour(unsigned colour) { gridColour = colour; }
    /// Returns the axes' colour in the format of ddwin::getcol.
    unsigned getAxisColour() const { return axisColour; }
    void setAxisColour(unsigned colour) { axisColour = colour; }
    /// Returns the number shown at the first x position, stored in 16 bits.
    int getFirstXLabel() const { return firstXLabel; }
    void setFirstXLabel(int number) { firstXLabel = to16(number); }
    /// Returns the style: 0 bars, 1 lines; with any other value neither is drawn.
    int getStyle() const { return style; }
    void setStyle(int newStyle) { style = newStyle; }
    /// Returns 1 if a bar of height 0 is drawn as a line of one pixel.
    int getShowEmptyBars() const { return showEmptyBars; }
    /// Stores the lowest bit of set.
    void setShowEmptyBars(int set) { showEmptyBars = set & 1; }

    // Intervals between numbers or grid lines, in positions (x) or values (y); 0 or less: none. Stored in 16
    // bits.

    int getXLabelEvery() const { return xLabelEvery; }
    void setXLabelEvery(int positions) { xLabelEvery = to16(positions); }
    int getYLabelEvery() const { return yLabelEvery; }
    void setYLabelEvery(int values) { yLabelEvery = to16(values); }
    int getXGridEvery() const { return xGridEvery; }
    void setXGridEvery(int positions) { xGridEvery = to16(positions); }
    int getYGridEvery() const { return yGridEvery; }
    void setYGridEvery(int values) { yGridEvery = to16(values); }

    // Two texts for the game; the graph does not show them.

    const CString& getGraphText1() const { return graphText1; }
    void setGraphText1(const CString& text) { graphText1 = text; }
    const CString& getGraphText2() const { return graphText2; }
    void setGraphText2(const CString& text) { graphText2 = text; }

protected:
    ZnFixed growth;
    CArray<int, int> seriesValues[seriesCount];
    CArray<CString> seriesLabels[seriesCount]; // one per value
    CArray<unsigned, unsigned> itemColours;    // one per call of addData, for all series
    CArray<unsigned, unsigned> lineColours;    // index: series
    unsigned gridColour = 0x404040;
    unsigned axisColour = 0;
    short firstXLabel = 0;
    short xRange = 10;
    short yRange = 10;
    short yGridEvery = 10;
    short xGridEvery = 2;
    short xLabelEvery = 1;
    short yLabelEvery = 20;
    int style = 0;
    unsigned showEmptyBars : 1 = 0;
    CString graphText1;
    CString graphText2;

private:
    struct Plot;
    Plot getPlot() const;
    void drawValueAxis(const Plot& plot);
    void drawPositionAxis(const Plot& plot);
    void drawPositionNumber(const Plot& plot, int position);
    void drawBar(const Plot& plot, int series, int index);
    void drawLine(const Plot& plot, int series, int index);
    void drawSegment(int fromX, int fromY, int toX, int toY, unsigned colour);
    void drawLabel(const Plot& plot, const CString& label, int x, int foot);
    void grow(int frameStep);
};
