// Anything may stand in a settings file. Whatever it is, those who read it get values in their
// ranges, and what they write is there the next time.

#include <QFile>
#include <QTemporaryDir>
#include <cstddef>
#include <cstdint>
#include <string>

#include "clock/rules/hands.h"
#include "fuzz/law.h"
#include "platform/settings/ini_settings_store.h"
#include "puzzle/rules/board.h"
#include "puzzle/rules/name.h"
#include "puzzle/rules/records.h"

namespace {

using namespace ratanka;

void put(const QString& path, const QByteArray& content) {
  QFile file(path);
  hold(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

void tryHands(IniSettingsStore& store, bool isWritten) {
  clock::HandColours colours = clock::readHandColours(store);
  for (const int one : colours) hold(-32768 <= one && one <= 32767);
  if (!isWritten) return;
  for (int& one : colours) one ^= 5;
  clock::writeHandColours(store, colours);
  hold(clock::readHandColours(store) == colours);
}

void tryRecords(IniSettingsStore& store, bool isWritten, const std::string& name) {
  constexpr int kSize = puzzle::kMinSize;
  puzzle::Records records(store);
  const std::string list = records.list();
  for (int size = kSize; size <= puzzle::kMaxSize; ++size) {
    hold(list.find('\n' + std::to_string(size) + '\t') != std::string::npos);
  }
  hold(!records.CheckBestTime(kSize, 9999));
  if (!isWritten) return;
  const bool isBest = records.CheckBestTime(kSize, 1);
  if (isBest) records.storeName(kSize, name);
  hold(!records.CheckBestTime(kSize, 1));
  // Where the cut left a blank at the end, it goes when the name is read.
  const std::string stored = isBest ? puzzle::playerName(puzzle::playerName(name)) + "\r\n" : "";
  hold(records.list().find('\n' + std::to_string(kSize) + "\t1\t" + stored) != std::string::npos);
}

}  // namespace

// Writing takes a hundred times as long as reading: it's tried with some of the inputs.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const QTemporaryDir folder("/dev/shm/settings_fuzz-XXXXXX");
  static IniSettingsStore store(folder.path());
  const QByteArray content(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const bool isWritten = qChecksum(content) % 16 == 0;
  put(folder.filePath("Ciferka.ini"), content);
  tryHands(store, isWritten);
  put(folder.filePath("Rátanka - hra Pucle.ini"), content);
  tryRecords(store, isWritten, QString::fromUtf8(content.right(40)).toStdString());
  return 0;
}
