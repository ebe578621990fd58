#pragma once

#include <cstdint>

/// The demo's palette, 0xRRGGBB: a harbour before sunrise. Pictures use and mix these colours; the fonts in
/// scripts/script.tgs repeat the values.
namespace palette {

constexpr std::uint32_t night = 0x0D1826;   // panels, silhouettes in front
constexpr std::uint32_t harbour = 0x1B3148; // panel fills, the sky's top
constexpr std::uint32_t slate = 0x3D5A73;   // hills, lines between rows
constexpr std::uint32_t mist = 0x9FB4BD;    // small text on dark, far hills
constexpr std::uint32_t sea = 0x2F6270;     // water, the chart's sea
constexpr std::uint32_t lagoon = 0x6BB1C4;  // slate's line and bar
constexpr std::uint32_t foam = 0xBFD8D2;    // light on water
constexpr std::uint32_t rose = 0xD9816B;    // dawn above the horizon
constexpr std::uint32_t amber = 0xF2B866;   // sun, headings, items under the pointer
constexpr std::uint32_t cream = 0xF5E8CF;   // text on dark
constexpr std::uint32_t paper = 0xE6D3AC;   // the chart
constexpr std::uint32_t brass = 0xB98F4E;   // frames
constexpr std::uint32_t brick = 0x9E3D37;   // funnels, roofs, routes
constexpr std::uint32_t ink = 0x2A2620;     // text on paper
constexpr std::uint32_t timber = 0x5B4230;  // quay, desk

} // namespace palette
