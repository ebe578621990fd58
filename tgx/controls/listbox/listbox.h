#pragma once

#include "platform/display/surface_ref.h"
#include "tgx/wnd/border.h"
#include "tgx/wnd/wnd.h"

class AScrollBar;
struct ListCell;

/// A table: rows of cells in up to 20 columns, under titles if there are any, with a selected row and column,
/// a hot one under the pointer or the arrow keys, icons, progress cells and a scroll bar that comes when the
/// rows no longer fit. Columns are added before rows.
///
/// A cell is a string. An icon stands in it as a mark behind the text: "##ICON##" index "##FRAME##" frame, or
/// "##ICON##" index "##PROGRESS##" percent. Any text that holds such a mark is an icon cell.
///
/// The list calls nothing in the game: a click reaches the screen under the list's id, which then asks for
/// getSelectedItem(). Rows and columns are counted from 0, -1 is none. A row or column that does not exist
/// raises the invalid-argument exception where an operation does not say otherwise.
class TGX_API AListBox : public AWnd {
public:
    static constexpr int maxColumns = 20;

    AListBox(const CString& id, int x, int y, int width, int height);
    ~AListBox() override;

    void draw(int frameStep) override;
    /// Loads the bitmaps of highlights, title and icons that are not there yet, and begins the reveal anew.
    void startup() override;
    void close() override;
    /// Also starts the list up again.
    void returned() override;
    /// 0.
    int handleMouseAction(const CString& id, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;
    int handleKeyInput(char key) override;
    /// Puts the hot position aside for the pointer's return. 1.
    int handleLostFocus() override;

    // Columns and titles (model.cpp).

    /// A column behind the others; one beyond 20 is ignored. width in pixels, or as wide as text in the
    /// window's font.
    void addColumn(int width, E_TEXTJUSTIFY justify);
    void addColumn(const CString& text, E_TEXTJUSTIFY justify);
    int getColumnCount() const { return columnWidths.GetSize(); }
    int getColumnWidth(int column) const { return columnWidths[column]; }
    /// The first title gives the list its title row. 1.
    int setTitle(int column, const CString& text);

    // Rows and cells (model.cpp).

    /// An empty row behind the others. Its index; -1 when there is no column.
    int addItem();
    /// Selection and hot position stay at their numbers. 1.
    int removeItem(int item);
    /// With all, what is told of single rows and columns goes too: fixed rows, row fonts, font columns. 1.
    int removeAllItems(int all);
    /// removeAllItems(1); columnsToo: columns and titles; scrollToo: back to the top. 1.
    int reset(int columnsToo, int scrollToo);
    int getItemCount() const { return cells[0].GetSize(); }
    /// As stored, marks included; "" outside the table.
    CString getItemText(int item, int column) const;
    /// Text set on an icon cell goes in front of the icon. 1, or 0 for a column of 20 or more.
    int setItemData(int item, int column, const CString& text);
    int setItemData(int item, int column, int value);
    int setItemData(int item, int column, ZnFixed value);
    /// An icon behind the cell's text; entered in the icon table if it is not there. frame: -1 the whole
    /// bitmap, stretched; 0 or more one of a grid of frames that are 1 pixel larger than column and row. icon
    /// is not owned.
    int setItemData(int item, int column, surface* icon, int frame);
    int setItemDataWithIconIndex(int item, int column, int icon, int frame);
    /// The bitmap's left half covers percentage of the column, its right half the rest. -1: frame 0.
    int setItemDataWithIconPercentage(int item, int column, int icon, int percentage);
    /// Text broken at blanks into pieces that fit the column. The first goes to item, the others to rows
    /// added at the end. 1.
    int setItemDataWithWrap(int item, int column, const CString& text);
    /// Index in the icon table; the same bitmap may stand there twice. Not owned.
    int addIcon(surface* icon);
    /// Also asks whether the cell is blank, with blankCellsNonSelectable; outside the table all are.
    int isNonSelectable(int item, int column) const;

    // Selection and hot position (model.cpp). A setter ignores a row or column behind the last; -1 as one of
    // a pair clears the other.

    int getSelectedItem() const { return selectedItem; }
    int getSelectedColumn() const { return selectedColumn; }
    int getHotItem() const { return hotItem; }
    int getHotColumn() const { return hotColumn; }
    void setSelectedItem(int item);
    /// Clears the selection of wnd if that is a list box.
    static void deselect(AWnd& wnd);
    void setSelectedColumn(int column);
    void setHotItem(int item);
    void setHotColumn(int column);
    /// Of the two lists only one has a selection: the one that gains it clears the other. Not owned.
    void setSingleSelectWith(AListBox* other);

    // Looks. Flags count by their lowest bit.

    /// Pixels, of the title row too. 0 or less works as 1.
    int getRowHeight() const { return rowHeight; }
    void setRowHeight(int height);
    /// Pixels between columns, and in front of the first.
    int getColumnGap() const { return columnGap; }
    void setColumnGap(int gap);
    /// Offset of what stands in the rows; a frame brings it nearer to 0 by a pixel.
    ZnFixed getRowSlide() const { return rowSlide; }
    void setRowSlide(ZnFixed offset) { rowSlide = offset; }
    int getBlankCellsNonSelectable() const { return blankCellsNonSelectable; }
    void setBlankCellsNonSelectable(int set) { blankCellsNonSelectable = set & 1; }
    int getTitleShaded() const { return titleShaded; }
    void setTitleShaded(int set) { titleShaded = set & 1; }
    /// Whether selected and hot are a cell instead of a row.
    int getCellHighlight() const { return cellHighlight; }
    void setCellHighlight(int set) { cellHighlight = set & 1; }
    /// Whether rows come one by one behind startup.
    int getGradualReveal() const { return gradualReveal; }
    void setGradualReveal(int set) { gradualReveal = set & 1; }
    /// Whether "0" and "0.0" show as "-".
    int getZeroAsDash() const { return zeroAsDash; }
    void setZeroAsDash(int set) { zeroAsDash = set & 1; }
    /// Files that the next startup loads.
    const CString& getTitleBmpFile() const { return titleBmpFile; }
    void setTitleBmpFile(const CString& file) { titleBmpFile = file; }
    const CString& getHotRowBmpFile() const { return hotRowBmpFile; }
    void setHotRowBmpFile(const CString& file) { hotRowBmpFile = file; }
    const CString& getSelectedRowBmpFile() const { return selectedRowBmpFile; }
    void setSelectedRowBmpFile(const CString& file) { selectedRowBmpFile = file; }
    /// An entry of the icon table that the next startup loads.
    void addIconFile(const CString& file) { iconFiles.Add(file); }
    /// Not owned; null: the window's font. which: 1 to 3, others are null and set nothing.
    bmpfont* getRowFont(int which) const;
    void setRowFont(int which, bmpfont* newFont);
    bmpfont* getTitleFont() const { return titleFont; }
    void setTitleFont(bmpfont* newFont) { titleFont = newFont; }
    void addDividerColumn(int column) { dividerColumns.Add(column); }
    void clearDividerColumns() { dividerColumns.RemoveAll(); }
    /// Columns and rows in row font 1, and rows in 2 and 3.
    void addFontColumn(int column);
    void clearFontColumns() { fontColumns.RemoveAll(); }
    void addFontRow1(int item);
    void addFontRow2(int item);
    void addFontRow3(int item);
    void clearFontRows1() { fontRows1.RemoveAll(); }
    void clearFontRows2() { fontRows2.RemoveAll(); }
    void clearFontRows3() { fontRows3.RemoveAll(); }
    void addNonSelectableRow(int item);
    void clearNonSelectableRows() { nonSelectableRows.RemoveAll(); }
    void addNonSelectableColumn(int column);
    void clearNonSelectableColumns() { nonSelectableColumns.RemoveAll(); }
    /// Kept, and read by nothing.
    void setScrollBarInfo(const CString& file, int width);
    /// A border that shows while the pointer is over the list, as AWnd::setBorder. Owned by this list.
    ABorder* setHotBorder(const CString& file, int borderWidth, int pieceSize);
    /// Null when there is none. Owned by this list.
    ABorder* getHotBorder() const { return hotBorder.get(); }

    // Places, screen pixels (layout.cpp).

    int getItemsStartPosX(int withOffset) const;
    int getItemsStartPosY(int withOffset) const;
    /// In front of a scroll bar that shows. withOffset: where the columns end, if the list has a text offset.
    int getItemsEndPosX(int withOffset) const;
    int getItemsEndPosY() const;
    /// Whole rows that fit below the title.
    int getItemsPerPage() const;
    /// 0 for a point that is in no column.
    int getColumnAtPos(int x) const;

    // Scrolling (scrolling.cpp). Percentages run from 0 at the first row to 100.0.

    /// A step of the bar, or a page of steps. 0 when there is no bar or all rows show, else 1.
    int scroll(int up, int page);
    int scrollDown(int page) { return scroll(0, page); }
    int scrollUp(int page) { return scroll(1, page); }
    /// 0 when all rows fit on a page, else 1.
    int scrollTo(ZnFixed percentage);
    int scrollToLastItem();
    int getFirstVisibleItem() const { return firstVisibleItem; }
    /// Near the end a whole page less. The row becomes the hot one.
    void setFirstVisibleItem(int item);
    /// Of "uig\scroll1.bmp", along the right edge. 0 if there is one, else 1.
    int createScrollBar();
    /// Fits the bar to the list's height.
    void updateScrollBarHeight();
    /// Null while there is none. A child of this window.
    AScrollBar* getScrollBar() const;

    /// Pointer position of the first row on the page that can be selected. 0 if there is none.
    int getMousePosOfFirstSelectableItem(int& x, int& y) const;
    int getRevealedItems() const { return revealedItems; }

protected:
    int getColumnStartPos(int column) const;
    int hasTitleRow() const { return titles.GetSize() > 0; }
    int titleRoom(int column, int length) const;
    /// y from the window's top. The title row counts as the row above the page, -1 behind the last row.
    int getItemAtPos(int y) const;

    CArray<short> columnWidths; // pixels; as many as there are columns
    short rowHeight = 24;
    short columnGap = 10;
    CArray<E_TEXTJUSTIFY> columnJustify;
    short selectedItem = -1;
    short hotItem = -1;
    short selectedColumn = -1;
    short hotColumn = 0;
    short savedHotItem = -1; // from when the pointer left
    short savedHotColumn = -1;
    CArray<CString> cells[maxColumns]; // [column][row]
    CArray<CString> titles;
    CArray<SurfaceRef, surface*> icons;
    CArray<CString> iconFiles;
    short firstVisibleItem = 0;
    CString scrollBarFile;
    short scrollBarWidth = 0;
    WndRef scrollBar;
    short revealedItems = 0; // rows shown so far
    WndRef singleSelectPeer; // an AListBox
    ZnFixed rowSlide;
    unsigned blankCellsNonSelectable : 1 = 0;
    CArray<short> nonSelectableRows;
    CArray<short> nonSelectableColumns;
    unsigned titleShaded : 1 = 0;
    SurfaceRef titleSurface;
    CString titleBmpFile;
    unsigned zeroAsDash : 1 = 0;
    CArray<int> dividerColumns;
    CArray<short> fontColumns;
    CArray<short> fontRows1;
    CArray<short> fontRows2;
    CArray<short> fontRows3;
    bmpfont* rowFonts[3] = {};
    bmpfont* titleFont = nullptr;
    CString hotRowBmpFile;
    CString selectedRowBmpFile;
    SurfaceRef hotRowSurface;
    SurfaceRef selectedRowSurface;
    unsigned cellHighlight : 1 = 0;
    unsigned gradualReveal : 1 = 0;
    std::unique_ptr<ABorder> hotBorder;

private:
    struct Page;                        // what stays the same over the rows of one drawing (drawing.cpp)
    static constexpr int titleRow = -1; // in place of a row's number

    int rowStep() const { return rowHeight > 0 ? rowHeight : 1; }
    int borderInset() const { return border ? border->getBorderWidth() : 0; }
    int titleHeight() const { return hasTitleRow() ? rowStep() : 0; }
    bool isOnPage(int item) const;
    static bool contains(const CArray<short>& numbers, int wanted);
    CString& cellAt(int item, int column);

    void reveal(int frameStep);
    void drawDividers();
    void drawTitleBackground(int y);
    void drawPicture(const SurfaceRef& picture, int x, int y, int pictureWidth);
    void drawRow(const Page& page, int item, int y);
    void drawRowHighlights(int item, int y);
    void drawCellHighlights(int item, int column, int x, int y);
    void drawCell(const Page& page, int item, int column, int x, int y, bmpfont* cellFont);
    void drawIcon(const ListCell& cell, int column, int x, int y);
    void drawProgress(surface& icon, int column, int percent, int x, int y);
    void drawFrame(surface& icon, int column, int frame, int x, int y);
    bmpfont* fontOfRow(int item) const;

    void takeHotFromPointer(int x, int y);
    void select();
    void followPointer(int x, int y);
    void followWheel(int direction);
    void followKey(int key);
    int nextSelectableColumn(int direction) const;
    int nextSelectableItem(int direction) const;
    void holdPointer();
    void scrollStep(int direction);

    int loadedIconFiles = 0; // of iconFiles, already in icons
};
