#pragma once

#include <cstdint>
#include <map>

namespace tarnic::test {

// The first-level keysyms of three layouts as xkeyboard-config defines them ("fr", "de", "us"),
// at the positions of the inventory pop-up's keys (macOS virtual key codes), written out by hand
// from the layouts' key tables so that the tests check the naming against the layouts rather than
// against the code. The X server tier checks the same positions on a real server.
inline std::map<int, std::uint32_t> frenchKeysyms() {
    return {
        {50, 0xb2},
        {18, 0x26},
        {19, 0xe9},
        {20, 0x22},
        {21, 0x27},
        {23, 0x28},
        {22, 0x2d},
        {26, 0xe8},
        {28, 0x5f},
        {25, 0xe7},
        {29, 0xe0},
        {27, 0x29},
        {24, 0x3d},
        {12, 'a'},
        {13, 'z'},
        {14, 'e'},
        {15, 'r'},
        {17, 't'},
        {16, 'y'},
        {32, 'u'},
        {34, 'i'},
        {31, 'o'},
        {35, 'p'},
        {33, 0xfe52 /* dead_circumflex */},
        {30, 0x24},
        {0, 'q'},
        {1, 's'},
        {2, 'd'},
        {3, 'f'},
        {5, 'g'},
        {4, 'h'},
        {38, 'j'},
        {40, 'k'},
        {37, 'l'},
        {41, 'm'},
        {39, 0xf9},
        {42, 0x2a},
        {10, 0x3c},
        {6, 'w'},
        {7, 'x'},
        {8, 'c'},
        {9, 'v'},
        {11, 'b'},
        {45, 'n'},
        {46, 0x2c},
        {43, 0x3b},
        {47, 0x3a},
        {44, 0x21},
        // Space and Escape print nothing a name could show.
        {49, 0x20},
        {53, 0xff1b},
    };
}

inline std::map<int, std::uint32_t> germanKeysyms() {
    return {
        {50, 0xfe52 /* dead_circumflex */},
        {18, '1'},
        {19, '2'},
        {20, '3'},
        {21, '4'},
        {23, '5'},
        {22, '6'},
        {26, '7'},
        {28, '8'},
        {25, '9'},
        {29, '0'},
        {27, 0xdf},
        {24, 0xfe51 /* dead_acute */},
        {12, 'q'},
        {13, 'w'},
        {14, 'e'},
        {15, 'r'},
        {17, 't'},
        {16, 'z'},
        {32, 'u'},
        {34, 'i'},
        {31, 'o'},
        {35, 'p'},
        {33, 0xfc},
        {30, 0x2b},
        {0, 'a'},
        {1, 's'},
        {2, 'd'},
        {3, 'f'},
        {5, 'g'},
        {4, 'h'},
        {38, 'j'},
        {40, 'k'},
        {37, 'l'},
        {41, 0xf6},
        {39, 0xe4},
        {42, 0x23},
        {10, 0x3c},
        {6, 'y'},
        {7, 'x'},
        {8, 'c'},
        {9, 'v'},
        {11, 'b'},
        {45, 'n'},
        {46, 'm'},
        {43, 0x2c},
        {47, 0x2e},
        {44, 0x2d},
        {49, 0x20},
        {53, 0xff1b},
    };
}

inline std::map<int, std::uint32_t> usKeysyms() {
    return {
        {50, 0x60},   {18, '1'},  {19, '2'},  {20, '3'},  {21, '4'},  {23, '5'},  {22, '6'},
        {26, '7'},    {28, '8'},  {25, '9'},  {29, '0'},  {27, 0x2d}, {24, 0x3d}, {12, 'q'},
        {13, 'w'},    {14, 'e'},  {15, 'r'},  {17, 't'},  {16, 'y'},  {32, 'u'},  {34, 'i'},
        {31, 'o'},    {35, 'p'},  {33, 0x5b}, {30, 0x5d}, {0, 'a'},   {1, 's'},   {2, 'd'},
        {3, 'f'},     {5, 'g'},   {4, 'h'},   {38, 'j'},  {40, 'k'},  {37, 'l'},  {41, 0x3b},
        {39, 0x27},   {42, 0x5c}, {10, 0x3c}, {6, 'z'},   {7, 'x'},   {8, 'c'},   {9, 'v'},
        {11, 'b'},    {45, 'n'},  {46, 'm'},  {43, 0x2c}, {47, 0x2e}, {44, 0x2f}, {49, 0x20},
        {53, 0xff1b},
    };
}

} // namespace tarnic::test
