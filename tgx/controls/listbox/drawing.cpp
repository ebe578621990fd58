#include "platform/display/surface.h"
#include "platform/media/bmpfont.h"
#include "tgx/base/swapped.h"
#include "tgx/controls/listbox/cell.h"
#include "tgx/controls/listbox/listbox.h"
#include "tgx/controls/scrollbar.h"
#include "tgx/wnd/stage.h"

#include <algorithm>
#include <climits>
#include <cstdlib>

namespace {

// Colours in the format of getcol.
constexpr unsigned long selectedColour = 0x800000;
constexpr unsigned long hotColour = 0x808080;
constexpr unsigned long dividerColour = 0x363636;

/// Colours of a title row without a bitmap. Each band is drawn over the previous one, from the row's top down
/// to height; 0 is the whole row.
constexpr struct {
    int height;
    unsigned long colour;
} titleShades[] = {{0, 0x363636}, {6, 0x323232}, {4, 0x282828}, {2, 0x1e1e1e}};

constexpr ZnFixed full = ZnFixed::fromInt(100);
constexpr ZnFixed atFullSize = ZnFixed::fromInt(1);
constexpr int wholeIconHeight = 3276; // raw fixed point, 0.8 of the row

int revealTick = 0; // frames since rows last appeared, shared by all lists

void fill(int x1, int y1, int x2, int y2, unsigned long colour)
{
    tgx::Stage* stage = tgx::stage();
    stage->fillrect(x1, y1, x2, y2, stage->getcol(colour));
}

} // namespace

/// Values shared by the rows of one drawing, in pixels.
struct AListBox::Page {
    int top;    // of the first row or the title row
    int left;   // of the first column
    int bottom; // rows begin above it
    bool titled;
    int slide; // vertical offset of the rows' contents
};

void AListBox::draw(int frameStep)
{
    if (!isVisible(1))
        return;
    tgx::Stage* stage = tgx::stage();
    AWnd::draw(frameStep);
    if (hotBorder && pointInside(stage->mouseX, stage->mouseY))
        hotBorder->draw(left(), top(), width(), height());
    RECT area{left(), top(), right(), bottom()};
    stage->adddirtyrect(area);

    if (frameStep != 0) {
        reveal(frameStep);
        rowSlide.raw += rowSlide.raw < 0 ? ZnFixed::one : rowSlide.raw > 0 ? -ZnFixed::one : 0;
    }
    drawDividers();
    firstVisibleItem = std::max<short>(firstVisibleItem, 0);

    const int step = rowStep();
    const Page page{getItemsStartPosY(1), getItemsStartPosX(1) + columnGap,
                    top() + height() - borderInset() - step, hasTitleRow() != 0, rowSlide.toInt()};
    int y = page.top;
    int item = firstVisibleItem;
    if (page.titled) {
        drawTitleBackground(y);
        drawRow(page, titleRow, y);
        y += step;
    }
    for (; y < page.bottom && item < revealedItems; ++item, y += step)
        drawRow(page, item, y);

    // The bar is drawn again above the rows, without advancing anything.
    if (scrollBar && scrollBar->isVisible(1) && isEnabled())
        scrollBar->draw(0);
}

/// Reveals rows one by one, in every third frame, or all at once.
void AListBox::reveal(int frameStep)
{
    constexpr int framesBetween = 2;
    const int rows = std::min(getItemCount(), SHRT_MAX);
    if (revealedItems >= rows)
        return;
    int revealed = revealedItems;
    if (!gradualReveal) {
        revealed = rows;
    } else if (revealTick == framesBetween) {
        revealed += frameStep;
        revealTick = 0;
    } else {
        ++revealTick;
    }
    revealedItems = static_cast<short>(std::clamp(revealed, SHRT_MIN, rows));
}

void AListBox::drawDividers()
{
    const int y1 = getItemsStartPosY(1) + columnGap;
    const int y2 = getItemsEndPosY() - columnGap;
    for (const int column : dividerColumns) {
        const int x = getItemsStartPosX(1) + columnGap + getColumnStartPos(column) - columnGap / 2;
        fill(x, y1, x + 1, y2, dividerColour);
    }
}

