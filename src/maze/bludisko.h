#pragma once

#include <optional>
#include <string>

#include "maze/rules/maze_file.h"
#include "maze/rules/walk.h"
#include "platform/forms/form.h"
#include "platform/ports/clock.h"
#include "platform/ports/dialogs.h"

class QPainter;
class QRect;

namespace ratanka {
class Canvas;
}

namespace ratanka::maze {

// The maze: the child walks a figure with the arrow keys from the start to the finish. The window
// takes the size of the maze.
class Bludisko : public Form {
 public:
  // `file` is the full path of the maze's file, read anew for each round.
  Bludisko(Forms& forms, Dialogs& dialogs, const Clock& clock, std::string file);

 protected:
  void build() override;
  void Form_Load() override;
  void Form_KeyDown(int keyCode) override;

 private:
  void LoadMaze();
  void paint(QPainter& painter, const QRect& exposed) const;
  // Tells the time of the round, and plays again or goes.
  void finish();

  Dialogs& dialogs_;
  const Clock& clock_;
  std::string file_;

  std::optional<Walk> walk_;  // nothing where the file is no maze
  double StartTime = 0;       // seconds since midnight

  Canvas* canvas_ = nullptr;
};

}  // namespace ratanka::maze
