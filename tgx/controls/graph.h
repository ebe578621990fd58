#pragma once

#include "tgx/base/fixed.h"
#include "tgx/wnd/wnd.h"

/// Up to four series of values as bars or lines, on a grid with numbered axes; values of 0 and more are
/// expected. It grows in: bars rise and lines extend over about 21 ticks, from the first drawn frame on.
/// Numbers and labels stand outside the window's box where need be. Takes no input.
class TGX_API AGraph : public AWnd {
public:
    static constexpr int seriesCount = 4;

    AGraph(const CString& id, int x, int y, int width, int height);

    /// Marks its box dirty also while it is invisible; growth goes on only while it shows.
    void draw(int frameStep) override;

    /// Appends a value to series 0 to 3; another one is refused without effect. colour, from ddwin::getcol,
    /// is entered in one table of all series in the order of the calls: bar n of every series has the colour
    /// of call n. A label stands on top of its bar; at a line's point "|" and "^" are markers.
    void addData(int value, const CString& label, unsigned long colour, int series);
    /// Drops all values, labels and bar colours and takes both ranges back to 10. restartGrowth not 0: what
    /// comes grows in anew.
    void removeAll(int restartGrowth);
    /// Values of the series; 0 outside 0 to 3.
    int getItemCount(int series) const;

    /// 0 to 1.0.
    ZnFixed getGrowth() const { return growth; }
    /// Positions of the x axis, and the top value of the y axis: 10, or what the data ask for.
    int getXRange() const { return xRange; }
    int getYRange() const { return yRange; }

    /// Colour of a series' line, as CreatePen takes it: red in the low byte. Of one that none was set for,
    /// and outside 0 to 3: yellow.
    unsigned getLineColour(int series) const;
    /// A series outside 0 to 3 is refused without effect. Stays when the data go.
    void setLineColour(int series, unsigned colour);
    /// As ddwin::getcol takes it.
    unsigned getGridColour() const { return gridColour; }
    void setGridColour(unsigned colour) { gridColour = colour; }
    /// As ddwin::getcol takes it.
    unsigned getAxisColour() const { return axisColour; }
    void setAxisColour(unsigned colour) { axisColour = colour; }
    /// Number shown at the first x position. 16 bits.
    int getFirstXLabel() const { return firstXLabel; }
    void setFirstXLabel(int number) { firstXLabel = to16(number); }
    /// 0 bars, 1 lines; with any other neither is drawn.
    int getStyle() const { return style; }
    void setStyle(int newStyle) { style = newStyle; }
    /// A bar of height 0 shows as a line of one pixel.
    int getShowEmptyBars() const { return showEmptyBars; }
    /// Lowest bit.
    void setShowEmptyBars(int set) { showEmptyBars = set & 1; }

    // A number, or a grid line, every so many positions (x) or values (y); 0 or less: none. 16 bits.

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
    CArray<CString> seriesLabels[seriesCount]; // one for each value
    CArray<unsigned, unsigned> itemColours;    // one for each addData, whatever its series
    CArray<unsigned, unsigned> lineColours;    // by series
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
