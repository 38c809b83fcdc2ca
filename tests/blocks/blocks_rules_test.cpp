#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "blocks/fake_stage.h"
#include "blocks/rules/full_rows.h"
#include "blocks/rules/options.h"
#include "blocks/rules/tiles.h"

namespace ratanka::blocks {
namespace {

TEST(FullRowsTest, OfAnyWellTheOtherRowsRemainInTheirOrder) {
  std::mt19937 random(6);
  for (int round = 0; round < 2000; ++round) {
    Well well;
    std::vector<Well::Row> rest;
    for (int row = 1; row <= kRows; ++row) {
      for (int& cell : well.row(row)) cell = static_cast<int>(random() % 7) + 1;
      if (random() % 3 == 0) continue;  // a full one
      well.row(row)[random() % kColumns] = 0;
      rest.push_back(well.row(row));
    }
    const bool isTopFull = std::ranges::count(well.row(1), 0) == 0;
    const Well::Row top = isTopFull ? Well::Row{} : well.row(1);
    FullRows full(well);
    int gaps = 0;
    for (; full.isGapLeft() && gaps < 99; ++gaps) full.closeLowestGap();
    ASSERT_EQ(gaps, rest.size() == kRows - 1 && isTopFull ? 0 : full.count());  // alone it is none
    ASSERT_EQ(full.count(), kRows - static_cast<int>(rest.size()));
    rest.insert(rest.begin(), static_cast<std::size_t>(full.count()), top);
    for (int row = 1; row <= kRows; ++row)
      ASSERT_EQ(well.row(row), rest[static_cast<std::size_t>(row - 1)]) << round << ' ' << row;
  }
}

TEST(FullRowsTest, EarnByTheLevelAndUpToFour) {
  for (const int Level : {0, 3, 9, 12}) {
    int rows = 0;
    for (const int single : {0, 50, 150, 500, 1000, 0, 0})
      EXPECT_EQ(points(rows++, Level), single * (Level + 1));
    EXPECT_EQ(points(kRows, Level), 0);
  }
  EXPECT_EQ(points(4, 5'000'000), 5'000'001'000);
}

TEST(OptionsTest, ALevelIsANumberFrom1To9) {
  for (const char* text : {"1", "9", "5", "2.5", "2,5", " 3 ", "+4", "1.0", "9,0", "8.", "1e0"})
    EXPECT_FALSE(refusal(text)) << text;
  const auto isRefusedWith = [](const char* text, const char* words) {
    const auto box = refusal(text);
    return box && box->title == "Rátanka - hra TETRIS" && box->text == words &&
           box->buttons == MessageBox::Buttons::ok;
  };
  for (const char* text : {"", " ", "abc", "5a", "inf", "nan", "1,2,3", "--1", "+-5", "5 5", "0x5",
                           "1e999", "päť", ".", "+", "e"})
    EXPECT_TRUE(isRefusedWith(text, "V poli LEVEL prosím zadajte číslo medzi 1 a 9")) << text;
  for (const char* text : {"0", "10", "-5", "0.99", "9,01", "1e3"})
    EXPECT_TRUE(isRefusedWith(text, " Číslo musí mať hodnotu medzi 1 a 9")) << text;
}

TEST(OptionsTest, OkTakesWhatIsGoodAndKeepsTheLevelOverABadText) {
  const auto written = [](const Options& options) {
    std::string text;
    for (const IniValue& setting : settings(options))
      text += std::string(setting.key) + '=' + setting.value + '\n';
    return text;
  };
  Options options;
  EXPECT_EQ(written(options), "Starting Level=\nFill Lines=\nPlay Sounds=\nHide Splash=\n");
  EXPECT_EQ(options.startingLevel(), 0);
  accept(options, "", false, true);
  EXPECT_EQ(written(options),
            "Starting Level=\nFill Lines=False\nPlay Sounds=True\nHide Splash=\n");
  accept(options, " 2,5", true, false);
  accept(options, "10", true, false);
  EXPECT_EQ(written(options),
            "Starting Level=2.5\nFill Lines=True\nPlay Sounds=False\nHide Splash=\n");
  EXPECT_FALSE(refusal(options.startingLevelText()));
  accept(options, "3,0", true, false);
  EXPECT_EQ(options.startingLevelText(), "3");
}

// What a tile's strokes leave on its pixels.
using Picture = std::array<std::array<Rgb, kTileSize>, kTileSize>;

Picture painted(int kind) {
  Picture picture{};
  for (const Stroke& stroke : tile(kind)) {
    for (int y = stroke.y; y < stroke.y + stroke.height; ++y) {
      for (int x = stroke.x; x < stroke.x + stroke.width; ++x)
        picture.at(static_cast<std::size_t>(y)).at(static_cast<std::size_t>(x)) = stroke.colour;
    }
  }
  return picture;
}

int brightness(const Rgb& colour) { return colour.red + colour.green + colour.blue; }

int count(const Picture& picture, const Rgb& colour) {
  int pixels = 0;
  for (const auto& row : picture) pixels += static_cast<int>(std::ranges::count(row, colour));
  return pixels;
}

// A black rim goes around a bevel that is lit from the upper left; in the middle lies a figure, for
// the bar rings and for the others a line, raised or sunken.
TEST(TilesTest, AreBevelledWithAFigureInTheMiddle) {
  EXPECT_EQ(count(painted(0), {192, 192, 192}), 256);
  // Pixels of the line; that of one kind has the other's shape the other way round.
  constexpr int kLines[] = {0, 0, 20, 24, 28, 24, 20, 28};
  std::set<std::array<int, 3>> mains;
  for (int kind = 1; kind <= kKinds; ++kind) {
    SCOPED_TRACE(kind);
    const Picture picture = painted(kind);
    const Rgb light = picture[1][1], dark = picture[14][14], main = picture[2][2];
    mains.insert({main.red, main.green, main.blue});
    EXPECT_TRUE(brightness(light) > brightness(main) && brightness(main) > brightness(dark));
    EXPECT_EQ(count(picture, {0, 0, 0}), 60);
    for (std::size_t i = 0; i < 16; ++i) {
      for (const Rgb& rim : {picture[0][i], picture[15][i], picture[i][0], picture[i][15]})
        EXPECT_EQ(rim, Rgb{});
      if (i < 2 || i > 13) continue;
      for (const Rgb& edge : {picture[1][i], picture[i][1]}) EXPECT_EQ(edge, light);
      for (const Rgb& edge : {picture[14][i], picture[i][14]}) EXPECT_EQ(edge, dark);
      if (kind == 1) {  // concentric squares
        const std::size_t ring = std::min(i, 15 - i);
        EXPECT_EQ(count(picture, picture[i][i]), 4 * (16 - 2 * static_cast<int>(ring)) - 4);
        continue;
      }
      for (std::size_t j = 2; j < 14; ++j) {
        const bool isLine = picture[i][j] != main;
        for (const Rgb& mirrored : {picture[15 - i][j], picture[i][15 - j], picture[j][i]})
          EXPECT_EQ(mirrored != main, isLine) << i << ' ' << j;
        if (!isLine || i + j == 15) continue;
        EXPECT_EQ(picture[i][j], (i + j < 15) == (kind < 5) ? light : dark) << i << ' ' << j;
      }
    }
    EXPECT_EQ(count(picture, main), kind == 1 ? 44 : 144 - kLines[kind]);
    EXPECT_TRUE(kind == 1 || picture[7][7] == main);
  }
  EXPECT_EQ(mains.size(), 6u);  // two kinds are red
}

TEST(TilesTest, PreviewsShowThePieceInTheMiddle) {
  const auto places = [](int kind) {
    std::string text;
    for (const ScreenPoint& tile : previewTiles(kind))
      text += std::to_string(tile.x) + ',' + std::to_string(tile.y) + ' ';
    return text;
  };
  EXPECT_EQ(places(1), "16,24 32,24 48,24 64,24 ");
  EXPECT_EQ(places(3), "56,16 24,32 40,32 56,32 ");
  EXPECT_EQ(places(7), "32,16 48,16 32,32 48,32 ");
}

}  // namespace
}  // namespace ratanka::blocks
