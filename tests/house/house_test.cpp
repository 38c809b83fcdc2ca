#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <vector>

// The plan of the house, held against its sources: what a linker can't see.
namespace {

namespace fs = std::filesystem;

struct Source {
  std::string path;  // below src/
  std::string room;  // the first folder; empty for what stands at the top
  bool isRules = false;
  std::string code;  // without comments
  std::vector<std::string> includes;
};

std::string readCode(const fs::path& file) {
  std::ifstream stream(file);
  std::stringstream content;
  content << stream.rdbuf();
  return std::regex_replace(content.str(), std::regex("//[^\n]*"), "");
}

std::vector<Source> readHouse() {
  const fs::path top = fs::path(RATANKA_SOURCES) / "src";
  std::vector<Source> sources;
  for (const auto& entry : fs::recursive_directory_iterator(top)) {
    const fs::path& file = entry.path();
    if (file.extension() != ".h" && file.extension() != ".cpp") continue;
    Source source;
    source.path = fs::relative(file, top).string();
    const std::size_t slash = source.path.find('/');
    if (slash != std::string::npos) source.room = source.path.substr(0, slash);
    source.isRules = source.path.find("/rules/") != std::string::npos;
    source.code = readCode(file);
    static const std::regex kInclude("#include [<\"]([^>\"]+)[>\"]");
    for (auto match = std::sregex_iterator(source.code.begin(), source.code.end(), kInclude);
         match != std::sregex_iterator(); ++match) {
      source.includes.push_back((*match)[1]);
    }
    sources.push_back(source);
  }
  return sources;
}

const std::vector<Source>& house() {
  static const std::vector<Source> kSources = readHouse();
  return kSources;
}

bool isToolkit(const std::string& include) {
  return std::regex_search(include, std::regex("^Q[A-Z]|^Qt"));
}

// The room that an include of ours leads to; empty for a library.
std::string roomOf(const std::string& include) {
  const std::size_t slash = include.find('/');
  const std::string room = slash == std::string::npos ? "" : include.substr(0, slash);
  const bool isOurs = std::any_of(house().begin(), house().end(),
                                  [&](const Source& source) { return source.room == room; });
  return isOurs ? room : "";
}

// Whether a header of ours, with all that it includes, is free of the toolkit.
bool isPlain(const std::string& path, std::set<std::string>& seen) {
  if (!seen.insert(path).second) return true;
  const auto source = std::find_if(house().begin(), house().end(),
                                   [&](const Source& one) { return one.path == path; });
  if (source == house().end()) return true;
  return std::all_of(
      source->includes.begin(), source->includes.end(),
      [&](const std::string& include) { return !isToolkit(include) && isPlain(include, seen); });
}

TEST(House, HasItsRooms) {
  std::set<std::string> rooms;
  for (const Source& source : house()) rooms.insert(source.room);
  for (const char* room : {"platform", "shell", "sheets"}) EXPECT_TRUE(rooms.contains(room));
}

TEST(House, ArrowsRunDownward) {
  for (const Source& source : house()) {
    if (source.room.empty()) continue;  // main.cpp knows everybody
    for (const std::string& include : source.includes) {
      const std::string room = roomOf(include);
      if (room.empty() || room == source.room || room == "platform") continue;
      EXPECT_TRUE(room == "shell" && source.room != "platform")
          << source.path << " includes " << include;
    }
  }
}

// Whether what a header and its source include leads back to the two of them.
bool isInCircle(const std::string& unit, const std::string& from, std::set<std::string>& seen) {
  const auto unitOf = [](const std::string& path) { return path.substr(0, path.rfind('.')); };
  for (const Source& source : house()) {
    if (unitOf(source.path) != from) continue;
    for (const std::string& include : source.includes) {
      const std::string next = unitOf(include);
      if (next == from) continue;
      if (next == unit) return true;
      if (seen.insert(next).second && isInCircle(unit, next, seen)) return true;
    }
  }
  return false;
}

TEST(House, NoRulesRunInACircle) {
  for (const Source& source : house()) {
    if (!source.isRules || !source.path.ends_with(".h")) continue;
    const std::string unit = source.path.substr(0, source.path.rfind('.'));
    std::set<std::string> seen;
    EXPECT_FALSE(isInCircle(unit, unit, seen)) << unit << " is above itself";
  }
}

// The rooms of the platform, from the lowest; one of a floor knows those of the floors below alone.
TEST(House, ArrowsRunDownwardInThePlatformToo) {
  const std::map<std::string, int> kFloors{{"ports", 0},    {"plain", 1},    {"base", 1},
                                           {"keyboard", 1}, {"controls", 2}, {"settings", 2},
                                           {"sound", 2},    {"forms", 3}};
  const std::regex kRoom("^platform/([^/]+)/");
  for (const Source& source : house()) {
    std::smatch own;
    if (!std::regex_search(source.path, own, kRoom)) continue;
    for (const std::string& include : source.includes) {
      std::smatch other;
      if (!std::regex_search(include, other, kRoom) || other[1] == own[1]) continue;
      EXPECT_LT(kFloors.at(other[1]), kFloors.at(own[1])) << source.path << " includes " << include;
    }
  }
}

TEST(House, RulesKnowNoWindowNoClockAndNoChanceOfTheirOwn) {
  const std::regex kForbidden(
      "\\b(rand|srand|time|clock)\\s*\\(|"
      "\\b(random_device|mt19937\\w*|system_clock|steady_clock|this_thread|QTimer|Timer|Forms?)"
      "\\b");
  for (const Source& source : house()) {
    if (!source.isRules) continue;
    std::set<std::string> seen;
    EXPECT_TRUE(isPlain(source.path, seen)) << source.path << " sees the toolkit";
    std::smatch found;
    EXPECT_FALSE(std::regex_search(source.code, found, kForbidden))
        << source.path << " uses " << found.str();
    for (const std::string& include : source.includes) {
      const bool isForm = !roomOf(include).empty() && roomOf(include) != "platform" &&
                          include.find("/rules/") == std::string::npos;
      EXPECT_FALSE(isForm) << source.path << " includes " << include;
    }
  }
}

TEST(House, OnlyThePlatformAndSourcesOfFormsNameTheToolkit) {
  for (const Source& source : house()) {
    if (source.room == "platform" || source.path.ends_with(".cpp")) continue;
    for (const std::string& include : source.includes) {
      // A form's data may speak of texts.
      if (include == "QString") continue;
      EXPECT_FALSE(isToolkit(include)) << source.path << " includes " << include;
    }
  }
}

}  // namespace
