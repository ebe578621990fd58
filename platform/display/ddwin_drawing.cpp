#include "platform/display/canvas.h"
#include "platform/display/ddwin.h"
#include "platform/display/msgbox.h"
#include "platform/limits.h"
#include "platform/media/font_file.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace {

std::uint32_t pixelForm(unsigned long colour)
{
    return static_cast<std::uint32_t>(colour & 0xFFFFFF);
}

std::int16_t clampedTo16Bits(int value)
{
    return static_cast<std::int16_t>(std::clamp<int>(value, INT16_MIN, INT16_MAX));
}

void place(DrawCommand& command, int x, int y, int w, int h)
{
    command.x = x;
    command.y = y;
    command.w = w;
    command.h = h;
}

/// Removes and returns the former font that was loaded with the same request, or null.
std::unique_ptr<bmpfont> takeFormer(std::vector<Canvas::FontEntry>& former, const std::string& request)
{
    const auto found = std::find_if(former.begin(), former.end(),
                                    [&](const Canvas::FontEntry& entry) { return entry.request == request; });
    if (found == former.end())
        return nullptr;
    std::unique_ptr<bmpfont> font = std::move(found->font);
    former.erase(found);
    return font;
}

} // namespace

void ddwin::drawbackdrop()
{
    canvas->record(DrawOp::DrawBackdrop);
    canvas->drawBackdrop();
}

void ddwin::redrawScreen()
{
    canvas->record(DrawOp::RedrawScreen);
    canvas->redrawScreen();
}

void ddwin::adddirtyrect(tagRECT& rect)
{
    place(canvas->record(DrawOp::AddDirtyRect), rect.left, rect.top, rect.right, rect.bottom);
    canvas->markDirty({rect.left, rect.top, rect.right, rect.bottom});
}

int ddwin::fillrect(int x1, int y1, int x2, int y2, unsigned long colour)
{
    DrawCommand& command = canvas->record(DrawOp::FillRect);
    place(command, x1, y1, x2, y2);
    command.colour = pixelForm(colour);
    return 1;
}

void ddwin::rectangle(int x1, int y1, int x2, int y2, unsigned long colour)
{
    DrawCommand& command = canvas->record(DrawOp::Rectangle);
    place(command, x1, y1, x2, y2);
    command.colour = pixelForm(colour);
}

void ddwin::drawLine(int x1, int y1, int x2, int y2, int width, std::uint32_t colour)
{
    DrawCommand& command = canvas->record(DrawOp::Line);
    place(command, x1, y1, x2, y2);
    command.mode = clampedTo16Bits(width);
    command.colour = pixelForm(colour);
}

unsigned long ddwin::getcol(unsigned long colour)
{
    return (colour & 0xFF) << 16 | (colour & 0xFF00) | (colour >> 16 & 0xFF);
}

void ddwin::textout(int x, int y, const char* text, bmpfont* font, IDirectDrawSurface*, int raw,
                    ZnFixed scale, int mode)
{
    DrawCommand& command = canvas->record(DrawOp::TextOut);
    command.flags = raw != 0;
    command.mode = clampedTo16Bits(mode);
    command.subject = font ? static_cast<std::uint32_t>(font->index + 1) : 0;
    command.x = x;
    command.y = y;
    canvas->setText(command, text ? text : "");
    command.scale = scale.raw;
    command.font = font;
}

int ddwin::getStringLength(const char* text, bmpfont* font)
{
    return text && font ? font->stringLength(text) : 0;
}

void ddwin::setbackdrop(unsigned long colour)
{
    const std::uint32_t pixel = pixelForm(getcol(colour));
    canvas->record(DrawOp::SetBackdropColour).colour = pixel;
    canvas->setPlainBackdrop(pixel);
}

void ddwin::setbackdrop(const char* name, long)
{
    const CString wanted(name);
    canvas->setText(canvas->record(DrawOp::SetBackdropName), wanted.view());
    ImageRef picture = wanted.IsEmpty() ? nullptr : canvas->surfaces.load(wanted.view());
    const bool isMissing = !picture && !wanted.IsEmpty();
    canvas->setBackdropPicture(std::move(picture), wanted);
    if (isMissing)
        reportNotLoaded(wanted);
}

void ddwin::createspecific(const char*, long) {} // 32-bit pixels need no palette

