#include "demo/art/canvas.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>

namespace {

using Bytes = std::vector<unsigned char>;

void putBig(Bytes& bytes, std::uint32_t value)
{
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.push_back(static_cast<unsigned char>(value >> shift));
}

void putLittle(Bytes& bytes, std::uint32_t value, int count)
{
    for (int i = 0; i < count; ++i)
        bytes.push_back(static_cast<unsigned char>(value >> 8 * i));
}

/// Converts 0 to 1 into 0 to 255. The two hashes add triangular noise of one step to each side, which hides
/// the steps of a gradient.
unsigned char quantised(float value, int x, int y, std::uint32_t channel, bool dithered)
{
    float wobble = dithered ? hashed(x, y, 71 + channel) + hashed(x, y, 91 + channel) - 1 : 0;
    return static_cast<unsigned char>(std::clamp(std::lround(value * 255 + wobble), 0L, 255L));
}

std::uint32_t crc32(const unsigned char* data, std::size_t size)
{
    std::uint32_t crc = ~0u;
    for (std::size_t i = 0; i < size; ++i) {
        crc ^= data[i];
        for (int bit = 0; bit < 8; ++bit)
            crc = crc >> 1 ^ (crc & 1 ? 0xEDB88320u : 0);
    }
    return ~crc;
}

void putChunk(Bytes& file, const char* type, const Bytes& data)
{
    putBig(file, static_cast<std::uint32_t>(data.size()));
    std::size_t start = file.size();
    file.insert(file.end(), type, type + 4);
    file.insert(file.end(), data.begin(), data.end());
    putBig(file, crc32(file.data() + start, file.size() - start));
}

/// Makes a zlib stream of stored blocks: the pictures are full of fine noise, which hardly compresses.
Bytes stored(const Bytes& raw)
{
    Bytes out = {0x78, 0x01};
    std::uint32_t a = 1, b = 0;
    for (unsigned char byte : raw) {
        a = (a + byte) % 65521;
        b = (b + a) % 65521;
    }
    for (std::size_t at = 0; at < raw.size(); at += 65535) {
        std::size_t size = std::min<std::size_t>(65535, raw.size() - at);
        out.push_back(at + size == raw.size());
        putLittle(out, static_cast<std::uint32_t>(size), 2);
        putLittle(out, ~static_cast<std::uint32_t>(size), 2);
        out.insert(out.end(), raw.begin() + static_cast<std::ptrdiff_t>(at),
                   raw.begin() + static_cast<std::ptrdiff_t>(at + size));
    }
    putBig(out, b << 16 | a);
    return out;
}

bool writeFile(const Bytes& bytes, const std::string& path)
{
    std::string beside = path + ".part";
    {
        std::ofstream out(beside, std::ios::binary);
        out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
        if (!out.flush())
            return false;
    }
    return std::rename(beside.c_str(), path.c_str()) == 0;
}

} // namespace

bool writePng(const Canvas& canvas, const std::string& path, bool withAlpha, Grain grain)
{
    const bool dithered = grain == Grain::Dithered;
    Bytes rows;
    for (int y = 0; y < canvas.height; ++y) {
        rows.push_back(0); // no filter
        for (int x = 0; x < canvas.width; ++x) {
            Colour colour = canvas.at(x, y);
            rows.push_back(quantised(colour.r, x, y, 0, dithered));
            rows.push_back(quantised(colour.g, x, y, 1, dithered));
            rows.push_back(quantised(colour.b, x, y, 2, dithered));
            if (withAlpha)
                rows.push_back(quantised(colour.a, x, y, 3, dithered && colour.a > 0 && colour.a < 1));
        }
    }
    Bytes file = {0x89, 'P', 'N', 'G', 0x0D, 0x0A, 0x1A, 0x0A}, header;
    putBig(header, static_cast<std::uint32_t>(canvas.width));
    putBig(header, static_cast<std::uint32_t>(canvas.height));
    for (int part : {8, withAlpha ? 6 : 2, 0, 0, 0})
        header.push_back(static_cast<unsigned char>(part));
    putChunk(file, "IHDR", header);
    putChunk(file, "IDAT", stored(rows));
    putChunk(file, "IEND", {});
    return writeFile(file, path);
}

bool writeKeyedBmp(const Canvas& canvas, const std::string& path)
{
    std::uint32_t rowBytes = (static_cast<std::uint32_t>(canvas.width) * 3 + 3) / 4 * 4;
    std::uint32_t pixelBytes = rowBytes * static_cast<std::uint32_t>(canvas.height);
    Bytes file = {'B', 'M'};
    putLittle(file, 54 + pixelBytes, 4);
    putLittle(file, 0, 4);
    putLittle(file, 54, 4); // offset of the pixels
    putLittle(file, 40, 4); // size of the header that begins here
    putLittle(file, static_cast<std::uint32_t>(canvas.width), 4);
    putLittle(file, static_cast<std::uint32_t>(canvas.height), 4);
    putLittle(file, 1, 2);
    putLittle(file, 24, 2);
    putLittle(file, 0, 4);
    putLittle(file, pixelBytes, 4);
    for (int i = 0; i < 4; ++i)
        putLittle(file, 0, 4);
    for (int y = canvas.height - 1; y >= 0; --y) { // bottom up
        for (int x = 0; x < canvas.width; ++x) {
            Colour colour = canvas.at(x, y);
            bool shows = colour.a >= 0.5f;
            file.push_back(shows ? quantised(colour.b, x, y, 2, false) : 255);
            file.push_back(shows ? quantised(colour.g, x, y, 1, false) : 0);
            file.push_back(shows ? quantised(colour.r, x, y, 0, false) : 255);
        }
        file.resize((file.size() - 54 + 3) / 4 * 4 + 54);
    }
    return writeFile(file, path);
}
