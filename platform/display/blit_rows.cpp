#include "platform/display/blit_rows.h"

#include <cstring>

// Builds the same loop for several instruction sets, where the compiler supports selecting one at load time.
#if defined(__x86_64__) && defined(__GNUC__) && !defined(__clang__) && !defined(__SANITIZE_ADDRESS__)
#define TGX_CLONES __attribute__((target_clones("avx2", "default")))
#else
#define TGX_CLONES
#endif
#define TGX_INLINE inline __attribute__((always_inline))

namespace {

using Pixel = std::uint32_t;

constexpr Pixel opaque = 0xFF000000;
constexpr Pixel redBlue = 0x00FF00FF;

// Computes (from * alpha + to * (255 - alpha)) / 255, rounded, for two channels at once in the halves of 32
// bits. The difference may borrow between the halves, but the sum is correct because of wrap-around.
TGX_INLINE Pixel mixPair(Pixel from, Pixel to, Pixel alpha)
{
    const Pixel sum = (from - to) * alpha + ((to << 8) - to) + 0x00800080;
    return ((sum + ((sum >> 8) & redBlue)) >> 8) & redBlue;
}

TGX_INLINE Pixel mix(Pixel from, Pixel to, Pixel alpha)
{
    const Pixel rb = mixPair(from & redBlue, to & redBlue, alpha);
    const Pixel g = mixPair((from >> 8) & 0xFF, (to >> 8) & 0xFF, alpha);
    return opaque | rb | (g << 8);
}

TGX_INLINE Pixel average(Pixel a, Pixel b)
{
    return (a & b) + (((a ^ b) & 0xFEFEFEFE) >> 1);
}

// Adds two channels at once, saturating at 255: a carry out of a channel sets all of its bits.
TGX_INLINE Pixel saturatedPair(Pixel a, Pixel b)
{
    const Pixel sum = a + b;
    const Pixel carry = (sum >> 8) & 0x00010001;
    return (sum | ((carry << 8) - carry)) & redBlue;
}

TGX_INLINE Pixel add(Pixel from, Pixel to)
{
    const Pixel weighted = mix(from, 0, from >> 24);
    const Pixel rb = saturatedPair(weighted & redBlue, to & redBlue);
    const Pixel g = saturatedPair((weighted >> 8) & 0xFF, (to >> 8) & 0xFF);
    return opaque | rb | (g << 8);
}

// Eight pixels, and the same as 16-bit halves. The compiler splits the vectors if the machine has none that
// wide. Functions take them by reference, because passing them by value depends on the instruction set.
using Pixels = Pixel __attribute__((vector_size(32)));
using Halves = std::uint16_t __attribute__((vector_size(32)));

TGX_INLINE void load(Pixels& to, const Pixel* from)
{
    std::memcpy(&to, from, sizeof(Pixels));
}

// Does mixPair for the halves of eight pixels, except for its last step: the results are in the upper bytes.
TGX_INLINE void mixHalves(Halves& result, const Halves& from, const Halves& to, const Halves& alpha)
{
    const Halves sum = (from - to) * alpha + (to << 8) - to + 128;
    result = sum + (sum >> 8);
}

// Computes what remains of the target under a source with premultiplied alpha. Results as in mixHalves.
TGX_INLINE void keepHalves(Halves& result, const Halves& to, const Halves& kept)
{
    const Halves sum = to * kept + 128;
    result = sum + (sum >> 8);
}

struct Normal {
    TGX_INLINE static Pixel one(Pixel from, Pixel to) { return mix(from, to, from >> 24); }
    TGX_INLINE static void source(Pixels&, const Pixels&) {}
};

struct Half {
    TGX_INLINE static Pixel one(Pixel from, Pixel to) { return mix(average(from, to), to, from >> 24); }
    TGX_INLINE static void source(Pixels& from, const Pixels& to)
    {
        from = (from & to) + (((from ^ to) & 0xFEFEFEFE) >> 1);
    }
};

// Blends eight pixels by the source's alpha. Mode computes the colours to blend in.
template<class Mode>
TGX_INLINE void mixEight(Pixel* target, const Pixel* source)
{
    Pixels from, to;
    load(from, source);
    load(to, target);
    const Pixels single = from >> 24;
    const Halves alpha = (Halves)(single | single << 16);
    Mode::source(from, to);
    Halves rb, g;
    mixHalves(rb, (Halves)(from & redBlue), (Halves)(to & redBlue), alpha);
    mixHalves(g, (Halves)from >> 8, (Halves)to >> 8, alpha); // also blends the alphas, which are not used
    const Pixels mixed = (Pixels)(rb >> 8) | ((Pixels)g & ~redBlue) | opaque;
    std::memcpy(target, &mixed, sizeof(Pixels));
}

TGX_INLINE void layEight(Pixel* target, const Pixel* source)
{
    Pixels from, to;
    load(from, source);
    load(to, target);
    const Pixels single = 255 - (from >> 24);
    const Halves kept = (Halves)(single | single << 16);
    Halves rb, g;
    keepHalves(rb, (Halves)(to & redBlue), kept);
    keepHalves(g, (Halves)to >> 8, kept);
    const Pixels laid = ((Pixels)(rb >> 8) | ((Pixels)g & ~redBlue)) + from; // no byte can exceed 255
    std::memcpy(target, &laid, sizeof(Pixels));
}

TGX_INLINE Pixel lay(Pixel from, Pixel to)
{
    const Pixel kept = 255 - (from >> 24);
    return from + (mixPair(0, to & redBlue, 255 - kept) | mixPair(0, to >> 8 & redBlue, 255 - kept) << 8);
}

template<class Mode>
TGX_INLINE void mixBlock(const PixelBlock& block)
{
    const PixelBlock local = block; // a local copy, because the compiler must assume that writing pixels may
                                    // change the caller's block
    Pixel* to = local.to;
    const Pixel* from = local.from;
    for (int y = 0; y < local.height; y++, to += local.toPitch, from += local.fromPitch) {
        int x = 0;
        for (; x + 8 <= local.width; x += 8)
            mixEight<Mode>(to + x, from + x);
        for (; x < local.width; x++)
            to[x] = Mode::one(from[x], to[x]);
    }
}

template<class Operation>
TGX_INLINE void forEachPixel(const PixelBlock& block, Operation operation)
{
    const PixelBlock local = block;
    Pixel* __restrict to = local.to;
    const Pixel* __restrict from = local.from;
    for (int y = 0; y < local.height; y++, to += local.toPitch, from += local.fromPitch)
        for (int x = 0; x < local.width; x++)
            to[x] = operation(from[x], to[x]);
}

template<int count>
TGX_INLINE void copyFixed(Pixel* to, const Pixel* from)
{
    std::memcpy(to, from, count * sizeof(Pixel)); // compiles to one or two vector moves without a call
}

} // namespace

