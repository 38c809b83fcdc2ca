#pragma once

#include "sheets/sheet_design.h"

// The exercise sheets of the program, a row of data each.
namespace ratanka::sheets {

std::vector<SheetDesign> allSheets();

}  // namespace ratanka::sheets
