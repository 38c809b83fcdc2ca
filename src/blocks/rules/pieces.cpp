#include "blocks/rules/pieces.h"

#include <cstddef>

namespace ratanka::blocks {
namespace {

struct Kind {
  int orientations;
  std::array<Cells, 4> cells;  // from the pivot
};

// clang-format off
constexpr Kind kKindTable[] = {
    {2, {{{{{-1,  0}, { 0,  0}, { 1,  0}, { 2,  0}}},
          {{{ 0, -1}, { 0,  0}, { 0,  1}, { 0,  2}}}}}},
    {4, {{{{{-1, -1}, {-1,  0}, { 0,  0}, { 1,  0}}},
          {{{ 0, -1}, { 1, -1}, { 0,  0}, { 0,  1}}},
          {{{-1,  0}, { 0,  0}, { 1,  0}, { 1,  1}}},
          {{{ 0, -1}, { 0,  0}, {-1,  1}, { 0,  1}}}}}},
    {4, {{{{{ 1, -1}, {-1,  0}, { 0,  0}, { 1,  0}}},
          {{{ 0, -1}, { 0,  0}, { 0,  1}, { 1,  1}}},
          {{{-1,  0}, { 0,  0}, { 1,  0}, {-1,  1}}},
          {{{-1, -1}, { 0, -1}, { 0,  0}, { 0,  1}}}}}},
    {2, {{{{{-1, -1}, { 0, -1}, { 0,  0}, { 1,  0}}},
          {{{ 1, -1}, { 0,  0}, { 1,  0}, { 0,  1}}}}}},
    {2, {{{{{ 0, -1}, { 1, -1}, {-1,  0}, { 0,  0}}},
          {{{ 0, -1}, { 0,  0}, { 1,  0}, { 1,  1}}}}}},
    {4, {{{{{ 0, -1}, {-1,  0}, { 0,  0}, { 1,  0}}},
          {{{ 0, -1}, { 0,  0}, { 1,  0}, { 0,  1}}},
          {{{-1,  0}, { 0,  0}, { 1,  0}, { 0,  1}}},
          {{{ 0, -1}, {-1,  0}, { 0,  0}, { 0,  1}}}}}},
    {1, {{{{{ 0, -1}, { 1, -1}, { 0,  0}, { 1,  0}}}}}},
};
// clang-format on

const Kind& kindOf(int kind) { return kKindTable[kind - 1]; }

}  // namespace

int orientations(int kind) { return kindOf(kind).orientations; }

int nextRotation(int kind, int Rotation) { return Rotation % orientations(kind) + 1; }

Cells cellsOf(int kind, int Rotation, int X, int Y) {
  Cells cells = kindOf(kind).cells[Rotation - 1];
  for (Cell& cell : cells) {
    cell.column += X;
    cell.row += Y;
  }
  return cells;
}

}  // namespace ratanka::blocks
