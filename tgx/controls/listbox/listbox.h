#pragma once

#include "platform/display/surface_ref.h"
#include "tgx/wnd/border.h"
#include "tgx/wnd/wnd.h"

class AScrollBar;
struct ListCell;

/// A table: rows of cells in up to 20 columns, with optional titles, a selected row and column, a hot row and
/// column that follow the pointer or the arrow keys, icons, progress cells, and a scroll bar that appears
/// when the rows no longer fit. Columns must be added before rows.
///
/// A cell is a string. An icon is a mark after the text: "##ICON##" index "##FRAME##" frame, or "##ICON##"
/// index "##PROGRESS##" percent. Any text that contains such a mark makes an icon cell.
///
/// The list does not call the game: the screen receives a click with the list's id and reads
/// getSelectedItem(). Rows and columns are counted from 0; -1 means none. A row or column that does not exist
/// raises the invalid-argument exception unless an operation states otherwise.
class TGX_API AListBox : public AWnd {
public:
    static constexpr int maxColumns = 20;

    AListBox(const CString& id, int x, int y, int width, int height);
    ~AListBox() override;

    void draw(int frameStep) override;
    /// Loads the bitmaps of highlights, title and icons that are not loaded yet, and restarts the reveal.
    void startup() override;
    void close() override;
    /// Also calls startup().
    void returned() override;
    /// Always returns 0.
    int handleMouseAction(const CString& id, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;
    int handleKeyInput(char key) override;
    /// Saves the hot position for when the pointer comes back. Returns 1.
    int handleLostFocus() override;

    // Columns and titles (model.cpp).

    /// Appends a column; does nothing if there are already 20. Its width is given in pixels, or is that of
    /// text in the window's font.
    void addColumn(int width, E_TEXTJUSTIFY justify);
    void addColumn(const CString& text, E_TEXTJUSTIFY justify);
    int getColumnCount() const { return columnWidths.GetSize(); }
    int getColumnWidth(int column) const { return columnWidths[column]; }
    /// Sets a column's title. The first title adds the title row. Returns 1.
    int setTitle(int column, const CString& text);

    // Rows and cells (model.cpp).

    /// Appends an empty row and returns its index, or -1 if there is no column.
    int addItem();
    /// Removes a row. The numbers of the selected and the hot row do not change. Returns 1.
    int removeItem(int item);
    /// Removes all rows. all also clears the settings of single rows and columns: fixed rows, row fonts and
    /// font columns. Returns 1.
    int removeAllItems(int all);
    /// Calls removeAllItems(1). columnsToo also removes columns and titles; scrollToo scrolls to the top.
    /// Returns 1.
    int reset(int columnsToo, int scrollToo);
    int getItemCount() const { return cells[0].GetSize(); }
    /// Returns the cell's string including marks; "" outside the table.
    CString getItemText(int item, int column) const;
    /// Stores a cell's text or number. In an icon cell the text is placed before the icon. Returns 1, or 0
    /// for a column of 20 or more.
    int setItemData(int item, int column, const CString& text);
    int setItemData(int item, int column, int value);
    int setItemData(int item, int column, ZnFixed value);
    /// Appends an icon to the cell's text and adds it to the icon table if it is not there. frame -1 is the
    /// whole bitmap, stretched; 0 or more is one of a grid of frames that are spaced by the size of column
    /// and row plus 1 pixel. icon is not owned.
    int setItemData(int item, int column, surface* icon, int frame);
    /// Appends an icon of the icon table to the cell's text; frame as above.
    int setItemDataWithIconIndex(int item, int column, int icon, int frame);
    /// Appends a progress bar to the cell's text: the bitmap's left half covers percentage of the column, its
    /// right half the rest. -1 shows frame 0.
    int setItemDataWithIconPercentage(int item, int column, int icon, int percentage);
    /// Breaks text at blanks into pieces that fit the column. The first is stored in item, the others in rows
    /// added at the end. Returns 1.
    int setItemDataWithWrap(int item, int column, const CString& text);
    /// Adds icon to the icon table, even if it is already there, and returns its index. Not owned.
    int addIcon(surface* icon);
    /// Returns 1 if the row or the column is not selectable or, with blankCellsNonSelectable, if the cell is
    /// blank; cells outside the table count as blank.
    int isNonSelectable(int item, int column) const;

    // Selection and hot position (model.cpp). A setter ignores a row or column after the last; setting one of
    // a pair to -1 clears the other.

    int getSelectedItem() const { return selectedItem; }
    int getSelectedColumn() const { return selectedColumn; }
    int getHotItem() const { return hotItem; }
    int getHotColumn() const { return hotColumn; }
    void setSelectedItem(int item);
    /// Clears the selection of wnd if it is a list box.
    static void deselect(AWnd& wnd);
    void setSelectedColumn(int column);
    void setHotItem(int item);
    void setHotColumn(int column);
    /// Pairs two lists of which only one may have a selection: a selection in one clears that of the other.
    /// Not owned.
    void setSingleSelectWith(AListBox* other);

    // Looks. Flags are read from the lowest bit.

    /// Returns the height of rows, including the title row, in pixels. 0 or less counts as 1.
    int getRowHeight() const { return rowHeight; }
    void setRowHeight(int height);
    /// Returns the pixels between columns and before the first.
    int getColumnGap() const { return columnGap; }
    void setColumnGap(int gap);
    /// Returns the vertical offset of the rows' contents in pixels; each frame moves it by one pixel towards
    /// 0.
    ZnFixed getRowSlide() const { return rowSlide; }
    void setRowSlide(ZnFixed offset) { rowSlide = offset; }
    int getBlankCellsNonSelectable() const { return blankCellsNonSelectable; }
    void setBlankCellsNonSelectable(int set) { blankCellsNonSelectable = set & 1; }
    int getTitleShaded() const { return titleShaded; }
    void setTitleShaded(int set) { titleShaded = set & 1; }
    /// Returns 1 if a cell is highlighted as selected or hot, 0 if a row is.
    int getCellHighlight() const { return cellHighlight; }
    void setCellHighlight(int set) { cellHighlight = set & 1; }
    /// Returns 1 if rows appear one by one after startup.
    int getGradualReveal() const { return gradualReveal; }
    void setGradualReveal(int set) { gradualReveal = set & 1; }
    /// Returns 1 if "0" and "0.0" are shown as "-".
    int getZeroAsDash() const { return zeroAsDash; }
    void setZeroAsDash(int set) { zeroAsDash = set & 1; }
    /// Files that the next startup loads.
    const CString& getTitleBmpFile() const { return titleBmpFile; }
    void setTitleBmpFile(const CString& file) { titleBmpFile = file; }
    const CString& getHotRowBmpFile() const { return hotRowBmpFile; }
    void setHotRowBmpFile(const CString& file) { hotRowBmpFile = file; }
    const CString& getSelectedRowBmpFile() const { return selectedRowBmpFile; }
    void setSelectedRowBmpFile(const CString& file) { selectedRowBmpFile = file; }
    /// Adds the file of an icon, which the next startup loads into the icon table.
    void addIconFile(const CString& file) { iconFiles.Add(file); }
    /// Returns row font 1 to 3, or null for the window's font and for any other number. Not owned.
    bmpfont* getRowFont(int which) const;
    /// Sets row font 1 to 3; null means the window's font. Does nothing for any other number. Not owned.
    void setRowFont(int which, bmpfont* newFont);
    bmpfont* getTitleFont() const { return titleFont; }
    void setTitleFont(bmpfont* newFont) { titleFont = newFont; }
    void addDividerColumn(int column) { dividerColumns.Add(column); }
    void clearDividerColumns() { dividerColumns.RemoveAll(); }
    /// Draws a column in row font 1; the next three operations draw a row in row font 1, 2 or 3.
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
    /// Stores file and width, which are not used.
    void setScrollBarInfo(const CString& file, int width);
    /// Sets a border that is drawn while the pointer is over the list, as AWnd::setBorder does. Owned by this
    /// list.
    ABorder* setHotBorder(const CString& file, int borderWidth, int pieceSize);
    /// Returns the hot border, or null if there is none. Owned by this list.
    ABorder* getHotBorder() const { return hotBorder.get(); }

    // Positions in screen pixels (layout.cpp).

    int getItemsStartPosX(int withOffset) const;
    int getItemsStartPosY(int withOffset) const;
    /// Returns the right end of the rows, before a visible scroll bar. withOffset: not beyond the last column
    /// if the list has a text offset.
    int getItemsEndPosX(int withOffset) const;
    int getItemsEndPosY() const;
    /// Returns the number of whole rows that fit below the title.
    int getItemsPerPage() const;
    /// Returns the column at x, or 0 if x is after the last column.
    int getColumnAtPos(int x) const;

    // Scrolling (scrolling.cpp). Percentages run from 0 at the first row to 100.0.

    /// Scrolls by a step of the bar, or by a page of steps. Returns 0 if there is no bar or all rows are
    /// visible, otherwise 1.
    int scroll(int up, int page);
    int scrollDown(int page) { return scroll(0, page); }
    int scrollUp(int page) { return scroll(1, page); }
    /// Scrolls to percentage. Returns 0 if there are fewer rows than fit on a page, otherwise 1.
    int scrollTo(ZnFixed percentage);
    int scrollToLastItem();
    int getFirstVisibleItem() const { return firstVisibleItem; }
    /// Scrolls to item and makes it the hot row. If less than a page of rows is left from item on, uses the
    /// row one page above it instead.
    void setFirstVisibleItem(int item);
    /// Adds a scroll bar with the bitmap "uig\scroll1.bmp" along the right edge. Returns 0 if there is one
    /// already, otherwise 1.
    int createScrollBar();
    /// Adjusts the bar to the list's height.
    void updateScrollBarHeight();
    /// Returns the scroll bar, a child of this window, or null if there is none.
    AScrollBar* getScrollBar() const;

    /// Stores in x and y the pointer position of the first selectable row on the page. Returns 0 if there is
    /// none.
    int getMousePosOfFirstSelectableItem(int& x, int& y) const;
    int getRevealedItems() const { return revealedItems; }

protected:
    int getColumnStartPos(int column) const;
    int hasTitleRow() const { return titles.GetSize() > 0; }
    int titleRoom(int column, int length) const;
    /// Returns the row at y, in pixels from the window's top, or -1 after the last row. The title row counts
    /// as the row above the page.
    int getItemAtPos(int y) const;

    CArray<short> columnWidths; // pixels, one per column
    short rowHeight = 24;
    short columnGap = 10;
    CArray<E_TEXTJUSTIFY> columnJustify;
    short selectedItem = -1;
    short hotItem = -1;
    short selectedColumn = -1;
    short hotColumn = 0;
    short savedHotItem = -1; // hotItem when the pointer left
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
    struct Page;                        // values shared by the rows of one drawing (drawing.cpp)
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

    void setHotFromPointer(int x, int y);
    void select();
    void followPointer(int x, int y);
    void followWheel(int direction);
    void followKey(int key);
    int nextSelectableColumn(int direction) const;
    int nextSelectableItem(int direction) const;
    void clearPointerMove();
    void scrollStep(int direction);

    int loadedIconFiles = 0; // number of iconFiles already in icons
};
