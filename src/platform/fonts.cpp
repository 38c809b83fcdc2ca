#include "platform/fonts.h"

#include <QStringList>
#include <cmath>
#include <string_view>

#include "platform/units.h"

namespace ratanka {
namespace {

constexpr double kTwipsPerPoint = 20;

QStringList families(std::string_view family) {
  if (family == "Courier New") return {"Courier New", "Liberation Mono", "DejaVu Sans Mono"};
  if (family == "Comic Sans MS") return {"Comic Sans MS", "Comic Neue", "Liberation Sans"};
  return {"MS Sans Serif", "Liberation Sans", "Arimo", "DejaVu Sans"};
}

}  // namespace

QFont font(const Type& type) {
  QFont result(families(type.family));
  result.setPixelSize(static_cast<int>(std::lround(type.points * kTwipsPerPoint / kTwipsPerPixel)));
  result.setBold(type.bold);
  result.setItalic(type.italic);
  return result;
}

}  // namespace ratanka