// The background extends over the scroll bar's column.
void AListBox::drawTitleBackground(int y)
{
    if (titleSurface) {
        drawPicture(titleSurface, left() + borderInset(), y, width() - 2 * borderInset());
        return;
    }
    if (!titleShaded)
        return;
    int end = getItemsEndPosX(1);
    if (scrollBar && scrollBar->isVisible(1))
        end += scrollBar->width();
    for (const auto& shade : titleShades)
        fill(getItemsStartPosX(1), y, end, y + (shade.height ? shade.height : rowStep()), shade.colour);
}

void AListBox::drawPicture(const SurfaceRef& picture, int x, int y, int pictureWidth)
{
    picture->blit(x, y, 0, 0, pictureWidth, rowStep(), picture->width - 1, picture->height - 1, nullptr,
                  bmpBlitMode);
}

void AListBox::drawRow(const Page& page, int item, int y)
{
    if (item != titleRow && !cellHighlight)
        drawRowHighlights(item, y);
    if (item >= getItemCount())
        return;

    bmpfont* rowFont = fontOfRow(item);
    int x = page.left;
    for (int column = 0; column < getColumnCount(); ++column) {
        const bool inFont1 = item != titleRow && rowFonts[0] && contains(fontColumns, column);
        drawCell(page, item, column, x, y, inFont1 ? rowFonts[0] : rowFont);
        x += columnWidths[column] + columnGap;
    }
}

void AListBox::drawRowHighlights(int item, int y)
{
    if (item != selectedItem && item != hotItem)
        return;
    const int start = left() + borderInset();
    const int end = getItemsEndPosX(0);
    if (item == selectedItem) {
        if (selectedRowSurface)
            drawPicture(selectedRowSurface, start, y, end - start);
        else
            fill(start, y, end, y + rowStep(), selectedColour);
    }
    if (item == hotItem) {
        tgx::Stage* stage = tgx::stage();
        if (hotRowSurface)
            drawPicture(hotRowSurface, start, y, end - start);
        else
            stage->rectangle(start, y, end, y + rowStep(), stage->getcol(hotColour));
    }
}

// Without a bitmap the selected highlight excludes the gaps beside the cell and the hot one includes them.
void AListBox::drawCellHighlights(int item, int column, int x, int y)
{
    const int cellWidth = columnWidths[column];
    const int start = x - columnGap;
    const int whole = cellWidth + 2 * columnGap;
    if (item == selectedItem && column == selectedColumn) {
        if (selectedRowSurface)
            drawPicture(selectedRowSurface, start, y, whole);
        else
            fill(x, y, x + cellWidth, y + rowStep(), selectedColour);
    }
    if (item == hotItem && column == hotColumn) {
        tgx::Stage* stage = tgx::stage();
        if (hotRowSurface)
            drawPicture(hotRowSurface, start, y, whole);
        else
            stage->rectangle(start, y, start + whole, y + rowStep(), stage->getcol(hotColour));
    }
}

/// Returns the font of a row. If several font rows match, the last applies.
bmpfont* AListBox::fontOfRow(int item) const
{
    if (item == titleRow)
        return titleFont ? titleFont : font;
    bmpfont* rowFont = font;
    const CArray<short>* rows[] = {&fontRows1, &fontRows2, &fontRows3};
    for (int i = 0; i < 3; ++i)
        if (rowFonts[i] && contains(*rows[i], item))
            rowFont = rowFonts[i];
    return rowFont;
}

