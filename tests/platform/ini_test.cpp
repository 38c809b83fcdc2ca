#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "platform/plain/number.h"
#include "platform/settings/ini_file.h"

namespace ratanka {
namespace {

TEST(IniText, SetsOneValueAndKeepsAllElse) {
  struct Case {
    const char* before;
    const char* after;
  };
  constexpr Case kCases[] = {
      {"", "[S]\nKey One=7\n"},
      {"[S]\nKey One=1\n", "[S]\nKey One=7\n"},
      {"[s]\nkey one = 1\nother=2", "[s]\nKey One=7\nother=2\n"},
      {"; mine\n[T]\nKey One=1\n", "; mine\n[T]\nKey One=1\n[S]\nKey One=7\n"},
      {"[S]\na=1\n\n[T]\nKey One=1\n", "[S]\na=1\nKey One=7\n\n[T]\nKey One=1\n"},
      {"[S]\r\na=1\r\n", "[S]\r\na=1\r\nKey One=7\r\n"},
      {"[S]\r", "[S]\r\nKey One=7\r\n"},
      {"Key One=1\n[S]\n", "Key One=1\n[S]\nKey One=7\n"},
      {"[S\n\xff\xfe=\n[]\n=\n", "[S\n\xff\xfe=\n[]\n=\n[S]\nKey One=7\n"},
  };
  for (const Case& one : kCases) {
    EXPECT_EQ(withValue(one.before, "S", "Key One", "7"), one.after);
    EXPECT_EQ(withValue(one.after, "S", "Key One", "7"), one.after);
  }
}

TEST(IniFile, IsWrittenInOneGoWhereItCanBe) {
  const QTemporaryDir folder;
  const QString path = folder.filePath("new/a.ini");
  const auto content = [&] {
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    return file.readAll().toStdString();
  };
  const IniValue values[] = {{"a", "1"}, {"b", ""}};
  writeIniValues(path, "S", values);
  EXPECT_EQ(content(), "[S]\na=1\nb=\n");
  const IniValue again[] = {{"a", "2"}};
  writeIniValues(path, "S", again);
  EXPECT_EQ(content(), "[S]\na=2\nb=\n");
  writeIniValues(path + "/under/a/file.ini", "S", values);  // can't be: nothing happens
  EXPECT_EQ(content(), "[S]\na=2\nb=\n");
}

TEST(Number, IsReadAsItIsWrittenAtSchool) {
  for (const char* text : {"2.5", "2,5", " 2.5\t", "+2,5", "25e-1"}) EXPECT_EQ(numberIn(text), 2.5);
  for (const char* text : {"", " ", "2 5", "inf", "nan", "0x2", "2,5.1", "+-2", "--2", "1e999"}) {
    EXPECT_EQ(numberIn(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace ratanka
