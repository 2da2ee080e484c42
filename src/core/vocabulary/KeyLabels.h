#pragma once

#include <map>
#include <string>
#include <vector>

namespace tarnic {

// Single-key labels of an older key naming, kept with the vocabulary though no operation reads
// them. They differ from key_codes on purpose for some keys (";" here, ":" there; "^" for
// Control; thin arrows).
inline constexpr char F2[] = "F2";
inline constexpr char F3[] = "F3";
inline constexpr char F4[] = "F4";
inline constexpr char F5[] = "F5";
inline constexpr char F6[] = "F6";
inline constexpr char F7[] = "F7";
inline constexpr char F8[] = "F8";
inline constexpr char F9[] = "F9";
inline constexpr char F10[] = "F10";
inline constexpr char F11[] = "F11";
inline constexpr char F12[] = "F12";
inline constexpr char spiral[] = "\xC2\xA7"; // §
inline constexpr char n1[] = "1";
inline constexpr char n2[] = "2";
inline constexpr char n3[] = "3";
inline constexpr char n4[] = "4";
inline constexpr char n5[] = "5";
inline constexpr char n6[] = "6";
inline constexpr char n7[] = "7";
inline constexpr char n8[] = "8";
inline constexpr char n9[] = "9";
inline constexpr char n0[] = "0";
inline constexpr char mins[] = "-";
inline constexpr char pls[] = "+";
inline constexpr char bacspce[] = "<-";
inline constexpr char tab[] = "\xE2\x87\xA5"; // ⇥
inline constexpr char cQ[] = "Q";
inline constexpr char cW[] = "W";
inline constexpr char cE[] = "E";
inline constexpr char cR[] = "R";
inline constexpr char cT[] = "T";
inline constexpr char cY[] = "Y";
inline constexpr char cU[] = "U";
inline constexpr char cI[] = "I";
inline constexpr char cO[] = "O";
inline constexpr char cP[] = "P";
inline constexpr char lftBrack[] = "[";
inline constexpr char rgtBrack[] = "]";
inline constexpr char Retrn[] = "\xE2\x86\xB5"; // ↵
inline constexpr char CAPS[] = "\xE2\x87\xAA";  // ⇪
inline constexpr char cA[] = "A";
inline constexpr char cS[] = "S";
inline constexpr char cD[] = "D";
inline constexpr char cF[] = "F";
inline constexpr char cG[] = "G";
inline constexpr char cH[] = "H";
inline constexpr char cJ[] = "J";
inline constexpr char cK[] = "K";
inline constexpr char cL[] = "L";
inline constexpr char semcln[] = ";";
inline constexpr char Apos[] = "'";
inline constexpr char vertical_bar[] = "|";
inline constexpr char SHIFT[] = "Shift";
inline constexpr char console[] = "~";
inline constexpr char cZ[] = "Z";
inline constexpr char cX[] = "X";
inline constexpr char cC[] = "C";
inline constexpr char cV[] = "V";
inline constexpr char cB[] = "B";
inline constexpr char cN[] = "N";
inline constexpr char cM[] = "M";
inline constexpr char Less_sign[] = "<";
inline constexpr char Greater_sign[] = ">";
inline constexpr char quest[] = "?";
inline constexpr char CTRL[] = "^";
inline constexpr char ALT[] = "ALT";
inline constexpr char WIN[] = "WIN";
inline constexpr char Space[] = "\xE2\x90\xA3";  // ␣
inline constexpr char arLft[] = "\xE2\x86\x90";  // ←
inline constexpr char arRgt[] = "\xE2\x86\x92";  // →
inline constexpr char arUp[] = "\xE2\x86\x91";   // ↑
inline constexpr char arDown[] = "\xE2\x86\x93"; // ↓

// ESC and F1 are one-entry dictionaries from label to code; keys_dict lists them in that order.
const std::map<std::string, int>& ESC();
const std::map<std::string, int>& F1();
const std::vector<std::map<std::string, int>>& keys_dict();

} // namespace tarnic
