// Linked into every test: each starts in the same small world, whatever machine, desktop or
// language it is called from, and so does every program that it starts.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

// NOLINTNEXTLINE(readability-redundant-declaration): the name is the system's
extern char** environ;

// NOLINTBEGIN(bugprone-reserved-identifier): known_leaks.cpp
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_options();
// NOLINTEND(bugprone-reserved-identifier)

namespace ratanka {
namespace {

// Where programs and room for files are, and what is said to the tests and to those who watch them.
bool isKept(std::string_view variable) {
  const std::string_view name = variable.substr(0, variable.find('='));
  return name == "PATH" || name == "TMPDIR" || name.ends_with("SAN_OPTIONS") ||
         name.starts_with("GTEST_") || name.starts_with("RATANKA_");
}

class SmallWorld {
 public:
  SmallWorld() {
    std::vector<std::string> kept;
    for (char** variable = environ; *variable != nullptr; ++variable) {
      if (isKept(*variable)) kept.emplace_back(*variable);
    }
    clearenv();
    for (const std::string& variable : kept) {
      const std::size_t equals = variable.find('=');
      setenv(variable.substr(0, equals).c_str(), variable.substr(equals + 1).c_str(), 1);
    }
    setenv("LC_ALL", "C.UTF-8", 1);
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv("FONTCONFIG_FILE", RATANKA_FONTS, 1);
    // No bus, and none that the first question for one would start; no sound card.
    setenv("DBUS_SESSION_BUS_ADDRESS", "disabled:", 1);
    setenv("ALSA_CONFIG_PATH", "/dev/null", 1);
    home_ = std::filesystem::temp_directory_path().string() + "/ratanka-test-XXXXXX";
    if (mkdtemp(home_.data()) == nullptr) std::abort();
    const std::string suppressions = home_ + "/leaks";
    std::ofstream(suppressions) << __lsan_default_suppressions();
    const std::string options = __lsan_default_options();
    setenv("LSAN_OPTIONS", (options + ":suppressions=" + suppressions).c_str(), 1);
    for (const char* folder : {"HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"}) {
      setenv(folder, home_.c_str(), 1);
    }
  }
  ~SmallWorld() {
    std::error_code ignored;
    std::filesystem::remove_all(home_, ignored);
  }
  SmallWorld(const SmallWorld&) = delete;
  SmallWorld& operator=(const SmallWorld&) = delete;

 private:
  std::string home_;
};

const SmallWorld kWorld;

}  // namespace
}  // namespace ratanka
