#include "tests/unit/display/display_test.h"

#include "platform/media/image_file.h"

#include <SDL.h>
#ifdef __has_include
#if __has_include(<sanitizer/lsan_interface.h>)
#include <sanitizer/lsan_interface.h>
#endif
#endif

#include <cerrno>
#include <new>
#include <span>

using namespace std::string_literals;

namespace {

std::string bigEndian(std::uint32_t value)
{
    const std::string bytes = le(value, 4);
    return {bytes.rbegin(), bytes.rend()};
}

std::uint32_t crc(const std::string& bytes)
{
    std::uint32_t sum = ~0u;
    for (unsigned char byte : bytes) {
        sum ^= byte;
        for (int i = 0; i < 8; i++)
            sum = sum >> 1 ^ (sum & 1 ? 0xEDB88320u : 0);
    }
    return ~sum;
}

std::string chunk(const std::string& name, const std::string& contents)
{
    return bigEndian(static_cast<std::uint32_t>(contents.size())) + name + contents +
           bigEndian(crc(name + contents));
}

// Makes a PNG without compression. Each of rows begins with its filter byte.
std::string pngFile(int width, int height, char colourType, const std::string& extra, const std::string& rows)
{
    std::uint32_t a = 1, b = 0;
    for (unsigned char byte : rows) {
        a = (a + byte) % 65521;
        b = (b + a) % 65521;
    }
    const auto size = static_cast<std::uint32_t>(rows.size());
    const std::string packed = "\x78\x01\x01"s + le(size, 2) + le(~size, 2) + rows + bigEndian(b << 16 | a);
    return "\x89PNG\r\n\x1A\n"s +
           chunk("IHDR", bigEndian(static_cast<std::uint32_t>(width)) +
                             bigEndian(static_cast<std::uint32_t>(height)) + "\x08"s + colourType +
                             "\0\0\0"s) +
           extra + chunk("IDAT", packed) + chunk("IEND", "");
}

// Makes a GIF of two pixels, palette entries 0 (red) and 1 (blue). Entry 1 is transparent if transparent is
// set.
std::string gifFile(bool transparent)
{
    return "GIF89a"s + le(2, 2) + le(1, 2) + "\x80\0\0"s + "\xFF\0\0\0\0\xFF"s + "\x21\xF9\x04"s +
           (transparent ? "\x01" : "\0"s) + "\0\0\x01\0"s + "\x2C"s + le(0, 4) + le(2, 2) + le(1, 2) +
           "\0\x02\x02\x44\x0A\0\x3B"s;
}

// Makes a grey JPEG of 8 x 8: tables with one code each, and one block without coefficients.
std::string jpegFile()
{
    return "\xFF\xD8\xFF\xDB\0\x43\0"s + std::string(64, 1) +
           "\xFF\xC0\0\x0B\x08\0\x08\0\x08\x01\x01\x11\0"s + "\xFF\xC4\0\x14\0\x01"s + std::string(15, 0) +
           "\0"s + "\xFF\xC4\0\x14\x10\x01"s + std::string(15, 0) + "\0"s +
           "\xFF\xDA\0\x08\x01\x01\0\0\x3F\0\x3F\xFF\xD9"s;
}

std::string pcxFile()
{
    std::string header =
        "\x0A\x05\x01\x08"s + le(0, 4) + le(1, 2) + le(0, 2) + std::string(53, 0) + "\x03"s + le(2, 2);
    header.resize(128, 0);
    return header + "\x10\x20\x30\x40\x50\x60"s; // red, green and blue of the row
}

const std::string redBlueKey =
    "\0\0\xFF\0\xFF\0\0\0\xFF\0\xFF\0\0\xFF\0\0"s; // palette: red, blue, key colour, green

class ImageFileTest : public DisplayTest {
protected:
    struct Row {
        const char* name;
        std::string bytes;
        std::vector<std::uint32_t> pixels; // row by row
        Coverage coverage;
        bool hasAlphaChannel;
    };
    void decode(std::span<const Row> rows)
    {
        for (const auto& row : rows) {
            SCOPED_TRACE(row.name);
            write("picture.xyz", row.bytes); // the extension does not matter
            const ImageRef image = loadImageFile("picture.xyz");
            ASSERT_TRUE(image);
            std::vector<std::uint32_t> pixels;
            for (int y = 0; y < image->height; y++)
                pixels.insert(pixels.end(), image->row(y), image->row(y) + image->width);
            EXPECT_EQ(pixels, row.pixels);
            EXPECT_EQ(image->coverage, row.coverage);
            EXPECT_EQ(image->hasAlphaChannel, row.hasAlphaChannel);
        }
    }
};

TEST_F(ImageFileTest, BitmapsOfEveryDepthAreDecoded)
{
    const Row rows[] = {
        {"1 bit",
         bmpFile(2, 1, {1, 0, redBlueKey.substr(0, 8), "\x40\0\0\0"s}),
         {0xFFFF0000, 0xFF0000FF},
         Coverage::Opaque,
         false},
        {"4 bits with the key colour",
         bmpFile(3, 1, {4, 0, redBlueKey, "\x01\x20\0\0"s}),
         {0xFFFF0000, 0xFF0000FF, 0x00FF00FF},
         Coverage::Masked,
         false},
        {"8 bits, bottom row first",
         bmpFile(1, 2, {8, 0, redBlueKey, "\x01\0\0\0\0\0\0\0"s}),
         {0xFFFF0000, 0xFF0000FF},
         Coverage::Opaque,
         false},
        {"8 bits, top row first",
         bmpFile(1, -2, {8, 0, redBlueKey, "\x01\0\0\0\0\0\0\0"s}),
         {0xFF0000FF, 0xFFFF0000},
         Coverage::Opaque,
         false},
        {"an index outside the palette is black",
         bmpFile(1, 1, {8, 0, redBlueKey, "\x09\0\0\0"s}),
         {0xFF000000},
         Coverage::Opaque,
         false},
        {"16 bits", bmpFile(1, 1, {16, 0, "", "\0\x7C\0\0"s}), {0xFFFF0000}, Coverage::Opaque, false},
        {"24 bits", bmpFile(1, 1, {24, 0, "", "\x33\x22\x11\0"s}), {0xFF112233}, Coverage::Opaque, false},
        {"32 bits, fourth byte unused",
         bmpFile(2, 1, {32, 0, "", "\x33\x22\x11\0\xFF\0\xFF\0"s}),
         {0xFF112233, 0x00FF00FF},
         Coverage::Masked,
         false},
        {"32 bits with alpha keeps the key colour",
         bmpFile(2, 1, {32, 0, "", "\x33\x22\x11\x80\xFF\0\xFF\xFF"s}),
         {0x80112233, 0xFFFF00FF},
         Coverage::Alpha,
         true},
        {"run-length 8 bits: run, literal, skip, end of line",
         bmpFile(4, 2, {8, 1, redBlueKey, "\x02\x01\0\x02\x01\0\x01\x03\0\0\0\x03\x01\x03\x01\0\0\x01"s}),
         {0xFF0000FF, 0xFF00FF00, 0xFF0000FF, 0xFFFF0000, 0xFF0000FF, 0xFF0000FF, 0xFFFF0000, 0xFF00FF00},
         Coverage::Opaque,
         false},
        {"run-length 4 bits, longer than the row",
         bmpFile(3, 1, {4, 2, redBlueKey, "\x09\x13\0\x01"s}),
         {0xFF0000FF, 0xFF00FF00, 0xFF0000FF},
         Coverage::Opaque,
         false},
    };
    decode(rows);
}

TEST_F(ImageFileTest, OtherFormatsAreDecoded)
{
    const Row rows[] = {
        {"PNG, palette with alphas",
         pngFile(2, 1, 3, chunk("PLTE", "\xFF\0\0\0\0\xFF"s) + chunk("tRNS", "\x80"s), "\0\0\x01"s),
         {0x80FF0000, 0xFF0000FF},
         Coverage::Alpha,
         true},
        {"PNG, palette without alphas",
         pngFile(2, 1, 3, chunk("PLTE", "\xFF\0\0\xFF\0\xFF"s), "\0\0\x01"s),
         {0xFFFF0000, 0x00FF00FF},
         Coverage::Masked,
         false},
        {"PNG, true colour with alpha",
         pngFile(1, 1, 6, "", "\0\x11\x22\x33\x44"s),
         {0x44112233},
         Coverage::Alpha,
         true},
        {"PNG, greyscale with a transparent colour",
         pngFile(3, 1, 0, chunk("tRNS", "\0\x64"s), "\0\x64\x65\xFF"s),
         {0x00646464, 0xFF656565, 0xFFFFFFFF},
         Coverage::Masked,
         true},
        {"PNG, greyscale",
         pngFile(2, 1, 0, "", "\0\x64\xFF"s),
         {0xFF646464, 0xFFFFFFFF},
         Coverage::Opaque,
         false},
        {"PNG, true colour", pngFile(1, 1, 2, "", "\0\x11\x22\x33"s), {0xFF112233}, Coverage::Opaque, false},
        {"GIF", gifFile(false), {0xFFFF0000, 0xFF0000FF}, Coverage::Opaque, false},
        {"GIF with a transparent colour", gifFile(true), {0xFFFF0000, 0x000000FF}, Coverage::Masked, true},
        {"JPEG", jpegFile(), std::vector<std::uint32_t>(64, 0xFF808080), Coverage::Opaque, false},
        {"PCX", pcxFile(), {0xFF103050, 0xFF204060}, Coverage::Opaque, false},
    };
    decode(rows);
}

TEST_F(ImageFileTest, MissingForeignTooLargeAndBrokenFilesAreRefused)
{
    const std::string bmp = bmpFile(2, 2, {24, 0, "", std::string(16, 1)});
    const struct {
        const char* name;
        std::string bytes;
    } rows[] = {
        {"empty", ""},
        {"another kind", "P6 1 1 255 abc"},
        {"a BMP that is too wide", bmpFile(16385, 1, {1, 0, redBlueKey, std::string(4096, 0)})},
        {"a BMP of the largest size", bmpFile(INT_MAX, INT_MIN, {24, 0, "", ""})},
        {"a BMP of width 0", bmpFile(0, 5, {24, 0, "", std::string(64, 0)})},
        {"too many pixels", bmpFile(16384, 16384, {1, 0, redBlueKey, ""})},
        {"a PNG that is too large", pngFile(20000, 20000, 2, "", "")},
        {"a BMP of 7 bits", bmpFile(2, 2, {7, 0, "", std::string(16, 1)})},
        {"run-length data with 24 bits", bmpFile(2, 2, {24, 1, "", std::string(16, 1)})},
        {"run-length data without an end", bmpFile(2, 2, {8, 1, redBlueKey, "\x02\x01"s})},
        {"a truncated literal run", bmpFile(8, 1, {8, 1, redBlueKey, "\0\x08\x01"s})},
        {"a truncated BMP", bmp.substr(0, bmp.size() - 3)},
        {"a BMP with a truncated header", bmp.substr(0, 30)},
        {"a truncated PNG", pngFile(1, 1, 2, "", "\0\x11\x22\x33"s).substr(0, 50)},
        {"a truncated GIF", gifFile(false).substr(0, 25)},
        {"a truncated JPEG", jpegFile().substr(0, jpegFile().size() - 3)},
        {"a JPEG with an invalid mark", jpegFile().insert(2, "\xFF\0\0\x02"s)},
        {"a PCX of a negative size", "\x0A\x05\x01\x08"s + le(9, 4) + std::string(120, 0)},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        write("picture.bmp", row.bytes);
        EXPECT_FALSE(loadImageFile("picture.bmp"));
    }
    EXPECT_FALSE(loadImageFile("none.bmp"));
}

TEST_F(ImageFileTest, ATruncatedFileIsRefused)
{
    const struct {
        const char* name;
        std::string bytes;
        std::size_t spare; // number of bytes at the end that may be missing
    } rows[] = {
        {"BMP: the padding of the last row", bmpFile(2, 2, {24, 0, "", std::string(16, 1)}), 2},
        {"BMP, palette", bmpFile(8, 2, {8, 0, redBlueKey, std::string(16, 1)}), 0},
        {"BMP, run-length", bmpFile(4, 2, {8, 1, redBlueKey, "\x02\x01\0\x02\0\0\x01\x03\0\x01"s}), 0},
        {"PNG: the last checksum", pngFile(2, 1, 3, chunk("PLTE", "\xFF\0\0\0\0\xFF"s), "\0\0\x01"s), 4},
        {"GIF: the end mark", gifFile(true), 1},
        {"JPEG", jpegFile(), 0},
        {"PCX", pcxFile(), 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        for (std::size_t length = 0; length <= row.bytes.size(); length++) {
            write("picture", row.bytes.substr(0, length));
            EXPECT_EQ(loadImageFile("picture") != nullptr, length + row.spare >= row.bytes.size())
                << length << " of " << row.bytes.size() << " bytes";
        }
    }
    write("picture", jpegFile().insert(2, "\xFF\xFF"));
    EXPECT_TRUE(loadImageFile("picture")) << "fill bytes before a mark";
}

TEST_F(ImageFileTest, ADamagedByteGivesAPictureOrNone)
{
    for (const std::string& whole :
         {bmpFile(4, 2, {8, 1, redBlueKey, "\x02\x01\0\x02\0\0\x01\x03\0\0\x04\x02\0\x01"s}), gifFile(true),
          pcxFile(), jpegFile(), bmpFile(2, 2, {32, 0, "", std::string(16, 1)})}) {
        for (std::size_t i = 0; i < whole.size(); i += i < 64 ? 1 : 5) {
            std::string bytes = whole;
            bytes[i] = static_cast<char>(~bytes[i]);
            write("picture", bytes);
            if (const ImageRef image = loadImageFile("picture")) {
                EXPECT_GT(image->width * image->height, 0) << "byte " << i;
            }
        }
    }
}

TEST_F(ImageFileTest, AWrittenPictureIsReadBackTheSame)
{
    const ImageRef image = imageOf(
        5, 3, [](int x, int y) { return 0xFF000000u | static_cast<unsigned>(x * 40 << 16 | y * 99); });
    ASSERT_TRUE(writePng(*image, (folder / "out.png").string()));
    EXPECT_FALSE(writePng(*image, (folder / "no" / "out.png").string()));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 1)
        << "nothing is left beside it";
    const ImageRef read = loadImageFile("OUT.PNG");
    ASSERT_TRUE(read);
    EXPECT_FALSE(read->hasAlphaChannel);
    for (int y = 0; y < 3; y++)
        for (int x = 0; x < 5; x++)
            EXPECT_EQ(read->row(y)[x], image->row(y)[x]);
}

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define TGX_FINDS_LEAKS 1
#endif
#endif
#ifdef __SANITIZE_ADDRESS__
#define TGX_FINDS_LEAKS 1
#endif
#ifdef TGX_FINDS_LEAKS
using LeaksIgnored = __lsan::ScopedDisabler;
#else
struct LeaksIgnored {};
#endif

/// Makes the libraries' allocation with that number fail. Leaks of the decoders after that are their own
/// fault and are ignored.
class FailingMemory {
public:
    explicit FailingMemory(int number)
    {
        left = number;
        SDL_GetMemoryFunctions(&make, &clear, &grow, &free);
        SDL_SetMemoryFunctions(
            [](std::size_t size) { return isLeft() ? make(size) : nullptr; },
            [](std::size_t count, std::size_t size) { return isLeft() ? clear(count, size) : nullptr; },
            [](void* old, std::size_t size) { return isLeft() ? grow(old, size) : nullptr; }, free);
    }
    ~FailingMemory() { SDL_SetMemoryFunctions(make, clear, grow, free); }

private:
    static bool isLeft()
    {
        if (left-- != 0)
            return true;
        errno = ENOMEM; // as the system's functions do
        return false;
    }
    [[maybe_unused]] LeaksIgnored leaksIgnored;
    static inline int left;
    static inline SDL_malloc_func make;
    static inline SDL_calloc_func clear;
    static inline SDL_realloc_func grow;
    static inline SDL_free_func free;
};

TEST_F(ImageFileTest, AFailedAllocationIsNotABrokenPicture)
{
    write("a.png", pngFile(1, 1, 2, "", "\0\x11\x22\x33"s));
    write("a.gif", gifFile(true));
    write("a.jpg", jpegFile());
    for (const char* name : {"a.png", "a.gif", "a.jpg"}) {
        int refused = 0;
        for (ImageRef image; !image; refused++) {
            const FailingMemory memory(refused);
            try {
                image = loadImageFile(name);
                ASSERT_TRUE(image) << name << ", allocation " << refused;
            } catch (const std::bad_alloc&) {
            }
        }
        EXPECT_GT(refused, 2) << name;
    }
}

} // namespace
