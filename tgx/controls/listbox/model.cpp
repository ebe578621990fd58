#include "platform/display/msgbox.h"
#include "platform/media/bmpfont.h"
#include "tgx/base/fixed.h"
#include "tgx/base/numtext.h"
#include "tgx/controls/listbox/cell.h"
#include "tgx/controls/listbox/listbox.h"
#include "tgx/controls/scrollbar.h"
#include "tgx/wnd/stage.h"
#include "tgx/wnd/window_cast.h"

#include <algorithm>

namespace {

/// Breaks a text at blanks into pieces no wider than width. The character at a break is dropped: a blank or,
/// in a word that is too long, one of its letters.
class Pieces {
public:
    Pieces(std::string_view whole, const bmpfont* itsFont, int itsWidth)
        : text(whole), font(itsFont), width(itsWidth)
    {}

    bool next(std::string_view& piece)
    {
        if (pos >= text.size())
            return false;
        for (;;) {
            if (pos > 0 && text[pos] == ' ' && text[pos - 1] != ' ')
                lastBreak = pos;
            if (pieceWidth > width || pos >= text.size() - 1)
                break;
            pieceWidth += advance(pos++);
        }
        if (pos >= text.size() - 1) {
            piece = text.substr(start);
            pos = text.size();
            return true;
        }
        if (lastBreak + 1 == start) // no blank in this piece
            lastBreak = pos - 1;
        // A negative width breaks before the first character.
        piece = lastBreak + 1 > start ? text.substr(start, lastBreak - start) : std::string_view();
        start = lastBreak + 1;
        pos = start + 1;
        pieceWidth = advance(start);
        return true;
    }

private:
    int advance(std::size_t place) const
    {
        return font ? font->advance(static_cast<unsigned char>(text[place])) : 0;
    }

    std::string_view text;
    const bmpfont* font;
    int width;
    std::size_t start = 0;
    std::size_t pos = 0;
    std::size_t lastBreak = std::string_view::npos; // start - 1 while there is none
    long long pieceWidth = 0;                       // width from start to pos in pixels
};

} // namespace

AListBox::AListBox(const CString& name, int x, int y, int width, int height)
    : AWnd(WND_LISTBOX, name, x, y, width, height)
{}

AListBox::~AListBox() = default;

bool AListBox::contains(const CArray<short>& numbers, int wanted)
{
    return std::find(numbers.begin(), numbers.end(), wanted) != numbers.end();
}

void AListBox::startup()
{
    AWnd::startup();
    tgx::Stage* stage = tgx::stage();
    const auto load = [stage](SurfaceRef& picture, const CString& file) {
        if (picture || file.IsEmpty())
            return;
        picture = stage->createsprite(file, -1, -1, -1);
        if (!picture)
            reportNotLoaded(file);
    };
    load(selectedRowSurface, selectedRowBmpFile);
    load(hotRowSurface, hotRowBmpFile);
    load(titleSurface, titleBmpFile);
    for (; loadedIconFiles < iconFiles.GetSize(); ++loadedIconFiles)
        icons.Add(stage->createsprite(iconFiles[loadedIconFiles], -1, -1, -1));
    revealedItems = 0;
}

void AListBox::close()
{
    AWnd::close();
}

void AListBox::returned()
{
    AWnd::returned();
    startup();
}

// Columns and titles.

void AListBox::addColumn(int width, E_TEXTJUSTIFY justify)
{
    if (getColumnCount() >= maxColumns)
        return;
    columnWidths.Add(to16(width));
    columnJustify.Add(justify);
}

void AListBox::addColumn(const CString& text, E_TEXTJUSTIFY justify)
{
    addColumn(tgx::stage()->getStringLength(text, font), justify);
}

int AListBox::setTitle(int column, const CString& text)
{
    while (column >= titles.GetSize())
        titles.Add(CString());
    titles.SetAt(column, text);
    return 1;
}

// Rows and cells.

int AListBox::addItem()
{
    for (int column = 0; column < getColumnCount(); ++column)
        cells[column].Add(CString());

    const int rows = getItemCount();
    const int page = getItemsPerPage();
    if (!scrollBar && rows > page)
        createScrollBar();
    if (AScrollBar* bar = getScrollBar()) {
        if (rows > page || firstVisibleItem > 0)
            bar->setVisible(1);
        if (rows > page)
            bar->setStep(ZnFixed::fromInt(100) / ZnFixed::fromInt(rows - page));
    }
    return rows - 1;
}

int AListBox::removeItem(int item)
{
    for (int column = 0; column < getColumnCount(); ++column)
        cells[column].RemoveAt(item);
    if (firstVisibleItem >= 1 && isOnPage(item))
        --firstVisibleItem;
    return 1;
}

int AListBox::removeAllItems(int all)
{
    if (scrollBar)
        scrollBar->setVisible(0);
    for (auto& column : cells)
        column.RemoveAll();
    if (all)
        for (auto* numbers : {&nonSelectableRows, &fontColumns, &fontRows1, &fontRows2, &fontRows3})
            numbers->RemoveAll();
    return 1;
}

int AListBox::reset(int columnsToo, int scrollToo)
{
    removeAllItems(1);
    if (columnsToo) {
        titles.RemoveAll();
        columnWidths.RemoveAll();
        columnJustify.RemoveAll();
    }
    if (scrollToo) {
        firstVisibleItem = 0;
        if (AScrollBar* bar = getScrollBar())
            bar->setPercentage(ZnFixed());
        if (savedHotItem >= getItemsPerPage() - hasTitleRow())
            savedHotItem = -1;
    }
    if (gradualReveal)
        revealedItems = firstVisibleItem;
    return 1;
}

