#include "piano/rules/keys.h"

#include <algorithm>

namespace ratanka::piano {

int KeyIndex(int KeyCode) {
  const auto found = std::ranges::find(kKeyboard, KeyCode, &Key::keyCode);
  return found == kKeyboard.end() ? -1 : static_cast<int>(found - kKeyboard.begin());
}

}  // namespace ratanka::piano
