#include "examples/controls/art/looks.h"

#include "platform/media/bmpfont.h"
#include "platform/media/code_page.h"

#include <cstdio>
#include <fstream>

namespace {

// Rows of a text line above and below the base line.
constexpr int ascent = 11;
constexpr int descent = 3;

/// Writes one character in the bitmap distribution format. Each row is a bit pattern, the leftmost pixel
/// first.
void writeGlyph(std::ostream& out, const bmpfont& font, unsigned char character)
{
    const Glyph& glyph = font.glyph(character);
    const int code = static_cast<int>(unicodeOf(character));
    out << "STARTCHAR U" << code << "\nENCODING " << code << "\nSWIDTH 500 0\nDWIDTH "
        << font.advance(character) << " 0\nBBX " << glyph.width << ' ' << glyph.height << ' ' << glyph.left
        << ' ' << ascent - glyph.top - glyph.height << "\nBITMAP\n";
    for (int y = 0; y < glyph.height; ++y) {
        for (int x = 0; x < glyph.width; x += 8) {
            unsigned bits = 0;
            for (int bit = 0; bit < 8; ++bit)
                if (x + bit < glyph.width &&
                    glyph.pixels[static_cast<std::size_t>(y) * glyph.stride + x + bit] != 0)
                    bits |= 0x80u >> bit;
            char hex[3];
            std::snprintf(hex, sizeof hex, "%02X", bits);
            out << hex;
        }
        out << '\n';
    }
    out << "ENDCHAR\n";
}

} // namespace

bool writeFont(const std::string& path)
{
    const std::unique_ptr<bmpfont> font = makeBuiltInFont();
    int count = 0;
    for (int character = 0x20; character < 0x100; ++character)
        count += unicodeOf(static_cast<unsigned char>(character)) != 0;

    std::ofstream out(path, std::ios::binary);
    constexpr int height = ascent + descent;
    out << "STARTFONT 2.1\nFONT -tgx-plain-medium-r-normal--" << height << '-' << height * 10
        << "-75-75-p-60-iso10646-1\nSIZE " << height << " 75 75\nFONTBOUNDINGBOX 12 " << height << " 0 "
        << -descent << "\nSTARTPROPERTIES 4\nFONT_ASCENT " << ascent << "\nFONT_DESCENT " << descent
        << "\nCHARSET_REGISTRY \"ISO10646\"\nCHARSET_ENCODING \"1\"\nENDPROPERTIES\nCHARS " << count << '\n';
    for (int character = 0x20; character < 0x100; ++character)
        if (unicodeOf(static_cast<unsigned char>(character)) != 0)
            writeGlyph(out, *font, static_cast<unsigned char>(character));
    out << "ENDFONT\n";
    return static_cast<bool>(out.flush());
}
