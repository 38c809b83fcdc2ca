#include "platform/plain/ani_container.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <initializer_list>
#include <string>

namespace ratanka {
namespace {

std::string u32(std::size_t value) {
  std::string bytes;
  for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(value >> shift & 0xff);
  return bytes;
}

std::string chunk(const std::string& tag, const std::string& data) {
  return tag + u32(data.size()) + data + std::string(data.size() % 2, '\0');
}

std::string header(std::size_t frames, std::size_t steps, std::size_t flags = 1) {
  return chunk("anih", u32(36) + u32(frames) + u32(steps) + std::string(20, '\0') + u32(flags));
}

std::string sequence(std::initializer_list<std::size_t> steps) {
  std::string data;
  for (const std::size_t step : steps) data += u32(step);
  return chunk("seq ", data);
}

std::string frames(std::initializer_list<std::string> icons) {
  std::string data = "fram";
  for (const std::string& icon : icons) data += chunk("icon", icon);
  return chunk("LIST", data);
}

std::string ani(const std::string& chunks) { return chunk("RIFF", "ACON" + chunks); }

// "A,BB|0 1": the frames' bytes, then the steps; "nothing" when the file is refused.
std::string parsed(const std::string& file) {
  const auto container = parseAni(file);
  if (!container) return "nothing";
  std::string told;
  for (const std::string_view frame : container->frames) {
    if (!told.empty()) told += ',';
    told += frame;
  }
  told += '|';
  for (const std::uint32_t step : container->steps) {
    if (told.back() != '|') told += ' ';
    told += std::to_string(step);
  }
  return told;
}

std::string repeated(const std::string& text, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += text;
  return all;
}

TEST(AniContainer, PlaysItsFramesInOrderOrAsTheSequenceSays) {
  EXPECT_EQ(parsed(ani(header(2, 2) + frames({"AA", "BB"}))), "AA,BB|0 1");
  EXPECT_EQ(parsed(ani(header(2, 1) + frames({"AA", "BB"}))), "AA,BB|0");
  EXPECT_EQ(parsed(ani(header(2, 4) + sequence({1, 0, 1, 1}) + frames({"AA", "BB"}))),
            "AA,BB|1 0 1 1");
  EXPECT_EQ(parsed(ani(frames({"AA", "BB"}) + sequence({1}) + header(2, 1))), "AA,BB|1");
}

TEST(AniContainer, SkipsWhatItDoesntNeed) {
  const std::string title = chunk("LIST", "INFO" + chunk("INAM", "odd"));
  const std::string odd = chunk("junk", "x");
  const std::string list = chunk(
      "LIST", "fram" + odd + chunk("icon", "A") + title + chunk("icon", "BBB") + chunk("LIST", ""));
  EXPECT_EQ(parsed(ani(odd + title + header(2, 2) + odd + list + chunk("rate", "12345678"))),
            "A,BBB|0 1");
  EXPECT_EQ(parsed(ani(header(1, 1) + frames({"A"})) + "behind the end"), "A|0");
}

TEST(AniContainer, ACutFileGivesNothing) {
  const std::string file =
      ani(header(2, 3) + sequence({0, 1, 0}) + frames({"AAA", "B"}) + chunk("junk", "odd"));
  ASSERT_EQ(parsed(file), "AAA,B|0 1 0");
  for (std::size_t length = 0; length < file.size(); ++length) {
    EXPECT_EQ(parsed(file.substr(0, length)), "nothing") << length;
  }
  // A last chunk of odd length without the byte that pads it.
  EXPECT_EQ(parsed(ani(header(1, 1) + frames({"A"}) + "junk" + u32(1) + "x")), "nothing");
}

// Each of the file's five sizes claims more than is there, by a little and by as much as it can.
TEST(AniContainer, ASizeThatLiesUpwardGivesNothing) {
  const std::string file = ani(header(1, 1) + sequence({0}) + frames({"AA"}));
  for (const std::string tag : {"RIFF", "anih", "seq ", "LIST", "icon"}) {
    const std::size_t place = file.find(tag) + 4;
    const auto size = static_cast<unsigned char>(file[place]);
    for (const std::size_t lie :
         {size + 1u, size + 2u, size + 256u, 0x7fffffffu, 0xfffffffeu, 0xffffffffu}) {
      std::string lying = file;
      EXPECT_EQ(parsed(lying.replace(place, 4, u32(lie))), "nothing") << tag << ' ' << lie;
    }
  }
}

TEST(AniContainer, PartsThatDisagreeGiveNothing) {
  struct Case {
    const char* why;
    std::string chunks;
  };
  const std::string one = frames({"AA"});
  const std::string twoHeaders = header(1, 1) + header(1, 1);
  const std::string twoSequences = sequence({0}) + sequence({0});
  const Case cases[] = {
      {"nothing in it", ""},
      {"no frames", header(1, 1)},
      {"no header", one},
      {"a header cut short", chunk("anih", u32(36)) + one},
      {"a frame missing", header(2, 2) + one},
      {"a frame too many", header(1, 1) + frames({"AA", "BB"})},
      {"an empty list", header(0, 0) + frames({})},
      {"no steps", header(1, 0) + one},
      {"a step without a frame", header(1, 2) + one},
      {"a sequence with such a step", header(1, 2) + sequence({0, 1}) + one},
      {"a longer sequence than counted", header(1, 1) + sequence({0, 0}) + one},
      {"a shorter one", header(1, 2) + sequence({0}) + one},
      {"a count that wraps round to it", header(1, 0x40000001) + sequence({0}) + one},
      {"a sequence of odd bytes", header(1, 1) + chunk("seq ", "abc") + one},
      {"two headers", twoHeaders + one},
      {"two lists of frames", header(1, 1) + one + one},
      {"two sequences", header(1, 1) + twoSequences + one},
      {"raw pixels", header(1, 1, 0) + one},
  };
  for (const Case& bad : cases) EXPECT_EQ(parsed(ani(bad.chunks)), "nothing") << bad.why;
  EXPECT_EQ(parsed(chunk("RIFX", "ACON" + header(1, 1) + one)), "nothing");
  EXPECT_EQ(parsed(chunk("RIFF", "WAVE" + header(1, 1) + one)), "nothing");
}

TEST(AniContainer, HasLimits) {
  const auto withFrames = [](int count) {
    return ani(header(static_cast<std::size_t>(count), 1) +
               chunk("LIST", "fram" + repeated(chunk("icon", ""), count)));
  };
  EXPECT_NE(parsed(withFrames(256)), "nothing");
  EXPECT_EQ(parsed(withFrames(257)), "nothing");

  const auto withSteps = [](int count) {
    return ani(header(1, static_cast<std::size_t>(count)) + chunk("seq ", repeated(u32(0), count)) +
               frames({"A"}));
  };
  EXPECT_NE(parsed(withSteps(1024)), "nothing");
  EXPECT_EQ(parsed(withSteps(1025)), "nothing");

  std::string large = ani(header(1, 1) + frames({"A"}));
  large.resize(kMaxAniBytes);
  EXPECT_EQ(parsed(large), "A|0");
  EXPECT_EQ(parsed(large + '\0'), "nothing");
}

}  // namespace
}  // namespace ratanka