TGX_CLONES void copyPixels(const PixelBlock& block)
{
    const PixelBlock local = block;
    Pixel* to = local.to;
    const Pixel* from = local.from;
    const int width = local.width;
    if (width > 64) {
        for (int y = 0; y < local.height; y++, to += local.toPitch, from += local.fromPitch)
            std::memcpy(to, from, static_cast<std::size_t>(width) * sizeof(Pixel));
        return;
    }
    // For a small bitmap, a memcpy call for each row would cost more than the copying. The last piece
    // overlaps the previous one.
    if (width >= 8) {
        for (int y = 0; y < local.height; y++, to += local.toPitch, from += local.fromPitch) {
            for (int x = 0; x < width - 8; x += 8)
                copyFixed<8>(to + x, from + x);
            copyFixed<8>(to + width - 8, from + width - 8);
        }
    } else if (width >= 4) {
        for (int y = 0; y < local.height; y++, to += local.toPitch, from += local.fromPitch) {
            copyFixed<4>(to, from);
            copyFixed<4>(to + width - 4, from + width - 4);
        }
    } else {
        for (int y = 0; y < local.height; y++, to += local.toPitch, from += local.fromPitch)
            for (int x = 0; x < width; x++)
                copyFixed<1>(to + x, from + x);
    }
}

TGX_CLONES void copyColours(const PixelBlock& block)
{
    forEachPixel(block, [](Pixel from, Pixel) { return from | opaque; });
}

TGX_CLONES void selectPixels(const PixelBlock& block)
{
    forEachPixel(block, [](Pixel from, Pixel to) {
        const Pixel taken = static_cast<Pixel>(static_cast<std::int32_t>(from) >> 31);
        return (from & taken) | (to & ~taken);
    });
}

TGX_CLONES void blendPixels(const PixelBlock& block)
{
    mixBlock<Normal>(block);
}

TGX_CLONES void averagePixels(const PixelBlock& block)
{
    mixBlock<Half>(block);
}

TGX_CLONES void addPixels(const PixelBlock& block)
{
    forEachPixel(block, [](Pixel from, Pixel to) { return add(from, to); });
}

TGX_CLONES void layPixels(const PixelBlock& block)
{
    const PixelBlock local = block;
    Pixel* to = local.to;
    const Pixel* from = local.from;
    for (int y = 0; y < local.height; y++, to += local.toPitch, from += local.fromPitch) {
        int x = 0;
        for (; x + 8 <= local.width; x += 8)
            layEight(to + x, from + x);
        for (; x < local.width; x++)
            to[x] = lay(from[x], to[x]);
    }
}

TGX_CLONES void fillPixels(std::uint32_t* to, std::ptrdiff_t toPitch, int width, int height,
                           std::uint32_t pixel)
{
    for (int y = 0; y < height; y++, to += toPitch)
        for (int x = 0; x < width; x++)
            to[x] = pixel;
}

TGX_CLONES void gatherPixels(std::uint32_t* to, const std::uint32_t* from, const std::int32_t* columns,
                             int width)
{
    for (int x = 0; x < width; x++)
        to[x] = from[columns[x]];
}
