#include "platform/media/image_file.h"

#include "platform/framework/cfile.h"
#include "platform/framework/out_of_memory.h"
#include "platform/limits.h"
#include "platform/media/bmp_decoder.h"
#include "platform/media/picture_header.h"
#include "platform/system/whole_file.h"

#include <SDL.h>
#include <SDL_image.h>

#include <string>

namespace {

struct FreeSurface {
    void operator()(SDL_Surface* pixels) const { SDL_FreeSurface(pixels); }
};
using SdlPixels = std::unique_ptr<SDL_Surface, FreeSurface>;

bool isAllowed(const PictureHeader& header)
{
    return header.width > 0 && header.height > 0 && header.width <= limits::imageSide &&
           header.height <= limits::imageSide && header.width * header.height <= limits::imagePixels;
}

const char* typeName(PictureKind kind)
{
    switch (kind) {
    case PictureKind::Png:
        return "PNG";
    case PictureKind::Jpeg:
        return "JPG";
    case PictureKind::Gif:
        return "GIF";
    default:
        return "PCX";
    }
}

void copyIndexed(SDL_Surface& from, Image& to)
{
    std::uint32_t colours[256] = {};
    const SDL_Palette* palette = from.format->palette;
    for (int i = 0; palette && i < palette->ncolors && i < 256; i++) {
        const SDL_Color& c = palette->colors[i];
        colours[i] = std::uint32_t(c.a) << 24 | std::uint32_t(c.r) << 16 | std::uint32_t(c.g) << 8 | c.b;
    }
    Uint32 key = 0;
    if (SDL_GetColorKey(&from, &key) == 0)
        colours[key & 255] &= 0x00FFFFFF;
    for (int y = 0; y < to.height; y++) {
        const auto* row =
            static_cast<const Uint8*>(from.pixels) + static_cast<std::ptrdiff_t>(y) * from.pitch;
        for (int x = 0; x < to.width; x++)
            to.row(y)[x] = colours[row[x]];
    }
}

/// Returns whether the surface contains pairs of grey and alpha bytes. The decoder returns these for a
/// greyscale PNG with a transparent colour, but labels the format RGB565, which no PNG has.
bool holdsGreyAlpha(const SDL_Surface& from, PictureKind kind)
{
    return kind == PictureKind::Png && from.format->BytesPerPixel == 2;
}

void copyGreyAlpha(const SDL_Surface& from, Image& to)
{
    for (int y = 0; y < to.height; y++) {
        const auto* pair =
            static_cast<const Uint8*>(from.pixels) + static_cast<std::ptrdiff_t>(y) * from.pitch;
        for (int x = 0; x < to.width; x++, pair += 2)
            to.row(y)[x] = std::uint32_t(pair[1]) << 24 | pair[0] * 0x010101u;
    }
}

ImageRef decodeWithSdl(std::string_view bytes, const PictureHeader& header)
{
    const AllocationWatch memory;
    SDL_RWops* stream = SDL_RWFromConstMem(bytes.data(), static_cast<int>(bytes.size()));
    SdlPixels decoded(stream ? IMG_LoadTyped_RW(stream, 1, typeName(header.kind)) : nullptr);
    memory.check();
    // The decoder reads the header itself, so its result must be checked against the size that was allowed. A
    // GIF's first picture may be smaller than its screen.
    if (!decoded || decoded->w > header.width || decoded->h > header.height ||
        (header.kind != PictureKind::Gif && (decoded->w < header.width || decoded->h < header.height)))
        return nullptr;
    ImageRef image = makeImage(decoded->w, decoded->h);
    if (decoded->format->BitsPerPixel == 8) {
        copyIndexed(*decoded, *image);
        return image;
    }
    if (holdsGreyAlpha(*decoded, header.kind)) {
        copyGreyAlpha(*decoded, *image);
        return image;
    }
    SdlPixels wide(SDL_ConvertSurfaceFormat(decoded.get(), SDL_PIXELFORMAT_ARGB8888, 0));
    memory.check();
    if (!wide)
        return nullptr;
    for (int y = 0; y < image->height; y++) {
        const auto* row =
            static_cast<const Uint8*>(wide->pixels) + static_cast<std::ptrdiff_t>(y) * wide->pitch;
        SDL_memcpy(image->row(y), row, static_cast<std::size_t>(image->width) * sizeof(std::uint32_t));
    }
    return image;
}

void applyKeyColour(Image& image)
{
    for (int y = 0; y < image.height; y++)
        for (int x = 0; x < image.width; x++) {
            const std::uint32_t rgb = image.row(y)[x] & 0xFFFFFF;
            image.row(y)[x] = rgb == keyColour ? rgb : 0xFF000000 | rgb;
        }
}

} // namespace

ImageRef loadImageFile(std::string_view name, long long* room)
{
    if (room)
        *room = 0;
    CFile file;
    if (!file.Open(std::string(name).c_str()))
        return nullptr;
    const PictureHeader header = readPictureHeader(file.bytes());
    if (header.kind == PictureKind::Unknown || !isAllowed(header))
        return nullptr;
    if (livePixelCount() + header.width * header.height > limits::livePixels) {
        if (room)
            *room = header.width * header.height;
        return nullptr;
    }
    ImageRef image;
    if (header.kind == PictureKind::Bmp) {
        image = decodeBmp(file.bytes());
    } else {
        image = decodeWithSdl(file.bytes(), header);
        if (image)
            image->hasAlphaChannel = header.hasAlpha;
    }
    if (!image)
        return nullptr;
    if (!image->hasAlphaChannel)
        applyKeyColour(*image);
    determineCoverage(*image);
    image->name = name;
    return image;
}

namespace {

/// Implements SDL_RWops::write by appending to a string.
std::size_t append(SDL_RWops* stream, const void* bytes, std::size_t size, std::size_t count)
{
    static_cast<std::string*>(stream->hidden.unknown.data1)
        ->append(static_cast<const char*>(bytes), size * count);
    return count;
}

bool encodePng(SDL_Surface* pixels, std::string& png)
{
    SDL_RWops* stream = SDL_AllocRW();
    if (!stream)
        return false;
    stream->write = append;
    stream->hidden.unknown.data1 = &png;
    const bool isEncoded = IMG_SavePNG_RW(pixels, stream, 0) == 0;
    SDL_FreeRW(stream);
    return isEncoded;
}

} // namespace

bool writePng(const Image& image, const std::string& path)
{
    SdlPixels pixels(SDL_CreateRGBSurfaceWithFormat(0, image.width, image.height, 24, SDL_PIXELFORMAT_RGB24));
    if (!pixels)
        return false;
    for (int y = 0; y < image.height; y++) {
        auto* to = static_cast<Uint8*>(pixels->pixels) + static_cast<std::ptrdiff_t>(y) * pixels->pitch;
        for (int x = 0; x < image.width; x++, to += 3) {
            const std::uint32_t pixel = image.row(y)[x];
            to[0] = static_cast<Uint8>(pixel >> 16);
            to[1] = static_cast<Uint8>(pixel >> 8);
            to[2] = static_cast<Uint8>(pixel);
        }
    }
    std::string png;
    std::string reason;
    return encodePng(pixels.get(), png) && tgx::writeWholeFile(path, png, reason);
}
