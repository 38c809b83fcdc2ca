#pragma once

#include <QString>

#include "platform/ports/colours.h"
#include "platform/ports/form_name.h"
#include "platform/ports/units.h"

namespace ratanka {

// Where a fresh window comes up, as far as the window system lets a program choose.
enum class Opening {
  byDesktop,
  besideControls,  // where it hides least of the boxes and buttons of the form before it
  unhidden,  // by the desktop, but not beneath the form before it where there is a better place
};

// A form's window as designed.
struct FormDesign {
  FormName name;
  QString caption{};
  int width = 0;  // of the client area, in twips
  int height = 0;
  bool hasBorder = true;
  Rgb back = kWhite;
  QString picture{};        // drawn in the upper left corner; none where empty
  PixelSize pictureSize{};  // in logical pixels
  bool takesKeyboard = true;
  bool hasMenu = false;  // a bar of menus above the client area
  bool canMinimise = true;
  bool isDialog = false;  // shown modally: stays before the others and can't be put away
  Opening opening = Opening::byDesktop;
};

}  // namespace ratanka