surface* ddwin::createsprite(const char* name, int, int, long)
{
    if (!name || !*name)
        return nullptr;
    ImageRef image = canvas->surfaces.load(name);
    if (!image)
        return nullptr;
    surface* sprite = canvas->surfaces.make(this);
    sprite->takeFile(std::move(image), name);
    return sprite;
}

surface* ddwin::createBkgndSection(surface* source, int x, int y, int w, int h, surface* old)
{
    canvas->updateSize();
    surface* made = old && canvas->surfaces.owns(old) ? old : nullptr;
    const ImageRef image = source ? source->getImage() : nullptr; // kept: old may be the source
    if (made)
        made->setImage(makeImage(0, 0), CString()); // frees its pixels
    const int width = std::clamp(w, 0, limits::imageSide);
    const int height = std::clamp(h, 0, limits::imageSide);
    const long long pixels = static_cast<long long>(width) * height;
    if (!source)
        return made;
    if (livePixelCount() + pixels > limits::livePixels)
        canvas->surfaces.makeRoom();
    if (pixels > limits::imagePixels || livePixelCount() + pixels > limits::livePixels) {
        const CString name = *source->filename ? source->filename : "background";
        reportNotLoaded(name);
        return made;
    }
    ImageRef section = makeImage(width, height);
    if (image) {
        const Box part = clipped(-std::int64_t(x), -std::int64_t(y), std::int64_t(image->width) - x,
                                 std::int64_t(image->height) - y, {0, 0, section->width, section->height});
        for (int row = part.y0; row < part.y1 && !part.isEmpty(); row++)
            std::memcpy(section->row(row) + part.x0, image->row(y + row) + (x + part.x0),
                        static_cast<std::size_t>(part.width()) * sizeof(std::uint32_t));
        section->hasAlphaChannel = image->hasAlphaChannel;
        determineCoverage(*section);
    }
    if (!made)
        made = canvas->surfaces.make(this);
    made->setImage(std::move(section), CString());
    return made;
}

int ddwin::deleteSurface(surface* released)
{
    return released && canvas->surfaces.release(released);
}

void ddwin::letGo(surface* unused)
{
    canvas->surfaces.letGo(unused);
}

int ddwin::getSurfaceCount() const
{
    return canvas->surfaces.count();
}

std::vector<std::string> ddwin::getPictureNames() const
{
    const auto& names = canvas->surfaces.getRequestedNames();
    return {names.begin(), names.end()};
}

int ddwin::addNewFont(CString file, CString style, int size, int spacing)
{
    auto& fonts = canvas->fonts;
    if (fonts.size() >= static_cast<std::size_t>(limits::fonts)) {
        reportNotLoaded(file);
        return -1;
    }
    std::string request =
        file.str() + '\n' + style.str() + '\n' + std::to_string(size) + '\n' + std::to_string(spacing);
    std::unique_ptr<bmpfont> font = takeFormer(canvas->formerFonts, request);
    if (!font)
        font = loadFontFile(file.view(), parseFontStyle(style.view()), size, spacing);
    long long glyphPixels = font ? font->pixelCount() : 0;
    for (const auto& entry : fonts)
        glyphPixels += entry.font->pixelCount();
    if (!font || glyphPixels > limits::glyphPixels) {
        reportNotLoaded(file);
        font = std::make_unique<bmpfont>(*fonts.front().font);
        request.clear();
    }
    font->index = static_cast<int>(fonts.size());
    fonts.push_back({std::move(font), std::move(request)});
    return fonts.back().font->index;
}

void ddwin::beginFontsAnew()
{
    auto& fonts = canvas->fonts;
    std::move(fonts.begin() + 1, fonts.end(), std::back_inserter(canvas->formerFonts));
    fonts.resize(1);
}

bmpfont* ddwin::getFont(int index)
{
    const auto& fonts = canvas->fonts;
    return static_cast<std::size_t>(index) < fonts.size() ? fonts[static_cast<std::size_t>(index)].font.get()
                                                          : nullptr;
}

int ddwin::getFontCount() const
{
    return static_cast<int>(canvas->fonts.size());
}

int ddwin::getFontIndex(const bmpfont* font) const
{
    for (const auto& entry : canvas->fonts)
        if (entry.font.get() == font)
            return font->index;
    return -1;
}
