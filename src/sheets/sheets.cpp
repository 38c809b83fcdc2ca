#include "sheets/sheets.h"

#include "sheets/rules/chains.h"
#include "sheets/rules/products.h"
#include "sheets/rules/sums.h"
#include "shell/names.h"

namespace ratanka::sheets {
namespace {

SheetDesign Delenie() {
  return {.name = names::Delenie,
          .ShowStart = [](Random&) { return delenie::ShowStart(); },
          .nextSet = delenie::nextSet,
          .rows = plainRows(),
          .reward = {.game = names::frmStartUp, .tooltip = " Minifutbal ", .icon = "icon-ball"},
          .markPlace = {1920, 6720, 735, 615},
          .bookWidth = 735};
}

SheetDesign Malá() {
  return {.name = names::Malá,
          .ShowStart = malá::ShowStart,
          .rows = plainRows(),
          .reward = {.game = names::Bludisko,
                     .tooltip = " Bludisko ",
                     .icon = "icon-maze",
                     .left = 4920,
                     .top = 6600,
                     .back = {0, 192, 0}},
          .countersHaveTooltips = true,
          .markColours = &kColoursB,
          .bookWidth = 855};
}

SheetDesign Veľká() {
  return {
      .name = names::Veľká,
      .ShowStart = veľká::ShowStart,
      .rows = plainRows(),
      .reward = {.game = names::Klavír, .tooltip = " Klavír ", .icon = "icon-piano", .left = 4920},
      .markPlace = {2040, 6840, 615, 495}};
}

SheetDesign Násobilka() {
  return {.name = names::Násobilka,
          .ShowStart = násobilka::ShowStart,
          .rows = plainRows(),
          .signPoints = 9.75,
          .buttons = {"Command3", "Command4", "Command5"},
          .reward = {.game = names::frmPuzzle, .tooltip = " Pucle ", .icon = "icon-puzzle"},
          .wrongColour = {192, 0, 0}};
}

SheetDesign Hádanka() {
  return {.name = names::Hádanka,
          .ShowStart = hádanka::ShowStart,
          .percentage = Worksheet::Percentage::whole,
          .rows = hiddenOperandRows(),
          .bookTimer = "Timer2",
          .reward = {.game = names::Piškôrky, .tooltip = "Piškôrky", .icon = "icon-xo"},
          .countersHaveTooltips = true,
          .markColours = &kColoursB,
          .keepsCounting = true};
}

SheetDesign Veľkéčísla() {
  return {.name = names::Veľkéčísla,
          .ShowStart = veľkéčísla::ShowStart,
          .rows = oneLabelRows(1080, 2295),
          .reward = {.game = names::frmKockovka, .tooltip = " Tetris ", .icon = "icon-blocks"},
          .countersHaveTooltips = true,
          .shyButtons = {{"Command4", 1200, false}, {"Command5", 5760, true}},
          .leavingClosesGame = true};
}

SheetDesign Zátvorky() {
  SheetDesign design{
      .name = names::Zátvorky,
      .ShowStart = zátvorky::ShowStart,
      .rows = oneLabelRows(600, 2895),
      .reward = {.game = names::frmStartUp, .tooltip = " Minifutbal ", .icon = "icon-ball"},
      .countersHaveTooltips = true};
  design.rows.front().first.width = 2775;
  return design;
}

}  // namespace

std::vector<SheetDesign> allSheets() {
  return {Delenie(), Malá(), Veľká(), Násobilka(), Hádanka(), Veľkéčísla(), Zátvorky()};
}

}  // namespace ratanka::sheets
