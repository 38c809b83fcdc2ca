#pragma once

#include "platform/ports/units.h"

class QWidget;

namespace ratanka {

// The screen that the program starts on.
class Desktop {
 public:
  virtual ~Desktop() = default;
  // Size of the display mode in the screen's own pixels, whatever the desktop's magnification.
  virtual PixelSize size() const = 0;
};

class PrimaryScreen : public Desktop {
 public:
  PixelSize size() const override;
};

// A length of a display mode in its own pixels, from its length in logical pixels, which the
// toolkit has rounded, and the magnification. The lengths of display modes are even, which undoes
// the rounding exactly for magnifications up to 2.
int modeLength(int logicalPixels, double magnification);

// The largest of our windows, a match, with the frame that a manager draws, in logical pixels.
inline constexpr PixelSize kLargestWindow{804, 612};

// With how many pixels for a logical one, at least 1 and at most as many as wanted, in eighths
// where it is less, the largest window fits an area of that many pixels.
double fittingMagnification(double wanted, PixelSize area);

// A program neither learns nor chooses there where its windows stand.
bool isWayland();

// Whether the desktop blends windows with what lies behind them.
bool canDrawTranslucentWindows();

// Puts a window in the middle of the primary screen: left is (screen width - window width) \ 2 and
// top likewise, in whole twips.
void centreOnScreen(QWidget& window);

// Lets the toolkit take this window for the active one, whatever the window system says; null:
// none.
void takeForActive(QWidget* window);

// Puts a window in the middle of the program's active one.
void centreOverActiveWindow(QWidget& window);

}  // namespace ratanka
