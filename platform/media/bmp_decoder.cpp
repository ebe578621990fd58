#include "platform/media/bmp_decoder.h"

#include "platform/media/byte_reader.h"

#include <bit>
#include <cstdlib>

namespace {

enum Compression : std::uint32_t { plain = 0, rle8 = 1, rle4 = 2, masks = 3, alphaMasks = 6 };

constexpr std::size_t fileHeader = 14;
constexpr std::uint32_t coreHeader =
    12; // the oldest form, with a 16-bit size and three bytes per palette entry

struct Header {
    std::uint32_t headerSize = 0;
    std::int64_t width = 0;
    std::int64_t height = 0;
    bool isTopDown = false;
    std::uint32_t bits = 0;
    std::uint32_t compression = plain;
    std::size_t pixelsAt = 0;
};

bool readHeader(const ByteReader& file, Header& header)
{
    header.headerSize = file.u32(fileHeader);
    header.pixelsAt = file.u32(10);
    if (header.headerSize == coreHeader) {
        header.width = file.u16(18);
        header.height = file.u16(20);
        header.bits = file.u16(24);
    } else if (header.headerSize >= 40 && header.headerSize <= 256) {
        header.width = static_cast<std::int32_t>(file.u32(18));
        header.height = static_cast<std::int32_t>(file.u32(22));
        header.bits = file.u16(28);
        header.compression = file.u32(30);
    }
    header.isTopDown = header.height < 0;
    header.height = std::abs(header.height);
    return header.width > 0 && header.height > 0;
}

struct Palette {
    std::uint32_t colours[256];

    Palette(const ByteReader& file, const Header& header)
    {
        const bool isCore = header.headerSize == coreHeader;
        const std::size_t entry = isCore ? 3 : 4;
        const std::uint32_t used = isCore ? 0 : file.u32(46);
        const std::uint32_t count = used == 0 || used > 256 ? 1u << header.bits : used;
        for (std::uint32_t i = 0; i < 256; i++) {
            const std::size_t at = fileHeader + header.headerSize + i * entry;
            const bool exists = i < count && at + 3 <= file.bytes.size();
            colours[i] =
                0xFF000000 | (exists ? file.u8(at) | file.u8(at + 1) << 8 | file.u8(at + 2) << 16 : 0);
        }
    }
};

// Extracts a channel of a pixel by its mask and scales it to 8 bits.
struct Channel {
    std::uint32_t mask;

