#include "platform/forms/free_place.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace ratanka {
namespace {

// About what window managers draw, in logical pixels.
constexpr int kFrameSides = 10;
constexpr int kFrameHeight = 34;

std::int64_t hidden(const QRect& window, const std::vector<Kept>& kept) {
  std::int64_t sum = 0;
  for (const Kept& each : kept) {
    const QRect both = window & each.area;
    sum += std::int64_t{both.width()} * both.height() * each.weight;
  }
  return sum;
}

}  // namespace

QPoint freePlace(const QSize& size, const QRect& screen, const std::vector<Kept>& kept,
                 const QPoint& wish) {
  const QPoint last(std::max(screen.left(), screen.right() + 1 - size.width()),
                    std::max(screen.top(), screen.bottom() + 1 - size.height()));
  // A best place has an edge at an edge: of the screen, of the wish, or of what is to be seen.
  std::vector<int> lefts{screen.left(), last.x(), wish.x()};
  std::vector<int> tops{screen.top(), last.y(), wish.y()};
  for (const Kept& each : kept) {
    lefts.insert(lefts.end(), {each.area.left() - size.width(), each.area.right() + 1});
    tops.insert(tops.end(), {each.area.top() - size.height(), each.area.bottom() + 1});
  }
  std::pair<std::int64_t, int> least{-1, 0};
  QPoint best;
  for (const int left : lefts) {
    for (const int top : tops) {
      const QPoint place(std::clamp(left, screen.left(), last.x()),
                         std::clamp(top, screen.top(), last.y()));
      const std::pair cost{hidden({place, size}, kept), (place - wish).manhattanLength()};
      if (least.first >= 0 && cost >= least) continue;
      least = cost;
      best = place;
    }
  }
  return best;
}

QSize withFrame(const QSize& client) { return client + QSize(kFrameSides, kFrameHeight); }

}  // namespace ratanka
