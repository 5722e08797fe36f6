#include "display/program_image.h"

#include <array>

namespace display {
namespace {

constexpr std::array<toolkit::PaletteColour, 4> kPalette = {
    {{'#', 0x404040}, {'w', 0xFFFFFF}, {'r', 0x0000CD}, {'b', 0xFF0000}}};

constexpr std::array<toolkit::Image, 1> kImages = {{{
    "................",
    ".##############.",
    ".#wwwwwwwwwwww#.",
    ".#wwwwwwwwrrww#.",
    ".#wwwwwwwwrrww#.",
    ".#wwwwwwwwrrww#.",
    ".#wwwwrrwwrrww#.",
    ".#wwwwrrwwrrbb#.",
    ".#wwwwrrwwrrbb#.",
    ".#rrwwrrbbrrbb#.",
    ".#rrwwrrbbrrbb#.",
    ".#rrbbrrbbrrbb#.",
    ".#rrbbrrbbrrbb#.",
    ".#rrbbrrbbrrbb#.",
    ".##############.",
    "................",
}}};

}  // namespace

const toolkit::ImageList kProgramImage(kImages, kPalette);

}  // namespace display
