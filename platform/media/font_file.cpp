#include "platform/media/font_file.h"

#include "platform/framework/cfile.h"
#include "platform/framework/out_of_memory.h"
#include "platform/limits.h"
#include "platform/media/code_page.h"

#include <SDL_ttf.h>

#include <algorithm>

namespace {

struct CloseFont {
    void operator()(TTF_Font* font) const { TTF_CloseFont(font); }
};
struct FreeSurface {
    void operator()(SDL_Surface* pixels) const { SDL_FreeSurface(pixels); }
};
using SdlPixels = std::unique_ptr<SDL_Surface, FreeSurface>;

// Initialises the library once and never shuts it down, because windows load fonts at any time.
bool isLibraryReady()
{
    static const bool ready = TTF_Init() == 0;
    return ready;
}

// The alphas of a character, cropped to its visible pixels.
struct Ink {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> alphas;

    std::uint32_t at(int x, int y) const
    {
        return x >= 0 && y >= 0 && x < width && y < height ? alphas[static_cast<std::size_t>(y) * width + x]
                                                           : 0;
    }
};

// Crops a rendered character. pen is the column of the pen position.
Ink inkOf(SDL_Surface& rendered, int pen)
{
    const auto alphaAt = [&](int x, int y) {
        const auto* row =
            static_cast<const Uint8*>(rendered.pixels) + static_cast<std::ptrdiff_t>(y) * rendered.pitch;
        return row[x * 4 + 3];
    };
    int x0 = rendered.w, y0 = rendered.h, x1 = 0, y1 = 0;
    for (int y = 0; y < rendered.h; y++)
        for (int x = 0; x < rendered.w; x++)
            if (alphaAt(x, y) != 0) {
                x0 = std::min(x0, x);
                x1 = std::max(x1, x + 1);
                y0 = std::min(y0, y);
                y1 = std::max(y1, y + 1);
            }
    Ink ink;
    if (x0 >= x1)
        return ink;
    ink.left = x0 - pen;
    ink.top = y0;
    ink.width = x1 - x0;
    ink.height = y1 - y0;
    for (int y = y0; y < y1; y++)
        for (int x = x0; x < x1; x++)
            ink.alphas.push_back(alphaAt(x, y));
    return ink;
}

// Returns the glyph in its colour, with the shadow one pixel to the right and below.
Glyph paintedGlyph(const Ink& ink, const FontStyle& style)
{
    constexpr std::uint32_t shadowStrength = 192; // of 255
    Glyph glyph;
    if (ink.alphas.empty())
        return glyph;
    const int grown = style.shadow ? 1 : 0;
    glyph.left = ink.left;
    glyph.top = ink.top;
    glyph.setSize(ink.width + grown, ink.height + grown);
    for (int y = 0; y < glyph.height; y++) {
        for (int x = 0; x < glyph.width; x++) {
            const std::uint32_t alpha = ink.at(x, y);
            const std::uint32_t below =
                style.shadow ? ink.at(x - 1, y - 1) * shadowStrength / 255 * (255 - alpha) / 255 : 0;
            std::uint32_t pixel = (alpha + below) << 24; // the shadow is black and adds no colour
            for (const int shift : {0, 8, 16})
                pixel |= ((style.colour >> shift & 0xFF) * alpha / 255) << shift;
            glyph.pixels[static_cast<std::size_t>(y) * glyph.stride + x] = pixel;
        }
    }
    return glyph;
}

void loadCharacter(TTF_Font& from, unsigned char character, const FontStyle& style, int size, int spacing,
                   bmpfont& font)
{
    const AllocationWatch memory; // without this, a failed allocation would leave the character blank
    const std::uint32_t code = unicodeOf(character);
    int minX = 0, maxX = 0, minY = 0, maxY = 0, advance = 0;
    if (code < 0x20 || !TTF_GlyphIsProvided32(&from, code) ||
        TTF_GlyphMetrics32(&from, code, &minX, &maxX, &minY, &maxY, &advance) != 0) {
        memory.check();
        return;
    }
    font.advances[character] =
        static_cast<std::int16_t>(std::clamp(advance + spacing, 0, 8 * limits::fontPixels));
    // A font may claim any size for a character. Excessively large ones are left blank.
    const int maxExtent = 2 * size;
    if (std::int64_t(maxX) - minX > maxExtent || std::int64_t(maxY) - minY > maxExtent || minX < -maxExtent ||
        maxX > 2 * maxExtent)
        return;
    SdlPixels rendered(TTF_RenderGlyph32_Blended(&from, code, SDL_Color{255, 255, 255, 255}));
    memory.check();
    if (!rendered || rendered->format->BytesPerPixel != 4 || rendered->w > 2 * maxExtent ||
        rendered->h > 2 * maxExtent)
        return;
    // The picture starts at the pen position, or to the left of it by the part of the character that extends
    // there.
    font.glyphs[character] = paintedGlyph(inkOf(*rendered, std::max(0, -minX)), style);
}

} // namespace

std::unique_ptr<bmpfont> loadFontFile(std::string_view name, const FontStyle& style, int size, int spacing)
{
    if (size < 1 || size > limits::fontPixels)
        return nullptr;
    const AllocationWatch memory;
    const bool isReady = isLibraryReady();
    memory.check();
    if (!isReady)
        return nullptr;
    CFile file;
    if (!file.Open(std::string(name).c_str()) || file.GetLength() == 0)
        return nullptr;
    const AllocationWatch opening;
    SDL_RWops* stream = SDL_RWFromConstMem(file.bytes().data(), static_cast<int>(file.GetLength()));
    const std::unique_ptr<TTF_Font, CloseFont> from(stream ? TTF_OpenFontRW(stream, 1, size) : nullptr);
    opening.check();
    // The library renders each character into a picture of the font's height, so that is limited too.
    if (!from || TTF_FontHeight(from.get()) > 4 * size)
        return nullptr;
    TTF_SetFontHinting(from.get(), TTF_HINTING_LIGHT);
    TTF_SetFontStyle(from.get(), (style.bold ? TTF_STYLE_BOLD : 0) | (style.italic ? TTF_STYLE_ITALIC : 0));

    auto font = std::make_unique<bmpfont>();
    font->lineHeight = static_cast<signed char>(std::clamp(TTF_FontLineSkip(from.get()), 1, 127));
    font->charHeight = static_cast<signed char>(
        std::clamp(TTF_FontAscent(from.get()) + std::abs(TTF_FontDescent(from.get())), 1, 127));
    const int clampedSpacing = std::clamp(spacing, -2 * limits::fontPixels, 2 * limits::fontPixels);
    for (int character = 0; character < 256; character++)
        loadCharacter(*from, static_cast<unsigned char>(character), style, size, clampedSpacing, *font);
    font->advances['\t'] = font->advances[' '];
    return font;
}