    std::uint32_t of(std::uint32_t pixel) const
    {
        if (mask == 0)
            return 0;
        const std::uint32_t maxValue = mask >> std::countr_zero(mask);
        return static_cast<std::uint32_t>(std::uint64_t((pixel & mask) >> std::countr_zero(mask)) * 255 /
                                          maxValue);
    }
};

bool decodeIndexed(const ByteReader& file, const Header& header, Image& image)
{
    const Palette palette(file, header);
    const std::size_t stride = (header.width * header.bits + 31) / 32 * 4;
    const std::uint32_t perByte = 8 / header.bits;
    for (int y = 0; y < image.height; y++) {
        const std::size_t at = header.pixelsAt + stride * (header.isTopDown ? y : image.height - 1 - y);
        std::uint32_t* row = image.row(y);
        for (int x = 0; x < image.width; x++) {
            const std::uint32_t byte = file.u8(at + x / perByte);
            const std::uint32_t shift = 8 - header.bits * (x % perByte + 1);
            row[x] = palette.colours[byte >> shift & ((1u << header.bits) - 1)];
        }
    }
    return true;
}

// Decodes run-length data up to the end mark or the last row. Returns false if the file ends before that.
bool decodeRuns(const ByteReader& file, const Header& header, Image& image)
{
    if (header.isTopDown)
        return false;
    const Palette palette(file, header);
    const bool halves = header.compression == rle4;
    for (std::uint32_t& pixel : image.pixels)
        pixel = palette.colours[0]; // pixels that no run covers
    std::int64_t x = 0;
    std::int64_t y = 0; // counted from the bottom
    std::size_t at = header.pixelsAt;
    const auto put = [&](std::uint32_t index) {
        image.row(static_cast<int>(image.height - 1 - y))[x++] = palette.colours[index];
    };
    while (y < image.height) {
        if (at + 2 > file.bytes.size())
            return false;
        const std::uint32_t count = file.u8(at);
        const std::uint32_t value = file.u8(at + 1);
        at += 2;
        if (count > 0) {
            for (std::uint32_t i = 0; i < count && x < image.width; i++)
                put(!halves ? value : i % 2 == 0 ? value >> 4 : value & 15);
        } else if (value == 0) {
            x = 0;
            y++;
        } else if (value == 1) {
            return true;
        } else if (value == 2) {
            x += file.u8(at);
            y += file.u8(at + 1);
            at += 2;
        } else {
            const std::size_t length = halves ? (value + 1) / 2 : value;
            if (at + length > file.bytes.size())
                return false;
            for (std::uint32_t i = 0; i < value && x < image.width; i++)
                put(!halves      ? file.u8(at + i)
                    : i % 2 == 0 ? file.u8(at + i / 2) >> 4
                                 : file.u8(at + i / 2) & 15);
            at += (length + 1) / 2 * 2;
        }
    }
    return true;
}

bool decodeTrueColour(const ByteReader& file, const Header& header, Image& image)
{
    Channel red{0xFF0000}, green{0xFF00}, blue{0xFF}, alpha{0};
    const bool hasMasks = header.compression == masks || header.compression == alphaMasks;
    if (header.bits == 16) {
        red.mask = 0x7C00;
        green.mask = 0x3E0;
        blue.mask = 0x1F;
    }
    if (hasMasks) {
        red.mask = file.u32(54);
        green.mask = file.u32(58);
        blue.mask = file.u32(62);
        alpha.mask = header.headerSize >= 56 || header.compression == alphaMasks ? file.u32(66) : 0;
    } else if (header.bits == 32) {
        alpha.mask = 0xFF000000;
    }
    const std::size_t stride = (header.width * header.bits + 31) / 32 * 4;
    const std::size_t bytes = header.bits / 8;
    std::uint32_t anyAlpha = 0;
    std::uint32_t everyAlpha = 255;
    for (int y = 0; y < image.height; y++) {
        const std::size_t at = header.pixelsAt + stride * (header.isTopDown ? y : image.height - 1 - y);
        std::uint32_t* row = image.row(y);
        for (int x = 0; x < image.width; x++) {
            const std::size_t place = at + x * bytes;
            const std::uint32_t pixel = bytes == 2 ? file.u16(place)
                                                   : file.u16(place) | file.u8(place + 2) << 16 |
                                                         (bytes == 4 ? file.u8(place + 3) << 24 : 0);
            const std::uint32_t a = alpha.of(pixel);
            anyAlpha |= a;
            everyAlpha &= a;
            row[x] = a << 24 | red.of(pixel) << 16 | green.of(pixel) << 8 | blue.of(pixel);
        }
    }
    // Many programs set the fourth byte to 0 or 255 everywhere and do not mean alpha.
    image.hasAlphaChannel = alpha.mask != 0 && anyAlpha != 0 && (hasMasks || everyAlpha != 255);
    if (!image.hasAlphaChannel)
        for (std::uint32_t& pixel : image.pixels)
            pixel |= 0xFF000000;
    return true;
}

bool isRunLength(const Header& header)
{
    return (header.compression == rle8 && header.bits == 8) ||
           (header.compression == rle4 && header.bits == 4);
}

bool isIndexed(const Header& header)
{
    return header.bits == 1 || header.bits == 4 || header.bits == 8;
}

bool isSupported(const Header& header)
{
    const bool isTrueColour = header.bits == 16 || header.bits == 24 || header.bits == 32;
    const bool hasMasks = header.compression == masks || header.compression == alphaMasks;
    const bool isMasked = hasMasks && (header.bits == 16 || header.bits == 32);
    return (isIndexed(header) || isTrueColour) &&
           (header.compression == plain || isRunLength(header) || isMasked);
}

/// Returns whether the file has all rows of a picture that is not run-length encoded.
bool hasAllRows(const ByteReader& file, const Header& header)
{
    const std::size_t stride = (header.width * header.bits + 31) / 32 * 4;
    const std::size_t lastRow = (header.width * header.bits + 7) / 8; // its padding may be missing
    return header.pixelsAt >= fileHeader + header.headerSize &&
           header.pixelsAt + stride * (header.height - 1) + lastRow <= file.bytes.size();
}

} // namespace

bool readBmpSize(std::string_view bytes, long long& width, long long& height)
{
    Header header;
    if (!readHeader({bytes}, header))
        return false;
    width = header.width;
    height = header.height;
    return true;
}

ImageRef decodeBmp(std::string_view bytes)
{
    const ByteReader file{bytes};
    Header header;
    if (!readHeader(file, header) || !isSupported(header))
        return nullptr;
    const bool isRuns = isRunLength(header);
    if (!isRuns && !hasAllRows(file, header))
        return nullptr;
    ImageRef image = makeImage(static_cast<int>(header.width), static_cast<int>(header.height));
    const bool isDecoded = isRuns              ? decodeRuns(file, header, *image)
                           : isIndexed(header) ? decodeIndexed(file, header, *image)
                                               : decodeTrueColour(file, header, *image);
    return isDecoded ? image : nullptr;
}
