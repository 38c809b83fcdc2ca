#pragma once

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace ratanka {

// A home of its own for the settings of a test, and for what else comes to a file.
class Home {
 public:
  Home()
      : folder_(std::filesystem::temp_directory_path() /
                ("ratanka-test-" + std::to_string(getpid()))) {
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
    std::filesystem::permissions(folder_, std::filesystem::perms::owner_all);
  }
  ~Home() { std::filesystem::remove_all(folder_); }
  Home(const Home&) = delete;
  Home& operator=(const Home&) = delete;

  std::string variable() const { return "XDG_CONFIG_HOME=" + folder_.string(); }
  std::string recording() const { return path("recording"); }
  std::string path(const std::string& file) const { return (folder_ / file).string(); }
  std::string content(const std::string& file) const {
    std::ifstream there(path(file), std::ios::binary);
    return {std::istreambuf_iterator<char>(there), {}};
  }
  void put(const std::string& file, const std::string& content) const {
    std::filesystem::create_directories(std::filesystem::path(path(file)).parent_path());
    std::ofstream(path(file), std::ios::binary) << content;
  }
  // The program's settings.
  std::string read(const std::string& file) const { return content("ratanka/" + file); }

 private:
  std::filesystem::path folder_;
};

}  // namespace ratanka
