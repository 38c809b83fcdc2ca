#pragma once

#include <QLabel>
#include <QWidget>
#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "sheets/reckon.h"

namespace ratanka::soak {

// The example of an open sheet's box, as a child reads it: from left to right, "?" for the box.
inline std::string readRow(const QWidget& sheet, const QWidget& box) {
  const int row = box.objectName().mid(4).toInt();
  std::vector<std::pair<int, std::string>> pieces{{box.x(), "?"}};
  const auto* const equals = sheet.findChild<QWidget*>("Line" + QString::number(2 * row - 1));
  if (equals == nullptr) return {};
  pieces.emplace_back(equals->x(), "=");
  for (const QLabel* const piece : sheet.findChildren<QLabel*>()) {
    const bool isCorrection = piece->objectName() == "Label" + QString::number(4 * row);
    if (piece->y() != box.y() || isCorrection || piece->text().isEmpty()) continue;
    pieces.emplace_back(piece->x(), piece->text().toStdString());
  }
  std::sort(pieces.begin(), pieces.end());
  std::string read;
  for (const auto& piece : pieces) read += piece.second;
  return read;
}

// What belongs into the box.
inline int resultOf(const QWidget& sheet, const QWidget& box) {
  return sheets::solve(readRow(sheet, box)).value_or(0);
}

}  // namespace ratanka::soak
