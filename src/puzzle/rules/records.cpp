#include "puzzle/rules/records.h"

#include <charconv>

#include "puzzle/rules/board.h"
#include "puzzle/rules/name.h"

namespace ratanka::puzzle {
namespace {

constexpr std::string_view kApplication = "Rátanka - hra Pucle";
constexpr std::string_view kSection = "Pucle";
constexpr int kNoTime = 9999;  // what a first time must beat
constexpr std::string_view kNone = "-";

std::string timeKey(int Size) { return std::to_string(Size); }
std::string nameKey(int Size) { return std::to_string(Size) + "Hráč"; }

}  // namespace

bool Records::CheckBestTime(int Size, int Seconds) {
  if (Seconds < 1 || Seconds >= bestTime(Size).value_or(kNoTime)) return false;
  store_.write(kApplication, kSection, timeKey(Size), std::to_string(Seconds));
  return true;
}

void Records::storeName(int Size, std::string_view answer) {
  store_.write(kApplication, kSection, nameKey(Size), playerName(answer));
}

std::string Records::list() const {
  std::string text = "Hra\tČas\tHráč\r\n";
  for (int Size = kMinSize; Size <= kMaxSize; ++Size) {
    const std::optional<int> stored = bestTime(Size);
    text += std::to_string(Size) + '\t';
    text += (stored ? std::to_string(*stored) : std::string(kNone)) + '\t';
    text += playerName(read(nameKey(Size), kNone)) + "\r\n";
  }
  return text;
}

std::optional<int> Records::bestTime(int Size) const {
  const std::string text = read(timeKey(Size), {});
  const char* const end = text.data() + text.size();
  int seconds = 0;  // and stays so if there is no number, or too great a one
  const char* const stop = std::from_chars(text.data(), end, seconds).ptr;
  if (stop != end || seconds < 1 || seconds > kNoTime) return std::nullopt;
  return seconds;
}

std::string Records::read(const std::string& key, std::string_view fallback) const {
  return store_.read(kApplication, kSection, key, fallback);
}

}  // namespace ratanka::puzzle
