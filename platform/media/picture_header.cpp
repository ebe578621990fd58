#include "platform/media/picture_header.h"

#include "platform/media/bmp_decoder.h"
#include "platform/media/byte_reader.h"

#include <algorithm>

using namespace std::string_view_literals;

namespace {

void readPng(const ByteReader& file, PictureHeader& header)
{
    constexpr std::size_t firstChunkEnd = 33; // signature and the chunk with the size
    if (file.bytes.size() < firstChunkEnd || file.bytes.substr(12, 4) != "IHDR"sv)
        return;
    const std::uint32_t colourType = file.u8(25);
    header.hasAlpha = colourType == 4 || colourType == 6;
    // A chunk has length, name, contents and checksum. A chunk of transparent colours is before the pixels.
    bool hasPixels = false;
    for (std::size_t at = firstChunkEnd; at + 8 <= file.bytes.size();) {
        const std::string_view name = file.bytes.substr(at + 4, 4);
        if (name == "IEND"sv) { // missing in a truncated file
            header.width = file.u32Big(16);
            header.height = file.u32Big(20);
            return;
        }
        hasPixels = hasPixels || name == "IDAT"sv;
        if (name == "tRNS"sv && !hasPixels)
            header.hasAlpha = true;
        at += std::size_t(12) + file.u32Big(at);
    }
}

void readJpeg(const ByteReader& file, PictureHeader& header)
{
    std::size_t at = 2;
    while (at + 4 <= file.bytes.size()) {
        if (file.u8(at) != 0xFF)
            return;
        const std::uint32_t mark = file.u8(at + 1);
        if (mark == 0xFF) { // a fill byte
            at++;
            continue;
        }
        // 00 is not a mark, and pixels (DA) before the size mean that the file is broken.
        if (mark == 0x00 || mark == 0xDA)
            return;
        // C0 to CF are frames, except tables (C4), a reserved mark (C8) and arithmetic conditioning (CC).
        if (mark >= 0xC0 && mark <= 0xCF && mark != 0xC4 && mark != 0xC8 && mark != 0xCC) {
            // The decoder would accept a truncated file and fill in the rest. A complete file has an end
            // mark.
            const std::size_t end = file.bytes.rfind("\xFF\xD9"sv);
            if (end == std::string_view::npos || end < at)
                return;
            header.height = file.u16Big(at + 5);
            header.width = file.u16Big(at + 7);
            return;
        }
        const bool hasNoLength = mark == 0x01 || (mark >= 0xD0 && mark <= 0xD9);
        at += hasNoLength ? 2 : std::size_t(2) + std::max<std::uint32_t>(2, file.u16Big(at + 2));
    }
}

// Returns the size in bytes of the colour table that flags describe.
std::size_t gifTable(std::uint32_t flags)
{
    return flags & 0x80 ? std::size_t(3) << ((flags & 7) + 1) : 0;
}

// Returns the position of the empty block that ends a chain of blocks, or a position past the end of the
// file. A block has a length byte and that many bytes.
std::size_t gifChainEnd(const ByteReader& file, std::size_t at)
{
    while (file.u8(at) != 0)
        at += 1 + file.u8(at);
    return at;
}

// Reads the size of the first picture. The extension that describes its transparency is before it.
void readGif(const ByteReader& file, PictureHeader& header)
{
    std::size_t at = 13 + gifTable(file.u8(10));
    while (at < file.bytes.size()) {
        const std::uint32_t block = file.u8(at);
        if (block == 0x2C) {
            // The decoder would accept a truncated file and fill in the rest. Complete pixels end with an
            // empty block.
            if (gifChainEnd(file, at + 11 + gifTable(file.u8(at + 9))) >= file.bytes.size())
                return;
            header.width = std::max(file.u16(at + 5), file.u16(6));
            header.height = std::max(file.u16(at + 7), file.u16(8));
            if (file.u16(at + 5) == 0 || file.u16(at + 7) == 0)
                header.width = 0;
            return;
        }
        if (block != 0x21)
            return;
        if (file.u8(at + 1) == 0xF9)
            header.hasAlpha = file.u8(at + 3) & 1;
        at = gifChainEnd(file, at + 2) + 1;
    }
}

void readPcx(const ByteReader& file, PictureHeader& header)
{
    if (file.bytes.size() < 128)
        return;
    header.width = static_cast<long long>(file.u16(8)) - file.u16(4) + 1;
    header.height = static_cast<long long>(file.u16(10)) - file.u16(6) + 1;
}

} // namespace

PictureHeader readPictureHeader(std::string_view bytes)
{
    const ByteReader file{bytes};
    PictureHeader header;
    if (bytes.starts_with("BM"sv)) {
        header.kind = PictureKind::Bmp;
        readBmpSize(bytes, header.width, header.height);
    } else if (bytes.starts_with("\x89PNG\r\n\x1A\n"sv)) {
        header.kind = PictureKind::Png;
        readPng(file, header);
    } else if (bytes.starts_with("\xFF\xD8\xFF"sv)) {
        header.kind = PictureKind::Jpeg;
        readJpeg(file, header);
    } else if (bytes.starts_with("GIF87a"sv) || bytes.starts_with("GIF89a"sv)) {
        header.kind = PictureKind::Gif;
        readGif(file, header);
    } else if (bytes.size() >= 4 && file.u8(0) == 10 && file.u8(1) <= 5 && file.u8(2) <= 1) {
        header.kind = PictureKind::Pcx;
        readPcx(file, header);
    }
    return header;
}