CString AListBox::getItemText(int item, int column) const
{
    if (column < 0 || column >= getColumnCount() || item < 0 || item >= cells[column].GetSize())
        return CString();
    return cells[column].GetAt(item);
}

CString& AListBox::cellAt(int item, int column)
{
    if (column < 0)
        AfxThrowInvalidArgException();
    return cells[column].ElementAt(item);
}

int AListBox::setItemData(int item, int column, const CString& text)
{
    if (column >= maxColumns)
        return 0;
    CString& cell = cellAt(item, column);
    if (ListCell::hasIcon(cell.view()))
        cell = text + cell;
    else if (ListCell::hasIcon(text.view()))
        cell += text;
    else
        cell = text;
    return 1;
}

int AListBox::setItemData(int item, int column, int value)
{
    return setItemData(item, column, intToString(value, 0, 0));
}

int AListBox::setItemData(int item, int column, ZnFixed value)
{
    return setItemData(item, column, floatToString(value));
}

int AListBox::setItemData(int item, int column, surface* icon, int frame)
{
    const auto known = std::find_if(icons.begin(), icons.end(),
                                    [icon](const SurfaceRef& entry) { return entry.get() == icon; });
    const int index = known == icons.end() ? addIcon(icon) : static_cast<int>(known - icons.begin());
    return setItemDataWithIconIndex(item, column, index, frame);
}

int AListBox::setItemDataWithIconIndex(int item, int column, int icon, int frame)
{
    return setItemData(item, column, CString(ListCell::withFrame(icon, frame)));
}

int AListBox::setItemDataWithIconPercentage(int item, int column, int icon, int percentage)
{
    return setItemData(item, column, CString(ListCell::withProgress(icon, percentage)));
}

int AListBox::setItemDataWithWrap(int item, int column, const CString& text)
{
    const int width = columnWidths[column];
    if (tgx::stage()->getStringLength(text, font) <= width) {
        setItemData(item, column, text);
        return 1;
    }
    Pieces pieces(text.view(), font, width);
    bool isFirst = true;
    for (std::string_view piece; pieces.next(piece); isFirst = false)
        setItemData(isFirst ? item : addItem(), column, CString(piece));
    return 1;
}

int AListBox::addIcon(surface* icon)
{
    return icons.Add(icon);
}

int AListBox::isNonSelectable(int item, int column) const
{
    if (contains(nonSelectableRows, item) || contains(nonSelectableColumns, column))
        return 1;
    if (!blankCellsNonSelectable)
        return 0;
    const CString text = getItemText(item, column);
    return text.IsEmpty() || ListCell::isOnlyIcon(text.view());
}

// Selection and hot position.

void AListBox::setSelectedItem(int item)
{
    if (item < getItemCount())
        selectedItem = to16(item);
    if (selectedItem == -1)
        selectedColumn = -1;
}

void AListBox::deselect(AWnd& wnd)
{
    if (wnd.getWindowType() != WND_LISTBOX)
        return; // a cheap test, because every window of a screen is tested at each click
    if (auto* list = windowAs<AListBox>(&wnd))
        list->setSelectedItem(-1);
}

void AListBox::setSelectedColumn(int column)
{
    if (column < getColumnCount())
        selectedColumn = to16(column);
    if (selectedColumn == -1)
        selectedItem = -1;
}

void AListBox::setHotItem(int item)
{
    if (item < getItemCount())
        hotItem = to16(item);
    if (hotItem == -1)
        hotColumn = -1;
}

void AListBox::setHotColumn(int column)
{
    if (column < getColumnCount())
        hotColumn = to16(column);
    if (hotColumn == -1)
        hotItem = -1;
}

void AListBox::setSingleSelectWith(AListBox* other)
{
    singleSelectPeer = other;
    if (other)
        other->singleSelectPeer = this;
}

// Looks.

void AListBox::setRowHeight(int height)
{
    rowHeight = to16(height);
}

void AListBox::setColumnGap(int gap)
{
    columnGap = to16(gap);
}

bmpfont* AListBox::getRowFont(int which) const
{
    return which >= 1 && which <= 3 ? rowFonts[which - 1] : nullptr;
}

void AListBox::setRowFont(int which, bmpfont* newFont)
{
    if (which >= 1 && which <= 3)
        rowFonts[which - 1] = newFont;
}

void AListBox::addFontColumn(int column)
{
    fontColumns.Add(to16(column));
}

void AListBox::addFontRow1(int item)
{
    fontRows1.Add(to16(item));
}

void AListBox::addFontRow2(int item)
{
    fontRows2.Add(to16(item));
}

void AListBox::addFontRow3(int item)
{
    fontRows3.Add(to16(item));
}

void AListBox::addNonSelectableRow(int item)
{
    nonSelectableRows.Add(to16(item));
}

void AListBox::addNonSelectableColumn(int column)
{
    nonSelectableColumns.Add(to16(column));
}

void AListBox::setScrollBarInfo(const CString& file, int width)
{
    scrollBarFile = file;
    scrollBarWidth = to16(width);
}

ABorder* AListBox::setHotBorder(const CString& file, int borderWidth, int pieceSize)
{
    hotBorder = ABorder::load(file, borderWidth, pieceSize);
    return hotBorder.get();
}
