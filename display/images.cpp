#include "display/images.h"

#include <array>

namespace display {
namespace {

constexpr std::array<toolkit::PaletteColour, 8> kMenuPalette = {{
    {'#', 0x404040},
    {'g', 0x808080},
    {'s', 0xD8D8D8},
    {'w', 0xFFFFFF},
    {'r', 0x3030D0},
    {'b', 0xD07030},
    {'y', 0x30B8F0},
    {'n', 0x40A040},
}};

constexpr std::array<toolkit::Image, 7> kMenuPictures = {{
    // Columns of a table of figures.
    {
        "................",
        ".##############.",
        ".#wwwwwwwwwwww#.",
        ".#wwwwwwwwwrrw#.",
        ".#wwwwwwwwwrrw#.",
        ".#wwwwwwwwwrrw#.",
        ".#wwwwbbwwwrrw#.",
        ".#wwwwbbwwwrrw#.",
        ".#wwwwbbwwwrrw#.",
        ".#wnnwbbwwwrrw#.",
        ".#wnnwbbwyyrrw#.",
        ".#wnnwbbwyyrrw#.",
        ".#wnnwbbwyyrrw#.",
        ".#wwwwwwwwwwww#.",
        ".##############.",
        "................",
    },
    // A window with a curve.
    {
        "................",
        ".##############.",
        ".#bbbbbbbbbbbb#.",
        ".##############.",
        ".#wwwwwwwwwwww#.",
        ".#wwwwwwwwwwrw#.",
        ".#wwwwwwwwwrrw#.",
        ".#wwwrwwwwwrww#.",
        ".#wwrrrwwwrrww#.",
        ".#wwrwrwwwrwww#.",
        ".#wrrwrrwrrwww#.",
        ".#wrwwwrrrwwww#.",
        ".#rrwwwwrwwwww#.",
        ".#wwwwwwwwwwww#.",
        ".##############.",
        "................",
    },
    // A network card.
    {
        "................",
        "................",
        "gg..............",
        "gg#############.",
        "gg#nnnnnnnnnnn#.",
        "gg#nyynnn###nn#.",
        "gg#nyynnn#g#nn#.",
        "gg#nnnnnn###nn#.",
        "gg#nn##nnnnnnn#.",
        "gg#nn##nnyyynn#.",
        "gg#nnnnnnnnnnn#.",
        "gg#############.",
        "gg..yyyyyyyy....",
        "gg..y.y.y.y.....",
        "gg..............",
        "................",
    },
    // Two machines on one line.
    {
        "................",
        ".#######........",
        ".#bbbbb#........",
        ".#bbbbb#........",
        ".#bbbbb#........",
        ".#######........",
        "...###..........",
        ".#######........",
        "....n...#######.",
        "....n...#bbbbb#.",
        "....n...#bbbbb#.",
        "....n...#bbbbb#.",
        "....n...#######.",
        "....nnnn..###...",
        "........#######.",
        "................",
    },
    // Sliders.
    {
        "................",
        "...gg...gg...gg.",
        "...gg...gg...gg.",
        "...gg..####..gg.",
        "...gg..#bb#..gg.",
        "...gg..#bb#..gg.",
        "...gg..####..gg.",
        "...gg...gg...gg.",
        "..####..gg..####",
        "..#bb#..gg..#bb#",
        "..#bb#..gg..#bb#",
        "..####..gg..####",
        "...gg...gg...gg.",
        "...gg...gg...gg.",
        "...gg...gg...gg.",
        "................",
    },
    // A question mark.
    {
        "................",
        ".....bbbbbb.....",
        "....bbbbbbbb....",
        "...bbb....bbb...",
        "...bb......bb...",
        "...........bb...",
        "..........bbb...",
        ".........bbb....",
        "........bbb.....",
        ".......bbb......",
        ".......bb.......",
        ".......bb.......",
        "................",
        ".......bb.......",
        ".......bb.......",
        "................",
    },
    // A door with an arrow out of it.
    {
        "................",
        ".#########......",
        ".#sssssss#......",
        ".#sssssss#......",
        ".#sssssss#..r...",
        ".#sssssss#..rr..",
        ".#sssssss#..rrr.",
        ".#ssssrrrrrrrrrr",
        ".#ss##rrrrrrrrrr",
        ".#sssssss#..rrr.",
        ".#sssssss#..rr..",
        ".#sssssss#..r...",
        ".#sssssss#......",
        ".#sssssss#......",
        ".#########......",
        "................",
    },
}};

}  // namespace

const toolkit::ImageList kMenuImages(kMenuPictures, kMenuPalette);

namespace {

constexpr std::array<toolkit::PaletteColour, 4> kProgramPalette = {
    {{'#', 0x404040}, {'w', 0xFFFFFF}, {'r', 0x0000CD}, {'b', 0xFF0000}}};

constexpr std::array<toolkit::Image, 1> kProgramPictures = {{{
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

const toolkit::ImageList kProgramImage(kProgramPictures, kProgramPalette);

}  // namespace display
