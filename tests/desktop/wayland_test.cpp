#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace ratanka {
namespace {

// Starts a compositor without a screen and the program on it for two seconds.
constexpr auto kScript = R"(
  export XDG_RUNTIME_DIR="$1" QT_QPA_PLATFORM=wayland WAYLAND_DISPLAY=ratanka
  weston --backend=headless-backend.so --socket=ratanka --width=1024 --height=768 \
    >"$1/weston.log" 2>&1 &
  weston=$!
  for _ in $(seq 100); do [ -S "$1/ratanka" ] && break; sleep 0.1; done
  [ -S "$1/ratanka" ] || { cat "$1/weston.log"; exit 3; }
  timeout 2 "$2" 2>"$1/said"
  status=$?
  kill $weston
  wait
  exit $status
)";

TEST(Wayland, TheStartSaysNothing) {
  std::string folder = testing::TempDir() + "/waylandXXXXXX";
  ASSERT_NE(mkdtemp(folder.data()), nullptr);
  std::ofstream(folder + "/script") << kScript;
  const std::string command = "bash " + folder + "/script " + folder + " " RATANKA_PROGRAM;
  const int status = std::system(command.c_str());  // NOLINT(cert-env33-c): our own words
  constexpr int kStillRan = 124;                    // what timeout says of a program that it ended
  EXPECT_EQ(WEXITSTATUS(status), kStillRan);
  std::stringstream said;
  said << std::ifstream(folder + "/said").rdbuf();
  EXPECT_EQ(said.str(), "");
  std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace ratanka
