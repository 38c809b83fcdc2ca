#include "platform/controls/fonts.h"

#include <QFontDatabase>
#include <QStringList>
#include <algorithm>
#include <cmath>
#include <string_view>

#include "platform/ports/units.h"

namespace ratanka {
namespace {

constexpr double kTwipsPerPoint = 20;

// The first that the machine has. The toolkit would search for each family of a list at the first
// text; it gets the one that is there.
QString present(const QStringList& families) {
  const auto found = std::find_if(families.begin(), families.end(), [](const QString& family) {
    return QFontDatabase::hasFamily(family);
  });
  return found == families.end() ? families.back() : *found;
}

QString familyFor(std::string_view family) {
  if (family == "Courier New") {
    static const QString kMono = present({"Courier New", "Liberation Mono", "DejaVu Sans Mono"});
    return kMono;
  }
  if (family == "Comic Sans MS") {
    static const QString kComic = present({"Comic Sans MS", "Comic Neue", "Liberation Sans"});
    return kComic;
  }
  static const QString kSans =
      present({"MS Sans Serif", "Liberation Sans", "Arimo", "DejaVu Sans"});
  return kSans;
}

}  // namespace

QFont font(const Type& type) {
  QFont result(familyFor(type.family));
  result.setPixelSize(static_cast<int>(std::lround(type.points * kTwipsPerPoint / kTwipsPerPixel)));
  result.setBold(type.bold);
  result.setItalic(type.italic);
  return result;
}

}  // namespace ratanka
