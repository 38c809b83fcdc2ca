#include "desktop/weston.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "desktop/processes.h"

namespace ratanka {
namespace {

constexpr auto kSocket = "ratanka";

// No panel, nothing that moves by itself, no keyboard on the screen under a text box.
constexpr auto kSettings = R"(
[core]
xwayland=false
[input-method]
path=
[keyboard]
keymap_layout=us
[shell]
panel-position=none
locking=false
animation=none
close-animation=none
startup-animation=none
focus-animation=none
)";

std::string settings(const Rgb& background) {
  std::array<char, 16> colour{};
  std::snprintf(colour.data(), colour.size(), "%02x%02x%02x", background.red, background.green,
                background.blue);
  return std::string(kSettings) + "background-color=0xff" + colour.data() + '\n';
}

struct Area {
  ScreenPoint from, to;
};

// Of the line after a view's own: "position: (1, 2) -> (3, 4)".
Area areaOf(std::istream& scene) {
  std::string line;
  std::getline(scene, line);
  Area area;
  // NOLINTNEXTLINE(cert-err34-c): the compositor's own figures
  EXPECT_EQ(std::sscanf(line.c_str(), " position: (%d, %d) -> (%d, %d)", &area.from.x, &area.from.y,
                        &area.to.x, &area.to.y),
            4)
      << line;
  return area;
}

}  // namespace

Weston::Weston(const std::string& displayName, PixelSize size, const Rgb& background)
    : folder_(testing::TempDir() + "/westonXXXXXX") {
  if (mkdtemp(folder_.data()) == nullptr) {
    ADD_FAILURE() << "no folder";
    return;
  }
  std::ofstream(folder_ + "/weston.ini") << settings(background);
  compositor_ = start(
      {.words = {"weston", "--backend=x11-backend.so", "--use-pixman", "--idle-time=0", "--debug",
                 "--width=" + std::to_string(size.width), "--height=" + std::to_string(size.height),
                 std::string("--socket=") + kSocket, "--config=" + folder_ + "/weston.ini"},
       .variables = {"XDG_RUNTIME_DIR=" + folder_, "DISPLAY=" + displayName},
       .says = folder_ + "/log"});
  if (waitFor([&] { return takePointerToCorner(displayName, size); })) return;
  std::stringstream log;
  log << std::ifstream(folder_ + "/log").rdbuf();
  ADD_FAILURE() << "no compositor\n" << log.str();
}

Weston::~Weston() {
  end(compositor_);
  std::filesystem::remove_all(folder_);
}

std::vector<std::string> Weston::variables() const {
  return {"XDG_RUNTIME_DIR=" + folder_, std::string("WAYLAND_DISPLAY=") + kSocket,
          "DISPLAY=", "QT_QPA_PLATFORM=wayland"};
}

std::string Weston::scene() const {
  return answerOf("XDG_RUNTIME_DIR=" + folder_ + " WAYLAND_DISPLAY=" + kSocket +
                  " weston-debug scene-graph 2>/dev/null");
}

// The compositor moves its pointer by as much as the display's moves, and may not know where that
// stood at first: in a corner the two come together. Whether they have.
bool Weston::takePointerToCorner(const std::string& displayName, PixelSize size) const {
  const std::string command = "DISPLAY=" + displayName + " xdotool mousemove " +
                              std::to_string(size.width - 1) + ' ' +
                              std::to_string(size.height - 1) + " mousemove 0 0 2>&1";
  answerOf(command);
  std::istringstream scene(this->scene());
  for (std::string line; std::getline(scene, line);) {
    if (line.find("role wl_pointer-cursor") == std::string::npos) continue;
    constexpr int kHotSpot = 10;  // within the picture of the pointer
    const ScreenPoint corner = areaOf(scene).from;
    return corner.x > -kHotSpot && corner.x <= 0 && corner.y > -kHotSpot && corner.y <= 0;
  }
  return false;
}

void Weston::waitForPointerOf(pid_t program) const {
  const std::string pointer = "role wl_pointer-cursor, PID " + std::to_string(program) + ',';
  EXPECT_TRUE(waitFor([&] { return scene().find(pointer) != std::string::npos; }));
}

std::vector<Weston::Window> Weston::windows() const {
  const std::string before = "top-level window '";
  std::vector<Window> windows;
  std::istringstream scene(this->scene());
  for (std::string line; std::getline(scene, line);) {
    const std::size_t found = line.find(before);
    if (found == std::string::npos) continue;
    const std::size_t begin = found + before.size();
    const std::string title = line.substr(begin, line.find("' of ", begin) - begin);
    const auto [from, to] = areaOf(scene);
    windows.push_back({title, from, {to.x - from.x, to.y - from.y}});
  }
  return windows;
}

}  // namespace ratanka
