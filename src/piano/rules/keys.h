#pragma once

#include <array>
#include <string_view>

// The keyboard: key(0) to key(16), from the lowest note up, a half-tone each.
namespace ratanka::piano {

inline constexpr int kKeys = 17;

struct Key {
  bool isBlack = false;
  std::string_view caption;  // the sign on the computer's key that plays it
  int keyCode = 0;           // the system's
  int left = 0;              // in twips
};

// Black keys stand over the gaps of the white ones, as on a piano from C to the E above the next C.
inline constexpr std::array<Key, kKeys> kKeyboard{{{false, "Z", 90, 360},
                                                   {true, "S", 83, 720},
                                                   {false, "X", 88, 840},
                                                   {true, "D", 68, 1200},
                                                   {false, "C", 67, 1320},
                                                   {false, "V", 86, 1800},
                                                   {true, "G", 71, 2160},
                                                   {false, "B", 66, 2280},
                                                   {true, "H", 72, 2640},
                                                   {false, "N", 78, 2760},
                                                   {true, "J", 74, 3120},
                                                   {false, "M", 77, 3240},
                                                   {false, ",", 188, 3720},
                                                   {true, "L", 76, 4080},
                                                   {false, ".", 190, 4200},
                                                   {true, ";", 186, 4560},
                                                   {false, "/", 191, 4680}}};

// The key that a key code plays, -1 for none.
int KeyIndex(int KeyCode);

}  // namespace ratanka::piano