void AListBox::drawCell(const Page& page, int item, int column, int x, int y, bmpfont* cellFont)
{
    static const CString noText;
    static const CString dash("-");
    static CString shortened; // static, so that a frame allocates nothing

    const bool isTitle = item == titleRow;
    if (cellHighlight && !isTitle)
        drawCellHighlights(item, column, x, y);

    const CString* stored = &noText;
    if (!isTitle)
        stored = &cells[column].GetAt(item);
    else if (column < titles.GetSize())
        stored = &titles.GetAt(column);

    const ListCell cell = ListCell::decode(stored->view());
    const int textY = isTitle ? y : y + page.slide;
    if (cell.picture != ListCell::None)
        drawIcon(cell, column, x, textY);

    const CString* shown = stored;
    if (cell.text.size() != stored->view().size()) {
        shortened.assign(cell.text);
        shown = &shortened;
    } else if (zeroAsDash && (cell.text == "0" || cell.text == "0.0")) {
        shown = &dash;
    }
    if (shown->IsEmpty() || !cellFont)
        return;
    int room = columnWidths[column];
    if (isTitle && columnJustify[column] != TJ_CENTRE)
        room = titleRoom(column, cellFont->stringLength(shown->view()));
    const Swapped thisFont(font, cellFont);
    textOut(x, textY, std::abs(room), rowStep(), *shown, columnJustify[column], 0, atFullSize, 0, nullptr);
}

/// Returns the pixels available to a title of that length, which may extend over columns to its right without
/// a title.
int AListBox::titleRoom(int column, int length) const
{
    int room = columnWidths[column];
    for (int next = column + 1; length > room; ++next) {
        if (next < titles.GetSize() ? !titles[next].IsEmpty() : next >= getColumnCount())
            break;
        room += columnGap + columnWidths[next];
    }
    return room;
}

void AListBox::drawIcon(const ListCell& cell, int column, int x, int y)
{
    surface* icon = icons[cell.icon];
    if (!icon) // released, or its file is missing
        return;
    if (cell.picture == ListCell::Frame && cell.number == -1)
        icon->blit(x, y, 0, 0, columnWidths[column], rowStep() * wholeIconHeight / ZnFixed::one, icon->width,
                   icon->height, nullptr, -1);
    else if (cell.picture == ListCell::Frame || cell.number == -1)
        drawFrame(*icon, column, cell.number, x, y);
    else
        drawProgress(*icon, column, cell.number, x, y);
}

/// Draws a progress bar from a bitmap that contains two panels of the column's width, done and not done, with
/// a gap of 1 pixel. In a column justified to the right the bar grows from the right.
void AListBox::drawProgress(surface& icon, int column, int percent, int x, int y)
{
    const int panel = columnWidths[column];
    const bool fromRight = columnJustify[column] == TJ_RIGHT;
    const int done = (ZnFixed::fromInt(percent) / full * ZnFixed::fromInt(panel)).toInt();
    const int split = fromRight ? panel - done : done;
    const int h = std::min<int>(rowStep(), icon.height);
    const int leftPanel = fromRight;
    const int rightPanel = !fromRight;
    if ((leftPanel + 1) * panel <= icon.width)
        icon.blit(x, y, leftPanel * (panel + 1), 0, split, h, -1, -1, nullptr, -1);
    if ((rightPanel + 1) * panel <= icon.width)
        icon.blit(x + split, y, rightPanel * (panel + 1) + split, 0, panel - split, h, -1, -1, nullptr, -1);
}

/// Draws a frame of a bitmap that is a grid of frames, counted from left to right and top to bottom. If the
/// bitmap is narrower than one frame, only frame 0 is drawn.
void AListBox::drawFrame(surface& icon, int column, int frame, int x, int y)
{
    const int panel = columnWidths[column];
    const int gridX = panel + 1;
    const int gridY = rowStep() + 1;
    int sourceX = 0;
    int sourceY = 0;
    if (frame >= 1) {
        const int rowWidth = gridX > 0 ? icon.width / gridX * gridX : 0;
        if (rowWidth == 0)
            return;
        const long long along = static_cast<long long>(gridX) * frame;
        const long long down = along / rowWidth * gridY;
        sourceX = static_cast<int>(along % rowWidth);
        sourceY = static_cast<int>(std::min<long long>(down, SHRT_MAX)); // no bitmap is that high
    }
    const int h = std::min<int>(rowStep(), icon.height);
    icon.blit(x, y + (rowStep() - h) / 2, sourceX, sourceY, std::min<int>(icon.width, panel), h, -1, -1,
              nullptr, -1);
}
