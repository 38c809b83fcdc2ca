#include "sheets/sheets.h"

#include "sheets/rules/mala.h"
#include "shell/names.h"

namespace ratanka::sheets {

SheetDesign Malá() {
  return {.name = names::Malá,
          .ShowStart = malá::ShowStart,
          .percento = &Premenné::PercentoMalá,
          .rows = plainRows(),
          .reward = {.game = names::Bludisko,
                     .tooltip = " Bludisko ",
                     .icon = "icon-maze",
                     .left = 4920,
                     .top = 6600,
                     .back = {0, 192, 0}},
          .countersHaveTooltips = true,
          .markPlace = {1920, 6840, 615, 495},
          .markTooltip = " Priebežné hodnotenie  ",
          .markColours = &kColoursB,
          .bookWidth = 855};
}

}  // namespace ratanka::sheets
