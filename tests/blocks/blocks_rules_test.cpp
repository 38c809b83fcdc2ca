#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>
#include <vector>

#include "blocks/fake_stage.h"
#include "blocks/rules/full_rows.h"
#include "blocks/rules/options.h"
#include "blocks/rules/tiles.h"

namespace ratanka::blocks {
namespace {

// The reverse of picture(): the lowest rows of a well.
Well lay(const std::vector<std::string>& rows) {
  Well well;
  int row = kRows - static_cast<int>(rows.size());
  for (const std::string& text : rows) {
    ++row;
    for (int column = 1; column <= kColumns; ++column) {
      const char sign = text.at(static_cast<std::size_t>(column - 1));
      well.at(column, row) = sign == '.' ? 0 : sign - '0';
    }
  }
  return well;
}

std::vector<std::string> closing(Well& well, FullRows& full) {
  std::vector<std::string> pictures;
  while (full.isGapLeft() && pictures.size() < 99) {
    full.closeLowestGap();
    pictures.push_back(picture(well));
  }
  return pictures;
}

TEST(FullRowsTest, VanishAtOnceAndTheirGapsCloseOneByOne) {
  Well well = lay({"....3.....",  //
                   "1111111111",  //
                   "..22......",  //
                   "7777777777"});
  FullRows full(well);
  EXPECT_EQ(full.count(), 2);
  EXPECT_EQ(picture(well), "....3.....\n..........\n..22......\n..........\n");
  EXPECT_EQ(closing(well, full),
            (std::vector<std::string>{"....3.....\n..........\n..22......\n",  //
                                      "....3.....\n..22......\n"}));
}

// Row 1 is emptied only where it is itself full; then its gap closes like any other, but alone it
// is none.
TEST(FullRowsTest, TheTopRowStaysAndStandsTwice) {
  std::vector<std::string> rows(kRows, ".6........");
  rows[0] = "44......4.";
  rows[17] = "1234567123";
  Well well = lay(rows);
  FullRows full(well);
  EXPECT_EQ(closing(well, full).size(), 1u);
  rows.pop_back();
  rows.insert(rows.begin(), rows.front());
  EXPECT_EQ(picture(well), picture(lay(rows)));

  for (const auto& [others, gaps] : {std::pair{0, 0u}, {1, 2u}, {2, 3u}, {17, 18u}}) {
    Well topFull = lay({static_cast<std::size_t>(others), "5555555555"});
    topFull.row(1).fill(5);
    FullRows fullTop(topFull);
    EXPECT_EQ(fullTop.count(), others + 1);
    EXPECT_EQ(closing(topFull, fullTop).size(), gaps);
    EXPECT_EQ(picture(topFull), "");
  }
}

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
    closing(well, full);
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

int count(const Picture& picture, const Rgb& colour) {
  int pixels = 0;
  for (const auto& row : picture) pixels += static_cast<int>(std::ranges::count(row, colour));
  return pixels;
}

struct Colours {
  Rgb main, light, dark;
};
constexpr Colours kColours[] = {{{213, 43, 43}, {234, 149, 149}, {159, 32, 32}},
                                {{213, 43, 43}, {234, 149, 149}, {159, 32, 32}},
                                {{213, 128, 43}, {234, 191, 149}, {159, 96, 32}},
                                {{213, 213, 43}, {234, 234, 149}, {155, 155, 36}},
                                {{43, 213, 43}, {149, 234, 149}, {32, 159, 32}},
                                {{43, 43, 213}, {149, 149, 234}, {32, 32, 159}},
                                {{170, 43, 213}, {213, 149, 234}, {128, 32, 159}}};

TEST(TilesTest, ABlackRimGoesAroundABevelLitFromTheUpperLeft) {
  EXPECT_EQ(count(painted(0), {192, 192, 192}), 256);
  for (int kind = 1; kind <= kKinds; ++kind) {
    const Picture picture = painted(kind);
    const auto& [main, light, dark] = kColours[kind - 1];
    EXPECT_EQ(count(picture, {0, 0, 0}), 60) << kind;
    for (std::size_t i = 0; i < 16; ++i) {
      for (const Rgb& rim : {picture[0][i], picture[15][i], picture[i][0], picture[i][15]})
        EXPECT_EQ(rim, Rgb{}) << kind;
      if (i < 2 || i > 13) continue;
      for (const Rgb& edge : {picture[1][i], picture[i][1]}) EXPECT_EQ(edge, light) << kind;
      for (const Rgb& edge : {picture[14][i], picture[i][14]}) EXPECT_EQ(edge, dark) << kind;
    }
  }
}

TEST(TilesTest, AFigureIsALineInTheMiddleRaisedOrSunken) {
  // Pixels of the line; that of one kind has the other's shape the other way round.
  const std::map<int, int> kLines{{2, 20}, {3, 24}, {4, 28}, {5, 24}, {6, 20}, {7, 28}};
  for (const auto& [kind, line] : kLines) {
    const Picture picture = painted(kind);
    const auto& [main, light, dark] = kColours[kind - 1];
    EXPECT_EQ(count(picture, main), 144 - line) << kind;
    for (std::size_t y = 2; y < 14; ++y) {
      for (std::size_t x = 2; x < 14; ++x) {
        const bool isLine = picture[y][x] != main;
        for (const Rgb& mirrored : {picture[15 - y][x], picture[y][15 - x], picture[x][y]})
          EXPECT_EQ(mirrored != main, isLine) << kind << ' ' << x << ' ' << y;
        if (!isLine || x + y == 15) continue;
        const bool isRaised = kind < 5;
        EXPECT_EQ(picture[y][x], (x + y < 15) == isRaised ? light : dark) << kind;
      }
    }
    EXPECT_EQ(picture[7][7], main);
  }
}

TEST(TilesTest, TheBarsTileIsOfConcentricSquares) {
  const Picture picture = painted(1);
  const Rgb kRings[] = {{213, 43, 43}, {213, 128, 43}, {213, 213, 43},
                        {43, 213, 43}, {43, 43, 213},  {170, 43, 213}};
  int side = 12;
  for (const Rgb& ring : kRings) {
    EXPECT_EQ(count(picture, ring), 4 * side - 4);
    EXPECT_EQ(picture[static_cast<std::size_t>(8 - side / 2)][8], ring);
    side -= 2;
  }
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
