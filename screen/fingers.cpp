#include "screen/fingers.h"

namespace ratanka::screen {
namespace {

using namespace std::chrono_literals;

constexpr auto kTouch = 30ms;

}  // namespace

void Fingers::strike(Key key) {
  robot_.press(key);
  rest(kTouch);
  robot_.release(key);
}

void Fingers::strikeWithAlt(Key key) {
  constexpr auto kAlt = static_cast<Key>(0xffe9);
  robot_.press(kAlt);
  strike(key);
  robot_.release(kAlt);
}

void Fingers::type(const std::string& digits) {
  for (const char digit : digits) strike(digitKey(digit));
}

void Fingers::click(Point point, int button) {
  robot_.movePointer(point);
  robot_.pressButton(button);
  rest(kTouch);
  robot_.releaseButton(button);
}

void Fingers::drag(Point from, Point to, int button) {
  constexpr int kSteps = 4;
  robot_.movePointer(from);
  rest(kTouch);
  robot_.pressButton(button);
  for (int step = 1; step <= kSteps; ++step) {
    rest(kTouch);
    robot_.movePointer(
        {from.x + (to.x - from.x) * step / kSteps, from.y + (to.y - from.y) * step / kSteps});
  }
  rest(kTouch);
  robot_.releaseButton(button);
}

void Fingers::hold(Key key, std::chrono::milliseconds time) {
  constexpr std::size_t kFingers = 5;
  if (down_.size() >= kFingers) releaseAll();
  robot_.press(key);
  down_[key] = std::chrono::steady_clock::now() + time;
}

void Fingers::releaseDue() {
  const Time now = std::chrono::steady_clock::now();
  std::erase_if(down_, [&](const auto& key) {
    if (key.second <= now) robot_.release(key.first);
    return key.second <= now;
  });
}

void Fingers::releaseAll() {
  for (const auto& key : down_) robot_.release(key.first);
  down_.clear();
}

}  // namespace ratanka::screen
